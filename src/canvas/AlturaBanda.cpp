#include "canvas/AlturaBanda.h"

#include "canvas/Atributos.h"
#include "output/Macros.h"

namespace lumeta {

size_t qHash(const MedidorFontes::Chave &c, size_t semente) noexcept
{
    const unsigned flags = (c.opcoes.umaLinha ? 1u : 0u) | (c.opcoes.recortar ? 2u : 0u)
        | (c.opcoes.centroVertical ? 4u : 0u) | (c.opcoes.base ? 8u : 0u) | (c.opcoes.centralizar ? 16u : 0u)
        | (c.opcoes.direita ? 32u : 0u) | (c.opcoes.justificar ? 64u : 0u);
    return qHashMulti(semente, c.texto, c.fonte.Nome, c.fonte.Tamanho, EstiloDaFonte(c.fonte), c.largura,
                      c.altura, flags, c.opcoes.angulo);
}

int MedidorFontes::Medir(const FonteItem &fonte, const QString &texto, int largura, int altura,
                         const OpcoesTexto &opcoes)
{
    Chave chave{fonte, texto, largura, altura, opcoes};
    const auto it = m_medidas.constFind(chave);
    if (it != m_medidas.constEnd())
        return *it;
    if (m_medidas.size() > 200000)
        m_medidas.clear();
    const int h = DesenharTexto(nullptr, m_fontes, fonte, QColor(), texto, 0, 0, largura, altura, opcoes, true);
    m_medidas.insert(std::move(chave), h);
    return h;
}

QString TextoExibido(const QString &texto)
{
    return ExpandirMacros(texto, 1);
}

OpcoesTexto OpcoesDoItem(const Item &item)
{
    const int32_t bits = Alinhamento(item.Atributos);
    OpcoesTexto op;
    op.umaLinha = bits & BitUmaLinha;
    op.recortar = !(bits & BitNaoRecortar);
    op.centroVertical = bits & BitCentroVertical;
    op.base = bits & BitBase;
    op.justificar = Justificar(item.Atributos);
    op.centralizar = !op.justificar && (bits & BitCentralizar);
    op.direita = !op.justificar && (bits & BitDireita);
    op.angulo = AnguloAtributos(item.Atributos);
    return op;
}

int CalcularAlturaBanda(const Banda &banda, MedidorAltura &medidor)
{
    static const FonteItem fonteCanvas{QStringLiteral("Arial"), 8, false, false, false, false};
    const FonteItem *fonte = &fonteCanvas;
    int maximo = 0;
    for (const Item &item : banda.Itens) {
        if (FonteValida(item.Fonte))
            fonte = &item.Fonte;
        if (item.Tipo != TipoTexto && item.Tipo != TipoComando)
            continue;
        if (item.Texto.isEmpty() || item.Largura <= 4)
            continue;
        OpcoesTexto op = OpcoesDoItem(item);
        op.centroVertical = false;
        op.base = false;
        op.recortar = false;
        // The text area runs from Esquerda + 10 to Esquerda + Largura + 6.
        // Rotated text is measured against a zero height, so its result does
        // not depend on the height the band had before.
        const int h = medidor.Medir(*fonte, TextoExibido(item.Texto), item.Largura - 4, 0, op);
        if (h > maximo)
            maximo = h + 4;
    }
    return maximo ? maximo : 8;
}

}  // namespace lumeta
