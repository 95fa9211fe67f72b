#include "app/gui/Autor.h"

#include "app/gui/frmLumetaEdit.h"
#include "controls/ModuloAssociar.h"
#include "document/Layout.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lumeta {

QString Autor::Versao()
{
    return QStringLiteral("%1.%2.%3").arg(LUMETA_VERSAO_MAIOR).arg(LUMETA_VERSAO_MENOR).arg(LUMETA_VERSAO_REVISAO);
}

Autor::Autor(QWidget *pai) : QDialog(pai)
{
    setObjectName(QStringLiteral("Autor"));
    setWindowTitle(QStringLiteral("Sobre o ") + TituloAplicacao);
    auto *principal = new QVBoxLayout(this);
    principal->setContentsMargins(18, 18, 18, 12);
    principal->setSpacing(14);

    auto *topo = new QHBoxLayout;
    topo->setSpacing(16);
    auto *icone = new QLabel(this);
    const qreal escala = devicePixelRatioF();
    QPixmap px = QPixmap::fromImage(DesenharIconeLumetaEdit(int(64 * escala)));
    px.setDevicePixelRatio(escala);
    icone->setPixmap(px);
    icone->setAlignment(Qt::AlignTop);
    topo->addWidget(icone);

    auto *textos = new QVBoxLayout;
    textos->setSpacing(4);
    auto *titulo = new QLabel(TituloAplicacao, this);
    titulo->setObjectName(QStringLiteral("lblTitulo"));
    QFont f = titulo->font();
    f.setPointSizeF(f.pointSizeF() * 1.5);
    f.setBold(true);
    titulo->setFont(f);
    textos->addWidget(titulo);
    textos->addWidget(new QLabel(QStringLiteral("Editor de Layout do Lumeta"), this));
    auto *versao = new QLabel(QStringLiteral("Versão ") + Versao(), this);
    versao->setObjectName(QStringLiteral("lblVersao"));
    textos->addWidget(versao);
    textos->addSpacing(8);
    auto *email = new QLabel(QStringLiteral("E-mail: <a href=\"mailto:%1\">%1</a>").arg(EmailAutor), this);
    email->setObjectName(QStringLiteral("lblEmail"));
    auto *site = new QLabel(QStringLiteral("Página: <a href=\"%1\">%1</a>").arg(EnderecoSite), this);
    site->setObjectName(QStringLiteral("lblSite"));
    for (QLabel *l : {email, site}) {
        l->setTextFormat(Qt::RichText);
        l->setTextInteractionFlags(Qt::TextBrowserInteraction);
        l->setOpenExternalLinks(true);
        textos->addWidget(l);
    }
    topo->addLayout(textos, 1);
    principal->addLayout(topo);

    auto *botoes = new QDialogButtonBox(this);
    QPushButton *ok = botoes->addButton(QStringLiteral("&Ok"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("btnOk"));
    ok->setDefault(true);
    connect(botoes, &QDialogButtonBox::accepted, this, &QDialog::accept);
    principal->addWidget(botoes);
    setFixedSize(sizeHint());
}

}  // namespace lumeta
