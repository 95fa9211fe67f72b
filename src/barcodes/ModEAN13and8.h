#pragma once
// EAN-13 and EAN-8. The check digit is always computed; one typed with the
// value is cut away with the characters beyond the data length.

#include <QImage>
#include <QString>
#include <string>

namespace lumeta {

// The data digits: the value cut to `digitos` characters (12 or 7),
// left-padded with "0" and every non-digit made "0".
QString LimparValorEAN(const QString &valor, int digitos);

// Weights 3 and 1 alternately from the rightmost data digit; the digit that
// brings the sum to a multiple of 10.
int DigitoVerificadorEAN(const QString &dados);

// Module strings of the full symbol (95 modules for EAN-13, 67 for EAN-8)
// from the cleaned data digits.
std::string ModulosEAN13(const QString &dados);
std::string ModulosEAN8(const QString &dados);

// Draw the symbol: EAN-13 96 wide, EAN-8 68 wide; with the human-readable
// line 10 more (the symbol moves 10 to the right, leaving room for the
// first digit of EAN-13), 12 more rows, and the guard bars 12 longer.
void DesenharEAN13(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo);
void DesenharEAN8(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo);

}  // namespace lumeta
