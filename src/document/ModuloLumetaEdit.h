#pragma once
// Shared procedures of the editor's main module that need no window: the
// folders the editor works with and the long form of a path.

#include <QString>

namespace lumeta {

// The folder of the editor's temporary files (the exchange and the preview
// file), ending in a separator: one only this user can enter. The user's
// runtime folder (XDG_RUNTIME_DIR) when it is private; otherwise
// "lumetaedit-<uid>" in the system's temporary folder (TMPDIR), or, when that
// name is taken by anything but the user's private folder, the first free or
// private one of a few numbered names. It is not made here: the first write
// makes it (GravarArquivoPrivado), and refuses it when it is not private.
QString PastaTemporaria();

// The folder of the running program, ending in a separator.
QString PastaPrograma();

// The folder of what ships with the program (the help documents, the
// example layouts), ending in a separator: the program's folder, or the one
// the variable LUMETAEDIT_RECURSOS names.
QString PastaRecursos();
inline constexpr const char *VariavelPastaRecursos = "LUMETAEDIT_RECURSOS";
inline const QString DocumentoConteudo = QStringLiteral("ajuda/Leia-me.html");
inline const QString DocumentoTutorial = QStringLiteral("ajuda/Tutorial LumetaEdit.html");
inline const QString PastaExemplos = QStringLiteral("exemplos");

// The path as the file system names it: absolute, every folder and the file
// name spelled as the directory entry is (so a name typed in another letter
// case on a case-insensitive volume comes back as stored). Components that do
// not exist are kept as given.
QString CaminhoLongo(const QString &caminho);

// The file name of a path: the text after its last separator ("/" or "\").
QString NomeDoArquivo(const QString &caminho);

// Names of the fixed files in that folder.
inline const QString NomeArquivoTransferencia = QStringLiteral("~TMP_LumetaEdit.clp");
inline const QString NomeArquivoVisualizacao = QStringLiteral("Lumeta.tmp");

}  // namespace lumeta
