// The main window's edit cycle on a 2,000 bands x 10 items layout: a real
// window (offscreen), a page option toggled through the session's command,
// until the result pane has taken the new command text and painted it.
#include "JanelaGrande.h"
#include "output/TextoComandos.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <algorithm>
#include <ctime>
#include <benchmark/benchmark.h>
#include <vector>

using namespace lumeta;

namespace {

// The toggled option shows in the pane's text; the paint is done at once so
// it counts in the cycle.
struct JanelaCiclo : bench::JanelaGrande {
    void Ciclo(void (SessaoEdicao::*comando)())
    {
        (janela.Sessao().*comando)();
        janela.rtbResultado->viewport()->repaint();
        QApplication::processEvents();
    }
};

double SegundosCpu()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

void BM_memcpy(benchmark::State &st, size_t bytes)
{
    bench::MedirMemcpy(st, bytes);
}

void Medir(benchmark::State &st, void (SessaoEdicao::*comando)())
{
    JanelaCiclo j;
    std::vector<double> reais, cpu;
    QElapsedTimer relogio;
    for (auto _ : st) {
        const double cpu0 = SegundosCpu();
        relogio.start();
        j.Ciclo(comando);
        reais.push_back(double(relogio.nsecsElapsed()) / 1e6);
        cpu.push_back((SegundosCpu() - cpu0) * 1e3);
    }
    st.counters["mediana_ms"] = bench::Mediana(reais);
    st.counters["mediana_cpu_ms"] = bench::Mediana(cpu);
    st.counters["bytes"] = double(j.janela.Sessao().TextoResultado.size());
    st.SetLabel("base=BM_memcpy/resultado");
}

// Printing on and off: only the command text changes.
void BM_JanelaAlternarImprimir(benchmark::State &st)
{
    Medir(st, &SessaoEdicao::AlternarImprimir);
}

// Orientation: the canvas is repainted too.
void BM_JanelaAlternarPaisagem(benchmark::State &st)
{
    Medir(st, &SessaoEdicao::AlternarPaisagem);
}

const bool registrados = [] {
    clsConcatenarString s;
    GerarTextoComandos(bench::LayoutGrande(2000, 10), s);
    benchmark::RegisterBenchmark("BM_memcpy/resultado", BM_memcpy, size_t(s.Tamanho()));
    benchmark::RegisterBenchmark("BM_JanelaAlternarImprimir", BM_JanelaAlternarImprimir)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_JanelaAlternarPaisagem", BM_JanelaAlternarPaisagem)
        ->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
