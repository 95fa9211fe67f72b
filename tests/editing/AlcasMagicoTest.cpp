#include "editing/AlcasMagico.h"
#include "editing/Selecao.h"
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
    std::tuple<int32_t, int32_t, int32_t> Banda2() const { return {B(2).Topo, B(2).Altura, B(2).Deslocamento}; }
};

}  // namespace

TEST_F(Alcas, LarguraEmPassosDeOitoTruncadosParaZeroEOCicloSoNoSoltar)
{
    Tres();
    ASSERT_EQ(RetanguloSelecao(s), QRect(8, 34, 64, 18));
    const int posicao = s.Desfazer.PosicaoDesfazer;
    ASSERT_TRUE(IniciarArrasteAlca(s, 6, QPointF(72, 43)));
    EXPECT_EQ(MoverArrasteAlca(s, QPointF(79, 43)), QRect(8, 34, 64, 18));
    EXPECT_EQ(MoverArrasteAlca(s, QPointF(80, 43)), QRect(8, 34, 72, 18));
    EXPECT_EQ(MoverArrasteAlca(s, QPointF(65, 50)), QRect(8, 34, 64, 18));
    EXPECT_EQ(MoverArrasteAlca(s, QPointF(57, 43)), QRect(8, 34, 56, 18));  // -15 is one step, not two
    EXPECT_EQ(I(2, 1).Largura, 64);
    EXPECT_EQ(pinturas, 0);
    EXPECT_EQ(s.Desfazer.PosicaoDesfazer, posicao);
    SoltarArrasteAlca(s);
    EXPECT_EQ(pinturas, 1);
    EXPECT_TRUE(s.PodeDesfazer());
    EXPECT_FALSE(s.Alca.Ativo());

    // A 7-pixel move in both directions changes nothing and paints nothing.
    Arrastar(7, 7, 7);
    Arrastar(0, -7, -7);
    EXPECT_EQ(pinturas, 1);
    EXPECT_EQ(I(2, 1).Largura, 56);
    EXPECT_EQ(B(2).Altura, 18);

    // The mouse keeps widths at 8 at least; the left edge stops at 0.
    EXPECT_EQ(Arrastar(6, -164, 0), QRect(8, 34, 8, 18));
    EXPECT_EQ(I(2, 1).Largura, 8);
    EXPECT_EQ(Arrastar(1, -108, 0), QRect(0, 34, 16, 18));
    EXPECT_EQ(I(2, 1).Largura, 16);
    EXPECT_EQ(Arrastar(1, 80, 0), QRect(16, 34, 8, 18));
    EXPECT_EQ(I(2, 1).Largura, 8);
}

TEST_F(Alcas, AlturaMinimaUmTopoMinimoEMenos9999)
{
    Tres();
    EXPECT_EQ(Arrastar(4, 0, -24), QRect(8, 34, 64, 1));
    EXPECT_EQ(Topos(), (L{16, 34, 35}));
    Tres();
    EXPECT_EQ(Arrastar(5, 0, 24), QRect(8, 51, 64, 1));
    EXPECT_EQ(B(2).Altura, 1);

    // The top handle moves the band with the frame.
    Tres();
    EXPECT_EQ(Arrastar(3, 0, 16), QRect(8, 50, 64, 18));
    EXPECT_EQ(Banda2(), std::tuple(50, 18, 16));
    EXPECT_EQ(Arrastar(3, 0, -32), QRect(8, 18, 64, 18));
    EXPECT_EQ(Banda2(), std::tuple(18, 18, -16));
    // It stops at the previous band's top, and covering that band whole is -9999.
    EXPECT_EQ(Arrastar(3, 0, -80), QRect(8, 16, 64, 18));
    EXPECT_EQ(Banda2(), std::tuple(16, 18, -9999));
    // -9999 is read as the previous band's height when a drag starts.
    ASSERT_TRUE(IniciarArrasteAlca(s, 7, QPointF(72, 34)));
    EXPECT_EQ(B(2).Deslocamento, -9999);
    MoverArrasteAlca(s, QPointF(73, 35));
    EXPECT_EQ(B(2).Deslocamento, -18);
    SoltarArrasteAlca(s);
    EXPECT_EQ(B(2).Topo, 16);

    // The top-left corner grows the band upwards.
    Tres();
    EXPECT_EQ(Arrastar(0, 0, -8), QRect(8, 26, 64, 26));
    EXPECT_EQ(Banda2(), std::tuple(26, 26, -8));
    EXPECT_EQ(B(3).Topo, 52);

    // Band 1: no top handle, and the lowest top is 8; its top never moves.
    Selecionar(1, 1);
    EXPECT_FALSE(AlcaHabilitada(s, 3));
    EXPECT_FALSE(IniciarArrasteAlca(s, 3, QPointF(40, 16)));
    EXPECT_EQ(AlcaEm(s, QPoint(40, 16)), -1);
    EXPECT_EQ(AlcaEm(s, QPoint(40, 34)), 4);
    EXPECT_EQ(Arrastar(0, 0, -40), QRect(8, 8, 64, 26));
    EXPECT_EQ(std::tuple(B(1).Topo, B(1).Altura, B(1).Deslocamento), std::tuple(16, 26, 0));
    EXPECT_EQ(DicaAlca(3), QStringLiteral("Deslocar a banda selecionada"));
    EXPECT_EQ(DicaAlca(6), QStringLiteral("Redimensionar o item - [Shift + Setas]"));
    EXPECT_EQ(DicaAlca(5), QString());
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

TEST_F(Alcas, FaixaRecebeALarguraEAAlturaDoArraste)
{
    // The press on a handle keeps the range; the release sizes every item of
    // its bands (or of its span inside one band) and, over several bands,
    // every band's height.
    struct Caso {
        QPoint ate;
        QList<L> larguras;
        L alturas;
    };
    for (const Caso &c : {Caso{{80, 40}, {{80, 80}, {80, 80}, {64}}, {26, 26, 18}},
                          Caso{{80, 20}, {{80, 80}, {64, 32}, {64}}, {26, 18, 18}}}) {
        Tres();
        CliqueEShiftClique(10, 20, c.ate.x(), c.ate.y());
        ASSERT_TRUE(s.Faixa.visivel);
        Arrastar(7, 16, 8);
        EXPECT_TRUE(s.Faixa.visivel);
        EXPECT_EQ((QList<L>{Larguras(1), Larguras(2), Larguras(3)}), c.larguras);
        EXPECT_EQ(Alturas(), c.alturas);
        EXPECT_EQ(I(1, 2).Esquerda, 80);
    }
}

TEST_F(Magico, OfertaSoSobreEspacoLivreComOsLimiaresDoFundoEDoFimDaBanda)
{
    Montar({{64}});  // band rows 16..33, item x 8..71, end of the band 64
    s.UnidadeAtual = UnidadeDe(3);
    MoverMagico(s, 80, 20, true);
    EXPECT_FALSE(s.Magico.visivel);
    MoverMagico(s, 81, 20, true);
    ASSERT_TRUE(s.Magico.visivel);
    EXPECT_EQ(s.Magico.banda, 1);
    EXPECT_EQ(s.Magico.retangulo, QRect(72, 16, 24, 18));
    EXPECT_EQ(s.Magico.legenda, QStringLiteral(" 24 x 18 px "));

    for (QPoint p : {QPoint(100, 41), QPoint(16, 42), QPoint(30, 25)}) {
        MoverMagico(s, p.x(), p.y(), true);
        EXPECT_FALSE(s.Magico.visivel) << p.x() << "," << p.y();
    }
    // Nine pixels under the last band: a new band 18 high.
    MoverMagico(s, 17, 42, true);
    ASSERT_TRUE(s.Magico.visivel);
    EXPECT_EQ(s.Magico.banda, 2);
    EXPECT_EQ(s.Magico.retangulo, QRect(8, 34, 24, 18));
    MoverMagico(s, 17, 50, true);
    EXPECT_EQ(s.Magico.retangulo.height(), 18);
    MoverMagico(s, 17, 51, true);
    EXPECT_EQ(s.Magico.retangulo.height(), 26);

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
    ASSERT_TRUE(s.Magico.visivel);
    CliqueMagico(s);
    EXPECT_FALSE(s.Magico.visivel);
    EXPECT_EQ(s.BandaSelecionada, 2);
    EXPECT_EQ(Larguras(2), (L{32, 120}));
    EXPECT_EQ(I(2, 2).Texto, QStringLiteral("Texto 2"));
    EXPECT_EQ(pinturas, 1);

    MoverMagico(s, 40, 90, true);  // last band ends at 51
    ASSERT_TRUE(s.Magico.visivel);
    EXPECT_EQ(s.Magico.retangulo, QRect(8, 52, 48, 42));
    CliqueMagico(s);
    ASSERT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(s.BandaSelecionada, 3);
    EXPECT_EQ(std::tuple(B(3).Topo, B(3).Altura), std::tuple(52, 42));
    EXPECT_EQ(Larguras(3), L{48});
    // Without a ghost a click does nothing.
    CliqueMagico(s);
    EXPECT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(pinturas, 2);
}

TEST_F(Magico, AlcaSobreABandaVizinhaEscondeOFantasmaEArrastaSemCriar)
{
    // Item (2, 2) is wider than the items above and under it: its top and
    // bottom handles lie over the free part of bands 1 and 3.
    for (const int alca : {3, 7}) {
        Montar({{32}, {64, 64}, {32}});
        Selecionar(2, 2);
        const QPoint centro = RetanguloAlca(RetanguloSelecao(s), alca).center();
        const QPoint fora(0, alca == 3 ? -5 : 5);
        MoverCanvas(s, centro + fora, Qt::NoButton, {});
        EXPECT_TRUE(s.Magico.visivel) << alca;
        MoverCanvas(s, centro, Qt::NoButton, {});
        EXPECT_FALSE(s.Magico.visivel) << alca;
        // A ghost still up when the press comes loses to the handle too.
        MoverCanvas(s, centro + fora, Qt::NoButton, {});
        PressionarCanvas(s, centro + fora / 2, Qt::LeftButton, {});
        EXPECT_EQ(s.Alca.indice, alca);
        SoltarCanvas(s, Qt::LeftButton);
        EXPECT_EQ(DasBandas([](const Banda &b) { return b.NumItens(); }), (QList<int>{1, 2, 1})) << alca;
        EXPECT_EQ(Selecionado(), std::make_pair(2, 2));
    }
}
