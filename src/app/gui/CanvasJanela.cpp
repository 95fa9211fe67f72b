#include "app/gui/CanvasJanela.h"

#include "editing/AlcasMagico.h"
#include "editing/DesenhoSelecao.h"
#include "editing/Selecao.h"
#include "editing/Teclado.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPaintEvent>
#include <cstdlib>

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

void PicPagina::paintEvent(QPaintEvent *e)
{
    QPainter p(this);
    p.translate(-m_origem);
    const QRect area = e->rect().translated(m_origem);
    PintarLayout(p, m_sessao.Documento, area, m_sessao.Recursos);
    PintarMarcasEdicao(p, m_sessao, area);
    m_marcas = AreaMarcasEdicao(m_sessao);
}

void PicPagina::DefinirOrigem(QPoint origem)
{
    const QPoint passo = m_origem - origem;
    if (passo.isNull())
        return;
    m_origem = origem;
    // Within a screenful the pixels shown are moved and only the strip
    // uncovered is painted.
    if (std::abs(qint64(passo.x())) < width() && std::abs(qint64(passo.y())) < height())
        scroll(passo.x(), passo.y());
    else
        update();
}

void PicPagina::AtualizarMarcas()
{
    const QRect agora = AreaMarcasEdicao(m_sessao);
    update(ParaWidget(m_marcas.united(agora)).adjusted(-2, -2, 2, 2));
}

void PicPagina::mousePressEvent(QMouseEvent *e)
{
    setFocus(Qt::MouseFocusReason);
    const ReacaoMouse r = PressionarCanvas(m_sessao, ParaCanvasF(e->position()), e->button(), e->modifiers());
    AtualizarMarcas();
    if (r == ReacaoMouse::MenuEditar)
        emit MenuEditar(e->globalPosition().toPoint());
}

void PicPagina::mouseMoveEvent(QMouseEvent *e)
{
    MoverCanvas(m_sessao, ParaCanvasF(e->position()), e->buttons(), e->modifiers());
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

}  // namespace lumeta
