#pragma once
// Reads a painted symbol back with ZXing, the way a scanner would read the
// printed one: each pixel enlarged to a square of `escala` pixels and a white
// quiet zone around it.

#include <QByteArray>
#include <QImage>
#include <ZXing/BarcodeFormat.h>
#include <string>

namespace lumeta::teste {

struct Leitura {
    bool ok = false;
    ZXing::BarcodeFormat formato = ZXing::BarcodeFormat::None;
    std::string texto;   // as the decoder reports it (UTF-8)
    QByteArray bytes;    // the raw data bytes, for code-page checks
};

Leitura LerCodigoBarras(const QImage &figura, ZXing::BarcodeFormat formato, int escala = 3,
                        bool validarCode39 = false);

}  // namespace lumeta::teste
