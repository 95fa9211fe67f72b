// Feeds arbitrary bytes to the .lmt reader. A file that reads must also write
// back and read again to the same model, and its command text must build.
#include "document/ArquivoLMT.h"
#include "output/TextoComandos.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace lumeta;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    LayoutDocumento doc;
    if (LerLMT(bytes, doc).resultado != ResultadoLeitura::Ok)
        return 0;
    LayoutDocumento relido;
    if (LerLMT(GravarLMT(doc), relido).resultado != ResultadoLeitura::Ok)
        std::abort();
    // Flags are stored as exactly ten characters, so only their first ten survive.
    if (GravarLMT(relido) != GravarLMT(doc))
        std::abort();
    (void)GerarTextoComandos(doc);
    return 0;
}
