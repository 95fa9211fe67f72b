// A band's code before and after its commands: the one stored text, the caret
// position and the tools' code.
#include "output/Comentario.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(Comentario, DuasPartesNumTexto)
{
    const QString ab = QStringLiteral("A") + QChar(0xFF) + QStringLiteral("B");
    const PartesComentario p = DividirComentario(ab);
    EXPECT_EQ(p.antes, QStringLiteral("A"));
    EXPECT_EQ(p.depois, QStringLiteral("B"));
    EXPECT_EQ(JuntarComentario(p.antes, p.depois), ab);
    EXPECT_EQ(JuntarComentario(QStringLiteral("A"), QString()), QStringLiteral("A"));
    EXPECT_EQ(JuntarComentario(QString(), QStringLiteral("B")), QChar(0xFF) + QStringLiteral("B"));
    EXPECT_EQ(DividirComentario(QStringLiteral("só antes")).antes, QStringLiteral("só antes"));
    EXPECT_EQ(CaixaParaComentario(ComentarioParaCaixa(QStringLiteral("a\r\nb"))), QStringLiteral("a\r\nb"));
    EXPECT_EQ(CaixaParaComentario(QStringLiteral("a\nb\r\n")), QStringLiteral("a\r\nb\r\n"));
}

TEST(Comentario, LinhaEColunaDoCursor)
{
    for (auto [texto, pos, linhaColuna] : {std::tuple{"ab\nc", 4, "(2, 2)"}, std::tuple{"ab\nc", 2, "(1, 3)"},
                                           std::tuple{"ab\n", 3, "(2, 1)"}, std::tuple{"", 0, "(1, 1)"}})
        EXPECT_EQ(LinhaColuna(QString::fromLatin1(texto), pos), QString::fromLatin1(linhaColuna)) << texto << pos;
}

TEST(Comentario, CodigoDasFerramentas)
{
    LinguagemDef ling;
    ling.ComandosSimples = QStringLiteral("MOVE '§c' TO CMD");
    EXPECT_EQ(CodigoFerramenta(ling, FerramentaComentario::QuebraPagina), QStringLiteral("MOVE 'QP' TO CMD\r\n"));
    ling.ComandosSimples += QStringLiteral("\r\n");
    EXPECT_EQ(CodigoFerramenta(ling, FerramentaComentario::VariavelMacro),
              QStringLiteral("MOVE '01 Digite aqui o Valor!' TO CMD\r\n"));
    // A COBOL line that passes column 72 goes through the splitter.
    ling.EhCobol = true;
    ling.CobolString = false;
    ling.ComandosSimples = QStringLiteral("           MOVE \"§c") + QString(60, u'X') + QStringLiteral("\" TO CMD");
    const QString cobol = CodigoFerramenta(ling, FerramentaComentario::QuebraPagina);
    for (const QString &linha : cobol.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts))
        EXPECT_LE(linha.size(), 72) << linha.toStdString();
    EXPECT_GT(cobol.count(QStringLiteral("\r\n")), 1);
}
