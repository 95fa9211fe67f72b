// What the barcode dialog reads from and writes back to the items, and the
// samples of its preview, without the dialog.
#include "barcodes/ValoresCodigoBarras.h"

#include "editing/SessaoEdicao.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(ValoresCodigoBarras, CamposEConteudo)
{
    // A fixed value loses every quote; a field stays as typed.
    EXPECT_EQ(SepararConteudo(QStringLiteral("\"12\"3\"")).texto, QStringLiteral("123"));
    EXPECT_TRUE(SepararConteudo(QStringLiteral("\"123\"")).comando.isEmpty());
    EXPECT_EQ(SepararConteudo(QStringLiteral("CAMPO\"X")).comando, QStringLiteral("CAMPO\"X"));
    EXPECT_TRUE(SepararConteudo(QStringLiteral("CAMPO")).texto.isEmpty());

    QString texto;
    EXPECT_EQ(ConteudoDosCampos(TipoEAN13, texto, QString()), QStringLiteral("\"\""));
    texto = QStringLiteral("12,7");
    EXPECT_EQ(ConteudoDosCampos(TipoEAN13, texto, QString()), QStringLiteral("\"12,7\""));
    // A graph bar's height is a whole number, and the field shows it so.
    EXPECT_EQ(ConteudoDosCampos(TipoBarraGrafico, texto, QString()), QStringLiteral("\"12\""));
    EXPECT_EQ(texto, QStringLiteral("12"));
    texto = QStringLiteral("abc");
    EXPECT_EQ(ConteudoDosCampos(TipoBarraGrafico, texto, QString()), QStringLiteral("\"0\""));
    texto = QStringLiteral("-7.9x");
    EXPECT_EQ(ConteudoDosCampos(TipoBarraGrafico, texto, QStringLiteral("TOTAL")), QStringLiteral("TOTAL"));
    EXPECT_EQ(texto, QStringLiteral("-7.9x"));  // a field leaves the height alone
    EXPECT_EQ(AlturaBarraGrafico(QStringLiteral(" -7.9x")), -7);
}

TEST(ValoresCodigoBarras, AmostrasDaPrevia)
{
    EXPECT_EQ(CaracteresValidos(TipoCode39Check), QStringLiteral("0 até 9\nA até Z\n-. $/+%"));
    EXPECT_EQ(CaracteresValidos(TipoPDF417),
              QStringLiteral("0 até 9\nA até Z\n! \"#$%&'()*+,-./:\n;<=>?@[\\]^_`{|}~"));
    EXPECT_EQ(CaracteresValidos(TipoInterlace25SemNumeros), QStringLiteral("0 até 9"));
    EXPECT_EQ(AmostraCodigoBarras(TipoCode128B), QStringLiteral("123.456/Abc"));
    // Every barcode option draws a symbol; 40 bar rows and the digits below.
    for (uint8_t t : TiposDialogoCodigoBarras) {
        EXPECT_FALSE(LegendaTipoCodigoBarras(t).isEmpty());
        EXPECT_FALSE(PreviaCodigoBarras(t).isNull()) << int(t);
    }
    EXPECT_EQ(PreviaCodigoBarras(TipoCode128C).height(), 52);
    // The three sample bars: filled between their outlines, white between bars.
    const QImage g = PreviaCodigoBarras(TipoBarraGrafico);
    EXPECT_EQ(g.pixelColor(16, 30), QColor(0, 0, 128));
    EXPECT_EQ(g.pixelColor(6, 30), QColor(Qt::black));
    EXPECT_EQ(g.pixelColor(40, 10), QColor(Qt::white));   // the middle bar starts at y 24
    EXPECT_EQ(g.pixelColor(40, 30), QColor(0, 0, 128));
    EXPECT_EQ(g.pixelColor(28, 40), QColor(Qt::white));
}

TEST(ValoresCodigoBarras, AplicadoATodaAFaixa)
{
    SessaoEdicao s;
    s.NovoLMT();
    s.AddItem(1, false, 0);
    s.AddItem(1, false, 0);
    Item &primeiro = s.Documento.banda(1).Itens[0];
    primeiro.Atributos = QStringLiteral("0010109010");
    s.ItemSelecionado = 1;
    s.Faixa = {true, 1, 1, 1, 2};

    ValoresCodigoBarras v;
    v.Tipo = TipoBarraGrafico;
    v.BarraGrafico = true;
    v.Conteudo = QStringLiteral("\"25\"");
    AplicarCodigoBarras(s, v);
    // Bottom on, vertical centre off, angle kept without the justify bit.
    EXPECT_EQ(s.Documento.banda(1).Itens[0].Atributos, QStringLiteral("0001108010"));
    EXPECT_EQ(s.Documento.banda(1).Itens[1].Atributos, QStringLiteral("0001100010"));
    EXPECT_EQ(s.Documento.banda(1).Itens[1].Tipo, TipoBarraGrafico);
    EXPECT_EQ(s.Documento.banda(1).Itens[2].Tipo, TipoTexto);  // outside the range
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("LG00990000000064000110801025")));

    // Back to a symbol that follows the band: position 10 on, bottom off.
    s.Faixa = {};
    v = {TipoEAN13, QStringLiteral("CODIGO"), true, false};
    AplicarCodigoBarras(s, v);
    const Item &it = s.Documento.banda(1).Itens[0];
    EXPECT_EQ(it.Atributos, QStringLiteral("0000108011"));
    EXPECT_EQ(LerValoresCodigoBarras(s), v);
    // A field is shown with the sample value in the command text.
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("Ba0099000000006400001080111234567890")));
}
