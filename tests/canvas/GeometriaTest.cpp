// Page geometry, the canvas size, scrolling to the selection, measuring units
// and colour numbers.
#include "canvas/Cores.h"
#include "canvas/Geometria.h"
#include "canvas/Unidades.h"

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

using namespace lumeta;

TEST(Geometria, MarcadorDaPaginaNasDuasOrientacoes)
{
    const auto campos = [](const MarcadorPagina &m) { return std::tuple(m.x, m.y, m.cor, m.rotulo); };
    EXPECT_EQ(campos(MarcadorDaPagina(false)), std::tuple(776, 1043, 11, QStringLiteral("A4 (Retrato)")));
    EXPECT_EQ(campos(MarcadorDaPagina(true)), std::tuple(1035, 784, 10, QStringLiteral("A4 (Paisagem)")));
}

TEST(Geometria, TamanhoInicialCrescimentoEMemoria)
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
    EXPECT_EQ(c.Tamanho.width(), 1192);   // 1064 + 128
    EXPECT_FALSE(c.CrescerLargura(doc));  // never shrinks, never grows twice
    doc.Bandas[0].Itens[1].Largura = 900;
    EXPECT_FALSE(c.CrescerLargura(doc));
    EXPECT_EQ(c.Tamanho.width(), 1192);
    EXPECT_FALSE(c.CrescerAltura(1056));  // 1120 - 64 is still inside
    EXPECT_TRUE(c.CrescerAltura(1057));
    EXPECT_EQ(c.Tamanho.height(), 1057 + 384);

    // Too large for memory: 2016 x 2016, and no more growing.
    c.LimiteMemoria = 3000LL * 3000 * 4;
    c.Tamanho = QSize(1120, 9000);
    EXPECT_FALSE(c.VerificarMemoria());
    doc.Bandas[0].Itens[1].Largura = 5000;
    EXPECT_TRUE(c.VerificarMemoria() && !c.CrescerAltura(5000) && !c.CrescerLargura(doc) && c.Tamanho == QSize(2016, 2016));

    // The window's canvas is painted only where it shows: any size passes.
    CanvasPagina janela(true);
    janela.LimiteMemoria = 1;
    janela.TamanhoInicial(1120);
    janela.Tamanho = QSize(1120, 2000000000);
    EXPECT_TRUE(janela.VerificarMemoria());
    EXPECT_TRUE(janela.TamanhoTotal);
}

TEST(Geometria, RetanguloLimitadoNasPontasDoIntervalo)
{
    constexpr qint64 Max = std::numeric_limits<int>::max(), Min = std::numeric_limits<int>::min();
    struct Caso {
        qint64 x, largura;
        int esquerda, direita;
    } casos[] = {
        {10, 5, 10, 14},                 // an ordinary rectangle as QRect has it
        {Max - 1, 120, int(Max - 1), int(Max)},
        {Min, 0, int(Min + 1), int(Min)},
        {Min + 1, 3 * Max, int(Min + 1), -1},  // width stopped at 2^31 - 1
        {0, -Max * 4, 0, int(Min)},
        {5, -3, 5, 1},                   // negative sizes stay negative
    };
    for (const Caso &c : casos) {
        const QRect r = RetanguloLimitado(c.x, c.x, c.largura, c.largura);
        EXPECT_EQ(std::pair(r.left(), r.right()), std::pair(c.esquerda, c.direita)) << c.x << " " << c.largura;
        EXPECT_EQ(std::pair(r.top(), r.bottom()), std::pair(c.esquerda, c.direita));
    }
}

TEST(Geometria, RolarParaMostrarOItemSelecionado)
{
    LayoutDocumento doc;
    for (int i = 0; i < 100; ++i) {
        Banda b;
        b.Itens = {Item{}, Item{}};
        b.Itens[1].Largura = 600;
        doc.Bandas.append(b);
    }
    for (int i = 1; i <= 100; ++i)
        doc.ReposicionarItem(i);
    doc.ReposicionarBanda();
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
    EXPECT_EQ(RolarParaSelecao(doc, 1, 1, QPoint(0, 50), vp, max), QPoint(0, 8));
    EXPECT_EQ(RolarParaSelecao(doc, 1, 1, QPoint(0, 5), vp, max), QPoint(0, 5));
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
    const std::tuple<double, int, int32_t> casos[] = {{10, 6, 38}, {2.5, 7, 94}, {2.5, 3, 2}, {3.5, 3, 4}, {-2.5, 3, -2},
                                                      {0.5, 5, 48}, {1e12, 3, 2147483647}, {-1e12, 3, -2147483647 - 1}};
    for (const auto &[valor, unidade, pixels] : casos)
        EXPECT_EQ(UnidadeParaPixels(valor, UnidadeDe(unidade)), pixels) << valor << " " << unidade;
    EXPECT_DOUBLE_EQ(PixelsParaUnidade(96, UnidadeDe(5)), 1.0);
    EXPECT_DOUBLE_EQ(PixelsParaUnidade(38, UnidadeDe(6)), 38 / 3.7795275);
    // What the field shows and what it stores again round-trips every height.
    for (int u : {3, 5, 6, 7})
        for (int32_t px : {1, 18, 37, 999, 32767})
            EXPECT_EQ(UnidadeParaPixels(ArredondarCampo(PixelsParaUnidade(px, UnidadeDe(u)), UnidadeDe(u)), UnidadeDe(u)), px)
                << u << " " << px;

    EXPECT_EQ(TextoFormatoNumero(6, 2), QStringLiteral("6,2"));
    EXPECT_DOUBLE_EQ(FormatoNumero(6, 2), 6.2);
    const auto formatos = [](int u) {
        const FormatosCampos f = FormatosDaUnidade(UnidadeDe(u));
        return std::array{f.numTop, f.numLeft, f.numWidth, f.numHeight, f.numDeslocamento};
    };
    EXPECT_EQ(formatos(6), (std::array{6.2, 6.2, 3.2, 3.2, 3.2}));
}

TEST(Cores, NumerosBasicosPaletaExtendidaESobreposicao)
{
    // Colour numbers are 0x00BBGGRR: basic 12 is light red, 11 light cyan.
    const std::pair<int, int> cores[] = {{0, 0x000000}, {12, 0x0000FF},
                                         {15, 0xFFFFFF}, {16, 0xF8F8F8}, {16 + 8 * 4 + 5, 0xDEE708},
                                         {79, 0x420042}, {99, 0}, {80, 0}, {-1, 0}};
    for (const auto &[numero, cor] : cores)
        EXPECT_EQ(NovaCor(numero), cor) << numero;
    EXPECT_EQ(NovaCor(99, 0x123456), 0x123456);
    EXPECT_EQ(NovaCor(5, 0), 0);
    // What these numbers paint, and the channel order of a macro's colour,
    // the painter's pixel tests show.
}
