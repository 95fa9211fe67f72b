// A zoom step on the 2,000 bands x 10 items layout in the main window: the
// new zoom applied (scroll bars, origin, rulers) and the visible canvas
// painted, against a repaint of the same view without a zoom change, which
// is the work every scroll already does. The frame budget is 16 ms.
#include "Amostras.h"
#include "app/gui/CanvasJanela.h"
#include "app/gui/frmLumetaEdit.h"

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <vector>

using namespace lumeta;

namespace {

struct JanelaZoom {
    frmLumetaEdit janela;

    JanelaZoom()
    {
        janela.resize(1280, 860);
        janela.show();
        janela.Sessao().Canvas.TamanhoInicial(1120);
        janela.Sessao().Documento = bench::LayoutGrande(2000, 10);
        janela.Sessao().BandaSelecionada = 1000;
        janela.Sessao().ItemSelecionado = 1;
        janela.Sessao().ConcluirEdicao();
        janela.MostrarSelecao();
        QApplication::processEvents();
    }
};

double Mediana(std::vector<double> v)
{
    std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
    return v[v.size() / 2];
}

void Medir(benchmark::State &st, bool mudarZoom)
{
    JanelaZoom j;
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
    st.counters["mediana_ms"] = Mediana(ms);
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
