#include "canvas/Cores.h"
#include "canvas/Unidades.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(Unidades, TabelaDasQuatroUnidadesEUmCodigoDesconhecido)
{
    const Unidade px = UnidadeDe(3), pol = UnidadeDe(5), mm = UnidadeDe(6), cm = UnidadeDe(7);
    EXPECT_EQ(px.rotulo, QStringLiteral("px"));
    EXPECT_EQ(pol.rotulo, QStringLiteral("pol"));
    EXPECT_EQ(mm.rotulo, QStringLiteral("mm"));
    EXPECT_EQ(cm.rotulo, QStringLiteral("cm"));
    EXPECT_EQ(px.fator, 1.0);
    EXPECT_EQ(pol.fator, 96.0);
    EXPECT_EQ(mm.fator, 3.7795275);  // the decimal constant, not 96 / 25.4
    EXPECT_EQ(cm.fator, 37.795275);
    EXPECT_EQ((std::array{px.decimais, pol.decimais, mm.decimais, cm.decimais}), (std::array{0, 5, 2, 3}));
    EXPECT_EQ((std::array{px.digitosInteiros, pol.digitosInteiros, mm.digitosInteiros, cm.digitosInteiros}),
              (std::array{4, 3, 3, 2}));

    // Any other code measures in pixels but the label stays as it was.
    const Unidade outra = UnidadeDe(1, QStringLiteral("mm"));
    EXPECT_EQ(outra.rotulo, QStringLiteral("mm"));
    EXPECT_EQ(outra.fator, 1.0);
    EXPECT_EQ(outra.decimais, 0);
    EXPECT_EQ(outra.digitosInteiros, 4);
}

TEST(Unidades, ConversaoArredondaMetadesParaOPar)
{
    EXPECT_EQ(UnidadeParaPixels(10, UnidadeDe(6)), 38);    // 37.795
    EXPECT_EQ(UnidadeParaPixels(2.5, UnidadeDe(7)), 94);   // 94.488
    EXPECT_EQ(UnidadeParaPixels(2.5, UnidadeDe(3)), 2);
    EXPECT_EQ(UnidadeParaPixels(3.5, UnidadeDe(3)), 4);
    EXPECT_EQ(UnidadeParaPixels(-2.5, UnidadeDe(3)), -2);
    EXPECT_EQ(UnidadeParaPixels(0.5, UnidadeDe(5)), 48);
    EXPECT_EQ(UnidadeParaPixels(1e12, UnidadeDe(3)), 2147483647);
    EXPECT_EQ(UnidadeParaPixels(-1e12, UnidadeDe(3)), -2147483647 - 1);

    EXPECT_DOUBLE_EQ(PixelsParaUnidade(96, UnidadeDe(5)), 1.0);
    EXPECT_DOUBLE_EQ(PixelsParaUnidade(38, UnidadeDe(6)), 38 / 3.7795275);
    // What the field shows and what it stores again round-trips every height.
    for (int u : {3, 5, 6, 7})
        for (int32_t px : {1, 18, 37, 999, 32767})
            EXPECT_EQ(UnidadeParaPixels(ArredondarCampo(PixelsParaUnidade(px, UnidadeDe(u)), UnidadeDe(u)), UnidadeDe(u)),
                      px)
                << u << " " << px;
}

TEST(Unidades, FormatoDosCamposNumericos)
{
    EXPECT_EQ(TextoFormatoNumero(6, 2), QStringLiteral("6,2"));
    EXPECT_EQ(TextoFormatoNumero(3, 5), QStringLiteral("3,5"));
    EXPECT_EQ(TextoFormatoNumero(4, 0), QStringLiteral("4,0"));
    EXPECT_DOUBLE_EQ(FormatoNumero(6, 2), 6.2);

    const FormatosCampos mm = FormatosDaUnidade(UnidadeDe(6));
    EXPECT_DOUBLE_EQ(mm.numTop, 6.2);
    EXPECT_DOUBLE_EQ(mm.numLeft, 6.2);
    EXPECT_DOUBLE_EQ(mm.numWidth, 3.2);
    EXPECT_DOUBLE_EQ(mm.numHeight, 3.2);
    EXPECT_DOUBLE_EQ(mm.numDeslocamento, 3.2);
    const FormatosCampos px = FormatosDaUnidade(UnidadeDe(3));
    EXPECT_DOUBLE_EQ(px.numTop, 6.0);
    EXPECT_DOUBLE_EQ(px.numWidth, 4.0);
    EXPECT_DOUBLE_EQ(FormatosDaUnidade(UnidadeDe(5)).numHeight, 3.5);
    EXPECT_DOUBLE_EQ(FormatosDaUnidade(UnidadeDe(7)).numDeslocamento, 2.3);
}

TEST(Cores, NumerosBasicosPaletaExtendidaESobreposicao)
{
    EXPECT_EQ(NovaCor(0), 0x000000);
    EXPECT_EQ(NovaCor(1), 0x800000);
    EXPECT_EQ(NovaCor(7), 0xC0C0C0);
    EXPECT_EQ(NovaCor(11), 0xFFFF00);
    EXPECT_EQ(NovaCor(12), 0x0000FF);
    EXPECT_EQ(NovaCor(15), 0xFFFFFF);
    EXPECT_EQ(NovaCor(16), 0xF8F8F8);
    EXPECT_EQ(NovaCor(17), 0xE7E7FF);
    EXPECT_EQ(NovaCor(16 + 8 * 4 + 5), 0xDEE708);
    EXPECT_EQ(NovaCor(79), 0x420042);
    EXPECT_EQ(NovaCor(99), 0);
    EXPECT_EQ(NovaCor(80), 0);
    EXPECT_EQ(NovaCor(-1), 0);
    EXPECT_EQ(NovaCor(99, 0x123456), 0x123456);
    EXPECT_EQ(NovaCor(5, 0), 0);
    EXPECT_EQ(CarregarPaletaExtendida().size(), 64u);

    // Colour numbers are 0x00BBGGRR: basic 12 is light red, 11 light cyan.
    EXPECT_EQ(CorQt(NovaCor(12)), QColor(255, 0, 0));
    EXPECT_EQ(CorQt(NovaCor(11)), QColor(0, 255, 255));
    EXPECT_EQ(CorQt(NovaCor(10)), QColor(0, 255, 0));
    EXPECT_EQ(CorQt(NovaCor(9)), QColor(0, 0, 255));
    EXPECT_EQ(CorQt(1 + 256 * 2 + 65536 * 3), QColor(1, 2, 3));
}
