#pragma once
// Mouse-wheel scrolling of the page canvas. The hook watches a window's
// events, lets the window handle each one first, and turns every wheel event
// into one step of the canvas's vertical scroll bar.

#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

namespace lumeta {

enum DirecaoRolagem { RolarAcima = 1, RolarAbaixo = 2 };

// The direction of one wheel event from its distance in eighths of a degree
// (120 = one notch): exactly one notch away from the user scrolls up,
// anything else down.
DirecaoRolagem DirecaoRoda(int distancia);

// Whether the system reports a pointing device with a wheel.
bool HaRodaNoSistema();

class ModMouseWheel : public QObject {
    Q_OBJECT
public:
    explicit ModMouseWheel(std::function<void(DirecaoRolagem)> rolar, QObject *pai = nullptr)
        : QObject(pai), m_rolar(std::move(rolar))
    {
    }
    ~ModMouseWheel() override { RemoverRoda(); }

    // Installs the hook on `janela` (and its children, whose wheel events
    // reach it). Without a wheel reported by the system and without
    // `forcar`, nothing is installed and the result is false.
    bool InstalarRoda(QWidget *janela, bool forcar);
    // Removes the hook; nothing happens when none is installed.
    void RemoverRoda();
    bool Instalado() const { return !m_janela.isNull(); }

protected:
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    std::function<void(DirecaoRolagem)> m_rolar;
    QPointer<QWidget> m_janela;
    bool m_repassando = false;
};

}  // namespace lumeta
