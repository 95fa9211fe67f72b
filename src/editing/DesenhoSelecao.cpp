#include "editing/DesenhoSelecao.h"

#include "editing/AlcasMagico.h"
#include "editing/Selecao.h"

#include <QFontMetrics>
#include <QPainter>
#include <cstdlib>

namespace lumeta {

namespace {

constexpr int LarguraMarcador = 6;

QRect marcadorBanda(const SessaoEdicao &s)
{
    const LayoutDocumento &doc = s.Documento;
    if (s.BandaSelecionada < 1 || s.BandaSelecionada > doc.NumBandas())
        return {};
    const Banda &b = doc.banda(s.BandaSelecionada);
    return QRect(0, b.Topo, LarguraMarcador, std::max<int32_t>(1, Magnitude(b.Altura)));
}

// A frame drawn on the pixels just inside `r`.
void moldura(QPainter &p, const QRect &r, const QPen &caneta)
{
    if (r.width() < 1 || r.height() < 1)
        return;
    p.setPen(caneta);
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(0, 0, -1, -1));
}

QFont fonteLegenda(const QRect &fantasma)
{
    QFont f;
    f.setPixelSize(std::clamp(fantasma.height() - 4, 8, 11));
    return f;
}

// The ghost's size caption: inside the ghost when it fits, else in a small
// box beside it, so a narrow ghost still tells its size.
QRect retanguloLegenda(const QFontMetrics &fm, const FantasmaMagico &m)
{
    const QRect &r = m.retangulo;
    const int largura = fm.horizontalAdvance(m.legenda) + 4;
    if (largura <= r.width() && fm.height() <= r.height())
        return r;
    return QRect(r.right() + 3, r.top(), largura, fm.height() + 2);
}

}  // namespace

QRect AreaMarcasEdicao(const SessaoEdicao &s)
{
    QRect r = marcadorBanda(s);
    const QRect sel = s.Alca.Ativo() ? s.Alca.atual.united(RetanguloSelecao(s)) : RetanguloSelecao(s);
    if (!sel.isEmpty())
        r = r.united(sel.adjusted(-LadoAlca, -LadoAlca, LadoAlca, LadoAlca));
    const QRect faixa = RetanguloFaixa(s);
    if (!faixa.isEmpty())
        r = r.united(faixa.adjusted(-1, -1, 1, 1));
    if (s.Magico.visivel) {
        const QFontMetrics fm(fonteLegenda(s.Magico.retangulo));
        r = r.united(s.Magico.retangulo).united(retanguloLegenda(fm, s.Magico));
    }
    return r;
}

void PintarMarcasEdicao(QPainter &p, const SessaoEdicao &s, const QRect &area)
{
    p.save();
    p.setClipRect(area, Qt::IntersectClip);
    p.setRenderHint(QPainter::Antialiasing, false);

    const QRect marcador = marcadorBanda(s);
    if (!marcador.isEmpty() && marcador.intersects(area))
        p.fillRect(marcador, CorSelecao);

    const QRect faixa = RetanguloFaixa(s);
    if (!faixa.isEmpty())
        moldura(p, faixa, QPen(CorSelecao, 1, Qt::DashLine));

    // The handles lie in front of the ghost, as they take the click there.
    if (s.Magico.visivel) {
        const QRect m = s.Magico.retangulo;
        p.fillRect(m, QColor(198, 222, 255, 170));
        moldura(p, m, QPen(QColor(60, 110, 200), 1, Qt::DashLine));
        p.setFont(fonteLegenda(m));
        p.setPen(QColor(20, 50, 120));
        const QRect legenda = retanguloLegenda(p.fontMetrics(), s.Magico);
        if (legenda != m)
            p.fillRect(legenda, QColor(255, 255, 225));
        p.drawText(legenda, Qt::AlignCenter | Qt::TextSingleLine, s.Magico.legenda);
    }

    if (s.Alca.Ativo()) {
        // Only the rubber frame moves while a handle is dragged.
        moldura(p, s.Alca.atual, QPen(CorSelecao, 1, Qt::DotLine));
    } else {
        const QRect sel = RetanguloSelecao(s);
        if (!sel.isEmpty()) {
            moldura(p, sel, QPen(CorSelecao, 1));
            for (int i = 0; i < NumAlcas; ++i) {
                const QRect a = RetanguloAlca(sel, i);
                p.fillRect(a, AlcaHabilitada(s, i) ? CorSelecao : QColor(160, 160, 160));
                p.fillRect(a.adjusted(1, 1, -1, -1), Qt::white);
            }
        }
    }

    p.restore();
}

}  // namespace lumeta
