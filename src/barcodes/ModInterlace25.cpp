#include "barcodes/ModInterlace25.h"

#include "barcodes/DesenhoBarras.h"

#include <algorithm>
#include <array>

namespace lumeta {

namespace {

// The five elements of each digit, narrow or wide.
constexpr std::array<const char *, 10> kDigitos = {
    "nnwwn", "wnnnw", "nwnnw", "wwnnn", "nnwnw", "wnwnn", "nwwnn", "nnnww", "wnnwn", "nwnwn"};

}  // namespace

QString LimparValorInterlace25(const QString &valor)
{
    return DigitosEmPares(valor);
}

const std::string &ModulosParInterlace25(int par)
{
    static const std::array<std::string, 100> tabela = [] {
        std::array<std::string, 100> t;
        for (int p = 0; p < 100; ++p) {
            const char *barras = kDigitos[std::size_t(p / 10)];
            const char *espacos = kDigitos[std::size_t(p % 10)];
            char intercalado[10];
            for (int i = 0; i < 5; ++i) {
                intercalado[2 * i] = barras[i];
                intercalado[2 * i + 1] = espacos[i];
            }
            t[std::size_t(p)] = ExpandirLargoEstreito(std::string_view(intercalado, 10));
        }
        return t;
    }();
    return tabela.at(std::size_t(par));
}

std::string ModulosInterlace25(const QString &limpo)
{
    std::string m = "1010";
    for (qsizetype i = 0; i + 1 < limpo.size(); i += 2)
        m += ModulosParInterlace25((limpo[i].unicode() - '0') * 10 + (limpo[i + 1].unicode() - '0'));
    m += "11101";
    return m;
}

void DesenharInterlace25(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto,
                         bool textoNoTopo, int angulo)
{
    alturaBarra = std::max(alturaBarra, 1);
    const QString limpo = LimparValorInterlace25(valor);
    const std::string modulos = ModulosInterlace25(limpo);
    DesenhoBarras d(figura, angulo);
    d.Dimensionar(int(modulos.size()) + 1, mostrarTexto ? alturaBarra + 12 : alturaBarra);
    const bool noTopo = mostrarTexto && textoNoTopo;
    d.Modulos(modulos, noTopo ? 12 : 0, alturaBarra, true);
    if (mostrarTexto)
        d.Texto(d.x / 2.0 - d.LarguraTexto(limpo) / 2.0, noTopo ? 0 : alturaBarra - 1, limpo);
}

}  // namespace lumeta
