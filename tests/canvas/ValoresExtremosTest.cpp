// A file may carry any 32-bit width, height and displacement (hand-made or
// damaged): the editor lays it out, paints it and writes its text with the
// positions stopped at the ends of the range, never wrapped round. Run under
// the sanitizers, these cases are what catches an overflow.
#include "ApoioCanvas.h"
#include "document/ArquivoLMT.h"
#include "editing/SessaoEdicao.h"
#include "output/TextoComandos.h"
#include "support/ConfigTemporaria.h"
#include "support/TestSupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

using namespace lumeta;

namespace {

constexpr int32_t Max = std::numeric_limits<int32_t>::max();
constexpr int32_t Min = std::numeric_limits<int32_t>::min();

Banda BandaDe(int32_t altura, int32_t deslocamento, std::initializer_list<int32_t> larguras, uint8_t tipo = TipoTexto)
{
    Banda b;
    b.Altura = altura;
    b.Deslocamento = deslocamento;
    for (int32_t l : larguras)
        b.Itens.append(teste::NovoItem(tipo, QStringLiteral("\"12\""), 0, l));
    return b;
}

// The black pixels of the EAN-13 symbol's columns in one row.
QByteArray Linha(const QImage &img, int y)
{
    QByteArray r;
    for (int x = 8; x < 8 + 200; ++x)
        r.append(img.pixel(x, y) == qRgb(0, 0, 0) ? '#' : '.');
    return r;
}

}  // namespace

TEST(ValoresExtremos, PosicoesParamNosLimitesEOLayoutAbre)
{
    teste::ConfigTemporaria config;
    QTemporaryDir dir;
    LayoutDocumento doc;
    doc.Bandas = {BandaDe(Max, Max, {Max, Max, 5}), BandaDe(Min, Min, {Min, Min, 7}, TipoCode128B),
                  BandaDe(0, Max, {Max, -1}), BandaDe(Min + 1, 3, {9}, TipoFigura),
                  BandaDe(Max, Min, {Min + 1, Max}, TipoBarraGrafico), BandaDe(-5, Max, {Max}, TipoPDF417)};
    const QString caminho = dir.filePath(QStringLiteral("extremo.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(caminho, doc).ok);

    SessaoEdicao editor;
    ASSERT_EQ(editor.AbrirLMT(caminho), SessaoEdicao::ResultadoAbrir::Aberto);
    const LayoutDocumento &d = editor.Documento;
    EXPECT_EQ((std::array{d.banda(1).Itens[1].Esquerda, d.banda(1).Itens[2].Esquerda, d.banda(2).Itens[1].Esquerda,
                          d.banda(2).Itens[2].Esquerda}), (std::array{Max, Max, Min, Min}));
    EXPECT_EQ(d.banda(2).Topo, 16);   // pulled up to the band before it, no further
    EXPECT_EQ(d.banda(3).Topo, Max);  // pushed down as far as a position goes
    for (int b = 2; b <= d.NumBandas(); ++b)
        EXPECT_GE(d.banda(b).Topo, d.banda(b - 1).Topo) << b;
    EXPECT_FALSE(editor.TextoResultado.isEmpty());

    // Every band selected in turn goes through the edit cycle.
    for (int b = 1; b <= d.NumBandas(); ++b) {
        editor.BandaSelecionada = b;
        editor.ItemSelecionado = 1;
        editor.ConcluirEdicao();
    }
    EXPECT_EQ(RolarParaSelecao(d, 1, 2, QPoint(0, 0), QSize(800, 600), QPoint(5000, 5000)), QPoint(5000, 5000));
}

TEST(ValoresExtremos, BandaAltissimaPintadaSoNoQueSeVeSemAvisos)
{
    LayoutDocumento doc = teste::LayoutBandaAltissima();
    const qint64 fundo = 16 + qint64(1778384986);
    {
        teste::ContadorMensagensQt avisos;
        CanvasPagina canvas;
        canvas.TamanhoInicial(1000);
        RecursosCanvas recursos;
        // The fallback canvas, as the command line below shows it: the bars
        // run down the whole picture.
        ExibirBanda(doc, 1, canvas, recursos);
        EXPECT_EQ(Linha(canvas.Imagem, 20), Linha(canvas.Imagem, 2000));
        EXPECT_TRUE(Linha(canvas.Imagem, 2000).contains('#'));

        // A window on the band's far end shows the symbols' digits below
        // their bars, as a window scrolled there paints it.
        const QImage fim = teste::PintarJanela(doc, QRect(0, int(fundo - 150), 400, 200), recursos);
        EXPECT_EQ(Linha(fim, 0), Linha(canvas.Imagem, 2000));
        EXPECT_NE(Linha(fim, 144), Linha(fim, 0));
        EXPECT_TRUE(Linha(fim, 144).contains('#'));
        EXPECT_EQ(avisos.total(), 0);
    }

    // The command-line picture: the fallback canvas and one line of message.
    QTemporaryDir dir;
    const QString lmt = dir.filePath(QStringLiteral("alta.lmt")), png = dir.filePath(QStringLiteral("alta.png"));
    ASSERT_TRUE(GravarArquivoLMT(lmt, doc).ok);
    const teste::Execucao cli = teste::ExecutarCli({QStringLiteral("png"), lmt, png});
    EXPECT_EQ(cli.codigo, 0);
    EXPECT_EQ(cli.erros.trimmed(), MensagemMemoriaInsuficiente);
    EXPECT_EQ(QImage(png).size(), QSize(2016, 2016));
}
