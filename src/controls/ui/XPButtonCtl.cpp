#include "controls/ui/XPButtonCtl.h"

#include <QApplication>
#include <QBitmap>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace lumeta {

XPButtonCtl::XPButtonCtl(QWidget *pai) : QWidget(pai)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void XPButtonCtl::setCaption(const QString &c)
{
    m_legenda = c;
    updateGeometry();
    update();
}

void XPButtonCtl::setValue(bool v)
{
    if (m_valor == v)
        return;
    m_valor = v;
    update();
    emit ValueChanged(v);
}

void XPButtonCtl::setPictureNormal(const QPixmap &p)
{
    m_figura = p;
    update();
}

void XPButtonCtl::setPictureOver(const QPixmap &p)
{
    m_figuraSobre = p;
    update();
}

void XPButtonCtl::Refresh()
{
    m_semPintura = false;
    repaint();
}

QSize XPButtonCtl::sizeHint() const
{
    const QFontMetrics fm(font());
    int w = 8, h = 8;
    if (!m_figura.isNull()) {
        const QSize f = m_figura.deviceIndependentSize().toSize();
        w += f.width();
        h += f.height();
    }
    if (!m_legenda.isEmpty()) {
        w += fm.horizontalAdvance(QString(m_legenda).remove(QLatin1Char('&'))) + (m_figura.isNull() ? 8 : 4);
        h = std::max(h, fm.height() + 8);
    }
    return QSize(std::max(w, 24), std::max(h, 24));
}

QPixmap XPButtonCtl::figuraAtual() const
{
    QPixmap p = (m_sobre && !m_figuraSobre.isNull()) ? m_figuraSobre : m_figura;
    if (p.isNull())
        return p;
    if (UseMaskColor && MaskColor.isValid())
        p.setMask(p.createMaskFromColor(MaskColor));
    if (!isEnabled() && UseGreyscale) {
        QImage img = p.toImage().convertToFormat(QImage::Format_ARGB32);
        for (int y = 0; y < img.height(); ++y) {
            auto *linha = reinterpret_cast<QRgb *>(img.scanLine(y));
            for (int x = 0; x < img.width(); ++x) {
                const int g = (qGray(linha[x]) + 2 * 192) / 3;   // washed-out grey
                linha[x] = qRgba(g, g, g, qAlpha(linha[x]));
            }
        }
        p = QPixmap::fromImage(img);
        p.setDevicePixelRatio(m_figura.devicePixelRatio());
    }
    return p;
}

void XPButtonCtl::paintEvent(QPaintEvent *)
{
    if (m_semPintura)
        return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool afundado = m_valor || (m_pressionado && m_sobre) || m_espaco;
    const bool sobre = m_sobre && isEnabled();

    if (ButtonType == Sistema) {
        QStyleOptionButton op;
        op.initFrom(this);
        op.state |= afundado ? QStyle::State_Sunken : QStyle::State_Raised;
        if (sobre)
            op.state |= QStyle::State_MouseOver;
        style()->drawControl(QStyle::CE_PushButtonBevel, &op, &p, this);
    } else {
        QColor face = sobre ? BackOver : BackColor;
        if (afundado)
            face = m_valor ? QColor(196, 216, 240) : face.darker(110);
        const qreal raio = SoftBevel ? 3 : 0;
        const bool borda = ButtonType == Elevado || sobre || afundado;
        p.setPen(borda ? QPen(afundado ? QColor(70, 110, 170) : QColor(150, 160, 175), 1) : Qt::NoPen);
        p.setBrush(face);
        p.drawRoundedRect(r, raio, raio);
        if (ButtonType == Elevado && !afundado) {
            p.setPen(QPen(QColor(255, 255, 255, 200), 1));
            p.drawLine(r.topLeft() + QPointF(raio, 1), r.topRight() + QPointF(-raio, 1));
        }
    }

    // Picture and caption, pushed one pixel while down.
    const QPoint desvio = afundado ? QPoint(1, 1) : QPoint(0, 0);
    const QPixmap fig = figuraAtual();
    const QSize tf = fig.isNull() ? QSize() : fig.deviceIndependentSize().toSize();
    const QString texto = m_legenda;
    const QFontMetrics fm(font());
    const int larguraTexto = texto.isEmpty() ? 0 : fm.horizontalAdvance(QString(texto).remove(QLatin1Char('&')));
    QRect area = rect().adjusted(4, 2, -4, -2).translated(desvio);
    p.setPen(!isEnabled() ? palette().color(QPalette::Disabled, QPalette::WindowText) : (sobre ? ForeOver : ForeColor));
    if (!fig.isNull() && (texto.isEmpty() || PicturePosition == FiguraCentro)) {
        p.drawPixmap(QRect(QPoint(area.center().x() - tf.width() / 2 + 1, area.center().y() - tf.height() / 2 + 1), tf), fig);
    } else if (!fig.isNull() && PicturePosition == FiguraTopo) {
        const int total = tf.height() + 2 + fm.height();
        const int y = area.center().y() - total / 2;
        p.drawPixmap(QRect(QPoint(area.center().x() - tf.width() / 2, y), tf), fig);
        style()->drawItemText(&p, QRect(area.left(), y + tf.height() + 2, area.width(), fm.height()), Qt::AlignCenter | Qt::TextShowMnemonic,
                              palette(), isEnabled(), texto, QPalette::NoRole);
    } else if (!fig.isNull()) {
        const int total = tf.width() + 4 + larguraTexto;
        const int x = area.center().x() - total / 2;
        p.drawPixmap(QRect(QPoint(x, area.center().y() - tf.height() / 2 + 1), tf), fig);
        style()->drawItemText(&p, QRect(x + tf.width() + 4, area.top(), larguraTexto + 2, area.height()),
                              Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, palette(), isEnabled(), texto, QPalette::NoRole);
    } else if (!texto.isEmpty()) {
        style()->drawItemText(&p, area, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), texto, QPalette::NoRole);
    }
    if (ShowFocusRect && hasFocus()) {
        p.setRenderHint(QPainter::Antialiasing, false);
        QPen pen(QColor(90, 90, 90), 1, Qt::DotLine);
        p.setPen(pen);
        p.setBrush(Qt::NoBrush);
        p.drawRect(rect().adjusted(3, 3, -4, -4));
    }
}

void XPButtonCtl::enterEvent(QEnterEvent *)
{
    m_sobre = true;
    update();
}

void XPButtonCtl::leaveEvent(QEvent *)
{
    m_sobre = false;
    update();
    emit MouseLeave();
}

void XPButtonCtl::mousePressEvent(QMouseEvent *e)
{
    if (e->button() == Qt::LeftButton) {
        m_pressionado = true;
        update();
    }
    QWidget::mousePressEvent(e);
}

void XPButtonCtl::mouseReleaseEvent(QMouseEvent *e)
{
    const bool era = m_pressionado;
    if (e->button() == Qt::LeftButton) {
        m_pressionado = false;
        update();
        if (era && rect().contains(e->position().toPoint()))
            clicar();
    }
    QWidget::mouseReleaseEvent(e);
}

void XPButtonCtl::clicar()
{
    if (!isEnabled())
        return;
    if (m_alternar)
        setValue(!m_valor);
    emit Click();
}

void XPButtonCtl::keyPressEvent(QKeyEvent *e)
{
    switch (e->key()) {
    case Qt::Key_Space:
        if (!e->isAutoRepeat()) {
            m_espaco = true;
            update();
        }
        return;
    case Qt::Key_Left:
    case Qt::Key_Up:
        focusNextPrevChild(false);
        return;
    case Qt::Key_Right:
    case Qt::Key_Down:
        focusNextPrevChild(true);
        return;
    default:
        QWidget::keyPressEvent(e);
    }
}

void XPButtonCtl::keyReleaseEvent(QKeyEvent *e)
{
    if (e->key() == Qt::Key_Space && !e->isAutoRepeat()) {
        const bool era = m_espaco;
        m_espaco = false;
        update();
        if (era)
            clicar();
        return;
    }
    QWidget::keyReleaseEvent(e);
}

void XPButtonCtl::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(e);
}

}  // namespace lumeta
