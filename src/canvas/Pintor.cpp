#include "canvas/Pintor.h"

#include "canvas/Atributos.h"
#include "canvas/Cores.h"
#include "output/Macros.h"
#include "output/TextoComandos.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

namespace lumeta {

QColor ResolverCor(int indice, int fixa)
{
    return CorQt(NovaCor(indice, fixa));
}

namespace {

const FonteItem &FonteCanvas()
{
    static const FonteItem f{QStringLiteral("Arial"), 8, false, false, false, false};
    return f;
}

// A filled box between two corners, both included, in either order.
void Caixa(QPainter &p, qint64 x1, qint64 y1, qint64 x2, qint64 y2, const QColor &cor)
{
    if (x1 > x2)
        std::swap(x1, x2);
    if (y1 > y2)
        std::swap(y1, y2);
    p.fillRect(RetanguloLimitado(x1, y1, x2 - x1 + 1, y2 - y1 + 1), cor);
}

// The outline of the box between two corners, both included.
void Contorno(QPainter &p, qint64 x1, qint64 y1, qint64 x2, qint64 y2, const QColor &cor)
{
    if (x1 > x2)
        std::swap(x1, x2);
    if (y1 > y2)
        std::swap(y1, y2);
    Caixa(p, x1, y1, x2, y1, cor);
    Caixa(p, x1, y2, x2, y2, cor);
    Caixa(p, x1, y1, x1, y2, cor);
    Caixa(p, x2, y1, x2, y2, cor);
}

void PintarMarcador(QPainter &p, bool paisagem, RecursosCanvas &r)
{
    const MarcadorPagina m = MarcadorDaPagina(paisagem);
    const QColor cor = ResolverCor(m.cor);
    Caixa(p, m.x, 0, m.x, m.y, cor);
    Caixa(p, 0, m.y, m.x, m.y, cor);
    VarianteFonte &fonte = r.Fontes.Variante(FonteCanvas(), 0, false);
    p.setFont(fonte.fonte);
    p.setPen(ResolverCor(CorVermelhoClaro));
    p.drawText(QPoint(m.x + 2, fonte.ascendente), m.rotulo);
}

void PintarMarcadoresBanda(QPainter &p, const Banda &banda, bool quebra, int topo, int fundo)
{
    const bool comentario = !banda.Comentario.isEmpty();
    if (quebra) {
        if (comentario)
            Caixa(p, 1, topo, 5, fundo - 1, ResolverCor(CorCinzaClaro));
        const QColor azul(0, 0, 255);
        Caixa(p, 3, topo, 6, topo, azul);
        Caixa(p, 3, topo, 3, fundo - 1, azul);
        for (int i = 1; i <= 2; ++i)
            Caixa(p, 3 - i, fundo - i - 1, 3 + i, fundo - i - 1, azul);
    } else if (comentario) {
        Caixa(p, 2, topo, 4, fundo - 1, QColor(210, 210, 210));
    }
}

// Where a picture of `tamanho` goes in a cell (right and bottom exclusive) by
// the format bits: left/top, centred (1, 4) or against the far edge (2, 8).
// The centring counts both edges of the cell.
QPoint Posicionar(QSize tamanho, const QRect &celula, int32_t bits)
{
    const qint64 esquerda = celula.x(), direita = qint64(celula.x()) + celula.width();
    const qint64 topo = celula.y(), fundo = qint64(celula.y()) + celula.height();
    qint64 x = esquerda, y = topo;
    if (bits & BitCentralizar)
        x = esquerda + qint64(std::nearbyint((direita - esquerda + 1 - tamanho.width()) / 2.0));
    else if (bits & BitDireita)
        x = direita - tamanho.width();
    if (bits & BitCentroVertical)
        y = topo + qint64(std::nearbyint((fundo - topo + 1 - tamanho.height()) / 2.0));
    else if (bits & BitBase)
        y = fundo - tamanho.height();
    return QPoint(Limitar32(x), Limitar32(y));
}

QRect Colocado(QPoint pos, QSize tamanho)
{
    return RetanguloLimitado(pos.x(), pos.y(), tamanho.width(), tamanho.height());
}

struct Contexto {
    QPainter &p;
    RecursosCanvas &r;
    QRect area;
    bool papel;
};

void PintarBordas(QPainter &p, const Item &it, const QRect &celula, const QColor &cor)
{
    const int32_t bits = Alinhamento(it.Linhas);
    const int w = it.Espessura;
    if (w <= 0)
        return;
    const qint64 esquerda = celula.x(), topo = celula.y();
    const qint64 largura = celula.width(), altura = celula.height();
    // Middle lines count both edges of the cell.
    const qint64 meioY = topo + (altura + 1 - w) / 2;
    const qint64 meioX = esquerda + (largura + 1 - w) / 2;
    const QRect linhas[] = {
        (bits & LinhaSuperior) ? RetanguloLimitado(esquerda, topo, largura, w) : QRect(),
        (bits & LinhaInferior) ? RetanguloLimitado(esquerda, topo + altura - w, largura, w) : QRect(),
        (bits & LinhaEsquerda) ? RetanguloLimitado(esquerda, topo, w, altura) : QRect(),
        (bits & LinhaDireita) ? RetanguloLimitado(esquerda + largura - w, topo, w, altura) : QRect(),
        (bits & LinhaMeioHorizontal) ? RetanguloLimitado(esquerda, meioY, largura, w) : QRect(),
        (bits & LinhaMeioVertical) ? RetanguloLimitado(meioX, topo, w, altura) : QRect(),
    };
    for (const QRect &l : linhas) {
        const QRect corte = l & celula;
        if (!corte.isEmpty())
            p.fillRect(corte, cor);
    }
}

void PintarFigura(Contexto &c, const Item &it, const QString &texto, const QRect &celula)
{
    // The placeholder tells the editor's user where a picture goes; paper
    // has nothing to show for a picture without a file.
    if (c.papel && QString(texto).remove(QLatin1Char('"')).trimmed().isEmpty())
        return;
    const QImage &img = c.r.Figuras.Figura(texto);
    const QPoint pos = Posicionar(img.size(), celula, Alinhamento(it.Atributos));
    if (Colocado(pos, img.size()).intersects(c.area))
        c.p.drawImage(pos, img);
}

// Draws the slice `fonte` of a symbol into `alvo`, only the rows (columns
// when `deitado`) of it that `visivel` holds. Along the bars a slice is
// either copied one to one or is a single row stretched; along the symbol
// it is stretched whole, which is bounded by the symbol's length.
void DesenharTrecho(QPainter &p, const QImage &simbolo, QRect fonte, const QRect &alvo, const QRect &visivel,
                    bool deitado)
{
    QRect destino = alvo;
    if (deitado) {
        destino.setLeft(visivel.left());
        destino.setRight(visivel.right());
        if (fonte.width() > 1)
            fonte = QRect(fonte.x() + visivel.left() - alvo.left(), fonte.y(), destino.width(), fonte.height());
    } else {
        destino.setTop(visivel.top());
        destino.setBottom(visivel.bottom());
        if (fonte.height() > 1)
            fonte = QRect(fonte.x(), fonte.y() + visivel.top() - alvo.top(), fonte.width(), destino.height());
    }
    p.drawImage(destino, simbolo, fonte);
}

// Bars taller than this are drawn from a symbol of this height whose middle
// row is repeated: every row of a linear symbol's bars is alike, so the
// picture is the same, and neither the symbol's memory nor the work of
// drawing it grows with the band.
constexpr int BarraMaximaDesenhada = 256;

void PintarCodigoBarras(Contexto &c, const Item &it, const QString &texto, const QRect &celula)
{
    const int angulo = AnguloAtributos(it.Atributos);
    const bool deitado = angulo == 90 || angulo == 270;
    const bool mostrarTexto = MostrarDigitosCodigo(it);
    const bool linear = it.Tipo != TipoPDF417;
    const int32_t bits = Alinhamento(it.Atributos);
    const int alturaBarra = AlturaBarrasCodigo(it, celula.height());
    const int desenhada = linear ? std::min(alturaBarra, BarraMaximaDesenhada) : alturaBarra;
    const qint64 repetidas = qint64(alturaBarra) - desenhada;

    if (linear && !deitado) {
        // The rows of an upright symbol are known before it is drawn (give
        // or take the few rows of a very low band): one that lands well
        // outside the area is not drawn at all.
        const bool linhaLegivel = mostrarTexto || it.Tipo == TipoInterlace25SemNumeros;
        const int altura = Limitar32(qint64(std::max(alturaBarra, 1)) + (linhaLegivel ? 12 : 0));
        const int y = Posicionar(QSize(1, altura), celula, bits).y();
        constexpr int folga = 16;
        if (qint64(y) + altura + folga <= c.area.top() || qint64(y) - folga > c.area.bottom())
            return;
    }

    const QImage &simbolo = c.r.Simbolos.Simbolo(it.Tipo, texto, desenhada, mostrarTexto, angulo);
    qint64 largura = simbolo.width(), altura = simbolo.height();
    const bool erro = &simbolo == &ImagemErro();
    if (!erro) {
        const int mag = MagnificacaoAtributos(it.Atributos);
        // A linear symbol grows along its length, a PDF417 symbol across it.
        const bool aoComprido = (it.Tipo == TipoPDF417) == deitado;
        (aoComprido ? largura : altura) *= mag;
        if (repetidas > 0)
            (deitado ? largura : altura) += repetidas;
    }
    const QSize tamanho(Limitar32(largura), Limitar32(altura));
    const QRect destino = Colocado(Posicionar(tamanho, celula, bits), tamanho);
    if (!destino.intersects(c.area))
        return;
    if (erro || repetidas <= 0) {
        c.p.drawImage(destino, simbolo);
        return;
    }
    // Before the middle row of the bars, the middle row stretched over the
    // bars' true height, and what follows it (the digits).
    const int lado = deitado ? simbolo.width() : simbolo.height();
    const int meio = lado / 2;
    const qint64 trechos[3][2] = {{0, meio}, {meio, 1}, {meio + 1, lado - meio - 1}};
    qint64 pos = deitado ? destino.x() : destino.y();
    for (const auto &t : trechos) {
        const qint64 destinoLado = t[0] == meio ? repetidas + 1 : t[1];
        const QRect fonte = deitado ? QRect(int(t[0]), 0, int(t[1]), simbolo.height())
                                    : QRect(0, int(t[0]), simbolo.width(), int(t[1]));
        const QRect alvo = deitado ? RetanguloLimitado(pos, destino.y(), destinoLado, destino.height())
                                   : RetanguloLimitado(destino.x(), pos, destino.width(), destinoLado);
        const QRect visivel = alvo & c.area;
        if (!visivel.isEmpty() && !fonte.isEmpty())
            DesenharTrecho(c.p, simbolo, fonte, alvo, visivel, deitado);
        pos += destinoLado;
    }
}

void PintarBarraGrafico(Contexto &c, const Item &it, const CoresMacro &cores, const QRect &celula)
{
    if (it.Largura <= 0)
        return;
    const double numero = std::abs(NumeroInicial(ValorExibido(cores.texto, "10")));
    // No band is anywhere near this tall; it only keeps absurd values finite.
    int altura = int(std::nearbyint(std::min(numero, 1.0e6)));
    if (altura == 0)
        altura = 1;
    const QSize tamanho(it.Largura, altura);
    const QRect destino = Colocado(Posicionar(tamanho, celula, Alinhamento(it.Atributos)), tamanho);
    if (!destino.intersects(c.area))
        return;
    const QColor preenchimento = it.CorTexto >= 80 ? QColor(Qt::black) : ResolverCor(it.CorTexto, cores.frente);
    const QColor contorno = it.CorFundo >= 80 ? preenchimento : ResolverCor(it.CorFundo, cores.fundo);
    c.p.fillRect(destino, preenchimento);
    Contorno(c.p, destino.left(), destino.top(), destino.right(), destino.bottom(), contorno);
}

void PintarTexto(Contexto &c, const Item &it, const FonteItem &fonte, const CoresMacro &cores, const QRect &celula,
                 bool celulaVisivel)
{
    if (cores.texto.isEmpty() || it.Largura < 5)
        return;
    const OpcoesTexto op = OpcoesDoItem(it);
    const QString mostrado = TextoExibido(cores.texto);
    const QColor cor = ResolverCor(it.CorTexto, cores.frente);
    const double x = celula.x() + 2, y = celula.y(), w = it.Largura - 4, h = celula.height();
    if (!celulaVisivel) {
        // Unclipped text of a cell outside the area: draw it only when its
        // words reach into the area.
        QRect extensao;
        DesenharTexto(nullptr, c.r.Fontes, fonte, cor, mostrado, x, y, w, h, op, true, &extensao);
        if (!extensao.intersects(c.area))
            return;
    }
    DesenharTexto(&c.p, c.r.Fontes, fonte, cor, mostrado, x, y, w, h, op, false);
}

void PintarItem(Contexto &c, const Item &it, const FonteItem &fonte, int topo, int fundo, bool bandaVisivel)
{
    const bool figura = it.Tipo == TipoFigura;
    const bool barras = EhCodigoBarras(it.Tipo);
    const bool grafico = it.Tipo == TipoBarraGrafico;
    const bool texto = !figura && !barras && !grafico;
    // Pictures, symbols, bars and unclipped text may reach out of their cell.
    const bool transborda = !texto || PosicaoLigada(it.Atributos, 8);
    const int esquerda = Limitar32(int64_t(it.Esquerda) + DeslocamentoItens);
    const int direita = Limitar32(int64_t(esquerda) + it.Largura);  // exclusive
    const bool celulaVisivel = bandaVisivel && esquerda <= c.area.right() && direita > c.area.left();
    if (!celulaVisivel && !transborda)
        return;

    const CoresMacro cores = it.Texto.contains(QLatin1Char('<')) && it.Texto.contains(QLatin1String("<%_"))
        ? MacroColor(it.Texto)
        : CoresMacro{it.Texto};
    const QRect celula = RetanguloLimitado(esquerda, topo, qint64(direita) - esquerda, qint64(fundo) - topo);

    if (celulaVisivel && !grafico) {
        if (it.CorFundo != CorTransparente || cores.fundo != -1)
            c.p.fillRect(celula, ResolverCor(it.CorFundo, cores.fundo));
        if (it.Linhas != QLatin1String("0000000000"))
            PintarBordas(c.p, it, celula, ResolverCor(it.CorLinha, cores.linha));
    }

    if (figura)
        PintarFigura(c, it, cores.texto, celula);
    else if (barras)
        PintarCodigoBarras(c, it, cores.texto, celula);
    else if (grafico)
        PintarBarraGrafico(c, it, cores, celula);
    else
        PintarTexto(c, it, fonte, cores, celula, celulaVisivel);
}

}  // namespace

bool MostrarDigitosCodigo(const Item &item)
{
    return !Justificar(item.Atributos) && item.Tipo != TipoInterlace25SemNumeros;
}

int AlturaBarrasCodigo(const Item &item, int alturaBanda)
{
    const int angulo = AnguloAtributos(item.Atributos);
    const bool deitado = angulo == 90 || angulo == 270;
    // Type 37 hides its digits but its encoder turns their 12 rows into bar,
    // so it leaves them out here like a symbol that shows them.
    const bool linhaLegivel = MostrarDigitosCodigo(item) || item.Tipo == TipoInterlace25SemNumeros;
    const int h = Limitar32(int64_t(deitado ? item.Largura : alturaBanda) - (linhaLegivel ? 12 : 0));
    const QChar pos10 = item.Atributos.size() >= 10 ? item.Atributos[9] : QChar();
    if (PosicaoLigada(item.Atributos, 8))
        return pos10 == QLatin1Char('1') ? std::max(h, 40) : 40;
    return (pos10 == QLatin1Char('0') && h >= 41) ? 40 : h;
}

ResultadoAlturas AtualizarAlturas(LayoutDocumento &doc, int bandaSelecionada, MedidorAltura &medidor)
{
    ResultadoAlturas r;
    const int n = doc.NumBandas();
    if (bandaSelecionada >= 1 && bandaSelecionada <= n)
        doc.ReposicionarItem(bandaSelecionada);
    qint64 topoAnterior = 0, fundoAnterior = 0;
    for (int i = 0; i < n; ++i) {
        Banda &b = doc.Bandas[i];
        if (i == 0) {
            b.Topo = TopoPrimeiraBanda;
        } else {
            qint64 topo = fundoAnterior + b.Deslocamento;
            if (topo < topoAnterior)
                topo = topoAnterior;
            b.Topo = Limitar32(topo);
        }
        if (b.Altura < 1) {
            const int32_t h = -CalcularAlturaBanda(b, medidor);
            if (h != b.Altura) {
                b.Altura = h;
                r.alturaMudou = true;
            }
            if (i + 1 == bandaSelecionada)
                r.selecionadaAutomatica = true;
        }
        topoAnterior = b.Topo;
        fundoAnterior = qint64(b.Topo) + Magnitude(b.Altura);
    }
    return r;
}

void PrepararLayoutAberto(LayoutDocumento &doc, MedidorAltura &medidor)
{
    doc.ReposicionarTudo();
    AtualizarAlturas(doc, 1, medidor);
}

ResultadoRepintura PrepararRepintura(LayoutDocumento &doc, int bandaSelecionada, CanvasPagina &canvas,
                                     RecursosCanvas &recursos, InterfaceUsuario *ui)
{
    ResultadoRepintura r;
    const ResultadoAlturas a = AtualizarAlturas(doc, bandaSelecionada, recursos.Medidor);
    r.alturaMudou = a.alturaMudou;
    r.selecionadaAutomatica = a.selecionadaAutomatica;
    if (canvas.TamanhoTotal) {
        r.canvasCresceu = canvas.CrescerLargura(doc);
        for (const Banda &b : doc.Bandas)
            r.canvasCresceu |= canvas.CrescerAltura(Limitar32(qint64(b.Topo) + std::abs(qint64(b.Altura))));
    }
    r.memoriaInsuficiente = !canvas.VerificarMemoria();
    if (r.memoriaInsuficiente && ui)
        ui->Mensagem(MensagemMemoriaInsuficiente, TituloAplicacao, Icone::Exclamacao);
    return r;
}

namespace {

// The editor's own marks, under everything a band prints: the page-size
// marker, the page-break and comment marks at the left edge and the light
// outline of every cell (a background covers it, as it covers the paper).
void PintarMarcasEditor(QPainter &p, const LayoutDocumento &doc, const QRect &area, RecursosCanvas &r)
{
    PintarMarcador(p, doc.Paisagem, r);
    const int n = doc.NumBandas();
    std::vector<bool> quebras(size_t(n) + 1, false);
    for (int16_t q : doc.Quebras)
        if (q >= 1 && q <= n)
            quebras[size_t(q)] = true;
    const QColor contorno(230, 230, 230);
    for (int i = 1; i <= n; ++i) {
        const Banda &banda = doc.banda(i);
        const int topo = banda.Topo;
        const int fundo = Limitar32(qint64(topo) + std::abs(qint64(banda.Altura)));
        if (topo > area.bottom() || fundo <= area.top())
            continue;
        PintarMarcadoresBanda(p, banda, quebras[size_t(i)], topo, fundo);
        for (const Item &it : banda.Itens) {
            const int esquerda = Limitar32(int64_t(it.Esquerda) + DeslocamentoItens);
            const int direita = Limitar32(int64_t(esquerda) + it.Largura);
            if (esquerda <= area.right() && direita > area.left())
                Contorno(p, esquerda, topo, direita - 1, fundo - 1, contorno);
        }
    }
}

}  // namespace

void PintarBanda(QPainter &pintor, const Banda &banda, int topo, int fundo, const QRect &area,
                 RecursosCanvas &recursos, const FonteItem *&fonte, bool papel)
{
    Contexto c{pintor, recursos, area, papel};
    const bool visivel = topo <= area.bottom() && fundo > area.top();
    for (const Item &it : banda.Itens) {
        if (FonteValida(it.Fonte))
            fonte = &it.Fonte;
        PintarItem(c, it, *fonte, topo, fundo, visivel);
    }
}

const FonteItem &FontePadraoCanvas()
{
    return FonteCanvas();
}

void PintarLayout(QPainter &pintor, const LayoutDocumento &doc, const QRect &area, RecursosCanvas &recursos,
                  const OpcoesPintura &opcoes)
{
    recursos.Figuras.NovaPassagem();
    pintor.save();
    pintor.setClipRect(area, Qt::IntersectClip);
    pintor.fillRect(area, Qt::white);
    if (opcoes.marcasEditor)
        PintarMarcasEditor(pintor, doc, area, recursos);
    const FonteItem *fonte = &FonteCanvas();
    for (const Banda &banda : doc.Bandas)
        PintarBanda(pintor, banda, banda.Topo, Limitar32(qint64(banda.Topo) + std::abs(qint64(banda.Altura))), area,
                    recursos, fonte, !opcoes.marcasEditor);
    pintor.restore();
}

ResultadoRepintura ExibirBanda(LayoutDocumento &doc, int bandaSelecionada, CanvasPagina &canvas,
                               RecursosCanvas &recursos, InterfaceUsuario *ui, const OpcoesPintura &opcoes)
{
    ResultadoRepintura r = PrepararRepintura(doc, bandaSelecionada, canvas, recursos, ui);
    if (!canvas.GarantirImagem()) {
        if (!r.memoriaInsuficiente && ui)
            ui->Mensagem(MensagemMemoriaInsuficiente, TituloAplicacao, Icone::Exclamacao);
        r.memoriaInsuficiente = true;
    }
    if (canvas.Imagem.isNull())
        return r;
    QPainter p(&canvas.Imagem);
    PintarLayout(p, doc, QRect(QPoint(0, 0), canvas.Tamanho), recursos, opcoes);
    return r;
}

}  // namespace lumeta
