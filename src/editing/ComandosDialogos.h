#pragma once
// What the barcode and comment dialogs read from the session and write back
// into it; the dialogs themselves only gather the values.

#include "barcodes/ValoresCodigoBarras.h"
#include "editing/SessaoEdicao.h"

namespace lumeta {

// The values of the selected item, as the barcode dialog opens with them.
ValoresCodigoBarras LerValoresCodigoBarras(const SessaoEdicao &s);
// The dialog's result on the selected item or every item of the range,
// followed by the repaint. Nothing happens without a target.
void AplicarCodigoBarras(SessaoEdicao &s, const ValoresCodigoBarras &v);

// Stores the comment text into the selected band and repaints.
void DefinirComentario(SessaoEdicao &s, const QString &comentario);

}  // namespace lumeta
