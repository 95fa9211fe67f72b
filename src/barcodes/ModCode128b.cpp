#include "barcodes/ModCode128b.h"

#include "barcodes/DesenhoBarras.h"
#include "barcodes/ModCode128.h"

#include <algorithm>

namespace lumeta {

QString LimparValorCode128B(const QString &valor)
{
    QString limpo = valor;
    for (QChar &c : limpo)
        if (c < QLatin1Char(' ') || c > QLatin1Char('~'))
            c = QLatin1Char('0');
    return limpo;
}

QList<int> ValoresCode128B(const QString &limpo)
{
    QList<int> valores{kStartBCode128};
    int soma = kStartBCode128;
    for (const QChar c : limpo) {
        const int v = c.unicode() - ' ';
        soma += int(valores.size()) * v;
        valores.append(v);
    }
    valores.append(soma % 103);
    return valores;
}

std::string ModulosCode128B(const QString &limpo)
{
    return ModulosValoresCode128(ValoresCode128B(limpo));
}

void DesenharCode128B(QImage &figura, int alturaBarra, const QString &valor, bool mostrarTexto, int angulo)
{
    alturaBarra = std::max(alturaBarra, 1);
    const QString limpo = LimparValorCode128B(valor);
    DesenhoBarras d(figura, angulo);
    // This encoder sizes the picture from the character count before drawing.
    d.Dimensionar(int(limpo.size()) * 11 + 37, mostrarTexto ? alturaBarra + 12 : alturaBarra);
    d.Modulos(ModulosCode128B(limpo), 0, alturaBarra, false);
    if (mostrarTexto)
        d.Texto(d.largura() / 2.0 - d.LarguraTexto(limpo) / 2.0, alturaBarra - 1, limpo);
}

}  // namespace lumeta
