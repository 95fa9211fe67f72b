#pragma once
// Interleaved 2 of 5: digit pairs, the first digit in the bars and the
// second in the spaces.

#include <QImage>
#include <QString>
#include <string>

namespace lumeta {

// Every non-digit becomes "0"; an odd length gets a leading "0".
QString LimparValorInterlace25(const QString &valor);

// The 18 modules of the pair "00".."99" (wide = 3, narrow = 1).
const std::string &ModulosParInterlace25(int par);

// Start "1010", each pair, stop "11101".
std::string ModulosInterlace25(const QString &limpo);

// Draws the symbol: width = modules + 1, height `alturaBarra` (+ 12 with the
// cleaned digits centred below the bars, or above them with `textoNoTopo`,
// which moves every bar 12 rows down).
void DesenharInterlace25(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto,
                         bool textoNoTopo, int angulo);

}  // namespace lumeta
