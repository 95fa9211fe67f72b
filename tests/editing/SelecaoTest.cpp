#include "editing/Selecao.h"
#include "editing/SessaoMontada.h"

using namespace lumeta;
using Selecao = lumeta::teste::SessaoMontada;

namespace {

std::pair<int, int> Hit(const SessaoEdicao &s, int x, int y)
{
    const PontoLocalizado p = LocalizarPonto(s.Documento, x, y);
    return {p.banda, p.item};
}

}  // namespace

TEST_F(Selecao, LocalizarPontoVarreDaUltimaBandaComItensOitoPixelsADireita)
{
    Montar({{64, 32}, {40}, {16, 16, 16}});
    // Band 2 lies over band 1, as high as it goes (its own top would be
    // above band 1's); band 3 follows at 34, under band 2's height magnitude.
    s.Documento.banda(2).Deslocamento = -30;
    s.Documento.banda(2).Altura = -18;
    Reposicionar();
    ASSERT_EQ(Topos(), (QList<int32_t>{16, 16, 34}));

    EXPECT_EQ(Hit(s, 20, 20), std::make_pair(2, 1));   // the later band wins where both have an item
    EXPECT_EQ(Hit(s, 60, 20), std::make_pair(1, 1));   // band 2 has nothing there: band 1 goes on
    EXPECT_EQ(Hit(s, 7, 20), std::make_pair(1, 0));    // no item: the lowest-numbered band
    EXPECT_EQ(Hit(s, 8, 20), std::make_pair(2, 1));
    EXPECT_EQ(Hit(s, 103, 20), std::make_pair(1, 2));
    EXPECT_EQ(Hit(s, 104, 20), std::make_pair(1, 0));
    EXPECT_EQ(Hit(s, 23, 51), std::make_pair(3, 1));
    EXPECT_EQ(Hit(s, 24, 34), std::make_pair(3, 2));
    EXPECT_EQ(Hit(s, 24, 52), std::make_pair(0, 0));
    EXPECT_EQ(Hit(s, 24, 15), std::make_pair(0, 0));
}

TEST_F(Selecao, CliqueAcimaDaPrimeiraAbaixoDaUltimaNoVazioENoMesmoItem)
{
    Montar({{64, 32}, {40}, {16, 16, 16}});
    s.Documento.banda(3).Deslocamento = 10;  // a gap between bands 2 and 3
    Reposicionar();

    EXPECT_EQ(MouseDownCanvas(s, 80, 40, BotaoMouse::Esquerdo, false), ReacaoMouse::Nada);
    EXPECT_EQ(Selecionado(), std::make_pair(2, 0));

    MouseDownCanvas(s, 30, 2, BotaoMouse::Esquerdo, false);   // above band 1: band 1, no item
    EXPECT_EQ(Selecionado(), std::make_pair(1, 0));
    EXPECT_FALSE(s.CliqueAbaixoDaUltimaBanda);

    MouseDownCanvas(s, 30, 500, BotaoMouse::Esquerdo, false);  // below the last band
    EXPECT_EQ(Selecionado(), std::make_pair(3, 0));
    EXPECT_TRUE(s.CliqueAbaixoDaUltimaBanda);

    MouseDownCanvas(s, 10, 20, BotaoMouse::Esquerdo, false);
    EXPECT_EQ(Selecionado(), std::make_pair(1, 1));
    MouseDownCanvas(s, 12, 25, BotaoMouse::Esquerdo, false);  // the selected item again
    EXPECT_EQ(s.ItemSelecionado, 1);
    // The gap between bands 2 and 3 deselects the item and keeps the band.
    MouseDownCanvas(s, 10, B(2).Topo + 18 + 5, BotaoMouse::Esquerdo, false);
    EXPECT_EQ(Selecionado(), std::make_pair(1, 0));
    MouseDownCanvas(s, 10, 20, BotaoMouse::Esquerdo, false);
    MouseDownCanvas(s, 200, 20, BotaoMouse::Esquerdo, false);  // empty part of the selected band
    EXPECT_EQ(Selecionado(), std::make_pair(1, 0));
    // A right click moves the selection like a left one and asks for the menu.
    EXPECT_EQ(MouseDownCanvas(s, 10, 40, BotaoMouse::Direito, false), ReacaoMouse::MenuEditar);
    EXPECT_EQ(Selecionado(), std::make_pair(2, 1));
    EXPECT_EQ(pinturas, 0);  // selecting is not an edit
}

TEST_F(Selecao, ShiftCliqueEBotaoDireitoDentroDaFaixa)
{
    Montar({{64, 32, 32}, {40, 40, 40}, {16, 16, 16}});
    MouseDownCanvas(s, 10, 20, BotaoMouse::Esquerdo, false);  // (1, 1)
    MouseDownCanvas(s, 50, 40, BotaoMouse::Esquerdo, true);   // Shift on (2, 2)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 2, 1, 2}));
    EXPECT_EQ(Selecionado(), std::make_pair(1, 1));

    // A right click in the range keeps it and only asks for the menu; over
    // several bands every item of those bands counts as inside.
    EXPECT_EQ(MouseDownCanvas(s, 100, 40, BotaoMouse::Direito, false), ReacaoMouse::MenuEditar);
    EXPECT_TRUE(s.Faixa.visivel);
    EXPECT_EQ(Selecionado(), std::make_pair(1, 1));
    // Outside it the range goes and the selection follows the click.
    EXPECT_EQ(MouseDownCanvas(s, 10, 60, BotaoMouse::Direito, false), ReacaoMouse::MenuEditar);
    EXPECT_FALSE(s.Faixa.visivel);
    EXPECT_EQ(Selecionado(), std::make_pair(3, 1));

    // A range inside one band: items outside its span are outside it.
    MouseDownCanvas(s, 10, 40, BotaoMouse::Esquerdo, false);  // (2, 1)
    MouseDownCanvas(s, 50, 40, BotaoMouse::Esquerdo, true);   // (2, 2)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 2, 2, 1, 2}));
    MouseDownCanvas(s, 100, 40, BotaoMouse::Direito, false);  // item 3
    EXPECT_FALSE(s.Faixa.visivel);
    EXPECT_EQ(s.ItemSelecionado, 3);

    // Shift on the selected item itself clears the range.
    MouseDownCanvas(s, 10, 40, BotaoMouse::Esquerdo, true);
    EXPECT_TRUE(s.Faixa.visivel);
    MouseDownCanvas(s, 100, 40, BotaoMouse::Esquerdo, true);
    EXPECT_FALSE(s.Faixa.visivel);
    // Shift without an item under the pointer is a plain click.
    MouseDownCanvas(s, 10, 40, BotaoMouse::Esquerdo, true);
    MouseDownCanvas(s, 300, 20, BotaoMouse::Esquerdo, true);
    EXPECT_FALSE(s.Faixa.visivel);
    EXPECT_EQ(Selecionado(), std::make_pair(1, 0));
    // With no item selected, the range's items are the hit item alone.
    MouseDownCanvas(s, 50, 60, BotaoMouse::Esquerdo, true);  // (3, 3)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 3, 3, 3}));
}

TEST_F(Selecao, ArrastarSelecionaORetanguloEVoltarAoItemLimpa)
{
    Montar({{64, 32, 32}, {40, 40}, {16, 16, 16}});
    s.Documento.banda(3).Deslocamento = 10;
    Reposicionar();
    MouseDownCanvas(s, 80, 20, BotaoMouse::Esquerdo, false);  // (1, 2)
    ArrastarSelecao(s, 10, 40);                                // (2, 1)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 2, 1, 2}));
    ArrastarSelecao(s, 80, 20);
    EXPECT_FALSE(s.Faixa.visivel);

    // Outside every item: x < 8 takes item 1, else the band's last item.
    ArrastarSelecao(s, 300, 40);
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 2, 2, 2}));
    ArrastarSelecao(s, 3, 40);
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 2, 1, 2}));
    // Below every band: the last band whose top is above the pointer.
    ArrastarSelecao(s, 3, 900);
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 3, 1, 2}));
    // In the gap over band 3: band 2.
    ArrastarSelecao(s, 300, B(3).Topo - 3);
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 2, 2, 2}));

    // From band 3 upwards, above band 1 and in the gap: the first band whose
    // top is below the pointer.
    MouseDownCanvas(s, 10, B(3).Topo + 2, BotaoMouse::Esquerdo, false);  // (3, 1)
    ArrastarSelecao(s, 300, 3);
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 3, 1, 3}));
    ArrastarSelecao(s, 300, B(3).Topo - 3);
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 3, 3, 1, 3}));

    // Without a selected item a drag selects nothing.
    MouseDownCanvas(s, 300, 20, BotaoMouse::Esquerdo, false);
    ArrastarSelecao(s, 10, 40);
    EXPECT_FALSE(s.Faixa.visivel);
}

TEST_F(Selecao, SelecionarTudoEOsQuadrosDaSelecao)
{
    Montar({{64, 32}, {40}, {16, 16, 16, 100}});
    Selecionar(3, 2);
    mnuEditarTudo(s);
    EXPECT_EQ(Selecionado(), std::make_pair(1, 1));
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 3, 1, 2}));
    // As wide as the widest band, from the first band's top to the last's bottom.
    EXPECT_EQ(RetanguloFaixa(s), QRect(7, 15, 150, 56));
    EXPECT_EQ(LegendaSelecao(s), QStringLiteral("(1, 1)"));

    Selecionar(3, 2);
    s.Faixa = FaixaSelecao();
    SelecionarFaixa(s, 3, 3);
    EXPECT_EQ(RetanguloFaixa(s), QRect(16 + 7, 52 - 1, 34, 20));
    EXPECT_EQ(RetanguloSelecao(s), QRect(24, 52, 16, 18));
    EXPECT_EQ(LegendaSelecao(s), QStringLiteral("(3, 2)"));
    NadaSelecionado(s);
    EXPECT_TRUE(RetanguloSelecao(s).isEmpty());
    EXPECT_EQ(LegendaSelecao(s), QStringLiteral("(3)"));
}
