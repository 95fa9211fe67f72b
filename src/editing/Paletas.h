#pragma once
// The colour frame's clicks: the two rows of basic colours (11-pixel
// columns), the drop-down 8 x 8 palette (16-pixel cells) and the free
// colours that text items carry as colour macros at the start of their text.
#include "editing/SessaoEdicao.h"

namespace lumeta {

inline constexpr int ColunaCor = 11;     // one basic colour's column
inline constexpr int CaixaCor = 9;       // its box
inline constexpr int CelulaPaleta = 16;  // one extended palette cell

// Which swatch opened the drop-down palette (its tag).
enum class AlvoPaleta { Item, Linha };
inline QString EtiquetaPaleta(AlvoPaleta a)
{
    return a == AlvoPaleta::Item ? QStringLiteral("Item") : QStringLiteral("Linha");
}

// `picCores` mouse-down at x: left button text colour, others background
// (right of the sixteenth box: black text, transparent background).
void CliqueCores(SessaoEdicao &s, int x, bool esquerdo);
// `picCoresLinhas` mouse-down at x: left button line colour, others
// background; right of the sixteenth box counts as 15.
void CliqueCoresLinhas(SessaoEdicao &s, int x, bool esquerdo);
// The colour number of a point of the extended palette (16 .. 79).
int NumeroPaletaExtendida(int x, int y);
// A mouse-up inside the extended palette.
void CliquePaletaExtendida(SessaoEdicao &s, AlvoPaleta alvo, int x, int y, bool esquerdo);

// The free colours of `lblTexto` ('T'), `lblFundo` ('F') and `lblLinhas'
// ('L'): asks the colour dialog and writes the macro into every concerned
// text item. False when the dialog was cancelled.
bool CorLivre(SessaoEdicao &s, QChar letra);
// The same with the colour already chosen (0x00BBGGRR).
void AplicarCorLivre(SessaoEdicao &s, QChar letra, int rgb);

}  // namespace lumeta
