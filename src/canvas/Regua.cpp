#include "canvas/Regua.h"

#include "canvas/Geometria.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace lumeta {

const std::vector<int> &PassosZoom()
{
    static const std::vector<int> passos = {25, 33, 50, 67, 75, 100, 125, 150, 200, 300, 400};
    return passos;
}

int ProximoZoom(int atual, int sentido)
{
    const auto &p = PassosZoom();
    if (sentido > 0) {
        const auto i = std::upper_bound(p.begin(), p.end(), atual);
        return i == p.end() ? ZoomMaximo : *i;
    }
    const auto i = std::lower_bound(p.begin(), p.end(), atual);
    return i == p.begin() ? ZoomMinimo : *(i - 1);
}

int ZoomLarguraPagina(int largura, bool paisagem)
{
    // The marker's line and a little of its label.
    const double pagina = MarcadorDaPagina(paisagem).x + 16;
    return std::clamp(int(std::floor(largura * 100.0 / pagina)), ZoomMinimo, ZoomMaximo);
}

std::vector<MarcaRegua> MarcasRegua(const Unidade &unidade, double zoom, double inicio, double zero,
                                    int comprimento)
{
    std::vector<MarcaRegua> marcas;
    const double fator = unidade.fator > 0 ? unidade.fator : 1.0;
    const double porUnidade = fator * zoom;  // screen pixels per unit
    // The first round step (1, 2 or 5 times a power of ten) whose long ticks
    // stand at least 40 screen pixels apart, and five or ten short ones between.
    double passo = std::pow(10.0, std::floor(std::log10(40.0 / porUnidade)));
    for (double m : {1.0, 2.0, 5.0, 10.0})
        if (passo * m * porUnidade >= 40) {
            passo *= m;
            break;
        }
    const int divisoes = passo * porUnidade >= 80 ? 10 : 5;
    const double menor = passo / divisoes;
    const double primeiro = std::floor(((inicio - zero) / fator) / menor) * menor;
    const int casas = std::max(0, int(std::ceil(-std::log10(passo) - 1e-9)));
    QLocale local;
    local.setNumberOptions(QLocale::OmitGroupSeparator);
    for (int k = 0;; ++k) {
        const double valor = primeiro + k * menor;
        const double posicao = (zero + valor * fator - inicio) * zoom;
        if (posicao > comprimento)
            break;
        if (posicao < 0)
            continue;
        const long long indice = std::llround(valor / menor);
        const bool principal = indice % divisoes == 0;
        marcas.push_back({posicao, principal, principal ? local.toString(indice == 0 ? 0.0 : valor, 'f', casas) : QString()});
    }
    return marcas;
}

}  // namespace lumeta
