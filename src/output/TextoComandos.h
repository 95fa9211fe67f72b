#pragma once
// The command text: the lines a host program writes so that the viewer fills
// the layout with data. Built whole after every edit, so it must be cheap.

#include "controls/clsConcatenarString.h"
#include "document/Layout.h"

namespace lumeta {

inline const QString FimLinha = QStringLiteral("\r\n");

// The whole command text of a layout, lines ending with CR LF.
QString GerarTextoComandos(const LayoutDocumento &doc);
// Same, into a caller's builder (cleared first), for callers that reuse one.
void GerarTextoComandos(const LayoutDocumento &doc, clsConcatenarString &saida);

// The distinct texts of all command items, first appearance first, each ended
// by CR LF; texts differing only in letter case count once.
QString ListaComandosUtilizados(const LayoutDocumento &doc);

// Pieces shared with the copy-as code generator.
// Decimal with at least `largura` digits, zero padded; a negative value is "-"
// followed by its magnitude padded the same way. Nothing is ever cut.
QString Numero(qint64 valor, int largura);
void AcrescentarNumero(clsConcatenarString &s, qint64 valor, int largura);
// "1" or "0".
inline QChar Booleano(bool v) { return v ? QLatin1Char('1') : QLatin1Char('0'); }
// The letter after "B" of a barcode command: (tipo mod 10) + 96, or + 48 for PDF417.
QChar LetraCodigoBarras(int tipo);
// Value of a picture, barcode or bar item: a quoted text is a fixed value
// (quotes removed); anything else is a host variable, so a sample stands in.
QString ValorItem(const Item &item);
// The margin as the "MS "/"ME "/"MI " lines carry it: a quoted number rounded
// to width 3, or a host variable's name as it stands.
QString ValorMargem(const QString &margem);
// Leading number of a text as a number reader of the host language takes it
// (blanks, a sign, digits, a decimal point); no digits gives 0.
double NumeroInicial(const QString &texto);
// Half away from zero.
qint64 Arredondar(double v);
// Whether an item yields an "L " line (chart bars never do).
bool TemLinhaL(const Item &item);
// The item's font against the last one written: names are case-sensitive.
inline bool FonteDiferente(const FonteItem &a, const FonteItem &b) { return !(a == b); }

}  // namespace lumeta
