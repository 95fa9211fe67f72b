#pragma once
// The item commands of the Edit menu and of the panel's buttons: insert,
// append, duplicate, remove (offering to remove the band with its last
// item), move left and right, the type entries; the widths that the handles,
// the keyboard and the width field set; and which Edit menu entries are
// enabled.

#include "editing/SessaoEdicao.h"

namespace lumeta {

inline const QString PerguntaUltimoItem = QStringLiteral(
    "Este é o último item da banda!\n\nVocê deseja remover a banda selecionada?");

void mnuEditarItemInserir(SessaoEdicao &s);
void mnuEditarItemAdicionar(SessaoEdicao &s);
void mnuEditarItemDuplicar(SessaoEdicao &s);
// With one item left, asks PerguntaUltimoItem and removes the band unless
// the answer is No.
void mnuEditarItemRemover(SessaoEdicao &s);
void mnuEditarItemLeft(SessaoEdicao &s);
void mnuEditarItemRight(SessaoEdicao &s);
// The type entries: 0 text, 1 picture (its angle bits are cleared), 2
// command, on the selected item or every item of the range.
void DefinirTipoItem(SessaoEdicao &s, uint8_t tipo);

// A line button (1..6): the selected item's line n switches, and every item
// of the range takes the new state; then the repaint.
void AlternarLinha(SessaoEdicao &s, int n);
// The four outer lines of the selected item, or of every item of a visible
// range, on together, or off when the selected item has all four.
void AlternarMoldura(SessaoEdicao &s);
// Bold, italic or underline of the same items' fonts switched as one change,
// following the selected item's font. Nothing without an item.
enum class EstiloFonte { Negrito, Italico, Sublinhado };
void AlternarEstiloFonte(SessaoEdicao &s, EstiloFonte estilo);
// Whether the selected item has all four outer lines.
bool TemMoldura(const Item &item);

// The width of the selected item, or of every item of the range, followed
// by the relayout of the bands concerned. No repaint.
void AplicarLargura(SessaoEdicao &s, int32_t largura);

// Which entries of the Edit menu and its submenus are enabled, and the
// captions that depend on the selection.
struct EstadoMenuEditar {
    bool desfazer = false;
    bool refazer = false;
    bool itemComandos = false;      // remove, duplicate, left, right, style, macro
    bool tipoTexto = false;
    bool tipoFigura = false;
    bool tipoComando = false;
    bool tipoCodigoBarras = false;
    bool bandaPagina = false;
    QString legendaBandaPagina;
    QString legendaBandaAuto;
};
// `focoEmTexto`: a text box has the focus (undo is then off).
EstadoMenuEditar PrepararMenuEditar(const SessaoEdicao &s, bool focoEmTexto);

}  // namespace lumeta
