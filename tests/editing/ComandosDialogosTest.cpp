// What the barcode and comment dialogs read from the session and write back.
#include "editing/ComandosDialogos.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(ComandosDialogos, CodigoBarrasAplicadoATodaAFaixa)
{
    SessaoEdicao s;
    s.NovoLMT();
    s.AddItem(1, false, 0);
    s.AddItem(1, false, 0);
    Item &primeiro = s.Documento.banda(1).Itens[0];
    primeiro.Atributos = QStringLiteral("0010109010");
    s.ItemSelecionado = 1;
    s.Faixa = {true, 1, 1, 1, 2};

    ValoresCodigoBarras v;
    v.Tipo = TipoBarraGrafico;
    v.BarraGrafico = true;
    v.Conteudo = QStringLiteral("\"25\"");
    AplicarCodigoBarras(s, v);
    // Bottom on, vertical centre off, angle kept without the justify bit.
    EXPECT_EQ(s.Documento.banda(1).Itens[0].Atributos, QStringLiteral("0001108010"));
    EXPECT_EQ(s.Documento.banda(1).Itens[1].Atributos, QStringLiteral("0001100010"));
    EXPECT_EQ(s.Documento.banda(1).Itens[1].Tipo, TipoBarraGrafico);
    EXPECT_EQ(s.Documento.banda(1).Itens[2].Tipo, TipoTexto);  // outside the range
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("LG00990000000064000110801025")));

    // Back to a symbol that follows the band: position 10 on, bottom off.
    s.Faixa = {};
    v = {TipoEAN13, QStringLiteral("CODIGO"), true, false};
    AplicarCodigoBarras(s, v);
    const Item &it = s.Documento.banda(1).Itens[0];
    EXPECT_EQ(it.Atributos, QStringLiteral("0000108011"));
    EXPECT_EQ(LerValoresCodigoBarras(s), v);
    // A field is shown with the sample value in the command text.
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("Ba0099000000006400001080111234567890")));
}

TEST(ComandosDialogos, ComentarioGuardadoNaBandaComRepintura)
{
    SessaoEdicao s;
    s.NovoLMT();
    s.Alterado = false;
    DefinirComentario(s, QStringLiteral("X") + QChar(0xFF) + QStringLiteral("Y"));
    EXPECT_EQ(s.Documento.banda(1).Comentario, QStringLiteral("X") + QChar(0xFF) + QStringLiteral("Y"));
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.PodeDesfazer());
}
