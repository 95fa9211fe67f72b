#pragma once
// The page canvas of the main window: the page picture `picPagina` inside the
// viewport `picContainer`. The page widget is only as large as what the
// viewport shows of the canvas and paints the canvas from its origin on, so a
// canvas of any height (past what a widget may measure) scrolls like a page
// moved inside the viewport; the scroll bars set the origin.

#include "editing/SessaoEdicao.h"

#include <QLabel>
#include <QWidget>
#include <vector>

namespace lumeta {

// The page canvas. It turns mouse and key events into the session's
// editing commands and paints the layout with the editing marks over it;
// the commands and the marks' geometry live in the session's core.
class PicPagina : public QWidget {
    Q_OBJECT
public:
    PicPagina(SessaoEdicao &sessao, QWidget *pai);

    // Widget coordinates to canvas pixels and back: the one place that
    // knows how the page is shown, moved and zoomed. A point falls in the
    // canvas pixel under it, so stored positions stay whole at every zoom.
    QPoint ParaCanvas(QPointF p) const;
    QPointF ParaCanvasF(QPointF p) const { return p / m_zoom + QPointF(m_origem); }
    QRect ParaWidget(const QRect &r) const;

    // 1.0 = 100 %. The caller moves the origin and the scroll bars after it.
    void DefinirZoom(double zoom);
    double Zoom() const { return m_zoom; }

    // The canvas point shown at the widget's top-left corner (the scroll
    // bars' values); what stays in view is moved, the rest painted.
    QPoint Origem() const { return m_origem; }
    void DefinirOrigem(QPoint origem);

    // Repaints the editing marks where they were and where they are now.
    void AtualizarMarcas();

signals:
    void MenuEditar(const QPoint &global);     // a right click asks for the Edit menu
    void Rolar(int acao);                       // a scrolling key (AcaoRolagem)
    void ZoomRoda(int sentido, QPointF ponto);  // Ctrl + wheel over the canvas, at a widget point
    void Pintado();                             // the rulers follow every repaint

protected:
    void paintEvent(QPaintEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void leaveEvent(QEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void wheelEvent(QWheelEvent *e) override;
    bool event(QEvent *e) override;

private:
    SessaoEdicao &m_sessao;
    QRect m_marcas;   // what the marks covered at the last paint
    QPoint m_origem;
    double m_zoom = 1.0;
};

// A ruler beside the canvas in the current unit, following scroll and zoom,
// with the selected item's left and right (across) or the selected band's
// top and bottom (down) marked on it.
class Regua : public QWidget {
    Q_OBJECT
public:
    Regua(SessaoEdicao &sessao, const PicPagina &pagina, Qt::Orientation orientacao, QWidget *pai);
    // Where the selection's edges are marked, in the ruler's pixels.
    std::vector<int> Marcadas() const;
    static constexpr int Espessura = 20;

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    SessaoEdicao &m_sessao;
    const PicPagina &m_pagina;
    Qt::Orientation m_orientacao;
};

class PicContainer : public QWidget {
    Q_OBJECT
public:
    explicit PicContainer(QWidget *pai);

signals:
    void Redimensionado();

protected:
    void resizeEvent(QResizeEvent *e) override;
    void paintEvent(QPaintEvent *e) override;
};

// A picture that reports a left click (the result pane's switch).
class ImagemClicavel : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

signals:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent *e) override;
};

// The pictures of the toolbar, drawn at the size of the device.
QPixmap DesenharVarinha(int lado, qreal escala);
QPixmap DesenharArquivoTexto(int lado, qreal escala);

}  // namespace lumeta
