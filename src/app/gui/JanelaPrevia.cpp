#include "app/gui/JanelaPrevia.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

namespace lumeta {

namespace {

const double Zooms[] = {0.5, 0.75, 1.0, 1.5, 2.0};

// Long jobs report each page and may be cancelled; a short one never shows.
ProgressoImpressao Progresso(QProgressDialog &dialogo)
{
    return [&dialogo](int pagina, int paginas) {
        dialogo.setMaximum(paginas);
        dialogo.setValue(pagina);
        return !dialogo.wasCanceled();
    };
}

}  // namespace

VistaPaginas::VistaPaginas(MotorImpressao &motor, QWidget *pai) : QAbstractScrollArea(pai), m_motor(motor)
{
    setToolTip(QStringLiteral("Páginas"));
    setAccessibleName(QStringLiteral("Páginas"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setAutoFillBackground(true);
    atualizarBarras();
}

QSize VistaPaginas::tamanhoPagina() const
{
    const QSizeF f = m_motor.TamanhoFolha() * m_zoom;
    return QSize(int(std::lround(f.width())), int(std::lround(f.height())));
}

double VistaPaginas::ZoomLargura() const
{
    const int livre = viewport()->width() - 2 * Intervalo;
    return std::clamp(livre / m_motor.TamanhoFolha().width(), 0.1, 4.0);
}

void VistaPaginas::DefinirZoom(double zoom)
{
    zoom = std::clamp(zoom, 0.1, 4.0);
    if (zoom == m_zoom)
        return;
    const int pagina = PaginaAtual();
    m_zoom = zoom;
    m_imagens.clear();
    atualizarBarras();
    IrParaPagina(pagina);
    viewport()->update();
}

void VistaPaginas::atualizarBarras()
{
    const QSize p = tamanhoPagina();
    const qint64 total = qint64(passo()) * m_motor.NumPaginas() + Intervalo;
    verticalScrollBar()->setRange(0, int(std::min<qint64>(std::max<qint64>(total - viewport()->height(), 0), INT_MAX)));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(std::max(passo() / 20, 1));
    horizontalScrollBar()->setRange(0, std::max(p.width() + 2 * Intervalo - viewport()->width(), 0));
    horizontalScrollBar()->setPageStep(viewport()->width());
}

int VistaPaginas::PaginaAtual() const
{
    const qint64 meio = qint64(verticalScrollBar()->value()) + viewport()->height() / 2;
    return int(std::clamp<qint64>(meio / passo() + 1, 1, std::max(m_motor.NumPaginas(), 1)));
}

void VistaPaginas::IrParaPagina(int pagina)
{
    pagina = std::clamp(pagina, 1, std::max(m_motor.NumPaginas(), 1));
    verticalScrollBar()->setValue(int(std::min<qint64>(qint64(pagina - 1) * passo(), INT_MAX)));
    if (PaginaAtual() != m_ultimaAvisada)
        emit PaginaMudou(m_ultimaAvisada = PaginaAtual());
}

const QImage &VistaPaginas::imagem(int pagina)
{
    if (QImage *pronta = m_imagens.object(pagina))
        return *pronta;
    const qreal razao = devicePixelRatioF();
    const QSize p = tamanhoPagina() * razao;
    auto *img = new QImage(p, QImage::Format_RGB32);
    img->fill(Qt::white);
    {
        QPainter pintor(img);
        pintor.scale(m_zoom * razao, m_zoom * razao);
        m_motor.PintarPagina(pintor, pagina);
    }
    img->setDevicePixelRatio(razao);
    ++m_pintadas;
    m_imagens.insert(pagina, img);
    return *m_imagens.object(pagina);
}

void VistaPaginas::paintEvent(QPaintEvent *)
{
    QPainter p(viewport());
    const QSize pagina = tamanhoPagina();
    const int y0 = verticalScrollBar()->value();
    const int x = std::max((viewport()->width() - pagina.width()) / 2, Intervalo) - horizontalScrollBar()->value();
    const int primeira = std::max(y0 / passo(), 0) + 1;
    for (int n = primeira; n <= m_motor.NumPaginas(); ++n) {
        const qint64 topo = qint64(n - 1) * passo() + Intervalo - y0;
        if (topo > viewport()->height())
            break;
        p.drawImage(QPoint(x, int(topo)), imagem(n));
    }
}

void VistaPaginas::resizeEvent(QResizeEvent *e)
{
    QAbstractScrollArea::resizeEvent(e);
    atualizarBarras();
}

void VistaPaginas::scrollContentsBy(int, int)
{
    viewport()->update();
    if (PaginaAtual() != m_ultimaAvisada)
        emit PaginaMudou(m_ultimaAvisada = PaginaAtual());
}

void VistaPaginas::wheelEvent(QWheelEvent *e)
{
    if (e->modifiers() & Qt::ControlModifier) {
        DefinirZoom(m_zoom * (e->angleDelta().y() > 0 ? 1.25 : 0.8));
        e->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(e);
}

JanelaPrevia::JanelaPrevia(std::unique_ptr<MotorImpressao> motor, const QString &nome, InterfaceUsuario *ui,
                           QWidget *pai)
    : QDialog(pai), m_motor(std::move(motor)), m_nome(nome), m_ui(ui)
{
    setObjectName(QStringLiteral("JanelaPrevia"));
    setWindowTitle(QStringLiteral("Visualizar - ") + nome);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowMaximizeButtonHint);

    auto botao = [this](const QString &legenda, const QKeySequence &tecla, const char *nome) {
        auto *b = new QPushButton(legenda, this);
        b->setObjectName(QLatin1String(nome));
        b->setAutoDefault(false);
        if (!tecla.isEmpty())
            b->setShortcut(tecla);
        return b;
    };
    QPushButton *anterior = botao(QStringLiteral("&Anterior"), QKeySequence(Qt::Key_PageUp), "btnAnterior");
    QPushButton *proxima = botao(QStringLiteral("&Próxima"), QKeySequence(Qt::Key_PageDown), "btnProxima");
    QPushButton *imprimir = botao(QStringLiteral("&Imprimir..."), QKeySequence::Print, "btnImprimir");
    QPushButton *pdf = botao(QStringLiteral("Salvar &PDF..."), QKeySequence(), "btnSalvarPDF");
    QPushButton *fechar = botao(QStringLiteral("&Fechar"), QKeySequence(), "btnFechar");
    m_pagina = new QLabel(this);
    m_pagina->setObjectName(QStringLiteral("lblPagina"));
    m_zoom = new QComboBox(this);
    for (double z : Zooms)
        m_zoom->addItem(QString::number(int(z * 100)) + QStringLiteral(" %"), z);
    m_zoom->addItem(QStringLiteral("Largura da página"), 0.0);
    auto *rotulo = new QLabel(QStringLiteral("&Zoom:"), this);
    rotulo->setBuddy(m_zoom);
    m_zoom->setAccessibleName(QStringLiteral("Zoom:"));

    auto *barra = new QHBoxLayout;
    for (QWidget *w : {static_cast<QWidget *>(anterior), static_cast<QWidget *>(proxima),
                       static_cast<QWidget *>(m_pagina), static_cast<QWidget *>(rotulo),
                       static_cast<QWidget *>(m_zoom)})
        barra->addWidget(w);
    barra->addStretch();
    for (QWidget *w : {imprimir, pdf, fechar})
        barra->addWidget(w);
    m_vista = new VistaPaginas(*m_motor, this);
    auto *coluna = new QVBoxLayout(this);
    coluna->addLayout(barra);
    coluna->addWidget(m_vista, 1);
    resize(900, 760);

    connect(anterior, &QPushButton::clicked, this, [this] { m_vista->IrParaPagina(m_vista->PaginaAtual() - 1); });
    connect(proxima, &QPushButton::clicked, this, [this] { m_vista->IrParaPagina(m_vista->PaginaAtual() + 1); });
    connect(imprimir, &QPushButton::clicked, this, &JanelaPrevia::Imprimir);
    connect(pdf, &QPushButton::clicked, this, &JanelaPrevia::SalvarPDF);
    connect(fechar, &QPushButton::clicked, this, &QDialog::close);
    connect(m_vista, &VistaPaginas::PaginaMudou, this, &JanelaPrevia::mostrarPagina);
    connect(m_zoom, &QComboBox::currentIndexChanged, this, [this](int i) {
        const double z = m_zoom->itemData(i).toDouble();
        m_vista->DefinirZoom(z > 0 ? z : m_vista->ZoomLargura());
    });
    auto *mais = new QShortcut(QKeySequence::ZoomIn, this);
    auto *menos = new QShortcut(QKeySequence::ZoomOut, this);
    connect(mais, &QShortcut::activated, this, [this] { m_vista->DefinirZoom(m_vista->Zoom() * 1.25); });
    connect(menos, &QShortcut::activated, this, [this] { m_vista->DefinirZoom(m_vista->Zoom() * 0.8); });
    m_zoom->setCurrentIndex(2);
    mostrarPagina(1);
}

JanelaPrevia::~JanelaPrevia() = default;

void JanelaPrevia::mostrarPagina(int pagina)
{
    m_pagina->setText(QStringLiteral("Página %1 de %2").arg(pagina).arg(m_motor->NumPaginas()));
}

void JanelaPrevia::Imprimir()
{
    QPrinter impressora(QPrinter::HighResolution);
    const QString nome = m_motor->Opcoes().impressora;
    if (!nome.isEmpty() && QPrinterInfo::availablePrinterNames().contains(nome))
        impressora.setPrinterName(nome);
    impressora.setFullPage(true);
    impressora.setPageSize(QPageSize(QPageSize::A4));
    impressora.setPageOrientation(m_motor->Opcoes().paisagem ? QPageLayout::Landscape : QPageLayout::Portrait);
    impressora.setDocName(m_nome);
    QPrintDialog dialogo(&impressora, this);
    dialogo.setMinMax(1, m_motor->NumPaginas());
    if (dialogo.exec() != QDialog::Accepted)
        return;
    int primeira = 1, ultima = m_motor->NumPaginas();
    if (impressora.printRange() == QPrinter::PageRange) {
        primeira = impressora.fromPage();
        ultima = impressora.toPage();
    }
    QProgressDialog progresso(QStringLiteral("Imprimindo..."), QStringLiteral("Cancelar"), primeira, ultima, this);
    progresso.setWindowModality(Qt::WindowModal);
    QString erro;
    if (!ImprimirPaginas(*m_motor, impressora, erro, Progresso(progresso), primeira, ultima))
        m_ui->Mensagem(erro, QStringLiteral("Imprimir"), Icone::Exclamacao);
}

void JanelaPrevia::SalvarPDF()
{
    OpcoesArquivo op;
    op.titulo = QStringLiteral("Salvar PDF");
    op.filtro = QStringLiteral("Documento PDF (*.pdf)|*.pdf");
    op.nomeProposto = QFileInfo(m_nome).completeBaseName() + QStringLiteral(".pdf");
    const QString caminho = m_ui->ArquivoSalvar(op);
    if (caminho.isEmpty())
        return;
    QProgressDialog progresso(QStringLiteral("Gravando o PDF..."), QStringLiteral("Cancelar"), 0,
                              m_motor->NumPaginas(), this);
    progresso.setWindowModality(Qt::WindowModal);
    QString erro;
    if (!GravarPDF(*m_motor, caminho, erro, Progresso(progresso)))
        m_ui->Mensagem(erro, QStringLiteral("Salvar PDF"), Icone::Exclamacao);
}

namespace {

void Mostrar(QWidget *pai, InterfaceUsuario *ui, std::unique_ptr<MotorImpressao> motor, const QString &nome)
{
    const bool direto = motor->Opcoes().semVisualizar;
    auto *janela = new JanelaPrevia(std::move(motor), nome, ui, pai);
    if (direto) {
        janela->Imprimir();
        janela->close();
        return;
    }
    janela->show();
}

}  // namespace

void AbrirPreviaTexto(QWidget *pai, InterfaceUsuario *ui, const QString &texto, const QString &nome)
{
    auto motor = std::make_unique<MotorImpressao>();
    if (!motor->AbrirTexto(texto, nome)) {
        ui->Mensagem(motor->Erro(), QStringLiteral("Visualizar"), Icone::Exclamacao);
        return;
    }
    Mostrar(pai, ui, std::move(motor), nome);
}

void AbrirArquivoComandos(QWidget *pai, InterfaceUsuario *ui)
{
    OpcoesArquivo op;
    op.titulo = QStringLiteral("Imprimir arquivo de comandos");
    op.filtro = QStringLiteral("Arquivos de comandos (*.txt;*.tmp)|*.txt;*.tmp|Layouts (*.lmt)|*.lmt|Todos os arquivos "
                               "(*.*)|*.*");
    const QString caminho = ui->ArquivoAbrir(op);
    if (caminho.isEmpty())
        return;
    auto motor = std::make_unique<MotorImpressao>();
    if (!motor->AbrirArquivo(caminho)) {
        ui->Mensagem(motor->Erro(), op.titulo, Icone::Exclamacao);
        return;
    }
    Mostrar(pai, ui, std::move(motor), QFileInfo(caminho).fileName());
}

}  // namespace lumeta
