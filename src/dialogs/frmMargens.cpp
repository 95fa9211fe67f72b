#include "dialogs/frmMargens.h"

#include "controls/ui/NumeroCtl.h"
#include "dialogs/Dialogo.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace lumeta {

frmMargens::frmMargens(const QString &superior, const QString &esquerda, const QString &inferior, QWidget *pai)
    : QDialog(pai)
{
    setObjectName(QStringLiteral("frmMargens"));
    setWindowTitle(QStringLiteral("Margens do papel"));
    new EnterComoTab(this);
    auto *grade = new QVBoxLayout(this);
    const struct {
        const char *sufixo;
        const char *legenda;
        NumeroCtl **num;
        QLineEdit **txt;
        const QString *valor;
    } margens[3] = {{"Superior", "Margem Superior:", &numSuperior, &txtSuperior, &superior},
                    {"Esquerda", "Margem Esquerda:", &numEsquerda, &txtEsquerda, &esquerda},
                    {"Inferior", "Margem Inferior:", &numInferior, &txtInferior, &inferior}};
    for (const auto &m : margens) {
        auto *quadro = new QGroupBox(QString::fromUtf8(m.legenda), this);
        quadro->setObjectName(QStringLiteral("fra") + QLatin1String(m.sufixo));
        auto *num = new NumeroCtl(quadro);
        num->setObjectName(QStringLiteral("num") + QLatin1String(m.sufixo));
        num->setNumberFormat(4.2);
        num->setAllowEmpty(true);
        num->setFixedWidth(110);
        auto *txt = new QLineEdit(quadro);
        txt->setObjectName(QStringLiteral("txt") + QLatin1String(m.sufixo));
        auto *layout = new QGridLayout(quadro);
        QLabel *rotulo = CriarRotulo(quadro, "lblMilimetros", QStringLiteral("Margem em milímetros:"), num);
        num->Rotular(rotulo);
        layout->addWidget(rotulo, 0, 0);
        layout->addWidget(num, 0, 1, Qt::AlignLeft);
        layout->addWidget(CriarRotulo(quadro, "lblComando", QStringLiteral("Comando ou Variável:"), txt), 1, 0);
        layout->addWidget(txt, 1, 1);
        layout->setColumnStretch(1, 1);
        grade->addWidget(quadro);

        const MargemLida lida = LerMargem(*m.valor);
        if (lida.numero) {
            num->setValue(lida.milimetros);
        } else {
            num->Esvaziar();
            txt->setText(lida.comando);
        }
        // Only what the user does clears the other field of the pair.
        connect(num, &NumeroCtl::Change, txt, &QLineEdit::clear);
        connect(txt, &QLineEdit::textEdited, num, &NumeroCtl::Esvaziar);
        *m.num = num;
        *m.txt = txt;
    }

    QHBoxLayout *botoes = BotoesOkCancelar(this, [this] {
        const NumeroCtl *nums[3] = {numSuperior, numEsquerda, numInferior};
        const QLineEdit *txts[3] = {txtSuperior, txtEsquerda, txtInferior};
        for (int k = 0; k < 3; ++k)
            m_margens[k] = GravarMargem(nums[k]->Value(), txts[k]->text());
        accept();
    });
    grade->addLayout(botoes);
    setMinimumWidth(380);
    numSuperior->setFocus();
}

bool mnuConfigMargens(SessaoEdicao &s, QWidget *pai)
{
    const LayoutDocumento &d = s.Documento;
    frmMargens f(d.MargemSuperior, d.MargemEsquerda, d.MargemInferior, pai);
    if (f.exec() != QDialog::Accepted)
        return false;
    DefinirMargens(s, f.Margem(0), f.Margem(1), f.Margem(2));
    return true;
}

}  // namespace lumeta
