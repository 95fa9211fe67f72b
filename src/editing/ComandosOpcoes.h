#pragma once
// The page options that small dialogs fill (margins, printer, JPG quality,
// e-mail text), the item text of the style dialog and the preview: the rules
// the dialogs follow and what the session does with their answers.

#include <QString>
#include <QStringList>

namespace lumeta {

class SessaoEdicao;

// --- margins -------------------------------------------------------------------------
// A margin is a quoted number of millimetres or, without a leading quote, a
// command or variable name.
struct MargemLida {
    bool numero = false;
    double milimetros = 0;
    QString comando;
};
MargemLida LerMargem(const QString &margem);
// The command when there is one, else the quoted number ("." as the decimal
// point whatever the locale, so the margin reads back as written).
QString GravarMargem(double milimetros, const QString &comando);
void DefinirMargens(SessaoEdicao &s, const QString &superior, const QString &esquerda, const QString &inferior);

// --- printer name ----------------------------------------------------------------------
inline const QString ImpressoraPadrao = QStringLiteral("<< Padrão do Windows >>");
inline const QString ImpressoraUsuario = QStringLiteral("<< O usuário seleciona >>");
inline const QString ValorImpressoraUsuario = QStringLiteral("<?>");
// The two special entries and then the system's printers, in its order.
QStringList ListaImpressoras(const QStringList &sistema);
// The first entry equal to the typed text (trimmed, any case); -1 for none.
int EntradaImpressora(const QStringList &lista, const QString &digitado);
// The entry a stored value selects (-1 for none).
int EntradaDoValor(const QStringList &lista, const QString &valor);
// What OK stores for the selected entry and the text box.
QString ValorImpressora(int entrada, const QString &texto);
void DefinirNomeImpressora(SessaoEdicao &s, const QString &nome);

// --- JPG quality -----------------------------------------------------------------------
int16_t LimitarQualidadeJPG(qint64 valor);
// Also the session's quality, which the JPG and PDF e-mail types take.
void DefinirQualidadeJPG(SessaoEdicao &s, int16_t qualidade);

// --- e-mail text and style ---------------------------------------------------------------
// The text as the e-mail dialog's box holds it.
void DefinirTextoEmail(SessaoEdicao &s, const QString &caixa);
// The new text from the style dialog (already with "{e}") for the selected
// item or every item of a visible range: a text of several lines turns on
// each one's several-lines flag.
void DefinirTextoEstilo(SessaoEdicao &s, const QString &texto);

// --- preview -------------------------------------------------------------------------------
bool mnuEditarVisualizar(SessaoEdicao &s);

}  // namespace lumeta
