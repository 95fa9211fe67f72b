#pragma once
// The keyboard on the canvas and in the window: selection moves, resizing
// on the 8-pixel grid, reordering, insert and delete, scrolling, the line
// buttons' shortcuts, and typed characters that go to the item's text.
// Modifiers are exact: Shift, Ctrl or Alt held alone.

#include "editing/SessaoEdicao.h"

#include <Qt>

namespace lumeta {

enum class AcaoRolagem { Nenhuma, PaginaAcima, PaginaAbaixo, Inicio, Fim };

struct ResultadoTecla {
    bool consumida = false;
    AcaoRolagem rolagem = AcaoRolagem::Nenhuma;
};

// A key pressed on the canvas. Numeric-pad keys carry Qt::KeypadModifier.
ResultadoTecla TeclaCanvas(SessaoEdicao &s, int tecla, Qt::KeyboardModifiers modificadores);
// A character typed on the canvas: Escape deselects the item, "-", "+"
// and "*" are taken by their numeric-pad keys, any other printable
// character goes to the item's text (hook DigitarTexto) when an item is
// selected. Returns whether the character was consumed.
bool CaractereCanvas(SessaoEdicao &s, const QString &texto);
// The vertical scroll value after a scrolling key.
int NovaRolagem(int valor, int passoGrande, int maximo, AcaoRolagem acao);
// The line button (1..6) a window key clicks, or 0: Alt + digit 1..6, and
// Ctrl + digit 1, 3, 2, 8, 4, 6 for buttons 1, 3, 4, 5, 6, 2.
int BotaoLinhaDoAtalho(int tecla, Qt::KeyboardModifiers modificadores);
// The tooltip of line button n with its shortcuts appended.
QString DicaBotaoLinha(const QString &dica, int n);

// Keyboard resizing limits.
inline constexpr int MinimoTeclado = 1;
inline constexpr int MaximoTeclado = 9999;

}  // namespace lumeta
