#include "barcodes/ModEAN13and8.h"

#include "barcodes/DesenhoBarras.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lumeta {

namespace {

constexpr std::array<std::string_view, 10> kEsquerdaImpar = {  // L
    "0001101", "0011001", "0010011", "0111101", "0100011", "0110001", "0101111", "0111011", "0110111", "0001011"};
constexpr std::array<std::string_view, 10> kEsquerdaPar = {  // G
    "0100111", "0110011", "0011011", "0100001", "0011101", "0111001", "0000101", "0010001", "0001001", "0010111"};
constexpr std::array<std::string_view, 10> kDireita = {  // R
    "1110010", "1100110", "1101100", "1000010", "1011100", "1001110", "1010000", "1000100", "1001000", "1110100"};
// Parity of digits 2..7 of EAN-13 chosen by the first digit: L odd, G even.
constexpr std::array<std::string_view, 10> kParidade = {
    "LLLLLL", "LLGLGG", "LLGGLG", "LLGGGL", "LGLLGG", "LGGLLG", "LGGGLL", "LGLGLG", "LGLGGL", "LGGLGL"};
constexpr std::string_view kGuarda = "101";
constexpr std::string_view kCentro = "01010";

int Digito(const QString &s, qsizetype i)
{
    return s[i].unicode() - '0';
}

// Digits plus the check digit, as the human-readable line shows them.
QString ComVerificador(const QString &dados)
{
    return dados + QChar(u'0' + DigitoVerificadorEAN(dados));
}

// A module string drawn in pieces so that the guard bars can run longer.
struct Trecho {
    std::string modulos;
    bool guarda;
};

void Desenhar(QImage &figura, int alturaBarra, bool mostrarTexto, int angulo, int larguraBase,
              const std::array<Trecho, 5> &trechos, const QString &completo)
{
    alturaBarra = std::max(alturaBarra, 1);
    const int altura = mostrarTexto ? alturaBarra + 12 : alturaBarra;
    DesenhoBarras d(figura, angulo);
    d.Dimensionar(mostrarTexto ? larguraBase + 10 : larguraBase, altura);
    if (mostrarTexto)
        d.x = 10;
    for (const Trecho &t : trechos)
        d.Modulos(t.modulos, 0, t.guarda ? altura : alturaBarra, true);
    if (!mostrarTexto)
        return;
    const int y = alturaBarra - 1;
    if (completo.size() == 13) {
        d.Texto(2, y, completo.left(1));
        d.Texto(18, y, completo.mid(1, 6));
        d.Texto(64, y, completo.mid(7, 6));
    } else {
        d.Texto(17, y, completo.left(4));
        d.Texto(49, y, completo.mid(4, 4));
    }
}

}  // namespace

QString LimparValorEAN(const QString &valor, int digitos)
{
    QString s = valor.left(digitos);
    s = QString(digitos - s.size(), QLatin1Char('0')) + s;
    for (QChar &c : s)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            c = QLatin1Char('0');
    return s;
}

int DigitoVerificadorEAN(const QString &dados)
{
    int soma = 0;
    int peso = 3;
    for (qsizetype i = dados.size() - 1; i >= 0; --i) {
        soma += peso * Digito(dados, i);
        peso = 4 - peso;
    }
    return (10 - soma % 10) % 10;
}

namespace {

std::array<Trecho, 5> TrechosEAN13(const QString &dados)
{
    const QString d = ComVerificador(dados);
    const std::string_view paridade = kParidade[std::size_t(Digito(d, 0))];
    std::string esquerda, direita;
    for (int i = 1; i <= 6; ++i) {
        const auto n = std::size_t(Digito(d, i));
        esquerda += paridade[std::size_t(i - 1)] == 'L' ? kEsquerdaImpar[n] : kEsquerdaPar[n];
    }
    for (int i = 7; i <= 12; ++i)
        direita += kDireita[std::size_t(Digito(d, i))];
    return {{{std::string(kGuarda), true},
             {esquerda, false},
             {std::string(kCentro), true},
             {direita, false},
             {std::string(kGuarda), true}}};
}

std::array<Trecho, 5> TrechosEAN8(const QString &dados)
{
    const QString d = ComVerificador(dados);
    std::string esquerda, direita;
    for (int i = 0; i < 4; ++i)
        esquerda += kEsquerdaImpar[std::size_t(Digito(d, i))];
    for (int i = 4; i < 8; ++i)
        direita += kDireita[std::size_t(Digito(d, i))];
    return {{{std::string(kGuarda), true},
             {esquerda, false},
             {std::string(kCentro), true},
             {direita, false},
             {std::string(kGuarda), true}}};
}

std::string Juntar(const std::array<Trecho, 5> &trechos)
{
    std::string m;
    for (const Trecho &t : trechos)
        m += t.modulos;
    return m;
}

}  // namespace

std::string ModulosEAN13(const QString &dados)
{
    return Juntar(TrechosEAN13(dados));
}

std::string ModulosEAN8(const QString &dados)
{
    return Juntar(TrechosEAN8(dados));
}

void DesenharEAN13(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo)
{
    const QString dados = LimparValorEAN(valor, 12);
    Desenhar(figura, alturaBarra, mostrarTexto, angulo, 96, TrechosEAN13(dados), ComVerificador(dados));
}

void DesenharEAN8(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo)
{
    const QString dados = LimparValorEAN(valor, 7);
    Desenhar(figura, alturaBarra, mostrarTexto, angulo, 68, TrechosEAN8(dados), ComVerificador(dados));
}

}  // namespace lumeta
