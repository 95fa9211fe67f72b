#pragma once
// Code 128, set B: the printable ASCII characters, one symbol each.

#include <QImage>
#include <QList>
#include <QString>
#include <string>

namespace lumeta {

// Every character outside " " .. "~" becomes "0".
QString LimparValorCode128B(const QString &valor);

// Start B, each character's value (its code - 32), the check value
// ((104 + sum of position x value) mod 103).
QList<int> ValoresCode128B(const QString &limpo);

// The whole module string, stop pattern included.
std::string ModulosCode128B(const QString &limpo);

// Draws the symbol: width = characters x 11 + 37, height `alturaBarra`
// (+ 12 with the value centred on the picture's width below the bars).
void DesenharCode128B(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo);

}  // namespace lumeta
