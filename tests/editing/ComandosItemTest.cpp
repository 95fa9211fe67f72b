#include "editing/ComandosItem.h"
#include "editing/ComandosBanda.h"
#include "editing/Selecao.h"
#include "editing/SessaoMontada.h"

using namespace lumeta;
using ItemMenu = lumeta::teste::SessaoMontada;

TEST_F(ItemMenu, InserirAntesDoSelecionadoAcrescentarEDuplicarOUltimo)
{
    Montar({{64, 32, 16}});
    Selecionar(1, 2);
    mnuEditarItemInserir(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "Texto 4", "1.2", "1.3"}));
    EXPECT_EQ(s.ItemSelecionado, 3);
    EXPECT_EQ(I(1, 3).Esquerda, 128);
    EXPECT_EQ(I(1, 2).Largura, 64);

    mnuEditarItemAdicionar(s);
    EXPECT_EQ(Textos(1).last(), QStringLiteral("Texto 5"));
    EXPECT_EQ(s.ItemSelecionado, 0);

    Selecionar(1, 5);
    s.Documento.banda(1).Itens[4].Largura = 24;
    mnuEditarItemDuplicar(s);
    ASSERT_EQ(B(1).NumItens(), 6);
    EXPECT_EQ(s.ItemSelecionado, 6);
    EXPECT_EQ(I(1, 6).Texto, QStringLiteral("Texto 5"));
    EXPECT_EQ(I(1, 6).Largura, 24);
    EXPECT_EQ(I(1, 6).Esquerda, I(1, 5).Esquerda + 24);
    EXPECT_EQ(pinturas, 3);
}

TEST_F(ItemMenu, MoverNasPontasNaoFazNadaENoMeioTrocaOsItensInteiros)
{
    Montar({{64, 32, 16}});
    Selecionar(1, 1);
    mnuEditarItemLeft(s);
    Selecionar(1, 3);
    mnuEditarItemRight(s);
    EXPECT_EQ(pinturas, 0);
    s.Documento.banda(1).Itens[2].CorFundo = 5;
    mnuEditarItemLeft(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "1.3", "1.2"}));
    EXPECT_EQ(s.ItemSelecionado, 2);
    EXPECT_EQ(I(1, 2).CorFundo, 5);
    EXPECT_EQ(I(1, 2).Esquerda, 64);
    EXPECT_EQ(I(1, 3).Esquerda, 80);
    mnuEditarItemRight(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "1.2", "1.3"}));
    EXPECT_EQ(s.ItemSelecionado, 3);
    // Without an item nothing moves.
    Selecionar(1, 0);
    mnuEditarItemLeft(s);
    mnuEditarItemRight(s);
    mnuEditarItemRemover(s);
    EXPECT_EQ(pinturas, 2);
}

TEST_F(ItemMenu, RemoverOUltimoItemPerguntaEOferecemRemoverABanda)
{
    Montar({{64, 32, 16}, {40}});
    Selecionar(1, 3);
    mnuEditarItemRemover(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "1.2"}));
    EXPECT_EQ(s.ItemSelecionado, 2);
    EXPECT_TRUE(ui.perguntas.isEmpty());

    Selecionar(2, 1);
    ui.respostas = {Resposta::Nao};
    mnuEditarItemRemover(s);
    ASSERT_EQ(ui.perguntas.size(), 1);
    EXPECT_EQ(ui.perguntas[0].texto,
              QStringLiteral("Este é o último item da banda!\n\nVocê deseja remover a banda selecionada?"));
    EXPECT_EQ(ui.perguntas[0].icone, Icone::Pergunta);
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    // Any answer but No removes the band.
    ui.respostas = {Resposta::Cancelar};
    mnuEditarItemRemover(s);
    EXPECT_EQ(s.Documento.NumBandas(), 1);
    EXPECT_EQ(s.BandaSelecionada, 1);
    EXPECT_EQ(s.ItemSelecionado, 0);

    // The last item of the last band: the band removal refuses.
    mnuEditarItemRemover(s);  // no item selected: nothing
    Montar({{64}});
    Selecionar(1, 1);
    ui.respostas = {Resposta::Sim};
    mnuEditarItemRemover(s);
    EXPECT_EQ(s.Documento.NumBandas(), 1);
    EXPECT_EQ(B(1).NumItens(), 1);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("Não é possível remover a última banda!"));
}

TEST_F(ItemMenu, FiguraPerdeOAnguloEOsOutrosTiposOMantem)
{
    Montar({{64, 32, 16}});
    s.Documento.banda(1).Itens[0].Atributos = QStringLiteral("0000109010");
    s.Documento.banda(1).Itens[1].Atributos = QStringLiteral("0000108010");
    s.Documento.banda(1).Itens[2].Atributos = QStringLiteral("0000105010");
    Selecionar(1, 1);
    DefinirTipoItem(s, TipoComando);
    EXPECT_EQ(I(1, 1).Tipo, TipoComando);
    EXPECT_EQ(I(1, 1).Atributos, QStringLiteral("0000109010"));
    SelecionarFaixa(s, 1, 2);
    DefinirTipoItem(s, TipoFigura);
    EXPECT_EQ(I(1, 1).Atributos, QStringLiteral("0000101010"));
    EXPECT_EQ(I(1, 2).Atributos, QStringLiteral("0000100010"));
    EXPECT_EQ(I(1, 2).Tipo, TipoFigura);
    EXPECT_EQ(I(1, 3).Tipo, TipoTexto);
    EXPECT_EQ(I(1, 3).Atributos, QStringLiteral("0000105010"));
}

TEST_F(ItemMenu, MenuEditarHabilitaPeloItemEPeloTipo)
{
    Montar({{64, 32}, {16}});
    EstadoMenuEditar e = PrepararMenuEditar(s, false);
    EXPECT_FALSE(e.itemComandos);
    EXPECT_FALSE(e.tipoTexto || e.tipoFigura || e.tipoComando || e.tipoCodigoBarras);
    EXPECT_FALSE(e.desfazer);
    EXPECT_FALSE(e.bandaPagina);
    EXPECT_EQ(e.legendaBandaPagina, QStringLiteral("&Quebrar a Página"));
    EXPECT_EQ(e.legendaBandaAuto, QStringLiteral("Alt&ura automática"));

    Selecionar(1, 1);
    mnuEditarItemInserir(s);
    e = PrepararMenuEditar(s, false);
    EXPECT_TRUE(e.desfazer);
    EXPECT_FALSE(PrepararMenuEditar(s, true).desfazer);
    const struct {
        uint8_t tipo;
        bool texto, figura, comando, barras;
    } casos[] = {{0, false, true, true, true},  {1, true, false, true, true},  {2, true, true, false, true},
                 {31, true, true, true, false}, {39, true, true, true, false}, {60, true, true, true, false},
                 {80, true, true, true, false}};
    for (const auto &c : casos) {
        s.Documento.banda(1).Itens[s.ItemSelecionado - 1].Tipo = c.tipo;
        e = PrepararMenuEditar(s, false);
        EXPECT_TRUE(e.itemComandos);
        EXPECT_EQ(e.tipoTexto, c.texto) << int(c.tipo);
        EXPECT_EQ(e.tipoFigura, c.figura) << int(c.tipo);
        EXPECT_EQ(e.tipoComando, c.comando) << int(c.tipo);
        EXPECT_EQ(e.tipoCodigoBarras, c.barras) << int(c.tipo);
    }
    Selecionar(2, 0);
    s.Documento.banda(2).Altura = -30;
    s.Documento.Quebras = {2};
    e = PrepararMenuEditar(s, false);
    EXPECT_TRUE(e.bandaPagina);
    EXPECT_EQ(e.legendaBandaPagina, QStringLiteral("Remover a &Quebra de Página"));
    EXPECT_EQ(e.legendaBandaAuto, QStringLiteral("Alt&ura manual"));
}
