#pragma once
// Code 128, set C: digits in pairs. Also the symbol table both Code 128
// encoders share.

#include <QImage>
#include <QList>
#include <QString>
#include <string>

namespace lumeta {

inline constexpr int kStartBCode128 = 104;
inline constexpr int kStartCCode128 = 105;

// The 11 modules of symbol value 0..106 (value 0 = "11011001100").
const std::string &ModulosSimboloCode128(int valor);
// The stop pattern, 13 modules.
const std::string &ModulosParadaCode128();

// The module string of a list of symbol values, stop pattern appended.
std::string ModulosValoresCode128(const QList<int> &valores);

// Trimmed, every non-digit replaced by "0", and a leading "0" when the
// length is odd: "123" gives "0123", "12a4" gives "1204".
QString LimparValorCode128C(const QString &valor);

// The symbol values of a cleaned value: start C, one value per digit pair,
// the check value ((105 + sum of position x value) mod 103); the stop
// pattern is not a value and is not listed.
QList<int> ValoresCode128C(const QString &limpo);

// The whole module string of a cleaned value, stop pattern included.
std::string ModulosCode128C(const QString &limpo);

// Draws the symbol: width = modules + 2, height `alturaBarra` (+ 12 with the
// cleaned digits centred below the bars).
void DesenharCode128C(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo);

}  // namespace lumeta
