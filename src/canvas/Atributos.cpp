#include "canvas/Atributos.h"

namespace lumeta {

int32_t Alinhamento(const QString &flags)
{
    static constexpr int32_t bits[10] = {1, 2, 4, 8, 32, 16, 64, 256, 2048, 8192};
    int32_t r = 64;
    const qsizetype n = std::min<qsizetype>(flags.size(), 10);
    for (qsizetype i = 0; i < n; ++i)
        if (i != 6 && flags[i] == QLatin1Char('1'))
            r |= bits[i];
    return r;
}

int DigitoPosicao(const QString &flags, int posicao)
{
    if (posicao < 1 || posicao > flags.size())
        return 0;
    const QChar c = flags[posicao - 1];
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ? c.unicode() - '0' : 0;
}

int AnguloAtributos(const QString &atributos)
{
    const int d = DigitoPosicao(atributos, 7);
    if (d & 2)
        return 90;
    if (d & 4)
        return 180;
    if (d & 8)
        return 270;
    return 0;
}

int MagnificacaoAtributos(const QString &atributos)
{
    const int d = DigitoPosicao(atributos, 9);
    return (d >= 2 && d <= 4) ? d : 1;
}

}  // namespace lumeta
