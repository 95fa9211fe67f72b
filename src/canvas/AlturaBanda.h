#pragma once
// Automatic band heights: a band whose Altura is below 1 is as tall as the
// tallest text of its items needs, measured with the canvas text renderer.

#include "canvas/DesenharTexto.h"
#include "document/Layout.h"

#include <QHash>

namespace lumeta {

// Measures the height of a laid-out text. The canvas uses MedidorFontes;
// tests may put a stub in its place.
class MedidorAltura {
public:
    virtual ~MedidorAltura() = default;
    virtual int Medir(const FonteItem &fonte, const QString &texto, int largura, int altura,
                      const OpcoesTexto &opcoes) = 0;
};

// The real measurer: the text renderer in measuring mode, with the results
// remembered, since a repaint measures every automatic band again and almost
// none of them changed since the last one.
class MedidorFontes : public MedidorAltura {
public:
    explicit MedidorFontes(FontesCanvas &fontes) : m_fontes(fontes) {}
    int Medir(const FonteItem &fonte, const QString &texto, int largura, int altura,
              const OpcoesTexto &opcoes) override;
    void Esquecer() { m_medidas.clear(); }

private:
    struct Chave {
        FonteItem fonte;
        QString texto;
        int largura;
        int altura;
        OpcoesTexto opcoes;
        bool operator==(const Chave &) const = default;
    };
    friend size_t qHash(const Chave &c, size_t semente) noexcept;
    FontesCanvas &m_fontes;
    QHash<Chave, int> m_medidas;
};

// An item text in its display form for the canvas (page 1). Reading the
// clock and the locale costs more than a whole layout of a text, so texts
// without a macro skip it.
QString TextoExibido(const QString &texto);

// The options a text item's format flags give the renderer (vertical centre
// and bottom included; the height calculation clears them itself).
OpcoesTexto OpcoesDoItem(const Item &item);

// The automatic height of one band, not stored: the tallest measured text of
// its text and command items plus 4 (an item only counts when it is taller
// than the running maximum, which already holds that 4), or 8 when nothing
// was measured.
int CalcularAlturaBanda(const Banda &banda, MedidorAltura &medidor);

}  // namespace lumeta
