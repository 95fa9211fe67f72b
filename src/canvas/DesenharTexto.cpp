#include "canvas/DesenharTexto.h"

#include "output/Macros.h"

#include <QPainter>
#include <cmath>
#include <vector>

namespace lumeta {

int PixelsFonte(int tamanho)
{
    return int(std::nearbyint(tamanho * 20.0 / 15.0));
}

bool FonteValida(const FonteItem &f)
{
    if (f.Tamanho < 1)
        return false;
    for (QChar c : f.Nome)
        if (!c.isSpace())
            return true;
    return false;
}

unsigned EstiloDaFonte(const FonteItem &f)
{
    return (f.Negrito ? EstiloNegrito : 0u) | (f.Italico ? EstiloItalico : 0u)
        | (f.Sublinhado ? EstiloSublinhado : 0u) | (f.Tachado ? EstiloTachado : 0u);
}

VarianteFonte::VarianteFonte(const QFont &f)
    : fonte(f), metricas(f), ascendente(metricas.ascent()), altura(metricas.height()),
      espaco(metricas.horizontalAdvance(QLatin1Char(' ')))
{
}

int VarianteFonte::Largura(const QString &palavra)
{
    const auto it = m_larguras.constFind(palavra);
    if (it != m_larguras.constEnd())
        return *it;
    // A long session types many words; start over rather than grow forever.
    if (m_larguras.size() > 50000)
        m_larguras.clear();
    const int l = metricas.horizontalAdvance(palavra);
    m_larguras.insert(palavra, l);
    return l;
}

VarianteFonte &FontesCanvas::Variante(const FonteItem &fonte, unsigned estilo, bool girada)
{
    Chave chave{fonte.Nome, PixelsFonte(fonte.Tamanho), estilo, girada};
    auto it = m_variantes.find(chave);
    if (it != m_variantes.end())
        return *it->second;
    QFont f(fonte.Nome);
    f.setPixelSize(std::max(1, chave.pixels));
    const bool negrito = estilo & EstiloNegrito;
    f.setWeight(negrito ? QFont::Bold : girada ? QFont::Medium : QFont::Normal);
    f.setItalic(estilo & EstiloItalico);
    f.setUnderline(estilo & EstiloSublinhado);
    f.setStrikeOut(estilo & EstiloTachado);
    // Word widths are those of a plain text-out call: no pair kerning.
    f.setKerning(false);
    auto variante = std::make_unique<VarianteFonte>(f);
    VarianteFonte &ref = *variante;
    m_variantes.emplace(std::move(chave), std::move(variante));
    return ref;
}

namespace {

const QChar QuebraLinha = QLatin1Char('\n');

struct Palavra {
    QString texto;
    VarianteFonte *fonte;
    double x;       // offset along the line, indent included
    int largura;
};

struct Linha {
    int primeira;
    int fim;
    double largura;  // words plus one space after each, indent included
};

// "{e}" and real line breaks become break words of their own, with the
// blanks around them shrunk back to one; a single line drops them.
QString PrepararTexto(const QString &texto, bool umaLinha)
{
    QString t = texto;
    if (t.contains(QLatin1Char('{')))
        t.replace(TagQuebraLinha, QString(QuebraLinha), Qt::CaseInsensitive);
    if (t.contains(QLatin1Char('\r'))) {
        t.replace(QLatin1String("\r\n"), QString(QuebraLinha));
        t.replace(QLatin1Char('\r'), QuebraLinha);
    }
    if (!t.contains(QuebraLinha))
        return t;
    if (umaLinha) {
        t.remove(QuebraLinha);
        return t;
    }
    t.replace(QString(QuebraLinha), QStringLiteral(" \n "));
    t.replace(QLatin1String("  \n"), QLatin1String(" \n"));
    t.replace(QLatin1String("\n  "), QLatin1String("\n "));
    return t;
}

int NormalizarAngulo(int angulo)
{
    return (angulo == 90 || angulo == 180 || angulo == 270) ? angulo : 0;
}

}  // namespace

int DesenharTexto(QPainter *pintor, FontesCanvas &fontes, const FonteItem &fonte, const QColor &cor,
                  const QString &texto, double x, double y, double largura, double altura,
                  const OpcoesTexto &op, bool medir, QRect *extensao)
{
    const int angulo = NormalizarAngulo(op.angulo);
    const bool deitado = angulo == 90 || angulo == 270;
    const bool girada = angulo != 0;
    const double larguraGirada = deitado ? altura : largura;
    const double alturaGirada = deitado ? largura : altura;
    const double comprimento = deitado ? larguraGirada - 5 : larguraGirada;

    const unsigned estiloBase = EstiloDaFonte(fonte);
    VarianteFonte &base = fontes.Variante(fonte, estiloBase, girada);
    const int alturaLinha = base.altura;
    const double espaco = op.justificar ? base.espaco * 0.75 : double(base.espaco);

    const QString t = PrepararTexto(texto, op.umaLinha);
    qsizetype ini = 0, fim = t.size();
    while (ini < fim && t[ini] == QLatin1Char(' '))
        ++ini;
    while (fim > ini && t[fim - 1] == QLatin1Char(' '))
        --fim;
    const double recuo = double(ini) * espaco;

    static thread_local std::vector<Palavra> palavras;
    static thread_local std::vector<Linha> linhas;
    palavras.clear();
    linhas.clear();

    unsigned estado = estiloBase;
    unsigned estiloAtual = estiloBase;
    VarianteFonte *atual = &base;
    double larguraLinha = recuo;
    int inicioLinha = 0;
    bool linhaVazia = true;
    auto fecharLinha = [&] {
        linhas.push_back({inicioLinha, int(palavras.size()), larguraLinha});
        inicioLinha = int(palavras.size());
        larguraLinha = 0;
        linhaVazia = true;
    };

    for (qsizetype a = ini; a < fim;) {
        qsizetype b = t.indexOf(QLatin1Char(' '), a);
        if (b < 0 || b > fim)
            b = fim;
        const QStringView token = QStringView(t).mid(a, b - a);
        a = b + 1;
        if (token.size() == 1 && token[0] == QuebraLinha) {
            fecharLinha();
            continue;
        }
        PalavraEstilizada pe = AplicarTags(token.toString(), estado);
        if (pe.estilo != estiloAtual) {
            atual = &fontes.Variante(fonte, pe.estilo, girada);
            estiloAtual = pe.estilo;
        }
        const int lp = pe.texto.isEmpty() ? 0 : atual->Largura(pe.texto);
        if (!op.umaLinha && !linhaVazia && larguraLinha + espaco + lp > comprimento)
            fecharLinha();
        palavras.push_back({std::move(pe.texto), atual, larguraLinha, lp});
        larguraLinha += lp + espaco;
        linhaVazia = false;
        if (b == fim)
            break;
    }
    if (!linhaVazia)
        fecharLinha();

    const int numLinhas = int(linhas.size());
    const int resultado = op.umaLinha ? alturaLinha : numLinhas * alturaLinha;

    const bool desenhar = !medir && pintor;
    if (!desenhar && !extensao)
        return resultado;

    // Where every word starts, and the box the words cover.
    struct Colocada {
        const Palavra *palavra;
        int x, y;
        QTransform giro;
    };
    static thread_local std::vector<Colocada> colocadas;
    colocadas.clear();
    QRect cobertura;
    for (int li = 0; li < numLinhas; ++li) {
        const Linha &linha = linhas[size_t(li)];
        const int n = linha.fim - linha.primeira;
        const bool ultima = li == numLinhas - 1;
        double inicio = 0;
        double extra = 0;
        if (op.justificar) {
            if ((!ultima || linha.largura > 0.75 * comprimento) && n > 1)
                extra = (comprimento - linha.largura + espaco) / (n - 1);
        } else if (op.centralizar) {
            inicio = (comprimento - linha.largura) / 2 + espaco / 2;
        } else if (op.direita) {
            inicio = comprimento - linha.largura + espaco - 1;
        }
        double dy = double(li) * alturaLinha;
        if (op.umaLinha) {
            if (op.centroVertical)
                dy = (alturaGirada - alturaLinha) / 2;
            else if (op.base)
                dy = alturaGirada - alturaLinha - 1;
        }
        for (int k = 0; k < n; ++k) {
            const Palavra &p = palavras[size_t(linha.primeira + k)];
            if (p.texto.isEmpty())
                continue;
            const double dx = inicio + p.x + k * extra;
            double sx = dx, sy = dy;
            switch (angulo) {
            case 90:
                sx = dy - 1;
                sy = altura - dx - 3;
                break;
            case 180:
                sx = largura - dx - 1;
                sy = altura - dy - 2;
                break;
            case 270:
                sx = largura - dy;
                sy = dx + 2;
                break;
            default:
                break;
            }
            // Halves round up, not to even: a band drawn one pixel lower
            // (on a printed page, say) must look the same, only moved.
            const int px = int(std::floor(x + sx + 0.5));
            const int py = int(std::floor(y + sy + 0.5));
            QTransform giro;
            if (angulo) {
                giro.translate(px, py);
                giro.rotate(-angulo);
            }
            const QRect caixa(0, 0, p.largura, alturaLinha);
            cobertura |= angulo ? giro.mapRect(caixa) : caixa.translated(px, py);
            colocadas.push_back({&p, px, py, giro});
        }
    }
    if (extensao)
        *extensao = cobertura;
    if (!desenhar)
        return resultado;

    // The clip rectangle keeps its unrotated sides; right and bottom are out.
    const int esquerda = int(std::nearbyint(x));
    const int topo = int(std::nearbyint(y));
    const int direita = int(std::nearbyint(x + largura - 1));
    const int fundo = int(std::nearbyint(y + altura - 1));
    const QRect recorte(esquerda, topo, direita - esquerda, fundo - topo);
    // Words well inside the cell need no clip; on paper every clip is a
    // path in the page's content, so most cells of a report are spared one.
    // The margin covers glyphs that reach past their advance (italics).
    const bool recortar = op.recortar && (angulo || !recorte.adjusted(2, 0, -2, 0).contains(cobertura));

    // Saving the painter's state costs a state change of its own on paper:
    // only a clip or a turn needs one. Pen and font are anybody's to set.
    const bool guardar = recortar || angulo;
    if (guardar)
        pintor->save();
    if (recortar)
        pintor->setClipRect(recorte, Qt::IntersectClip);
    pintor->setPen(cor);
    const QTransform transformacaoBase = pintor->transform();
    const VarianteFonte *fonteNoPintor = nullptr;
    for (const Colocada &c : colocadas) {
        if (fonteNoPintor != c.palavra->fonte) {
            pintor->setFont(c.palavra->fonte->fonte);
            fonteNoPintor = c.palavra->fonte;
        }
        if (angulo) {
            pintor->setTransform(c.giro * transformacaoBase);
            pintor->drawText(QPoint(0, c.palavra->fonte->ascendente), c.palavra->texto);
        } else {
            pintor->drawText(QPoint(c.x, c.y + c.palavra->fonte->ascendente), c.palavra->texto);
        }
    }
    if (guardar)
        pintor->restore();
    return resultado;
}

}  // namespace lumeta
