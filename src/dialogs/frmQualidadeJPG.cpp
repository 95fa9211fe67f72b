#include "dialogs/frmQualidadeJPG.h"

#include "controls/ui/NumeroCtl.h"
#include "dialogs/Dialogo.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace lumeta {

frmQualidadeJPG::frmQualidadeJPG(int16_t qualidade, QWidget *pai) : QDialog(pai), m_qualidade(qualidade)
{
    setObjectName(QStringLiteral("frmQualidadeJPG"));
    setWindowTitle(QStringLiteral("Qualidade do JPG no e-mail"));
    new EnterComoTab(this);
    numQualidadeJPG = new NumeroCtl(this);
    numQualidadeJPG->setObjectName(QStringLiteral("numQualidadeJPG"));
    numQualidadeJPG->setNumberFormat(3);
    numQualidadeJPG->setValue(qualidade);
    numQualidadeJPG->setFixedWidth(80);
    auto *rotulo = CriarRotulo(this, "lblQualidadeJPG", QStringLiteral("Digite o percentual (1-100):"), numQualidadeJPG);
    numQualidadeJPG->Rotular(rotulo);
    // A blank field is the user between two numbers, not a 0 to raise to 1.
    connect(numQualidadeJPG, &NumeroCtl::Change, this, [this] {
        const double v = numQualidadeJPG->Value();
        if (!numQualidadeJPG->Vazio() && v != LimitarQualidadeJPG(qint64(v)))
            numQualidadeJPG->setValue(LimitarQualidadeJPG(qint64(v)));
    });

    QHBoxLayout *botoes = BotoesOkCancelar(this, [this] {
        m_qualidade = LimitarQualidadeJPG(qint64(numQualidadeJPG->Value()));
        accept();
    });

    auto *linha = new QHBoxLayout;
    linha->addWidget(rotulo);
    linha->addWidget(numQualidadeJPG);
    linha->addStretch(1);
    auto *grade = new QVBoxLayout(this);
    grade->addLayout(linha);
    grade->addLayout(botoes);
    setMinimumWidth(300);
    numQualidadeJPG->setFocus();
}

bool mnuConfigQualidadeJPG(SessaoEdicao &s, QWidget *pai)
{
    frmQualidadeJPG f(s.Documento.QualidadeJPG, pai);
    const bool aceito = f.exec() == QDialog::Accepted;
    DefinirQualidadeJPG(s, f.Qualidade());
    return aceito;
}

}  // namespace lumeta
