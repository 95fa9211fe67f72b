#include "editing/Teclado.h"
#include "editing/SessaoMontada.h"

using namespace lumeta;
using Teclado = lumeta::teste::SessaoMontada;
using L = QList<int32_t>;

namespace {

bool Tecla(SessaoEdicao &s, int tecla, Qt::KeyboardModifiers m = Qt::NoModifier)
{
    return TeclaCanvas(s, tecla, m).consumida;
}

}  // namespace

TEST_F(Teclado, ShiftRedimensionaDeOitoEmOitoEntreUmE9999EComFaixaCopiaAMedida)
{
    Montar({{8, 32}, {40}, {16}});
    Selecionar(1, 1);
    // Each step against its limit, then once more at the limit.
    const struct {
        int32_t antes;
        int tecla;
        int32_t depois;
        bool largura;
    } passos[] = {{8, Qt::Key_Left, 1, true},       {1, Qt::Key_Left, 1, true},
                  {9995, Qt::Key_Right, 9999, true}, {9999, Qt::Key_Right, 9999, true},
                  {5, Qt::Key_Up, 1, false},         {-40, Qt::Key_Down, 48, false},  // automatic: fixed at + 8
                  {9995, Qt::Key_Down, 9999, false}};
    for (const auto &p : passos) {
        int32_t &valor = p.largura ? s.Documento.banda(1).Itens[0].Largura : s.Documento.banda(1).Altura;
        valor = p.antes;
        EXPECT_TRUE(Tecla(s, p.tecla, Qt::ShiftModifier));
        EXPECT_EQ(valor, p.depois) << p.antes;
    }
    // Nothing without an item, and only Shift alone resizes: no repaint.
    const int antes = pinturas;
    Selecionar(1, 0);
    EXPECT_TRUE(Tecla(s, Qt::Key_Right, Qt::ShiftModifier));
    Selecionar(1, 1);
    EXPECT_FALSE(Tecla(s, Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier));
    EXPECT_FALSE(Tecla(s, Qt::Key_Left, Qt::AltModifier));
    EXPECT_EQ(pinturas, antes);

    // A range over bands: every item of them and every band; inside one
    // band, its items from first to last.
    Montar({{64, 32}, {40}, {16}});
    CliqueEShiftClique(10, 20, 10, 40);
    Tecla(s, Qt::Key_Right, Qt::ShiftModifier);
    Tecla(s, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ((QList<L>{Larguras(1), Larguras(2), Larguras(3)}), (QList<L>{{72, 72}, {72}, {16}}));
    EXPECT_EQ(Alturas(), (L{26, 26, 18}));
    EXPECT_EQ(B(3).Topo, 16 + 26 + 26);
    Montar({{64, 32, 16, 8}});
    CliqueEShiftClique(80, 20, 110, 20);
    Tecla(s, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Larguras(1), (L{64, 24, 24, 8}));
}

TEST_F(Teclado, SetasNasPontasCtrlReordenaEMaisEMenosNumericos)
{
    Montar({{64, 32, 16}, {40}, {16, 16}});
    // Arrows stop at the ends; down lowers the item number to the band's count.
    const struct {
        std::pair<int, int> de;
        int tecla;
        std::pair<int, int> para;
    } setas[] = {{{1, 0}, Qt::Key_Right, {1, 1}}, {{1, 1}, Qt::Key_Left, {1, 1}}, {{1, 3}, Qt::Key_Right, {1, 3}},
                 {{1, 3}, Qt::Key_Up, {1, 3}},    {{1, 3}, Qt::Key_Down, {2, 1}}, {{2, 0}, Qt::Key_Down, {3, 1}},
                 {{3, 1}, Qt::Key_Down, {3, 1}}};
    for (const auto &c : setas) {
        Selecionar(c.de.first, c.de.second);
        Tecla(s, c.tecla);
        EXPECT_EQ(Selecionado(), c.para) << c.de.first << "," << c.de.second << " " << c.tecla;
    }
    EXPECT_EQ(pinturas, 0);

    EXPECT_TRUE(Tecla(s, Qt::Key_Up, Qt::ControlModifier));
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"1.1", "3.1", "2.1"}));
    EXPECT_TRUE(Tecla(s, Qt::Key_Right, Qt::ControlModifier));
    EXPECT_EQ(s.ItemSelecionado, 2);

    // Numeric-pad plus inserts, multiply appends; the main keyboard's do nothing.
    EXPECT_TRUE(Tecla(s, Qt::Key_Plus, Qt::KeypadModifier));
    EXPECT_TRUE(Tecla(s, Qt::Key_Asterisk, Qt::KeypadModifier));
    EXPECT_EQ(Textos(2), (QStringList{"3.2", "Texto 3", "3.1", "Texto 4"}));
    EXPECT_EQ(s.ItemSelecionado, 0);
    const int antes = pinturas;
    for (int tecla : {Qt::Key_Plus, Qt::Key_Asterisk, Qt::Key_Minus})
        EXPECT_FALSE(Tecla(s, tecla)) << tecla;
    EXPECT_EQ(pinturas, antes);

    // Numeric-pad minus, as Delete (which the window's tests press): the
    // item, or the band without one.
    Selecionar(2, 1);
    EXPECT_TRUE(Tecla(s, Qt::Key_Minus, Qt::KeypadModifier));
    EXPECT_EQ(Textos(2), (QStringList{"Texto 3", "3.1", "Texto 4"}));
    Selecionar(2, 0);
    EXPECT_TRUE(Tecla(s, Qt::Key_Minus, Qt::KeypadModifier));
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"1.1", "2.1"}));
}

TEST_F(Teclado, RolagemAtalhosDasLinhasECaracteres)
{
    Montar({{64}});
    // Each scroll key, against its end of the range; Shift scrolls nothing.
    for (const auto &[tecla, de, para] : {std::tuple{Qt::Key_PageUp, 30, 0}, {Qt::Key_PageUp, 120, 70},
                                          {Qt::Key_PageDown, 180, 200}, {Qt::Key_Home, 120, 0}, {Qt::Key_End, 120, 200}})
        EXPECT_EQ(NovaRolagem(de, 50, 200, TeclaCanvas(s, tecla, Qt::NoModifier).rolagem), para) << tecla;
    EXPECT_EQ(TeclaCanvas(s, Qt::Key_End, Qt::ShiftModifier).rolagem, AcaoRolagem::Nenhuma);

    // Ctrl digits, main or pad, as the pad's arrows lie; Alt 1 to 6 as they are.
    EXPECT_EQ(BotaoLinhaDoAtalho(Qt::Key_6, Qt::ControlModifier), 2);
    EXPECT_EQ(BotaoLinhaDoAtalho(Qt::Key_4, Qt::ControlModifier | Qt::KeypadModifier), 6);
    EXPECT_EQ(BotaoLinhaDoAtalho(Qt::Key_7, Qt::AltModifier | Qt::KeypadModifier), 0);

    // Typed characters go to the item's text, none without an item, and the
    // pad's signs are no text; Escape deselects.
    EXPECT_FALSE(CaractereCanvas(s, QStringLiteral("a")));
    Selecionar(1, 1);
    EXPECT_TRUE(CaractereCanvas(s, QStringLiteral("-")));
    EXPECT_EQ(digitado, QString());
    EXPECT_TRUE(CaractereCanvas(s, QString(QChar(27))));
    EXPECT_EQ(std::tuple(s.ItemSelecionado, B(1).NumItens(), pinturas), std::tuple(0, 1, 0));
}
