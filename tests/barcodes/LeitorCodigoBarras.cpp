#include "barcodes/LeitorCodigoBarras.h"

#include <QPainter>
#include <ZXing/ReadBarcode.h>

namespace lumeta::teste {

// The quiet zone: 20 pixels of the painted picture on every side.
static QImage ImagemParaLeitura(const QImage &figura, int escala)
{
    const int margem = 20;
    QImage g(figura.width() + 2 * margem, figura.height() + 2 * margem, QImage::Format_RGB32);
    g.fill(Qt::white);
    QPainter(&g).drawImage(margem, margem, figura);
    return g.convertToFormat(QImage::Format_Grayscale8)
        .scaled(g.width() * escala, g.height() * escala, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .convertToFormat(QImage::Format_Grayscale8);
}

Leitura LerCodigoBarras(const QImage &figura, ZXing::BarcodeFormat formato, int escala, bool validarCode39)
{
    const QImage g = ImagemParaLeitura(figura, escala);
    ZXing::DecodeHints dicas;
    dicas.setFormats(formato).setTryHarder(true).setTryRotate(true).setValidateCode39CheckSum(validarCode39);
    const ZXing::ImageView vista(g.constBits(), g.width(), g.height(), ZXing::ImageFormat::Lum,
                                 int(g.bytesPerLine()));
    const ZXing::Result r = ZXing::ReadBarcode(vista, dicas);
    Leitura l;
    l.ok = r.isValid();
    l.formato = r.format();
    l.texto = r.text();
    const auto &b = r.bytes();
    l.bytes = QByteArray(reinterpret_cast<const char *>(b.data()), qsizetype(b.size()));
    return l;
}

}  // namespace lumeta::teste
