// Module strings, check characters and painted pixels of the linear
// symbologies. The expected module strings are spelled out from the
// symbologies' published tables, not taken from the encoders.

#include "barcodes/CodigoBarras.h"
#include "barcodes/DesenhoBarras.h"
#include "barcodes/ModCode128.h"
#include "barcodes/ModCode39.h"
#include "barcodes/ModEAN13and8.h"
#include "canvas/ApoioCanvas.h"
#include "document/Layout.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

using namespace lumeta;

namespace {

bool Preto(const QImage &img, int x, int y) { return img.pixel(x, y) == qRgb(0, 0, 0); }
bool Branco(const QImage &img, int x, int y) { return img.pixel(x, y) == qRgb(255, 255, 255); }

// The column of module i is x0 + i; each "1" is black and each "0" white on
// every row from topo through topo + altura - 1.
void ConferirModulos(const QImage &img, const std::string &modulos, int x0, int topo, int altura)
{
    for (std::size_t i = 0; i < modulos.size(); ++i)
        for (int y = topo; y < topo + altura; ++y) {
            const int x = x0 + int(i);
            ASSERT_TRUE(modulos[i] == '1' ? Preto(img, x, y) : Branco(img, x, y)) << "module " << i << " at (" << x << ", " << y << ")";
        }
}

int PixelsPretos(const QImage &img, int x0, int y0, int x1, int y1)
{
    return teste::ContarPixels(img, QRect(QPoint(x0, y0), QPoint(x1, y1)), qRgb(0, 0, 0));
}

// Code 39 characters, wide elements 3 modules, plus the one-module gap.
const std::string k39Asterisco = "1000101110111010";
const std::string k39A = "1110101000101110";
const std::string k39B = "1011101000101110";
const std::string k39C = "1110111010001010";
const std::string k39X = "1000101110101110";  // nwnnwnnnw

}  // namespace

TEST(RotacionarPonto, QuatroAngulosEOutrosDeixamOPonto)
{
    // A symbol 10 wide and 4 high; the point (2, 1), and the far corner,
    // which stays inside the H x W picture.
    EXPECT_EQ((std::array{RotacionarPonto(2, 1, 10, 4, 0), RotacionarPonto(2, 1, 10, 4, 90), RotacionarPonto(2, 1, 10, 4, 180),
                          RotacionarPonto(2, 1, 10, 4, 270), RotacionarPonto(2, 1, 10, 4, 45), RotacionarPonto(9, 3, 10, 4, 270)}),
              (std::array{QPoint(2, 1), QPoint(1, 7), QPoint(7, 2), QPoint(2, 2), QPoint(2, 1), QPoint(0, 9)}));
}

// Cleaning, check characters and every table entry are read back by an
// independent decoder (DecodificacaoTest); decoders tolerate element widths,
// so the exact modules of one value a symbology are pinned where they are
// painted, below.
TEST(CodigoBarras, LimpezaQueODecodificadorNaoMostra)
{
    EXPECT_EQ(LimparValorCode39(QStringLiteral("é-1.$/+%ß")), QStringLiteral(" -1.$/+% "));
    EXPECT_EQ(LimparValorCode39(QStringLiteral("zıſ")), QStringLiteral("Z  "));
    // No digits: start C, check 105 mod 103 = 2, stop.
    EXPECT_EQ(ValoresCode128C(QString()), (QList<int>{105, 2}));
}

TEST(CodigoBarras, BarrasPintadasModuloAModulo)
{
    // Each module one pixel wide from column x0, every bar row from topo down.
    // EAN-13 of first digit 5: digits 2-7 in L G G L L G.
    const std::string m13 = std::string("101") + "0001011" + "0100111" + "0110011" + "0010011" + "0111101" + "0011101"
                            + "01010" + "1100110" + "1101100" + "1000010" + "1011100" + "1001110" + "1000100" + "101";
    // 01: bars of 0 (nnwwn) with spaces of 1 (wnnnw); 23; 45.
    const std::string m25 = std::string("1010") + "100010111011101000" + "100011100010101110" + "100010111000101110" + "11101";
    const struct { int tipo; const char *valor; bool texto; std::string modulos; int x0, topo; } casos[] = {
        {TipoCode39, "ab*c", true, k39Asterisco + k39A + k39B + k39C + k39Asterisco, 1, 0},
        // 10 + 11 + 12 = 33, X.
        {TipoCode39Check, "ABC", false, k39Asterisco + k39A + k39B + k39C + k39X + k39Asterisco, 1, 0},
        // Start C; 105 + 12 + 2 x 4 = 125; 125 mod 103 = 22.
        {TipoCode128C, "1204", true,
         std::string("11010011100") + "10110011100" + "10010001100" + "11001110100" + "1100011101011", 1, 0},
        // Start B, A = 33, b = 66; 104 + 33 + 2 x 66 = 269; 269 mod 103 = 63.
        {TipoCode128B, "Ab", false,
         std::string("11010010000") + "10100011000" + "10010000110" + "10100110000" + "1100011101011", 1, 0},
        {TipoEAN13, "590123412345", false, m13, 1, 0},
        {TipoEAN13, "590123412345", true, m13, 11, 0},
        {TipoEAN13, "", false, ModulosEAN13(QStringLiteral("000000000000")), 1, 0},
        {TipoEAN8, "1234567", true,
         std::string("101") + "0011001" + "0010011" + "0111101" + "0100011" + "01010" + "1001110" + "1010000" + "1000100"
             + "1110010" + "101", 11, 0},
        {TipoInterlace25, "12345", true, m25, 1, 0},
        {TipoInterlace25NumerosTopo, "12345", true, m25, 1, 12},  // the digits take the first rows
    };
    for (const auto &c : casos) {
        SCOPED_TRACE(std::to_string(c.tipo) + " " + c.valor);
        const QImage img = DesenharCodigoBarras(c.tipo, QString::fromUtf8(c.valor), 40, c.texto, 0);
        ConferirModulos(img, c.modulos, c.x0, c.topo, 40);
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                ASSERT_TRUE(Preto(img, x, y) || Branco(img, x, y)) << x << "," << y;
    }
}

TEST(CodigoBarras, DigitosEGuardasNoLugar)
{
    // Code 39: the digits below, centred on the symbol.
    QImage img = DesenharCodigoBarras(TipoCode39, QStringLiteral("ab*c"), 40, true, 0);
    const QRect digitos = teste::CaixaTinta(img, teste::Exata(qRgb(0, 0, 0)), QRect(0, 40, img.width(), 12));
    EXPECT_NEAR((digitos.left() + digitos.right()) / 2.0, 40.0, 2.5);
    EXPECT_EQ(PixelsPretos(DesenharCodigoBarras(TipoCode39, QString(), 30, true, 0), 0, 30, 32, 41), 0);

    // EAN: guard bars run down the whole picture; data bars stop at the bar
    // height and the rows below the digits are white. EAN-13's first digit
    // stands left of the symbol; EAN-8 has none outside its guards. Centre
    // and end: the first column of those guards.
    struct Ean { int tipo; const char *valor; std::array<int, 6> guardas; int centro, fim; };
    for (const Ean &e : {Ean{TipoEAN13, "590123412345", {11, 13, 57, 59, 103, 105}, 57, 103},
                         Ean{TipoEAN8, "1234567", {11, 13, 43, 45, 75, 77}, 43, 75}}) {
        img = DesenharCodigoBarras(e.tipo, QString::fromLatin1(e.valor), 40, true, 0);
        for (const int x : e.guardas)
            EXPECT_EQ(PixelsPretos(img, x, 40, x, 51), 12) << e.tipo << " " << x;
        EXPECT_EQ(PixelsPretos(img, 14, 49, e.centro - 1, 51), 0) << e.tipo;
        EXPECT_EQ(PixelsPretos(img, 0, 0, 10, 51) > 0, e.tipo == TipoEAN13);
        EXPECT_GT(PixelsPretos(img, 15, 40, e.centro - 2, 51), 0) << e.tipo;
        EXPECT_GT(PixelsPretos(img, e.centro + 4, 40, e.fim - 2, 51), 0) << e.tipo;
    }

    // Interleaved 2 of 5: digits below, or on top over a white first column.
    EXPECT_GT(PixelsPretos(DesenharCodigoBarras(TipoInterlace25, QStringLiteral("12345"), 40, true, 0), 0, 40, 63, 51), 0);
    img = DesenharCodigoBarras(TipoInterlace25NumerosTopo, QStringLiteral("12345"), 40, true, 0);
    EXPECT_GT(PixelsPretos(img, 0, 0, 63, 11), 0);
    EXPECT_EQ(PixelsPretos(img, 1, 0, 1, 11), 0);
}

TEST(CodigoBarras, TamanhosExatosPorTipoEAngulo)
{
    const struct { int tipo; const char *valor; QSize comTexto, semTexto; } casos[] = {
        {31, "590123412345", {106, 52}, {96, 40}}, {32, "1234567", {78, 52}, {68, 40}}, {33, "ABC", {97, 52}, {97, 40}},
        {34, "123", {59, 52}, {59, 40}},   {35, "12345", {64, 52}, {64, 40}}, {36, "ABC", {81, 52}, {81, 40}},
        {37, "12345", {64, 52}, {64, 52}},  // never digits: the bars take their rows
        {38, "12345", {64, 52}, {64, 40}}, {39, "Ab", {59, 52}, {59, 40}},     {35, "", {10, 52}, {10, 40}},
        {36, "", {33, 52}, {33, 40}},      {39, "", {37, 52}, {37, 40}},
    };
    // Turned sizes follow from the pixel-for-pixel rotation test below.
    for (const auto &c : casos)
        for (const bool texto : {true, false})
            EXPECT_EQ(DesenharCodigoBarras(c.tipo, QString::fromUtf8(c.valor), 40, texto, 0).size(), texto ? c.comTexto : c.semTexto)
                << c.tipo << " " << c.valor << " " << texto;
    EXPECT_TRUE(DesenharCodigoBarras(60, QStringLiteral("10"), 40, true, 0).isNull());
    EXPECT_TRUE(DesenharCodigoBarras(0, QStringLiteral("x"), 40, true, 0).isNull());
    EXPECT_TRUE(!EhCodigoBarras(30) && !EhCodigoBarras(60) && EhCodigoBarras(31) && EhCodigoBarras(39) && EhCodigoBarras(80));
    // A bar height below 1 still gives a drawable picture.
    EXPECT_EQ(DesenharCodigoBarras(36, QStringLiteral("A"), -5, false, 0).size(), QSize(49, 1));
}

TEST(CodigoBarras, GiroLevaCadaPixelPelaRegraDoPonto)
{
    // Bars and digits alike: the turned picture is the upright one seen from
    // another side, pixel for pixel.
    const std::pair<int, const char *> casos[] = {{31, "590123412345"}, {32, "1234567"}, {33, "ab*c"}, {34, "12a4"}, {35, "12345"},
                                                  {36, "a_b"}, {37, "12345"}, {38, "12345"}, {39, "Olá ~"}};
    for (const auto &[tipo, texto] : casos) {
        const QString valor = QString::fromUtf8(texto);
        const QImage reto = DesenharCodigoBarras(tipo, valor, 40, true, 0);
        const int w = reto.width(), h = reto.height();
        for (const int angulo : {90, 180, 270}) {
            const QImage girado = DesenharCodigoBarras(tipo, valor, 40, true, angulo);
            int diferentes = 0;
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    diferentes += reto.pixel(x, y) != girado.pixel(RotacionarPonto(x, y, w, h, angulo)) ? 1 : 0;
            EXPECT_EQ(diferentes, 0) << tipo << " at " << angulo;
        }
    }
}
