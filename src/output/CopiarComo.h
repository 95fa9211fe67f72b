#pragma once
// Copy-as code: the walk of the command text, but every command line goes
// through its language template, so the result is host-program source that
// writes those lines. It goes to the clipboard or into a copybook (".cpy").

#include "document/InterfaceUsuario.h"
#include "document/Layout.h"
#include "output/Linguagem.h"

namespace lumeta {

// Splits the lines that pass column 72 (71 in the STRING form) at their last
// literal: continuation lines with "-" in column 7, or, with `cobolString`, a
// "move spaces" line, a STRING statement of closed literals and its
// "delimited by size into" line. Every complete line is treated by itself;
// text after the last CR LF is dropped. The result ends with CR LF.
QString QuebrarLinhasCobol(const QString &texto, bool cobolString);

// The whole code for a layout, lines ending with CR LF.
QString GerarCopiarComo(const LayoutDocumento &doc, const LinguagemDef &ling);

enum class ResultadoCopiarComo {
    Texto,      // no file: the code is the returned text, for the clipboard
    Gravado,
    Recusado,   // the user kept an existing file
    Erro,       // the file could not be written (the user was told)
};

// With an empty `arquivo` only generates (the caller puts the text on the
// clipboard). Otherwise writes the code to that file in Windows-1252, after
// asking whether to replace it when it exists. `codigo` receives the code.
ResultadoCopiarComo CopiarComo(const LayoutDocumento &doc, const LinguagemDef &ling, const QString &arquivo,
                               InterfaceUsuario *ui, QString *codigo = nullptr);

// The question asked before an existing file is replaced.
QString PerguntaSubstituirArquivo(const QString &caminho);
inline const QString TituloSubstituirArquivo = QStringLiteral("Salvar");

// The copybook beside a layout: its path with the last four characters
// (the extension) replaced by ".cpy".
QString CaminhoCopybook(const QString &caminhoLayout);
// The "CPY" setting as it is now in the store (read at every save).
QString LerConfigCPY();

enum class ResultadoCopybook { SemLinguagem, LinguagemIlegivel, Gravado, Recusado, Erro };
// The copybook step of saving a layout: when the "CPY" setting names a
// language that can be read, its code is written beside the layout. A failure
// here is reported and never stops the layout itself from being saved.
ResultadoCopybook GravarCopybookAoSalvar(const LayoutDocumento &doc, const QString &caminhoLayout,
                                         bool cobolString, InterfaceUsuario *ui);

}  // namespace lumeta
