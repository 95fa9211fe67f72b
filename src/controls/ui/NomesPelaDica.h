#pragma once
// Buttons drawn as icons and fields without a label have only a tooltip;
// a screen reader needs that tooltip as the control's name.

class QWidget;

namespace lumeta {

// Names every caption-less control under `raiz` by its tooltip now, and
// every control whose tooltip is set later (the name follows the tooltip).
void NomearPelaDica(QWidget *raiz);

// From now on a list box given an accessible name is heard by that name, its
// current entry being its value. Must run before the boxes are built.
void NomearCaixasPeloNome();

}  // namespace lumeta
