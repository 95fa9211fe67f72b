// Reads arbitrary bytes as a command file, lays them out into pages and
// paints the first and the last page into a small picture, as the preview
// and the command line would. Nothing may loop, read past a line's end,
// walk pixels outside an image or flood Qt's messages.
#include "ApoioFuzz.h"
#include "impressao/MotorImpressao.h"

#include <QBuffer>
#include <QPainter>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace lumeta;
    auto entrada = std::make_unique<QBuffer>();
    entrada->setData(reinterpret_cast<const char *>(data), qsizetype(size));
    entrada->open(QIODevice::ReadOnly);
    MotorImpressao motor;
    if (!motor.Abrir(std::move(entrada), QStringLiteral("fuzz.txt"))) {
        if (motor.Erro().isEmpty())
            std::abort();
        return 0;
    }
    // Every band is at least one line, so a page is too.
    if (motor.NumPaginas() < 1 || qsizetype(motor.NumPaginas()) > qsizetype(size) + 1)
        std::abort();
    fuzz::g_mensagens = 0;
    QImage figura(80, 110, QImage::Format_RGB32);
    for (int pagina : {1, motor.NumPaginas()}) {
        figura.fill(Qt::white);
        QPainter p(&figura);
        p.scale(0.1, 0.1);
        if (!motor.PintarPagina(p, pagina))
            std::abort();
    }
    fuzz::ConferirMensagens();
    return 0;
}
