#include "editing/ComandosItem.h"
#include "editing/SessaoMontada.h"

using namespace lumeta;
using ItemMenu = lumeta::teste::SessaoMontada;

TEST_F(ItemMenu, InserirAcrescentarDuplicarEMoverNasPontasENoMeio)
{
    // Where the selection goes after an insert or an append, the paste and
    // key tests read.
    Montar({{64, 32, 16}});
    Selecionar(1, 2);
    mnuEditarItemInserir(s);
    mnuEditarItemAdicionar(s);
    Selecionar(1, 5);
    s.Documento.banda(1).Itens[4].CorFundo = 5;
    mnuEditarItemDuplicar(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "Texto 4", "1.2", "1.3", "Texto 5", "Texto 5"}));
    EXPECT_EQ(std::pair(I(1, 6).CorFundo, s.ItemSelecionado), std::pair(uint8_t(5), 6));
    EXPECT_EQ(pinturas, 3);

    // At either end a move does nothing; in the middle the whole items swap
    // (to the right: the key tests).
    Montar({{64, 32, 16}});
    for (const auto &[item, mover] : {std::pair{1, &mnuEditarItemLeft}, {3, &mnuEditarItemRight},
                                      {0, mnuEditarItemLeft}, {0, mnuEditarItemRight}}) {
        Selecionar(1, item);
        mover(s);
    }
    EXPECT_EQ(pinturas, 0);
    Selecionar(1, 3);
    mnuEditarItemLeft(s);
    EXPECT_EQ(Textos(1), (QStringList{"1.1", "1.3", "1.2"}));
    EXPECT_EQ(std::pair(I(1, 2).Largura, s.ItemSelecionado), std::pair(16, 2));
}

TEST_F(ItemMenu, RemoverOUltimoItemPerguntaEOferecemRemoverABanda)
{
    Montar({{64, 32, 16}, {40}});
    Selecionar(1, 3);
    mnuEditarItemRemover(s);
    EXPECT_EQ(std::pair(Textos(1), s.ItemSelecionado), std::pair(QStringList{"1.1", "1.2"}, 2));

    // Any answer but No removes the band.
    Selecionar(2, 1);
    ui.respostas = {Resposta::Nao, Resposta::Cancelar};
    mnuEditarItemRemover(s);
    EXPECT_EQ(s.Documento.NumBandas(), 2);
    mnuEditarItemRemover(s);
    EXPECT_EQ(std::pair(s.Documento.NumBandas(), Selecionado()), std::pair(1, std::pair(1, 0)));
    ASSERT_EQ(ui.perguntas.size(), 2);   // none for the first removal
    EXPECT_EQ(std::pair(ui.perguntas[0].texto, ui.perguntas[0].icone),
              std::pair(QStringLiteral("Este é o último item da banda!\n\nVocê deseja remover a banda selecionada?"),
                        Icone::Pergunta));

    // The last item of the last band: the band removal refuses.
    Montar({{64}});
    Selecionar(1, 1);
    ui.respostas = {Resposta::Sim};
    mnuEditarItemRemover(s);
    EXPECT_EQ(Textos(1), QStringList{"1.1"});
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("Não é possível remover a última banda!"));
}

TEST_F(ItemMenu, FiguraPerdeOAnguloEOsOutrosTiposOMantem)
{
    Montar({{64, 32, 16}});
    for (int i = 0; i < 3; ++i)
        s.Documento.banda(1).Itens[i].Atributos = QStringLiteral("000010") + QChar::fromLatin1("985"[i]) + QStringLiteral("010");
    Selecionar(1, 1);
    DefinirTipoItem(s, TipoComando);
    EXPECT_EQ(I(1, 1).Atributos, QStringLiteral("0000109010"));
    SelecionarFaixa(s, 1, 2);
    DefinirTipoItem(s, TipoFigura);
    EXPECT_EQ(DosItens(1, [](const Item &i) { return i.Tipo; }), (QList<uint8_t>{TipoFigura, TipoFigura, TipoTexto}));
    EXPECT_EQ(DosItens(1, [](const Item &i) { return i.Atributos; }),
              (QStringList{"0000101010", "0000100010", "0000105010"}));
}

TEST_F(ItemMenu, MenuEditarHabilitaPeloItemEPeloTipo)
{
    // The window's tests read the menu on a first start and the undo entry.
    Montar({{64, 32}, {16}});
    EXPECT_EQ(PrepararMenuEditar(s, false).legendaBandaPagina, QStringLiteral("&Quebrar a Página"));
    Selecionar(1, 1);
    EstadoMenuEditar e;
    // The entry of the item's own type is the disabled one; every barcode is one type.
    for (const auto &[tipo, desabilitado] : {std::pair{1, 1}, {80, 3}}) {
        s.Documento.banda(1).Itens[s.ItemSelecionado - 1].Tipo = uint8_t(tipo);
        e = PrepararMenuEditar(s, false);
        EXPECT_TRUE(e.itemComandos);
        const bool tipos[] = {e.tipoTexto, e.tipoFigura, e.tipoComando, e.tipoCodigoBarras};
        for (int k = 0; k < 4; ++k)
            EXPECT_EQ(tipos[k], k != desabilitado) << tipo << " " << k;
    }
    Selecionar(2, 0);
    s.Documento.banda(2).Altura = -30;
    s.Documento.Quebras = {2};
    e = PrepararMenuEditar(s, false);
    EXPECT_TRUE(e.bandaPagina);
    EXPECT_EQ(e.legendaBandaPagina, QStringLiteral("Remover a &Quebra de Página"));
    EXPECT_EQ(e.legendaBandaAuto, QStringLiteral("Alt&ura manual"));
}
