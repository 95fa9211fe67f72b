#include "canvas/Geometria.h"

#include "canvas/Cores.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

namespace lumeta {

MarcadorPagina MarcadorDaPagina(bool paisagem)
{
    if (paisagem)
        return {AlturaPagina + 8, LarguraPagina + 16, CorVerdeClaro, QStringLiteral("A4 (Paisagem)")};
    return {LarguraPagina + 8, AlturaPagina + 16, CorCianoClaro, QStringLiteral("A4 (Retrato)")};
}

bool CanvasPagina::PodeManter(QSize tamanho) const
{
    if (tamanho.width() <= 0 || tamanho.height() <= 0)
        return false;
    if (qint64(tamanho.width()) * qint64(tamanho.height()) > LimiteMemoria / 4)
        return false;
    if (Imagem.size() == tamanho)
        return true;
    QImage teste(tamanho, QImage::Format_RGB32);
    if (teste.isNull())
        return false;
    teste.setPixel(0, 0, 0xFFFFFFFF);
    return true;
}

void CanvasPagina::TamanhoInicial(int larguraTela)
{
    TamanhoTotal = true;
    Tamanho = QSize(std::max(larguraTela, LadoCanvasInicial), LadoCanvasInicial);
    if (!SoOVisivel && !PodeManter(Tamanho))
        Tamanho = QSize(LadoCanvasInicial, LadoCanvasInicial);
    m_verificado = QSize();
}

bool CanvasPagina::CrescerLargura(const LayoutDocumento &doc)
{
    if (!TamanhoTotal)
        return false;
    int64_t w = 0;
    for (const Banda &b : doc.Bandas) {
        const int64_t direita = b.Itens.isEmpty() ? 0 : int64_t(b.Itens.last().Esquerda) + b.Itens.last().Largura;
        if (direita + 64 > w)
            w = direita + 128;
    }
    if (Tamanho.width() < w) {
        Tamanho.setWidth(Limitar32(w));
        return true;
    }
    return false;
}

bool CanvasPagina::CrescerAltura(int fundoBanda)
{
    if (!TamanhoTotal || fundoBanda <= Tamanho.height() - 64)
        return false;
    Tamanho.setHeight(Limitar32(int64_t(fundoBanda) + 384));
    return true;
}

bool CanvasPagina::VerificarMemoria()
{
    if (Tamanho == m_verificado)
        return true;
    if ((SoOVisivel && !Tamanho.isEmpty()) || PodeManter(Tamanho)) {
        m_verificado = Tamanho;
        return true;
    }
    TamanhoTotal = false;
    Tamanho = QSize(LadoCanvasReduzido, LadoCanvasReduzido);
    m_verificado = QSize();
    return false;
}

bool CanvasPagina::GarantirImagem()
{
    if (Imagem.size() == Tamanho)
        return true;
    Imagem = QImage();
    if (PodeManter(Tamanho))
        Imagem = QImage(Tamanho, QImage::Format_RGB32);
    if (!Imagem.isNull()) {
        m_verificado = Tamanho;
        return true;
    }
    TamanhoTotal = false;
    Tamanho = QSize(LadoCanvasReduzido, LadoCanvasReduzido);
    Imagem = QImage(Tamanho, QImage::Format_RGB32);
    m_verificado = Imagem.isNull() ? QSize() : Tamanho;
    return false;
}

QPoint RolarParaSelecao(const LayoutDocumento &doc, int banda, int item, QPoint atual, QSize viewport,
                        QPoint maximo)
{
    if (item < 1 || banda < 1 || banda > doc.NumBandas() || item > doc.banda(banda).NumItens())
        return atual;
    const Banda &b = doc.banda(banda);
    const Item &it = b.Itens[item - 1];
    int64_t v = atual.y();
    const int64_t fundo = int64_t(b.Topo) + Magnitude(b.Altura);
    if (fundo > int64_t(atual.y()) + viewport.height() - 8)
        v = fundo - viewport.height() + 8;
    else if (b.Topo < int64_t(atual.y()) + 8)
        v = int64_t(b.Topo) - 8;
    int64_t h = atual.x();
    const int64_t direita = int64_t(it.Esquerda) + it.Largura;
    if (direita > int64_t(atual.x()) + viewport.width() - 16)
        h = direita - viewport.width() + 16;
    else if (it.Esquerda < atual.x())
        h = it.Esquerda;
    v = std::clamp<int64_t>(v, 0, std::max(0, maximo.y()));
    h = std::clamp<int64_t>(h, 0, std::max(0, maximo.x()));
    return QPoint(int(h), int(v));
}

QRect RetanguloLimitado(qint64 x, qint64 y, qint64 largura, qint64 altura)
{
    constexpr qint64 menor = std::numeric_limits<int>::min(), maior = std::numeric_limits<int>::max();
    auto borda = [&](qint64 inicio, qint64 tamanho) {
        const qint64 a = std::clamp(inicio, menor + 1, maior);
        const qint64 b = std::clamp(a + std::clamp(tamanho, -maior, maior) - 1, menor, maior);
        return std::pair(int(a), int(b));
    };
    const auto [x1, x2] = borda(x, largura);
    const auto [y1, y2] = borda(y, altura);
    return QRect(QPoint(x1, y1), QPoint(x2, y2));
}

QPoint MaximoRolagem(QSize canvas, QSize viewport)
{
    return QPoint(std::max(0, canvas.width() - viewport.width()), std::max(0, canvas.height() - viewport.height()));
}

}  // namespace lumeta
