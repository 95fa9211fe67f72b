#include "ApoioCanvas.h"
#include "canvas/DesenharTexto.h"
#include "output/Macros.h"

#include <QFontInfo>
#include <QPainter>
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

int Medir(const QString &texto, double largura, OpcoesTexto op = {})
{
    FontesCanvas fontes;
    return DesenharTexto(nullptr, fontes, Fonte(), QColor(), texto, 0, 0, largura, 100, op, true);
}

// Draws black text in (x, y, largura, altura) of a white 300 x 300 picture.
QImage Desenhar(const QString &texto, QRect r, OpcoesTexto op = {}, const FonteItem &f = Fonte())
{
    QImage img(300, 300, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    FontesCanvas fontes;
    DesenharTexto(&p, fontes, f, Qt::black, texto, r.x(), r.y(), r.width(), r.height(), op, false);
    return img;
}

QRect Tinta(const QImage &img) { return CaixaTinta(img, TintaDe(Qt::black)); }

}  // namespace

TEST(DesenharTexto, FontesDoWindowsUsamAsLiberationDeMesmasMetricas)
{
    FontesCanvas fontes;
    EXPECT_EQ(QFontInfo(fontes.Variante(Fonte("Arial"), 0, false).fonte).family(), QStringLiteral("Liberation Sans"));
    EXPECT_EQ(QFontInfo(fontes.Variante(Fonte("Times New Roman"), 0, false).fonte).family(),
              QStringLiteral("Liberation Serif"));
    EXPECT_EQ(QFontInfo(fontes.Variante(Fonte("Courier New"), 0, false).fonte).family(),
              QStringLiteral("Liberation Mono"));

    // 10 points are a 13-pixel em at 15 twips per pixel; every automatic
    // height below rests on these numbers.
    EXPECT_EQ(PixelsFonte(10), 13);
    EXPECT_EQ(PixelsFonte(8), 11);
    EXPECT_EQ(PixelsFonte(12), 16);
    VarianteFonte &arial = fontes.Variante(Fonte("Arial"), 0, false);
    EXPECT_EQ(arial.altura, 15);
    EXPECT_EQ(arial.espaco, 4);
    EXPECT_EQ(arial.Largura(QStringLiteral("Texto")), 32);
    EXPECT_EQ(fontes.Variante(Fonte("Arial"), EstiloNegrito, false).Largura(QStringLiteral("Texto")), 35);
    EXPECT_EQ(fontes.Variante(Fonte("Arial", 8), 0, false).altura, 12);
    // Liberation Mono: 7.8 pixels a character at 13 pixels, like Courier New.
    EXPECT_EQ(fontes.Variante(Fonte("Courier New"), 0, false).Largura(QStringLiteral("Texto")), 39);
    EXPECT_EQ(fontes.Variante(Fonte("Times New Roman"), 0, false).altura, 15);
    // The rotated font is the medium weight unless bold.
    EXPECT_EQ(fontes.Variante(Fonte(), 0, true).fonte.weight(), QFont::Medium);
    EXPECT_EQ(fontes.Variante(Fonte(), EstiloNegrito, true).fonte.weight(), QFont::Bold);

    EXPECT_FALSE(FonteValida(Fonte("Arial", 0)));
    EXPECT_FALSE(FonteValida(Fonte("", 10)));
    EXPECT_TRUE(FonteValida(Fonte("Arial", 1)));
}

TEST(DesenharTexto, LinhasEnchemAteOComprimentoContandoOEspacoDepoisDeCadaPalavra)
{
    // "Texto" is 32 pixels and a space 4: the line "Texto Texto" counts 72,
    // and a word joins while line + space + word fits.
    const QString tres = QStringLiteral("Texto Texto Texto");
    EXPECT_EQ(Medir(tres, 108), 15);
    EXPECT_EQ(Medir(tres, 107), 30);
    EXPECT_EQ(Medir(tres, 72), 30);
    EXPECT_EQ(Medir(tres, 71), 45);
    // A word longer than the line still takes a line of its own.
    EXPECT_EQ(Medir(tres, 5), 45);
    // Consecutive spaces are empty words that take a space each.
    EXPECT_EQ(Medir(QStringLiteral("Texto Texto"), 72), 15);
    EXPECT_EQ(Medir(QStringLiteral("Texto  Texto"), 72), 30);

    OpcoesTexto uma;
    uma.umaLinha = true;
    EXPECT_EQ(Medir(tres, 5, uma), 15);
    EXPECT_EQ(Medir(QStringLiteral("Texto{e}Texto{e}Texto"), 500, uma), 15);

    EXPECT_EQ(Medir(QStringLiteral("Texto{e}Texto"), 500), 30);
    EXPECT_EQ(Medir(QStringLiteral("Texto {E} Texto"), 500), 30);
    EXPECT_EQ(Medir(QStringLiteral("Texto{e}{e}Texto"), 500), 45);
    EXPECT_EQ(Medir(QStringLiteral("Texto\r\nTexto"), 500), 30);
    EXPECT_EQ(Medir(QStringLiteral("{e}Texto"), 500), 30);
    EXPECT_EQ(Medir(QStringLiteral("Texto{e}"), 500), 15);
    EXPECT_EQ(Medir(QStringLiteral("   "), 500), 0);

    // Leading spaces indent the first line, so it fills sooner.
    EXPECT_EQ(Medir(QStringLiteral("Texto Texto"), 72), 15);
    EXPECT_EQ(Medir(QStringLiteral(" Texto Texto"), 72), 30);
    // Tags do not count as text, but bold words are wider.
    EXPECT_EQ(Medir(QStringLiteral("{i}Texto{/i} Texto"), 72), 15);
    EXPECT_EQ(Medir(QStringLiteral("{n}Texto{/n} Texto"), 72), 30);
}

TEST(DesenharTexto, EstilosPorPalavra)
{
    FontesCanvas fontes;
    auto largura = [&](const char *texto) {
        QRect e;
        DesenharTexto(nullptr, fontes, Fonte(), QColor(), QString::fromUtf8(texto), 0, 0, 500, 50, {}, true, &e);
        return e.width();
    };
    EXPECT_EQ(largura("Texto Texto"), 68);
    EXPECT_EQ(largura("{n}Texto{/n} Texto"), 71);
    EXPECT_EQ(largura("Texto {n}Texto"), 71);
    EXPECT_EQ(largura("{N}Texto Texto"), 74);        // on until closed, any letter case
    EXPECT_EQ(largura("{n}Texto Texto{/n}"), 74);    // the closing word is still bold
    EXPECT_EQ(largura("{i}{n}Texto{/n}{/i} Texto"), largura("{n}{i}Texto{/i}{/n} Texto"));

    // A bold item's font starts bold, and a closing tag turns it off.
    FonteItem negrito = Fonte();
    negrito.Negrito = true;
    QRect e;
    DesenharTexto(nullptr, fontes, negrito, QColor(), QStringLiteral("Texto{/n} Texto"), 0, 0, 500, 50, {}, true, &e);
    EXPECT_EQ(e.width(), 71);

    // Bold ink is heavier than regular ink of the same word.
    const QImage normal = Desenhar(QStringLiteral("Texto"), QRect(10, 10, 200, 20));
    const QImage forte = Desenhar(QStringLiteral("{n}Texto"), QRect(10, 10, 200, 20));
    EXPECT_GT(ContarPixels(forte, forte.rect(), qRgb(0, 0, 0)), ContarPixels(normal, normal.rect(), qRgb(0, 0, 0)));
}

TEST(DesenharTexto, PosicaoHorizontalEVerticalDasLinhas)
{
    const QRect r(20, 20, 100, 45);
    const QRect esquerda = Tinta(Desenhar(QStringLiteral("Texto"), r));
    ASSERT_FALSE(esquerda.isEmpty());
    EXPECT_LE(std::abs(esquerda.left() - 20), 1);
    EXPECT_LE(esquerda.top(), 20 + 4);

    OpcoesTexto centro;
    centro.centralizar = true;
    // (100 - 36) / 2 + 4 / 2 = 34 from x: the word spans 54 .. 86.
    const QRect c = Tinta(Desenhar(QStringLiteral("Texto"), r, centro));
    EXPECT_EQ(c.left() - esquerda.left(), 34);

    OpcoesTexto direita;
    direita.direita = true;
    // 100 - 36 + 4 - 1 = 67 from x: the word ends at the last column.
    const QRect d = Tinta(Desenhar(QStringLiteral("Texto"), r, direita));
    EXPECT_EQ(d.left() - esquerda.left(), 67);
    EXPECT_LE(d.right(), 20 + 99);

    // Three leading spaces indent by three spaces.
    const QRect recuo = Tinta(Desenhar(QStringLiteral("   Texto"), r));
    EXPECT_EQ(recuo.left() - esquerda.left(), 12);

    // Vertical placement only applies to a single line.
    OpcoesTexto meio;
    meio.umaLinha = true;
    meio.centroVertical = true;
    const QRect v = Tinta(Desenhar(QStringLiteral("Texto"), r, meio));
    EXPECT_EQ(v.top() - esquerda.top(), 15);  // (45 - 15) / 2
    OpcoesTexto base;
    base.umaLinha = true;
    base.base = true;
    const QRect b = Tinta(Desenhar(QStringLiteral("Texto"), r, base));
    EXPECT_EQ(b.top() - esquerda.top(), 29);  // 45 - 15 - 1
    base.umaLinha = false;
    EXPECT_EQ(Tinta(Desenhar(QStringLiteral("Texto"), r, base)).top(), esquerda.top());
}

TEST(DesenharTexto, JustificarComARegraDosTresQuartos)
{
    OpcoesTexto j;
    j.justificar = true;
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
    const QRect linha1 = CaixaTinta(p, TintaDe(Qt::black), QRect(0, 10, 300, 15));
    const QRect linha2 = CaixaTinta(p, TintaDe(Qt::black), QRect(0, 25, 300, 15));
    EXPECT_GE(linha1.right(), 10 + 147);
    EXPECT_LE(linha2.right(), 10 + 32);
    EXPECT_LE(linha2.left(), 11);

    // Justify ignores centre and right: they are the caller's choice to drop,
    // but the renderer spreads from the left edge.
    const QRect semJust = Tinta(Desenhar(quatro, QRect(10, 10, 150, 40)));
    EXPECT_LT(semJust.right(), t.right() + 20);
}

TEST(DesenharTexto, RecorteNoRetanguloComBordasDireitaEInferiorExclusivas)
{
    const QString longa = QStringLiteral("WWWWWWWWWW");
    const QRect r(50, 50, 40, 20);
    const QImage com = Desenhar(longa, r);
    const QRect t = Tinta(com);
    ASSERT_FALSE(t.isEmpty());
    EXPECT_GE(t.left(), 50);
    EXPECT_LE(t.right(), 50 + 38);  // column x + width - 1 is outside
    EXPECT_GE(t.right(), 50 + 36);

    OpcoesTexto solto;
    solto.recortar = false;
    const QRect s = Tinta(Desenhar(longa, r, solto));
    EXPECT_GT(s.right(), 50 + 100);

    // A second line below a 20-pixel rectangle is cut at its bottom.
    const QImage duas = Desenhar(QStringLiteral("Texto Texto"), QRect(50, 50, 40, 20));
    EXPECT_LE(Tinta(duas).bottom(), 50 + 18);
    EXPECT_GT(Tinta(Desenhar(QStringLiteral("Texto Texto"), QRect(50, 50, 40, 20), solto)).bottom(), 75);
}

TEST(DesenharTexto, RotacoesPartemDosPontosIniciais)
{
    // A 60 x 60 rectangle at (100, 100); "Texto" is 32 long and 15 high.
    const QRect r(100, 100, 60, 60);
    auto tinta = [&](int angulo) {
        OpcoesTexto op;
        op.angulo = angulo;
        op.recortar = false;
        return Tinta(Desenhar(QStringLiteral("Texto"), r, op));
    };
    auto dentro = [](QRect t, QRect esperado) {
        return !t.isEmpty() && esperado.adjusted(-1, -1, 1, 1).contains(t);
    };
    const QRect a0 = tinta(0);
    EXPECT_TRUE(dentro(a0, QRect(100, 100, 32, 15))) << a0.x() << "," << a0.y() << " " << a0.width() << "x" << a0.height();
    // 90: from (dy - 1, H - dx - 3) = (99, 157) upwards, glyph tops to the left.
    const QRect a90 = tinta(90);
    EXPECT_TRUE(dentro(a90, QRect(99, 157 - 32, 15, 32))) << a90.x() << "," << a90.y() << " " << a90.width() << "x" << a90.height();
    EXPECT_GT(a90.height(), a90.width());
    // 180: from (W - dx - 1, H - dy - 2) = (159, 158) leftwards, upside down.
    const QRect a180 = tinta(180);
    EXPECT_TRUE(dentro(a180, QRect(159 - 32, 158 - 15, 32, 15))) << a180.x() << "," << a180.y() << " " << a180.width() << "x" << a180.height();
    // 270: from (W - dy, dx + 2) = (160, 102) downwards.
    const QRect a270 = tinta(270);
    EXPECT_TRUE(dentro(a270, QRect(160 - 15, 102, 15, 32))) << a270.x() << "," << a270.y() << " " << a270.width() << "x" << a270.height();
    EXPECT_GT(a270.height(), a270.width());

    // 90 and 270 wrap at the rectangle's height less 5: 75 fits two words.
    FontesCanvas fontes;
    OpcoesTexto op;
    op.angulo = 90;
    EXPECT_EQ(DesenharTexto(nullptr, fontes, Fonte(), QColor(), QStringLiteral("Texto Texto"), 0, 0, 10, 77, op, true), 15);
    EXPECT_EQ(DesenharTexto(nullptr, fontes, Fonte(), QColor(), QStringLiteral("Texto Texto"), 0, 0, 10, 76, op, true), 30);
    op.angulo = 180;
    EXPECT_EQ(DesenharTexto(nullptr, fontes, Fonte(), QColor(), QStringLiteral("Texto Texto"), 0, 0, 72, 10, op, true), 15);
    // Lines of a turned text stack across it: the second line of 90 is to the right.
    op.angulo = 90;
    op.recortar = false;
    const QImage duas = Desenhar(QStringLiteral("Texto Texto"), QRect(100, 100, 60, 60), op);
    EXPECT_GE(Tinta(duas).width(), 20);  // two 15-pixel lines side by side
    EXPECT_LE(Tinta(duas).height(), 34);
}
