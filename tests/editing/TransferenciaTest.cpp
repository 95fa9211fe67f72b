#include "editing/ComandosTransferencia.h"
#include "document/ArquivoLMT.h"
#include "editing/ComandosBanda.h"
#include "editing/SessaoMontada.h"
#include "editing/Teclado.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

using namespace lumeta;
using Transferencia = lumeta::teste::SessaoMontada;
using lumeta::teste::GravarArquivoTeste;
using lumeta::teste::LerArquivo;

namespace {

const QString Invalido = QStringLiteral("Os dados da área de transferência são inválidos!");

}  // namespace

TEST(MarcadorTransferencia, TrintaEDoisBytesComAVersaoExata)
{
    EXPECT_EQ(MarcadorTransferencia(2, 6, 3480), QByteArray("LumetaEdit (2.0.6.3480) clpbrd\r\n"));
    EXPECT_EQ(MarcadorTransferencia(2, 15, 7), QByteArray("LumetaEdit (2.1.5.7) clpbrd\r\n   "));
}

TEST_F(Transferencia, ColarItensAntesDoSelecionadoOuNoFimEBandasNoFimOuAntesDaSelecionada)
{
    Montar({{64, 32, 16, 8}, {40, 24}});
    CliqueEShiftClique(80, 20, 110, 20);
    ASSERT_TRUE(mnuEditarCopiar(s));
    MouseDownCanvas(s, 10, 40, BotaoMouse::Esquerdo, false);  // (2, 1)
    mnuEditarColarItem(s);
    EXPECT_EQ(Textos(2), (QStringList{"1.2", "1.3", "2.1", "2.2"}));
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 2, 2, 1, 2}));
    EXPECT_EQ(s.ItemSelecionado, 3);
    // With no item selected they go to the end.
    MouseDownCanvas(s, 400, 20, BotaoMouse::Esquerdo, false);
    mnuEditarColarItem(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "1.2", "1.3", "1.4", "1.2", "1.3"}));
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 1, 5, 6}));

    // Bands 2 and 3, whole: at the end after a click below the last band,
    // else before the selected one, pushing the footer down.
    for (const int y : {300, 40}) {
        Montar({{64}, {32}, {16}});
        s.Documento.BandaRodape = 3;
        CliqueEShiftClique(10, 40, 10, 60);
        ASSERT_TRUE(mnuEditarCopiar(s));
        MouseDownCanvas(s, 10, y, BotaoMouse::Esquerdo, false);
        mnuEditarColarBanda(s);
        EXPECT_EQ(PrimeirosTextos(), (QStringList{"1.1", "2.1", "3.1", "2.1", "3.1"}));
        EXPECT_EQ(s.Faixa, (y == 300 ? FaixaSelecao{true, 4, 5, 1, 1} : FaixaSelecao{true, 2, 3, 1, 1}));
        EXPECT_EQ(s.Documento.BandaRodape, y == 300 ? 3 : 5);
        EXPECT_EQ(B(5).Topo, 16 + 4 * 18);
    }
    EXPECT_EQ(s.BandaSelecionada, 4);
}

TEST_F(Transferencia, RecortarExcluirERecusaDeExcluirTodas)
{
    // Every band, or every item of the only band, cannot go.
    Montar({{64, 32}, {40}});
    LayoutDocumento antes = s.Documento;
    mnuEditarTudo(s);
    mnuEditarExcluir(s);
    EXPECT_EQ(s.Documento, antes);
    Montar({{64, 32}});
    antes = s.Documento;
    CliqueEShiftClique(10, 20, 80, 20);
    mnuEditarRecortar(s);
    EXPECT_EQ(s.Documento, antes);
    ASSERT_EQ(ui.mensagens.size(), 2);
    for (const auto &m : ui.mensagens)
        EXPECT_EQ(m.texto, QStringLiteral("Não é possível excluir todas as bandas!"));

    Montar({{64, 32, 16}, {40}, {8}});
    CliqueEShiftClique(80, 20, 110, 20);
    mnuEditarRecortar(s);
    EXPECT_EQ(Textos(1), QStringList{"1.1"});
    EXPECT_EQ(std::pair(s.Faixa.visivel, s.ItemSelecionado), std::pair(false, 1));
    mnuEditarColarItem(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.2", "1.3", "1.1"}));
    // Cutting a range over whole bands removes them.
    CliqueEShiftClique(10, 20, 10, 40);
    mnuEditarRecortar(s);
    EXPECT_EQ(PrimeirosTextos(), QStringList{"3.1"});
    EXPECT_EQ(s.ItemSelecionado, 0);
    EXPECT_EQ(ui.mensagens.size(), 2);
}

TEST_F(Transferencia, ArquivoAusenteEstrangeiroOuDanificadoERecusadoSemMudarNada)
{
    Montar({{64, 32}, {40}});
    Selecionar(1, 1);
    const LayoutDocumento antes = s.Documento;
    const auto recusado = [&](const QString &mensagem, const char *caso) {
        ui.mensagens.clear();
        mnuEditarColarBanda(s);
        mnuEditarColarItem(s);
        ASSERT_EQ(ui.mensagens.size(), 2) << caso;
        for (const auto &m : ui.mensagens)
            EXPECT_EQ(std::pair(m.texto, m.titulo), std::pair(mensagem, QStringLiteral("Colar"))) << caso;
        EXPECT_EQ(s.Documento, antes) << caso;
        EXPECT_EQ(pinturas, 0) << caso;
    };
    recusado(QStringLiteral("Os dados da área de transferência estão vazios!"), "ausente");

    ASSERT_TRUE(mnuEditarCopiar(s));
    const QByteArray bom = LerArquivo(s.ArquivoTransferencia);
    // Every truncation of a good file.
    for (qsizetype n = 0; n < bom.size(); ++n) {
        GravarArquivoTeste(s.ArquivoTransferencia, bom.left(n));
        recusado(Invalido, "truncado");
    }
    // Another build's marker (as any other file's head), absurd counts.
    QByteArray outro = bom;
    outro.replace(0, 32, MarcadorTransferencia(LUMETA_VERSAO_MAIOR, LUMETA_VERSAO_MENOR, LUMETA_VERSAO_REVISAO + 1));
    const QByteArray marcador = MarcadorTransferencia();
    const std::pair<QByteArray, const char *> estranhos[] = {
        {outro, "outra versão"},
        {marcador + QByteArray("\xff\x7f", 2) + QByteArray(64, '\0'), "32767 bandas"},
        {marcador + QByteArray("\xff\xff", 2), "-1 bandas"},
        {marcador + QByteArray(2, '\0'), "nenhuma banda"}};
    for (const auto &[dados, caso] : estranhos) {
        GravarArquivoTeste(s.ArquivoTransferencia, dados);
        recusado(Invalido, caso);
    }

    // A good copy reached through a link is not this user's copy: refused
    // unread and left as it is. (That the private open also refuses another
    // user's file, the disk tests show.)
    GravarArquivoTeste(s.ArquivoTransferencia, bom);
    const QByteArray nome = QFile::encodeName(s.ArquivoTransferencia);
    const QString boa = pasta.filePath(QStringLiteral("boa.clp"));
    ASSERT_TRUE(QFile::rename(s.ArquivoTransferencia, boa));
    ASSERT_EQ(::symlink(QFile::encodeName(boa).constData(), nome.constData()), 0);
    recusado(Invalido, "link");
    EXPECT_EQ(LerArquivo(boa), bom);

    // Something that is not a regular file in its place: never read, never waited on.
    ASSERT_TRUE(QFile::remove(s.ArquivoTransferencia));
    ASSERT_EQ(mkfifo(nome.constData(), 0600), 0);
    recusado(Invalido, "fifo");
    ASSERT_TRUE(QFile::remove(s.ArquivoTransferencia));
    ASSERT_TRUE(QDir().mkpath(s.ArquivoTransferencia + QStringLiteral("/x")));
    recusado(Invalido, "pasta");
    // ... and copying over it cannot replace it.
    ui.mensagens.clear();
    EXPECT_FALSE(mnuEditarCopiar(s));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto,
              s.ArquivoTransferencia + QStringLiteral("\n\nNão foi possível substituir o arquivo acima!"));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Critico);
}

TEST_F(Transferencia, ColarMedidasQueOLayoutNaoComportaERecusado)
{
    Montar({{64}});
    Selecionar(1, 1);
    const LayoutDocumento antes = s.Documento;
    Banda boa = antes.banda(1);
    boa.Deslocamento = -9999;
    const auto colar = [&](const Banda &b) {
        GravarArquivoTeste(s.ArquivoTransferencia, GravarBandas(MarcadorTransferencia(), {boa, b}));
        ui.mensagens.clear();
        s.Documento = antes;
        mnuEditarColarBanda(s);
        mnuEditarColarItem(s);
        return ui.mensagens.size();
    };
    EXPECT_EQ(colar(boa), 0);
    ASSERT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(s.Documento.banda(3).NumItens(), 3);  // the pasted bands went above it
    const std::function<void(Banda &)> absurdas[] = {
        [](Banda &b) { b.Itens[0].Largura = INT32_MAX; },
        [](Banda &b) { b.Itens[0].Largura = -5; },
        [](Banda &b) { b.Altura = INT32_MIN; },
        [](Banda &b) { b.Deslocamento = INT32_MIN; },
        [](Banda &b) { b.Itens = QList<Item>(200, b.Itens[0]); for (Item &it : b.Itens) it.Largura = 1 << 20; },
    };
    for (const auto &mudar : absurdas) {
        Banda b = boa;
        mudar(b);
        EXPECT_EQ(colar(b), 2);
        EXPECT_EQ(ui.mensagens[0].texto, Invalido);
        EXPECT_EQ(s.Documento, antes);
    }
}

TEST_F(Transferencia, DozeDesfazerNoMaximoDepoisDeDozeOuMaisEdicoes)
{
    Montar({{64}});
    QList<LayoutDocumento> estados{s.Documento};
    for (int i = 0; i < 15; ++i) {
        Selecionar(1, 0);
        if (i % 3 == 0)
            mnuEditarBandaAdicionar(s);
        else if (i % 3 == 1)
            TeclaCanvas(s, Qt::Key_Asterisk, Qt::KeypadModifier);
        else {
            Selecionar(s.Documento.NumBandas(), 1);
            mnuEditarCopiar(s);
            mnuEditarColarItem(s);
        }
        estados << s.Documento;
    }
    // A range drawn over the present bands does not outlive them.
    mnuEditarTudo(s);
    int desfeitos = 0;
    while (s.PodeDesfazer()) {
        s.DesfazerEdicao();
        ++desfeitos;
        EXPECT_EQ(s.Documento.Bandas, estados[15 - desfeitos].Bandas) << desfeitos;
        EXPECT_FALSE(s.Faixa.visivel);
    }
    EXPECT_EQ(desfeitos, 12);
    // Redo takes each undo back until the next edit.
    for (int k = 1; k <= 3; ++k) {
        ASSERT_TRUE(s.PodeRefazer());
        s.RefazerEdicao();
        EXPECT_EQ(s.Documento.Bandas, estados[3 + k].Bandas) << k;
    }
    s.DesfazerEdicao();
    mnuEditarBandaAdicionar(s);
    EXPECT_FALSE(s.PodeRefazer());
    s.RefazerEdicao();
    EXPECT_EQ(s.Documento.NumBandas(), estados[5].NumBandas() + 1);
}

TEST_F(Transferencia, CopiaQueUmaColagemNaoLeriaNaoSubstituiAAnterior)
{
    Montar({{64}});
    Selecionar(1, 1);
    ASSERT_TRUE(mnuEditarCopiar(s));
    const QByteArray anterior = LerArquivo(s.ArquivoTransferencia);
    s.Documento.banda(1).Itens[0].Texto = QString(MaximoTexto + 1, QLatin1Char('x'));
    EXPECT_FALSE(mnuEditarCopiar(s));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto,
              QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + s.ArquivoTransferencia
                  + QStringLiteral("!\n\n6 - Estouro de capacidade (o item 1 da banda 1 passa de 65535 bytes)"));
    EXPECT_EQ(LerArquivo(s.ArquivoTransferencia), anterior);
}

TEST_F(Transferencia, BandaSemItensCopiaEColaComoBandaENadaComoItens)
{
    Montar({{64}, {32}});
    s.Documento.banda(2).Itens.clear();   // what a layout file may hold
    s.ConcluirEdicao();
    MouseDownCanvas(s, 10, 300, BotaoMouse::Esquerdo, false);   // below the last band: paste at the end
    s.ItemSelecionado = 0;
    ASSERT_TRUE(mnuEditarCopiar(s));
    mnuEditarColarBanda(s);
    ASSERT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(s.Documento.banda(3).NumItens(), 0);
    EXPECT_FALSE(s.Faixa.visivel);
    Selecionar(1, 1);
    mnuEditarColarItem(s);
    EXPECT_TRUE(ui.mensagens.empty());
    EXPECT_EQ(Textos(1), (QStringList{"1.1"}));
}
