// What the option, barcode and comment commands read from the session and
// write back; the dialogs' own tests drive the rest through their windows.
#include "editing/ComandosDialogos.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(ComandosOpcoes, MargemLeOPrimeiroNumeroEGuardaONomeDoPrograma)
{
    for (const auto &[escrito, mm] : {std::pair{"\"7.25mm\"", 7.25}, {"\"abc\"", 0.0}})
        EXPECT_DOUBLE_EQ(LerMargem(QString::fromLatin1(escrito)).milimetros, mm) << escrito;
    const MargemLida nome = LerMargem(QStringLiteral("MARGEM-SUP"));
    EXPECT_FALSE(nome.numero);
    EXPECT_EQ(GravarMargem(0, nome.comando), QStringLiteral("MARGEM-SUP"));
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

    DefinirTextoEstilo(s, QStringLiteral("Total{E}Geral"));
    EXPECT_EQ(s.Documento.banda(1).Itens[0].Atributos, QStringLiteral("0000110010"));
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("Total{E}Geral")));

    // A visible range takes the text in every item.
    s.AddItem(1, false, 0);
    s.Faixa = {true, 1, 1, 1, 2};
    DefinirTextoEstilo(s, QStringLiteral("A{e}B"));
    for (const Item &it : s.Documento.banda(1).Itens)
        EXPECT_EQ(it.Texto + it.Atributos.at(5), QStringLiteral("A{e}B1"));
}

TEST(ComandosDialogos, CodigoBarrasAplicadoATodaAFaixaEComentarioGuardadoNaBanda)
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

    s.Alterado = false;
    DefinirComentario(s, QStringLiteral("X") + QChar(0xFF) + QStringLiteral("Y"));
    EXPECT_EQ(s.Documento.banda(1).Comentario, QStringLiteral("X") + QChar(0xFF) + QStringLiteral("Y"));
    EXPECT_TRUE(s.Alterado);
}
