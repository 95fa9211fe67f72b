// The canvas of the real window driven with mouse and key events: the
// session-level cases prove the rules, these that the events reach them.
#include "app/gui/CanvasJanela.h"
#include "app/gui/frmLumetaEdit.h"
#include "editing/DesenhoSelecao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// A window on a layout of `bandas` bands of two 64-pixel items each.
struct Editor {
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    frmLumetaEdit janela{&ui};
    SessaoEdicao &s = janela.Sessao();
    PicPagina *pagina = nullptr;

    explicit Editor(int bandas)
    {
        janela.Iniciar({});
        for (int b = 1; b < bandas; ++b)
            s.AddBanda(0, false, 0, 0);
        for (int b = 1; b <= bandas; ++b)
            s.AddItem(b, false, 0);
        s.ConcluirEdicao();
        janela.resize(1000, 700);
        janela.show();
        pagina = janela.picPagina;
        pagina->setFocus();
        QApplication::processEvents();
    }
    const Item &item(int b, int i) const { return s.Documento.banda(b).Itens[i - 1]; }
    // The middle of item i of band b, in the canvas widget.
    QPoint centro(int b, int i) const
    {
        const Banda &banda = s.Documento.banda(b);
        return {item(b, i).Esquerda + 8 + item(b, i).Largura / 2, banda.Topo + std::abs(banda.Altura) / 2};
    }
};

}  // namespace

TEST(EdicaoCanvas, AlcaArrastadaMudaALarguraEmPassosDe8)
{
    Editor e(1);
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    ASSERT_EQ(e.s.ItemSelecionado, 1);
    // The frame and its right handle are painted in the selection colour.
    const QImage antes = e.pagina->grab().toImage();
    EXPECT_EQ(antes.pixelColor(8 + 64 - 3, 16 + 9), CorSelecao);  // the handle's border
    EXPECT_EQ(antes.pixelColor(8 + 64, 16 + 9), QColor(Qt::white));  // its hollow middle

    const QString texto = e.s.TextoResultado;
    const QPoint alca(8 + 64, 16 + 9);
    QTest::mousePress(e.pagina, Qt::LeftButton, {}, alca);
    QTest::mouseMove(e.pagina, alca + QPoint(7, 0));   // under one step: nothing
    EXPECT_EQ(e.s.Alca.atual.width(), 64);
    QTest::mouseMove(e.pagina, alca + QPoint(23, 3));  // two steps, the height stays
    EXPECT_EQ(e.s.Alca.atual, QRect(8, 16, 80, 18));
    // Only the rubber frame moves while the button is held.
    EXPECT_EQ(e.item(1, 1).Largura, 64);
    EXPECT_EQ(e.s.TextoResultado, texto);
    QTest::mouseRelease(e.pagina, Qt::LeftButton, {}, alca + QPoint(23, 3));
    EXPECT_EQ(e.item(1, 1).Largura, 80);
    EXPECT_NE(e.s.TextoResultado, texto);

    // Right of the band's last item (which now ends at 144): the magic item's
    // ghost follows the pointer and a click adds an item of its width.
    ASSERT_TRUE(e.s.Config.MagicItem);
    QTest::mouseMove(e.pagina, QPoint(166, 24));
    ASSERT_TRUE(e.s.Magico.visivel);
    EXPECT_EQ(e.s.Magico.retangulo, QRect(152, 16, 24, 18));
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, QPoint(166, 24));
    ASSERT_EQ(e.s.Documento.banda(1).NumItens(), 3);
    EXPECT_EQ(e.item(1, 3).Largura, 24);
}

TEST(EdicaoCanvas, ShiftCliqueEShiftDireitaNaFaixaEDeleteSemItemRemoveABanda)
{
    Editor e(2);
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    QTest::mouseClick(e.pagina, Qt::LeftButton, Qt::ShiftModifier, e.centro(2, 2));
    ASSERT_TRUE(e.s.Faixa.VariasBandas());
    QTest::keyClick(e.pagina, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(e.item(1, 1).Largura, 72);

    // The band's empty part close to its last item: no item, no ghost.
    const Banda &b2 = e.s.Documento.banda(2);
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, QPoint(8 + 144 + 4, b2.Topo + 4));
    ASSERT_EQ(e.s.BandaSelecionada, 2);
    ASSERT_EQ(e.s.ItemSelecionado, 0);
    QTest::keyClick(e.pagina, Qt::Key_Delete);
    EXPECT_EQ(e.s.Documento.NumBandas(), 1);
    EXPECT_EQ(e.s.BandaSelecionada, 1);
    QTest::keyClick(&e.janela, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(e.s.Documento.NumBandas(), 2);
}

TEST(EdicaoCanvas, BandaSemItensDeUmArquivoAceitaTeclasMenusEMagico)
{
    Editor e(3);
    e.s.Documento.banda(2).Itens.clear();   // what a file may hold
    e.s.ConcluirEdicao();
    QTest::mouseClick(e.pagina, Qt::LeftButton, {}, e.centro(1, 1));
    QTest::keyClick(e.pagina, Qt::Key_Down);
    ASSERT_EQ(e.s.BandaSelecionada, 2);
    EXPECT_EQ(e.s.ItemSelecionado, 0);
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
    ASSERT_EQ(e.s.Documento.banda(2).NumItens(), 1);
    EXPECT_EQ(e.item(2, 1).Largura, 48);
}
