#pragma once
// Helpers of the canvas and barcode tests: painted pictures, where their ink
// lies, and the command-line program that writes them.

#include "canvas/Pintor.h"
#include "support/TestSupport.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <functional>

namespace lumeta::teste {

// What a window scrolled to `area` paints: the canvas shifted into a picture
// of the area's own size.
inline QImage PintarJanela(const LayoutDocumento &doc, QRect area, RecursosCanvas &recursos)
{
    QImage janela(area.size(), QImage::Format_RGB32);
    janela.fill(Qt::magenta);
    QPainter p(&janela);
    p.translate(-area.topLeft());
    PintarLayout(p, doc, area, recursos);
    p.end();
    return janela;
}

// lumetaedit-cli with `args`, run in `pasta` (the current folder when empty).
inline Execucao ExecutarCli(const QStringList &args, const QString &pasta = {})
{
    return Executar(QStringLiteral(LUMETA_CLI), args, pasta);
}

// The bounding box of the pixels that satisfy `tinta` inside `area` (the
// whole image when empty); empty when there are none.
inline QRect CaixaTinta(const QImage &img, const std::function<bool(QRgb)> &tinta, QRect area = {})
{
    if (area.isNull())
        area = img.rect();
    area &= img.rect();
    QRect r;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (tinta(img.pixel(x, y)))
                r |= QRect(x, y, 1, 1);
    return r;
}

inline bool NaoBranco(QRgb c) { return (c & 0xFFFFFF) != 0xFFFFFF; }

// Text ink of a colour: antialiased pixels mix it with white, so a pixel
// counts when it is clearly of that hue.
inline std::function<bool(QRgb)> TintaDe(QColor cor)
{
    return [cor](QRgb c) {
        const int dr = qRed(c) - cor.red(), dg = qGreen(c) - cor.green(), db = qBlue(c) - cor.blue();
        return dr * dr + dg * dg + db * db < 3 * 110 * 110 && NaoBranco(c);
    };
}

// Ink of exactly one colour (pictures, bars and lines are not antialiased).
inline std::function<bool(QRgb)> Exata(QRgb cor)
{
    return [cor](QRgb c) { return (c & 0xFFFFFF) == (cor & 0xFFFFFF); };
}

inline int ContarPixels(const QImage &img, QRect area, QRgb cor)
{
    area &= img.rect();
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            n += (img.pixel(x, y) & 0xFFFFFF) == (cor & 0xFFFFFF);
    return n;
}

// Whether every pixel of `area` has the colour.
inline bool Todos(const QImage &img, QRect area, QRgb cor)
{
    return ContarPixels(img, area, cor) == (area & img.rect()).width() * (area & img.rect()).height()
        && !(area & img.rect()).isEmpty();
}

// Whether the one-pixel outline of `r` has the colour all round.
inline bool Contorno(const QImage &img, QRect r, QRgb cor)
{
    return Todos(img, QRect(r.left(), r.top(), r.width(), 1), cor) && Todos(img, QRect(r.left(), r.bottom(), r.width(), 1), cor)
        && Todos(img, QRect(r.left(), r.top(), 1, r.height()), cor) && Todos(img, QRect(r.right(), r.top(), 1, r.height()), cor);
}

// Whether `img` shows `figura` at `origem`, each pixel repeated ex times
// across and ey times down.
inline bool Mostra(const QImage &img, QPoint origem, const QImage &figura, int ex = 1, int ey = 1)
{
    for (int y = 0; y < figura.height() * ey; ++y)
        for (int x = 0; x < figura.width() * ex; ++x)
            if (img.pixel(origem.x() + x, origem.y() + y) != figura.pixel(x / ex, y / ey))
                return false;
    return true;
}

}  // namespace lumeta::teste
