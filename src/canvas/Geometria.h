#pragma once
// The page canvas: its coordinate system, the page-size marker, its size and
// how it grows with the layout, and scrolling the selection into view.
// Canvas coordinates are pixels from the top-left corner, y downwards.

#include "document/Layout.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

namespace lumeta {

// Items are drawn this far right of the band's origin.
constexpr int DeslocamentoItens = 8;
// The top of the first band.
constexpr int TopoPrimeiraBanda = 16;
// The printable area of the page: 11520 x 15412 twips at 15 twips per pixel.
constexpr int LarguraPagina = 768;
constexpr int AlturaPagina = 1027;
// The canvas of a new window, and the one it falls back to without memory.
constexpr int LadoCanvasInicial = 1120;
constexpr int LadoCanvasReduzido = 2016;

// The page-size marker: a vertical line at x from y = 0 to y, a horizontal
// line at y from x = 0 to x, both in basic colour `cor`, and the label in
// light red with its top-left at (x + 2, 0).
struct MarcadorPagina {
    int x;
    int y;
    int cor;
    QString rotulo;
};
MarcadorPagina MarcadorDaPagina(bool paisagem);

inline const QString MensagemMemoriaInsuficiente =
    QStringLiteral("Memória insuficiente para exibir o layout no tamanho total!");

// The canvas picture: its size, the full-size flag and, for the repaint that
// paints everything (ExibirBanda), the off-screen image itself.
class CanvasPagina {
public:
    // `soOVisivel`: the canvas is never held as one picture, only the part a
    // window shows is painted, so any size a position can reach can be made
    // and the memory check passes (the editor's window). Otherwise the whole
    // picture must fit in LimiteMemoria (a picture of the layout).
    explicit CanvasPagina(bool soOVisivel = false) : SoOVisivel(soOVisivel) {}

    bool SoOVisivel = false;
    bool TamanhoTotal = false;   // the canvas grows to hold the whole layout
    QSize Tamanho{LadoCanvasInicial, LadoCanvasInicial};
    QImage Imagem;               // ExibirBanda's off-screen picture, Tamanho large
    // A canvas above this many bytes counts as one the graphics system cannot
    // hold; the memory check then falls back to 2016 x 2016.
    qint64 LimiteMemoria = qint64(1) << 30;

    // Full size on; width = the screen's (at least 1120), height 1120; a
    // canvas that cannot be held becomes 1120 x 1120.
    void TamanhoInicial(int larguraTela);

    // Width growth of a repaint: for each band whose right edge + 64 passes
    // the running W, W = right edge + 128; the canvas widens to W. True when
    // it grew. Nothing happens unless full size is on.
    bool CrescerLargura(const LayoutDocumento &doc);
    // Height growth for a band bottom: past the height - 64, the height
    // becomes bottom + 384. True when it grew.
    bool CrescerAltura(int fundoBanda);

    // Whether a picture of the present size can be held (one white point at
    // (0, 0) of a picture that size). When it cannot: full size off, size
    // 2016 x 2016, and false (the caller shows MensagemMemoriaInsuficiente).
    bool VerificarMemoria();

    // The memory check of a full repaint: gives `Imagem` the present size.
    // When that cannot be held, falls back like VerificarMemoria (the image
    // is then 2016 x 2016) and returns false.
    bool GarantirImagem();

    // Whether a picture of a size could be held.
    bool PodeManter(QSize tamanho) const;

private:
    QSize m_verificado;
};

// Scroll bar values that bring the selected item into view (unchanged when
// no item is selected): the visible part starts at `atual` and is `viewport`
// large; results are limited to 0 .. `maximo`.
QPoint RolarParaSelecao(const LayoutDocumento &doc, int banda, int item, QPoint atual, QSize viewport,
                        QPoint maximo);

// A rectangle from 64-bit position and size, as a QRect can hold it: Qt keeps
// the far edge (x + width - 1) and works out the width as 32-bit numbers, so
// the edges are stopped at the ends of the range and the width (negative
// for a negative size) at +-2^31 - 1. What lies past a stopped edge is
// never on a canvas.
QRect RetanguloLimitado(qint64 x, qint64 y, qint64 largura, qint64 altura);

// The scroll bar maxima of a canvas in a viewport (never below 0).
QPoint MaximoRolagem(QSize canvas, QSize viewport);

}  // namespace lumeta
