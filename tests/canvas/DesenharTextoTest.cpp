#include "ApoioCanvas.h"
#include "canvas/DesenharTexto.h"
#include "output/Macros.h"

#include <QFontInfo>
#include <QPainter>
#include <array>
#include <gtest/gtest.h>

using namespace lumeta;
using namespace lumeta::teste;

namespace {

FonteItem Fonte(const char *nome = "Arial", int tamanho = 10)
{
    FonteItem f;
    f.Nome = QString::fromLatin1(nome);
    f.Tamanho = int16_t(tamanho);
    return f;
}

// The height of `texto` laid out in Arial 10, and the width its words cover.
int Medir(const QString &texto, double largura, OpcoesTexto op = {}, double altura = 100, int *extensao = nullptr,
          const FonteItem &f = Fonte())
{
    FontesCanvas fontes;
    QRect e;
    const int h = DesenharTexto(nullptr, fontes, f, QColor(), texto, 0, 0, largura, altura, op, true, &e);
    if (extensao)
        *extensao = e.width();
    return h;
}

int Largura(const char *texto, const FonteItem &f = Fonte())
{
    int l = 0;
    Medir(QString::fromUtf8(texto), 500, {}, 50, &l, f);
    return l;
}

// Draws black text in (x, y, largura, altura) of a white 300 x 300 picture.
QImage Desenhar(const QString &texto, QRect r, OpcoesTexto op = {})
{
    QImage img(300, 300, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    FontesCanvas fontes;
    DesenharTexto(&p, fontes, Fonte(), Qt::black, texto, r.x(), r.y(), r.width(), r.height(), op, false);
    return img;
}

QRect Tinta(const QImage &img, QRect area = {}) { return CaixaTinta(img, TintaDe(Qt::black), area); }

}  // namespace

TEST(DesenharTexto, FontesDoWindowsUsamAsLiberationDeMesmasMetricas)
{
    FontesCanvas fontes;
    for (const auto &[windows, liberation] : {std::pair{"Arial", "Liberation Sans"}, std::pair{"Times New Roman", "Liberation Serif"},
                                              std::pair{"Courier New", "Liberation Mono"}})
        EXPECT_EQ(QFontInfo(fontes.Variante(Fonte(windows), 0, false).fonte).family(), QString::fromLatin1(liberation));

    // 10 points are a 13-pixel em at 15 twips per pixel; every automatic
    // height below rests on these numbers.
    EXPECT_EQ((std::array{PixelsFonte(10), PixelsFonte(8), PixelsFonte(12)}), (std::array{13, 11, 16}));
    // Arial 8; Liberation Mono at 7.8 pixels a character, like Courier New;
    // Times. Arial 10's height (15), space (4) and "Texto" regular (32) and
    // bold (35) show in the line heights and widths below.
    EXPECT_EQ((std::array{fontes.Variante(Fonte("Arial", 8), 0, false).altura,
                          fontes.Variante(Fonte("Courier New"), 0, false).Largura(QStringLiteral("Texto")),
                          fontes.Variante(Fonte("Times New Roman"), 0, false).altura}),
              (std::array{12, 39, 15}));
    // The rotated font is the medium weight unless bold.
    EXPECT_EQ(std::pair(fontes.Variante(Fonte(), 0, true).fonte.weight(), fontes.Variante(Fonte(), EstiloNegrito, true).fonte.weight()),
              std::pair(QFont::Medium, QFont::Bold));
    EXPECT_FALSE(FonteValida(Fonte("Arial", 0)) || FonteValida(Fonte("", 10)));
}

TEST(DesenharTexto, LinhasEnchemAteOComprimentoContandoOEspacoDepoisDeCadaPalavra)
{
    // "Texto" is 32 pixels and a space 4: the line "Texto Texto" counts 72,
    // and a word joins while line + space + word fits. A word longer than the
    // line still takes a line of its own; consecutive spaces are empty words
    // that take a space each; leading spaces indent the first line, so it
    // fills sooner; tags do not count as text, but bold words are wider.
    const struct { const char *texto; double largura; int altura; } casos[] = {
        {"Texto Texto Texto", 108, 15}, {"Texto Texto Texto", 107, 30}, {"Texto Texto Texto", 72, 30},
        {"Texto Texto Texto", 71, 45},  {"Texto Texto Texto", 5, 45},   {"Texto Texto", 72, 15},
        {"Texto  Texto", 72, 30},       {"Texto{e}Texto", 500, 30},     {"Texto {E} Texto", 500, 30},
        {"Texto{e}{e}Texto", 500, 45},  {"Texto\r\nTexto", 500, 30},    {"{e}Texto", 500, 30},
        {"Texto{e}", 500, 15},          {"   ", 500, 0},                {" Texto Texto", 72, 30},
        {"{i}Texto{/i} Texto", 72, 15}, {"{n}Texto{/n} Texto", 72, 30}};
    for (const auto &c : casos)
        EXPECT_EQ(Medir(QString::fromLatin1(c.texto), c.largura), c.altura) << c.texto << " in " << c.largura;
    // A single line whatever the text.
    EXPECT_EQ(Medir(QStringLiteral("Texto Texto Texto"), 5, {.umaLinha = true}), 15);
    EXPECT_EQ(Medir(QStringLiteral("Texto{e}Texto{e}Texto"), 500, {.umaLinha = true}), 15);
}

TEST(DesenharTexto, EstilosPorPalavra)
{
    EXPECT_EQ(Largura("Texto Texto"), 68);
    EXPECT_EQ(Largura("{n}Texto{/n} Texto"), 71);
    EXPECT_EQ(Largura("Texto {n}Texto"), 71);
    EXPECT_EQ(Largura("{N}Texto Texto"), 74);        // on until closed, any letter case
    EXPECT_EQ(Largura("{n}Texto Texto{/n}"), 74);    // the closing word is still bold
    EXPECT_EQ(Largura("{i}{n}Texto{/n}{/i} Texto"), Largura("{n}{i}Texto{/i}{/n} Texto"));

    // A bold item's font starts bold, and a closing tag turns it off.
    FonteItem negrito = Fonte();
    negrito.Negrito = true;
    EXPECT_EQ(Largura("Texto{/n} Texto", negrito), 71);
    // Bold ink is heavier than regular ink of the same word.
    const auto tinta = [](const char *t) { return ContarPixels(Desenhar(QString::fromLatin1(t), QRect(10, 10, 200, 20)), QRect(0, 0, 300, 300), qRgb(0, 0, 0)); };
    EXPECT_GT(tinta("{n}Texto"), tinta("Texto"));
}

TEST(DesenharTexto, PosicaoHorizontalEVerticalDasLinhas)
{
    const QRect r(20, 20, 100, 45);
    const QRect esquerda = Tinta(Desenhar(QStringLiteral("Texto"), r));
    EXPECT_LE(std::abs(esquerda.left() - 20), 1);
    EXPECT_LE(esquerda.top(), 20 + 4);
    const auto desvio = [&](const char *texto, OpcoesTexto op) {
        const QRect t = Tinta(Desenhar(QString::fromLatin1(texto), r, op));
        return QPoint(t.left() - esquerda.left(), t.top() - esquerda.top());
    };
    // Centred: (100 - 36) / 2 + 4 / 2 = 34 from x, the word spans 54 .. 86.
    EXPECT_EQ(desvio("Texto", {.centralizar = true}), QPoint(34, 0));
    // Right: 100 - 36 + 4 - 1 = 67 from x, the word ends at the last column.
    EXPECT_EQ(desvio("Texto", {.direita = true}), QPoint(67, 0));
    EXPECT_LE(Tinta(Desenhar(QStringLiteral("Texto"), r, {.direita = true})).right(), 20 + 99);
    // Three leading spaces indent by three spaces.
    EXPECT_EQ(desvio("   Texto", {}), QPoint(12, 0));
    // Vertical placement only applies to a single line: (45 - 15) / 2 and 45 - 15 - 1.
    EXPECT_EQ(desvio("Texto", {.umaLinha = true, .centroVertical = true}), QPoint(0, 15));
    EXPECT_EQ(desvio("Texto", {.umaLinha = true, .base = true}), QPoint(0, 29));
    EXPECT_EQ(desvio("Texto", {.base = true}), QPoint(0, 0));
}

TEST(DesenharTexto, JustificarComARegraDosTresQuartos)
{
    const OpcoesTexto j{.justificar = true};
    // Justified spaces are 3 pixels; four words take 4 x 35 = 140.
    const QString quatro = QStringLiteral("Texto Texto Texto Texto");
    // 140 > 0.75 x 150: even the last line reaches the right edge.
    QRect t = Tinta(Desenhar(quatro, QRect(10, 10, 150, 40), j));
    EXPECT_GE(t.right(), 10 + 147);
    EXPECT_LE(t.right(), 10 + 150);
    // 140 < 0.75 x 190: the last line keeps its narrow spaces (3 x 35 + 32 = 137).
    t = Tinta(Desenhar(quatro, QRect(10, 10, 190, 40), j));
    EXPECT_LE(t.right(), 10 + 137);
    EXPECT_GE(t.right(), 10 + 134);

    // A paragraph: the first line is spread to the edge, the short last line is not.
    const QImage p = Desenhar(quatro + QStringLiteral(" Texto"), QRect(10, 10, 150, 60), j);
    const QRect linha2 = Tinta(p, QRect(0, 25, 300, 15));
    EXPECT_GE(Tinta(p, QRect(0, 10, 300, 15)).right(), 10 + 147);
    EXPECT_LE(linha2.right(), 10 + 32);
    EXPECT_LE(linha2.left(), 11);
}

TEST(DesenharTexto, RecorteNoRetanguloComBordasDireitaEInferiorExclusivas)
{
    const QString longa = QStringLiteral("WWWWWWWWWW");
    const QRect r(50, 50, 40, 20);
    const QRect t = Tinta(Desenhar(longa, r));
    EXPECT_GE(t.left(), 50);
    EXPECT_LE(t.right(), 50 + 38);  // column x + width - 1 is outside
    EXPECT_GE(t.right(), 50 + 36);
    EXPECT_GT(Tinta(Desenhar(longa, r, {.recortar = false})).right(), 50 + 100);

    // A second line below a 20-pixel rectangle is cut at its bottom.
    EXPECT_LE(Tinta(Desenhar(QStringLiteral("Texto Texto"), r)).bottom(), 50 + 18);
    EXPECT_GT(Tinta(Desenhar(QStringLiteral("Texto Texto"), r, {.recortar = false})).bottom(), 75);
}

TEST(DesenharTexto, RotacoesPartemDosPontosIniciais)
{
    // A 60 x 60 rectangle at (100, 100); "Texto" is 32 long and 15 high.
    // 90: from (dy - 1, H - dx - 3) = (99, 157) upwards, glyph tops to the left.
    // 180: from (W - dx - 1, H - dy - 2) = (159, 158) leftwards, upside down.
    // 270: from (W - dy, dx + 2) = (160, 102) downwards.
    const QRect r(100, 100, 60, 60);
    for (const auto &[angulo, esperado] : {std::pair{0, QRect(100, 100, 32, 15)}, std::pair{90, QRect(99, 157 - 32, 15, 32)},
                                           std::pair{180, QRect(159 - 32, 158 - 15, 32, 15)},
                                           std::pair{270, QRect(160 - 15, 102, 15, 32)}}) {
        const QRect t = Tinta(Desenhar(QStringLiteral("Texto"), r, {.recortar = false, .angulo = angulo}));
        EXPECT_TRUE(!t.isEmpty() && esperado.adjusted(-1, -1, 1, 1).contains(t) && (t.height() > t.width()) == (angulo % 180 != 0))
            << angulo << ": " << t.x() << "," << t.y() << " " << t.width() << "x" << t.height();
    }

    // 90 and 270 wrap at the rectangle's height less 5: 75 fits two words.
    const QString duas = QStringLiteral("Texto Texto");
    EXPECT_EQ(Medir(duas, 10, {.angulo = 90}, 77), 15);
    EXPECT_EQ(Medir(duas, 10, {.angulo = 90}, 76), 30);
    EXPECT_EQ(Medir(duas, 72, {.angulo = 180}, 10), 15);
    // Lines of a turned text stack across it: the second line of 90 is to the right.
    const QRect t = Tinta(Desenhar(duas, r, {.recortar = false, .angulo = 90}));
    EXPECT_GE(t.width(), 20);  // two 15-pixel lines side by side
    EXPECT_LE(t.height(), 34);
}
