#pragma once
// The layout painter. A repaint has two halves that can run apart:
//  - the model side (PrepararRepintura): re-lay the selected band's items,
//    place the bands, compute the automatic heights (stored negated), grow
//    the canvas and check that it can be held;
//  - the drawing (PintarLayout): page-size marker, band markers and every
//    item, for the whole canvas or only the part of it a window exposes.
// ExibirBanda does both into the canvas's own off-screen image, which is what
// the command-line tool saves and what a full repaint of the editor means.
// Nothing here marks the document changed or takes undo snapshots: that is
// the edit cycle's business, one layer up.

#include "canvas/AlturaBanda.h"
#include "canvas/DesenharTexto.h"
#include "canvas/Figuras.h"
#include "canvas/Geometria.h"
#include "document/InterfaceUsuario.h"
#include "document/Layout.h"

#include <QColor>
#include <QRect>

class QPainter;

namespace lumeta {

// The colour of a colour number, or of `fixa` (a colour macro's RGB) when
// that is not -1; numbers outside 0..79 give black.
QColor ResolverCor(int indice, int fixa = -1);

// The bar height of a barcode item in a band of `alturaBanda` pixels: from
// the band (the item's width at 90 and 270 degrees) less the 12 rows of the
// digits when they show, capped or raised to 40 by the no-clip (8) and
// resize (10) positions of the format flags.
int AlturaBarrasCodigo(const Item &item, int alturaBanda);
// Whether a barcode item shows its digits (type 37 never does).
bool MostrarDigitosCodigo(const Item &item);

// What a canvas keeps between repaints: fonts and word widths, measured
// heights, picture files and barcode symbols.
class RecursosCanvas {
public:
    FontesCanvas Fontes;
    MedidorFontes Medidor{Fontes};
    CacheFiguras Figuras;
    CacheSimbolos Simbolos;
};

struct ResultadoAlturas {
    bool alturaMudou = false;            // an automatic band got a new height
    bool selecionadaAutomatica = false;  // the selected band's height was computed: show the selection again
};

// Re-lays the items of `bandaSelecionada` (0 = none), places every band and
// computes each automatic height in band order, so every band is placed
// below the height just computed for the one before it.
ResultadoAlturas AtualizarAlturas(LayoutDocumento &doc, int bandaSelecionada, MedidorAltura &medidor);

// The model as the editor holds it once a layout file is open, before it
// shows anything (band 1 selected): every band's items laid side by side
// (a file may carry stale positions), then AtualizarAlturas, the step every
// repaint of the edit cycle runs. Whatever writes a layout's command text
// without the window runs this first, so it writes what the result pane shows.
void PrepararLayoutAberto(LayoutDocumento &doc, MedidorAltura &medidor);

struct ResultadoRepintura {
    bool memoriaInsuficiente = false;    // MensagemMemoriaInsuficiente was due
    bool selecionadaAutomatica = false;
    bool alturaMudou = false;
    bool canvasCresceu = false;          // the scroll bar maxima must follow
};

// The model side of a repaint (see above). With `ui` set, a failed memory
// check shows its message there (exclamation, application title).
ResultadoRepintura PrepararRepintura(LayoutDocumento &doc, int bandaSelecionada, CanvasPagina &canvas,
                                     RecursosCanvas &recursos, InterfaceUsuario *ui = nullptr);

struct OpcoesPintura {
    // The page-size marker, band marks, cell outlines and the placeholder of
    // a picture without a file; off, the canvas shows the bands as paper does.
    bool marcasEditor = true;
};

// One band as it prints, between `topo` and `fundo` (canvas coordinates,
// items at Esquerda + 8): backgrounds, lines, texts, pictures, symbols and
// bars, whatever of them lands in `area`. `fonte` is the font in use: an
// item with a valid font of its own changes it for the items after it. The
// canvas and the print engine both draw bands through this; on `papel` a
// picture without a file prints nothing. Macros left in a text get the
// canvas's sample values (the print engine gives them their values first).
void PintarBanda(QPainter &pintor, const Banda &banda, int topo, int fundo, const QRect &area,
                 RecursosCanvas &recursos, const FonteItem *&fonte, bool papel);
// The font the canvas starts from (Arial 8).
const FonteItem &FontePadraoCanvas();

// Paints the part `area` of the canvas (canvas coordinates; the painter's
// transform maps them to its device): the area is cleared to white and
// everything that lands in it is drawn, including pictures, symbols and
// unclipped text that spill into it from bands outside it. The layout must
// have been prepared (positions and heights) first.
void PintarLayout(QPainter &pintor, const LayoutDocumento &doc, const QRect &area, RecursosCanvas &recursos,
                  const OpcoesPintura &opcoes = {});

// The full repaint: PrepararRepintura, then the whole canvas painted into
// `canvas.Imagem` (allocated at the canvas size; a canvas too large for
// memory falls back to 2016 x 2016 with the message).
ResultadoRepintura ExibirBanda(LayoutDocumento &doc, int bandaSelecionada, CanvasPagina &canvas,
                               RecursosCanvas &recursos, InterfaceUsuario *ui = nullptr,
                               const OpcoesPintura &opcoes = {});

}  // namespace lumeta
