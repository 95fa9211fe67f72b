#pragma once
// Reading the two flag strings of an item: `Atributos` (text format) and
// `Linhas` (frame lines), both exactly ten characters.

#include <QString>
#include <cstdint>

namespace lumeta {

// Bits of the format and border strings: each position holding "1" adds its
// bit; position 7 always adds 64, whatever it holds.
int32_t Alinhamento(const QString &flags);

enum BitAtributo : int32_t {
    BitCentralizar = 1,
    BitDireita = 2,
    BitCentroVertical = 4,
    BitBase = 8,
    BitQuebraPalavras = 16,
    BitUmaLinha = 32,
    BitNaoRecortar = 256,
};

enum BitLinha : int32_t {
    LinhaMeioHorizontal = 1,
    LinhaDireita = 2,
    LinhaMeioVertical = 4,
    LinhaInferior = 8,
    LinhaEsquerda = 16,
    LinhaSuperior = 32,
};

// The number held at a 1-based position (positions 7 and 9 carry digits);
// 0 when the position is missing or not a digit.
int DigitoPosicao(const QString &flags, int posicao);
// Whether a 1-based position holds "1".
inline bool PosicaoLigada(const QString &flags, int posicao)
{
    return posicao >= 1 && posicao <= flags.size() && flags[posicao - 1] == QLatin1Char('1');
}

// Position 7: bit 1 justifies text (or hides a barcode's digits); bits 2, 4
// and 8 turn it 90, 180 or 270 degrees, the first one set winning.
inline bool Justificar(const QString &atributos) { return DigitoPosicao(atributos, 7) & 1; }
int AnguloAtributos(const QString &atributos);
// Position 9: a magnification of 2, 3 or 4; anything else is 1.
int MagnificacaoAtributos(const QString &atributos);

}  // namespace lumeta
