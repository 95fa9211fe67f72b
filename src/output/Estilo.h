#pragma once
// The inline style tags ("{n}", "{i}", "{s}", "{r}" and their closing "{/x}")
// as the style dialog writes them around whole words, and the "{e}" line
// breaks of an item's text as a multi-line box shows them.

#include <QString>
#include <optional>

namespace lumeta {

// The tag letters of the four style buttons: bold, italic, underline,
// strikethrough.
inline constexpr char LetrasEstilo[4] = {'n', 'i', 's', 'r'};

// Every "{e}" (exact case) as a line feed, and back: line breaks (CR LF or
// LF) as "{e}" and tabs as eight blanks.
QString TextoParaEstilo(const QString &texto);
QString TextoDoEstilo(const QString &caixa);

// The style is open at `pos`: before it, its last opening tag (any case)
// lies after its last closing tag.
bool EstiloAberto(const QString &texto, qsizetype pos, QChar letra);

// A style button is shown pressed when the style is open at the start or at
// the end of the selection.
bool EstiloPressionado(const QString &texto, qsizetype inicio, qsizetype fim, QChar letra);

struct EdicaoEstilo {
    QString texto;
    qsizetype inicio = 0;  // the changed words, without the tags put around them
    qsizetype fim = 0;
};

// Switches the style on or off for the words the selection touches. Nothing
// (nullopt) when the selection, widened to whole words, is empty. Switching
// off keeps the style of the words before the selection (a closing tag when
// it is open at the start) and of the words after it (an opening tag when it
// is still open at the end).
std::optional<EdicaoEstilo> AplicarEstilo(const QString &texto, qsizetype inicio, qsizetype fim, QChar letra,
                                          bool ligar);

}  // namespace lumeta
