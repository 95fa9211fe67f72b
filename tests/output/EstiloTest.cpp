// Style tags: what the style dialog's buttons do not reach through the window
// (tags in capitals, empty words, switching off inside a longer run), the
// e-mail text's marker and the viewer's arguments.
#include "output/Estilo.h"
#include "output/Visualizacao.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(Estilo, LigarEDesligarEmPalavrasInteirasMantendoOsVizinhos)
{
    EXPECT_EQ(TextoParaEstilo(QStringLiteral("Total{e}Geral{E}x")), QStringLiteral("Total\nGeral{E}x"));
    // Applies a style to the span [inicio, fim) and returns the text.
    const auto aplicado = [](const char *texto, qsizetype inicio, qsizetype fim, char letra, bool ligar) {
        const auto r = AplicarEstilo(QString::fromUtf8(texto), inicio, fim, QChar::fromLatin1(letra), ligar);
        return r ? r->texto : QStringLiteral("<nada>");
    };
    const std::tuple<const char *, int, int, char, bool, const char *> casos[] = {
        {"{N}Total{/N} geral", 4, 4, 'n', false, "Total geral"},           // tags in capitals are tags too
        {"a  b", 2, 2, 'n', true, "<nada>"},                                // an empty word changes nothing
        {"", 0, 0, 'i', true, "<nada>"},
        {"um\ndois", 4, 4, 'i', true, "um\n{i}dois{/i}"},                 // a line break ends a word
        // Open before and after the word: closed before it, reopened after.
        {"{n}Total geral fim{/n}", 10, 10, 'n', false, "{n}Total {/n} geral {n} fim{/n}"},
        // Closed inside the word: the words after do not gain it.
        {"{s}um dois{/s} tres", 7, 7, 's', false, "{s}um {/s} dois tres"},
        // Opened inside the word: only the later words keep it.
        {"um d{r}ois tres{/r}", 4, 4, 'r', false, "um dois {r} tres{/r}"},
        {"{i}um dois", 7, 7, 'i', false, "{i}um {/i} dois"},               // nothing reopened at the end
    };
    for (const auto &[texto, inicio, fim, letra, ligar, esperado] : casos)
        EXPECT_EQ(aplicado(texto, inicio, fim, letra, ligar), QString::fromUtf8(esperado)) << texto;
    EXPECT_FALSE(EstiloPressionado(QStringLiteral("{n}Total{/n}"), 3, 8, u'i'));
}

TEST(TextoEmail, SoOMarcadorExatoEhQuebraDeLinha)
{
    EXPECT_EQ(TextoEmailDaCaixa(QStringLiteral("um\ndois\r\ntres")), QStringLiteral("um{ENTER}dois{ENTER}tres"));
    const QString padrao = TextoEmailDaCaixa(TextoEmailPadrao());
    EXPECT_TRUE(padrao.startsWith(QStringLiteral("Em anexo o orçamento solicitado!{ENTER}{ENTER}Se você")));
}

TEST(Visualizacao, ArgumentosNaOrdemDoVisualizador)
{
    // Without e-mail the window test reads them from a stand-in viewer.
    EXPECT_EQ(ArgumentosVisualizador(QStringLiteral("/x"), true),
              (QStringList{"/G", "/x", "/T", "Lumeta", "/ED", EmailExemplo, "/SE"}));
}
