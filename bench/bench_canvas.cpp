// The page canvas on a 2,000 bands x 10 items layout (half the bands of
// automatic height): a full repaint into the off-screen image, the automatic
// height pass alone, and the edit cycle the main window runs after a change
// (heights and band placement, command text, painting the visible viewport).
#include "Amostras.h"
#include "canvas/Pintor.h"
#include "editing/SessaoEdicao.h"
#include "output/TextoComandos.h"

#include <QPainter>
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

using namespace lumeta;

namespace {

const QSize Viewport(1200, 900);

struct Cenario {
    SessaoEdicao sessao;
    CanvasPagina canvas;
    RecursosCanvas recursos;

    Cenario()
    {
        sessao.Documento = bench::LayoutGrande(2000, 10);
        sessao.BandaSelecionada = 1000;
        sessao.ItemSelecionado = 1;
        canvas.TamanhoInicial(1120);
        PrepararRepintura(sessao.Documento, sessao.BandaSelecionada, canvas, recursos);
    }
};

// The viewport that shows band `banda`, as the window scrolls to it.
QRect AreaVisivel(const LayoutDocumento &doc, int banda)
{
    return QRect(QPoint(0, std::max(0, doc.banda(banda).Topo - 400)), Viewport);
}

// A memcpy of the canvas image's bytes; the size is only known once fonts
// can measure, inside the run.
void BM_memcpyCanvas(benchmark::State &st)
{
    static const size_t bytes = [] {
        Cenario c;
        return size_t(c.canvas.Tamanho.width()) * size_t(c.canvas.Tamanho.height()) * 4;
    }();
    bench::MedirMemcpy(st, bytes);
}

// Everything painted into the full-size canvas image (about 1120 x 45,000).
void BM_ExibirBandaCompleto(benchmark::State &st)
{
    Cenario c;
    for (auto _ : st) {
        ExibirBanda(c.sessao.Documento, c.sessao.BandaSelecionada, c.canvas, c.recursos);
        benchmark::DoNotOptimize(c.canvas.Imagem.constBits());
    }
    st.counters["largura"] = c.canvas.Tamanho.width();
    st.counters["altura"] = c.canvas.Tamanho.height();
    st.SetLabel("base=BM_memcpy/canvas");
}

// The drawing half alone, whole canvas, model already prepared.
void BM_PintarCanvasInteiro(benchmark::State &st)
{
    Cenario c;
    c.canvas.GarantirImagem();
    for (auto _ : st) {
        QPainter p(&c.canvas.Imagem);
        PintarLayout(p, c.sessao.Documento, QRect(QPoint(0, 0), c.canvas.Tamanho), c.recursos);
    }
    st.SetLabel("base=BM_memcpy/canvas");
}

// The automatic-height pass over the 1,000 automatic bands, with the
// measured heights remembered from the previous repaint (the steady state)...
void BM_AlturasAutomaticas(benchmark::State &st)
{
    Cenario c;
    for (auto _ : st)
        benchmark::DoNotOptimize(AtualizarAlturas(c.sessao.Documento, c.sessao.BandaSelecionada, c.recursos.Medidor));
}

// ...and from nothing: every text laid out again (word widths still known).
void BM_AlturasAutomaticasFrias(benchmark::State &st)
{
    Cenario c;
    for (auto _ : st) {
        c.recursos.Medidor.Esquecer();
        benchmark::DoNotOptimize(AtualizarAlturas(c.sessao.Documento, c.sessao.BandaSelecionada, c.recursos.Medidor));
    }
}

// First repaint of a window: no font, width or height known yet.
void BM_AlturasAutomaticasPrimeiraVez(benchmark::State &st)
{
    LayoutDocumento doc = bench::LayoutGrande(2000, 10);
    for (auto _ : st) {
        RecursosCanvas r;
        benchmark::DoNotOptimize(AtualizarAlturas(doc, 0, r.Medidor));
    }
}

void BM_TextoComandos(benchmark::State &st)
{
    Cenario c;
    clsConcatenarString s;
    for (auto _ : st) {
        GerarTextoComandos(c.sessao.Documento, s);
        benchmark::DoNotOptimize(s.Tamanho());
    }
}

void BM_PintarViewport(benchmark::State &st)
{
    Cenario c;
    QImage janela(Viewport, QImage::Format_RGB32);
    const QRect area = AreaVisivel(c.sessao.Documento, c.sessao.BandaSelecionada);
    for (auto _ : st) {
        QPainter p(&janela);
        p.translate(-area.topLeft());
        PintarLayout(p, c.sessao.Documento, area, c.recursos);
    }
}

// A viewport below the last band: no band is drawn, so this is what the walk
// over the 2,000 bands (looking for pictures, symbols and unclipped text
// that could reach into the viewport) costs on its own.
void BM_PintarViewportSoVarredura(benchmark::State &st)
{
    Cenario c;
    QImage janela(Viewport, QImage::Format_RGB32);
    const Banda &ultima = c.sessao.Documento.Bandas.last();
    const QRect area(QPoint(0, ultima.Topo + 5000), Viewport);
    for (auto _ : st) {
        QPainter p(&janela);
        p.translate(-area.topLeft());
        PintarLayout(p, c.sessao.Documento, area, c.recursos);
    }
}

// One edit as the window runs it: the text of the selected item changes (so
// its automatic band is measured again), then heights and placement, the
// command text and the visible viewport.
void BM_CicloEdicao(benchmark::State &st)
{
    Cenario c;
    clsConcatenarString texto;
    QImage janela(Viewport, QImage::Format_RGB32);
    Item &editado = c.sessao.Documento.banda(c.sessao.BandaSelecionada).Itens[0];
    int n = 0;
    for (auto _ : st) {
        editado.Texto = QStringLiteral("Texto editado %1 {n}agora{/n}").arg(n++);
        PrepararRepintura(c.sessao.Documento, c.sessao.BandaSelecionada, c.canvas, c.recursos);
        GerarTextoComandos(c.sessao.Documento, texto);
        const QRect area = AreaVisivel(c.sessao.Documento, c.sessao.BandaSelecionada);
        QPainter p(&janela);
        p.translate(-area.topLeft());
        PintarLayout(p, c.sessao.Documento, area, c.recursos);
        benchmark::DoNotOptimize(texto.Tamanho());
    }
}

const bool registrados = [] {
    benchmark::RegisterBenchmark("BM_memcpy/canvas", BM_memcpyCanvas)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_ExibirBandaCompleto", BM_ExibirBandaCompleto)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_PintarCanvasInteiro", BM_PintarCanvasInteiro)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_AlturasAutomaticas", BM_AlturasAutomaticas)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_AlturasAutomaticasFrias", BM_AlturasAutomaticasFrias)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_AlturasAutomaticasPrimeiraVez", BM_AlturasAutomaticasPrimeiraVez)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_TextoComandosCanvas", BM_TextoComandos)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_PintarViewport", BM_PintarViewport)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_PintarViewportSoVarredura", BM_PintarViewportSoVarredura)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("BM_CicloEdicao", BM_CicloEdicao)
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(7)
        ->ReportAggregatesOnly(true);
    return true;
}();

}  // namespace
