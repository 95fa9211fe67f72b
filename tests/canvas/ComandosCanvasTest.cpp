#include "canvas/ComandosCanvas.h"
#include "canvas/Pintor.h"
#include "support/InterfaceRoteirizada.h"

#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::InterfaceRoteirizada;

namespace {

// A measurer whose every text is 33 pixels tall, so automatic bands are 37.
class Medidor33 : public MedidorAltura {
public:
    int Medir(const FonteItem &, const QString &, int, int, const OpcoesTexto &) override { return 33; }
};

}  // namespace

TEST(ComandosCanvas, AlturaAutomaticaEManual)
{
    SessaoEditor s;
    s.AddBanda(0, false, 40, 0);
    s.AddBanda(0, false, 0, 0);
    s.BandaSelecionada = 2;
    EXPECT_EQ(LegendaBandaAuto(s.Documento.banda(2)), QStringLiteral("Alt&ura automática"));
    mnuEditarBandaAuto(s);
    EXPECT_EQ(s.Documento.banda(2).Altura, 0);
    EXPECT_FALSE(AlturaManual(s.Documento.banda(2)));
    EXPECT_EQ(LegendaBandaAuto(s.Documento.banda(2)), QStringLiteral("Alt&ura manual"));

    // The repaint computes it; back to manual keeps the computed 37 pixels.
    Medidor33 m;
    AtualizarAlturas(s.Documento, s.BandaSelecionada, m);
    EXPECT_EQ(s.Documento.banda(2).Altura, -37);
    mnuEditarBandaAuto(s);
    EXPECT_EQ(s.Documento.banda(2).Altura, 37);
    EXPECT_TRUE(AlturaManual(s.Documento.banda(2)));

    // A range switches every band of it, each by its own mode.
    s.Documento.banda(1).Altura = -40;
    mnuEditarBandaAuto(s, {1, 2, 3, 99});
    EXPECT_EQ(s.Documento.banda(1).Altura, 40);
    EXPECT_EQ(s.Documento.banda(2).Altura, 0);
    EXPECT_EQ(s.Documento.banda(3).Altura, 0);
}

TEST(ComandosCanvas, QuebraDePaginaDaBandaSelecionada)
{
    SessaoEditor s;
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

TEST(ComandosCanvas, QuebraFinalContraRodape)
{
    InterfaceRoteirizada ui;
    SessaoEditor s;
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
