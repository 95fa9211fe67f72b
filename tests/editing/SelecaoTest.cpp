#include "editing/Selecao.h"
#include "editing/SessaoMontada.h"

using namespace lumeta;
using Selecao = lumeta::teste::SessaoMontada;
using P = std::pair<int, int>;

TEST_F(Selecao, LocalizarPontoVarreDaUltimaBandaComItensOitoPixelsADireita)
{
    Montar({{64, 32}, {40}, {16, 16, 16}});
    // Band 2 lies over band 1, as high as it goes (its own top would be
    // above band 1's); band 3 follows at 34, under band 2's height magnitude.
    s.Documento.banda(2).Deslocamento = -30;
    s.Documento.banda(2).Altura = -18;
    Reposicionar();
    ASSERT_EQ(Topos(), (QList<int32_t>{16, 16, 34}));
    // The later band wins where both have an item; where band 2 has nothing
    // band 1 goes on; with no item, the lowest-numbered band.
    const std::pair<QPoint, P> casos[] = {{{20, 20}, {2, 1}}, {{60, 20}, {1, 1}}, {{7, 20}, {1, 0}},
                                          {{8, 20}, {2, 1}},  {{103, 20}, {1, 2}}, {{104, 20}, {1, 0}},
                                          {{23, 51}, {3, 1}}, {{24, 34}, {3, 2}}, {{24, 52}, {0, 0}},
                                          {{24, 15}, {0, 0}}};
    for (const auto &[p, esperado] : casos) {
        const PontoLocalizado l = LocalizarPonto(s.Documento, p.x(), p.y());
        EXPECT_EQ(P(l.banda, l.item), esperado) << p.x() << "," << p.y();
    }
}

TEST_F(Selecao, CliqueAcimaDaPrimeiraAbaixoDaUltimaNoVazioENoMesmoItem)
{
    Montar({{64, 32}, {40}, {16, 16, 16}});
    s.Documento.banda(3).Deslocamento = 10;  // a gap between bands 2 and 3
    Reposicionar();
    // Above band 1: band 1; below the last: the last band; the selected
    // item again keeps it; the gap between bands 2 and 3 deselects the item
    // and keeps the band, as the empty part of the selected band does.
    const std::pair<QPoint, P> cliques[] = {{{80, 40}, {2, 0}},  {{30, 2}, {1, 0}},   {{30, 500}, {3, 0}},
                                            {{10, 20}, {1, 1}},  {{12, 25}, {1, 1}},  {{10, 57}, {1, 0}},
                                            {{10, 20}, {1, 1}},  {{200, 20}, {1, 0}}};
    for (const auto &[p, esperado] : cliques) {
        EXPECT_EQ(MouseDownCanvas(s, p.x(), p.y(), BotaoMouse::Esquerdo, false), ReacaoMouse::Nada);
        EXPECT_EQ(Selecionado(), esperado) << p.x() << "," << p.y();
        EXPECT_EQ(s.CliqueAbaixoDaUltimaBanda, p.y() == 500);
    }
    // A right click moves the selection like a left one and asks for the menu.
    EXPECT_EQ(MouseDownCanvas(s, 10, 40, BotaoMouse::Direito, false), ReacaoMouse::MenuEditar);
    EXPECT_EQ(Selecionado(), P(2, 1));
    EXPECT_EQ(pinturas, 0);  // selecting is not an edit
}

TEST_F(Selecao, ShiftCliqueEBotaoDireitoDentroDaFaixa)
{
    Montar({{64, 32, 32}, {40, 40, 40}, {16, 16, 16}});
    CliqueEShiftClique(10, 20, 50, 40);  // (1, 1) to (2, 2)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 2, 1, 2}));

    // A right click in the range keeps it and the selection, and only asks
    // for the menu; over several bands every item of those bands counts as inside.
    EXPECT_EQ(MouseDownCanvas(s, 100, 40, BotaoMouse::Direito, false), ReacaoMouse::MenuEditar);
    EXPECT_EQ(std::pair(s.Faixa.visivel, Selecionado()), std::pair(true, P(1, 1)));
    // Outside it the range goes and the selection follows the click.
    MouseDownCanvas(s, 10, 60, BotaoMouse::Direito, false);
    EXPECT_EQ(std::pair(s.Faixa.visivel, Selecionado()), std::pair(false, P(3, 1)));

    // A range inside one band: items outside its span are outside it.
    CliqueEShiftClique(10, 40, 50, 40);  // (2, 1) to (2, 2)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 2, 2, 1, 2}));
    MouseDownCanvas(s, 100, 40, BotaoMouse::Direito, false);  // item 3
    EXPECT_EQ(std::pair(s.Faixa.visivel, s.ItemSelecionado), std::pair(false, 3));

    // Shift on the selected item itself clears the range.
    MouseDownCanvas(s, 10, 40, BotaoMouse::Esquerdo, true);
    EXPECT_TRUE(s.Faixa.visivel);
    MouseDownCanvas(s, 100, 40, BotaoMouse::Esquerdo, true);
    EXPECT_FALSE(s.Faixa.visivel);
    // Shift without an item under the pointer is a plain click.
    MouseDownCanvas(s, 10, 40, BotaoMouse::Esquerdo, true);
    MouseDownCanvas(s, 300, 20, BotaoMouse::Esquerdo, true);
    EXPECT_EQ(std::pair(s.Faixa.visivel, Selecionado()), std::pair(false, P(1, 0)));
    // With no item selected, the range's items are the hit item alone.
    MouseDownCanvas(s, 50, 60, BotaoMouse::Esquerdo, true);  // (3, 3)
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 3, 3, 3}));
}

TEST_F(Selecao, ArrastarSelecionaORetanguloEVoltarAoItemLimpa)
{
    Montar({{64, 32, 32}, {40, 40}, {16, 16, 16}});
    s.Documento.banda(3).Deslocamento = 10;
    Reposicionar();
    // From (1, 2): outside every item x < 8 takes item 1, else the band's last
    // item; below every band the last band whose top is above the pointer; in
    // the gap over band 3, band 2; back on the item, no range.
    MouseDownCanvas(s, 80, 20, BotaoMouse::Esquerdo, false);
    const std::pair<QPoint, FaixaSelecao> arrastes[] = {
        {{10, 40}, {true, 1, 2, 1, 2}}, {{80, 20}, {}},  {{300, 40}, {true, 1, 2, 2, 2}},
        {{3, 40}, {true, 1, 2, 1, 2}},  {{3, 900}, {true, 1, 3, 1, 2}}, {{300, 59}, {true, 1, 2, 2, 2}}};
    for (const auto &[p, faixa] : arrastes) {
        ArrastarSelecao(s, p.x(), p.y());
        EXPECT_EQ(s.Faixa.visivel ? s.Faixa : FaixaSelecao(), faixa) << p.x() << "," << p.y();
    }
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
    EXPECT_EQ(Selecionado(), P(1, 1));
    EXPECT_EQ(s.Faixa, (FaixaSelecao{true, 1, 3, 1, 2}));
    // As wide as the widest band, from the first band's top to the last's bottom.
    EXPECT_EQ(RetanguloFaixa(s), QRect(7, 15, 150, 56));
    EXPECT_EQ(LegendaSelecao(s), QStringLiteral("(1, 1)"));

    Selecionar(3, 2);
    s.Faixa = FaixaSelecao();
    SelecionarFaixa(s, 3, 3);
    EXPECT_EQ(RetanguloFaixa(s), QRect(16 + 7, 52 - 1, 34, 20));
    EXPECT_EQ(RetanguloSelecao(s), QRect(24, 52, 16, 18));
    NadaSelecionado(s);
    EXPECT_TRUE(RetanguloSelecao(s).isEmpty());
    EXPECT_EQ(LegendaSelecao(s), QStringLiteral("(3)"));
}
