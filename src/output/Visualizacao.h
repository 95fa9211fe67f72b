#pragma once
// The preview: the command text goes into the preview file and the viewer is
// started on it, exactly as a host program would do after writing its own
// command file. Also the e-mail body's line-break markers.

#include "document/InterfaceUsuario.h"

#include <QString>
#include <QStringList>

namespace lumeta {

inline const QString TituloVisualizar = QStringLiteral("Visualizar");
inline const QString MensagemLumetaAusente = QStringLiteral("O Lumeta não foi encontrado, ou não está instalado!");
// The recipient handed to the viewer when the layout sends e-mail: only an
// example, the host program supplies the real one.
inline const QString EmailExemplo = QStringLiteral("destinatario@exemplo.com.br");
// Names the viewer's program (a path, or a name looked up on PATH) when the
// viewer is not "Lumeta.exe" on PATH, e.g. a wrapper running it under a
// compatibility layer.
inline const char *const VariavelVisualizador = "LUMETAEDIT_VISUALIZADOR";

// The viewer's arguments for the command file `arquivo`.
QStringList ArgumentosVisualizador(const QString &arquivo, bool enviarEmail);

// The viewer's program file, or an empty text when there is none.
QString LocalizarVisualizador();

// Writes `texto` (Windows-1252) to `arquivo`, replacing it, and starts the
// viewer on it without waiting. Every failure is told to the user; false then.
bool Visualizar(const QString &texto, const QString &arquivo, bool enviarEmail, InterfaceUsuario *ui);

// The e-mail body as stored ("{ENTER}" markers, exact case) and as the text
// box shows it (line feeds).
QString TextoEmailParaCaixa(const QString &armazenado);
QString TextoEmailDaCaixa(const QString &caixa);
// The body the "Padrão" button fills in, as the text box shows it.
QString TextoEmailPadrao();

}  // namespace lumeta
