#include "editing/ComandosBanda.h"
#include "canvas/Pintor.h"
#include "support/InterfaceRoteirizada.h"

#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::InterfaceRoteirizada;


TEST(ComandosBanda, AlturaAutomaticaEManual)
{
    SessaoEdicao s;
    s.AddBanda(0, false, 40, 0);
    s.AddBanda(0, false, 0, 0);
    s.BandaSelecionada = 2;
    EXPECT_EQ(LegendaBandaAuto(s.Documento.banda(2)), QStringLiteral("Alt&ura automática"));
    mnuEditarBandaAuto(s);
    // The repaint computed the height and keeps it negated.
    const int32_t calculada = s.Documento.banda(2).Altura;
    EXPECT_LT(calculada, 0);
    EXPECT_FALSE(AlturaManual(s.Documento.banda(2)));
    EXPECT_EQ(LegendaBandaAuto(s.Documento.banda(2)), QStringLiteral("Alt&ura manual"));
    mnuEditarBandaAuto(s);
    EXPECT_EQ(s.Documento.banda(2).Altura, -calculada);

    // A range over several bands switches every band of it, each by its own mode.
    s.Documento.banda(1).Altura = -40;
    s.Faixa = {true, 1, 3, 1, 1};
    mnuEditarBandaAuto(s);
    EXPECT_EQ(s.Documento.banda(1).Altura, 40);
    EXPECT_LT(s.Documento.banda(2).Altura, 1);
    EXPECT_LT(s.Documento.banda(3).Altura, 1);
}

TEST(ComandosBanda, QuebraDePaginaDaBandaSelecionada)
{
    SessaoEdicao s;
    for (int i = 0; i < 4; ++i)
        s.AddBanda(0, false, 0, 0);
    s.BandaSelecionada = 1;
    EXPECT_FALSE(BandaPaginaHabilitada(1));
    EXPECT_FALSE(mnuEditarBandaPagina(s));
    EXPECT_TRUE(s.Documento.Quebras.isEmpty());

    for (int b : {2, 5, 4}) {
        s.BandaSelecionada = b;
        EXPECT_EQ(LegendaBandaPagina(s.Documento, b), QStringLiteral("&Quebrar a Página"));
        EXPECT_TRUE(mnuEditarBandaPagina(s));
        EXPECT_EQ(LegendaBandaPagina(s.Documento, b), QStringLiteral("Remover a &Quebra de Página"));
    }
    EXPECT_EQ(s.Documento.Quebras, (QList<int16_t>{2, 5, 4}));
    // Removing from the middle puts the former last entry in its place.
    s.BandaSelecionada = 2;
    EXPECT_TRUE(mnuEditarBandaPagina(s));
    EXPECT_EQ(s.Documento.Quebras, (QList<int16_t>{4, 5}));
    for (int b : {4, 5}) {
        s.BandaSelecionada = b;
        mnuEditarBandaPagina(s);
    }
    EXPECT_TRUE(s.Documento.Quebras.isEmpty());
}

TEST(ComandosBanda, QuebraFinalContraRodape)
{
    InterfaceRoteirizada ui;
    SessaoEdicao s;
    s.Ui = &ui;
    s.AddBanda(0, false, 0, 0);
    s.Alterado = false;

    EXPECT_EQ(mnuConfigQuebraPagina(s), QString());
    EXPECT_TRUE(s.Documento.QuebraPaginaFinal);
    EXPECT_TRUE(s.Alterado);
    EXPECT_EQ(mnuConfigQuebraPagina(s), QString());
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);
    EXPECT_TRUE(ui.mensagens.isEmpty());

    // With a footer the setting cannot be switched on.
    s.Documento.BandaRodape = 2;
    s.Alterado = false;
    EXPECT_EQ(mnuConfigQuebraPagina(s),
              QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!"));
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);
    EXPECT_FALSE(s.Alterado);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Rodapé"));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Informacao);
    EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!"));

    // Setting a footer while it is on turns it off, with the longer message.
    s.Documento.BandaRodape = 0;
    mnuConfigQuebraPagina(s);
    ASSERT_TRUE(s.Documento.QuebraPaginaFinal);
    EXPECT_EQ(VerificarRodapeQuebraFinal(s), QString());  // no footer yet
    s.Documento.BandaRodape = 2;
    s.Alterado = false;
    const QString aviso = VerificarRodapeQuebraFinal(s);
    EXPECT_EQ(aviso, QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!\n\n"
                                    "A quebra de página será removida do final da página."));
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);
    EXPECT_TRUE(s.Alterado);
    ASSERT_EQ(ui.mensagens.size(), 2);
    EXPECT_EQ(ui.mensagens[1].texto, aviso);
    EXPECT_EQ(ui.mensagens[1].titulo, QStringLiteral("Rodapé"));
    EXPECT_EQ(VerificarRodapeQuebraFinal(s), QString());
}
