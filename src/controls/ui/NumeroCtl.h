#pragma once
// The numeric field: a single-line box that always holds a number of the
// declared shape (RegrasNumero), grouped for display once it loses the
// focus and ungrouped while it is edited.
#include "controls/RegrasNumero.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace lumeta {

class NumeroCtl : public QWidget {
    Q_OBJECT
    Q_PROPERTY(double Value READ Value WRITE setValue)
    Q_PROPERTY(double NumberFormat READ NumberFormat WRITE setNumberFormat)
    Q_PROPERTY(bool HoldDecimal READ HoldDecimal WRITE setHoldDecimal)
    Q_PROPERTY(bool SeparadorMilhar READ SeparadorMilhar WRITE setSeparadorMilhar)
    Q_PROPERTY(bool AllowSignal READ AllowSignal WRITE setAllowSignal)
    Q_PROPERTY(bool AllowEmpty READ AllowEmpty WRITE setAllowEmpty)
    Q_PROPERTY(bool Locked READ Locked WRITE setLocked)
    Q_PROPERTY(double GotFocusValue READ GotFocusValue)
public:
    explicit NumeroCtl(QWidget *pai = nullptr);

    double Value() const { return m_regras.Valor(); }
    bool Vazio() const { return m_regras.Vazio(); }
    // Written by the host: shown in the display format, no Change raised.
    void setValue(double v);
    // No number at all (shown blank), as a field that holds none yet.
    void Esvaziar();
    double NumberFormat() const { return m_regras.Formato(); }
    void setNumberFormat(double v);
    bool HoldDecimal() const { return m_regras.ManterDecimais; }
    void setHoldDecimal(bool v);
    bool SeparadorMilhar() const { return m_regras.SeparadorMilhar; }
    void setSeparadorMilhar(bool v);
    bool AllowSignal() const { return m_regras.PermitirSinal; }
    void setAllowSignal(bool v) { m_regras.PermitirSinal = v; }
    bool AllowEmpty() const { return m_regras.PermitirVazio; }
    void setAllowEmpty(bool v) { m_regras.PermitirVazio = v; }
    bool Locked() const { return m_regras.Travado; }
    void setLocked(bool v);
    double GotFocusValue() const { return m_regras.ValorAoFocar(); }
    void Refresh() { update(); }

    QLineEdit *txtNumero() const { return m_caixa; }
    // Names the field after its label: the label's buddy, and the inner box
    // takes the caption as its accessible name.
    void Rotular(QLabel *rotulo);
    void setToolTip(const QString &dica);

signals:
    void Change();      // the number changed by the user
    void Saiu();        // the field lost the focus

protected:
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    void espelhar();
    void exibir();

    RegrasNumero m_regras;
    QLineEdit *m_caixa;
    bool m_escrevendo = false;
};

}  // namespace lumeta
