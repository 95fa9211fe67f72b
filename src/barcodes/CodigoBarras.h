#pragma once
// One door to every encoder, by item type code, for the canvas painter, the
// barcode dialog's preview and the command line.

#include "document/Layout.h"

#include <QImage>
#include <QString>

namespace lumeta {

// EhCodigoBarras (which type codes are symbols) lives with the item types.

// The picture of a symbol, one pixel per module, before any magnification.
//   tipo         item type code: 31 EAN-13, 32 EAN-8, 33 Code 39 with check
//                character, 34 Code 128 set C, 35 Interleaved 2 of 5,
//                36 Code 39, 37 Interleaved 2 of 5 without digits,
//                38 Interleaved 2 of 5 with the digits on top, 39 Code 128
//                set B, 80 PDF417.
//   valor        the value itself (no surrounding quotes), as typed.
//   alturaBarra  bar height in pixels for a symbol that shows its digits;
//                the picture is 12 rows taller when `mostrarTexto` is set.
//                Type 37 never shows digits and gets those 12 rows as bar
//                instead, so it keeps the outer size of type 35; PDF417 has
//                its own height and ignores this.
//   mostrarTexto the human-readable line (ignored by 37 and 80).
//   angulo       0, 90, 180 or 270 (anything else draws unrotated); at 90
//                and 270 the picture's width and height are exchanged.
// An unknown type gives a null QImage: the caller shows its error picture.
QImage DesenharCodigoBarras(int tipo, const QString &valor, int alturaBarra, bool mostrarTexto, int angulo);

}  // namespace lumeta
