#pragma once
// The e-mail body dialog: a multi-line box, OK, Cancel, Clear (empties the
// text and closes) and the standard text.

#include <QDialog>

class QPlainTextEdit;

namespace lumeta {

class SessaoEdicao;

class frmTextoEmail : public QDialog {
    Q_OBJECT
public:
    // `texto` as the box shows it (line feeds, not markers).
    explicit frmTextoEmail(const QString &texto, QWidget *pai = nullptr);
    // The text chosen; valid after the dialog was accepted.
    QString Texto() const { return m_texto; }

    QPlainTextEdit *txtTexto = nullptr;

private:
    QString m_texto;
};

// "Texto do e-mail": the document's e-mail text through the dialog; a
// cancelled dialog changes nothing.
bool mnuConfigEmailTexto(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
