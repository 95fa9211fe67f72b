#pragma once
// The canvas's zoom steps and its rulers. Positions stay whole canvas
// pixels at every zoom; only the view scales them, so the rulers are worked
// out here, from the unit, the zoom and what the view shows.

#include "canvas/Unidades.h"

#include <QString>
#include <vector>

namespace lumeta {

inline constexpr int ZoomMinimo = 25;
inline constexpr int ZoomMaximo = 400;

// The zoom steps of the toolbar box and of Ctrl++ / Ctrl+-.
const std::vector<int> &PassosZoom();
// The next step above (`sentido` > 0) or below the zoom `atual`.
int ProximoZoom(int atual, int sentido);
// The zoom at which the page-size marker and its label fit `largura` screen
// pixels, within the limits.
int ZoomLarguraPagina(int largura, bool paisagem);

struct MarcaRegua {
    double posicao;   // screen pixels from the ruler's start
    bool principal;   // a long tick with its value written
    QString rotulo;
};

// The ticks of a ruler `comprimento` screen pixels long whose start shows
// canvas coordinate `inicio`, at `zoom` (1.0 = 100 %); the ruler's 0 is the
// canvas coordinate `zero` (8 across: the items' left edge; 0 down). Long
// ticks fall on round values of the unit at least 40 screen pixels apart.
std::vector<MarcaRegua> MarcasRegua(const Unidade &unidade, double zoom, double inicio, double zero,
                                    int comprimento);

}  // namespace lumeta
