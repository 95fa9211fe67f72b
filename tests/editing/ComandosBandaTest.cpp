#include "editing/ComandosBanda.h"
#include "editing/ComandosTransferencia.h"
#include "editing/SessaoMontada.h"
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

using BandaMenu = lumeta::teste::SessaoMontada;

namespace {

// The bands with a page break after them, by their first item's text.
QStringList BandasComQuebra(const SessaoEdicao &s)
{
    QStringList r;
    for (int16_t q : s.Documento.Quebras)
        r << s.Documento.banda(q).Itens.first().Texto;
    r.sort();
    return r;
}

}  // namespace

TEST_F(BandaMenu, InserirRemoverEDuplicarMantemCabecalhoERodapeNasMesmasBandas)
{
    Montar({{64}, {32}, {16}, {48}});
    s.Documento.BandaCabecalho = 1;
    s.Documento.BandaRodape = 3;
    mnuEditarBandaInserir(s);
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"Texto 1", "1.1", "2.1", "3.1", "4.1"}));
    EXPECT_EQ(s.Documento.BandaCabecalho, 2);
    EXPECT_EQ(s.Documento.BandaRodape, 4);
    EXPECT_EQ(s.BandaSelecionada, 2);
    EXPECT_EQ(pinturas, 1);

    s.BandaSelecionada = 3;
    s.ItemSelecionado = 1;
    ASSERT_TRUE(mnuEditarBandaRemover(s));
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"Texto 1", "1.1", "3.1", "4.1"}));
    EXPECT_EQ(s.Documento.BandaRodape, 3);
    EXPECT_EQ(s.Documento.BandaCabecalho, 2);
    EXPECT_EQ(s.BandaSelecionada, 3);
    EXPECT_EQ(s.ItemSelecionado, 0);

    // The lower copy of a duplicate starts right under its source.
    s.Documento.banda(3).Deslocamento = -8;
    s.Documento.banda(3).Comentario = QStringLiteral("c");
    s.ItemSelecionado = 1;
    mnuEditarBandaDuplicar(s);
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"Texto 1", "1.1", "3.1", "3.1", "4.1"}));
    EXPECT_EQ(B(3).Deslocamento, -8);
    EXPECT_EQ(B(4).Deslocamento, 0);
    EXPECT_EQ(B(4).Comentario, QStringLiteral("c"));
    EXPECT_EQ(B(4).Itens, B(3).Itens);
    EXPECT_EQ(s.BandaSelecionada, 4);
    EXPECT_EQ(s.Documento.BandaRodape, 4);

    // Appending moves neither the selection nor the markers.
    mnuEditarBandaAdicionar(s);
    EXPECT_EQ(s.Documento.NumBandas(), 6);
    EXPECT_EQ(s.BandaSelecionada, 4);
    EXPECT_EQ(B(6).Altura, 18);
    EXPECT_EQ(s.Documento.BandaRodape, 4);
}

TEST_F(BandaMenu, RemoverAUnicaBandaERecusadoComAMensagem)
{
    Montar({{64, 32}});
    const LayoutDocumento antes = s.Documento;
    EXPECT_FALSE(mnuEditarBandaRemover(s));
    EXPECT_EQ(s.Documento, antes);
    EXPECT_EQ(pinturas, 0);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("Não é possível remover a última banda!"));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Informacao);
}

TEST_F(BandaMenu, SubirEDescerTrocamAsBandasENaoOsMarcadores)
{
    Montar({{64}, {32}, {16}});
    s.Documento.BandaCabecalho = 1;
    s.Documento.BandaRodape = 3;
    mnuEditarBandaUp(s);
    s.BandaSelecionada = 3;
    mnuEditarBandaDown(s);
    EXPECT_EQ(pinturas, 0);
    mnuEditarBandaUp(s);
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"1.1", "3.1", "2.1"}));
    EXPECT_EQ(s.BandaSelecionada, 2);
    mnuEditarBandaDown(s);
    mnuEditarBandaDown(s);
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"1.1", "2.1", "3.1"}));
    EXPECT_EQ(s.BandaSelecionada, 3);
    EXPECT_EQ(s.Documento.BandaCabecalho, 1);
    EXPECT_EQ(s.Documento.BandaRodape, 3);
}

TEST_F(BandaMenu, QuebrasDePaginaSeguemSuasBandas)
{
    Montar({{64}, {32}, {16}, {48}, {8}});
    s.Documento.Quebras = {2, 4};
    const QStringList marcadas{"2.1", "4.1"};
    s.BandaSelecionada = 2;
    mnuEditarBandaInserir(s);
    EXPECT_EQ(BandasComQuebra(s), marcadas);
    s.BandaSelecionada = 5;
    mnuEditarBandaUp(s);
    EXPECT_EQ(BandasComQuebra(s), marcadas);
    mnuEditarBandaDown(s);
    mnuEditarBandaDown(s);
    EXPECT_EQ(BandasComQuebra(s), marcadas);
    mnuEditarBandaUp(s);
    EXPECT_EQ(BandasComQuebra(s), marcadas);
    EXPECT_EQ(s.Documento.Quebras.size(), 2);

    // A break goes with its band.
    ASSERT_EQ(s.BandaSelecionada, 5);
    ASSERT_EQ(B(5).Itens[0].Texto, QStringLiteral("4.1"));
    mnuEditarBandaRemover(s);
    EXPECT_EQ(BandasComQuebra(s), QStringList{"2.1"});

    // Pasted bands come without breaks and push the marked band down.
    s.BandaSelecionada = 3;
    ASSERT_EQ(B(3).Itens[0].Texto, QStringLiteral("2.1"));
    ASSERT_TRUE(mnuEditarCopiar(s));
    s.BandaSelecionada = 1;
    mnuEditarColarBanda(s);
    EXPECT_EQ(BandasComQuebra(s), QStringList{"2.1"});
    EXPECT_EQ(s.Documento.Quebras, QList<int16_t>{4});
    // A duplicate's source keeps its break; the copy below it has none.
    s.BandaSelecionada = 4;
    mnuEditarBandaDuplicar(s);
    EXPECT_EQ(s.Documento.Quebras, QList<int16_t>{4});
}

TEST_F(BandaMenu, FonteDaBandaParaTodosOsSeusItens)
{
    Montar({{64, 32}, {16}});
    ui.fontes.push_back(std::nullopt);
    mnuEditarBandaFonte(s);
    EXPECT_EQ(pinturas, 0);
    ui.fontes.push_back(FonteEscolhida{QStringLiteral("Courier New"), 112.5, true, false, true, false});
    mnuEditarBandaFonte(s);
    const FonteItem esperada{QStringLiteral("Courier New"), 12, true, false, true, false};
    EXPECT_EQ(I(1, 1).Fonte, esperada);
    EXPECT_EQ(I(1, 2).Fonte, esperada);
    EXPECT_EQ(I(2, 1).Fonte, FonteItem());
    EXPECT_EQ(pinturas, 1);
}
