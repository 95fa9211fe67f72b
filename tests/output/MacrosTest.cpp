#include "output/Macros.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(Macros, ExpandeParaAsFormasDeExibicaoEmPortugues)
{
    const QLocale ptBR(QLocale::Portuguese, QLocale::Brazil);
    const QDateTime quarta(QDate(2026, 3, 4), QTime(7, 5, 9));  // a Wednesday
    // Variable macros and unknown keys are the host's business: shown as written.
    for (auto [pagina, texto, esperado] :
         {std::tuple{37, "(%_zpg_%)/(%_ZPS_%) p(%_pag_%) (%_mes_%)", "00037/00010 p37 03"},
          {1, "(%_sem_%), (%_dia_%) de (%_msn_%) de (%_ano_%) (%_hor_%):(%_min_%):(%_seg_%)",
           "Quarta-feira, 04 de março de 2026 07:05:09"},
          {1, "(%_07_%) (%_xyz_%) (%_pag", "(%_07_%) (%_xyz_%) (%_pag"}})
        EXPECT_EQ(ExpandirMacros(QString::fromUtf8(texto), pagina, quarta, ptBR), QString::fromUtf8(esperado));
}

TEST(Macros, VariavelDeCabecalhoERodapeLeDoisDigitos)
{
    for (auto [digitos, macro] : {std::pair{"7", "(%_07_%)"}, std::pair{" 5", "(%_05_%)"}, std::pair{"123", "(%_12_%)"},
                                  std::pair{"x", "(%_00_%)"}, std::pair{"4x", "(%_04_%)"}, std::pair{"", ""}})
        EXPECT_EQ(MacroVariavel(QString::fromLatin1(digitos)), QString::fromLatin1(macro)) << digitos;
    EXPECT_EQ(QString::fromUtf8(TabelaMacros()[12].legenda), QStringLiteral("Variável de cabeçalho e rodapé"));
    EXPECT_TRUE(PerguntaVariavelMacro().endsWith(QStringLiteral("Ex.: 01 Valor\n\nDigite o número da variável (00 até 99):")));
}

TEST(Macros, MacrosDeCorDaoOsTresRGBsEOTextoSemElas)
{
    // The text without the macros, then the text, background and line colours (-1: none).
    const auto cores = [](const char *texto) {
        const CoresMacro c = MacroColor(QString::fromLatin1(texto));
        return std::tuple(c.texto, c.frente, c.fundo, c.linha);
    };
    const auto rgb = [](int r, int g, int b) { return r + 256 * g + 65536 * b; };
    EXPECT_EQ(cores("<%_F,255,0,0_%>Total"), std::tuple(QStringLiteral("Total"), -1, 255, -1));
    EXPECT_EQ(cores("<%_T, 0 , 128 , 255 _%>x"), std::tuple(QStringLiteral("x"), rgb(0, 128, 255), -1, -1));
    // Out of range and fractional parts: the low byte, rounded.
    EXPECT_EQ(std::get<2>(cores("<%_F,300,0,0_%>")), 44);
    EXPECT_EQ(std::get<3>(cores("<%_L,1.6,0,-1_%>")), rgb(2, 0, 255));
    EXPECT_EQ(cores("<%_F,1,2_%>resto"), std::tuple(QStringLiteral("resto"), -1, -1, -1));
    // The last of a letter wins; letters in either case.
    EXPECT_EQ(cores("<%_F,1,2,3_%>a<%_F,4,5,6_%>b<%_l,7,8,9_%>"), std::tuple(QStringLiteral("ab"), -1, rgb(4, 5, 6), rgb(7, 8, 9)));
    // An unclosed macro is plain text, and reading it ends.
    EXPECT_EQ(cores("<%_T,9,9,9_%>a <%_F,1,1,1 sem fim"), std::tuple(QStringLiteral("a <%_F,1,1,1 sem fim"), rgb(9, 9, 9), -1, -1));
}

TEST(Macros, RemoverMacroDeUmaLetraMantemAsOutras)
{
    const QString t = QStringLiteral("<%_F,1,2,3_%><%_T,4,5,6_%>Nome<%_F,1,2,3_%>");
    EXPECT_EQ(MacroColorRemover(t, QLatin1Char('F')), QStringLiteral("<%_T,4,5,6_%>Nome"));
    EXPECT_EQ(MacroColorRemover(t, QLatin1Char('T')), QStringLiteral("<%_F,1,2,3_%>Nome<%_F,1,2,3_%>"));
}

TEST(Macros, TagsValemParaPalavrasInteiras)
{
    auto estilos = [](const QString &frase, unsigned inicial) {
        unsigned estado = inicial;
        QStringList r;
        for (const QString &p : frase.split(QLatin1Char(' '))) {
            const PalavraEstilizada w = AplicarTags(p, estado);
            r << w.texto + QLatin1Char('/') + QString::number(w.estilo);
        }
        return r;
    };
    EXPECT_EQ(estilos(QStringLiteral("{n}Total:{/n} 100"), 0), (QStringList{"Total:/1", "100/0"}));
    EXPECT_EQ(estilos(QStringLiteral("um {N}dois três"), 0), (QStringList{"um/0", "dois/1", "três/1"}));
    EXPECT_EQ(estilos(QStringLiteral("a{i}b c{/I} d {s}{r}e{/s} f"), 0),
              (QStringList{"ab/2", "c/2", "d/0", "e/12", "f/8"}));
    // Words before any tag keep the item's own styles, which a closing tag also ends.
    EXPECT_EQ(estilos(QStringLiteral("x y{/n} z"), EstiloNegrito), (QStringList{"x/1", "y/1", "z/0"}));
    EXPECT_EQ(RemoverTags(QStringLiteral("{N}a{/n} {e}b {x}")), QStringLiteral("a {e}b {x}"));
}
