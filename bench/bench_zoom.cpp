// A zoom step on the 2,000 bands x 10 items layout in the main window: the
// new zoom applied (scroll bars, origin, rulers) and the visible canvas
// painted, against a repaint of the same view without a zoom change, which
// is the work every scroll already does. The frame budget is 16 ms.
#include "JanelaGrande.h"
#include "app/gui/CanvasJanela.h"

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <vector>

using namespace lumeta;

namespace {

void Medir(benchmark::State &st, bool mudarZoom)
{
    bench::JanelaGrande j;
    j.janela.MostrarSelecao();
    std::vector<double> ms;
    QElapsedTimer relogio;
    int passo = 0;
    for (auto _ : st) {
        relogio.start();
        if (mudarZoom)
            j.janela.AplicarZoom((passo++ % 2) ? 100 : 125);
        j.janela.picPagina->repaint();
        QApplication::processEvents();
        ms.push_back(double(relogio.nsecsElapsed()) / 1e6);
    }
    st.counters["mediana_ms"] = bench::Mediana(ms);
    st.counters["orcamento_ms"] = 16;
    if (mudarZoom)
        st.SetLabel("base=BM_JanelaRepintarVisivel");
}

void BM_JanelaRepintarVisivel(benchmark::State &st)
{
    Medir(st, false);
}

void BM_JanelaPassoZoom(benchmark::State &st)
{
    Medir(st, true);
}

}  // namespace

BENCHMARK(BM_JanelaRepintarVisivel)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_JanelaPassoZoom)->Unit(benchmark::kMillisecond);
