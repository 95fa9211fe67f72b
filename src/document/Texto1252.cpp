#include "document/Texto1252.h"

#include <array>

namespace lumeta {

namespace {

constexpr std::array<char16_t, 32> kAlto = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char ParaByte(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return char(c);
    for (int i = 0; i < 32; ++i)
        if (kAlto[i] == c)
            return char(0x80 + i);
    return '?';
}

}  // namespace

QString De1252(const char *dados, qsizetype n)
{
    QString s(n, Qt::Uninitialized);
    QChar *d = s.data();
    for (qsizetype i = 0; i < n; ++i) {
        const auto b = static_cast<unsigned char>(dados[i]);
        d[i] = (b >= 0x80 && b < 0xA0) ? QChar(kAlto[b - 0x80]) : QChar(b);
    }
    return s;
}

void EscreverEm1252(char *d, const QString &texto)
{
    const QChar *s = texto.constData();
    for (qsizetype i = 0; i < texto.size(); ++i)
        d[i] = ParaByte(s[i].unicode());
}

void AcrescentarEm1252(QByteArray &destino, const QString &texto)
{
    const qsizetype base = destino.size();
    destino.resize(base + texto.size());
    EscreverEm1252(destino.data() + base, texto);
}

QByteArray Para1252(const QString &texto)
{
    QByteArray b;
    AcrescentarEm1252(b, texto);
    return b;
}

}  // namespace lumeta
