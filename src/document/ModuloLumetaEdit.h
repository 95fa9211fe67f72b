#pragma once
// Shared procedures of the editor's main module that need no window: the
// folders the editor works with and the long form of a path.

#include <QString>

namespace lumeta {

// The system's temporary folder, always ending in a separator.
QString PastaTemporaria();

// The folder of the running program, ending in a separator.
QString PastaPrograma();

// The path as the file system names it: absolute, every folder and the file
// name spelled as the directory entry is (so a name typed in another letter
// case on a case-insensitive volume comes back as stored). Components that do
// not exist are kept as given.
QString CaminhoLongo(const QString &caminho);

// The file name of a path: the text after its last separator ("/" or "\").
QString NomeDoArquivo(const QString &caminho);

// Names of the fixed files in the temporary folder.
inline const QString NomeArquivoTransferencia = QStringLiteral("~TMP_LumetaEdit.clp");
inline const QString NomeArquivoVisualizacao = QStringLiteral("Lumeta.tmp");

}  // namespace lumeta
