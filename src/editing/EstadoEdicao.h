#pragma once
// The pointing state the session keeps between events: the range
// selection, a handle drag under way and the magic item's ghost.

#include <QPointF>
#include <QRect>
#include <QString>

namespace lumeta {

// The range selection: a rectangle of items from a first to a last band and,
// inside those bands, from a first to a last item. Band and item numbers are
// 1-based; `visivel` is false when there is no range.
struct FaixaSelecao {
    bool visivel = false;
    int bandaInicial = 0;
    int bandaFinal = 0;
    int itemInicial = 0;
    int itemFinal = 0;

    bool VariasBandas() const { return visivel && bandaInicial != bandaFinal; }
    bool UmaBanda() const { return visivel && bandaInicial == bandaFinal; }
    bool operator==(const FaixaSelecao &) const = default;
};

// A drag of one of the eight handles around the selected item: where it
// started, the frame then, and the rubber frame now.
struct ArrasteAlca {
    int indice = -1;     // -1: no drag
    QPointF inicio;
    QRect inicial;
    QRect atual;
    bool Ativo() const { return indice >= 0; }
};

// The magic item: a ghost over free space that one click turns into an
// item (or a band holding one) of its size.
struct FantasmaMagico {
    bool visivel = false;
    QRect retangulo;     // canvas pixels, where the ghost is drawn
    int banda = 0;       // the band it fills; NumBandas + 1 = a new band
    QString legenda;     // " <width> x <height> <unit> "
};

}  // namespace lumeta
