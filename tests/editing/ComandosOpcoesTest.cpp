// What the option, barcode and comment commands read from the session and
// write back; the dialogs' own tests drive the rest through their windows.
#include "editing/ComandosDialogos.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <gtest/gtest.h>

using namespace lumeta;

// A program's name kept as a margin, and a plain number, go through the
// margins dialog in the dialogs' tests.
TEST(ComandosOpcoes, MargemLeOPrimeiroNumeroEGravaInteirosSemDecimais)
{
    for (const auto &[escrito, mm] : {std::pair{"\"7.25mm\"", 7.25}, {"\"abc\"", 0.0}})
        EXPECT_DOUBLE_EQ(LerMargem(QString::fromLatin1(escrito)).milimetros, mm) << escrito;
    EXPECT_EQ(GravarMargem(10, QString()), QStringLiteral("\"10\""));
}

TEST(ComandosOpcoes, TextoEmVariasLinhasLigaOEstiloEOInalteradoNaoGuardaInstantaneo)
{
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
    s.Ui = &ui;
    s.ItemSelecionado = 1;
    DefinirTextoEstilo(s, s.Documento.banda(1).Itens[0].Texto);
    EXPECT_FALSE(s.Alterado || s.PodeDesfazer());

    // The text itself reaches the command text in the style dialog's test.
    DefinirTextoEstilo(s, QStringLiteral("Total{E}Geral"));
    EXPECT_EQ(s.Documento.banda(1).Itens[0].Atributos, QStringLiteral("0000110010"));

    // A visible range takes the text in every item.
    s.AddItem(1, false, 0);
    s.Faixa = {true, 1, 1, 1, 2};
    DefinirTextoEstilo(s, QStringLiteral("A{e}B"));
    for (const Item &it : s.Documento.banda(1).Itens)
        EXPECT_EQ(it.Texto + it.Atributos.at(5), QStringLiteral("A{e}B1"));
}

// One item through the barcode dialog, and the comment, the dialogs' tests
// show from the window.
TEST(ComandosDialogos, CodigoBarrasAplicadoATodaAFaixa)
{
    SessaoEdicao s;
    s.NovoLMT();
    s.AddItem(1, false, 0);
    s.AddItem(1, false, 0);
    s.Documento.banda(1).Itens[0].Atributos = QStringLiteral("0010109010");
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
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("LG00990000000064000110801025")));
}
