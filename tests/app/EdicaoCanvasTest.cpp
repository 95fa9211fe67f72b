// The canvas of the real window driven with mouse and key events: the
// session-level cases prove the rules, these that the events reach them.
#include "app/JanelaTeste.h"
#include "app/gui/CanvasJanela.h"
#include "canvas/Regua.h"
#include "editing/AlcasMagico.h"
#include "editing/DesenhoSelecao.h"

#include <QAction>
#include <QApplication>
#include <QMap>
#include <QMenu>
#include <QTest>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// A window on a layout of `bandas` bands of two 64-pixel items each.
struct Editor : teste::JanelaTeste {
    PicPagina *pagina = janela.picPagina;

    explicit Editor(int bandas)
    {
        for (int b = 1; b < bandas; ++b)
            s.AddBanda(0, false, 0, 0);
        for (int b = 1; b <= bandas; ++b)
            s.AddItem(b, false, 0);
        s.ConcluirEdicao();
        pagina->setFocus();
        QApplication::processEvents();
    }
    const Item &item(int b, int i) const { return s.Documento.banda(b).Itens[i - 1]; }
    const Banda &banda(int b) const { return s.Documento.banda(b); }
    void acrescentarItem(int b)
    {
        s.AddItem(b, false, 0);
        s.Documento.ReposicionarItem(b);
        s.ConcluirEdicao();
    }
    QList<int32_t> larguras(int b) const
    {
        QList<int32_t> r;
        for (const Item &it : banda(b).Itens)
            r << it.Largura;
        return r;
    }
    // A press on handle `alca` of the selected item, a move by (16, 8) and
    // the release, as the user's mouse does them.
    void arrastarAlca(int alca)
    {
        const QPoint centro = RetanguloAlca(RetanguloSelecao(s), alca).center();
        QTest::mouseMove(pagina, centro);
        QTest::mousePress(pagina, Qt::LeftButton, {}, centro);
        QTest::mouseMove(pagina, centro + QPoint(16, 8));
        QTest::mouseRelease(pagina, Qt::LeftButton, {}, centro + QPoint(16, 8));
    }
    // The middle of item i of band b, in the canvas widget.
    QPoint centro(int b, int i) const
    {
        const Banda &banda = s.Documento.banda(b);
        return {item(b, i).Esquerda + 8 + item(b, i).Largura / 2, banda.Topo + std::abs(banda.Altura) / 2};
    }
};

}  // namespace

TEST(EdicaoCanvas, FantasmaCriaItemShiftCliqueRedimensionaEDeleteRemoveABanda)
{
    Editor e(2);
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));

    // Right of the band's last item (which ends at 128): the magic item's
    // ghost follows the pointer and a click adds an item of its width.
    QTest::mouseMove(e.pagina, QPoint(150, 24));
    EXPECT_EQ(e.s.Magico.retangulo, QRect(136, 16, 24, 18));
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, QPoint(150, 24));
    EXPECT_EQ(e.larguras(1), (QList<int32_t>{64, 64, 24}));
    QTest::keyClick(&e.janela, Qt::Key_Z, Qt::ControlModifier);

    // Shift with an arrow resizes. (A Shift click makes a range in the
    // handle drags below.)
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    QTest::keyClick(e.pagina, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(e.item(1, 1).Largura, 72);

    // The band's empty part close to its last item: no item, no ghost.
    const Banda &b2 = e.s.Documento.banda(2);
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, QPoint(8 + 144 + 4, b2.Topo + 4));
    ASSERT_EQ(std::pair(e.s.BandaSelecionada, e.s.ItemSelecionado), std::pair(2, 0));
    QTest::keyClick(e.pagina, Qt::Key_Delete);
    EXPECT_EQ(std::pair(e.s.Documento.NumBandas(), e.s.BandaSelecionada), std::pair(1, 1));
    QTest::keyClick(&e.janela, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(e.s.Documento.NumBandas(), 2);
}

TEST(EdicaoCanvas, AlcasSobreBandasVizinhasMaisEstreitasArrastamSemCriar)
{
    // Item (2, 3) sticks out past bands 1 and 3, so its top and bottom
    // handles lie over their free part, where the magic item is offered.
    // Each row: the handle, then the change of width, height and top.
    const std::array<std::array<int, 4>, 8> casos{{
        {0, -16, -8, 8}, {1, -16, 0, 0}, {2, -16, 8, 0}, {3, 0, 0, 8},
        {4, 0, 8, 0}, {5, 16, -8, 8}, {6, 16, 0, 0}, {7, 16, 8, 0},
    }};
    Editor e(3);
    e.acrescentarItem(2);
    for (const auto &[alca, dl, da, dt] : casos) {
        QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(2, 3));
        const int32_t topo = e.banda(2).Topo, altura = e.banda(2).Altura;
        e.arrastarAlca(alca);
        EXPECT_EQ(e.larguras(2), (QList<int32_t>{64, 64, 64 + dl})) << alca;
        EXPECT_EQ(std::pair(e.banda(2).Altura, e.banda(2).Topo), std::pair(altura + da, topo + dt)) << alca;
        EXPECT_EQ(std::tuple(e.banda(1).NumItens(), e.banda(3).NumItens(), e.s.Documento.NumBandas()),
                  std::tuple(2, 2, 3)) << alca;
        EXPECT_EQ(std::pair(e.s.BandaSelecionada, e.s.ItemSelecionado), std::pair(2, 3)) << alca;
        QTest::keyClick(&e.janela, Qt::Key_Z, Qt::ControlModifier);
    }
}

TEST(EdicaoCanvas, ArrasteDeAlcaComFaixaMudaTodosOsItensEBandasDela)
{
    // A range over bands 2 and 3, then one inside band 2; the selected item
    // (2, 2) is dragged by its bottom-right handle.
    struct Caso {
        int bandaFim, itemFim;
        QList<int32_t> banda2, banda3;
        int32_t altura3;
    };
    for (const Caso &c : {Caso{3, 1, {80, 80, 80}, {80, 80}, 26}, Caso{2, 3, {64, 80, 80}, {64, 64}, 18}}) {
        Editor e(3);
        e.acrescentarItem(2);
        QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(2, 2));
        QTest::mouseClick(e.pagina, Qt::LeftButton, Qt::ShiftModifier, e.centro(c.bandaFim, c.itemFim));
        const int32_t altura = e.banda(2).Altura;
        e.arrastarAlca(7);
        EXPECT_TRUE(e.s.Faixa.visivel);
        EXPECT_EQ(e.larguras(2), c.banda2);
        EXPECT_EQ(e.larguras(3), c.banda3);
        EXPECT_EQ(e.item(2, 3).Esquerda, c.banda2[0] + c.banda2[1]);
        EXPECT_EQ((QList<int32_t>{e.banda(1).Altura, e.banda(2).Altura, e.banda(3).Altura}),
                  (QList<int32_t>{altura, altura + 8, c.altura3}));
    }
}

TEST(EdicaoCanvas, BandaSemItensDeUmArquivoAceitaTeclasMenusEMagico)
{
    Editor e(3);
    e.s.Documento.banda(2).Itens.clear();   // what a file may hold
    e.s.ConcluirEdicao();
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    QTest::keyClick(e.pagina, Qt::Key_Down);
    ASSERT_EQ(std::pair(e.s.BandaSelecionada, e.s.ItemSelecionado), std::pair(2, 0));
    emit e.janela.mnuEditar->aboutToShow();
    for (const char *nome : {"mnuEditarBandaFonte", "mnuEditarItemDuplicar", "mnuEditarTudo"})
        e.janela.findChild<QAction *>(QLatin1String(nome))->trigger();
    EXPECT_TRUE(e.ui.fontesSoImpressao.empty());   // no font to change
    EXPECT_EQ(e.s.Documento.banda(2).NumItens(), 0);

    // The magic item over the empty band starts at its left edge.
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    const int y = e.s.Documento.banda(2).Topo + 4;
    QTest::mouseMove(e.pagina, QPoint(40, y));
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, QPoint(40, y));
    EXPECT_EQ(e.larguras(2), QList<int32_t>{48});
}

TEST(EdicaoCanvas, TeclasDeEstiloMolduraDesfazerERefazer)
{
    Editor e(1);
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    const FonteItem original = e.item(1, 1).Fonte;
    QTest::keyClick(e.pagina, Qt::Key_B, Qt::ControlModifier);
    QTest::keyClick(e.pagina, Qt::Key_5, Qt::ControlModifier);
    // The frame is the right, bottom, top and left lines.
    EXPECT_EQ(std::pair(e.item(1, 1).Fonte.Negrito, e.item(1, 1).Linhas), std::pair(true, QStringLiteral("0101110000")));
    auto *moldura = e.janela.findChild<QToolButton *>(QStringLiteral("btnMoldura"));
    EXPECT_EQ(std::pair(moldura->isChecked(), moldura->toolTip()), std::pair(true, QStringLiteral("Moldura - [CTRL + 5]")));

    // Each key is one step back; Ctrl+Y and Ctrl+Shift+Z take them back.
    QTest::keyClick(e.pagina, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(e.pagina, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(std::pair(e.item(1, 1).Fonte, e.item(1, 1).Linhas), std::pair(original, QStringLiteral("0000000000")));
    QTest::keyClick(e.pagina, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(e.item(1, 1).Fonte.Negrito);
    QTest::keyClick(e.pagina, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(e.item(1, 1).Linhas, QStringLiteral("0101110000"));

    // The frame goes off when all four lines are on; italic and underline.
    QTest::mouseClick(moldura, Qt::LeftButton);
    QTest::keyClick(e.pagina, Qt::Key_I, Qt::ControlModifier);
    QTest::keyClick(e.pagina, Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(e.item(1, 1).Linhas, QStringLiteral("0000000000"));
    EXPECT_TRUE(e.item(1, 1).Fonte.Italico && e.item(1, 1).Fonte.Sublinhado);
    EXPECT_FALSE(e.s.PodeRefazer());
}

// The same gestures in canvas terms at 50, 100 and 200 %: the same item is
// hit, a handle drag of one screen distance moves by that distance over the
// zoom on the 8-pixel grid, the ghost offers the same size, and the layouts
// that come out are equal.
TEST(EdicaoCanvas, ZoomGuardaCliquesAlcasEMagicoEmPixelsDoCanvas)
{
    QList<LayoutDocumento> resultados;
    QList<QSize> fantasmas;
    for (int zoom : {50, 100, 200}) {
        SCOPED_TRACE(zoom);
        Editor e(2);
        e.s.Documento.ReposicionarTudo();
        e.janela.AplicarZoom(zoom);
        const double z = zoom / 100.0;
        EXPECT_EQ(std::pair(e.pagina->Zoom(), e.s.Config.Zoom), std::pair(z, zoom));  // kept in the settings at shut-down
        // The middle of a canvas pixel, on the screen.
        auto tela = [&](QPoint c) { return ((QPointF(c - e.pagina->Origem()) + QPointF(0.5, 0.5)) * z).toPoint(); };
        QTest::mouseClick(e.pagina, Qt::LeftButton, {}, tela(e.centro(2, 2)));
        ASSERT_EQ(std::pair(e.s.BandaSelecionada, e.s.ItemSelecionado), std::pair(2, 2));

        // 48 screen pixels to the right on the right handle.
        const QPoint alca = tela(RetanguloAlca(RetanguloSelecao(e.s), 6).center());
        QTest::mouseMove(e.pagina, alca);
        QTest::mousePress(e.pagina, Qt::LeftButton, {}, alca);
        QTest::mouseMove(e.pagina, alca + QPoint(48, 0));
        QTest::mouseRelease(e.pagina, Qt::LeftButton, {}, alca + QPoint(48, 0));
        EXPECT_EQ(e.item(2, 2).Largura, 64 + int(std::lround(48 / z / 8)) * 8);
        e.s.Documento.banda(2).Itens[1].Largura = 64;
        e.s.ConcluirEdicao();

        // The ghost below the bands offers the same size at every zoom, and
        // one click adds its band.
        e.janela.hsbPagina->setValue(0);
        const QPoint livre(18, e.banda(2).Topo + std::abs(e.banda(2).Altura) + 10);
        QTest::mouseMove(e.pagina, tela(livre));
        ASSERT_TRUE(e.s.Magico.visivel);
        fantasmas << e.s.Magico.retangulo.size();
        QTest::mouseClick(e.pagina, Qt::LeftButton, {}, tela(livre));
        EXPECT_EQ(e.s.Documento.NumBandas(), 3);
        resultados << e.s.Documento;
    }
    EXPECT_EQ(resultados, QList<LayoutDocumento>(3, resultados[1]));
    EXPECT_EQ(fantasmas, QList<QSize>(3, fantasmas[1]));
}

TEST(EdicaoCanvas, ReguasNaUnidadeENoZoomMarcamOItemOndeEleEDesenhado)
{
    Editor e(1);
    e.s.DefinirUnidade(UnidadeMilimetros);
    e.janela.AplicarZoom(200);
    e.s.Documento.ReposicionarTudo();
    const QPoint c = e.centro(1, 2) - e.pagina->Origem();
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, c * 2 + QPoint(1, 1));
    auto *regua = e.janela.findChild<Regua *>(QStringLiteral("reguaHorizontal"));
    ASSERT_NE(regua, nullptr);
    // The item's left and right edges, where the canvas draws them.
    const QRect desenhado = e.pagina->ParaWidget(QRect(e.item(1, 2).Esquerda + 8, 0, e.item(1, 2).Largura, 1));
    const int desvio = e.pagina->mapTo(&e.janela, QPoint()).x() - regua->mapTo(&e.janela, QPoint()).x();
    EXPECT_EQ(regua->Marcadas(), (std::vector<int>{desenhado.left() + desvio, desenhado.right() + 1 + desvio}));
    // Ctrl + wheel zooms around the pointer: the canvas point under it stays.
    const QPointF ponteiro(150, 120);
    const QPointF antes = e.pagina->ParaCanvasF(ponteiro);
    for (int passo = 0; passo < 2; ++passo) {
        QWheelEvent roda(ponteiro, e.pagina->mapToGlobal(ponteiro), QPoint(), QPoint(0, 120), Qt::NoButton,
                         Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(e.pagina, &roda);
    }
    EXPECT_EQ(e.pagina->Zoom(), 4.0);
    EXPECT_NEAR(e.pagina->ParaCanvasF(ponteiro).x(), antes.x(), 1.0);
    EXPECT_NEAR(e.pagina->ParaCanvasF(ponteiro).y(), antes.y(), 1.0);
    // 10 mm lies 2 x 37.795 screen pixels from the ruler's 0.
    QMap<QString, double> posicao;   // a label missing reads as 0 and fails both
    for (const MarcaRegua &m : MarcasRegua(e.s.UnidadeAtual, 2.0, 0, 8, 400))
        posicao[m.rotulo] = m.posicao;
    EXPECT_NEAR(posicao[QStringLiteral("10")] - posicao[QStringLiteral("0")], 2 * 37.795275, 1e-6);
    EXPECT_NEAR(posicao[QStringLiteral("0")], 2 * 8, 1e-9);
}
