#pragma once
// The JPEG quality dialog: one percentage from 1 to 100.

#include <QDialog>


namespace lumeta {

class NumeroCtl;
class SessaoEdicao;

class frmQualidadeJPG : public QDialog {
    Q_OBJECT
public:
    explicit frmQualidadeJPG(int16_t qualidade, QWidget *pai = nullptr);
    // The quality chosen; the one given when the dialog was cancelled.
    int16_t Qualidade() const { return m_qualidade; }

    NumeroCtl *numQualidadeJPG = nullptr;

private:
    int16_t m_qualidade;
};

// "Qualidade do JPG no e-mail": the document's and the session's quality
// through the dialog; the command text is refreshed and the document marked
// changed after Cancel too.
bool mnuConfigQualidadeJPG(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
