#pragma once
// Pointing at the canvas: which band and item a point hits, the current
// selection (one band, at most one item, an optional rectangle of items),
// the mouse-down and drag-selection rules and select all. Coordinates are
// canvas pixels: items are drawn 8 pixels right of their band's origin.

#include "editing/SessaoEdicao.h"

#include <QRect>

namespace lumeta {

// Items are drawn this many pixels right of the band's origin.
inline constexpr int MargemItens = 8;
// SelecionarFaixa's band value for "all bands, spans already set".
inline constexpr int FaixaTudo = 65535;

struct PontoLocalizado {
    int banda = 0;   // 0: no band contains the point
    int item = 0;    // 0: no item of that band contains it
};

// `LocalizarPonto`: bands from the last up, the first item that contains x
// ends the scan; otherwise the lowest-numbered band that contains y.
PontoLocalizado LocalizarPonto(const LayoutDocumento &doc, int x, int y);

// The selected item's frame (`shpSize`); empty with no item selected.
QRect RetanguloSelecao(const SessaoEdicao &s);
// The range's frame (`shpSelectedRange`); empty without a range.
QRect RetanguloFaixa(const SessaoEdicao &s);
// `lblSelecionado`: "(band, item)" or "(band)".
QString LegendaSelecao(const SessaoEdicao &s);
// Whether (banda, item) lies inside the visible range.
bool DentroDaFaixa(const SessaoEdicao &s, int banda, int item);

// `SelecionarFaixa`: (0, 0) clears the range; otherwise it spans from the
// selection to (banda, item); FaixaTudo keeps spans already set.
void SelecionarFaixa(SessaoEdicao &s, int banda, int item);
inline void LimparFaixa(SessaoEdicao &s) { SelecionarFaixa(s, 0, 0); }
// `NadaSelecionado`: the band stays selected, its item does not.
void NadaSelecionado(SessaoEdicao &s);
// Shows the selection again after a change (hooks SelecionarItem, Validar).
void MostrarSelecao(SessaoEdicao &s, bool bandaMudou = false);

enum class BotaoMouse { Esquerdo, Direito };
// What the window does after a mouse-down on the canvas.
enum class ReacaoMouse {
    Nada,
    MenuEditar,   // pop the Edit menu up at the pointer
};
// The mouse-down on the canvas at (x, y). `shift` is Shift held alone.
ReacaoMouse MouseDownCanvas(SessaoEdicao &s, int x, int y, BotaoMouse botao, bool shift);
// Mouse-move with the left button alone while an item is selected: the
// range follows the pointer.
void ArrastarSelecao(SessaoEdicao &s, int x, int y);
// `mnuEditarTudo`.
void mnuEditarTudo(SessaoEdicao &s);

// The bands and items a command acts on: the range when one is visible,
// else the selected item (or, with none, nothing).
struct AlvoItens {
    int banda = 0;
    int item = 0;
};
QList<AlvoItens> ItensAlvo(const SessaoEdicao &s);
// The bands a height command acts on: the range's bands when it spans
// several, else the selected band.
QList<int> BandasAlvo(const SessaoEdicao &s);

}  // namespace lumeta
