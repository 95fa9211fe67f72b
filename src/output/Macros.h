#pragma once
// Macros, colour macros and inline style tags inside item texts. The viewer
// resolves them at print time; the editor only shows sample values on the
// canvas and reads the colours a text asks for.

#include <QDateTime>
#include <QLocale>
#include <QMap>
#include <QString>
#include <array>

namespace lumeta {

struct MacroDef {
    const char *legenda;  // caption of the "Inserir macro" menu entry
    const char *macro;    // empty for the header/footer variable, which asks a number
};

// Rows of the "Inserir &macro" submenu, index = mnuEditarMacroItem index.
const std::array<MacroDef, 13> &TabelaMacros();

// Texts of the question asked for a header/footer variable.
QString PerguntaVariavelMacro();

// The macro text for the answer to that question: "7" gives "(%_07_%)".
// An empty answer gives an empty text (nothing is inserted).
QString MacroVariavel(const QString &resposta);

// Replaces the page, date and time macros by their display forms; variable
// macros and unknown keys stay as they are.
QString ExpandirMacros(const QString &texto, int pagina, const QDateTime &agora, const QLocale &local);
inline QString ExpandirMacros(const QString &texto, int pagina = 1)
{
    // Reading the clock and the system locale costs more than most texts,
    // which hold no macro at all.
    if (!texto.contains(QLatin1String("(%_")))
        return texto;
    return ExpandirMacros(texto, pagina, QDateTime::currentDateTime(), QLocale::system());
}

// What the macros of a printed page stand for: the page and the page count,
// the moment printing started and the header and footer variables the host
// program assigned (an unassigned one prints nothing).
struct ValoresMacros {
    int pagina = 1;
    int paginas = 1;
    QDateTime agora;
    QLocale local;
    const QMap<int, QString> *variaveis = nullptr;
};
QString ExpandirMacros(const QString &texto, const ValoresMacros &valores);

struct CoresMacro {
    QString texto;        // the text without its colour macros
    int fundo = -1;       // "F": RGB as red + 256 green + 65536 blue, or -1
    int frente = -1;      // "T"
    int linha = -1;       // "L"
};
CoresMacro MacroColor(const QString &texto);

// Removes every colour macro of one letter ('F', 'T' or 'L').
QString MacroColorRemover(const QString &texto, QChar letra);

// The colour macro a free colour choice writes: "<%_F,255,0,0_%>".
QString MontarMacroColor(QChar letra, int rgb);

// Inline style tags: {n} bold, {i} italic, {s} underline, {r} strikethrough,
// closed by {/n}..., and {e} as a line break. They act on whole words.
enum EstiloTag : unsigned {
    EstiloNegrito = 1,
    EstiloItalico = 2,
    EstiloSublinhado = 4,
    EstiloTachado = 8,
};
inline const QString TagQuebraLinha = QStringLiteral("{e}");

struct PalavraEstilizada {
    QString texto;      // the word without its tags
    unsigned estilo;    // EstiloTag bits the word is drawn with
};

// Applies the tags of one word (no blanks inside) to the running style: an
// opening tag sets its style for this word and the next ones, a closing tag
// clears it after this word. `estado` is updated for the following word.
PalavraEstilizada AplicarTags(const QString &palavra, unsigned &estado);

// The text with every style tag (not {e}) removed, in any letter case.
QString RemoverTags(const QString &texto);

}  // namespace lumeta
