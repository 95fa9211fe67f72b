#pragma once
// Colour numbers of the items: 0 to 15 the basic colours, 16 to 79 the
// extended palette, anything else (99 as a background) no table colour.
// Colours travel as 0x00BBGGRR, the same number a colour macro gives
// (red + 256 green + 65536 blue).

#include <QColor>
#include <array>
#include <cstdint>

namespace lumeta {

// The 16 basic colours, indexed by colour number.
const std::array<int, 16> &CoresBasicas();
// The 64 colours of the extended palette, row by row; entry 0 is number 16.
// Built on the first call; the window calls it once at start-up.
const std::array<int, 64> &CarregarPaletaExtendida();

// The colour of a number, or `fixa` when that is not -1 (a colour macro's
// override). Numbers outside 0 to 79 give 0 (black).
int NovaCor(int numero, int fixa = -1);

inline QColor CorQt(int bgr)
{
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}
inline QRgb RgbQt(int bgr)
{
    return qRgb(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

// Basic colours the canvas itself uses.
enum CorBasica {
    CorPreto = 0,
    CorCinzaClaro = 7,
    CorVerdeClaro = 10,
    CorCianoClaro = 11,
    CorVermelhoClaro = 12,
    CorBranco = 15,
};

}  // namespace lumeta
