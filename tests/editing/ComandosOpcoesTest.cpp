#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"
#include "support/InterfaceRoteirizada.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

TEST(Margens, QuotedNumbersAndNamesReadBackAsWritten)
{
    const MargemLida meio = LerMargem(QStringLiteral("\"12.5\""));
    EXPECT_TRUE(meio.numero);
    EXPECT_DOUBLE_EQ(meio.milimetros, 12.5);
    EXPECT_EQ(GravarMargem(meio.milimetros, QString()), QStringLiteral("\"12.5\""));
    EXPECT_EQ(GravarMargem(10, QString()), QStringLiteral("\"10\""));

    const MargemLida nome = LerMargem(QStringLiteral("MARGEM-SUP"));
    EXPECT_FALSE(nome.numero);
    EXPECT_EQ(nome.comando, QStringLiteral("MARGEM-SUP"));
    EXPECT_EQ(GravarMargem(0, nome.comando), QStringLiteral("MARGEM-SUP"));

    // Only the leading number counts; no number reads as 0.
    EXPECT_DOUBLE_EQ(LerMargem(QStringLiteral("\"7.25mm\"")).milimetros, 7.25);
    EXPECT_DOUBLE_EQ(LerMargem(QStringLiteral("\"abc\"")).milimetros, 0);
}

TEST(Impressora, TypedNamesMatchInAnyCaseAndSpecialEntriesMapToValues)
{
    const QStringList lista = ListaImpressoras({QStringLiteral("HP LaserJet"), QStringLiteral("Epson")});
    ASSERT_EQ(lista.size(), 4);
    EXPECT_EQ(lista[0], QStringLiteral("<< Padrão do Windows >>"));
    EXPECT_EQ(lista[1], QStringLiteral("<< O usuário seleciona >>"));
    EXPECT_EQ(EntradaImpressora(lista, QStringLiteral("  epson ")), 3);
    EXPECT_EQ(EntradaImpressora(lista, QStringLiteral("<< o usuário seleciona >>")), 1);
    EXPECT_EQ(EntradaImpressora(lista, QStringLiteral("<< O USUÁRIO SELECIONA >>")), 1);
    EXPECT_EQ(EntradaImpressora(lista, QStringLiteral("Canon")), -1);
    EXPECT_EQ(EntradaDoValor(lista, QString()), 0);
    EXPECT_EQ(EntradaDoValor(lista, QStringLiteral("<?>")), 1);
    EXPECT_EQ(EntradaDoValor(lista, QStringLiteral("hp laserjet")), 2);
    EXPECT_EQ(ValorImpressora(0, QStringLiteral("x")), QString());
    EXPECT_EQ(ValorImpressora(1, QStringLiteral("x")), QStringLiteral("<?>"));
    EXPECT_EQ(ValorImpressora(2, QStringLiteral("hp laserjet")), QStringLiteral("hp laserjet"));
    EXPECT_EQ(ValorImpressora(-1, QStringLiteral("Canon")), QStringLiteral("Canon"));
}

TEST(QualidadeJPG, ClampedToOneHundredPercent)
{
    EXPECT_EQ(LimitarQualidadeJPG(0), 1);
    EXPECT_EQ(LimitarQualidadeJPG(-5), 1);
    EXPECT_EQ(LimitarQualidadeJPG(150), 100);
    EXPECT_EQ(LimitarQualidadeJPG(75), 75);
}

TEST(TextoEstilo, SeveralLinesTurnOnTheFlagAndAnUnchangedTextTakesNoSnapshot)
{
    QTemporaryDir config;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config.path());
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
    s.Ui = &ui;
    s.ItemSelecionado = 1;
    const Item antes = s.Documento.banda(1).Itens[0];
    DefinirTextoEstilo(s, antes.Texto);
    EXPECT_FALSE(s.Alterado);
    EXPECT_FALSE(s.PodeDesfazer());

    DefinirTextoEstilo(s, QStringLiteral("Total{E}Geral"));
    const Item &depois = s.Documento.banda(1).Itens[0];
    EXPECT_EQ(depois.Texto, QStringLiteral("Total{E}Geral"));
    EXPECT_EQ(depois.Atributos, QStringLiteral("0000110010"));
    EXPECT_TRUE(s.Alterado);
    EXPECT_TRUE(s.TextoResultado.contains(QStringLiteral("Total{E}Geral")));
}
