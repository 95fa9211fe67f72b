#pragma once
// A band's own host-program code: the lines placed before its commands and
// the lines placed after them, kept in one text with the character 255
// between the two (only when the second is not empty); and the ready-made
// code the comment editor inserts through a language's simple-command
// template.

#include "output/Linguagem.h"

#include <QString>

namespace lumeta {

inline constexpr QChar SeparadorComentario = QChar(0xFF);

struct PartesComentario {
    QString antes;
    QString depois;
};
// A text without the character 255 is all code before the band.
PartesComentario DividirComentario(const QString &comentario);
QString JuntarComentario(const QString &antes, const QString &depois);

// The model keeps CR LF line ends, the text boxes line feeds alone.
QString ComentarioParaCaixa(const QString &texto);
QString CaixaParaComentario(const QString &texto);

// "(line, column)" of the caret at `posicao` of `texto`: the line feeds before
// it plus one, and the characters since the last of them plus one.
QString LinhaColuna(const QString &texto, int posicao);

enum class FerramentaComentario { QuebraPagina, VariavelMacro };
// The language's simple-command template with "§c" replaced by the page-break
// command or by a variable assignment for the user to complete, ending with
// CR LF and, for a COBOL language, split at its columns.
QString CodigoFerramenta(const LinguagemDef &ling, FerramentaComentario ferramenta);

}  // namespace lumeta
