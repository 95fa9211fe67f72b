#include "barcodes/ModPDF417.h"

#include "barcodes/DesenhoBarras.h"
#include "document/Texto1252.h"

#include <QDir>
#include <memory>
#include <zint.h>

namespace lumeta {

int GetPDF417(const QByteArray &valor, QByteArray &matriz, int &numBytes, int &largura)
{
    matriz.clear();
    numBytes = 0;
    largura = 0;
    if (valor.isEmpty())
        return 0;
    std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> s(ZBarcode_Create(), &ZBarcode_Delete);
    if (!s)
        return 0;
    s->symbology = BARCODE_PDF417;
    // Raw bytes: the viewer gets the value in the code page it was typed in,
    // with no character-set designator in front.
    s->input_mode = DATA_MODE;
    const int r = ZBarcode_Encode(s.get(), reinterpret_cast<const unsigned char *>(valor.constData()),
                                  int(valor.size()));
    if (r >= ZINT_ERROR || s->rows <= 0 || s->width <= 0)
        return 0;

    const int porLinha = BytesPorLinhaPDF417(s->width);
    matriz = QByteArray(qsizetype(porLinha) * s->rows, '\0');
    for (int y = 0; y < s->rows; ++y)
        for (int x = 0; x < s->width; ++x)
            // zint keeps its rows least significant bit first.
            if ((s->encoded_data[y][x >> 3] >> (x & 7)) & 1)
                matriz[qsizetype(y) * porLinha + (x >> 3)] |= char(0x80 >> (x & 7));
    numBytes = int(matriz.size());
    largura = s->width;
    return 1;
}

namespace {

void FiguraVazia(QImage &figura)
{
    figura = QImage(8, 8, QImage::Format_RGB32);
    figura.fill(Qt::white);
}

// The encoder may leave work files in the current folder; it gets the
// temporary folder and the caller's folder comes back whatever happens.
class PastaTemporaria {
public:
    PastaTemporaria() : m_anterior(QDir::currentPath()) { QDir::setCurrent(QDir::tempPath()); }
    ~PastaTemporaria() { QDir::setCurrent(m_anterior); }
    PastaTemporaria(const PastaTemporaria &) = delete;
    PastaTemporaria &operator=(const PastaTemporaria &) = delete;

private:
    QString m_anterior;
};

}  // namespace

void DesenharPDF417(QImage &figura, const QString &valor, int angulo)
{
    DesenharPDF417(figura, valor, angulo, GetPDF417);
}

void DesenharPDF417(QImage &figura, const QString &valor, int angulo, const FuncaoGetPDF417 &codificador)
{
    if (valor.isEmpty()) {
        FiguraVazia(figura);
        return;
    }
    QByteArray matriz;
    int numBytes = 0;
    int largura = 0;
    int ok;
    {
        PastaTemporaria pasta;
        ok = codificador(Para1252(valor), matriz, numBytes, largura);
    }
    const int porLinha = BytesPorLinhaPDF417(largura);
    if (!ok || largura <= 0 || numBytes <= 0) {
        FiguraVazia(figura);
        return;
    }
    matriz.truncate(numBytes);
    const int linhas = int(matriz.size()) / porLinha;
    if (linhas <= 0) {
        FiguraVazia(figura);
        return;
    }

    DesenhoBarras d(figura, angulo);
    d.Dimensionar(largura, linhas * 3);
    const QRgb preto = qRgb(0, 0, 0);
    for (int linha = 0; linha < linhas; ++linha) {
        const int y = linha * 3;
        int x = -1;
        for (int b = 0; b < porLinha; ++b) {
            const auto byte = static_cast<unsigned char>(matriz[qsizetype(linha) * porLinha + b]);
            for (int bit = 7; bit >= 0; --bit) {
                ++x;
                if ((byte >> bit) & 1) {
                    // Padding bits past the width fall outside and are dropped.
                    d.PintarPixel(x, y, preto);
                    d.PintarPixel(x, y + 1, preto);
                    d.PintarPixel(x, y + 2, preto);
                }
            }
        }
    }
}

}  // namespace lumeta
