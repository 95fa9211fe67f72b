// Interactive editing on a 2,000 bands x 10 items layout: one keyboard
// resize of an item, from the key to the end of the edit cycle (relayout,
// automatic heights, undo snapshot, command text), and one mouse-move of a
// handle drag, which moves only the rubber frame. The baseline is memcpy of
// the command text's bytes.
#include "Amostras.h"
#include "editing/AlcasMagico.h"
#include "editing/SessaoEdicao.h"
#include "editing/Teclado.h"

#include <benchmark/benchmark.h>

using namespace lumeta;

namespace {

struct Edicao {
    SessaoEdicao s;
    Edicao()
    {
        s.Documento = bench::LayoutGrande(2000, 10);
        s.Canvas.TamanhoInicial(1120);
        s.BandaSelecionada = 1000;
        s.ItemSelecionado = 3;
        s.ExibirBanda();
    }
};

void BM_memcpyTexto(benchmark::State &st)
{
    Edicao e;
    bench::MedirMemcpy(st, size_t(e.s.TextoResultado.size()));
}

void BM_RedimensionarTeclado(benchmark::State &st)
{
    Edicao e;
    bool alargar = true;
    for (auto _ : st) {
        TeclaCanvas(e.s, alargar ? Qt::Key_Right : Qt::Key_Left, Qt::ShiftModifier);
        alargar = !alargar;
    }
    st.SetLabel("base=BM_memcpy/edicao");
}

void BM_MoverAlca(benchmark::State &st)
{
    Edicao e;
    const QRect moldura(e.s.Documento.banda(1000).Itens[2].Esquerda + 8, e.s.Documento.banda(1000).Topo, 1, 1);
    IniciarArrasteAlca(e.s, 7, QPointF(moldura.topLeft()));
    int x = 0;
    for (auto _ : st) {
        x = (x + 3) % 200;
        benchmark::DoNotOptimize(MoverArrasteAlca(e.s, QPointF(moldura.x() + x, moldura.y() + x)));
    }
}

const bool registrados = [] {
    benchmark::RegisterBenchmark("BM_memcpy/edicao", BM_memcpyTexto)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_RedimensionarTeclado", BM_RedimensionarTeclado)
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(7)
        ->ReportAggregatesOnly(true);
    benchmark::RegisterBenchmark("BM_MoverAlca", BM_MoverAlca)->Unit(benchmark::kMicrosecond);
    return true;
}();

}  // namespace
