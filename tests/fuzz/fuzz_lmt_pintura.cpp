// Reads arbitrary bytes as a layout and paints what reads into a small
// picture, as the window and the command line would: the top of the canvas
// and the top of the last band, where a layout of huge numbers ends. Neither
// may take more than a small picture's memory, walk pixels outside an image
// or flood Qt's messages (more than a few per input is a finding).
#include "ApoioFuzz.h"
#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"

#include <QPainter>
#include <algorithm>
#include <limits>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace lumeta;
    static RecursosCanvas recursos;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    LayoutDocumento doc;
    if (LerLMT(bytes, doc).resultado != ResultadoLeitura::Ok)
        return 0;
    fuzz::g_mensagens = 0;
    PrepararLayoutAberto(doc, recursos.Medidor);
    CanvasPagina canvas;
    canvas.TamanhoInicial(1000);
    (void)PrepararRepintura(doc, 1, canvas, recursos);

    QImage figura(160, 120, QImage::Format_RGB32);
    QList<QPoint> origens = {QPoint(0, 0)};
    if (doc.NumBandas() > 0)
        origens.append(QPoint(0, std::min(doc.Bandas.last().Topo, std::numeric_limits<int>::max() - figura.height())));
    for (const QPoint &o : origens) {
        QPainter p(&figura);
        p.translate(-o);
        PintarLayout(p, doc, QRect(o, figura.size()), recursos);
    }
    fuzz::ConferirMensagens();
    return 0;
}
