#include "barcodes/CodigoBarras.h"

#include "barcodes/ModCode128.h"
#include "barcodes/ModCode128b.h"
#include "barcodes/ModCode39.h"
#include "barcodes/ModEAN13and8.h"
#include "barcodes/ModInterlace25.h"
#include "barcodes/ModPDF417.h"

namespace lumeta {

QImage DesenharCodigoBarras(int tipo, const QString &valor, int alturaBarra, bool mostrarTexto, int angulo)
{
    QImage figura;
    switch (tipo) {
    case 31:
        DesenharEAN13(figura, alturaBarra, valor, mostrarTexto, angulo);
        break;
    case 32:
        DesenharEAN8(figura, alturaBarra, valor, mostrarTexto, angulo);
        break;
    case 33:
        DesenharCode39(figura, alturaBarra, valor, true, mostrarTexto, angulo);
        break;
    case 34:
        DesenharCode128C(figura, alturaBarra, valor, mostrarTexto, angulo);
        break;
    case 35:
        DesenharInterlace25(figura, alturaBarra, valor, mostrarTexto, false, angulo);
        break;
    case 36:
        DesenharCode39(figura, alturaBarra, valor, false, mostrarTexto, angulo);
        break;
    case 37:
        DesenharInterlace25(figura, alturaBarra + 12, valor, false, false, angulo);
        break;
    case 38:
        DesenharInterlace25(figura, alturaBarra, valor, mostrarTexto, true, angulo);
        break;
    case 39:
        DesenharCode128B(figura, alturaBarra, valor, mostrarTexto, angulo);
        break;
    case 80:
        DesenharPDF417(figura, valor, angulo);
        break;
    default:
        break;
    }
    return figura;
}

}  // namespace lumeta
