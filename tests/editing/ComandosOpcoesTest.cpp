#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(ComandosOpcoes, MargensImpressoraEQualidadeLidasEGravadasComoODialogoMostra)
{
    // Quoted numbers read back as written; only the leading number counts,
    // none reads as 0; anything else is a host-program name kept as it is.
    EXPECT_EQ(GravarMargem(LerMargem(QStringLiteral("\"12.5\"")).milimetros, QString()), QStringLiteral("\"12.5\""));
    EXPECT_EQ(GravarMargem(10, QString()), QStringLiteral("\"10\""));
    EXPECT_DOUBLE_EQ(LerMargem(QStringLiteral("\"7.25mm\"")).milimetros, 7.25);
    EXPECT_DOUBLE_EQ(LerMargem(QStringLiteral("\"abc\"")).milimetros, 0);
    const MargemLida nome = LerMargem(QStringLiteral("MARGEM-SUP"));
    EXPECT_FALSE(nome.numero);
    EXPECT_TRUE(LerMargem(QStringLiteral("\"1\"")).numero);
    EXPECT_EQ(GravarMargem(0, nome.comando), QStringLiteral("MARGEM-SUP"));

    // Typed printer names match in any case; the two special entries map to values.
    const QStringList lista = ListaImpressoras({QStringLiteral("HP LaserJet"), QStringLiteral("Epson")});
    EXPECT_EQ(lista.mid(0, 2), (QStringList{"<< Padrão do Windows >>", "<< O usuário seleciona >>"}));
    EXPECT_EQ(lista.size(), 4);
    for (const auto &[digitado, entrada] : {std::pair{"  epson ", 3}, {"<< O USUÁRIO SELECIONA >>", 1}, {"Canon", -1}})
        EXPECT_EQ(EntradaImpressora(lista, QString::fromUtf8(digitado)), entrada) << digitado;
    EXPECT_EQ(EntradaDoValor(lista, QString()), 0);
    EXPECT_EQ(EntradaDoValor(lista, QStringLiteral("<?>")), 1);
    EXPECT_EQ(EntradaDoValor(lista, QStringLiteral("hp laserjet")), 2);
    EXPECT_EQ(ValorImpressora(0, QStringLiteral("x")), QString());
    EXPECT_EQ(ValorImpressora(1, QStringLiteral("x")), QStringLiteral("<?>"));
    EXPECT_EQ(ValorImpressora(-1, QStringLiteral("Canon")), QStringLiteral("Canon"));

    for (const auto &[pedida, qualidade] : {std::pair{0, 1}, {150, 100}, {100, 100}})
        EXPECT_EQ(LimitarQualidadeJPG(pedida), qualidade) << pedida;
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
    const Item &depois = s.Documento.banda(1).Itens[0];
    EXPECT_EQ(depois.Texto, QStringLiteral("Total{E}Geral"));
    EXPECT_EQ(depois.Atributos, QStringLiteral("0000110010"));
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("Total{E}Geral")));

    // A visible range takes the text in every item.
    s.AddItem(1, false, 0);
    s.Faixa = {true, 1, 1, 1, 2};
    DefinirTextoEstilo(s, QStringLiteral("A{e}B"));
    for (const Item &it : s.Documento.banda(1).Itens) {
        EXPECT_EQ(it.Texto, QStringLiteral("A{e}B"));
        EXPECT_EQ(it.Atributos.at(5), u'1');
    }
}
