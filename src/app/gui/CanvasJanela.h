#pragma once
// The page canvas of the main window: the page picture `picPagina`, as large
// as the canvas, inside the viewport `picContainer`; the scroll bars move the
// page inside the viewport.

#include "editing/SessaoEdicao.h"

#include <QLabel>
#include <QWidget>

namespace lumeta {

class PicPagina : public QWidget {
    Q_OBJECT
public:
    PicPagina(SessaoEdicao &sessao, QWidget *pai);

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    SessaoEdicao &m_sessao;
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
