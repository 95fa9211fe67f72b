// A file may carry any 32-bit width, height and displacement (hand-made or
// damaged): the editor lays it out, paints it and writes its text with the
// positions stopped at the ends of the range, never wrapped round. Run under
// the sanitizers, these cases are what catches an overflow.
#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"
#include "editing/SessaoEdicao.h"
#include "output/TextoComandos.h"
#include "support/ConfigTemporaria.h"
#include "support/TestSupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

using namespace lumeta;

namespace {

constexpr int32_t Max = std::numeric_limits<int32_t>::max();
constexpr int32_t Min = std::numeric_limits<int32_t>::min();

Banda BandaDe(int32_t altura, int32_t deslocamento, std::initializer_list<int32_t> larguras, uint8_t tipo = TipoTexto)
{
    Banda b;
    b.Altura = altura;
    b.Deslocamento = deslocamento;
    for (int32_t l : larguras)
        b.Itens.append(teste::NovoItem(tipo, QStringLiteral("\"12\""), 0, l));
    return b;
}

}  // namespace

TEST(ValoresExtremos, PosicoesParamNosLimitesEOLayoutAbre)
{
    teste::ConfigTemporaria config;
    QTemporaryDir dir;
    LayoutDocumento doc;
    doc.Bandas = {BandaDe(Max, Max, {Max, Max, 5}), BandaDe(Min, Min, {Min, Min, 7}, TipoCode128B),
                  BandaDe(0, Max, {Max, -1}), BandaDe(Min + 1, 3, {9}, TipoFigura),
                  BandaDe(Max, Min, {Min + 1, Max}, TipoBarraGrafico), BandaDe(-5, Max, {Max}, TipoPDF417)};
    const QString caminho = dir.filePath(QStringLiteral("extremo.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(caminho, doc).ok);

    SessaoEdicao editor;
    ASSERT_EQ(editor.AbrirLMT(caminho), SessaoEdicao::ResultadoAbrir::Aberto);
    const LayoutDocumento &d = editor.Documento;
    EXPECT_EQ((std::array{d.banda(1).Itens[1].Esquerda, d.banda(1).Itens[2].Esquerda, d.banda(2).Itens[1].Esquerda,
                          d.banda(2).Itens[2].Esquerda}), (std::array{Max, Max, Min, Min}));
    EXPECT_EQ(d.banda(2).Topo, 16);   // pulled up to the band before it, no further
    EXPECT_EQ(d.banda(3).Topo, Max);  // pushed down as far as a position goes
    for (int b = 2; b <= d.NumBandas(); ++b)
        EXPECT_GE(d.banda(b).Topo, d.banda(b - 1).Topo) << b;
    EXPECT_FALSE(editor.TextoResultado.isEmpty());

    // Every band selected in turn goes through the edit cycle.
    for (int b = 1; b <= d.NumBandas(); ++b) {
        editor.BandaSelecionada = b;
        editor.ItemSelecionado = 1;
        editor.ConcluirEdicao();
    }
    EXPECT_EQ(RolarParaSelecao(d, 1, 2, QPoint(0, 0), QSize(800, 600), QPoint(5000, 5000)), QPoint(5000, 5000));
}
