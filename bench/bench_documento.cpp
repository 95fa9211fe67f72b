// Command text, save and open of a 2,000 bands x 10 items layout.
#include "Amostras.h"
#include "document/ArquivoLMT.h"
#include "output/TextoComandos.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

using namespace lumeta;

namespace {

const LayoutDocumento &Grande()
{
    static const LayoutDocumento doc = bench::LayoutGrande(2000, 10);
    return doc;
}

void BM_memcpy(benchmark::State &st, size_t bytes)
{
    bench::MedirMemcpy(st, bytes);
}

void BM_TextoComandos(benchmark::State &st)
{
    clsConcatenarString s;
    qsizetype bytes = 0;
    for (auto _ : st) {
        GerarTextoComandos(Grande(), s);
        bytes = s.Tamanho();
        benchmark::DoNotOptimize(s.Tamanho());
    }
    st.SetBytesProcessed(int64_t(st.iterations()) * bytes);
    st.counters["bytes"] = double(bytes);
    st.SetLabel("base=BM_memcpy/texto");
}

void BM_GravarLMT(benchmark::State &st)
{
    qsizetype bytes = 0;
    for (auto _ : st) {
        const QByteArray b = GravarLMT(Grande());
        bytes = b.size();
        benchmark::DoNotOptimize(b.constData());
    }
    st.SetBytesProcessed(int64_t(st.iterations()) * bytes);
    st.counters["bytes"] = double(bytes);
    st.SetLabel("base=BM_memcpy/arquivo");
}

void BM_LerLMT(benchmark::State &st)
{
    const QByteArray b = GravarLMT(Grande());
    for (auto _ : st) {
        LayoutDocumento doc;
        LerLMT(b, doc);
        benchmark::DoNotOptimize(doc.Bandas.data());
    }
    st.SetBytesProcessed(int64_t(st.iterations()) * b.size());
    st.counters["bytes"] = double(b.size());
    st.SetLabel("base=BM_memcpy/arquivo");
}

// The same through the file system: temporary file, rename, read back.
void BM_SalvarArquivo(benchmark::State &st)
{
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("grande.lmt"));
    for (auto _ : st)
        benchmark::DoNotOptimize(GravarArquivoLMT(caminho, Grande()).ok);
    st.SetBytesProcessed(int64_t(st.iterations()) * GravarLMT(Grande()).size());
    st.SetLabel("base=BM_memcpy/arquivo");
}

void BM_AbrirArquivo(benchmark::State &st)
{
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("grande.lmt"));
    GravarArquivoLMT(caminho, Grande());
    for (auto _ : st) {
        LayoutDocumento doc;
        benchmark::DoNotOptimize(AbrirArquivoLMT(caminho, doc).ok);
    }
    st.SetBytesProcessed(int64_t(st.iterations()) * GravarLMT(Grande()).size());
    st.SetLabel("base=BM_memcpy/arquivo");
}

// memcpy baselines sized like the outputs above, registered once sizes are known.
const bool registrados = [] {
    clsConcatenarString s;
    GerarTextoComandos(Grande(), s);
    const size_t texto = size_t(s.Tamanho());  // one byte per character as the viewer reads it
    const size_t arquivo = size_t(GravarLMT(Grande()).size());
    benchmark::RegisterBenchmark("BM_memcpy/texto", BM_memcpy, texto);
    benchmark::RegisterBenchmark("BM_TextoComandos", BM_TextoComandos)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_memcpy/arquivo", BM_memcpy, arquivo);
    benchmark::RegisterBenchmark("BM_GravarLMT", BM_GravarLMT)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_LerLMT", BM_LerLMT)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_SalvarArquivo", BM_SalvarArquivo)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_AbrirArquivo", BM_AbrirArquivo)->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
