#include "editing/AlcasMagico.h"
#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/ComandosTransferencia.h"
#include "editing/SessaoMontada.h"

#include <functional>
#include <vector>

using namespace lumeta;
using BandaMenu = lumeta::teste::SessaoMontada;
using L = QList<int32_t>;

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

TEST_F(BandaMenu, InserirRemoverDuplicarEMoverMantemCabecalhoERodapeNasMesmasBandas)
{
    Montar({{64}, {32}, {16}, {48}});
    const auto marcadores = [&] { return std::make_pair(s.Documento.BandaCabecalho, s.Documento.BandaRodape); };
    s.Documento.BandaCabecalho = 1;
    s.Documento.BandaRodape = 3;
    mnuEditarBandaInserir(s);
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"Texto 1", "1.1", "2.1", "3.1", "4.1"}));
    EXPECT_EQ(std::tuple(marcadores(), s.BandaSelecionada, pinturas), std::tuple(std::pair(2, 4), 2, 1));

    Selecionar(3, 1);
    ASSERT_TRUE(mnuEditarBandaRemover(s));
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"Texto 1", "1.1", "3.1", "4.1"}));
    EXPECT_EQ(std::tuple(marcadores(), Selecionado()), std::tuple(std::pair(2, 3), std::pair(3, 0)));

    // The lower copy of a duplicate starts right under its source.
    s.Documento.banda(3).Deslocamento = -8;
    s.Documento.banda(3).Comentario = QStringLiteral("c");
    mnuEditarBandaDuplicar(s);
    EXPECT_EQ(DasBandas([](const Banda &b) { return b.Deslocamento; }), (L{0, 0, -8, 0, 0}));
    EXPECT_EQ(std::pair(B(4).Comentario, B(4).Itens), std::pair(QStringLiteral("c"), B(3).Itens));
    EXPECT_EQ(std::tuple(marcadores(), s.BandaSelecionada), std::tuple(std::pair(2, 4), 4));

    // Appending moves neither the selection nor the markers.
    mnuEditarBandaAdicionar(s);
    EXPECT_EQ(std::tuple(marcadores(), s.BandaSelecionada), std::tuple(std::pair(2, 4), 4));

    // Up and down swap the bands, not the markers; at either end nothing
    // happens. (One step up alone: the key tests' Ctrl+Up.)
    Montar({{64}, {32}, {16}});
    s.Documento.BandaCabecalho = 1;
    s.Documento.BandaRodape = 3;
    mnuEditarBandaUp(s);
    Selecionar(3, 0);
    mnuEditarBandaDown(s);
    EXPECT_EQ(pinturas, 0);
    mnuEditarBandaUp(s);
    mnuEditarBandaDown(s);
    mnuEditarBandaDown(s);
    EXPECT_EQ(PrimeirosTextos(), (QStringList{"1.1", "2.1", "3.1"}));
    EXPECT_EQ(std::tuple(marcadores(), s.BandaSelecionada), std::tuple(std::pair(1, 3), 3));

    // The only band cannot go (the message's text: the item tests).
    Montar({{64, 32}});
    const LayoutDocumento antes = s.Documento;
    EXPECT_FALSE(mnuEditarBandaRemover(s));
    EXPECT_EQ(s.Documento, antes);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Informacao);
}

TEST_F(BandaMenu, QuebraDePaginaAlternaPelaBandaESegueSuaBanda)
{
    Montar({{64}, {32}, {16}, {48}, {8}});
    EXPECT_FALSE(mnuEditarBandaPagina(s));
    for (int b : {2, 5, 4, 2}) {
        s.BandaSelecionada = b;
        EXPECT_TRUE(mnuEditarBandaPagina(s));
    }
    // Removing from the middle puts the former last entry in its place.
    EXPECT_EQ(s.Documento.Quebras, (QList<int16_t>{4, 5}));

    // Inserting and moving bands carry the breaks with them.
    s.Documento.Quebras = {2, 4};
    const QStringList marcadas{"2.1", "4.1"};
    s.BandaSelecionada = 2;
    mnuEditarBandaInserir(s);
    EXPECT_EQ(BandasComQuebra(s), marcadas);
    s.BandaSelecionada = 5;
    for (auto mover : {mnuEditarBandaUp, mnuEditarBandaDown, mnuEditarBandaDown, mnuEditarBandaUp}) {
        mover(s);
        EXPECT_EQ(BandasComQuebra(s), marcadas);
    }
    // A break goes with its band.
    mnuEditarBandaRemover(s);
    EXPECT_EQ(BandasComQuebra(s), QStringList{"2.1"});
    // Pasted bands come without breaks and push the marked band down.
    s.BandaSelecionada = 3;
    ASSERT_TRUE(mnuEditarCopiar(s));
    s.BandaSelecionada = 1;
    mnuEditarColarBanda(s);
    EXPECT_EQ(s.Documento.Quebras, QList<int16_t>{4});
    // A duplicate's source keeps its break; the copy below it has none.
    s.BandaSelecionada = 4;
    mnuEditarBandaDuplicar(s);
    EXPECT_EQ(s.Documento.Quebras, QList<int16_t>{4});
}

TEST_F(BandaMenu, AlturaAutomaticaEManualEFonteDaBanda)
{
    Montar({{64, 32}, {16}, {8}});
    s.Documento.banda(1).Altura = 40;
    Selecionar(2, 0);
    mnuEditarBandaAuto(s);
    // The repaint computed the height and keeps it negated.
    const int32_t calculada = B(2).Altura;
    EXPECT_LT(calculada, 0);
    mnuEditarBandaAuto(s);
    EXPECT_EQ(B(2).Altura, -calculada);
    // A range over several bands switches every band of it, each by its own mode.
    s.Documento.banda(1).Altura = -40;
    s.Faixa = {true, 1, 3, 1, 1};
    mnuEditarBandaAuto(s);
    EXPECT_EQ(B(1).Altura, 40);
    EXPECT_TRUE(B(2).Altura < 1 && B(3).Altura < 1);

    // The band's font goes to every item of the band, sized as the dialog rounds.
    Montar({{64, 32}, {16}});
    ui.fontes = {std::nullopt, FonteEscolhida{QStringLiteral("Courier New"), 112.5, true, false, true, false}};
    mnuEditarBandaFonte(s);
    EXPECT_EQ(pinturas, 0);
    mnuEditarBandaFonte(s);
    const FonteItem esperada{QStringLiteral("Courier New"), 12, true, false, true, false};
    EXPECT_EQ(DosItens(1, [](const Item &i) { return i.Fonte; }), (QList<FonteItem>{esperada, esperada}));
    EXPECT_EQ(I(2, 1).Fonte, FonteItem());
}

TEST_F(BandaMenu, QuebraFinalRecusadaComRodapeEDesligadaAoMarcarUm)
{
    Montar({{64}, {32}});
    EXPECT_EQ(mnuConfigQuebraPagina(s), QString());
    EXPECT_TRUE(s.Documento.QuebraPaginaFinal && s.Alterado);
    EXPECT_EQ(VerificarRodapeQuebraFinal(s), QString());  // no footer yet
    // Setting a footer while it is on turns it off (the panel's test reads the message).
    s.Documento.BandaRodape = 2;
    s.Alterado = false;
    EXPECT_FALSE(VerificarRodapeQuebraFinal(s).isEmpty());
    EXPECT_TRUE(!s.Documento.QuebraPaginaFinal && s.Alterado);
    EXPECT_EQ(VerificarRodapeQuebraFinal(s), QString());

    // With a footer the setting cannot be switched on; the text returned is
    // the one shown (under the title the window's test reads).
    s.Alterado = false;
    EXPECT_EQ(mnuConfigQuebraPagina(s),
              QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!"));
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal || s.Alterado);
    ASSERT_EQ(ui.mensagens.size(), 2);
    EXPECT_EQ(ui.mensagens[1].icone, Icone::Informacao);
    // Turning it off is always allowed, footer or not.
    s.Documento.QuebraPaginaFinal = true;
    EXPECT_EQ(mnuConfigQuebraPagina(s), QString());
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);
}

TEST_F(BandaMenu, NoLimiteDoArquivoOsComandosQueCrescemRecusamENadaMudam)
{
    Montar({{64}, {1}});
    Selecionar(1, 1);
    ASSERT_TRUE(mnuEditarCopiar(s));
    s.Config.MagicItem = true;
    LayoutDocumento &d = s.Documento;
    d.Bandas.insert(2, MaximoBandas - 2, d.banda(2));
    Reposicionar();
    const auto magico = [&](int x, int y) {
        MoverMagico(s, x, y, true);
        CliqueMagico(s);
    };
    using Casos = std::vector<std::pair<std::function<void()>, QString>>;
    const auto recusados = [&](const Casos &casos, const QString &mensagem) {
        const LayoutDocumento antes = d;
        for (const auto &[comando, titulo] : casos) {
            ui.mensagens.clear();
            comando();
            ASSERT_EQ(ui.mensagens.size(), 1) << titulo.toStdString();
            const teste::MensagemVista &m = ui.mensagens[0];
            EXPECT_EQ(std::tuple(m.texto, m.titulo, m.icone), std::tuple(mensagem, titulo, Icone::Informacao));
            EXPECT_TRUE(d == antes) << titulo.toStdString();
        }
    };
    recusados({{[&] { mnuEditarBandaAdicionar(s); }, TituloAdicionarBanda},
               {[&] { mnuEditarBandaInserir(s); }, TituloInserirBanda},
               {[&] { mnuEditarBandaDuplicar(s); }, TituloDuplicarBanda},
               {[&] { mnuEditarColarBanda(s); }, TituloColar},
               {[&] { magico(100, d.banda(MaximoBandas).Topo + 60); }, TituloAdicionarBanda}},
              QStringLiteral("O layout já tem o máximo de 32767 bandas!"));

    d.banda(1).Itens.insert(1, MaximoItens - 1, d.banda(2).Itens[0]);
    d.ReposicionarItem(1);
    recusados({{[&] { mnuEditarItemAdicionar(s); }, TituloAdicionarItem},
               {[&] { mnuEditarItemInserir(s); }, TituloInserirItem},
               {[&] { mnuEditarItemDuplicar(s); }, TituloDuplicarItem},
               {[&] { mnuEditarColarItem(s); }, TituloColar},
               {[&] { magico(64 + MaximoItens + 100, 20); }, TituloAdicionarItem}},
              QStringLiteral("A banda já tem o máximo de 32767 itens!"));
}
