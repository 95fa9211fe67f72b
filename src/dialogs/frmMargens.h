#pragma once
// The paper margins dialog: for the top, left and bottom margins either a
// number of millimetres or a command or variable name, never both.

#include <QDialog>

class QLineEdit;

namespace lumeta {

class NumeroCtl;
class SessaoEdicao;

class frmMargens : public QDialog {
    Q_OBJECT
public:
    // The margins as the layout stores them: top, left, bottom.
    frmMargens(const QString &superior, const QString &esquerda, const QString &inferior, QWidget *pai = nullptr);

    // The margins to store, valid after OK: top, left, bottom.
    QString Margem(int k) const { return m_margens[k]; }

    NumeroCtl *numSuperior = nullptr, *numEsquerda = nullptr, *numInferior = nullptr;
    QLineEdit *txtSuperior = nullptr, *txtEsquerda = nullptr, *txtInferior = nullptr;

private:
    QString m_margens[3];
};

// "Margens do papel": the three margins through the dialog; a cancelled
// dialog changes nothing.
bool mnuConfigMargens(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
