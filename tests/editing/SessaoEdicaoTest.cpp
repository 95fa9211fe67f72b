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

const QString Pergunta = QStringLiteral("Deseja salvar as alterações?");

struct Sessao : SessaoEdicao {
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
};

QStringList Linhas(const QString &texto)
{
    QStringList l = texto.split(QStringLiteral("\r\n"));
    if (!l.isEmpty() && l.last().isEmpty())
        l.removeLast();
    return l;
}

QString GravarLayout(const QString &caminho, const LayoutDocumento &doc)
{
    QDir().mkpath(QFileInfo(caminho).absolutePath());
    EXPECT_TRUE(GravarArquivoLMT(caminho, doc).ok);
    return caminho;
}

}  // namespace

TEST(SessaoEdicao, CicloPintaMarcaAlteradoGuardaInstantaneoEGeraOTexto)
{
    Sessao s;
    EXPECT_FALSE(s.Alterado);
    EXPECT_FALSE(s.PodeDesfazer());
    EXPECT_EQ(Linhas(s.TextoResultado),
              QStringList({"QJ 92", "F 100000Arial", "T 009900002000600000100010Texto 1", "RH 00018", "QL"}));

    s.Documento.banda(1).Altura = 0;
    s.Documento.banda(1).Itens[0].Largura = 100;
    s.AddBanda(0, false, 0, 0);
    s.eventos.clear();
    s.ConcluirEdicao();
    // The painter draws before the text is regenerated; the band whose
    // height was computed is the selected one, so the selection is shown
    // again; then selection and panel as every command ends.
    EXPECT_EQ(s.eventos, QStringList({"pintar", "selecionar", "resultado", "selecionar", "validar"}));
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.PodeDesfazer());
    // Automatic height computed by the canvas, stored negated, and the next
    // band placed under it.
    const int altura = CalcularAlturaBanda(s.Documento.banda(1), s.Recursos.Medidor);
    EXPECT_GT(altura, 8);
    EXPECT_EQ(s.Documento.banda(1).Altura, -altura);
    EXPECT_EQ(s.Documento.banda(2).Topo, 16 + altura);
    EXPECT_EQ(Linhas(s.TextoResultado),
              QStringList({"QJ 92", "F 100000Arial", "T 009900002000960000100010Texto 1", "RH 00000", "QL",
                           "T 009900002000600000100010Texto 1", "RH 00018", "QL"}));
}

TEST(SessaoEdicao, DesfazerVoltaDozeVezesNoMaximoEParaNoEstadoInicial)
{
    Sessao s;
    // Fewer edits than the ring holds: undo reaches the state after New and stops.
    s.Editar();
    s.Editar();
    s.BandaSelecionada = 3;
    s.ItemSelecionado = 1;
    s.Editar();
    EXPECT_EQ(s.Documento.NumBandas(), 4);
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), 3);
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), 1);
    EXPECT_EQ(s.BandaSelecionada, 1);
    EXPECT_EQ(s.ItemSelecionado, 0);
    EXPECT_FALSE(s.PodeDesfazer());
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), 1);

    // Undo itself takes no snapshot: the next edit overwrites the slot after
    // the current one, so there is no redo.
    s.Editar();
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), 1);
    EXPECT_FALSE(s.PodeDesfazer());

    // Twenty edits: the oldest drop out, twelve undos remain.
    for (int i = 0; i < 20; ++i)
        s.Editar();
    EXPECT_EQ(s.Documento.NumBandas(), 21);
    int desfeitos = 0;
    while (s.PodeDesfazer()) {
        s.DesfazerEdicao();
        ++desfeitos;
    }
    EXPECT_EQ(desfeitos, 12);
    EXPECT_EQ(s.Documento.NumBandas(), 9);

    // New restarts the ring.
    s.Editar();
    EXPECT_TRUE(s.PodeDesfazer());
    s.NovoLMT();
    EXPECT_FALSE(s.PodeDesfazer());
    EXPECT_FALSE(s.Alterado);
}

TEST(SessaoEdicao, DesfazerRestauraSelecaoCabecalhoRodapeEQuebrasMasNaoAsOpcoesDePagina)
{
    Sessao s;
    s.Editar();
    s.Documento.BandaCabecalho = 1;
    s.Documento.BandaRodape = 2;
    s.Documento.QuebraPaginaAdd(2);
    s.BandaSelecionada = 2;
    s.ItemSelecionado = 1;
    s.Editar();                       // snapshot: 3 bands, header 1, footer 2, break 2
    const QList<Banda> antes = s.Documento.Bandas;
    s.Documento.banda(3).Itens[0].Texto = QStringLiteral("mudado");
    s.Documento.BandaRodape = 3;
    s.Documento.Quebras.clear();
    s.BandaSelecionada = 3;
    s.ItemSelecionado = 0;
    s.ConcluirEdicao();
    s.AlternarPaisagem();             // no snapshot of its own
    EXPECT_TRUE(s.Documento.Paisagem);
    s.DesfazerEdicao();
    EXPECT_EQ(s.Documento.Bandas, antes);
    EXPECT_EQ(s.Documento.BandaCabecalho, 1);
    EXPECT_EQ(s.Documento.BandaRodape, 2);
    EXPECT_EQ(s.Documento.Quebras, QList<int16_t>({2}));
    EXPECT_EQ(s.BandaSelecionada, 2);
    EXPECT_EQ(s.ItemSelecionado, 1);
    EXPECT_TRUE(s.Documento.Paisagem);  // the landscape toggle is not undone
}

TEST(SessaoEdicao, SairComCancelarNoDialogoDeSalvarMantemAJanelaEODocumentoAlterado)
{
    ConfigTemporaria cfg;
    Sessao s;
    s.Editar();
    ASSERT_TRUE(s.Alterado);

    // Cancel on the question.
    s.ui.respostas = {Resposta::Cancelar};
    EXPECT_FALSE(s.ConfirmarSaida());
    ASSERT_EQ(s.ui.perguntas.size(), 1);
    EXPECT_EQ(s.ui.perguntas[0].texto, Pergunta);
    EXPECT_EQ(s.ui.perguntas[0].titulo, QStringLiteral("Sair"));
    EXPECT_EQ(s.ui.perguntas[0].icone, Icone::Pergunta);

    // Yes, then Cancel in the save dialog: still open, still changed.
    s.ui.respostas = {Resposta::Sim};
    s.ui.arquivos = {QString()};
    EXPECT_FALSE(s.ConfirmarSaida());
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.NomeArquivo.isEmpty());
    ASSERT_EQ(s.ui.dialogos.size(), 1);
    EXPECT_EQ(s.ui.dialogos[0].filtro, FiltroLMT);

    // No: leaves without saving.
    s.ui.respostas = {Resposta::Nao};
    EXPECT_TRUE(s.ConfirmarSaida());
    EXPECT_EQ(s.ui.dialogos.size(), 1);

    // Yes and a name: saved, then leaves.
    const QString destino = cfg.Pasta() + QStringLiteral("/saida.lmt");
    s.ui.respostas = {Resposta::Sim};
    s.ui.arquivos = {destino};
    EXPECT_TRUE(s.ConfirmarSaida());
    EXPECT_FALSE(s.Alterado);
    EXPECT_TRUE(QFile::exists(destino));

    // An unchanged document is not asked about.
    const qsizetype perguntas = s.ui.perguntas.size();
    EXPECT_TRUE(s.ConfirmarSaida());
    EXPECT_EQ(s.ui.perguntas.size(), perguntas);
}

TEST(SessaoEdicao, NovoEAbrirPerguntamComOTituloDoComandoERespeitamCancelar)
{
    ConfigTemporaria cfg;
    Sessao s;
    const QString outro = GravarLayout(cfg.Pasta() + QStringLiteral("/outro.lmt"), [] {
        Sessao t;
        t.AddBanda(0, false, 30, 200);
        return t.Documento;
    }());
    s.Editar();
    s.ui.respostas = {Resposta::Cancelar};
    s.ComandoNovo();
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    EXPECT_EQ(s.ui.perguntas.last().titulo, QStringLiteral("Novo"));

    s.ui.respostas = {Resposta::Nao};
    s.ComandoNovo();
    EXPECT_EQ(s.Documento.NumBandas(), 1);
    EXPECT_FALSE(s.Alterado);
    EXPECT_FALSE(s.PodeDesfazer());
    EXPECT_EQ(s.Titulo(), NomeProduto);

    s.Editar();
    s.ui.respostas = {Resposta::Nao};
    s.ui.arquivos = {outro};
    s.ComandoAbrir();
    EXPECT_EQ(s.ui.perguntas.last().titulo, QStringLiteral("Abrir"));
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    EXPECT_EQ(s.Documento.banda(2).Altura, 30);
    EXPECT_FALSE(s.Alterado);
    EXPECT_FALSE(s.PodeDesfazer());
    EXPECT_EQ(s.NomeArquivo, outro);
    EXPECT_EQ(s.Titulo(), QStringLiteral("LumetaEdit 2.0 - [") + outro + QStringLiteral("]"));
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({outro}));

    // A window that is not usable does not open anything.
    s.Ganchos.JanelaHabilitada = [] { return false; };
    const qsizetype dialogos = s.ui.dialogos.size();
    s.ComandoAbrir();
    EXPECT_EQ(s.ui.dialogos.size(), dialogos);
}

TEST(SessaoEdicao, AbrirIlegivelEncerraOProgramaSemPerguntar)
{
    ConfigTemporaria cfg;
    Sessao s;
    const QString atual = GravarLayout(cfg.Pasta() + QStringLiteral("/atual.lmt"), s.Documento);
    s.ui.arquivos = {atual};
    s.ComandoAbrir();
    ASSERT_EQ(s.NomeArquivo, atual);
    QByteArray curto = GravarLMT(s.Documento).left(40);
    const QString quebrado = cfg.Pasta() + QStringLiteral("/quebrado.lmt");
    teste::GravarArquivoTeste(quebrado, curto);
    s.ui.arquivos = {quebrado};
    s.eventos.clear();
    s.ComandoAbrir();
    EXPECT_EQ(s.eventos, QStringList({"encerrar"}));
    EXPECT_EQ(s.NomeArquivo, atual);
    ASSERT_FALSE(s.ui.mensagens.isEmpty());
    EXPECT_TRUE(s.ui.mensagens.last().texto.startsWith(QStringLiteral("Ocorreu um erro ao abrir o arquivo '")
                                                       + quebrado + QStringLiteral("!\n\n")));
    EXPECT_EQ(s.ui.mensagens.last().icone, Icone::Exclamacao);
}

TEST(SessaoEdicao, SalvarComoPropoeONomeAnteriorERestauraAoCancelar)
{
    ConfigTemporaria cfg;
    Sessao s;
    const QString a = cfg.Pasta() + QStringLiteral("/a.lmt");
    s.ui.arquivos = {a};
    EXPECT_TRUE(s.ComandoSalvar());
    EXPECT_EQ(s.NomeArquivo, a);
    EXPECT_TRUE(s.ui.dialogos[0].nomeProposto.isEmpty());

    // Save with a name writes without asking.
    s.Editar();
    EXPECT_TRUE(s.ComandoSalvar());
    EXPECT_EQ(s.ui.dialogos.size(), 1);
    EXPECT_FALSE(s.Alterado);

    s.Editar();
    s.ui.arquivos = {QString()};
    EXPECT_FALSE(s.ComandoSalvarComo());
    EXPECT_EQ(s.ui.dialogos.last().nomeProposto, a);
    EXPECT_EQ(s.NomeArquivo, a);
    EXPECT_TRUE(s.Alterado);

    const QString b = cfg.Pasta() + QStringLiteral("/b.lmt");
    s.ui.arquivos = {b};
    EXPECT_TRUE(s.ComandoSalvarComo());
    EXPECT_EQ(s.NomeArquivo, b);
    EXPECT_FALSE(s.Alterado);
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({b, a}));
    LayoutDocumento lido;
    ASSERT_TRUE(AbrirArquivoLMT(b, lido).ok);
    EXPECT_EQ(lido.NumBandas(), 3);
}

TEST(SessaoEdicao, ArquivosRecentesSemRepeticaoNoMaximoQuatroEParandoNoPrimeiroVazio)
{
    ConfigTemporaria cfg;
    {
        std::unique_ptr<QSettings> st(AbrirConfig());
        st->setValue(QStringLiteral("Arquivo recente 1"), QStringLiteral("c:\\A.LMT"));
        st->setValue(QStringLiteral("Arquivo recente 2"), QStringLiteral("d.lmt"));
        st->setValue(QStringLiteral("Arquivo recente 3"), QStringLiteral("e.lmt"));
        st->setValue(QStringLiteral("Arquivo recente 4"), QStringLiteral("f.lmt"));
    }
    Sessao s;
    int reconstrucoes = 0;
    s.Ganchos.ArquivosRecentes = [&] { ++reconstrucoes; };
    s.ArquivosRecentes();
    EXPECT_EQ(reconstrucoes, 1);
    EXPECT_EQ(s.Config.ArquivosRecentes.size(), 4);
    s.Config.GravarRecentes(QStringLiteral("C:\\a.lmt"));
    EXPECT_EQ(s.Config.ArquivosRecentes,
              QStringList({"C:\\a.lmt", "d.lmt", "e.lmt", "f.lmt"}));
    s.Config.GravarRecentes(QStringLiteral("g.lmt"));
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({"g.lmt", "C:\\a.lmt", "d.lmt", "e.lmt"}));
    s.Config.GravarRecentes(QStringLiteral("E.LMT"));
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({"E.LMT", "g.lmt", "C:\\a.lmt", "d.lmt"}));
    // Re-read from the store: the same list.
    s.ArquivosRecentes();
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({"E.LMT", "g.lmt", "C:\\a.lmt", "d.lmt"}));

    // A hole in the list hides everything after it.
    {
        std::unique_ptr<QSettings> st(AbrirConfig());
        st->setValue(QStringLiteral("Arquivo recente 2"), QString());
    }
    s.ArquivosRecentes();
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({"E.LMT"}));

    s.ComandoExcluirRecentes();
    EXPECT_TRUE(s.Config.ArquivosRecentes.isEmpty());
    std::unique_ptr<QSettings> st(AbrirConfig());
    for (int k = 1; k <= 4; ++k)
        EXPECT_EQ(st->value(QStringLiteral("Arquivo recente %1").arg(k)).toString(), QString());
}

TEST(SessaoEdicao, RecenteAusenteMostraOCaminhoENaoMudaNada)
{
    ConfigTemporaria cfg;
    const QString sumido = cfg.Pasta() + QStringLiteral("/sumido.lmt");
    const QString existe = GravarLayout(cfg.Pasta() + QStringLiteral("/sub/existe.lmt"), [] {
        Sessao t;
        t.AddBanda(0, false, 22, 0);
        return t.Documento;
    }());
    {
        std::unique_ptr<QSettings> st(AbrirConfig());
        st->setValue(QStringLiteral("Arquivo recente 1"), sumido);
        st->setValue(QStringLiteral("Arquivo recente 2"), existe);
    }
    Sessao s;
    s.ArquivosRecentes();
    s.Editar();
    s.ComandoAbrirRecente(1);
    ASSERT_EQ(s.ui.mensagens.size(), 1);
    EXPECT_EQ(s.ui.mensagens[0].texto, sumido + QStringLiteral("\n\nNão foi possível encontrar o arquivo acima!"));
    EXPECT_EQ(s.ui.mensagens[0].icone, Icone::Informacao);
    EXPECT_TRUE(s.ui.perguntas.isEmpty());
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    EXPECT_TRUE(s.Alterado);
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({sumido, existe}));

    const QString antes = QDir::currentPath();
    s.ui.respostas = {Resposta::Nao};
    s.ComandoAbrirRecente(2);
    EXPECT_EQ(s.ui.perguntas.last().titulo, QStringLiteral("Abrir"));
    EXPECT_EQ(s.NomeArquivo, existe);
    EXPECT_EQ(s.Documento.banda(2).Altura, 22);
    EXPECT_FALSE(s.Alterado);
    EXPECT_EQ(QDir::currentPath(), QFileInfo(existe).absolutePath());
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({existe, sumido}));
    QDir::setCurrent(antes);
}

TEST(SessaoEdicao, InicioComCaminhoEntreAspasAbreSemAlteracaoESemArgumentoRegistraOTipo)
{
    ConfigTemporaria cfg;
    const QString caminho = GravarLayout(cfg.Pasta() + QStringLiteral("/Meus Layouts/rel.lmt"), [] {
        Sessao t;
        t.AddBanda(0, false, 25, 300);
        return t.Documento;
    }());
    {
        Sessao s;
        int titulos = 0;
        s.Ganchos.Titulo = [&] { ++titulos; };
        // The desktop hands the quoted path split at its blank.
        const QStringList args = {QStringLiteral("\"") + cfg.Pasta() + QStringLiteral("/Meus"),
                                  QStringLiteral("Layouts/rel.lmt\"")};
        EXPECT_EQ(ArgumentoCaminho(args), caminho);
        ASSERT_TRUE(s.Iniciar(args, QStringLiteral("/opt/lumeta/"), QStringLiteral("/opt/lumeta/lumetaedit")));
        EXPECT_EQ(s.NomeArquivo, caminho);
        EXPECT_EQ(s.Documento.NumBandas(), 2);
        EXPECT_EQ(s.Documento.banda(2).Itens[0].Largura, 300);
        EXPECT_FALSE(s.Alterado);
        EXPECT_FALSE(s.PodeDesfazer());
        EXPECT_GE(titulos, 1);
        EXPECT_EQ(s.Config.ArquivosRecentes, QStringList({caminho}));
        // No association with a file argument.
        EXPECT_FALSE(QDir(cfg.Dados()).exists());
        EXPECT_EQ(s.ArquivoVisualizacao, PastaTemporaria() + QStringLiteral("Lumeta.tmp"));
        EXPECT_EQ(s.ArquivoTransferencia, PastaTemporaria() + QStringLiteral("~TMP_LumetaEdit.clp"));
        std::unique_ptr<QSettings> st(AbrirConfig());
        EXPECT_EQ(st->value(QStringLiteral("Pasta")).toString(), QStringLiteral("/opt/lumeta/"));
    }
    {
        // A relative path is made whole against the current folder.
        const QString antes = QDir::currentPath();
        QDir::setCurrent(cfg.Pasta());
        Sessao s;
        ASSERT_TRUE(s.Iniciar({QStringLiteral("\"Meus Layouts/./rel.lmt\"")}, QStringLiteral("/p/"),
                              QStringLiteral("/p/lumetaedit")));
        EXPECT_EQ(s.NomeArquivo, caminho);
        QDir::setCurrent(antes);
    }
    {
        Sessao s;
        ASSERT_TRUE(s.Iniciar({}, QStringLiteral("/opt/lumeta/"), QStringLiteral("/opt/lumeta/lumetaedit")));
        EXPECT_TRUE(s.NomeArquivo.isEmpty());
        EXPECT_EQ(s.Documento.NumBandas(), 1);
        EXPECT_FALSE(s.Alterado);
        EXPECT_TRUE(s.ui.mensagens.isEmpty());
        const QByteArray desktop = teste::LerArquivo(cfg.Dados() + QStringLiteral("/applications/lumetaedit.desktop"));
        EXPECT_TRUE(desktop.contains("\nExec=/opt/lumeta/lumetaedit %f\n")) << desktop.constData();
        EXPECT_TRUE(desktop.contains("\nMimeType=application/x-lumeta-lmt;\n"));
        EXPECT_TRUE(QFile::exists(cfg.Dados() + QStringLiteral("/mime/packages/lumetaedit-lmt.xml")));
    }
    {
        // An unreadable file on the command line ends the program.
        const QString ruim = cfg.Pasta() + QStringLiteral("/ruim.lmt");
        teste::GravarArquivoTeste(ruim, GravarLMT(LayoutDocumento()).left(33));
        Sessao s;
        EXPECT_FALSE(s.Iniciar({ruim}, QStringLiteral("/p/"), QStringLiteral("/p/lumetaedit")));
        ASSERT_EQ(s.ui.mensagens.size(), 1);
        EXPECT_TRUE(s.ui.mensagens[0].texto.startsWith(QStringLiteral("Ocorreu um erro ao abrir o arquivo '")));
    }
}

TEST(SessaoEdicao, PrimeiroInicioUsaOsPadroesESaidaGravaAsConfiguracoesDeVisao)
{
    ConfigTemporaria cfg;
    Sessao s;
    int unidades = 0, resultados = 0;
    s.Ganchos.UnidadeAlterada = [&] { ++unidades; };
    s.Ganchos.ResultadoAlternado = [&] { ++resultados; };
    ASSERT_TRUE(s.Iniciar({}, QStringLiteral("/p/"), QStringLiteral("/p/lumetaedit")));
    EXPECT_EQ(s.Config.UnidadeMedida, 3);
    EXPECT_TRUE(s.Config.ExibirResultado);
    EXPECT_FALSE(s.Config.FontesImpressora);
    EXPECT_TRUE(s.Config.MagicItem);
    EXPECT_TRUE(s.Config.CPY.isEmpty());
    EXPECT_EQ(s.FontePadrao, FonteItem());
    EXPECT_EQ(unidades, 1);
    EXPECT_EQ(resultados, 1);

    EXPECT_EQ(s.UnidadeAtual.rotulo, QStringLiteral("px"));
    s.DefinirUnidade(UnidadePolegadas);
    EXPECT_EQ(s.UnidadeAtual.rotulo, QStringLiteral("pol"));
    EXPECT_EQ(s.UnidadeAtual.decimais, 5);
    s.DefinirUnidade(4);     // unknown: pixels, the label stays
    EXPECT_EQ(s.UnidadeAtual.fator, 1.0);
    EXPECT_EQ(s.UnidadeAtual.rotulo, QStringLiteral("pol"));
    s.DefinirUnidade(UnidadeMilimetros);
    EXPECT_EQ(s.UnidadeAtual.rotulo, QStringLiteral("mm"));
    s.AlternarResultado();
    s.AlternarFontesImpressora();
    s.Config.MagicItem = false;
    s.DefinirFontePadrao(QStringLiteral("Courier New"), 100, true, false, true, false);
    EXPECT_EQ(s.FontePadrao.Tamanho, 8);
    s.DefinirFontePadrao(QStringLiteral("Courier New"), 12.6, true, false, true, false);
    EXPECT_EQ(s.FontePadrao.Tamanho, 13);
    s.DefinirFontePadrao(QStringLiteral("Courier New"), 112, true, false, true, false);
    EXPECT_EQ(s.FontePadrao.Tamanho, 12);
    // New items take the default font at once.
    s.AddItem(1, false, 0);
    EXPECT_EQ(s.Documento.banda(1).Itens.last().Fonte.Nome, QStringLiteral("Courier New"));
    EXPECT_TRUE(s.Documento.banda(1).Itens.last().Fonte.Negrito);
    EXPECT_EQ(unidades, 4);
    EXPECT_EQ(resultados, 2);

    QFile previa(s.ArquivoVisualizacao);
    ASSERT_TRUE(previa.open(QIODevice::WriteOnly));
    previa.close();
    s.FinalizarSaida();
    EXPECT_FALSE(QFile::exists(s.ArquivoVisualizacao));
    std::unique_ptr<QSettings> st(AbrirConfig());
    EXPECT_EQ(st->value(QStringLiteral("Unidade de Medida")).toString(), QStringLiteral("6"));
    EXPECT_EQ(st->value(QStringLiteral("Exibir Resultado")).toString(), QStringLiteral("False"));
    EXPECT_EQ(st->value(QStringLiteral("Fontes Impressora")).toString(), QStringLiteral("True"));
    EXPECT_EQ(st->value(QStringLiteral("MagicItem")).toString(), QStringLiteral("False"));
    EXPECT_EQ(st->value(QStringLiteral("FontName")).toString(), QStringLiteral("Courier New"));
    EXPECT_EQ(st->value(QStringLiteral("FontSize")).toString(), QStringLiteral("12"));
    EXPECT_EQ(st->value(QStringLiteral("FontBold")).toString(), QStringLiteral("True"));
    EXPECT_EQ(st->value(QStringLiteral("FontUnderline")).toString(), QStringLiteral("True"));
    EXPECT_EQ(st->value(QStringLiteral("FontStrikethrough")).toString(), QStringLiteral("False"));

    // The next start reads them back.
    Sessao t;
    ASSERT_TRUE(t.Iniciar({}, QStringLiteral("/p/"), QStringLiteral("/p/lumetaedit")));
    EXPECT_EQ(t.Config.UnidadeMedida, UnidadeMilimetros);
    EXPECT_FALSE(t.Config.ExibirResultado);
    EXPECT_EQ(t.FontePadrao.Nome, QStringLiteral("Courier New"));
    EXPECT_EQ(t.Documento.banda(1).Itens[0].Fonte.Tamanho, 12);
}

TEST(SessaoEdicao, OpcoesDoMenuConfigurarMudamODocumentoEOTexto)
{
    ConfigTemporaria cfg;
    Sessao s;
    const int instantaneo = s.Desfazer.PosicaoDesfazer;

    s.AlternarImprimir();
    s.AlternarVisivel();
    s.AlternarTemCapa();
    s.AlternarEnviarEmail();
    EXPECT_TRUE(s.Alterado);
    EXPECT_EQ(Linhas(s.TextoResultado).mid(0, 6), QStringList({"QJ 92", "IR", "SV", "TC", "E ", "F 100000Arial"}));
    s.AlternarVisivel();
    EXPECT_FALSE(s.Documento.Visivel);
    EXPECT_FALSE(s.TextoResultado.contains(QStringLiteral("SV")));

    // E-mail types: PDF in a fresh session takes 100, JPG 92; after a quality
    // was chosen in this session both take it.
    s.DefinirTipoEmail(4);
    EXPECT_EQ(s.Documento.QualidadeJPG, 100);
    EXPECT_TRUE(s.TextoResultado.startsWith(QStringLiteral("EP 100\r\n")));
    s.DefinirTipoEmail(2);
    EXPECT_TRUE(s.TextoResultado.startsWith(QStringLiteral("EE\r\n")));
    s.DefinirTipoEmail(3);
    EXPECT_TRUE(s.TextoResultado.startsWith(QStringLiteral("EG\r\n")));
    s.DefinirTipoEmail(5);
    EXPECT_TRUE(s.TextoResultado.startsWith(QStringLiteral("EW\r\n")));
    EXPECT_EQ(s.Documento.QualidadeJPG, 100);
    s.DefinirTipoEmail(1);
    EXPECT_EQ(s.Documento.QualidadeJPG, 92);
    s.QualidadeJPGSessao = 75;
    s.DefinirTipoEmail(4);
    EXPECT_EQ(s.Documento.QualidadeJPG, 75);
    EXPECT_EQ(s.Documento.TipoEmail, 4);

    // Final page break: refused while turning it on with a footer band.
    s.Editar();
    s.Documento.BandaRodape = 2;
    s.Alterado = false;
    EXPECT_FALSE(s.AlternarQuebraPaginaFinal());
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);
    EXPECT_FALSE(s.Alterado);
    ASSERT_EQ(s.ui.mensagens.size(), 1);
    EXPECT_EQ(s.ui.mensagens[0].texto,
              QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!"));
    EXPECT_EQ(s.ui.mensagens[0].titulo, QStringLiteral("Rodapé"));
    EXPECT_EQ(s.ui.mensagens[0].icone, Icone::Informacao);
    s.Documento.BandaRodape = 0;
    EXPECT_TRUE(s.AlternarQuebraPaginaFinal());
    EXPECT_TRUE(s.TextoResultado.endsWith(QStringLiteral("QL\r\nQP\r\n")));
    // Turning it off is always allowed, footer or not.
    s.Documento.BandaRodape = 2;
    EXPECT_TRUE(s.AlternarQuebraPaginaFinal());
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);

    // Landscape repaints without a snapshot but marks the document changed.
    const int antes = s.Desfazer.PosicaoDesfazer;
    s.Alterado = false;
    s.eventos.clear();
    s.AlternarPaisagem();
    EXPECT_TRUE(s.Documento.Paisagem);
    EXPECT_TRUE(s.Alterado);
    EXPECT_EQ(s.Desfazer.PosicaoDesfazer, antes);
    EXPECT_TRUE(s.eventos.contains(QStringLiteral("pintar")));
    EXPECT_NE(antes, instantaneo);

    s.DefinirCPY(QStringLiteral("Cobol"));
    std::unique_ptr<QSettings> st(AbrirConfig());
    EXPECT_EQ(st->value(QStringLiteral("CPY")).toString(), QStringLiteral("Cobol"));
    // Another window may have chosen another one since: the store wins.
    st->setValue(QStringLiteral("CPY"), QStringLiteral("Java"));
    st->sync();
    EXPECT_EQ(s.LerCPY(), QStringLiteral("Java"));
    EXPECT_EQ(s.Config.CPY, QStringLiteral("Java"));
}

TEST(ModuloLumetaEdit, CaminhoLongoETemporaria)
{
    ConfigTemporaria cfg;
    QDir().mkpath(cfg.Pasta() + QStringLiteral("/Pasta A"));
    EXPECT_EQ(CaminhoLongo(cfg.Pasta() + QStringLiteral("/Pasta A/../Pasta A//x.lmt")),
              cfg.Pasta() + QStringLiteral("/Pasta A/x.lmt"));
    EXPECT_EQ(CaminhoLongo(QString()), QString());
    EXPECT_TRUE(PastaTemporaria().endsWith(QLatin1Char('/')));
    EXPECT_EQ(NomeDoArquivo(QStringLiteral("c:\\x\\rel.lmt")), QStringLiteral("rel.lmt"));
    EXPECT_EQ(NomeDoArquivo(QStringLiteral("/a/b/rel.lmt")), QStringLiteral("rel.lmt"));
    EXPECT_EQ(TamanhoFonteEscolhido(0.4), 8);
    EXPECT_EQ(TamanhoFonteEscolhido(99.6), 8);
    EXPECT_EQ(TamanhoFonteEscolhido(12.5), 12);
}

TEST(ModuloAssociar, RegistraTipoIconeEComandoEParaNaPrimeiraFalha)
{
    ConfigTemporaria cfg;
    InterfaceRoteirizada ui;
    EXPECT_EQ(LinhaComandoAbrir(QStringLiteral("/opt/lumeta/lumetaedit")), QStringLiteral("/opt/lumeta/lumetaedit %f"));
    EXPECT_EQ(LinhaComandoAbrir(QStringLiteral("/opt/Meu Lumeta/lumetaedit")),
              QStringLiteral("\"/opt/Meu Lumeta/lumetaedit\" %f"));

    ASSERT_TRUE(Associar(QStringLiteral("lmt"), QStringLiteral("Layout do Lumeta"), QStringLiteral("/opt/l/lumetaedit"),
                         QStringLiteral("/opt/l/lumetaedit"), &ui));
    EXPECT_TRUE(ui.mensagens.isEmpty());
    const QString mime = QString::fromUtf8(teste::LerArquivo(cfg.Dados() + QStringLiteral("/mime/packages/lumetaedit-lmt.xml")));
    EXPECT_TRUE(mime.contains(QStringLiteral("<mime-type type=\"application/x-lumeta-lmt\">")));
    EXPECT_TRUE(mime.contains(QStringLiteral("<comment>Layout do Lumeta</comment>")));
    EXPECT_TRUE(mime.contains(QStringLiteral("<glob pattern=\"*.lmt\"/>")));
    EXPECT_TRUE(mime.contains(QStringLiteral("<icon name=\"application-x-lumeta-lmt\"/>")));
    QImage icone(cfg.Dados() + QStringLiteral("/icons/hicolor/48x48/mimetypes/application-x-lumeta-lmt.png"));
    ASSERT_EQ(icone.size(), QSize(48, 48));
    EXPECT_EQ(QColor(icone.pixel(20, 16)), QColor(40, 110, 200));   // the header band
    EXPECT_EQ(qAlpha(icone.pixel(1, 1)), 0);
    EXPECT_TRUE(QFile::exists(cfg.Dados() + QStringLiteral("/icons/hicolor/48x48/apps/lumetaedit.png")));
    const QString desktop = QString::fromUtf8(teste::LerArquivo(cfg.Dados() + QStringLiteral("/applications/lumetaedit.desktop")));
    EXPECT_TRUE(desktop.startsWith(QStringLiteral("[Desktop Entry]\n")));
    EXPECT_TRUE(desktop.contains(QStringLiteral("\nExec=/opt/l/lumetaedit %f\n")));
    EXPECT_TRUE(desktop.contains(QStringLiteral("\nIcon=lumetaedit\n")));
    EXPECT_TRUE(desktop.contains(QStringLiteral("\nComment=Layout do Lumeta\n")));

    // The first key cannot be created: a message, false, and nothing more written.
    ConfigTemporaria outra;
    teste::GravarArquivoTeste(outra.Dados(), "não é uma pasta");
    EXPECT_FALSE(Associar(QStringLiteral("lmt"), QStringLiteral("Layout do Lumeta"), QStringLiteral("/opt/l/lumetaedit"),
                          QStringLiteral("/opt/l/lumetaedit"), &ui));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_TRUE(ui.mensagens[0].texto.startsWith(QStringLiteral("Não foi possível criar ou abrir a entrada do registro: ")
                                                  + outra.Dados() + QStringLiteral("/mime/packages")));
    EXPECT_TRUE(ui.mensagens[0].texto.contains(QStringLiteral("\n\nOcorreu o erro: ")));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Exclamacao);

    // A value that cannot be written (a folder stands where the file goes).
    ConfigTemporaria terceira;
    QDir().mkpath(terceira.Dados() + QStringLiteral("/mime/packages/lumetaedit-lmt.xml"));
    EXPECT_FALSE(Associar(QStringLiteral("lmt"), QStringLiteral("Layout do Lumeta"), QStringLiteral("/opt/l/lumetaedit"),
                          QStringLiteral("/opt/l/lumetaedit"), &ui));
    ASSERT_EQ(ui.mensagens.size(), 2);
    EXPECT_TRUE(ui.mensagens[1].texto.startsWith(
        QStringLiteral("Não foi possível salvar o valor do registro: lumetaedit-lmt.xml\n\nOcorreu o erro: ")));
    EXPECT_FALSE(QDir(terceira.Dados() + QStringLiteral("/applications")).exists());
    EXPECT_FALSE(QDir(terceira.Dados() + QStringLiteral("/icons")).exists());

    // Without showing errors the failure is silent.
    EXPECT_FALSE(GravarRegistro(QStringLiteral("mime/packages"), RegistroTexto, QStringLiteral("lumetaedit-lmt.xml"),
                                "x", false, true, &ui));
    EXPECT_EQ(ui.mensagens.size(), 2);
}
