#include "app/gui/JanelaAjuda.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace lumeta {

namespace {

QPushButton *botao(QWidget *pai, const QString &legenda, const QString &nome)
{
    auto *b = new QPushButton(legenda, pai);
    b->setObjectName(nome);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

JanelaAjuda::JanelaAjuda(QWidget *pai) : QWidget(pai, Qt::Window)
{
    setObjectName(QStringLiteral("JanelaAjuda"));
    setWindowTitle(TituloJanelaAjuda);
    resize(760, 620);

    auto *raiz = new QVBoxLayout(this);
    auto *barra = new QHBoxLayout;
    m_voltar = botao(this, QStringLiteral("&Voltar"), QStringLiteral("btnVoltar"));
    m_avancar = botao(this, QStringLiteral("A&vançar"), QStringLiteral("btnAvancar"));
    auto *fechar = botao(this, QStringLiteral("&Fechar"), QStringLiteral("btnFechar"));
    barra->addWidget(m_voltar);
    barra->addWidget(m_avancar);
    barra->addStretch(1);
    barra->addWidget(fechar);
    raiz->addLayout(barra);

    m_navegador = new QTextBrowser(this);
    m_navegador->setObjectName(QStringLiteral("txtAjuda"));
    m_navegador->setAccessibleName(QStringLiteral("Texto da ajuda"));
    // Addresses of the web go to the system's browser; the shipped documents
    // link to each other and stay here.
    m_navegador->setOpenExternalLinks(true);
    raiz->addWidget(m_navegador, 1);

    m_voltar->setEnabled(false);
    m_avancar->setEnabled(false);
    connect(m_voltar, &QPushButton::clicked, m_navegador, &QTextBrowser::backward);
    connect(m_avancar, &QPushButton::clicked, m_navegador, &QTextBrowser::forward);
    connect(m_navegador, &QTextBrowser::backwardAvailable, m_voltar, &QPushButton::setEnabled);
    connect(m_navegador, &QTextBrowser::forwardAvailable, m_avancar, &QPushButton::setEnabled);
    connect(fechar, &QPushButton::clicked, this, &QWidget::close);
}

bool JanelaAjuda::Mostrar(const QString &caminho)
{
    const qsizetype cerquilha = caminho.lastIndexOf(QLatin1Char('#'));
    const QString arquivo = cerquilha < 0 ? caminho : caminho.left(cerquilha);
    // The browser shows an empty page for a file it cannot read, without a
    // word: the file is looked at first.
    QFile f(arquivo);
    if (!QFileInfo(arquivo).isFile() || !f.open(QIODevice::ReadOnly))
        return false;
    f.close();
    QUrl url = QUrl::fromLocalFile(QFileInfo(arquivo).absoluteFilePath());
    if (cerquilha >= 0)
        url.setFragment(caminho.mid(cerquilha + 1));
    m_navegador->setSource(url, QTextDocument::HtmlResource);
    return true;
}

QString MensagemDocumentoAjuda(const QString &alvo)
{
    return alvo + QStringLiteral("\n\nNão foi possível abrir o documento acima!");
}

bool AbrirDocumentoAjuda(QWidget *dono, InterfaceUsuario *ui, const QString &caminho)
{
    JanelaAjuda *janela = dono->findChild<JanelaAjuda *>(QString(), Qt::FindDirectChildrenOnly);
    const bool nova = !janela;
    if (nova)
        janela = new JanelaAjuda(dono);
    if (!janela->Mostrar(caminho)) {
        if (nova)
            delete janela;
        if (ui)
            ui->Mensagem(MensagemDocumentoAjuda(caminho), TituloAjuda, Icone::Exclamacao);
        return false;
    }
    janela->show();
    janela->raise();
    janela->activateWindow();
    return true;
}

}  // namespace lumeta
