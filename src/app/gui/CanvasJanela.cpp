#include "app/gui/CanvasJanela.h"

#include "editing/AlcasMagico.h"
#include "editing/DesenhoSelecao.h"
#include "editing/Selecao.h"
#include "editing/Teclado.h"
#include "canvas/Regua.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPaintEvent>
#include <cmath>
#include <cstdlib>
#include <QWheelEvent>

namespace lumeta {

PicPagina::PicPagina(SessaoEdicao &sessao, QWidget *pai) : QWidget(pai), m_sessao(sessao)
{
    setObjectName(QStringLiteral("picPagina"));
    // The painter clears every area it paints, so Qt need not.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Página"));
}

QPoint PicPagina::ParaCanvas(QPointF p) const
{
    const QPointF c = ParaCanvasF(p);
    return QPoint(int(std::floor(c.x())), int(std::floor(c.y())));
}

QRect PicPagina::ParaWidget(const QRect &r) const
{
    if (m_zoom == 1.0)
        return r.translated(-m_origem);
    const QRectF f(QPointF(r.topLeft() - m_origem) * m_zoom, QSizeF(r.size()) * m_zoom);
    return f.toAlignedRect();
}

void PicPagina::DefinirZoom(double zoom)
{
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    update();
}

void PicPagina::paintEvent(QPaintEvent *e)
{
    QPainter p(this);
    // Painted scaled, never a stretched picture: text stays sharp.
    p.scale(m_zoom, m_zoom);
    p.translate(-m_origem);
    const QRect area = m_zoom == 1.0
        ? e->rect().translated(m_origem)
        : QRectF(QPointF(e->rect().topLeft()) / m_zoom + QPointF(m_origem), QSizeF(e->rect().size()) / m_zoom)
              .toAlignedRect()
              .adjusted(-1, -1, 1, 1);
    PintarLayout(p, m_sessao.Documento, area, m_sessao.Recursos);
    PintarMarcasEdicao(p, m_sessao, area);
    m_marcas = AreaMarcasEdicao(m_sessao);
    emit Pintado();
}

void PicPagina::DefinirOrigem(QPoint origem)
{
    const QPoint passo = m_origem - origem;
    if (passo.isNull())
        return;
    m_origem = origem;
    // Within a screenful the pixels shown are moved and only the strip
    // uncovered is painted; at a zoom where a canvas pixel is not a whole
    // number of screen pixels everything is painted again.
    const QPointF tela = QPointF(passo) * m_zoom;
    const bool inteiro = tela.x() == std::round(tela.x()) && tela.y() == std::round(tela.y());
    if (inteiro && std::abs(tela.x()) < width() && std::abs(tela.y()) < height())
        scroll(int(tela.x()), int(tela.y()));
    else
        update();
    emit Pintado();
}

void PicPagina::wheelEvent(QWheelEvent *e)
{
    // Ctrl + wheel zooms around the pointer; the plain wheel goes on to the
    // window, which scrolls.
    if (e->modifiers() == Qt::ControlModifier && e->angleDelta().y() != 0) {
        emit ZoomRoda(e->angleDelta().y() > 0 ? 1 : -1, e->position());
        e->accept();
        return;
    }
    e->ignore();
}

void PicPagina::AtualizarMarcas()
{
    const QRect agora = AreaMarcasEdicao(m_sessao);
    update(ParaWidget(m_marcas.united(agora)).adjusted(-2, -2, 2, 2));
}

void PicPagina::mousePressEvent(QMouseEvent *e)
{
    setFocus(Qt::MouseFocusReason);
    const ReacaoMouse r = PressionarCanvas(m_sessao, QPointF(ParaCanvas(e->position())), e->button(), e->modifiers());
    AtualizarMarcas();
    if (r == ReacaoMouse::MenuEditar)
        emit MenuEditar(e->globalPosition().toPoint());
}

void PicPagina::mouseMoveEvent(QMouseEvent *e)
{
    MoverCanvas(m_sessao, QPointF(ParaCanvas(e->position())), e->buttons(), e->modifiers());
    if (e->buttons() != Qt::NoButton)
        AtualizarMarcas();   // the rubber frame of a range drag follows the pointer
}

void PicPagina::mouseReleaseEvent(QMouseEvent *e)
{
    SoltarCanvas(m_sessao, e->button());
    AtualizarMarcas();
}

void PicPagina::leaveEvent(QEvent *e)
{
    // The ghost lives only while the pointer is over free canvas.
    OcultarMagico(m_sessao);
    QWidget::leaveEvent(e);
}

void PicPagina::keyPressEvent(QKeyEvent *e)
{
    const ResultadoTecla r = TeclaCanvas(m_sessao, e->key(), e->modifiers());
    if (r.rolagem != AcaoRolagem::Nenhuma)
        emit Rolar(int(r.rolagem));
    if (r.consumida) {
        AtualizarMarcas();
        return;
    }
    const bool semCtrlAlt = !(e->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (semCtrlAlt && CaractereCanvas(m_sessao, e->text())) {
        AtualizarMarcas();
        return;
    }
    QWidget::keyPressEvent(e);
}

bool PicPagina::event(QEvent *e)
{
    if (e->type() == QEvent::ToolTip) {
        auto *ajuda = static_cast<QHelpEvent *>(e);
        const int alca = AlcaEm(m_sessao, ParaCanvas(ajuda->pos()));
        const QString dica = alca >= 0 ? DicaAlca(alca) : QString();
        if (dica.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(ajuda->globalPos(), dica, this);
        return true;
    }
    // Tab leaves the canvas; every other key is the canvas's own.
    return QWidget::event(e);
}

PicContainer::PicContainer(QWidget *pai) : QWidget(pai)
{
    setObjectName(QStringLiteral("picContainer"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PicContainer::resizeEvent(QResizeEvent *e)
{
    QWidget::resizeEvent(e);
    emit Redimensionado();
}

void PicContainer::paintEvent(QPaintEvent *e)
{
    // Only visible where the page is smaller than the viewport.
    QPainter p(this);
    p.fillRect(e->rect(), QColor(128, 128, 128));
}

void ImagemClicavel::mouseReleaseEvent(QMouseEvent *e)
{
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()))
        emit Click();
    QLabel::mouseReleaseEvent(e);
}

namespace {

QPixmap tela(int lado, qreal escala)
{
    QPixmap px(QSize(lado, lado) * escala);
    px.setDevicePixelRatio(escala);
    px.fill(Qt::transparent);
    return px;
}

}  // namespace

QPixmap DesenharVarinha(int lado, qreal escala)
{
    QPixmap px = tela(lado, escala);
    QPainter p(&px);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(lado / 20.0, lado / 20.0);
    // The wand, lying from bottom-left to top-right, with a white tip.
    p.setPen(QPen(QColor(40, 40, 50), 3.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(3.5, 16.5), QPointF(12.5, 7.5));
    p.setPen(QPen(QColor(245, 245, 245), 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(11.2, 8.8), QPointF(12.8, 7.2));
    // Sparkles.
    auto estrela = [&](QPointF c, qreal r, const QColor &cor) {
        QPainterPath s;
        s.moveTo(c + QPointF(0, -r));
        s.quadTo(c, c + QPointF(r, 0));
        s.quadTo(c, c + QPointF(0, r));
        s.quadTo(c, c + QPointF(-r, 0));
        s.quadTo(c, c + QPointF(0, -r));
        p.setPen(Qt::NoPen);
        p.setBrush(cor);
        p.drawPath(s);
    };
    estrela(QPointF(15.5, 4.5), 4.0, QColor(240, 170, 20));
    estrela(QPointF(9.0, 3.0), 2.2, QColor(60, 130, 220));
    estrela(QPointF(17.0, 11.0), 2.2, QColor(60, 130, 220));
    return px;
}

QPixmap DesenharArquivoTexto(int lado, qreal escala)
{
    QPixmap px = tela(lado, escala);
    QPainter p(&px);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(lado / 20.0, lado / 20.0);
    QPainterPath folha;
    folha.moveTo(4, 1.5);
    folha.lineTo(12.5, 1.5);
    folha.lineTo(16, 5);
    folha.lineTo(16, 18.5);
    folha.lineTo(4, 18.5);
    folha.closeSubpath();
    p.setPen(QPen(QColor(80, 90, 105), 1.1));
    p.setBrush(Qt::white);
    p.drawPath(folha);
    p.setPen(QPen(QColor(40, 110, 200), 1.3));
    for (int i = 0; i < 5; ++i) {
        const qreal y = 6 + i * 2.6;
        p.drawLine(QPointF(6.3, y), QPointF(i % 2 ? 11.5 : 13.7, y));
    }
    return px;
}

Regua::Regua(SessaoEdicao &sessao, const PicPagina &pagina, Qt::Orientation orientacao, QWidget *pai)
    : QWidget(pai), m_sessao(sessao), m_pagina(pagina), m_orientacao(orientacao)
{
    setObjectName(orientacao == Qt::Horizontal ? QStringLiteral("reguaHorizontal") : QStringLiteral("reguaVertical"));
    setToolTip(orientacao == Qt::Horizontal ? QStringLiteral("Régua horizontal") : QStringLiteral("Régua vertical"));
    setAccessibleName(toolTip());
    if (orientacao == Qt::Horizontal)
        setFixedHeight(Espessura);
    else
        setFixedWidth(Espessura);
}

std::vector<int> Regua::Marcadas() const
{
    std::vector<int> r;
    const int b = m_sessao.BandaSelecionada;
    if (b < 1 || b > m_sessao.Documento.NumBandas())
        return r;
    const Banda &banda = m_sessao.Documento.banda(b);
    QRect sel;
    if (m_orientacao == Qt::Horizontal) {
        if (m_sessao.ItemSelecionado < 1 || m_sessao.ItemSelecionado > banda.NumItens())
            return r;
        const Item &it = banda.Itens[m_sessao.ItemSelecionado - 1];
        sel = QRect(it.Esquerda + DeslocamentoItens, banda.Topo, it.Largura, 1);
    } else {
        sel = QRect(0, banda.Topo, 1, std::max(1, int(std::abs(qint64(banda.Altura)))));
    }
    // Where the canvas draws those edges, moved into the ruler.
    const QRect w = m_pagina.ParaWidget(sel);
    const QPoint desvio = m_pagina.mapTo(window(), QPoint()) - mapTo(window(), QPoint());
    if (m_orientacao == Qt::Horizontal)
        r = {w.left() + desvio.x(), w.left() + w.width() + desvio.x()};
    else
        r = {w.top() + desvio.y(), w.top() + w.height() + desvio.y()};
    return r;
}

void Regua::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), palette().window());
    const bool horizontal = m_orientacao == Qt::Horizontal;
    const QPoint desvio = m_pagina.mapTo(window(), QPoint()) - mapTo(window(), QPoint());
    const double zoom = m_pagina.Zoom();
    const int comprimento = horizontal ? width() : height();
    // The ruler's own pixel 0 shows canvas coordinate `inicio`.
    const double inicio =
        (horizontal ? m_pagina.Origem().x() - desvio.x() / zoom : m_pagina.Origem().y() - desvio.y() / zoom);
    const double zero = horizontal ? DeslocamentoItens : 0;
    QFont f = font();
    f.setPixelSize(9);
    p.setFont(f);
    p.setPen(palette().color(QPalette::WindowText));
    for (const MarcaRegua &m : MarcasRegua(m_sessao.UnidadeAtual, zoom, inicio, zero, comprimento)) {
        const int pos = int(std::floor(m.posicao));
        const int tamanho = m.principal ? Espessura - 4 : Espessura / 4;
        if (horizontal) {
            p.drawLine(pos, Espessura - tamanho, pos, Espessura - 1);
            if (m.principal)
                p.drawText(pos + 2, 10, m.rotulo);
        } else {
            p.drawLine(Espessura - tamanho, pos, Espessura - 1, pos);
            // Written downwards along the ruler: "1200" does not fit across
            // its 20 pixels, and long ticks stand at least 40 apart.
            if (m.principal) {
                p.save();
                p.translate(3, pos + 2);
                p.rotate(90);
                p.drawText(0, 0, m.rotulo);
                p.restore();
            }
        }
    }
    p.setPen(QPen(QColor(0, 0, 128), 1));
    for (int m : Marcadas()) {
        if (horizontal)
            p.drawLine(m, 0, m, Espessura - 1);
        else
            p.drawLine(0, m, Espessura - 1, m);
    }
    p.setPen(palette().color(QPalette::Mid));
    if (horizontal)
        p.drawLine(0, Espessura - 1, width(), Espessura - 1);
    else
        p.drawLine(Espessura - 1, 0, Espessura - 1, height());
}

}  // namespace lumeta
