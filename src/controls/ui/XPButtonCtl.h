#pragma once
// The editor's owner-drawn push button: a flat or raised face, hover colours,
// an optional picture, and a two-state toggle (CheckBoxBehaviour) whose
// state is Value. The toolbar's magic-item button is one of these.

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QWidget>

namespace lumeta {

class XPButtonCtl : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Value READ Value WRITE setValue NOTIFY ValueChanged)
    Q_PROPERTY(bool CheckBoxBehaviour READ CheckBoxBehaviour WRITE setCheckBoxBehaviour)
public:
    // Drawing styles: a flat face that shows its border only on hover, a
    // raised face, and a face in the look of the platform's push buttons.
    enum TipoBotao { Plano = 0, Elevado = 1, Sistema = 2 };
    enum PosicaoFigura { FiguraEsquerda = 0, FiguraCentro = 1, FiguraTopo = 2 };

    explicit XPButtonCtl(QWidget *pai = nullptr);

    QString Caption() const { return m_legenda; }
    void setCaption(const QString &c);
    bool Value() const { return m_valor; }
    void setValue(bool v);
    bool CheckBoxBehaviour() const { return m_alternar; }
    void setCheckBoxBehaviour(bool v) { m_alternar = v; }

    QColor BackColor = QColor(236, 236, 236);
    QColor BackOver = QColor(214, 228, 246);
    QColor ForeColor = QColor(0, 0, 0);
    QColor ForeOver = QColor(0, 0, 0);
    QColor MaskColor;               // pictures: this colour is transparent
    bool UseMaskColor = false;
    int ButtonType = Plano;
    int ColorScheme = 0;
    bool ShowFocusRect = true;
    bool SoftBevel = true;
    int PicturePosition = FiguraEsquerda;
    bool UseGreyscale = true;       // a greyed picture while disabled
    int SpecialEffect = 0;
    int ImageIndex = 0;

    void setPictureNormal(const QPixmap &p);
    void setPictureOver(const QPixmap &p);
    QPixmap PictureNormal() const { return m_figura; }

    static QString Version() { return QStringLiteral("2.0.6"); }
    // Suspend painting while many properties change; Refresh repaints.
    void DisableRefresh() { m_semPintura = true; }
    void Refresh();

    bool MouseOver() const { return m_sobre; }
    QSize sizeHint() const override;

signals:
    void Click();
    void ValueChanged(bool valor);
    void MouseLeave();

protected:
    void paintEvent(QPaintEvent *) override;
    void enterEvent(QEnterEvent *) override;
    void leaveEvent(QEvent *) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    void keyReleaseEvent(QKeyEvent *e) override;
    void changeEvent(QEvent *e) override;

private:
    void clicar();
    QPixmap figuraAtual() const;

    QString m_legenda;
    QPixmap m_figura;
    QPixmap m_figuraSobre;
    bool m_valor = false;
    bool m_alternar = false;
    bool m_sobre = false;
    bool m_pressionado = false;
    bool m_espaco = false;
    bool m_semPintura = false;
};

}  // namespace lumeta
