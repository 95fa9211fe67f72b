#include "controls/ModuloAssociar.h"
#include "document/ArquivoLMT.h"
#include "document/ModuloLumetaEdit.h"
#include "editing/SessaoEdicao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::ConfigTemporaria;
using lumeta::teste::InterfaceRoteirizada;

namespace {

// A session that records the window hooks it calls, with a settings store of
// its own; the file messages' texts are the document tests' business.
struct ComConfig {
    ConfigTemporaria cfg;   // before the session, which may read it
};
struct Sessao : ComConfig, SessaoEdicao {
    InterfaceRoteirizada ui;
    QStringList eventos;
    Sessao()
    {
        Ui = &ui;
        Ganchos.Pintar = [this](const ResultadoRepintura &) { eventos << QStringLiteral("pintar"); };
        Ganchos.MostrarResultado = [this](const QString &) { eventos << QStringLiteral("resultado"); };
        Ganchos.SelecionarItem = [this] { eventos << QStringLiteral("selecionar"); };
        Ganchos.Validar = [this] { eventos << QStringLiteral("validar"); };
        Ganchos.Encerrar = [this] { eventos << QStringLiteral("encerrar"); };
    }
    // One edit through the cycle: a band appended, as the band menu does.
    void Editar()
    {
        AddBanda(0, false, 0, 0);
        ConcluirEdicao();
    }
    QString Arquivo(const char *nome) const { return cfg.Pasta() + QLatin1Char('/') + QLatin1String(nome); }
    std::pair<int, int> Selecionado() const { return {BandaSelecionada, ItemSelecionado}; }
    void Selecionar(int banda, int item)
    {
        BandaSelecionada = banda;
        ItemSelecionado = item;
    }
};

QStringList Linhas(const QString &texto)
{
    return texto.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
}

// A new layout with a second band of the given height and item width, saved.
QString GravarLayout(const QString &caminho, int altura, int largura = 0)
{
    SessaoEdicao t;
    t.AddBanda(0, false, altura, largura);
    t.Documento.ReposicionarBanda();
    QDir().mkpath(QFileInfo(caminho).absolutePath());
    EXPECT_TRUE(GravarArquivoLMT(caminho, t.Documento).ok);
    return caminho;
}

QString Valor(const char *chave)
{
    return std::unique_ptr<QSettings>(AbrirConfig())->value(QString::fromLatin1(chave)).toString();
}

}  // namespace

// A new layout's text, and what marks it changed and undoable, the window's
// and the other session tests show.
TEST(SessaoEdicao, CicloPintaAntesDoTextoEGuardaAAlturaAutomaticaNegada)
{
    Sessao s;
    s.Documento.banda(1).Altura = 0;
    s.Documento.banda(1).Itens[0].Largura = 100;
    s.AddBanda(0, false, 0, 0);
    s.ConcluirEdicao();
    // The painter draws before the text is regenerated; the band whose
    // height was computed is the selected one, so the selection is shown
    // again; then selection and panel as every command ends.
    EXPECT_EQ(s.eventos, QStringList({"pintar", "selecionar", "resultado", "selecionar", "validar"}));
    // Automatic height computed by the canvas, stored negated, and the next
    // band placed under it.
    const int altura = CalcularAlturaBanda(s.Documento.banda(1), s.Recursos.Medidor);
    EXPECT_GT(altura, 8);
    EXPECT_EQ(std::pair(s.Documento.banda(1).Altura, s.Documento.banda(2).Topo), std::pair(-altura, 16 + altura));
    EXPECT_EQ(Linhas(s.TextoResultado).mid(2, 3),
              QStringList({"T 009900002000960000100010Texto 1", "RH 00000", "QL"}));
}

TEST(SessaoEdicao, DesfazerRestauraBandasSelecaoMarcadoresEQuebrasMasNaoOPaisagem)
{
    Sessao s;
    s.Editar();
    s.Documento.BandaCabecalho = 1;
    s.Documento.BandaRodape = 2;
    s.Documento.QuebraPaginaAdd(2);
    s.Selecionar(2, 1);
    s.Editar();                       // snapshot: 3 bands, header 1, footer 2, break 2
    const LayoutDocumento antes = s.Documento;
    s.Documento.banda(3).Itens[0].Texto = QStringLiteral("mudado");
    s.Documento.BandaRodape = 3;
    s.Documento.Quebras.clear();
    s.Selecionar(3, 0);
    s.ConcluirEdicao();
    s.AlternarPaisagem();             // no snapshot of its own, and not undone
    s.DesfazerEdicao();
    s.Documento.Paisagem = !s.Documento.Paisagem;
    EXPECT_EQ(s.Documento, antes);
    EXPECT_EQ(s.Selecionado(), std::make_pair(2, 1));

    // Undo reaches the state after New, with its selection, and stops there.
    s.DesfazerEdicao();
    s.DesfazerEdicao();
    EXPECT_EQ(std::pair(s.Documento.NumBandas(), s.Selecionado()), std::pair(1, std::pair(1, 0)));
    EXPECT_FALSE(s.PodeDesfazer());
    // Undo itself takes no snapshot: the next edit overwrites the slot after
    // the current one, and what undo stepped back from is gone.
    s.Editar();
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), 1);
    EXPECT_FALSE(s.PodeDesfazer());
}

TEST(SessaoEdicao, SairNovoEAbrirPerguntamComOTituloDoComandoERespeitamCancelar)
{
    Sessao s;
    const QString outro = GravarLayout(s.Arquivo("outro.lmt"), 30, 200);
    s.Editar();
    s.ui.respostas = {Resposta::Cancelar, Resposta::Cancelar, Resposta::Sim};
    EXPECT_FALSE(s.ConfirmarSaida());
    s.ComandoNovo();
    // Yes and a name: saved (it heads the recent files below), then leaves;
    // an unchanged document is not asked about.
    s.ui.arquivos = {s.Arquivo("saida.lmt")};
    EXPECT_TRUE(s.ConfirmarSaida());
    EXPECT_TRUE(s.ConfirmarSaida());
    ASSERT_EQ(s.ui.perguntas.size(), 3);
    EXPECT_EQ(std::tuple(s.ui.perguntas[0].texto, s.ui.perguntas[0].titulo, s.ui.perguntas[0].icone),
              std::tuple(QStringLiteral("Deseja salvar as alterações?"), QStringLiteral("Sair"), Icone::Pergunta));
    EXPECT_EQ(s.ui.perguntas[1].titulo, QStringLiteral("Novo"));

    // New forgets the name, the landscape and the session's JPG quality.
    s.Editar();
    s.Documento.Paisagem = true;
    s.QualidadeJPGSessao = 70;
    s.ui.respostas = {Resposta::Nao};
    s.ComandoNovo();
    EXPECT_EQ(s.Documento, SessaoEdicao().Documento);
    EXPECT_EQ(std::pair(s.NomeArquivo, int(s.QualidadeJPGSessao)), std::pair(QString(), 0));
    EXPECT_FALSE(s.Alterado || s.PodeDesfazer());

    s.Editar();
    s.ui.respostas = {Resposta::Nao};
    s.ui.arquivos = {outro};
    s.ComandoAbrir();
    EXPECT_EQ(s.ui.perguntas.last().titulo, QStringLiteral("Abrir"));
    EXPECT_EQ(s.Documento.banda(2).Altura, 30);
    EXPECT_FALSE(s.Alterado || s.PodeDesfazer());
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({outro, s.Arquivo("saida.lmt")}));
    // A window that is not usable does not open anything.
    s.Ganchos.JanelaHabilitada = [] { return false; };
    const qsizetype dialogos = s.ui.dialogos.size();
    s.ComandoAbrir();
    EXPECT_EQ(s.ui.dialogos.size(), dialogos);
}

TEST(SessaoEdicao, AbrirRecusaOutroFormatoEEncerraOProgramaNumArquivoIlegivel)
{
    Sessao s;
    const QString bom = GravarLayout(s.Arquivo("bom.lmt"), 40);
    s.ui.arquivos = {QString()};
    EXPECT_EQ(s.AbrirLMT(QString()), SessaoEdicao::ResultadoAbrir::Cancelado);
    EXPECT_EQ(s.AbrirLMT(bom), SessaoEdicao::ResultadoAbrir::Aberto);
    const LayoutDocumento lido = s.Documento;

    // Another format (which files are one the reader's tests show): refused
    // and replaced by a new layout, never the end of the editor.
    teste::GravarArquivoTeste(s.Arquivo("novo.lmt"), "LumetaEdit 1.0(v)               xxxx");
    EXPECT_EQ(s.AbrirLMT(s.Arquivo("novo.lmt")), SessaoEdicao::ResultadoAbrir::FormatoInvalido);
    ASSERT_EQ(s.ui.mensagens.size(), 1);
    EXPECT_EQ(s.ui.mensagens[0].titulo, QStringLiteral("Impossível Abrir"));
    EXPECT_EQ(s.Documento, SessaoEdicao().Documento);
    // A layout cut short: the program ends (the window's test sees it end),
    // the name stays.
    s.AbrirLMT(bom);
    s.Alterado = false;
    teste::GravarArquivoTeste(s.Arquivo("quebrado.lmt"), GravarLMT(lido).left(60));
    s.ui.arquivos = {s.Arquivo("quebrado.lmt")};
    s.ComandoAbrir();
    EXPECT_EQ(s.NomeArquivo, bom);
    EXPECT_TRUE(s.ui.mensagens.last().texto.startsWith(QStringLiteral("Ocorreu um erro ao abrir o arquivo '")));
}

TEST(SessaoEdicao, SalvarPedeNomeSoQuandoNaoHaESalvarComoPropoeOAnteriorERestauraAoCancelar)
{
    Sessao s;
    const QString a = s.Arquivo("a.lmt"), b = s.Arquivo("b.lmt"), ruim = s.Arquivo("x/y.lmt");
    s.ui.arquivos = {a, QString(), b, ruim};
    EXPECT_TRUE(s.ComandoSalvar());   // the bytes written: the copybook tests
    // Save with a name writes without asking (three dialogs in all below).
    s.Editar();
    EXPECT_TRUE(s.ComandoSalvar());

    s.Editar();
    EXPECT_FALSE(s.ComandoSalvarComo());
    EXPECT_EQ(std::pair(s.NomeArquivo, s.Alterado), std::pair(a, true));
    EXPECT_TRUE(s.ComandoSalvarComo());
    EXPECT_EQ(std::pair(s.NomeArquivo, s.Alterado), std::pair(b, false));
    ASSERT_EQ(s.ui.dialogos.size(), 3);
    EXPECT_EQ(s.ui.dialogos[0].filtro, QStringLiteral("Lumeta Layout (*.lmt)|*.lmt"));
    EXPECT_EQ(std::pair(s.ui.dialogos[0].nomeProposto, s.ui.dialogos[1].nomeProposto), std::pair(QString(), a));

    // A failed write tells the user and keeps the path being written.
    s.NomeArquivo.clear();
    s.Alterado = true;
    EXPECT_FALSE(s.SalvarLMT(false));
    EXPECT_EQ(std::pair(s.NomeArquivo, s.Alterado), std::pair(ruim, true));
    EXPECT_EQ(s.ui.mensagens.size(), 1);
}

TEST(SessaoEdicao, ArquivosRecentesSemRepeticaoNoMaximoQuatroEParandoNoPrimeiroVazio)
{
    Sessao s;
    {
        std::unique_ptr<QSettings> st(AbrirConfig());
        const char *nomes[] = {"c:\\A.LMT", "d.lmt", "e.lmt", "f.lmt"};
        for (int k = 1; k <= 4; ++k)
            st->setValue(QStringLiteral("Arquivo recente %1").arg(k), QString::fromLatin1(nomes[k - 1]));
    }
    s.ArquivosRecentes();
    for (const char *nome : {"C:\\a.lmt", "g.lmt", "E.LMT"})
        s.Config.GravarRecentes(QString::fromLatin1(nome));
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({"E.LMT", "g.lmt", "C:\\a.lmt", "d.lmt"}));
    // A hole in the list hides everything after it.
    std::unique_ptr<QSettings>(AbrirConfig())->setValue(QStringLiteral("Arquivo recente 2"), QString());
    s.ArquivosRecentes();
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({"E.LMT"}));
    s.ComandoExcluirRecentes();
    EXPECT_EQ(Valor("Arquivo recente 1"), QString());

    // A recent file that is gone: its path, and nothing changes.
    const QString sumido = s.Arquivo("sumido.lmt");
    const QString existe = GravarLayout(s.Arquivo("sub/existe.lmt"), 22);
    s.Config.GravarRecentes(existe);
    s.Config.GravarRecentes(sumido);
    s.Editar();
    s.ComandoAbrirRecente(1);
    ASSERT_EQ(s.ui.mensagens.size(), 1);
    EXPECT_EQ(s.ui.mensagens[0].texto, sumido + QStringLiteral("\n\nNão foi possível encontrar o arquivo acima!"));
    EXPECT_TRUE(s.ui.perguntas.isEmpty() && s.Alterado);
    // One that is there opens and makes its folder the current one.
    const QString antes = QDir::currentPath();
    s.ui.respostas = {Resposta::Nao};
    s.ComandoAbrirRecente(2);
    EXPECT_EQ(QDir::currentPath(), QFileInfo(existe).absolutePath());
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({existe, sumido}));
    QDir::setCurrent(antes);
}

TEST(SessaoEdicao, InicioComCaminhoEntreAspasAbreSemAlteracaoESemArgumentoRegistraOTipo)
{
    ConfigTemporaria cfg;
    const QString caminho = GravarLayout(cfg.Pasta() + QStringLiteral("/Meus Layouts/rel.lmt"), 25, 300);
    const QString programa = QStringLiteral("/opt/lumeta/lumetaedit");
    {
        Sessao s;
        // The desktop hands the quoted path split at its blank.
        const QStringList args = {QStringLiteral("\"") + cfg.Pasta() + QStringLiteral("/Meus"),
                                  QStringLiteral("Layouts/rel.lmt\"")};
        ASSERT_TRUE(s.Iniciar(args, QStringLiteral("/opt/lumeta/"), programa));
        EXPECT_EQ(s.Documento.banda(2).Itens[0].Largura, 300);
        // Unchanged, and no association with a file argument.
        EXPECT_FALSE(s.Alterado || s.PodeDesfazer() || QDir(s.cfg.Dados()).exists());
        EXPECT_EQ(s.ArquivoTransferencia, PastaTemporaria() + QStringLiteral("~TMP_LumetaEdit.clp"));
        EXPECT_EQ(Valor("Pasta"), QStringLiteral("/opt/lumeta/"));
    }
    {
        // A relative path is made whole against the current folder.
        const QString antes = QDir::currentPath();
        QDir::setCurrent(cfg.Pasta());
        Sessao s;
        ASSERT_TRUE(s.Iniciar({QStringLiteral("\"Meus Layouts/./rel.lmt\"")}, QStringLiteral("/p/"), programa));
        EXPECT_EQ(s.NomeArquivo, caminho);
        QDir::setCurrent(antes);
    }
    {
        // Without a file the type is registered, for this program's path.
        Sessao s;
        ASSERT_TRUE(s.Iniciar({}, QStringLiteral("/opt/lumeta/"), programa));
        const QByteArray desktop = teste::LerArquivo(s.cfg.Dados() + QStringLiteral("/applications/lumetaedit.desktop"));
        EXPECT_TRUE(desktop.contains("\nExec=/opt/lumeta/lumetaedit %f\n")) << desktop.constData();
        // An unreadable file on the command line ends the program.
        teste::GravarArquivoTeste(s.Arquivo("ruim.lmt"), GravarLMT(LayoutDocumento()).left(33));
        EXPECT_FALSE(s.Iniciar({s.Arquivo("ruim.lmt")}, QStringLiteral("/p/"), programa));
        EXPECT_EQ(s.ui.mensagens.size(), 1);
    }
}

TEST(SessaoEdicao, SaidaGravaAsConfiguracoesDeVisaoEOProximoInicioAsLe)
{
    Sessao s;
    int unidades = 0, resultados = 0;
    s.Ganchos.UnidadeAlterada = [&] { ++unidades; };
    s.Ganchos.ResultadoAlternado = [&] { ++resultados; };
    ASSERT_TRUE(s.Iniciar({}, QStringLiteral("/p/"), QStringLiteral("/p/lumetaedit")));
    s.DefinirUnidade(UnidadePolegadas);
    s.DefinirUnidade(4);     // unknown: pixels, the label stays
    EXPECT_EQ(std::pair(s.UnidadeAtual.fator, s.UnidadeAtual.rotulo), std::pair(1.0, QStringLiteral("pol")));
    s.DefinirUnidade(UnidadeMilimetros);
    s.AlternarResultado();
    s.AlternarFontesImpressora();
    s.Config.MagicItem = false;
    // Sizes the dialog may hand back: within the command text's two digits.
    for (const auto &[pedido, tamanho] : {std::pair{100.0, 8}, {12.6, 13}, {112.0, 12}}) {
        s.DefinirFontePadrao(QStringLiteral("Courier New"), pedido, true, false, true, false);
        EXPECT_EQ(s.FontePadrao.Tamanho, tamanho) << pedido;
    }
    // New items take the default font at once.
    s.AddItem(1, false, 0);
    EXPECT_EQ(s.Documento.banda(1).Itens.last().Fonte, s.FontePadrao);
    EXPECT_EQ(std::make_pair(unidades, resultados), std::make_pair(4, 2));   // the start's own included

    s.ArquivoVisualizacao = s.Arquivo("Lumeta.tmp");
    teste::GravarArquivoTeste(s.ArquivoVisualizacao, "x");
    s.FinalizarSaida();
    EXPECT_FALSE(QFile::exists(s.ArquivoVisualizacao));
    const std::pair<const char *, const char *> gravados[] = {
        {"Unidade de Medida", "6"}, {"Exibir Resultado", "False"}, {"Fontes Impressora", "True"},
        {"MagicItem", "False"},     {"FontName", "Courier New"},   {"FontSize", "12"},
        {"FontBold", "True"},       {"FontUnderline", "True"},     {"FontStrikethrough", "False"}};
    for (const auto &[chave, valor] : gravados)
        EXPECT_EQ(Valor(chave), QString::fromLatin1(valor)) << chave;

    // The next start reads them back; "-1" is true as well, and a hand-edited
    // size stays within the two digits of the command text.
    std::unique_ptr<QSettings>(AbrirConfig())->setValue(QStringLiteral("Fontes Impressora"), QStringLiteral("-1"));
    SessaoEdicao t;
    ASSERT_TRUE(t.Iniciar({}, QStringLiteral("/p/"), QStringLiteral("/p/lumetaedit")));
    EXPECT_EQ(t.Config.UnidadeMedida, UnidadeMilimetros);
    EXPECT_FALSE(t.Config.ExibirResultado || t.Config.MagicItem || !t.Config.FontesImpressora);
    EXPECT_EQ(t.Documento.banda(1).Itens[0].Fonte, s.FontePadrao);
    for (const auto &[escrito, lido] : {std::pair{"500", 99}, {"0", 1}}) {
        std::unique_ptr<QSettings>(AbrirConfig())->setValue(QStringLiteral("FontSize"), QString::fromLatin1(escrito));
        Configuracoes c;
        c.Ler();
        EXPECT_EQ(c.FontePadrao.Tamanho, lido) << escrito;
    }
}

TEST(SessaoEdicao, OpcoesDoMenuConfigurarMudamODocumentoEOTexto)
{
    Sessao s;
    s.AlternarImprimir();
    s.AlternarVisivel();
    s.AlternarTemCapa();
    s.AlternarEnviarEmail();
    EXPECT_EQ(Linhas(s.TextoResultado).mid(0, 6), QStringList({"QJ 92", "IR", "SV", "TC", "E ", "F 100000Arial"}));
    // E-mail types: JPG in a fresh session takes 92; after a quality was
    // chosen in this session PDF takes it too.
    s.DefinirTipoEmail(1);
    EXPECT_EQ(s.Documento.QualidadeJPG, 92);
    s.QualidadeJPGSessao = 75;
    s.DefinirTipoEmail(4);
    EXPECT_EQ(s.Documento.QualidadeJPG, 75);

    // Landscape repaints without a snapshot but marks the document changed.
    const int antes = s.Desfazer.PosicaoDesfazer;
    s.Alterado = false;
    s.eventos.clear();
    s.AlternarPaisagem();
    EXPECT_TRUE(s.Documento.Paisagem && s.Alterado && s.eventos.contains(QStringLiteral("pintar")));
    EXPECT_EQ(s.Desfazer.PosicaoDesfazer, antes);
    // Another window may have chosen another copybook since: the store wins.
    s.DefinirCPY(QStringLiteral("Cobol"));
    std::unique_ptr<QSettings>(AbrirConfig())->setValue(QStringLiteral("CPY"), QStringLiteral("Java"));
    EXPECT_EQ(s.LerCPY(), QStringLiteral("Java"));
    EXPECT_EQ(s.Config.CPY, QStringLiteral("Java"));
}

TEST(ModuloAssociar, RegistraTipoIconeEComandoEParaNaPrimeiraFalha)
{
    ConfigTemporaria cfg;
    InterfaceRoteirizada ui;
    EXPECT_EQ(LinhaComandoAbrir(QStringLiteral("/opt/Meu Lumeta/lumetaedit")),
              QStringLiteral("\"/opt/Meu Lumeta/lumetaedit\" %f"));
    const auto associar = [&] {
        return Associar(QStringLiteral("lmt"), QStringLiteral("Layout do Lumeta"), QStringLiteral("/opt/l/lumetaedit"),
                        QStringLiteral("/opt/l/lumetaedit"), &ui);
    };
    ASSERT_TRUE(associar());
    const QString mime = QString::fromUtf8(teste::LerArquivo(cfg.Dados() + QStringLiteral("/mime/packages/lumetaedit-lmt.xml")));
    EXPECT_TRUE(mime.contains(QStringLiteral("<mime-type type=\"application/x-lumeta-lmt\">"))) << mime.toStdString();
    QImage icone(cfg.Dados() + QStringLiteral("/icons/hicolor/48x48/mimetypes/application-x-lumeta-lmt.png"));
    ASSERT_EQ(icone.size(), QSize(48, 48));

    // The first key cannot be created: a message, false, and nothing more written.
    ConfigTemporaria outra;
    teste::GravarArquivoTeste(outra.Dados(), "não é uma pasta");
    EXPECT_FALSE(associar());
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_TRUE(ui.mensagens[0].texto.startsWith(QStringLiteral("Não foi possível criar ou abrir a entrada do registro: ")
                                                  + outra.Dados() + QStringLiteral("/mime/packages\n\nOcorreu o erro: ")));
    // A value that cannot be written (a folder stands where the file goes).
    ConfigTemporaria terceira;
    QDir().mkpath(terceira.Dados() + QStringLiteral("/mime/packages/lumetaedit-lmt.xml"));
    EXPECT_FALSE(associar());
    ASSERT_EQ(ui.mensagens.size(), 2);
    EXPECT_TRUE(ui.mensagens[1].texto.startsWith(
        QStringLiteral("Não foi possível salvar o valor do registro: lumetaedit-lmt.xml\n\nOcorreu o erro: ")));
    EXPECT_FALSE(QDir(terceira.Dados() + QStringLiteral("/applications")).exists());
}
