#include "app/gui/frmLumetaEdit.h"

#include "app/gui/Autor.h"
#include "app/gui/JanelaAjuda.h"
#include "app/gui/JanelaPrevia.h"
#include "canvas/Regua.h"
#include "app/gui/CanvasJanela.h"
#include "app/gui/PainelJanela.h"
#include "controls/ModuloAssociar.h"
#include "controls/ui/NomesPelaDica.h"
#include "controls/ui/TabCtl.h"
#include "controls/ui/XPButtonCtl.h"
#include "app/gui/LigacaoDialogos.h"
#include "dialogs/frmEstilo.h"
#include "dialogs/frmMargens.h"
#include "dialogs/frmNomeImpressora.h"
#include "dialogs/frmQualidadeJPG.h"
#include "dialogs/frmTextoEmail.h"
#include "document/ModuloLumetaEdit.h"
#include "editing/AlcasMagico.h"
#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/ComandosOpcoes.h"
#include "editing/ComandosTransferencia.h"
#include "editing/Selecao.h"
#include "editing/Teclado.h"
#include "output/CopiarComo.h"
#include "output/Linguagem.h"
#include "output/Macros.h"
#include "output/TextoComandos.h"
#include "output/Visualizacao.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextCursor>
#include <QTextEdit>
#include <QUrl>
#include <cstring>

namespace lumeta {

namespace {

// 9495 x 5760 twips at 15 twips a pixel.
constexpr int LarguraMinimaJanela = 633;
constexpr int AlturaMinimaJanela = 384;
// One step of the canvas's scroll bars (the wheel and the arrows).
constexpr int PassoRolagem = 48;

QString escaparMenu(QString texto)
{
    return texto.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

// A box the user types in: undo there is the box's own. A read-only box (the
// result pane, the position fields) has nothing to undo, so the layout's
// undo works from it.
bool ehCaixaDeTexto(QWidget *w)
{
    if (auto *l = qobject_cast<QLineEdit *>(w))
        return !l->isReadOnly();
    if (auto *t = qobject_cast<QTextEdit *>(w))
        return !t->isReadOnly();
    if (auto *t = qobject_cast<QPlainTextEdit *>(w))
        return !t->isReadOnly();
    return false;
}

// The command text with CR LF turned into LF, in one pass over the megabytes
// a large layout gives.
QString semCR(const QString &texto)
{
    QString r(texto.size(), Qt::Uninitialized);
    QChar *d = r.data();
    for (const QChar *s = texto.constBegin(), *f = texto.constEnd(); s < f; ++s)
        if (*s != u'\r' || s + 1 == f || s[1] != u'\n')
            *d++ = *s;
    r.truncate(d - r.constData());
    return r;
}

// How many units `a` and `b` share at the beginning (or, with `recuando`, at
// the end, up to `n`), compared a block at a time.
qsizetype emComum(const QString &a, const QString &b, qsizetype n, bool recuando)
{
    constexpr qsizetype Bloco = 512;
    const QChar *pa = recuando ? a.constEnd() : a.constBegin();
    const QChar *pb = recuando ? b.constEnd() : b.constBegin();
    qsizetype k = 0;
    if (recuando) {
        while (k + Bloco <= n && std::memcmp(pa - k - Bloco, pb - k - Bloco, Bloco * sizeof(QChar)) == 0)
            k += Bloco;
        while (k < n && pa[-k - 1] == pb[-k - 1])
            ++k;
    } else {
        while (k + Bloco <= n && std::memcmp(pa + k, pb + k, Bloco * sizeof(QChar)) == 0)
            k += Bloco;
        while (k < n && pa[k] == pb[k])
            ++k;
    }
    return k;
}

}  // namespace

frmLumetaEdit::frmLumetaEdit(InterfaceUsuario *ui, QWidget *pai)
    : QMainWindow(pai), m_roda([this](DirecaoRolagem d) { RolarCanvas(d); })
{
    setObjectName(QStringLiteral("frmLumetaEdit"));
    if (!ui) {
        m_uiPropria = std::make_unique<InterfaceUsuarioQt>(this);
        ui = m_uiPropria.get();
    }
    m_sessao.Ui = ui;
    AoEncerrar = [this] {
        hide();
        QCoreApplication::exit(1);
    };
    setWindowIcon(QIcon(QPixmap::fromImage(DesenharIconeLumetaEdit(64))));
    setMinimumSize(LarguraMinimaJanela, AlturaMinimaJanela);
    criarMenus();
    criarJanela();
    ligarSessao();
    LigarDialogosEditar(*this);
    atualizarTitulo();
    resize(1120, 720);
    NomearPelaDica(this);
}

frmLumetaEdit::~frmLumetaEdit()
{
    // Deleting the widgets moves the focus; the session is gone by then.
    disconnect(qApp, nullptr, this, nullptr);
    m_roda.RemoverRoda();
    // The hooks point into this window; the session outlives the widgets by
    // a few statements of the destructor.
    m_sessao.Ganchos = GanchosSessao();
}

QAction *frmLumetaEdit::Acao(const QString &nome) const
{
    return findChild<QAction *>(nome);
}

// --- menus -------------------------------------------------------------------------

QAction *frmLumetaEdit::item(QMenu *menu, const QString &nome, const QString &legenda, bool habilitado)
{
    QAction *a = menu->addAction(legenda);
    a->setObjectName(nome);
    a->setEnabled(habilitado);
    return a;
}

QMenu *frmLumetaEdit::submenu(QMenu *menu, const QString &nome, const QString &legenda)
{
    QMenu *m = menu->addMenu(legenda);
    m->setObjectName(nome);
    m->menuAction()->setObjectName(nome);
    return m;
}

void frmLumetaEdit::criarMenus()
{
    criarMenuArquivo();
    criarMenuEditar();
    criarMenuConfig();
    criarMenuAjuda();
    ligarDialogos();
}

// The entries that open the small dialogs and the preview.
void frmLumetaEdit::ligarDialogos()
{
    auto ligar = [this](const char *nome, bool (*comando)(SessaoEdicao &, QWidget *)) {
        QAction *a = Acao(QString::fromLatin1(nome));
        a->setEnabled(true);
        connect(a, &QAction::triggered, this, [this, comando] {
            comando(m_sessao, this);
            atualizarOpcoes();
        });
    };
    ligar("mnuEditarItemEstilo", mnuEditarItemEstilo);
    ligar("mnuConfigEmailTexto", mnuConfigEmailTexto);
    ligar("mnuConfigQualidadeJPG", mnuConfigQualidadeJPG);
    ligar("mnuConfigNomeImpressora", mnuConfigNomeImpressora);
    ligar("mnuConfigMargens", mnuConfigMargens);
    // Without an external viewer the editor's own print engine shows the pages.
    ligar("mnuEditarVisualizar", [](SessaoEdicao &s, QWidget *janela) {
        if (!LocalizarVisualizador().isEmpty())
            return mnuEditarVisualizar(s);
        AbrirPreviaTexto(janela, s.Ui, s.TextoResultado, QStringLiteral("Lumeta.tmp"));
        return true;
    });
}

void frmLumetaEdit::criarMenuArquivo()
{
    mnuArquivo = menuBar()->addMenu(QStringLiteral("&Arquivo"));
    mnuArquivo->setObjectName(QStringLiteral("mnuArquivo"));
    mnuArquivo->menuAction()->setObjectName(QStringLiteral("mnuArquivo"));
    QAction *novo = item(mnuArquivo, QStringLiteral("mnuArquivoNovo"), QStringLiteral("&Novo"));
    novo->setShortcut(QKeySequence::New);
    connect(novo, &QAction::triggered, this, [this] { m_sessao.ComandoNovo(); });
    QAction *abrir = item(mnuArquivo, QStringLiteral("mnuArquivoAbrir"), QStringLiteral("A&brir"));
    abrir->setShortcut(QKeySequence::Open);
    connect(abrir, &QAction::triggered, this, [this] { m_sessao.ComandoAbrir(); });
    QAction *salvar = item(mnuArquivo, QStringLiteral("mnuArquivoSalvar"), QStringLiteral("&Salvar"));
    salvar->setShortcut(QKeySequence::Save);
    connect(salvar, &QAction::triggered, this, [this] { m_sessao.ComandoSalvar(); });
    QAction *como = item(mnuArquivo, QStringLiteral("mnuArquivoSalvarComo"), QStringLiteral("Salvar &como..."));
    connect(como, &QAction::triggered, this, [this] { m_sessao.ComandoSalvarComo(); });
    QAction *comandos =
        item(mnuArquivo, QStringLiteral("mnuArquivoImprimirComandos"), QStringLiteral("Imprimir arquivo de c&omandos..."));
    connect(comandos, &QAction::triggered, this, [this] { AbrirArquivoComandos(this, m_sessao.Ui); });
    mnuArquivo->addSeparator()->setObjectName(QStringLiteral("mnuSeparaRecente1"));
    for (int k = 1; k <= 4; ++k) {
        QAction *r = item(mnuArquivo, QStringLiteral("mnuArquivoRecente(%1)").arg(k), QString());
        r->setVisible(false);
        connect(r, &QAction::triggered, this, [this, k] { m_sessao.ComandoAbrirRecente(k); });
    }
    mnuArquivo->addSeparator()->setObjectName(QStringLiteral("mnuSeparaRecente2"));
    QAction *excluir = item(mnuArquivo, QStringLiteral("mnuArquivoExcluirRecentes"), QStringLiteral("&Excluir Atalhos"));
    connect(excluir, &QAction::triggered, this, [this] { m_sessao.ComandoExcluirRecentes(); });
    mnuArquivo->addSeparator()->setObjectName(QStringLiteral("mnuSeparaSair"));
    QAction *sair = item(mnuArquivo, QStringLiteral("mnuArquivoSair"), QStringLiteral("Sai&r"));
    connect(sair, &QAction::triggered, this, &QWidget::close);
}

void frmLumetaEdit::criarMenuEditar()
{
    mnuEditar = menuBar()->addMenu(QStringLiteral("&Editar"));
    mnuEditar->setObjectName(QStringLiteral("mnuEditar"));
    mnuEditar->menuAction()->setObjectName(QStringLiteral("mnuEditar"));
    connect(mnuEditar, &QMenu::aboutToShow, this, &frmLumetaEdit::prepararMenuEditar);

    QAction *desfazer = item(mnuEditar, QStringLiteral("mnuEditarDesfazer"), QStringLiteral("&Desfazer"), false);
    desfazer->setShortcut(QKeySequence::Undo);
    // Undo of a text box belongs to the text box: the shortcut only reaches
    // the window when no text box takes it.
    desfazer->setShortcutContext(Qt::WindowShortcut);
    connect(desfazer, &QAction::triggered, this, [this] {
        if (!ehCaixaDeTexto(QApplication::focusWidget()))
            m_sessao.DesfazerEdicao();
        prepararMenuEditar();
    });
    QAction *refazer = item(mnuEditar, QStringLiteral("mnuEditarRefazer"), QStringLiteral("Re&fazer"), false);
    refazer->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    refazer->setShortcutContext(Qt::WindowShortcut);
    connect(refazer, &QAction::triggered, this, [this] {
        if (!ehCaixaDeTexto(QApplication::focusWidget()))
            m_sessao.RefazerEdicao();
        prepararMenuEditar();
    });
    mnuEditar->addSeparator();
    // Each entry runs its session command; the standard shortcuts of any
    // editor sit beside them. A text box with the focus takes its own
    // copy and paste keys before the window sees them.
    auto comando = [this](QMenu *menu, const char *nome, const QString &legenda, void (*f)(SessaoEdicao &),
                          const QKeySequence &atalho = {}) {
        QAction *a = item(menu, QString::fromLatin1(nome), legenda);
        if (!atalho.isEmpty()) {
            a->setShortcut(atalho);
            a->setShortcutContext(Qt::WindowShortcut);
        }
        connect(a, &QAction::triggered, this, [this, f] {
            f(m_sessao);
            picPagina->AtualizarMarcas();
        });
        return a;
    };
    comando(mnuEditar, "mnuEditarRecortar", QStringLiteral("&Recortar"), mnuEditarRecortar, QKeySequence::Cut);
    comando(mnuEditar, "mnuEditarCopiar", QStringLiteral("&Copiar"),
            [](SessaoEdicao &s) { mnuEditarCopiar(s); }, QKeySequence::Copy);
    QMenu *como = submenu(mnuEditar, QStringLiteral("mnuEditarCopiarComo"), QStringLiteral("&Copiar como"));
    connect(como, &QMenu::aboutToShow, this, &frmLumetaEdit::prepararCopiarComo);
    QAction *comandos = item(como, QStringLiteral("mnuEditarCopiarComoComandos"), QStringLiteral("&Comandos utilizados"));
    connect(comandos, &QAction::triggered, this, &frmLumetaEdit::copiarComandos);
    como->addSeparator()->setObjectName(QStringLiteral("mnuSeparaCopiarComo"));
    QMenu *colar = submenu(mnuEditar, QStringLiteral("mnuEditarColar"), QStringLiteral("Co&lar"));
    comando(colar, "mnuEditarColarBanda", QStringLiteral("&Bandas"), mnuEditarColarBanda,
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V));
    comando(colar, "mnuEditarColarItem", QStringLiteral("&Itens"), mnuEditarColarItem, QKeySequence::Paste);
    comando(mnuEditar, "mnuEditarExcluir", QStringLiteral("E&xcluir"), mnuEditarExcluir);
    comando(mnuEditar, "mnuEditarTudo", QStringLiteral("Selecionar &tudo"), mnuEditarTudo, QKeySequence::SelectAll);
    mnuEditar->addSeparator();

    QMenu *banda = submenu(mnuEditar, QStringLiteral("mnuEditarBanda"), QStringLiteral("&Banda"));
    connect(banda, &QMenu::aboutToShow, this, &frmLumetaEdit::prepararMenuEditar);
    comando(banda, "mnuEditarBandaAdicionar", QStringLiteral("&Adicionar"), mnuEditarBandaAdicionar);
    comando(banda, "mnuEditarBandaInserir", QStringLiteral("&Inserir"), mnuEditarBandaInserir);
    comando(banda, "mnuEditarBandaDuplicar", QStringLiteral("&Duplicar"), mnuEditarBandaDuplicar);
    comando(banda, "mnuEditarBandaRemover", QStringLiteral("&Remover"), [](SessaoEdicao &s) { mnuEditarBandaRemover(s); });
    banda->addSeparator();
    comando(banda, "mnuEditarBandaUp", QStringLiteral("Mover para &cima"), mnuEditarBandaUp);
    comando(banda, "mnuEditarBandaDown", QStringLiteral("Mover para &baixo"), mnuEditarBandaDown);
    banda->addSeparator();
    comando(banda, "mnuEditarBandaAuto", QStringLiteral("Alt&ura automática"), mnuEditarBandaAuto);
    comando(banda, "mnuEditarBandaPagina", QStringLiteral("&Quebrar a Página"),
            [](SessaoEdicao &s) { mnuEditarBandaPagina(s); });
    comando(banda, "mnuEditarBandaFonte", QStringLiteral("&Fonte da banda..."), mnuEditarBandaFonte);
    item(banda, QStringLiteral("mnuEditarBandaComentario"), QStringLiteral("&Comentário e Programação"), false);

    QMenu *itemMenu = submenu(mnuEditar, QStringLiteral("mnuEditarItem"), QStringLiteral("&Item"));
    comando(itemMenu, "mnuEditarItemAdicionar", QStringLiteral("&Adicionar"), mnuEditarItemAdicionar);
    comando(itemMenu, "mnuEditarItemInserir", QStringLiteral("&Inserir"), mnuEditarItemInserir);
    comando(itemMenu, "mnuEditarItemDuplicar", QStringLiteral("&Duplicar"), mnuEditarItemDuplicar);
    comando(itemMenu, "mnuEditarItemRemover", QStringLiteral("&Remover"), mnuEditarItemRemover);
    itemMenu->addSeparator();
    comando(itemMenu, "mnuEditarItemLeft", QStringLiteral("Mover para a &esquerda"), mnuEditarItemLeft);
    comando(itemMenu, "mnuEditarItemRight", QStringLiteral("Mover para a di&reita"), mnuEditarItemRight);
    itemMenu->addSeparator();
    comando(itemMenu, "mnuEditarItemTexto", QStringLiteral("Mudar para &Texto"),
            [](SessaoEdicao &s) { DefinirTipoItem(s, TipoTexto); });
    comando(itemMenu, "mnuEditarItemFigura", QStringLiteral("Mudar para &Figura"),
            [](SessaoEdicao &s) { DefinirTipoItem(s, TipoFigura); });
    comando(itemMenu, "mnuEditarItemComando", QStringLiteral("Mudar para C&omando"),
            [](SessaoEdicao &s) { DefinirTipoItem(s, TipoComando); });
    // The barcode dialog comes with its own window; the style entry is
    // wired by ligarDialogos.
    item(itemMenu, QStringLiteral("mnuEditarItemCodigoBarras"), QStringLiteral("Mudar para Código de &Barras"), false);
    itemMenu->addSeparator();
    item(itemMenu, QStringLiteral("mnuEditarItemEstilo"), QStringLiteral("E&stilo"), false);

    // The frame (Ctrl+5) and the font's bold, italic and underline: one
    // change each, for the selected item or the visible range.
    const std::pair<QKeyCombination, std::function<void()>> estilos[] = {
        {Qt::CTRL | Qt::Key_5, [this] { painel->ClicarMoldura(); }},
        {QKeyCombination(Qt::ControlModifier | Qt::KeypadModifier, Qt::Key_5), [this] { painel->ClicarMoldura(); }},
        {Qt::CTRL | Qt::Key_B, [this] { painel->AlternarEstilo(EstiloFonte::Negrito); }},
        {Qt::CTRL | Qt::Key_I, [this] { painel->AlternarEstilo(EstiloFonte::Italico); }},
        {Qt::CTRL | Qt::Key_U, [this] { painel->AlternarEstilo(EstiloFonte::Sublinhado); }},
    };
    for (const auto &[tecla, acao] : estilos) {
        auto *atalho = new QShortcut(QKeySequence(tecla), this);
        connect(atalho, &QShortcut::activated, this, [this, acao] {
            acao();
            picPagina->AtualizarMarcas();
        });
    }

    // The line buttons' shortcuts: Alt + 1..6 and Ctrl + the numeric pad's
    // layout, on the digits and on the pad.
    for (int tecla = Qt::Key_1; tecla <= Qt::Key_9; ++tecla)
        for (Qt::KeyboardModifier mod : {Qt::AltModifier, Qt::ControlModifier}) {
            const int n = BotaoLinhaDoAtalho(tecla, mod);
            if (n == 0)
                continue;
            for (Qt::KeyboardModifiers extra : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::KeypadModifier)}) {
                auto *atalho = new QShortcut(QKeySequence(QKeyCombination(mod | extra, Qt::Key(tecla))), this);
                connect(atalho, &QShortcut::activated, this, [this, n, mod] {
                    if (mod == Qt::AltModifier && painel->TextoTemFoco())
                        return;
                    painel->ClicarLinha(n);
                    picPagina->AtualizarMarcas();
                });
            }
        }

    QMenu *macro = submenu(mnuEditar, QStringLiteral("mnuEditarMacro"), QStringLiteral("Inserir &macro"));
    macro->menuAction()->setEnabled(false);
    const auto &macros = TabelaMacros();
    for (size_t i = 0; i < macros.size(); ++i) {
        if (i == macros.size() - 1)
            macro->addSeparator();
        QAction *a = item(macro, QStringLiteral("mnuEditarMacroItem(%1)").arg(i), QString::fromUtf8(macros[i].legenda));
        connect(a, &QAction::triggered, this, [this, i] { painel->InserirMacro(int(i)); });
    }
    mnuEditar->addSeparator();
    item(mnuEditar, QStringLiteral("mnuEditarLinguagens"), QStringLiteral("&Linguagens"), false);
    item(mnuEditar, QStringLiteral("mnuEditarVisualizar"), QStringLiteral("&Visualizar"), false);
}

void frmLumetaEdit::criarMenuConfig()
{
    mnuConfig = menuBar()->addMenu(QStringLiteral("&Configurar"));
    mnuConfig->setObjectName(QStringLiteral("mnuConfig"));
    mnuConfig->menuAction()->setObjectName(QStringLiteral("mnuConfig"));
    connect(mnuConfig, &QMenu::aboutToShow, this, &frmLumetaEdit::prepararMenuConfig);

    auto opcao = [this](const char *nome, const QString &legenda, auto acao) {
        QAction *a = item(mnuConfig, QString::fromLatin1(nome), legenda);
        a->setCheckable(true);
        connect(a, &QAction::triggered, this, [this, acao] {
            (m_sessao.*acao)();
            atualizarOpcoes();
        });
        return a;
    };
    opcao("mnuConfigPaisagem", QStringLiteral("Imprimir no modo &Paisagem"), &SessaoEdicao::AlternarPaisagem);
    opcao("mnuConfigImprimir", QStringLiteral("&Imprimir sem Visualizar"), &SessaoEdicao::AlternarImprimir);
    opcao("mnuConfigVisivel", QStringLiteral("Manter o relatório &visível"), &SessaoEdicao::AlternarVisivel);
    opcao("mnuConfigTemCapa", QStringLiteral("Primeira página sem &cabeçalho e rodapé"), &SessaoEdicao::AlternarTemCapa);
    opcao("mnuConfigEnviarEmail", QStringLiteral("Enviar por e-mail &sem Visualizar"), &SessaoEdicao::AlternarEnviarEmail);
    opcao("mnuConfigQuebraPagina", QStringLiteral("&Finalizar com quebra de página"),
          &SessaoEdicao::AlternarQuebraPaginaFinal);
    mnuConfig->addSeparator();

    QMenu *email = submenu(mnuConfig, QStringLiteral("mnuConfigEmail"), QStringLiteral("&Tipo de e-mail"));
    m_grupoEmail = new QActionGroup(this);
    const struct {
        const char *nome;
        const char *legenda;
        int tipo;
    } tipos[] = {{"mnuConfigEmailJPG", "&JPG", 1},
                 {"mnuConfigEmailEMF", "&EMF", 2},
                 {"mnuConfigEmailGIF", "&GIF", 3},
                 {"mnuConfigEmailPDF", "&PDF", 4},
                 {"mnuConfigEmailDOC", "&DOC", 5}};
    for (const auto &t : tipos) {
        QAction *a = item(email, QString::fromLatin1(t.nome), QString::fromLatin1(t.legenda));
        a->setCheckable(true);
        a->setData(t.tipo);
        m_grupoEmail->addAction(a);
        const int tipo = t.tipo;
        connect(a, &QAction::triggered, this, [this, tipo] {
            m_sessao.DefinirTipoEmail(tipo);
            atualizarOpcoes();
        });
    }
    email->addSeparator();
    // The e-mail text, JPG quality, printer and margins entries are wired
    // to their dialogs by ligarDialogos.
    item(email, QStringLiteral("mnuConfigEmailTexto"), QStringLiteral("Texto &do e-mail"), false);
    item(mnuConfig, QStringLiteral("mnuConfigQualidadeJPG"), QStringLiteral("Qualidade do &JPG no e-mail"), false);
    item(mnuConfig, QStringLiteral("mnuConfigNomeImpressora"), QStringLiteral("&Nome da impressora"), false);
    item(mnuConfig, QStringLiteral("mnuConfigMargens"), QStringLiteral("&Margens do papel"), false);
    mnuConfig->addSeparator();

    QMenu *medida = submenu(mnuConfig, QStringLiteral("mnuConfigMedida"), QStringLiteral("Unidade de medida"));
    m_grupoMedida = new QActionGroup(this);
    const struct {
        const char *nome;
        const char *legenda;
        int codigo;
    } unidades[] = {{"mnuConfigMedidaPixels", "&Pixels", UnidadePixels},
                    {"mnuConfigMedidaMilimetros", "&Milimetros", UnidadeMilimetros},
                    {"mnuConfigMedidaCentimetros", "&Centimetros", UnidadeCentimetros},
                    {"mnuConfigMedidaPolegadas", "P&olegadas", UnidadePolegadas}};
    for (const auto &u : unidades) {
        QAction *a = item(medida, QString::fromLatin1(u.nome), QString::fromLatin1(u.legenda));
        a->setCheckable(true);
        a->setData(u.codigo);
        m_grupoMedida->addAction(a);
        const int codigo = u.codigo;
        connect(a, &QAction::triggered, this, [this, codigo] { m_sessao.DefinirUnidade(codigo); });
    }
    // The view: zoom and rulers, kept in the settings like the unit.
    QMenu *zoom = submenu(mnuConfig, QStringLiteral("mnuConfigZoom"), QStringLiteral("&Zoom"));
    const struct {
        const char *nome;
        const char *legenda;
        QList<QKeySequence> teclas;
        int sentido;  // +1 in, -1 out, 0 the real size, 2 the page's width
    } zooms[] = {{"mnuConfigZoomAmpliar", "&Ampliar", {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)}, 1},
                 {"mnuConfigZoomReduzir", "&Reduzir", {QKeySequence::ZoomOut}, -1},
                 {"mnuConfigZoomReal", "&Tamanho real", {QKeySequence(Qt::CTRL | Qt::Key_0)}, 0},
                 {"mnuConfigZoomLargura", "Ajustar à &largura da página", {}, 2}};
    for (const auto &z : zooms) {
        QAction *a = item(zoom, QString::fromLatin1(z.nome), QString::fromUtf8(z.legenda));
        a->setShortcuts(z.teclas);
        a->setShortcutContext(Qt::WindowShortcut);
        addAction(a);
        const int sentido = z.sentido;
        connect(a, &QAction::triggered, this, [this, sentido] {
            const int atual = m_sessao.Config.Zoom;
            AplicarZoom(sentido == 0 ? 100
                        : sentido == 2 ? ZoomLarguraPagina(picContainer->width(), m_sessao.Documento.Paisagem)
                                       : ProximoZoom(atual, sentido));
        });
    }
    QAction *reguas = item(mnuConfig, QStringLiteral("mnuConfigReguas"), QStringLiteral("Exibir ré&guas"));
    reguas->setCheckable(true);
    connect(reguas, &QAction::triggered, this, [this](bool v) {
        m_sessao.Config.Reguas = v;
        mostrarReguas();
    });
    QAction *resultado = item(mnuConfig, QStringLiteral("mnuConfigResultado"), QStringLiteral("&Exibir o arquivo texto"));
    resultado->setCheckable(true);
    connect(resultado, &QAction::triggered, this, [this] { m_sessao.AlternarResultado(); });
    QAction *fontes = item(mnuConfig, QStringLiteral("mnuConfigFontesImpressora"),
                           QStringLiteral("E&xibir apenas fontes de impressão"));
    fontes->setCheckable(true);
    connect(fontes, &QAction::triggered, this, [this] {
        m_sessao.AlternarFontesImpressora();
        atualizarOpcoes();
    });
    QAction *fonte = item(mnuConfig, QStringLiteral("mnuConfigFonte"), QStringLiteral("F&onte padrão do Item"));
    connect(fonte, &QAction::triggered, this, &frmLumetaEdit::escolherFontePadrao);
    mnuConfig->addSeparator();

    QMenu *cpy = submenu(mnuConfig, QStringLiteral("mnuConfigCpy"), QStringLiteral("Gerar CP&Y ao salvar"));
    m_grupoCpy = new QActionGroup(this);
    QAction *nenhum = item(cpy, QStringLiteral("mnuConfigCpyNenhum"), QStringLiteral("&Nenhum"));
    nenhum->setCheckable(true);
    m_grupoCpy->addAction(nenhum);
    connect(nenhum, &QAction::triggered, this, [this] { m_sessao.DefinirCPY(QString()); });
    cpy->addSeparator()->setObjectName(QStringLiteral("mnuSeparaCpy"));
}

void frmLumetaEdit::criarMenuAjuda()
{
    mnuAjuda = menuBar()->addMenu(QStringLiteral("Aj&uda"));
    mnuAjuda->setObjectName(QStringLiteral("mnuAjuda"));
    mnuAjuda->menuAction()->setObjectName(QStringLiteral("mnuAjuda"));
    connect(item(mnuAjuda, QStringLiteral("mnuAjudaConteudo"), QStringLiteral("&Conteúdo")), &QAction::triggered, this,
            [this] { AbrirDocumentoAjuda(this, m_sessao.Ui, PastaRecursos() + DocumentoConteudo); });
    connect(item(mnuAjuda, QStringLiteral("mnuAjudaTutorial"), QStringLiteral("&Tutorial")), &QAction::triggered, this,
            [this] { AbrirDocumentoAjuda(this, m_sessao.Ui, PastaRecursos() + DocumentoTutorial); });
    mnuAjuda->addSeparator();
    connect(item(mnuAjuda, QStringLiteral("mnuAjudaExemplo"), QStringLiteral("&Exemplos")), &QAction::triggered, this,
            [this] { m_sessao.ComandoExemplos(PastaRecursos() + PastaExemplos); });
    connect(item(mnuAjuda, QStringLiteral("mnuAjudaAtualizar"), QStringLiteral("&Atualizar")), &QAction::triggered, this,
            [this] { abrirAjuda(EnderecoAtualizar); });
    mnuAjuda->addSeparator();
    connect(item(mnuAjuda, QStringLiteral("mnuAjudaAutor"), QStringLiteral("&Sobre...")), &QAction::triggered, this,
            [this] {
                Autor autor(this);
                autor.exec();
            });
}

// --- widgets ------------------------------------------------------------------------

void frmLumetaEdit::criarJanela()
{
    auto *central = new QWidget(this);
    central->setObjectName(QStringLiteral("central"));
    auto *principal = new QVBoxLayout(central);
    principal->setContentsMargins(0, 0, 0, 0);
    principal->setSpacing(0);

    // Toolbar.
    auto *barra = new QWidget(central);
    barra->setObjectName(QStringLiteral("picBarra"));
    barra->setAutoFillBackground(true);
    auto *lBarra = new QHBoxLayout(barra);
    lBarra->setContentsMargins(6, 3, 6, 3);
    lBarra->setSpacing(4);
    const qreal escala = devicePixelRatioF();
    btnMagic = new XPButtonCtl(barra);
    btnMagic->setObjectName(QStringLiteral("btnMagic"));
    btnMagic->setCheckBoxBehaviour(true);
    btnMagic->setPictureNormal(DesenharVarinha(20, escala));
    btnMagic->setToolTip(QStringLiteral("Criar itens com um clique"));
    btnMagic->setFixedSize(30, 28);
    btnMagic->ShowFocusRect = false;
    btnMagic->setFocusPolicy(Qt::TabFocus);
    connect(btnMagic, &XPButtonCtl::ValueChanged, this, [this](bool v) {
        m_sessao.Config.MagicItem = v;
        if (!v)
            OcultarMagico(m_sessao);
    });
    lBarra->addWidget(btnMagic);
    lBarra->addSpacing(12);
    auto *rotuloZoom = new QLabel(QStringLiteral("&Zoom:"), barra);
    cmbZoom = new QComboBox(barra);
    cmbZoom->setObjectName(QStringLiteral("cmbZoom"));
    for (int z : PassosZoom())
        cmbZoom->addItem(QStringLiteral("%1 %").arg(z), z);
    cmbZoom->addItem(QStringLiteral("Ajustar à largura da página"), 0);
    cmbZoom->setFocusPolicy(Qt::TabFocus);
    rotuloZoom->setBuddy(cmbZoom);
    cmbZoom->setAccessibleName(QStringLiteral("Zoom:"));
    connect(cmbZoom, &QComboBox::activated, this, [this](int i) {
        const int z = cmbZoom->itemData(i).toInt();
        AplicarZoom(z > 0 ? z : ZoomLarguraPagina(picContainer->width(), m_sessao.Documento.Paisagem));
        picPagina->setFocus();
    });
    lBarra->addWidget(rotuloZoom);
    lBarra->addWidget(cmbZoom);
    lBarra->addStretch(1);
    imgResultado = new ImagemClicavel(barra);
    imgResultado->setObjectName(QStringLiteral("imgResultado"));
    imgResultado->setPixmap(DesenharArquivoTexto(20, escala));
    imgResultado->setFixedSize(28, 28);
    imgResultado->setAlignment(Qt::AlignCenter);
    imgResultado->setCursor(Qt::PointingHandCursor);
    imgResultado->setToolTip(QStringLiteral("Exibir o arquivo texto"));
    connect(imgResultado, &ImagemClicavel::Click, this, [this] { m_sessao.AlternarResultado(); });
    lBarra->addWidget(imgResultado);
    principal->addWidget(barra);
    auto *linha = new QFrame(central);
    linha->setFrameShape(QFrame::HLine);
    linha->setFrameShadow(QFrame::Sunken);
    principal->addWidget(linha);

    // Canvas area: the tab above the viewport and its scroll bars.
    divisor = new QSplitter(Qt::Horizontal, central);
    divisor->setObjectName(QStringLiteral("divisor"));
    divisor->setChildrenCollapsible(false);
    divisor->setHandleWidth(5);
    areaCanvas = new QWidget(divisor);
    areaCanvas->setObjectName(QStringLiteral("areaCanvas"));
    auto *lCanvas = new QGridLayout(areaCanvas);
    lCanvas->setContentsMargins(4, 4, 0, 4);
    lCanvas->setSpacing(0);
    auto *linhaTab = new QHBoxLayout;
    linhaTab->setContentsMargins(0, 0, 0, 0);
    tabPagina = new TabCtl(areaCanvas);
    tabPagina->setObjectName(QStringLiteral("tabPagina"));
    tabPagina->setText(QStringLiteral("Página"));
    tabPagina->setSelected(true);
    tabPagina->setFixedSize(tabPagina->sizeHint().width() + 16, 24);
    linhaTab->addWidget(tabPagina);
    linhaTab->addStretch(1);
    lCanvas->addLayout(linhaTab, 0, 0, 1, 2);
    picContainer = new PicContainer(areaCanvas);
    picContainer->setMinimumSize(64, 64);
    picPagina = new PicPagina(m_sessao, picContainer);
    hsbPagina = new QScrollBar(Qt::Horizontal, areaCanvas);
    hsbPagina->setObjectName(QStringLiteral("hsbPagina"));
    vsbPagina = new QScrollBar(Qt::Vertical, areaCanvas);
    vsbPagina->setObjectName(QStringLiteral("vsbPagina"));
    hsbPagina->setSingleStep(PassoRolagem);
    vsbPagina->setSingleStep(PassoRolagem);
    auto *moldura = new QFrame(areaCanvas);
    moldura->setObjectName(QStringLiteral("molduraCanvas"));
    moldura->setFrameShape(QFrame::StyledPanel);
    moldura->setFrameShadow(QFrame::Sunken);
    auto *lMoldura = new QGridLayout(moldura);
    lMoldura->setContentsMargins(1, 1, 1, 1);
    lMoldura->setSpacing(0);
    picContainer->setParent(moldura);
    reguaHorizontal = new Regua(m_sessao, *picPagina, Qt::Horizontal, moldura);
    reguaVertical = new Regua(m_sessao, *picPagina, Qt::Vertical, moldura);
    cantoReguas = new QWidget(moldura);
    cantoReguas->setFixedSize(Regua::Espessura, Regua::Espessura);
    lMoldura->addWidget(cantoReguas, 0, 0);
    lMoldura->addWidget(reguaHorizontal, 0, 1);
    lMoldura->addWidget(reguaVertical, 1, 0);
    lMoldura->addWidget(picContainer, 1, 1);
    vsbPagina->setParent(moldura);
    hsbPagina->setParent(moldura);
    lMoldura->addWidget(vsbPagina, 1, 2);
    lMoldura->addWidget(hsbPagina, 2, 1);
    connect(picPagina, &PicPagina::Pintado, reguaHorizontal, qOverload<>(&QWidget::update));
    connect(picPagina, &PicPagina::Pintado, reguaVertical, qOverload<>(&QWidget::update));
    connect(picPagina, &PicPagina::ZoomRoda, this, [this](int sentido, QPointF ponto) {
        AplicarZoom(ProximoZoom(m_sessao.Config.Zoom, sentido), ponto);
    });
    lCanvas->addWidget(moldura, 1, 0, 1, 2);
    lCanvas->setRowStretch(1, 1);
    lCanvas->setColumnStretch(0, 1);
    // The property panel, scrolled when the window is too low for it.
    painel = new PainelJanela(m_sessao, nullptr);
    auto *rolagemPainel = new QScrollArea(areaCanvas);
    rolagemPainel->setObjectName(QStringLiteral("rolagemPainel"));
    rolagemPainel->setWidget(painel);
    rolagemPainel->setWidgetResizable(true);
    rolagemPainel->setFrameShape(QFrame::NoFrame);
    rolagemPainel->setFocusPolicy(Qt::NoFocus);   // Tab goes to the fields, not their frame
    rolagemPainel->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolagemPainel->setFixedWidth(painel->minimumSizeHint().width() + rolagemPainel->verticalScrollBar()->sizeHint().width());
    lCanvas->addWidget(rolagemPainel, 0, 2, 2, 1);
    painel->setCanvas(picPagina);
    // Every change of a bar, also while its thumb is dragged, moves the page.
    connect(hsbPagina, &QScrollBar::valueChanged, this,
            [this](int v) { picPagina->DefinirOrigem(QPoint(v, picPagina->Origem().y())); });
    connect(vsbPagina, &QScrollBar::valueChanged, this,
            [this](int v) { picPagina->DefinirOrigem(QPoint(picPagina->Origem().x(), v)); });
    connect(picContainer, &PicContainer::Redimensionado, this, &frmLumetaEdit::AtualizarRolagem);
    connect(picPagina, &PicPagina::MenuEditar, this, [this](const QPoint &p) { mnuEditar->popup(p); });
    connect(picPagina, &PicPagina::Rolar, this, [this](int acao) {
        const int novo = NovaRolagem(vsbPagina->value(), vsbPagina->pageStep(), vsbPagina->maximum(), AcaoRolagem(acao));
        if (novo != vsbPagina->value())
            vsbPagina->setValue(novo);
    });

    // Result pane, its caption level with the tab so both panes start at
    // the same height.
    colunaResultado = new QWidget(divisor);
    colunaResultado->setObjectName(QStringLiteral("colunaResultado"));
    auto *lResultado = new QVBoxLayout(colunaResultado);
    lResultado->setContentsMargins(0, 4, 4, 4);
    lResultado->setSpacing(0);
    auto *lblResultado = new QLabel(QStringLiteral("Arquivo texto"), colunaResultado);
    lblResultado->setObjectName(QStringLiteral("lblResultado"));
    lblResultado->setFixedHeight(24);
    lblResultado->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    lblResultado->setContentsMargins(4, 0, 0, 4);
    lResultado->addWidget(lblResultado);
    // A large layout gives megabytes of text: a plain-text view lays out only
    // the lines it shows, and the text is updated in place (see
    // mostrarTextoResultado), with no undo history kept.
    rtbResultado = new QPlainTextEdit(colunaResultado);
    rtbResultado->setObjectName(QStringLiteral("rtbResultado"));
    rtbResultado->setReadOnly(true);
    rtbResultado->setUndoRedoEnabled(false);
    rtbResultado->setLineWrapMode(QPlainTextEdit::NoWrap);
    rtbResultado->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QFont mono(QStringLiteral("Courier New"));
    mono.setStyleHint(QFont::TypeWriter);
    mono.setPointSize(9);
    rtbResultado->setFont(mono);
    rtbResultado->setContextMenuPolicy(Qt::PreventContextMenu);
    rtbResultado->viewport()->installEventFilter(this);
    lblResultado->setBuddy(rtbResultado);
    lResultado->addWidget(rtbResultado, 1);
    colunaResultado->setMinimumWidth(160);
    divisor->addWidget(areaCanvas);
    divisor->addWidget(colunaResultado);
    // A narrow window still shows a strip of the page: the result pane gives
    // way first.
    areaCanvas->setMinimumWidth(rolagemPainel->width() + 200);
    colunaResultado->setMinimumWidth(90);
    divisor->setStretchFactor(0, 1);
    divisor->setStretchFactor(1, 0);
    divisor->setSizes({800, 300});
    principal->addWidget(divisor, 1);

    mnuPopup = new QMenu(this);
    mnuPopup->setObjectName(QStringLiteral("mnuPopup"));
    QAction *copiar = item(mnuPopup, QStringLiteral("mnuPopupCopiar"), QStringLiteral("&Copiar"));
    connect(copiar, &QAction::triggered, rtbResultado, &QPlainTextEdit::copy);
    QAction *tudo = item(mnuPopup, QStringLiteral("mnuPopupSelecionar"), QStringLiteral("&Selecionar Tudo"));
    connect(tudo, &QAction::triggered, rtbResultado, &QPlainTextEdit::selectAll);
    connect(mnuPopup, &QMenu::aboutToShow, this,
            [this, copiar] { copiar->setEnabled(rtbResultado->textCursor().hasSelection()); });

    setCentralWidget(central);
    setTabOrder(btnMagic, picPagina);
}

bool frmLumetaEdit::eventFilter(QObject *obj, QEvent *e)
{
    if (rtbResultado && obj == rtbResultado->viewport() && e->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent *>(e)->button() == Qt::RightButton) {
        mnuPopup->popup(static_cast<QMouseEvent *>(e)->globalPosition().toPoint());
        return true;
    }
    return QMainWindow::eventFilter(obj, e);
}

// --- the session's hooks -------------------------------------------------------------

void frmLumetaEdit::ligarSessao()
{
    GanchosSessao &g = m_sessao.Ganchos;
    g.Pintar = [this](const ResultadoRepintura &) {
        AtualizarRolagem();
        picPagina->update();
    };
    g.MostrarResultado = [this](const QString &t) {
        mostrarTextoResultado(t);
        // Every repaint ends here, so the undo shortcut follows the ring
        // without waiting for the menu to open.
        prepararMenuEditar();
    };
    g.SelecionarItem = [this] {
        MostrarSelecao();
        picPagina->AtualizarMarcas();
        painel->AtualizarBotaoFonte();
    };
    g.SelecionarBanda = [this] { picPagina->AtualizarMarcas(); };
    g.Validar = [this] {
        prepararMenuEditar();
        painel->Atualizar();
    };
    g.ConfirmarPainel = [this] { return painel->ConfirmarPendentes(); };
    g.DigitarTexto = [this](const QString &c) { painel->DigitarTexto(c); };
    g.MagicoAlterado = [this] { picPagina->AtualizarMarcas(); };
    g.AlcaAlterada = [this] { picPagina->AtualizarMarcas(); };
    g.EsvaziarAreaTransferencia = [] { QGuiApplication::clipboard()->clear(); };
    g.RolagemInicial = [this] {
        hsbPagina->setValue(0);
        vsbPagina->setValue(0);
    };
    g.Titulo = [this] { atualizarTitulo(); };
    g.ArquivosRecentes = [this] { atualizarRecentes(); };
    g.ConfiguracoesLidas = [this] { aplicarConfiguracoes(); };
    g.UnidadeAlterada = [this] { atualizarUnidade(); };
    g.ResultadoAlternado = [this] { atualizarResultado(); };
    g.OpcoesAlteradas = [this] { atualizarOpcoes(); };
    g.JanelaHabilitada = [this] { return isEnabled(); };
    g.Encerrar = [this] { encerrar(); };
    // The canvas and the result pane show the document the session already holds.
    AtualizarRolagem();
    mostrarTextoResultado(m_sessao.TextoResultado);
    connect(qApp, &QApplication::focusChanged, this, [this] { prepararMenuEditar(); });
    atualizarUnidade();
    atualizarResultado();
    atualizarOpcoes();
}

bool frmLumetaEdit::Iniciar(const QStringList &argumentos)
{
    const QScreen *tela = screen() ? screen() : QGuiApplication::primaryScreen();
    m_sessao.Canvas.TamanhoInicial(tela ? tela->geometry().width() : 0);
    AtualizarRolagem();
    if (!m_sessao.Iniciar(argumentos, PastaPrograma(), QCoreApplication::applicationFilePath())) {
        m_encerrado = true;
        return false;
    }
    m_roda.InstalarRoda(this, false);
    return true;
}

void frmLumetaEdit::aplicarConfiguracoes()
{
    btnMagic->setValue(m_sessao.Config.MagicItem);
    AplicarZoom(m_sessao.Config.Zoom);
    mostrarReguas();
    atualizarOpcoes();
}

void frmLumetaEdit::atualizarTitulo()
{
    setWindowTitle(m_sessao.Titulo());
}

void frmLumetaEdit::atualizarRecentes()
{
    const QStringList &lista = m_sessao.Config.ArquivosRecentes;
    for (int k = 1; k <= 4; ++k) {
        QAction *a = Acao(QStringLiteral("mnuArquivoRecente(%1)").arg(k));
        if (k <= lista.size()) {
            a->setText(escaparMenu(NomeDoArquivo(lista[k - 1])));
            a->setToolTip(lista[k - 1]);
            a->setVisible(true);
        } else {
            a->setVisible(false);
        }
    }
    const bool algum = !lista.isEmpty();
    for (QAction *a : mnuArquivo->actions())
        if (a->objectName() == QLatin1String("mnuSeparaRecente2"))
            a->setVisible(algum);
    Acao(QStringLiteral("mnuArquivoExcluirRecentes"))->setVisible(algum);
}

void frmLumetaEdit::atualizarUnidade()
{
    // The rulers count in the unit.
    reguaHorizontal->update();
    reguaVertical->update();
    const int codigo = m_sessao.Config.UnidadeMedida;
    bool algum = false;
    for (QAction *a : m_grupoMedida->actions()) {
        a->setChecked(a->data().toInt() == codigo);
        algum |= a->isChecked();
    }
    // Any other code behaves as pixels.
    if (!algum)
        Acao(QStringLiteral("mnuConfigMedidaPixels"))->setChecked(true);
}

void frmLumetaEdit::atualizarResultado()
{
    const bool exibir = m_sessao.Config.ExibirResultado;
    Acao(QStringLiteral("mnuConfigResultado"))->setChecked(exibir);
    if (colunaResultado->isVisibleTo(divisor) != exibir) {
        const QList<int> tamanhos = divisor->sizes();
        rtbResultado->setVisible(exibir);
        colunaResultado->setVisible(exibir);
        if (exibir && tamanhos.size() == 2) {
            const int total = tamanhos[0] + tamanhos[1];
            const int pane = std::clamp(total * 3 / 10, 220, 360);
            divisor->setSizes({total - pane, pane});
        }
    }
}

void frmLumetaEdit::atualizarOpcoes()
{
    const LayoutDocumento &d = m_sessao.Documento;
    Acao(QStringLiteral("mnuConfigPaisagem"))->setChecked(d.Paisagem);
    Acao(QStringLiteral("mnuConfigImprimir"))->setChecked(d.Imprimir);
    Acao(QStringLiteral("mnuConfigVisivel"))->setChecked(d.Visivel);
    Acao(QStringLiteral("mnuConfigTemCapa"))->setChecked(d.TemCapa);
    Acao(QStringLiteral("mnuConfigEnviarEmail"))->setChecked(d.EnviarEmail);
    Acao(QStringLiteral("mnuConfigQuebraPagina"))->setChecked(d.QuebraPaginaFinal);
    for (QAction *a : m_grupoEmail->actions())
        a->setChecked(a->data().toInt() == d.TipoEmail);
    Acao(QStringLiteral("mnuConfigFontesImpressora"))->setChecked(m_sessao.Config.FontesImpressora);
    Acao(QStringLiteral("mnuConfigResultado"))->setChecked(m_sessao.Config.ExibirResultado);
}

void frmLumetaEdit::mostrarTextoResultado(const QString &texto)
{
    QString t = semCR(texto);
    // Most edits change a few lines of a long text: only the stretch between
    // the common beginning and the common end is replaced, so the document
    // keeps the layout of every other line. Document positions are string
    // positions, one per UTF-16 unit and one per line end.
    const QString &antes = m_textoResultado;
    qsizetype inicio = emComum(t, antes, std::min(t.size(), antes.size()), false);
    if (inicio == t.size() && inicio == antes.size())
        return;
    qsizetype fim = emComum(t, antes, std::min(t.size(), antes.size()) - inicio, true);
    // Never cut a surrogate pair.
    if (inicio > 0 && t[inicio - 1].isHighSurrogate())
        --inicio;
    if (fim > 0 && t[t.size() - fim].isLowSurrogate())
        --fim;

    // The pane keeps its place in the text while the user edits the layout.
    const int v = rtbResultado->verticalScrollBar()->value();
    const int h = rtbResultado->horizontalScrollBar()->value();
    QTextCursor c(rtbResultado->document());
    c.setPosition(int(inicio));
    c.setPosition(int(antes.size() - fim), QTextCursor::KeepAnchor);
    c.insertText(t.mid(inicio, t.size() - fim - inicio));
    m_textoResultado = std::move(t);
    rtbResultado->verticalScrollBar()->setValue(v);
    rtbResultado->horizontalScrollBar()->setValue(h);
}

QSize frmLumetaEdit::ViewportCanvas() const
{
    // The scroll bars count canvas pixels: the viewport holds this many of them.
    const double z = picPagina->Zoom();
    return QSize(int(std::ceil(picContainer->width() / z)), int(std::ceil(picContainer->height() / z)));
}

void frmLumetaEdit::AtualizarRolagem()
{
    const QSize vista = ViewportCanvas();
    const QPoint maximo = MaximoRolagem(m_sessao.Canvas.Tamanho, vista);
    hsbPagina->setMaximum(maximo.x());
    vsbPagina->setMaximum(maximo.y());
    hsbPagina->setPageStep(std::max(1, vista.width()));
    vsbPagina->setPageStep(std::max(1, vista.height()));
    // The page shows what the viewport holds of the canvas, from the bars' values on.
    const QSizeF canvas = QSizeF(m_sessao.Canvas.Tamanho) * picPagina->Zoom();
    picPagina->setGeometry(0, 0, std::min(int(std::ceil(canvas.width())), picContainer->width()),
                           std::min(int(std::ceil(canvas.height())), picContainer->height()));
    picPagina->DefinirOrigem(QPoint(hsbPagina->value(), vsbPagina->value()));
}

void frmLumetaEdit::AplicarZoom(int percentual, QPointF ancora)
{
    percentual = std::clamp(percentual, ZoomMinimo, ZoomMaximo);
    const bool noPonteiro = ancora.x() >= 0;
    if (!noPonteiro)
        ancora = QPointF(picContainer->width() / 2.0, picContainer->height() / 2.0);
    // The canvas point under the pointer (or the view's middle) stays there.
    const QPointF fixo = picPagina->ParaCanvasF(ancora);
    m_sessao.Config.Zoom = percentual;
    picPagina->DefinirZoom(percentual / 100.0);
    AtualizarRolagem();
    const QPointF origem = fixo - ancora / picPagina->Zoom();
    hsbPagina->setValue(int(std::lround(origem.x())));
    vsbPagina->setValue(int(std::lround(origem.y())));
    // From the box or the keys, the selection stays in view.
    if (!noPonteiro)
        MostrarSelecao();
    picPagina->update();
    // A zoom between the steps came from fitting the page's width.
    const int i = cmbZoom->findData(percentual);
    cmbZoom->setCurrentIndex(i >= 0 ? i : cmbZoom->count() - 1);
    cmbZoom->setToolTip(QStringLiteral("Zoom: %1 %").arg(percentual));
}

void frmLumetaEdit::mostrarReguas()
{
    const bool v = m_sessao.Config.Reguas;
    reguaHorizontal->setVisible(v);
    reguaVertical->setVisible(v);
    cantoReguas->setVisible(v);
    if (QAction *a = Acao(QStringLiteral("mnuConfigReguas")))
        a->setChecked(v);
}

void frmLumetaEdit::RolarCanvas(DirecaoRolagem direcao)
{
    vsbPagina->triggerAction(direcao == RolarAcima ? QAbstractSlider::SliderSingleStepSub
                                                   : QAbstractSlider::SliderSingleStepAdd);
}

void frmLumetaEdit::MostrarSelecao()
{
    const QPoint atual(hsbPagina->value(), vsbPagina->value());
    const QPoint novo = RolarParaSelecao(m_sessao.Documento, m_sessao.BandaSelecionada, m_sessao.ItemSelecionado,
                                         atual, ViewportCanvas(), QPoint(hsbPagina->maximum(), vsbPagina->maximum()));
    if (novo.x() != atual.x())
        hsbPagina->setValue(novo.x());
    if (novo.y() != atual.y())
        vsbPagina->setValue(novo.y());
}

// --- menus that are prepared when they open ------------------------------------------

void frmLumetaEdit::prepararMenuEditar()
{
    const EstadoMenuEditar e = PrepararMenuEditar(m_sessao, ehCaixaDeTexto(QApplication::focusWidget()));
    Acao(QStringLiteral("mnuEditarDesfazer"))->setEnabled(e.desfazer);
    Acao(QStringLiteral("mnuEditarRefazer"))->setEnabled(e.refazer);
    for (const char *nome :
         {"mnuEditarItemRemover", "mnuEditarItemDuplicar", "mnuEditarItemLeft", "mnuEditarItemRight", "mnuEditarItemEstilo"})
        Acao(QString::fromLatin1(nome))->setEnabled(e.itemComandos);
    Acao(QStringLiteral("mnuEditarItemTexto"))->setEnabled(e.tipoTexto);
    Acao(QStringLiteral("mnuEditarItemFigura"))->setEnabled(e.tipoFigura);
    Acao(QStringLiteral("mnuEditarItemComando"))->setEnabled(e.tipoComando);
    Acao(QStringLiteral("mnuEditarItemCodigoBarras"))->setEnabled(e.tipoCodigoBarras);
    findChild<QMenu *>(QStringLiteral("mnuEditarMacro"))->menuAction()->setEnabled(e.itemComandos);
    QAction *pagina = Acao(QStringLiteral("mnuEditarBandaPagina"));
    pagina->setEnabled(e.bandaPagina);
    pagina->setText(e.legendaBandaPagina);
    Acao(QStringLiteral("mnuEditarBandaAuto"))->setText(e.legendaBandaAuto);
}

void frmLumetaEdit::prepararMenuConfig()
{
    atualizarOpcoes();
    atualizarUnidade();
    // The languages may have changed on disk since the menu last opened.
    QMenu *cpy = findChild<QMenu *>(QStringLiteral("mnuConfigCpy"));
    for (QAction *a : m_cpyTipos) {
        m_grupoCpy->removeAction(a);
        cpy->removeAction(a);
        a->setObjectName(QString());   // its name goes to the new entry at once
        a->deleteLater();
    }
    m_cpyTipos.clear();
    const QString atual = m_sessao.LerCPY();
    const QStringList linguagens = ListarLinguagens();
    bool marcado = false;
    for (qsizetype k = 0; k < linguagens.size(); ++k) {
        QAction *a = item(cpy, QStringLiteral("mnuConfigCpyTipo(%1)").arg(k + 1), escaparMenu(linguagens[k]));
        a->setCheckable(true);
        m_grupoCpy->addAction(a);
        const QString nome = linguagens[k];
        connect(a, &QAction::triggered, this, [this, nome] { m_sessao.DefinirCPY(nome); });
        if (!atual.isEmpty() && !marcado && nome.compare(atual, Qt::CaseInsensitive) == 0) {
            a->setChecked(true);
            marcado = true;
        }
        m_cpyTipos << a;
    }
    QAction *nenhum = Acao(QStringLiteral("mnuConfigCpyNenhum"));
    if (atual.isEmpty())
        nenhum->setChecked(true);
    else if (!marcado && m_grupoCpy->checkedAction())
        m_grupoCpy->checkedAction()->setChecked(false);
}

void frmLumetaEdit::prepararCopiarComo()
{
    QMenu *como = findChild<QMenu *>(QStringLiteral("mnuEditarCopiarComo"));
    for (QAction *a : m_copiarComoTipos) {
        como->removeAction(a);
        a->setObjectName(QString());
        a->deleteLater();
    }
    m_copiarComoTipos.clear();
    const QStringList linguagens = ListarLinguagens();
    for (qsizetype k = 0; k < linguagens.size(); ++k) {
        QAction *a = item(como, QStringLiteral("mnuEditarCopiarComoTipo(%1)").arg(k + 1), escaparMenu(linguagens[k]));
        const QString nome = linguagens[k];
        connect(a, &QAction::triggered, this, [this, nome] { copiarComo(nome); });
        m_copiarComoTipos << a;
    }
}

void frmLumetaEdit::copiarComo(const QString &linguagem)
{
    LinguagemDef def;
    def.CobolString = m_sessao.Config.NoCobolUsarString;
    if (!LerLinguagem(linguagem, def, m_sessao.Ui))
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QString codigo;
    CopiarComo(m_sessao.Documento, def, QString(), m_sessao.Ui, &codigo);
    QClipboard *c = QGuiApplication::clipboard();
    c->clear();
    c->setText(codigo);
    QApplication::restoreOverrideCursor();
}

void frmLumetaEdit::copiarComandos()
{
    QClipboard *c = QGuiApplication::clipboard();
    c->clear();
    c->setText(ListaComandosUtilizados(m_sessao.Documento));
}

void frmLumetaEdit::escolherFontePadrao()
{
    const FonteItem &f = m_sessao.FontePadrao;
    if (!m_sessao.Ui)
        return;
    const std::optional<FonteEscolhida> d = m_sessao.Ui->Fonte(
        {f.Nome, double(f.Tamanho), f.Negrito, f.Italico, f.Sublinhado, f.Tachado}, m_sessao.Config.FontesImpressora);
    if (!d)
        return;
    m_sessao.DefinirFontePadrao(d->Nome, d->Tamanho, d->Negrito, d->Italico, d->Sublinhado, d->Tachado);
}

void frmLumetaEdit::abrirAjuda(const QString &endereco)
{
    if (!QDesktopServices::openUrl(QUrl(endereco)) && m_sessao.Ui)
        m_sessao.Ui->Mensagem(MensagemDocumentoAjuda(endereco), TituloAjuda, Icone::Exclamacao);
}

// --- shut-down ---------------------------------------------------------------------

void frmLumetaEdit::encerrar()
{
    m_encerrado = true;
    if (AoEncerrar)
        AoEncerrar();
}

void frmLumetaEdit::closeEvent(QCloseEvent *e)
{
    if (m_encerrado) {
        e->accept();
        return;
    }
    if (!m_sessao.ConfirmarSaida()) {
        e->ignore();
        return;
    }
    m_sessao.Config.MagicItem = btnMagic->Value();
    m_sessao.FinalizarSaida();
    m_roda.RemoverRoda();
    e->accept();
}

}  // namespace lumeta
