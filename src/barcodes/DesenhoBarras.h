#pragma once
// Steps shared by the barcode encoders: the rotation of a symbol into its
// picture, one-pixel module columns and the human-readable line.
//
// Every encoder draws the symbol as if it were not rotated (x to the right,
// y down, width W and height H) and lets this class place each pixel, so the
// four rotations are the same drawing seen from four sides.

#include <QFont>
#include <QImage>
#include <QPoint>
#include <QString>
#include <string>
#include <string_view>

namespace lumeta {

// Where the point (x, y) of an unrotated symbol W wide and H high lands in the
// picture: 90 gives (y, W - x - 1), 180 gives (W - x - 1, H - y - 1), 270 gives
// (H - y - 1, x); any other angle leaves the point where it is. The picture is
// H wide and W high for 90 and 270.
QPoint RotacionarPonto(int x, int y, int largura, int altura, int angulo);

// True for the angles whose picture has width and height exchanged.
inline bool AnguloDeitado(int angulo) { return angulo == 90 || angulo == 270; }

// Expands a run of element widths ("212222": bar, space, bar...) into modules
// ("11011001100"); the first element is always a bar.
std::string ExpandirLarguras(std::string_view larguras);

// Expands a wide/narrow pattern ("nnnwwnwnn", bar first) with wide = 3 modules
// and narrow = 1.
std::string ExpandirLargoEstreito(std::string_view padrao);

// Every non-digit replaced by "0", and a leading "0" when the length is odd:
// the cleaning of the symbologies that encode digits in pairs.
QString DigitosEmPares(QString valor);

// The largest picture an encoder draws, along the symbol and across it
// (unrotated). A longer symbol is cut at its far end and taller bars stop
// there: no layout shows more, and memory stays that of an ordinary symbol
// whatever the value's length or the band's height.
constexpr int ComprimentoMaximoSimbolo = 16384;
constexpr int AlturaMaximaSimbolo = 1024;

// The state of one encoder call: the target picture, the unrotated size of the
// symbol, the rotation and the running x.
class DesenhoBarras {
public:
    DesenhoBarras(QImage &figura, int angulo);

    // Clears the picture and gives it the symbol's size (exchanged for 90 and
    // 270). Sizes below 1 are taken as 1: a picture never vanishes; sizes
    // past the maxima above are cut to them.
    void Dimensionar(int largura, int altura);

    // Draws each module of `modulos` one column to the right of the last one:
    // x grows first, so the very first module lands on x = 1. A "1" is a black
    // line from y = topo through `comprimento` rows; a "0" is painted white
    // when `pintarEspacos` is set and left alone otherwise.
    void Modulos(std::string_view modulos, int topo, int comprimento, bool pintarEspacos);

    // The human-readable line in Arial 8 with its top-left at (x, y) of the
    // unrotated symbol (x rounded to a whole pixel); the glyphs turn with the
    // symbol.
    void Texto(double x, int y, const QString &texto);
    int LarguraTexto(const QString &texto) const;

    void PintarPixel(int x, int y, QRgb cor);

    int x = 0;  // running x: the column of the last module drawn
    int largura() const { return m_largura; }
    int altura() const { return m_altura; }

private:
    QImage &m_figura;
    int m_angulo;
    int m_largura = 1;
    int m_altura = 1;
};

// The font of the human-readable line: Arial 8 at the editor's 15 twips per
// pixel, i.e. an 11-pixel em, with the medium weight of the rotated fonts.
QFont FonteLinhaLegivel(int angulo);

}  // namespace lumeta
