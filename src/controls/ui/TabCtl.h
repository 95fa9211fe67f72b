#pragma once
// A single tab-shaped button: slanted left edge, cut top-right corner and a
// caption. The editor shows the page as such a tab above the canvas.

#include <QLabel>
#include <QWidget>

namespace lumeta {

class TabCtl : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(bool Selected READ Selected WRITE setSelected)
public:
    explicit TabCtl(QWidget *pai = nullptr);

    QString Text() const { return lblTab->text(); }
    void setText(const QString &texto);
    bool Selected() const { return m_selecionado; }
    void setSelected(bool selecionado);

    // The outline of the tab for an inner size W x H.
    static QPolygon Forma(int largura, int altura);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Click();

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    QLabel *lblTab;
    bool m_selecionado = false;
};

}  // namespace lumeta
