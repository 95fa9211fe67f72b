#pragma once
// The eight resize handles around the selected item and the magic item.
// A handle drag moves only a rubber frame, on an 8-pixel grid; the model
// changes once, when the button is released. The magic item is a ghost over
// free space that one click turns into an item, or a band holding one.

#include "editing/Selecao.h"
#include "editing/SessaoEdicao.h"

#include <QRect>

namespace lumeta {

inline constexpr int NumAlcas = 8;
inline constexpr int LadoAlca = 7;

// Handle `indice` (0..7) of a frame: a 7-pixel square centred on a corner
// or an edge midpoint (0 top-left, 1 left, 2 bottom-left, 3 top, 4 bottom,
// 5 top-right, 6 right, 7 bottom-right).
QRect RetanguloAlca(const QRect &moldura, int indice);
QString DicaAlca(int indice);
// Handle 3 moves the band, so it is off on band 1.
bool AlcaHabilitada(const SessaoEdicao &s, int indice);
// The handle under a canvas point, or -1.
int AlcaEm(const SessaoEdicao &s, QPoint p);

// Mouse-down on handle `indice`: remembers where and the frame.
bool IniciarArrasteAlca(SessaoEdicao &s, int indice, QPointF ponto);
// Mouse-move: the rubber frame for the pointer at `ponto` (s.Alca.atual).
QRect MoverArrasteAlca(SessaoEdicao &s, QPointF ponto);
// Mouse-up: width, height and top of the frame go to the model, then the
// edit cycle runs once.
void SoltarArrasteAlca(SessaoEdicao &s);

// Mouse-move over the canvas for the magic item. `livre` is false while a
// button or a modifier key is held.
void MoverMagico(SessaoEdicao &s, int x, int y, bool livre);
void OcultarMagico(SessaoEdicao &s);
// Left click on the ghost: the item or the band it promises.
void CliqueMagico(SessaoEdicao &s);

// The canvas's mouse events as the window receives them, at canvas points.
// The handles lie in front of the ghost and of whatever band they overlap,
// the ghost in front of the bands.
ReacaoMouse PressionarCanvas(SessaoEdicao &s, QPointF ponto, Qt::MouseButton botao, Qt::KeyboardModifiers teclas);
void MoverCanvas(SessaoEdicao &s, QPointF ponto, Qt::MouseButtons botoes, Qt::KeyboardModifiers teclas);
void SoltarCanvas(SessaoEdicao &s, Qt::MouseButton botao);

}  // namespace lumeta
