#include "controls/clsConcatenarString.h"

namespace lumeta {

void clsConcatenarString::Clear()
{
    buffer_.clear();
    usado_ = 0;
    capacidade_ = 0;
}

void clsConcatenarString::reservar(qsizetype n)
{
    // An exactly full buffer also grows, so the text always has filler after it.
    if (usado_ + n < capacidade_)
        return;
    const int32_t passo = n <= incremento_ ? incremento_ : int32_t(n);
    capacidade_ += passo;
    buffer_.resize(capacidade_, QChar(0));
}

void clsConcatenarString::Add(const QChar *dados, qsizetype n)
{
    reservar(n);
    std::copy(dados, dados + n, buffer_.data() + usado_);
    usado_ += int32_t(n);
}

void clsConcatenarString::Add(QLatin1StringView texto)
{
    const qsizetype n = texto.size();
    reservar(n);
    QChar *d = buffer_.data() + usado_;
    for (qsizetype i = 0; i < n; ++i)
        d[i] = QLatin1Char(texto[i]);
    usado_ += int32_t(n);
}

}  // namespace lumeta
