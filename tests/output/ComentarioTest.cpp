// A band's code before and after its commands, beyond what the comment
// dialog's tests drive: one side empty, the caret position, the tools' code.
#include "output/Comentario.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(Comentario, LadoVazioLinhaEColunaECodigoDasFerramentas)
{
    EXPECT_EQ(JuntarComentario(QString(), QStringLiteral("B")), QChar(0xFF) + QStringLiteral("B"));
    EXPECT_EQ(DividirComentario(QStringLiteral("só antes")).antes, QStringLiteral("só antes"));
    for (auto [texto, pos, linhaColuna] : {std::tuple{"ab\nc", 4, "(2, 2)"}, std::tuple{"ab\nc", 2, "(1, 3)"},
                                           std::tuple{"ab\n", 3, "(2, 1)"}, std::tuple{"", 0, "(1, 1)"}})
        EXPECT_EQ(LinhaColuna(QString::fromLatin1(texto), pos), QString::fromLatin1(linhaColuna)) << texto << pos;

    LinguagemDef ling;
    ling.ComandosSimples = QStringLiteral("MOVE '§c' TO CMD\r\n");
    EXPECT_EQ(CodigoFerramenta(ling, FerramentaComentario::VariavelMacro),
              QStringLiteral("MOVE '01 Digite aqui o Valor!' TO CMD\r\n"));
    // A COBOL line that passes column 72 goes through the splitter.
    ling.EhCobol = true;
    ling.CobolString = false;
    ling.ComandosSimples = QStringLiteral("           MOVE \"§c") + QString(60, u'X') + QStringLiteral("\" TO CMD");
    EXPECT_EQ(CodigoFerramenta(ling, FerramentaComentario::QuebraPagina),
              QStringLiteral("           MOVE \"QP") + QString(53, u'X') + QStringLiteral("\r\n      -    \"XXXXXXX\"\r\n")
                  + QString(14, u' ') + QStringLiteral(" TO CMD\r\n"));
}
