#include "barcodes/ModCode128.h"

#include "barcodes/DesenhoBarras.h"

#include <algorithm>
#include <array>

namespace lumeta {

namespace {

// Bar and space widths of the 107 symbols, bar first, in value order.
constexpr std::array<const char *, 107> kLarguras = {
    "212222", "222122", "222221", "121223", "121322", "131222", "122213", "122312", "132212", "221213",  //   0
    "221312", "231212", "112232", "122132", "122231", "113222", "123122", "123221", "223211", "221132",  //  10
    "221231", "213212", "223112", "312131", "311222", "321122", "321221", "312212", "322112", "322211",  //  20
    "212123", "212321", "232121", "111323", "131123", "131321", "112313", "132113", "132311", "211313",  //  30
    "231113", "231311", "112133", "112331", "132131", "113123", "113321", "133121", "313121", "211331",  //  40
    "231131", "213113", "213311", "213131", "311123", "311321", "331121", "312113", "312311", "332111",  //  50
    "314111", "221411", "431111", "111224", "111422", "121124", "121421", "141122", "141221", "112214",  //  60
    "112412", "122114", "122411", "142112", "142211", "241211", "221114", "413111", "241112", "134111",  //  70
    "111242", "121142", "121241", "114212", "124112", "124211", "411212", "421112", "421211", "212141",  //  80
    "214121", "412121", "111143", "111341", "131141", "114113", "114311", "411113", "411311", "113141",  //  90
    "114131", "311141", "411131", "211412", "211214", "211232",                                          // 100
    "2331112",  // stop, kept last
};

const std::array<std::string, 107> &Tabela()
{
    static const std::array<std::string, 107> t = [] {
        std::array<std::string, 107> r;
        for (std::size_t i = 0; i < r.size(); ++i)
            r[i] = ExpandirLarguras(kLarguras[i]);
        return r;
    }();
    return t;
}

}  // namespace

const std::string &ModulosSimboloCode128(int valor)
{
    // 106 is the stop; as a plain value it is never asked for.
    return Tabela().at(std::size_t(std::clamp(valor, 0, 105)));
}

const std::string &ModulosParadaCode128()
{
    return Tabela()[106];
}

QString LimparValorCode128C(const QString &valor)
{
    return DigitosEmPares(valor.trimmed());
}

QList<int> ValoresCode128C(const QString &limpo)
{
    QList<int> valores{kStartCCode128};
    int soma = kStartCCode128;
    for (qsizetype i = 0; i + 1 < limpo.size(); i += 2) {
        const int v = (limpo[i].unicode() - '0') * 10 + (limpo[i + 1].unicode() - '0');
        soma += int(valores.size()) * v;
        valores.append(v);
    }
    valores.append(soma % 103);
    return valores;
}

std::string ModulosValoresCode128(const QList<int> &valores)
{
    std::string m;
    m.reserve(size_t(valores.size()) * 11 + 13);
    for (const int v : valores)
        m += ModulosSimboloCode128(v);
    m += ModulosParadaCode128();
    return m;
}

std::string ModulosCode128C(const QString &limpo)
{
    return ModulosValoresCode128(ValoresCode128C(limpo));
}

void DesenharCode128C(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo)
{
    alturaBarra = std::max(alturaBarra, 1);
    const QString limpo = LimparValorCode128C(valor);
    const std::string modulos = ModulosCode128C(limpo);
    DesenhoBarras d(figura, angulo);
    d.Dimensionar(int(modulos.size()) + 2, mostrarTexto ? alturaBarra + 12 : alturaBarra);
    d.Modulos(modulos, 0, alturaBarra, false);
    if (mostrarTexto)
        d.Texto(d.x / 2.0 - d.LarguraTexto(limpo) / 2.0, alturaBarra - 1, limpo);
}

}  // namespace lumeta
