#include "canvas/Unidades.h"

#include <cmath>
#include <limits>

namespace lumeta {

Unidade UnidadeDe(int codigo, const QString &rotuloAnterior)
{
    switch (codigo) {
    case 3:
        return {3, QStringLiteral("px"), 1.0, 0, 4};
    case 5:
        return {5, QStringLiteral("pol"), 96.0, 5, 3};
    case 6:
        return {6, QStringLiteral("mm"), 3.7795275, 2, 3};
    case 7:
        return {7, QStringLiteral("cm"), 37.795275, 3, 2};
    default:
        return {codigo, rotuloAnterior, 1.0, 0, 4};
    }
}

double PixelsParaUnidade(int32_t pixels, const Unidade &u)
{
    return double(pixels) / u.fator;
}

int32_t UnidadeParaPixels(double valor, const Unidade &u)
{
    // nearbyint follows the default rounding mode, round-half-even.
    const double p = std::nearbyint(valor * u.fator);
    if (!(p >= double(std::numeric_limits<int32_t>::min())))
        return std::numeric_limits<int32_t>::min();
    if (p > double(std::numeric_limits<int32_t>::max()))
        return std::numeric_limits<int32_t>::max();
    return int32_t(p);
}

double ArredondarCampo(double valor, const Unidade &u)
{
    const double escala = std::pow(10.0, u.decimais);
    return std::nearbyint(valor * escala) / escala;
}

double FormatoNumero(int digitosInteiros, int decimais)
{
    return digitosInteiros + decimais / 10.0;
}

FormatosCampos FormatosDaUnidade(const Unidade &u)
{
    const double posicao = FormatoNumero(6, u.decimais);
    const double tamanho = FormatoNumero(u.digitosInteiros, u.decimais);
    return {posicao, posicao, tamanho, tamanho, tamanho};
}

}  // namespace lumeta
