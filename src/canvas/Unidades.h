#pragma once
// Units of measure. Every position and size is kept in whole canvas pixels;
// the unit only changes how the property fields show and read them.

#include <QString>
#include <cstdint>

namespace lumeta {

struct Unidade {
    int codigo = 3;            // the screen scale-mode number (3, 5, 6, 7)
    QString rotulo;            // "px", "pol", "mm", "cm"
    double fator = 1.0;        // pixels per unit
    int decimais = 0;          // decimal digits of every field
    int digitosInteiros = 4;   // integer digits of the size fields
};

// The unit of a code. An unknown code behaves as pixels but keeps the label
// that was shown before (`rotuloAnterior`).
Unidade UnidadeDe(int codigo, const QString &rotuloAnterior = QStringLiteral("px"));

// For display: pixels / factor (the field rounds to its decimals).
double PixelsParaUnidade(int32_t pixels, const Unidade &u);
// From a typed value: value x factor rounded to a whole pixel, halves going
// to the even neighbour; clamped to the 32-bit range.
int32_t UnidadeParaPixels(double valor, const Unidade &u);
// A value as the field shows it: rounded to the unit's decimals.
double ArredondarCampo(double valor, const Unidade &u);

// The shape handed to a numeric field: integer digits before the point,
// decimal digits after it (6.2 = six integer and two decimal digits).
double FormatoNumero(int digitosInteiros, int decimais);

// Shapes of the panel's position and size fields for a unit.
struct FormatosCampos {
    double numTop;            // 6 integer digits
    double numLeft;           // 6 integer digits
    double numWidth;          // the unit's integer digits
    double numHeight;
    double numDeslocamento;
};
FormatosCampos FormatosDaUnidade(const Unidade &u);

}  // namespace lumeta
