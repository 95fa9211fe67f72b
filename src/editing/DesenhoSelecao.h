#pragma once
// What the canvas draws over the layout while editing: the marker beside
// the selected band, the frame and the eight handles around the selected
// item (or the rubber frame of a handle drag), the range frame and the
// magic item's ghost with its size.

#include "editing/SessaoEdicao.h"

#include <QColor>

class QPainter;

namespace lumeta {

inline const QColor CorSelecao(0, 0, 128);

// Paints the editing marks that fall into `area` (canvas pixels).
void PintarMarcasEdicao(QPainter &p, const SessaoEdicao &s, const QRect &area);
// The canvas area the marks of the current state cover, for repainting
// only what changed.
QRect AreaMarcasEdicao(const SessaoEdicao &s);

}  // namespace lumeta
