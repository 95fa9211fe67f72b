// Page geometry, the canvas size, scrolling to the selection, measuring units
// and colour numbers.
#include "canvas/Cores.h"
#include "canvas/Geometria.h"
#include "canvas/Unidades.h"

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

using namespace lumeta;

// Growth as a repaint drives it, and the fallback when memory runs out, the
// painter's test shows; here, the edges of the rules.
TEST(Geometria, TamanhoInicialECrescimento)
{
    CanvasPagina c;
    c.TamanhoInicial(800);
    EXPECT_TRUE(c.TamanhoTotal);
    EXPECT_EQ(c.Tamanho, QSize(1120, 1120));  // a narrow screen still gives 1120
    c.TamanhoInicial(1920);
    EXPECT_EQ(c.Tamanho, QSize(1920, 1120));

    c.TamanhoInicial(1000);
    LayoutDocumento doc;
    Banda b;
    b.Itens = {Item{}, Item{}};
    b.Itens[1].Esquerda = 64;
    b.Itens[1].Largura = 1000;  // right edge 1064
    doc.Bandas = {b};
    EXPECT_TRUE(c.CrescerLargura(doc));
    EXPECT_FALSE(c.CrescerLargura(doc));  // never shrinks, never grows twice
    doc.Bandas[0].Itens[1].Largura = 900;
    EXPECT_FALSE(c.CrescerLargura(doc));
    EXPECT_EQ(c.Tamanho.width(), 1192);   // 1064 + 128
    EXPECT_FALSE(c.CrescerAltura(1056));  // 1120 - 64 is still inside
    EXPECT_TRUE(c.CrescerAltura(1057));
}

TEST(Geometria, RetanguloLimitadoNasPontasDoIntervalo)
{
    constexpr qint64 Max = std::numeric_limits<int>::max(), Min = std::numeric_limits<int>::min();
    // Ordinary rectangles show in every painted pixel.
    const struct { qint64 x, largura; int esquerda, direita; } casos[] = {
        {Max - 1, 120, int(Max - 1), int(Max)},
        {Min, 0, int(Min + 1), int(Min)},
        {Min + 1, 3 * Max, int(Min + 1), -1},  // width stopped at 2^31 - 1
        {0, -Max * 4, 0, int(Min)},
        {5, -3, 5, 1},                   // negative sizes stay negative
    };
    for (const auto &c : casos) {
        const QRect r = RetanguloLimitado(c.x, c.x, c.largura, c.largura);
        EXPECT_EQ(std::pair(r.left(), r.right()), std::pair(c.esquerda, c.direita)) << c.x << " " << c.largura;
        EXPECT_EQ(std::pair(r.top(), r.bottom()), std::pair(c.esquerda, c.direita));
    }
}

TEST(Geometria, RolarParaMostrarOItemSelecionado)
{
    Banda b;
    b.Itens = {Item{}, Item{}};
    b.Itens[1].Largura = 600;
    LayoutDocumento doc;
    doc.Bandas = QList<Banda>(100, b);
    doc.ReposicionarTudo();
    const QSize vp(400, 300);
    const QPoint max(1000, 1500);
    // Band 50 runs from 16 + 49 * 18 = 898 to 916.
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(0, 0), vp, max), QPoint(0, 916 - 300 + 8));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(0, 1000), vp, max), QPoint(0, 898 - 8));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(0, 700), vp, max), QPoint(0, 700));
    // Item 2 runs from 64 to 664.
    EXPECT_EQ(RolarParaSelecao(doc, 50, 2, QPoint(0, 700), vp, max), QPoint(664 - 400 + 16, 700));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(100, 700), vp, max), QPoint(0, 700));
    // Limited to the scroll bars' range; nothing without a selected item.
    EXPECT_EQ(RolarParaSelecao(doc, 100, 1, QPoint(0, 0), vp, QPoint(0, 200)), QPoint(0, 200));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 0, QPoint(3, 4), vp, max), QPoint(3, 4));
    EXPECT_EQ(MaximoRolagem(QSize(1120, 2000), QSize(1200, 900)), QPoint(0, 1100));
}

TEST(Unidades, TabelaConversaoEFormatoDosCampos)
{
    // The mm and cm factors are the decimal constants, not 96 / 25.4. Any
    // other code measures in pixels but the label stays as it was.
    const auto campos = [](const Unidade &u) { return std::tuple(u.rotulo, u.fator, u.decimais, u.digitosInteiros); };
    EXPECT_EQ(campos(UnidadeDe(3)), std::tuple(QStringLiteral("px"), 1.0, 0, 4));
    EXPECT_EQ(campos(UnidadeDe(5)), std::tuple(QStringLiteral("pol"), 96.0, 5, 3));
    EXPECT_EQ(campos(UnidadeDe(6)), std::tuple(QStringLiteral("mm"), 3.7795275, 2, 3));
    EXPECT_EQ(campos(UnidadeDe(7)), std::tuple(QStringLiteral("cm"), 37.795275, 3, 2));
    EXPECT_EQ(campos(UnidadeDe(1, QStringLiteral("mm"))), std::tuple(QStringLiteral("mm"), 1.0, 0, 4));

    // Halves round to even; beyond the range, the ends of int32.
    const std::pair<double, int32_t> casos[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {1e12, 2147483647}, {-1e12, -2147483647 - 1}};
    for (const auto &[valor, pixels] : casos)
        EXPECT_EQ(UnidadeParaPixels(valor, UnidadeDe(3)), pixels) << valor;
    // What the field shows and what it stores again round-trips every height,
    // which holds only if each way uses the unit's factor the right way up.
    for (int u : {3, 5, 6, 7})
        for (int32_t px : {1, 18, 37, 999, 32767})
            EXPECT_EQ(UnidadeParaPixels(ArredondarCampo(PixelsParaUnidade(px, UnidadeDe(u)), UnidadeDe(u)), UnidadeDe(u)), px)
                << u << " " << px;

    const FormatosCampos f = FormatosDaUnidade(UnidadeDe(6));
    EXPECT_EQ((std::array{f.numTop, f.numLeft, f.numWidth, f.numHeight, f.numDeslocamento}), (std::array{6.2, 6.2, 3.2, 3.2, 3.2}));
}

TEST(Cores, NumerosBasicosPaletaExtendidaESobreposicao)
{
    // Colour numbers are 0x00BBGGRR: basic 12 is light red, 11 light cyan.
    const std::pair<int, int> cores[] = {{0, 0x000000}, {12, 0x0000FF},
                                         {15, 0xFFFFFF}, {16, 0xF8F8F8}, {16 + 8 * 4 + 5, 0xDEE708},
                                         {79, 0x420042}, {99, 0}, {80, 0}, {-1, 0}};
    for (const auto &[numero, cor] : cores)
        EXPECT_EQ(NovaCor(numero), cor) << numero;
    // A macro's colour wins, even black; what these numbers paint, the
    // channel order and a macro over any number, the painter's pixels show.
    EXPECT_EQ(NovaCor(5, 0), 0);
}
