// The barcode dialog's fields and the samples of its preview, without the
// dialog; what the dialog tests already show through it is left to them.
#include "barcodes/ValoresCodigoBarras.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(ValoresCodigoBarras, CamposEConteudo)
{
    // A fixed value loses every quote; a field stays as typed.
    EXPECT_EQ(SepararConteudo(QStringLiteral("\"12\"3\"")).texto, QStringLiteral("123"));
    EXPECT_EQ(SepararConteudo(QStringLiteral("CAMPO\"X")).comando, QStringLiteral("CAMPO\"X"));

    // A graph bar's height is a whole number, and the field shows it so; a
    // field leaves the height alone.
    const struct { uint8_t tipo; const char *texto, *comando, *conteudo, *depois; } casos[] = {
        {TipoEAN13, "12,7", "", "\"12,7\"", "12,7"}, {TipoBarraGrafico, "abc", "", "\"0\"", "0"},
        {TipoBarraGrafico, "-7.9x", "TOTAL", "TOTAL", "-7.9x"}};
    for (const auto &c : casos) {
        QString texto = QString::fromLatin1(c.texto);
        EXPECT_EQ(ConteudoDosCampos(c.tipo, texto, QString::fromLatin1(c.comando)), QString::fromLatin1(c.conteudo)) << c.texto;
        EXPECT_EQ(texto, QString::fromLatin1(c.depois)) << c.texto;
    }
    EXPECT_EQ(AlturaBarraGrafico(QStringLiteral(" -7.9x")), -7);
}

TEST(ValoresCodigoBarras, AmostrasDaPrevia)
{
    EXPECT_EQ(CaracteresValidos(TipoCode39Check), QStringLiteral("0 até 9\nA até Z\n-. $/+%"));
    EXPECT_EQ(CaracteresValidos(TipoPDF417),
              QStringLiteral("0 até 9\nA até Z\n! \"#$%&'()*+,-./:\n;<=>?@[\\]^_`{|}~"));
    EXPECT_EQ(AmostraCodigoBarras(TipoCode128B), QStringLiteral("123.456/Abc"));
    // Every barcode option draws a symbol; 40 bar rows and the digits below.
    for (uint8_t t : TiposDialogoCodigoBarras)
        EXPECT_FALSE(PreviaCodigoBarras(t).isNull()) << int(t);
    EXPECT_EQ(PreviaCodigoBarras(TipoCode128C).height(), 52);
    // The three sample bars: filled between their outlines, white between bars.
    const QImage g = PreviaCodigoBarras(TipoBarraGrafico);
    EXPECT_EQ(g.pixelColor(16, 30), QColor(0, 0, 128));
    EXPECT_EQ(g.pixelColor(6, 30), QColor(Qt::black));
    EXPECT_EQ(g.pixelColor(40, 10), QColor(Qt::white));   // the middle bar starts at y 24
    EXPECT_EQ(g.pixelColor(40, 30), QColor(0, 0, 128));
    EXPECT_EQ(g.pixelColor(28, 40), QColor(Qt::white));
}
