#include "dialogs/frmQualidadeJPG.h"

#include "dialogs/Dialogo.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

namespace lumeta {

frmQualidadeJPG::frmQualidadeJPG(int16_t qualidade, QWidget *pai) : QDialog(pai), m_qualidade(qualidade)
{
    setObjectName(QStringLiteral("frmQualidadeJPG"));
    setWindowTitle(QStringLiteral("Qualidade do JPG no e-mail"));
    new EnterComoTab(this);
    numQualidadeJPG = new QLineEdit(QString::number(qualidade), this);
    numQualidadeJPG->setObjectName(QStringLiteral("numQualidadeJPG"));
    numQualidadeJPG->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,4}")), this));
    numQualidadeJPG->setAlignment(Qt::AlignRight);
    numQualidadeJPG->setMaximumWidth(80);
    auto *rotulo = CriarRotulo(this, "lblQualidadeJPG", QStringLiteral("Digite o percentual (1-100):"), numQualidadeJPG);
    connect(numQualidadeJPG, &QLineEdit::textEdited, this, [this](const QString &t) {
        if (t.isEmpty())
            return;
        const QString limitado = QString::number(LimitarQualidadeJPG(t.toLongLong()));
        if (limitado != t)
            numQualidadeJPG->setText(limitado);
    });

    QHBoxLayout *botoes = BotoesOkCancelar(this, [this] {
        m_qualidade = LimitarQualidadeJPG(numQualidadeJPG->text().toLongLong());
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
    numQualidadeJPG->selectAll();
}

bool mnuConfigQualidadeJPG(SessaoEdicao &s, QWidget *pai)
{
    frmQualidadeJPG f(s.Documento.QualidadeJPG, pai);
    const bool aceito = f.exec() == QDialog::Accepted;
    DefinirQualidadeJPG(s, f.Qualidade());
    return aceito;
}

}  // namespace lumeta
