#include "canvas/Cores.h"
#include "editing/ComandosPainel.h"
#include "editing/PainelPropriedades.h"
#include "editing/Paletas.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace lumeta;

namespace {

constexpr double PxPorMm = 3.7795275;

// Band 1: a text, a picture, a barcode; band 2: a text and a command.
class PainelTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        s.Ui = &ui;
        s.NovoLMT();
        s.Documento.banda(1).Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Nome"), 0, 80),
                                      teste::NovoItem(TipoFigura, QStringLiteral("\"a.bmp\""), 0, 40),
                                      teste::NovoItem(TipoEAN13, QStringLiteral("789"), 0, 120)};
        s.Documento.Bandas.append(Banda());
        s.Documento.banda(2).Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Total"), 0, 64),
                                      teste::NovoItem(TipoComando, QStringLiteral("X"), 0, 64)};
        Selecionar(1, 1);
        s.ExibirBanda();
    }
    Item &item(int b, int i) { return s.Documento.banda(b).Itens[i - 1]; }
    void Selecionar(int b, int i, FaixaSelecao f = {})
    {
        s.BandaSelecionada = b;
        s.ItemSelecionado = i;
        s.Faixa = f;
    }
    // The range over both bands: every item of each.
    void FaixaDuasBandas() { Selecionar(1, 1, {true, 1, 2, 1, 2}); }
    // Which of the given check boxes (1-based, as the panel numbers them) show.
    static QString Visiveis(const EstadoPainel &e, std::initializer_list<int> caixas = {5, 6, 7, 8, 10})
    {
        QString r;
        for (int c : caixas)
            r += e.caixas[c - 1].visivel ? u'1' : u'0';
        return r;
    }
    // One position of the flags of every item of band 1.
    QString Posicao(int p) const
    {
        QString r;
        for (const Item &it : s.Documento.banda(1).Itens)
            r += it.Atributos.at(p);
        return r;
    }
    teste::ConfigTemporaria config;
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
};

}  // namespace

TEST_F(PainelTest, ValidarMostraOItemNaUnidadeEAAlturaAutomaticaESemItemDesabilita)
{
    s.DefinirUnidade(6);   // mm
    s.Documento.BandaRodape = 1;
    Banda &b = s.Documento.banda(1);
    b.Altura = 38;
    b.Deslocamento = 19;
    item(1, 1).Atributos = QStringLiteral("1000109010");
    item(1, 1).Linhas = QStringLiteral("0100010000");
    item(1, 1).Espessura = 3;
    EstadoPainel e = CalcularPainel(s);
    EXPECT_TRUE(e.temItem && e.textoHabilitado && e.botoesItem && e.fonteHabilitado && e.alturaHabilitada);
    EXPECT_EQ(e.texto, QStringLiteral("Nome"));
    EXPECT_TRUE(e.rodape && !e.cabecalho && !e.autoVisivel);
    const double esperados[] = {80, 38, 19, 0};   // band 1's top shows as 0
    const double lidos[] = {e.largura, e.altura, e.deslocamento, e.topo};
    for (int k = 0; k < 4; ++k)
        EXPECT_NEAR(lidos[k], esperados[k] / PxPorMm, 1e-9) << k;
    // Position 7 of "9": justify and 270°.
    EXPECT_EQ(std::pair(e.espessura, e.angulo), std::pair(3, 3));
    QString marcadas;
    for (const EstadoCaixa &c : e.caixas)
        marcadas += c.marcada ? u'1' : u'0';
    EXPECT_EQ(marcadas.left(7), QStringLiteral("1000101"));
    EXPECT_EQ(e.linhas, (std::array<bool, 6>{false, true, false, false, false, true}));

    b.Altura = -38;
    e = CalcularPainel(s);
    EXPECT_TRUE(e.autoVisivel && !e.alturaHabilitada);
    EXPECT_NEAR(e.altura, 38 / PxPorMm, 1e-9);
    Selecionar(2, 1);
    EXPECT_NEAR(CalcularPainel(s).topo, (s.Documento.banda(2).Topo - 16) / PxPorMm, 1e-9);

    // Without an item everything is off and the colours show none.
    item(2, 1).CorFundo = 3;
    Selecionar(2, 0);
    e = CalcularPainel(s);
    EXPECT_FALSE(e.temItem || e.cabecalhoHabilitado || e.rodapeHabilitado || e.textoHabilitado || e.botoesItem);
    EXPECT_EQ(std::tuple(e.texto, e.legendaCor, e.corFundo), std::tuple(QString(), QStringLiteral("Cor do item:"), -1));
}

TEST_F(PainelTest, ExibirTipoPorTipoDeItem)
{
    // Picture: no angle, even one stored. (With a range the button is the
    // font's: the window's panel test.)
    Selecionar(1, 2);
    item(1, 2).Atributos[6] = u'4';
    EstadoPainel e = CalcularPainel(s);
    EXPECT_EQ(std::tuple(e.tipo, e.anguloHabilitado, e.angulo), std::tuple(1, false, 0));
    EXPECT_EQ(e.legendaFonte, QStringLiteral("&Figura"));
    // Linear barcode, zoom 3: boxes 5 and 6 hidden, 7, 8 and 10 shown.
    Selecionar(1, 3);
    item(1, 3).Atributos[8] = u'3';
    e = CalcularPainel(s);
    EXPECT_EQ(std::pair(e.tipo, e.tamanho), std::pair(3, 2));
    EXPECT_TRUE(e.anguloHabilitado && e.tamanhoVisivel && e.linhasVisivel);
    EXPECT_EQ(Visiveis(e), QStringLiteral("00111"));
    // Graph bar: its colour is the bar's.
    item(1, 3).Tipo = TipoBarraGrafico;
    e = CalcularPainel(s);
    EXPECT_FALSE(e.anguloHabilitado || e.linhasVisivel || e.tamanhoVisivel);
    EXPECT_EQ(e.legendaCor, QStringLiteral("Cor da barra:"));
}

TEST_F(PainelTest, CaixasAnguloZoomEEspessuraSobreAFaixa)
{
    item(1, 1).Atributos = QStringLiteral("0000108010");
    MarcarAtributo(s, 7, true);
    EXPECT_EQ(item(1, 1).Atributos, QStringLiteral("0000109010"));
    MarcarAtributo(s, 7, false);
    MarcarAtributo(s, 2, true);
    EXPECT_EQ(item(1, 1).Atributos, QStringLiteral("0100108010"));

    // The range of band 1 holds a picture: the angle spares it.
    s.Faixa = {true, 1, 1, 1, 3};
    item(1, 1).Atributos[6] = u'1';
    DefinirAngulo(s, 2);
    EXPECT_EQ(Posicao(6), QStringLiteral("504"));
    DefinirZoom(s, 3);
    EXPECT_EQ(Posicao(8), QStringLiteral("114"));

    // The thickness stays within 1..64, and only inside the range.
    DefinirEspessura(s, 0);
    EXPECT_EQ(item(1, 2).Espessura, 1);
    DefinirEspessura(s, 100);
    EXPECT_EQ(std::tuple(item(1, 1).Espessura, item(1, 3).Espessura, item(2, 1).Espessura), std::tuple(64, 64, 1));
}

TEST_F(PainelTest, LarguraAlturaEDeslocamentoEmMilimetros)
{
    s.DefinirUnidade(6);
    FaixaDuasBandas();
    ConfirmarLargura(s, 0.1);   // below 1 counts as 1 mm, in every item of the range
    EXPECT_EQ(std::tuple(item(1, 1).Largura, item(1, 3).Largura, item(2, 2).Largura), std::tuple(4, 4, 4));

    s.Documento.banda(2).Altura = 0;
    ConfirmarAltura(s, 5);
    EXPECT_EQ(std::pair(s.Documento.banda(1).Altura, s.Documento.banda(2).Altura), std::pair(19, 19));

    Selecionar(2, 1);
    EXPECT_TRUE(ConfirmarDeslocamento(s, 2));
    EXPECT_EQ(s.Documento.banda(2).Deslocamento, 8);
    EXPECT_FALSE(ConfirmarDeslocamento(s, 2.1));   // 7.9 rounds to the same pixels
}

TEST_F(PainelTest, CabecalhoERodapeSeExcluemEORodapeDesligaAQuebraFinal)
{
    Selecionar(2, 1);
    MarcarCabecalho(s, true);
    EXPECT_EQ(s.Documento.BandaCabecalho, 2);
    ASSERT_TRUE(s.AlternarQuebraPaginaFinal());
    const QString msg = MarcarRodape(s, true);
    EXPECT_EQ(msg, QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!\n\n"
                                  "A quebra de página será removida do final da página."));
    EXPECT_EQ(std::pair(s.Documento.BandaRodape, s.Documento.BandaCabecalho), std::pair(2, 0));
    EXPECT_FALSE(s.TextoResultado.contains(QStringLiteral("QP")));   // at once, as the menu does
    Selecionar(1, 1);
    MarcarCabecalho(s, true);
    EXPECT_EQ(s.Documento.BandaRodape, 2);
    MarcarCabecalho(s, false);
    EXPECT_EQ(s.Documento.BandaCabecalho, 0);
}

TEST_F(PainelTest, CoresBasicasEPaletaExtendida)
{
    const auto cores = [&] {
        const Item &it = item(1, 1);
        return std::tuple(int(it.CorTexto), int(it.CorFundo), int(it.CorLinha));
    };
    CliqueCores(s, 11, true);
    EXPECT_EQ(item(1, 1).CorTexto, 1);
    CliqueCores(s, 10, true);
    CliqueCores(s, 16 * 11 + 3, false);
    CliqueCores(s, 16 * 11 + 3, true);   // no text colour is transparent
    EXPECT_EQ(cores(), std::tuple(0, int(CorTransparente), 0));
    CliqueCoresLinhas(s, 500, true);
    CliqueCoresLinhas(s, 22, false);
    EXPECT_EQ(cores(), std::tuple(0, 2, 15));

    EXPECT_EQ(NumeroPaletaExtendida(500, 500), 79);
    // A basic colour drops the macro of its letter only.
    item(1, 1).Texto = QStringLiteral("<%_T,1,2,3_%><%_F,4,5,6_%>Nome");
    CliquePaletaExtendida(s, AlvoPaleta::Linha, 20, 0, true);
    CliquePaletaExtendida(s, AlvoPaleta::Item, 0, 16, true);
    EXPECT_EQ(cores(), std::tuple(24, 2, 17));
    EXPECT_EQ(item(1, 1).Texto, QStringLiteral("<%_F,4,5,6_%>Nome"));
    CliquePaletaExtendida(s, AlvoPaleta::Linha, 0, 0, false);
    EXPECT_EQ(std::pair(int(item(1, 1).CorFundo), item(1, 1).Texto), std::pair(16, QStringLiteral("Nome")));
}

TEST_F(PainelTest, CorLivreSoNosItensDeTextoDaFaixa)
{
    FaixaDuasBandas();
    ui.cores = {0x0000FF, 0x102030, std::nullopt};
    EXPECT_TRUE(CorLivre(s, u'F'));
    EXPECT_EQ(item(1, 1).Texto, QStringLiteral("<%_F,255,0,0_%>Nome"));
    EXPECT_EQ(std::tuple(item(1, 2).Texto, item(2, 2).Texto), std::tuple(QStringLiteral("\"a.bmp\""), QStringLiteral("X")));
    EXPECT_EQ(std::pair(item(1, 1).CorTexto, item(1, 2).CorTexto), std::pair(uint8_t(72), uint8_t(0)));
    // Again: one background macro, the latest; a cancelled dialog changes nothing.
    EXPECT_TRUE(CorLivre(s, u'F'));
    EXPECT_FALSE(CorLivre(s, u'T'));
    EXPECT_EQ(item(2, 1).Texto, QStringLiteral("<%_F,48,32,16_%>Total"));
    AplicarCorLivre(s, u'T', 0x00FF00);
    EXPECT_EQ(item(2, 1).Texto, QStringLiteral("<%_T,0,255,0_%><%_F,48,32,16_%>Total"));
    EXPECT_EQ(item(2, 1).CorTexto, 16);
}

TEST_F(PainelTest, TextoFonteFiguraEMacros)
{
    FaixaDuasBandas();
    ConfirmarTexto(s, QStringLiteral("Igual"));
    EXPECT_EQ(item(2, 2).Texto, QStringLiteral("Igual"));

    EXPECT_EQ(AcaoFonte(s), AcaoBotaoFonte::Fonte);   // a range always opens the font dialog
    ui.fontes = {FonteEscolhida{QStringLiteral(" "), 12}, FonteEscolhida{QStringLiteral("Courier New"), 11.5, true}};
    s.Config.FontesImpressora = true;
    EXPECT_FALSE(AlterarFonte(s));
    s.Config.FontesImpressora = false;
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, MensagemFonteInvalida);
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Fonte"));
    EXPECT_EQ(item(1, 1).Fonte.Nome, QStringLiteral("Arial"));
    EXPECT_TRUE(AlterarFonte(s));
    EXPECT_EQ(item(2, 2).Fonte.Nome, QStringLiteral("Courier New"));
    EXPECT_EQ(item(2, 2).Fonte.Tamanho, 12);
    EXPECT_TRUE(item(1, 3).Fonte.Negrito);
    EXPECT_EQ(ui.fontesSoImpressao, (std::vector<bool>{true, false}));

    Selecionar(1, 2);
    EXPECT_EQ(AcaoFonte(s), AcaoBotaoFonte::Figura);
    ui.arquivos = {QString(), QStringLiteral("/img/logo.gif")};
    EXPECT_TRUE(AbrirFigura(s).isEmpty());
    EXPECT_EQ(item(1, 2).Texto, QStringLiteral("Igual"));
    EXPECT_EQ(AbrirFigura(s), QStringLiteral("\"/img/logo.gif\""));
    EXPECT_EQ(item(1, 2).Texto, QStringLiteral("\"/img/logo.gif\""));
    EXPECT_EQ(ui.dialogos[0].titulo, QStringLiteral("Abrir Figura..."));
    EXPECT_TRUE(ui.dialogos[0].filtro.endsWith(QStringLiteral("|GIF (*.gif)|*.gif|JPEG (*.jpg)|*.jpg")));

    ui.entradas = {QStringLiteral(" 123"), QString(), std::nullopt};
    EXPECT_EQ(TextoMacro(s, 12), QStringLiteral("(%_12_%)"));
    EXPECT_TRUE(TextoMacro(s, 12).isEmpty());
    EXPECT_TRUE(TextoMacro(s, 12).isEmpty());
}
