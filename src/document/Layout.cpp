#include "document/Layout.h"

#ifndef LUMETA_VERSAO_MENOR
#define LUMETA_VERSAO_MENOR 0
#define LUMETA_VERSAO_REVISAO 0
#endif

namespace lumeta {

bool LayoutDocumento::QuebraPaginaSeek(int banda) const
{
    for (int16_t q : Quebras)
        if (q == banda)
            return true;
    return false;
}

void LayoutDocumento::QuebraPaginaAdd(int banda)
{
    Quebras.append(int16_t(banda));
}

void LayoutDocumento::QuebraPaginaRemove(int banda)
{
    const qsizetype i = Quebras.indexOf(int16_t(banda));
    if (i < 0)
        return;
    Quebras[i] = Quebras.last();
    Quebras.removeLast();
}

void LayoutDocumento::ReposicionarItem(int n)
{
    int64_t soma = 0;
    for (Item &item : banda(n).Itens) {
        item.Esquerda = Limitar32(soma);
        soma += item.Largura;
    }
}

void LayoutDocumento::ReposicionarBanda()
{
    if (Bandas.isEmpty())
        return;
    Bandas[0].Topo = 16;
    for (qsizetype i = 1; i < Bandas.size(); ++i) {
        const Banda &anterior = Bandas[i - 1];
        const int64_t fundo = int64_t(anterior.Topo) + Magnitude(anterior.Altura);
        Bandas[i].Topo = std::max(Limitar32(fundo + Bandas[i].Deslocamento), anterior.Topo);
    }
}

void LayoutDocumento::ReposicionarTudo()
{
    for (int b = 1; b <= NumBandas(); ++b)
        ReposicionarItem(b);
    ReposicionarBanda();
}

QString VersaoCompleta()
{
    const QString menor = QStringLiteral("%1").arg(LUMETA_VERSAO_MENOR, 2, 10, QLatin1Char('0'));
    return TituloAplicacao + QLatin1Char('.') + menor.right(1) + QLatin1Char('.')
        + QString::number(LUMETA_VERSAO_REVISAO);
}

}  // namespace lumeta
