#pragma once
// What the editor's small modal dialogs share: Enter moving on as Tab in
// single-line fields, labelled fields (the label is the field's buddy, so the
// field is found by the label's caption) and named buttons.

#include <QDialog>
#include <QObject>
#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace lumeta {

// Installed on a dialog, makes Enter in any single-line field move the focus
// to the next control and swallows it; multi-line boxes keep their Enter.
class EnterComoTab : public QObject {
public:
    explicit EnterComoTab(QDialog *dialogo);

protected:
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    QDialog *m_dialogo;
};

QPushButton *CriarBotao(QWidget *pai, const char *nome, const QString &legenda);
// The row of `btnOk` ("&Ok", running `ok`) and `btnCancelar` ("&Cancelar",
// rejecting the dialog), at the right.
QHBoxLayout *BotoesOkCancelar(QDialog *dialogo, const std::function<void()> &ok);
QLabel *CriarRotulo(QWidget *pai, const char *nome, const QString &legenda, QWidget *campo);

}  // namespace lumeta
