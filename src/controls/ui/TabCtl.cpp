#include "controls/ui/TabCtl.h"

#include <QMouseEvent>
#include <QPainter>

namespace lumeta {

namespace {

// 360 x 960 twips at 15 twips a pixel.
constexpr int AlturaMinima = 24;
constexpr int LarguraMinima = 64;

}  // namespace

TabCtl::TabCtl(QWidget *pai) : QWidget(pai), lblTab(new QLabel(this))
{
    lblTab->setObjectName(QStringLiteral("lblTab"));
    lblTab->setAlignment(Qt::AlignCenter);
    lblTab->installEventFilter(this);
    setMinimumSize(LarguraMinima, AlturaMinima);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void TabCtl::setText(const QString &texto)
{
    lblTab->setText(texto);
    updateGeometry();
}

void TabCtl::setSelected(bool selecionado)
{
    m_selecionado = selecionado;
    QFont f = lblTab->font();
    f.setBold(selecionado);
    lblTab->setFont(f);
    update();
}

QPolygon TabCtl::Forma(int w, int h)
{
    return QPolygon({QPoint(15, 0), QPoint(w - 10, 0), QPoint(w - 1, 10), QPoint(w - 1, h - 1), QPoint(0, h - 1),
                     QPoint(15, 0)});
}

QSize TabCtl::sizeHint() const
{
    QFont f = lblTab->font();
    f.setBold(true);
    const int texto = QFontMetrics(f).horizontalAdvance(lblTab->text());
    return QSize(std::max(LarguraMinima, texto + 40), AlturaMinima);
}

QSize TabCtl::minimumSizeHint() const
{
    return QSize(LarguraMinima, AlturaMinima);
}

void TabCtl::resizeEvent(QResizeEvent *)
{
    const int w = width();
    const int h = height();
    if (h < AlturaMinima || w < LarguraMinima) {
        resize(std::max(w, LarguraMinima), std::max(h, AlturaMinima));
        return;
    }
    lblTab->setGeometry(2, 1, w - 4, h - 2);
    // The polygon's pixels themselves belong to the tab, so the region is
    // grown by the outline.
    QPolygon forma = Forma(w, h);
    forma.setPoint(3, w, h);
    forma.setPoint(4, 0, h);
    forma.setPoint(2, w, 10);
    setMask(QRegion(forma));
}

void TabCtl::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const QPolygon forma = Forma(width(), height());
    const QColor fundo = m_selecionado ? palette().color(QPalette::Base) : palette().color(QPalette::Button);
    p.setPen(Qt::NoPen);
    p.setBrush(underMouse() && !m_selecionado ? fundo.lighter(106) : fundo);
    p.drawPolygon(forma);
    p.setPen(QPen(QColor(128, 128, 128), 1));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(forma);
}

void TabCtl::mouseReleaseEvent(QMouseEvent *e)
{
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()))
        emit Click();
}

bool TabCtl::eventFilter(QObject *obj, QEvent *e)
{
    if (obj == lblTab && e->type() == QEvent::MouseButtonRelease) {
        auto *m = static_cast<QMouseEvent *>(e);
        if (m->button() == Qt::LeftButton && lblTab->rect().contains(m->position().toPoint()))
            emit Click();
        return true;
    }
    return QWidget::eventFilter(obj, e);
}

}  // namespace lumeta
