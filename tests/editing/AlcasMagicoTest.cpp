#include "editing/AlcasMagico.h"
#include "editing/SessaoMontada.h"

#include <QLocale>

using namespace lumeta;
using Magico = lumeta::teste::SessaoMontada;
using L = QList<int32_t>;

namespace {

class Alcas : public lumeta::teste::SessaoMontada {
protected:
    // Three bands; item (2, 1) selected, its frame at (8, 34, 64, 18).
    void Tres()
    {
        Montar({{64, 64}, {64, 32}, {64}});
        Selecionar(2, 1);
    }
    // One whole drag of handle `alca` from its own centre by (dx, dy), as
    // the canvas's mouse events; returns the rubber frame before the release.
    QRect Arrastar(int alca, double dx, double dy)
    {
        const QPointF inicio = QRectF(RetanguloAlca(RetanguloSelecao(s), alca)).center();
        PressionarCanvas(s, inicio, Qt::LeftButton, {});
        EXPECT_EQ(s.Alca.indice, alca);
        MoverCanvas(s, inicio + QPointF(dx, dy), Qt::LeftButton, {});
        const QRect r = s.Alca.atual;
        SoltarCanvas(s, Qt::LeftButton);
        return r;
    }
    // Band 2's top, height and displacement, and band 3's top.
    L Banda2() const { return {B(2).Topo, B(2).Altura, B(2).Deslocamento, B(3).Topo}; }
};

}  // namespace

TEST_F(Alcas, LarguraEmPassosDeOitoTruncadosParaZeroEOCicloSoNoSoltar)
{
    Tres();
    const int posicao = s.Desfazer.PosicaoDesfazer;
    ASSERT_TRUE(IniciarArrasteAlca(s, 6, QPointF(72, 43)));
    for (const auto &[x, y, largura] : {std::tuple{79, 43, 64}, {80, 43, 72}, {65, 50, 64}, {57, 43, 56}})
        EXPECT_EQ(MoverArrasteAlca(s, QPointF(x, y)), QRect(8, 34, largura, 18)) << x;  // -15 is one step, not two
    EXPECT_EQ(I(2, 1).Largura, 64);
    EXPECT_EQ(std::pair(pinturas, s.Desfazer.PosicaoDesfazer), std::pair(0, posicao));
    SoltarArrasteAlca(s);
    EXPECT_EQ(std::pair(pinturas, s.PodeDesfazer()), std::pair(1, true));

    // A 7-pixel move in both directions changes nothing and paints nothing.
    Arrastar(7, 7, 7);
    Arrastar(0, -7, -7);
    EXPECT_EQ(std::tuple(pinturas, I(2, 1).Largura, B(2).Altura), std::tuple(1, 56, 18));

    // The mouse keeps widths at 8 at least; the left edge stops at 0.
    for (const auto &[alca, dx, moldura] : {std::tuple{6, -164, QRect(8, 34, 8, 18)},
                                            {1, -108, QRect(0, 34, 16, 18)}, {1, 80, QRect(16, 34, 8, 18)}}) {
        EXPECT_EQ(Arrastar(alca, dx, 0), moldura) << alca << " " << dx;
        EXPECT_EQ(I(2, 1).Largura, moldura.width());
    }
}

TEST_F(Alcas, AlturaMinimaUmTopoMinimoEMenos9999)
{
    // The top handle moves the band with the frame; it stops at the previous
    // band's top, and covering that band whole is -9999. (Each handle's plain
    // move: the window's canvas test.)
    struct Caso {
        int alca, dy;
        QRect moldura;
        L banda2;
    };
    for (const Caso &c : {Caso{4, -24, {8, 34, 64, 1}, {34, 1, 0, 35}}, Caso{5, 24, {8, 51, 64, 1}, {51, 1, 17, 52}},
                          Caso{3, -16, {8, 18, 64, 18}, {18, 18, -16, 36}},
                          Caso{3, -80, {8, 16, 64, 18}, {16, 18, -9999, 34}}}) {
        Tres();
        EXPECT_EQ(Arrastar(c.alca, 0, c.dy), c.moldura) << c.alca << " " << c.dy;
        EXPECT_EQ(Banda2(), c.banda2) << c.alca << " " << c.dy;
    }
    // -9999 is read as the previous band's height when a drag starts.
    ASSERT_TRUE(IniciarArrasteAlca(s, 7, QPointF(72, 34)));
    EXPECT_EQ(B(2).Deslocamento, -9999);
    MoverArrasteAlca(s, QPointF(73, 35));
    EXPECT_EQ(B(2).Deslocamento, -18);
    SoltarArrasteAlca(s);

    // Band 1: no top handle, and the lowest top is 8; its top never moves.
    Selecionar(1, 1);
    EXPECT_FALSE(IniciarArrasteAlca(s, 3, QPointF(40, 16)));
    EXPECT_EQ(AlcaEm(s, QPoint(40, 16)), -1);
    EXPECT_EQ(AlcaEm(s, QPoint(40, 34)), 4);
    EXPECT_EQ(Arrastar(0, 0, -40), QRect(8, 8, 64, 26));
    EXPECT_EQ(std::tuple(B(1).Topo, B(1).Altura, B(1).Deslocamento), std::tuple(16, 26, 0));
    EXPECT_EQ(DicaAlca(3), QStringLiteral("Deslocar a banda selecionada"));
    EXPECT_EQ(DicaAlca(6), QStringLiteral("Redimensionar o item - [Shift + Setas]"));
}

TEST_F(Alcas, LimitesDoCanvasArredondadosAGrade)
{
    // Limits 197 and 93, on the grid 192 and 88; the left-hand corner has no
    // right limit to meet, only the bottom one.
    for (const auto &[alca, esperado] : {std::pair{7, QRect(8, 34, 184, 54)}, {2, QRect(8, 34, 64, 54)}}) {
        Tres();
        s.Canvas.Tamanho = QSize(205, 101);
        EXPECT_EQ(Arrastar(alca, alca == 7 ? 400 : 0, 400), esperado);
        EXPECT_EQ(std::tuple(I(2, 1).Largura, B(2).Altura), std::tuple(esperado.width(), 54));
    }
}

TEST_F(Magico, OfertaSoSobreEspacoLivreComOsLimiaresDoFundoEDoFimDaBanda)
{
    Montar({{64}});  // band rows 16..33, item x 8..71, end of the band 64
    s.UnidadeAtual = UnidadeDe(3);
    // The ghost's frame beside the items the window's canvas test reads.
    MoverMagico(s, 81, 20, true);
    ASSERT_TRUE(s.Magico.visivel);
    EXPECT_EQ(s.Magico.legenda, QStringLiteral(" 24 x 18 px "));
    for (QPoint p : {QPoint(80, 20), QPoint(100, 41), QPoint(16, 42), QPoint(30, 25)}) {
        MoverMagico(s, p.x(), p.y(), true);
        EXPECT_FALSE(s.Magico.visivel) << p.x() << "," << p.y();
    }
    // Nine pixels under the last band: a new band 18 high, growing by 8 from 51.
    for (const auto &[y, altura] : {std::pair{42, 18}, {50, 18}, {51, 26}}) {
        MoverMagico(s, 17, y, true);
        ASSERT_TRUE(s.Magico.visivel) << y;
        EXPECT_EQ(s.Magico.retangulo, QRect(8, 34, 24, altura)) << y;
    }
    // The caption is in the current unit, truncated to its decimals.
    s.UnidadeAtual = UnidadeDe(5);
    MoverMagico(s, 17, 59, true);  // 24 x 34 pixels: 0.25 x 0.3541666 in
    const QChar ponto = QLocale::system().decimalPoint().at(0);
    EXPECT_EQ(s.Magico.legenda, QStringLiteral(" 0.25000 x 0.35416 pol ").replace(u'.', ponto));

    // A held button or key, a range, or the toggle off hide it.
    MoverMagico(s, 17, 59, false);
    EXPECT_FALSE(s.Magico.visivel);
    s.Config.MagicItem = false;
    MoverMagico(s, 17, 59, true);
    EXPECT_FALSE(s.Magico.visivel);
    s.Config.MagicItem = true;
    s.Faixa = {true, 1, 1, 1, 1};
    MoverMagico(s, 17, 59, true);
    EXPECT_FALSE(s.Magico.visivel);
    EXPECT_EQ(pinturas, 0);
}

TEST_F(Magico, CliqueAcrescentaOItemOuABandaDoTamanhoDoFantasma)
{
    Montar({{64, 64}, {32}});
    Selecionar(1, 1);
    MoverMagico(s, 150, 40, true);  // right of band 2's item: ends at 32, x2 = 152
    CliqueMagico(s);
    EXPECT_EQ(s.BandaSelecionada, 2);
    EXPECT_EQ(Larguras(2), (L{32, 120}));

    MoverMagico(s, 40, 90, true);  // last band ends at 51
    CliqueMagico(s);
    ASSERT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(s.BandaSelecionada, 3);
    EXPECT_EQ(std::tuple(B(3).Topo, B(3).Altura), std::tuple(52, 42));
    EXPECT_EQ(Larguras(3), L{48});
    // A click hides the ghost: one more does nothing.
    CliqueMagico(s);
    EXPECT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(pinturas, 2);
}
