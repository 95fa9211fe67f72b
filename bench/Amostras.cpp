#include "Amostras.h"

#include <cstring>
#include <vector>

namespace lumeta::bench {

void MedirMemcpy(benchmark::State &st, size_t bytes)
{
    std::vector<char> a(bytes, 'x'), b(bytes);
    for (auto _ : st) {
        std::memcpy(b.data(), a.data(), bytes);
        benchmark::DoNotOptimize(b.data());
        benchmark::ClobberMemory();
    }
    st.SetBytesProcessed(int64_t(st.iterations()) * int64_t(bytes));
}

LayoutDocumento LayoutGrande(int bandas, int itens)
{
    static const uint8_t tipos[] = {TipoTexto, TipoTexto, TipoComando, TipoTexto, TipoFigura,
                                    TipoCode128B, TipoTexto, TipoBarraGrafico, TipoTexto, TipoEAN13};
    LayoutDocumento doc;
    doc.Bandas.reserve(bandas);
    for (int b = 0; b < bandas; ++b) {
        Banda banda;
        banda.Altura = (b % 2) ? -18 : 18 + b % 7;
        banda.Comentario = b % 50 == 0 ? QStringLiteral("* banda %1").arg(b) : QString();
        for (int i = 0; i < itens; ++i) {
            Item it;
            it.Tipo = tipos[i % 10];
            it.Largura = 48 + 8 * (i % 5);
            it.Texto = it.Tipo == TipoFigura ? QStringLiteral("\"logo.bmp\"")
                : it.Tipo == TipoComando    ? QStringLiteral("WS-CAMPO-%1").arg(i)
                                            : QStringLiteral("Valor %1 da banda %2 com {n}texto{/n}").arg(i).arg(b);
            it.Fonte.Negrito = (i % 3) == 0;
            it.Fonte.Tamanho = int16_t(8 + i % 4);
            it.Linhas = (i % 4) == 0 ? QStringLiteral("1111000000") : QStringLiteral("0000000000");
            it.CorFundo = (i % 6) == 0 ? 7 : CorTransparente;
            banda.Itens.append(it);
        }
        doc.Bandas.append(banda);
    }
    for (int b = 1; b <= bandas; ++b)
        doc.ReposicionarItem(b);
    doc.ReposicionarBanda();
    return doc;
}

}  // namespace lumeta::bench
