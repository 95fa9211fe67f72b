#pragma once
// Registers the layout file type with the desktop, so that opening a .lmt
// file starts the editor with its path and shows the editor's icon. On this
// platform the "registry" is the user's XDG data folder: a MIME type
// definition, the icons and a desktop entry, each written as one "value"
// (a file) under its "key" (a folder).

#include <QByteArray>
#include <QImage>
#include <QString>

namespace lumeta {

class InterfaceUsuario;

enum TipoRegistro { RegistroTexto = 1, RegistroBinario = 3, RegistroNumero = 4 };

// $XDG_DATA_HOME, or ~/.local/share when it is not set.
QString PastaDadosUsuario();

// The MIME type registered for an extension: "lmt" gives application/x-lumeta-lmt.
QString TipoMime(const QString &extensao);

// Creates the folder `chave` (relative to the user data folder unless
// absolute) and writes the file `nome` in it with `valor`. With gravarJa the
// file reaches the disk before the call returns. Failures are shown with the
// exclamation icon when mostrarErros is set.
bool GravarRegistro(const QString &chave, int tipo, const QString &nome, const QByteArray &valor,
                    bool mostrarErros, bool gravarJa, InterfaceUsuario *ui);

// Registers `extensao` (without the dot) for `programa`, stopping at the first
// entry that cannot be written. `icone` names the program whose icon the file
// type shows. True when every entry was written.
bool Associar(const QString &extensao, const QString &descricao, const QString &programa,
              const QString &icone, InterfaceUsuario *ui);

// The command line the desktop runs for a file: the program path, a space
// and the desktop's field code for the file.
QString LinhaComandoAbrir(const QString &programa);

// The editor's icon, drawn at any size: a page with a header band and rows.
QImage DesenharIconeLumetaEdit(int tamanho);

}  // namespace lumeta
