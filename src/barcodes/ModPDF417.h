#pragma once
// PDF417. The symbol itself (compaction, error correction, rows and
// columns) comes from the zint library; the editor only draws its modules.

#include <QByteArray>
#include <QImage>
#include <QString>
#include <functional>

namespace lumeta {

// Encodes `valor` (the Windows-1252 bytes of the text) as a PDF417 symbol.
// On success returns non-zero and fills `matriz` with the module matrix, row
// after row, each row ceil(largura / 8) bytes, the most significant bit the
// leftmost module and a set bit a dark module; `numBytes` is the size of
// `matriz` and `largura` the symbol width in modules. Returns 0 on failure
// (an empty value, or more data than a symbol holds), leaving the outputs
// empty and zero.
int GetPDF417(const QByteArray &valor, QByteArray &matriz, int &numBytes, int &largura);

using FuncaoGetPDF417 = std::function<int(const QByteArray &, QByteArray &, int &, int &)>;

// Bytes per row of a matrix `largura` modules wide.
inline int BytesPorLinhaPDF417(int largura) { return (largura + 7) / 8; }

// Draws the symbol of `valor` into `figura`: each module 1 pixel wide and 3
// high, black on white, width = symbol width and height = rows x 3
// (exchanged for 90 and 270). An empty value (the encoder is then not
// called) or a failure leaves a blank 8 x 8 picture. The encoder runs with
// the temporary folder as the current folder, which is restored afterwards.
void DesenharPDF417(QImage &figura, const QString &valor, int angulo);

// The same with another encoder in place of GetPDF417.
void DesenharPDF417(QImage &figura, const QString &valor, int angulo, const FuncaoGetPDF417 &codificador);

}  // namespace lumeta
