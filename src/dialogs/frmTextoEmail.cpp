#include "dialogs/frmTextoEmail.h"

#include "dialogs/Dialogo.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"
#include "output/Visualizacao.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace lumeta {

frmTextoEmail::frmTextoEmail(const QString &texto, QWidget *pai) : QDialog(pai)
{
    setObjectName(QStringLiteral("frmTextoEmail"));
    setWindowTitle(QStringLiteral("Texto do e-mail"));
    txtTexto = new QPlainTextEdit(this);
    txtTexto->setObjectName(QStringLiteral("txtTexto"));
    txtTexto->setFont(QFont(QStringLiteral("Times New Roman"), 11));
    txtTexto->setTabChangesFocus(true);
    txtTexto->setPlainText(texto);
    auto *rotulo = CriarRotulo(this, "lblTexto", QStringLiteral("Digite o texto que será exibido no corpo do e-mail:"),
                               txtTexto);
    QPushButton *btnOk = CriarBotao(this, "btnOk", QStringLiteral("&Ok"));
    QPushButton *btnCancelar = CriarBotao(this, "btnCancelar", QStringLiteral("&Cancelar"));
    QPushButton *btnLimpar = CriarBotao(this, "btnLimpar", QStringLiteral("&Limpar"));
    QPushButton *btnPadrao = CriarBotao(this, "btnPadrao", QStringLiteral("Padrão"));
    connect(btnOk, &QPushButton::clicked, this, [this] {
        m_texto = txtTexto->toPlainText();
        accept();
    });
    connect(btnCancelar, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnLimpar, &QPushButton::clicked, this, [this] {
        m_texto.clear();
        accept();
    });
    connect(btnPadrao, &QPushButton::clicked, this, [this] { txtTexto->setPlainText(TextoEmailPadrao()); });

    auto *botoes = new QHBoxLayout;
    botoes->addWidget(btnPadrao);
    botoes->addWidget(btnLimpar);
    botoes->addStretch(1);
    botoes->addWidget(btnOk);
    botoes->addWidget(btnCancelar);
    auto *grade = new QVBoxLayout(this);
    grade->addWidget(rotulo);
    grade->addWidget(txtTexto, 1);
    grade->addLayout(botoes);
    resize(600, 340);
    txtTexto->setFocus();
}

bool mnuConfigEmailTexto(SessaoEdicao &s, QWidget *pai)
{
    frmTextoEmail f(TextoEmailParaCaixa(s.Documento.TextoEmail), pai);
    if (f.exec() != QDialog::Accepted)
        return false;
    DefinirTextoEmail(s, f.Texto());
    return true;
}

}  // namespace lumeta
