#include "editing/AlcasMagico.h"

#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/Selecao.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace lumeta {

namespace {

// Truncated toward zero to the 8-pixel grid.
int grade(double delta)
{
    return int(std::trunc(delta / 8.0)) * 8;
}

QString medida(int pixels, const Unidade &u)
{
    const double escala = std::pow(10.0, u.decimais);
    const double v = std::trunc(PixelsParaUnidade(pixels, u) * escala) / escala;
    return QLocale::system().toString(v, 'f', u.decimais);
}

void mostrarMagico(SessaoEdicao &s, qint64 x1, qint64 y1, qint64 x2, qint64 y2, int banda)
{
    const qint64 largura = x2 - x1;
    const qint64 altura = y2 - y1 + 1;
    if (largura > 9999 || altura >= 10000 || largura < 1 || altura < 1) {
        OcultarMagico(s);
        return;
    }
    FantasmaMagico novo;
    novo.visivel = true;
    novo.banda = banda;
    novo.retangulo = QRect(int(x1) + MargemItens, int(y1), int(largura), int(altura));
    novo.legenda = QLatin1Char(' ') + medida(int(largura), s.UnidadeAtual) + QStringLiteral(" x ")
        + medida(int(altura), s.UnidadeAtual) + QLatin1Char(' ') + s.UnidadeAtual.rotulo + QLatin1Char(' ');
    if (s.Magico.visivel && s.Magico.retangulo == novo.retangulo && s.Magico.banda == novo.banda
        && s.Magico.legenda == novo.legenda)
        return;
    s.Magico = novo;
    if (s.Ganchos.MagicoAlterado)
        s.Ganchos.MagicoAlterado();
}

}  // namespace

QRect RetanguloAlca(const QRect &m, int indice)
{
    const int x0 = m.x();
    const int xm = m.x() + m.width() / 2;
    const int x1 = m.x() + m.width();
    const int y0 = m.y();
    const int ym = m.y() + m.height() / 2;
    const int y1 = m.y() + m.height();
    static constexpr int colunas[NumAlcas] = {0, 0, 0, 1, 1, 2, 2, 2};
    static constexpr int linhas[NumAlcas] = {0, 1, 2, 0, 2, 0, 1, 2};
    if (indice < 0 || indice >= NumAlcas)
        return {};
    const int cx = colunas[indice] == 0 ? x0 : colunas[indice] == 1 ? xm : x1;
    const int cy = linhas[indice] == 0 ? y0 : linhas[indice] == 1 ? ym : y1;
    return QRect(cx - LadoAlca / 2, cy - LadoAlca / 2, LadoAlca, LadoAlca);
}

QString DicaAlca(int indice)
{
    switch (indice) {
    case 3:
        return QStringLiteral("Deslocar a banda selecionada");
    case 4:
    case 6:
    case 7:
        return QStringLiteral("Redimensionar o item - [Shift + Setas]");
    default:
        return QString();
    }
}

bool AlcaHabilitada(const SessaoEdicao &s, int indice)
{
    return indice != 3 || s.BandaSelecionada != 1;
}

int AlcaEm(const SessaoEdicao &s, QPoint p)
{
    const QRect moldura = RetanguloSelecao(s);
    if (moldura.isEmpty())
        return -1;
    for (int i = 0; i < NumAlcas; ++i)
        if (AlcaHabilitada(s, i) && RetanguloAlca(moldura, i).contains(p))
            return i;
    return -1;
}

bool IniciarArrasteAlca(SessaoEdicao &s, int indice, QPointF ponto)
{
    const QRect moldura = RetanguloSelecao(s);
    if (moldura.isEmpty() || indice < 0 || indice >= NumAlcas || !AlcaHabilitada(s, indice))
        return false;
    OcultarMagico(s);
    s.Alca.indice = indice;
    s.Alca.inicio = ponto;
    s.Alca.inicial = moldura;
    s.Alca.atual = moldura;
    return true;
}

QRect MoverArrasteAlca(SessaoEdicao &s, QPointF ponto)
{
    ArrasteAlca &a = s.Alca;
    if (!a.Ativo())
        return {};
    LayoutDocumento &doc = s.Documento;
    int topoMinimo = 8;
    if (s.BandaSelecionada > 1 && s.ItemSelecionado > 0) {
        const Banda &anterior = doc.banda(s.BandaSelecionada - 1);
        topoMinimo = anterior.Topo;
        Banda &banda = doc.banda(s.BandaSelecionada);
        const int32_t minimo = -Magnitude(anterior.Altura);
        if (banda.Deslocamento < minimo)
            banda.Deslocamento = minimo;
    }
    const int direita = s.Canvas.Tamanho.width() - 8;
    const int baixo = s.Canvas.Tamanho.height() - 8;
    const int i = a.indice;
    int dx = grade(ponto.x() - a.inicio.x());
    int dy = grade(ponto.y() - a.inicio.y());
    if (i == 1 || i == 6)
        dy = 0;
    if (i == 3 || i == 4)
        dx = 0;
    const int L = a.inicial.x(), T = a.inicial.y(), W = a.inicial.width(), H = a.inicial.height();
    int esq = L, topo = T, larg = W, alt = H;
    const bool moveEsquerda = i == 0 || i == 1 || i == 2;
    const bool moveTopo = i == 0 || i == 3 || i == 5;
    const bool moveDireita = i == 5 || i == 6 || i == 7;
    const bool moveBaixo = i == 2 || i == 4 || i == 7;
    if (moveEsquerda) {
        esq = std::max(0, L + dx);
        larg = W - (esq - L);
    }
    if (moveTopo) {
        topo = std::max(topoMinimo, T + dy);
        // The top handle moves the whole frame; the corners stretch it.
        if (i != 3)
            alt = H - (topo - T);
    }
    if (moveDireita)
        larg = W + dx;
    if (moveBaixo)
        alt = H + dy;
    if (larg < 8) {
        larg = 8;
        if (moveEsquerda)
            esq = L + W - 8;
    }
    if (alt < 1) {
        alt = 1;
        if (i == 0 || i == 5)
            topo = T + H - 1;
    }
    if (moveDireita && esq + larg > direita)
        larg = (direita / 8) * 8 - esq;
    if (moveBaixo && topo + alt > baixo)
        alt = (baixo / 8) * 8 - topo;
    const QRect novo(esq, topo, larg, alt);
    if (novo != a.atual) {
        a.atual = novo;
        if (s.Ganchos.AlcaAlterada)
            s.Ganchos.AlcaAlterada();
    }
    return a.atual;
}

void SoltarArrasteAlca(SessaoEdicao &s)
{
    ArrasteAlca a = s.Alca;
    s.Alca = ArrasteAlca();
    if (!a.Ativo())
        return;
    LayoutDocumento &doc = s.Documento;
    if (s.ItemSelecionado < 1)
        return;
    Banda &banda = doc.banda(s.BandaSelecionada);
    const Item &item = banda.Itens[s.ItemSelecionado - 1];
    bool mudou = false;
    if (a.atual.width() != item.Largura) {
        AplicarLargura(s, a.atual.width());
        mudou = true;
    }
    if (a.atual.height() != Magnitude(banda.Altura)) {
        AplicarAltura(s, a.atual.height());
        mudou = true;
    }
    if (a.atual.y() != banda.Topo && s.BandaSelecionada > 1) {
        const Banda &anterior = doc.banda(s.BandaSelecionada - 1);
        const qint64 d = qint64(banda.Deslocamento) + a.atual.y() - banda.Topo;
        banda.Deslocamento = d <= -std::abs(qint64(anterior.Altura)) ? -9999 : int32_t(std::clamp<qint64>(d, INT32_MIN, INT32_MAX));
        mudou = true;
    }
    if (mudou)
        s.ExibirBanda();
    if (!s.Faixa.visivel || banda.Altura < 1 || !mudou)
        MostrarSelecao(s);
    else if (s.Ganchos.Validar)
        s.Ganchos.Validar();
}

void OcultarMagico(SessaoEdicao &s)
{
    if (!s.Magico.visivel)
        return;
    s.Magico = FantasmaMagico();
    if (s.Ganchos.MagicoAlterado)
        s.Ganchos.MagicoAlterado();
}

void MoverMagico(SessaoEdicao &s, int x, int y, bool livre)
{
    const LayoutDocumento &doc = s.Documento;
    if (!s.Config.MagicItem || s.Faixa.visivel || !livre || s.Alca.Ativo() || doc.NumBandas() < 1
        || AlcaEm(s, QPoint(x, y)) >= 0) {
        OcultarMagico(s);
        return;
    }
    const PontoLocalizado hit = LocalizarPonto(doc, x, y);
    if (hit.item > 0 || hit.banda == 0) {
        const Banda &ultima = doc.banda(doc.NumBandas());
        const qint64 fundo = qint64(ultima.Topo) + std::abs(qint64(ultima.Altura)) - 1;
        if (y <= fundo + 8 || x <= 16) {
            OcultarMagico(s);
            return;
        }
        const qint64 x2 = ((qint64(x) + 8) / 8) * 8;
        const qint64 y2 = fundo + 18 + 8 * ((qint64(y) + 8 - 18 - fundo) / 8);
        mostrarMagico(s, 0, fundo + 1, x2, y2, doc.NumBandas() + 1);
        return;
    }
    const Banda &banda = doc.banda(hit.banda);
    const qint64 fim = banda.Itens.isEmpty() ? 0 : qint64(banda.Itens.last().Esquerda) + banda.Itens.last().Largura;
    if (x <= fim + 16) {
        OcultarMagico(s);
        return;
    }
    const qint64 x2 = ((qint64(x) + 8) / 8) * 8;
    mostrarMagico(s, fim, banda.Topo, x2, qint64(banda.Topo) + std::abs(qint64(banda.Altura)) - 1, hit.banda);
}

void CliqueMagico(SessaoEdicao &s)
{
    const FantasmaMagico m = s.Magico;
    if (!m.visivel || m.banda < 1)
        return;
    if (m.banda <= s.Documento.NumBandas() ? !CabemItens(s, m.banda, 1, TituloAdicionarItem)
                                           : !CabemBandas(s, 1, TituloAdicionarBanda))
        return;
    OcultarMagico(s);
    NadaSelecionado(s);
    LimparFaixa(s);
    LayoutDocumento &doc = s.Documento;
    if (m.banda <= doc.NumBandas()) {
        const bool mudou = s.BandaSelecionada != m.banda;
        s.BandaSelecionada = m.banda;
        if (mudou && s.Ganchos.SelecionarBanda)
            s.Ganchos.SelecionarBanda();
        s.AddItem(m.banda, false, m.retangulo.width());
    } else {
        s.AddBanda(0, false, m.retangulo.height(), m.retangulo.width());
        s.BandaSelecionada = doc.NumBandas();
        if (s.Ganchos.SelecionarBanda)
            s.Ganchos.SelecionarBanda();
    }
    s.ConcluirEdicao();
}

ReacaoMouse PressionarCanvas(SessaoEdicao &s, QPointF ponto, Qt::MouseButton botao, Qt::KeyboardModifiers teclas)
{
    if (botao != Qt::LeftButton && botao != Qt::RightButton)
        return ReacaoMouse::Nada;
    const bool esquerdo = botao == Qt::LeftButton;
    const QPoint p = ponto.toPoint();
    // A handle hides whatever lies under it, also the free part of a
    // narrower neighbour band that would otherwise take the click; the range
    // stays, as the drag's release applies to all of it.
    const int alca = AlcaEm(s, p);
    if (alca >= 0 && !esquerdo) {
        OcultarMagico(s);
        return ReacaoMouse::MenuEditar;
    }
    if (alca >= 0) {
        // The panel's pending edits go first, as for any click on the canvas.
        if (s.Ganchos.ConfirmarPainel && !s.Ganchos.ConfirmarPainel())
            return ReacaoMouse::Nada;
        if (IniciarArrasteAlca(s, alca, ponto))
            return ReacaoMouse::Nada;
    }
    if (s.Magico.visivel && s.Magico.retangulo.contains(p)) {
        if (esquerdo) {
            CliqueMagico(s);
            return ReacaoMouse::Nada;
        }
        OcultarMagico(s);
    }
    const Qt::KeyboardModifiers todas = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return MouseDownCanvas(s, p.x(), p.y(), esquerdo ? BotaoMouse::Esquerdo : BotaoMouse::Direito,
                           (teclas & todas) == Qt::ShiftModifier);
}

void MoverCanvas(SessaoEdicao &s, QPointF ponto, Qt::MouseButtons botoes, Qt::KeyboardModifiers teclas)
{
    const QPoint p = ponto.toPoint();
    if (s.Alca.Ativo()) {
        if (botoes & Qt::LeftButton)
            MoverArrasteAlca(s, ponto);
        return;
    }
    if (botoes == Qt::LeftButton && (teclas & ~Qt::KeypadModifier) == Qt::NoModifier && s.ItemSelecionado > 0) {
        ArrastarSelecao(s, p.x(), p.y());
        return;
    }
    MoverMagico(s, p.x(), p.y(), botoes == Qt::NoButton && teclas == Qt::NoModifier);
}

void SoltarCanvas(SessaoEdicao &s, Qt::MouseButton botao)
{
    if (botao == Qt::LeftButton)
        SoltarArrasteAlca(s);
}

}  // namespace lumeta
