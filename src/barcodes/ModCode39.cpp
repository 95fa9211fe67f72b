#include "barcodes/ModCode39.h"

#include "barcodes/DesenhoBarras.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace lumeta {

namespace {

// Bars and spaces of each character, bar first, in the order of
// kCaracteresCode39 followed by "*".
constexpr std::array<const char *, 44> kPadroes = {
    "nnnwwnwnn", "wnnwnnnnw", "nnwwnnnnw", "wnwwnnnnn", "nnnwwnnnw",  // 0-4
    "wnnwwnnnn", "nnwwwnnnn", "nnnwnnwnw", "wnnwnnwnn", "nnwwnnwnn",  // 5-9
    "wnnnnwnnw", "nnwnnwnnw", "wnwnnwnnn", "nnnnwwnnw", "wnnnwwnnn",  // A-E
    "nnwnwwnnn", "nnnnnwwnw", "wnnnnwwnn", "nnwnnwwnn", "nnnnwwwnn",  // F-J
    "wnnnnnnww", "nnwnnnnww", "wnwnnnnwn", "nnnnwnnww", "wnnnwnnwn",  // K-O
    "nnwnwnnwn", "nnnnnnwww", "wnnnnnwwn", "nnwnnnwwn", "nnnnwnwwn",  // P-T
    "wwnnnnnnw", "nwwnnnnnw", "wwwnnnnnn", "nwnnwnnnw", "wwnnwnnnn",  // U-Y
    "nwwnwnnnn", "nwnnnnwnw", "wwnnnnwnn", "nwwnnnwnn", "nwnwnwnnn",  // Z - . space $
    "nwnwnnnwn", "nwnnnwnwn", "nnnwnwnwn", "nwnnwnwnn",               // / + % *
};

constexpr int kAsterisco = 43;

int IndiceCode39(QChar c)
{
    if (c.unicode() > 0x7F)
        return -1;
    const char *p = std::strchr(kCaracteresCode39, char(c.unicode()));
    return (p && *p) ? int(p - kCaracteresCode39) : -1;
}

}  // namespace

const std::string &ModulosCaractereCode39(int indice)
{
    static const std::array<std::string, 44> tabela = [] {
        std::array<std::string, 44> t;
        for (std::size_t i = 0; i < t.size(); ++i)
            t[i] = ExpandirLargoEstreito(kPadroes[i]) + '0';
        return t;
    }();
    return tabela.at(std::size_t(indice));
}

QString LimparValorCode39(const QString &valor)
{
    QString limpo;
    limpo.reserve(valor.size());
    for (const QChar c : valor) {
        if (c == QLatin1Char('*'))
            continue;
        // Only a-z have capitals in the set; mapping just those keeps letters
        // such as U+0131 (dotless i) from turning into data characters.
        const QChar m = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ? QChar(c.unicode() - 32) : c;
        limpo.append(IndiceCode39(m) >= 0 ? m : QLatin1Char(' '));
    }
    return limpo;
}

QChar CaractereVerificadorCode39(const QString &limpo)
{
    int soma = 0;
    for (const QChar c : limpo)
        soma += IndiceCode39(c);
    return QLatin1Char(kCaracteresCode39[soma % 43]);
}

std::string ModulosCode39(const QString &limpo, bool comVerificador)
{
    std::string m = ModulosCaractereCode39(kAsterisco);
    for (const QChar c : limpo)
        m += ModulosCaractereCode39(IndiceCode39(c));
    if (comVerificador)
        m += ModulosCaractereCode39(IndiceCode39(CaractereVerificadorCode39(limpo)));
    m += ModulosCaractereCode39(kAsterisco);
    return m;
}

void DesenharCode39(QImage &figura, int alturaBarra, const QString &valor, bool comVerificador,
                    bool mostrarTexto, int angulo)
{
    alturaBarra = std::max(alturaBarra, 1);
    const QString limpo = LimparValorCode39(valor);
    const std::string modulos = ModulosCode39(limpo, comVerificador);
    DesenhoBarras d(figura, angulo);
    d.Dimensionar(int(modulos.size()) + 1, mostrarTexto ? alturaBarra + 12 : alturaBarra);
    d.Modulos(modulos, 0, alturaBarra, true);
    if (mostrarTexto)
        d.Texto(d.x / 2.0 - d.LarguraTexto(limpo) / 2.0, alturaBarra - 1, limpo);
}

}  // namespace lumeta
