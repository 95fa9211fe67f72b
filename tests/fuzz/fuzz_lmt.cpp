// Feeds arbitrary bytes to the .lmt reader. A file that reads must also write
// back and read again to the same model, and its command text must build.
// The same bytes are also opened as a file from disk (header first, then the
// rest), which must agree with the reader in memory; and inputs that are not
// regular files must be refused without a byte read.
#include "document/ArquivoLMT.h"
#include "output/TextoComandos.h"

#include <QDir>
#include <cstdlib>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Ambiente {
    int memoria = ::memfd_create("fuzz_lmt", 0);
    QString arquivo = QStringLiteral("/proc/self/fd/") + QString::number(memoria);
    QString pasta = QDir::tempPath() + QStringLiteral("/fuzz_lmt.") + QString::number(::getpid());
    QString fifo = pasta + QStringLiteral("/fifo.lmt");
    QStringList naoRegulares = {QStringLiteral("/dev/zero"), fifo, pasta};

    Ambiente()
    {
        QDir().mkpath(pasta);
        ::mkfifo(qPrintable(fifo), 0600);
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace lumeta;
    static Ambiente amb;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));

    if (size > 0) {
        const QString &outro = amb.naoRegulares[data[0] % amb.naoRegulares.size()];
        LayoutDocumento d;
        if (AbrirArquivoLMT(outro, d).leitura != ResultadoLeitura::ErroLeitura)
            std::abort();
    }

    LayoutDocumento doc;
    const LeituraLMT leitura = LerLMT(bytes, doc);

    if (::ftruncate(amb.memoria, 0) != 0 || ::pwrite(amb.memoria, data, size, 0) != ssize_t(size))
        std::abort();
    LayoutDocumento doDisco;
    const ResultadoArquivo aberto = AbrirArquivoLMT(amb.arquivo, doDisco);
    if (aberto.leitura != leitura.resultado || (aberto.ok && !(doDisco == doc)))
        std::abort();

    if (leitura.resultado != ResultadoLeitura::Ok)
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
