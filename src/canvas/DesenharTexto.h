#pragma once
// The text renderer of the canvas: lays out an item's text in a rectangle,
// word by word, with the inline style tags, "{e}" breaks, justification and
// the four rotations, and either draws it or only measures its height (the
// automatic band height uses the very same layout).

#include "document/Layout.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QHash>
#include <QRect>
#include <QString>
#include <memory>
#include <unordered_map>

class QPainter;

namespace lumeta {

// Pixel height of the em of a font size in points: the editor's canvas has 15
// twips per pixel, so 10 points give round(10 x 20 / 15) = 13 pixels.
int PixelsFonte(int tamanho);

// A font that the canvas can take; any other one is ignored and the previous
// font stays in use.
bool FonteValida(const FonteItem &f);

// The style bits (EstiloTag) of a font's own bold, italic, underline and
// strikethrough.
unsigned EstiloDaFonte(const FonteItem &f);

// One face, size and style, with its metrics and the widths of the words
// measured so far (the same words come back on every repaint).
class VarianteFonte {
public:
    VarianteFonte(const QFont &fonte);
    const QFont fonte;
    const QFontMetrics metricas;
    const int ascendente;
    const int altura;     // the height of "Xg"
    const int espaco;     // the width of " "
    int Largura(const QString &palavra);

private:
    QHash<QString, int> m_larguras;
};

// The fonts a canvas has used, by face, size, style and rotation.
class FontesCanvas {
public:
    // `estilo` replaces the font's own style bits (the tags start from them).
    // A rotated font has weight 700 when bold, else 500.
    VarianteFonte &Variante(const FonteItem &fonte, unsigned estilo, bool girada);

private:
    struct Chave {
        QString nome;
        int pixels;
        unsigned estilo;
        bool girada;
        bool operator==(const Chave &) const = default;
    };
    struct HashChave {
        size_t operator()(const Chave &c) const noexcept
        {
            return qHash(c.nome) ^ (size_t(c.pixels) << 8) ^ (size_t(c.estilo) << 4) ^ size_t(c.girada);
        }
    };
    std::unordered_map<Chave, std::unique_ptr<VarianteFonte>, HashChave> m_variantes;
};

struct OpcoesTexto {
    bool umaLinha = false;
    bool recortar = true;
    bool centroVertical = false;
    bool base = false;
    bool centralizar = false;
    bool direita = false;
    bool justificar = false;
    int angulo = 0;   // 0, 90, 180 or 270; anything else is 0

    bool operator==(const OpcoesTexto &) const = default;
};

// Lays out `texto` in the rectangle (x, y, largura, altura) with `fonte` and,
// unless `medir` is set (or `pintor` is null), draws it in `cor`. Returns the
// height of the laid-out text: lines x line height, one line height in
// single-line mode. When `extensao` is given it receives the rectangle the
// words cover (before clipping), for callers that must know where unclipped
// text lands.
int DesenharTexto(QPainter *pintor, FontesCanvas &fontes, const FonteItem &fonte, const QColor &cor,
                  const QString &texto, double x, double y, double largura, double altura,
                  const OpcoesTexto &opcoes, bool medir, QRect *extensao = nullptr);

}  // namespace lumeta
