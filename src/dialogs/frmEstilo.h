#pragma once
// The style dialog: the item's text on several lines and four toggle buttons
// that put the bold, italic, underline and strikethrough tags around whole
// words. The buttons follow the caret.

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

namespace lumeta {

class SessaoEdicao;

class frmEstilo : public QDialog {
    Q_OBJECT
public:
    // `texto` as the item stores it ("{e}" line breaks).
    explicit frmEstilo(const QString &texto, QWidget *pai = nullptr);
    // The text to store; valid after the dialog was accepted.
    QString Texto() const { return m_texto; }

    QPlainTextEdit *txtEstilo = nullptr;
    QPushButton *btnEstilo[4] = {};

private:
    void atualizarBotoes();
    void aplicar(int k, bool ligar);

    QString m_texto;
};

// "Estilo" of the Edit menu's item submenu, for a text or command item.
// False when nothing was stored (cancelled, or no such item selected).
bool mnuEditarItemEstilo(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
