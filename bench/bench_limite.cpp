// A layout at the format's limit, 32,767 bands of ten items (about 600,000
// pixels of canvas), in the main window: opening it (reading, heights,
// command text, the first paint) and repainting the viewport at its last
// band. Memory is reported beside the time: the heap the open layout holds
// and the process's peak resident size (run this file's benchmarks alone,
// --benchmark_filter=Limite, for a peak of their own).
#include "Amostras.h"
#include "app/gui/CanvasJanela.h"
#include "app/gui/frmLumetaEdit.h"
#include "document/ArquivoLMT.h"

#include <QApplication>
#include <QFileInfo>
#include <QScrollBar>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/resource.h>

using namespace lumeta;

namespace {

const QString &ArquivoLimite()
{
    static QTemporaryDir dir;
    static const QString caminho = [] {
        const QString c = dir.filePath(QStringLiteral("limite.lmt"));
        GravarArquivoLMT(c, bench::LayoutGrande(32767, 10));
        return c;
    }();
    return caminho;
}

double HeapEmUsoMb()
{
    return double(mallinfo2().uordblks) / (1 << 20);
}

double PicoRssMb()
{
    rusage r{};
    getrusage(RUSAGE_SELF, &r);
    return double(r.ru_maxrss) / 1024;  // kilobytes on Linux
}

void BM_memcpyArquivoLimite(benchmark::State &st)
{
    bench::MedirMemcpy(st, size_t(QFileInfo(ArquivoLimite()).size()));
}

struct JanelaLimite {
    frmLumetaEdit janela;

    JanelaLimite()
    {
        janela.resize(1280, 860);
        janela.show();
        janela.Sessao().Canvas.TamanhoInicial(1120);
        QApplication::processEvents();
    }
    void Abrir()
    {
        janela.Sessao().AbrirLMT(ArquivoLimite());
        QApplication::processEvents();
    }
};

// Times Abrir() on a fresh T each round, outside its making and its end, and
// returns the heap the open left in use.
template <class T>
double MedirAbertura(benchmark::State &st)
{
    double heap = 0;
    for (auto _ : st) {
        st.PauseTiming();
        const double antes = HeapEmUsoMb();
        {
            T alvo;
            st.ResumeTiming();
            alvo.Abrir();
            st.PauseTiming();
            heap = HeapEmUsoMb() - antes;
        }
        st.ResumeTiming();
    }
    return heap;
}

void BM_AbrirLimiteNaJanela(benchmark::State &st)
{
    st.counters["heap_mb"] = MedirAbertura<JanelaLimite>(st);
    st.counters["pico_rss_mb"] = PicoRssMb();
    st.counters["arquivo_mb"] = double(QFileInfo(ArquivoLimite()).size()) / (1 << 20);
    st.SetLabel("base=BM_memcpy/arquivoLimite");
}

// The same open without a window: the model, heights, command text and the
// undo ring's first state; the rest of the window's figure is its panes.
struct SessaoLimite {
    SessaoEdicao s;
    void Abrir() { s.AbrirLMT(ArquivoLimite()); }
};

void BM_AbrirLimiteNaSessao(benchmark::State &st)
{
    st.counters["heap_mb"] = MedirAbertura<SessaoLimite>(st);
    st.SetLabel("base=BM_memcpy/arquivoLimite");
}

// The viewport at the last band painted again, as after scrolling there.
void BM_RepintarLimiteNaJanela(benchmark::State &st)
{
    JanelaLimite j;
    j.Abrir();
    QScrollBar *v = j.janela.vsbPagina;
    v->setValue(v->maximum());
    QApplication::processEvents();
    for (auto _ : st)
        j.janela.picPagina->repaint();
    st.counters["pico_rss_mb"] = PicoRssMb();
    st.SetLabel("base=BM_memcpy/arquivoLimite");
}

const bool registrados = [] {
    benchmark::RegisterBenchmark("BM_memcpy/arquivoLimite", BM_memcpyArquivoLimite)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_AbrirLimiteNaJanela", BM_AbrirLimiteNaJanela)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(2);
    benchmark::RegisterBenchmark("BM_AbrirLimiteNaSessao", BM_AbrirLimiteNaSessao)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(2);
    benchmark::RegisterBenchmark("BM_RepintarLimiteNaJanela", BM_RepintarLimiteNaJanela)
        ->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
