#include "output/Estilo.h"
#include "output/Visualizacao.h"

#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// Applies a style to the span [inicio, fim) of `texto` and returns the text.
QString aplicado(const QString &texto, qsizetype inicio, qsizetype fim, char letra, bool ligar)
{
    const auto r = AplicarEstilo(texto, inicio, fim, QChar::fromLatin1(letra), ligar);
    return r ? r->texto : QStringLiteral("<nada>");
}

}  // namespace

TEST(Estilo, LineBreaksAndTabsRoundTrip)
{
    EXPECT_EQ(TextoParaEstilo(QStringLiteral("Total{e}Geral{E}x")), QStringLiteral("Total\nGeral{E}x"));
    EXPECT_EQ(TextoDoEstilo(QStringLiteral("Total\nGeral")), QStringLiteral("Total{e}Geral"));
    EXPECT_EQ(TextoDoEstilo(QStringLiteral("a\r\nb\tc")), QStringLiteral("a{e}b        c"));
}

TEST(Estilo, WidensToWholeWordsRemovesBothTagsAndIgnoresAnEmptyWord)
{
    const auto r = AplicarEstilo(QStringLiteral("Total geral"), 1, 4, u'n', true);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->texto, QStringLiteral("{n}Total{/n} geral"));
    // The selection sits on the word inside the tags, so the button shows pressed.
    EXPECT_EQ(r->texto.mid(r->inicio, r->fim - r->inicio), QStringLiteral("Total"));
    EXPECT_TRUE(EstiloPressionado(r->texto, r->inicio, r->fim, u'n'));
    EXPECT_FALSE(EstiloPressionado(r->texto, r->inicio, r->fim, u'i'));

    // The caret inside "Total", no selection.
    EXPECT_EQ(aplicado(r->texto, 5, 5, 'n', false), QStringLiteral("Total geral"));
    // Tags in other letter case are tags too.
    EXPECT_EQ(aplicado(QStringLiteral("{N}Total{/N} geral"), 4, 4, 'n', false), QStringLiteral("Total geral"));
    // An empty widened selection changes nothing; a line break ends a word as a blank does.
    EXPECT_FALSE(AplicarEstilo(QStringLiteral("a  b"), 2, 2, u'n', true));
    EXPECT_FALSE(AplicarEstilo(QString(), 0, 0, u'i', true));
    EXPECT_EQ(aplicado(QStringLiteral("um\ndois"), 4, 4, 'i', true), QStringLiteral("um\n{i}dois{/i}"));
}

TEST(Estilo, SwitchingOffInsideAStyledRunKeepsTheNeighbours)
{
    // Open before and after the selected word: closed before it, reopened after.
    EXPECT_EQ(aplicado(QStringLiteral("{n}Total geral fim{/n}"), 10, 10, 'n', false),
              QStringLiteral("{n}Total {/n} geral {n} fim{/n}"));
    // Open at the start, closed inside the selection: the words before keep
    // it, the words after do not gain it.
    EXPECT_EQ(aplicado(QStringLiteral("{s}um dois{/s} tres"), 7, 7, 's', false),
              QStringLiteral("{s}um {/s} dois tres"));
    // Opened inside the selection and still open after it: only the later words keep it.
    EXPECT_EQ(aplicado(QStringLiteral("um d{r}ois tres{/r}"), 4, 4, 'r', false),
              QStringLiteral("um dois {r} tres{/r}"));
    // Reaching the end of the text, nothing is reopened.
    EXPECT_EQ(aplicado(QStringLiteral("{i}um dois"), 7, 7, 'i', false), QStringLiteral("{i}um {/i} dois"));
}

TEST(TextoEmail, OnlyTheExactMarkerIsALineBreak)
{
    EXPECT_EQ(TextoEmailParaCaixa(QStringLiteral("a{ENTER}b{enter}c")), QStringLiteral("a\nb{enter}c"));
    EXPECT_EQ(TextoEmailDaCaixa(QStringLiteral("um\ndois\r\ntres")), QStringLiteral("um{ENTER}dois{ENTER}tres"));
    const QString padrao = TextoEmailDaCaixa(TextoEmailPadrao());
    EXPECT_TRUE(padrao.startsWith(QStringLiteral("Em anexo o orçamento solicitado!{ENTER}{ENTER}Se você")));
    EXPECT_EQ(padrao.count(QStringLiteral("{ENTER}")), 9);
    EXPECT_TRUE(padrao.endsWith(QStringLiteral("{ENTER}")));
}

TEST(Visualizacao, ArgumentsInTheViewersOrder)
{
    EXPECT_EQ(ArgumentosVisualizador(QStringLiteral("/tmp/a b/Lumeta.tmp"), false),
              (QStringList{"/G", "/tmp/a b/Lumeta.tmp", "/T", "Lumeta", "/SE"}));
    EXPECT_EQ(ArgumentosVisualizador(QStringLiteral("/x"), true),
              (QStringList{"/G", "/x", "/T", "Lumeta", "/ED", EmailExemplo, "/SE"}));
}
