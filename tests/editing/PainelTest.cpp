#include "canvas/Cores.h"
#include "editing/ComandosPainel.h"
#include "editing/PainelPropriedades.h"
#include "editing/Paletas.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// Band 1: a text, a picture, a barcode; band 2: a text and a command.
class PainelTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config.path());
        s.Ui = &ui;
        s.NovoLMT();
        Banda &b1 = s.Documento.banda(1);
        b1.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Nome"), 0, 80),
                    teste::NovoItem(TipoFigura, QStringLiteral("\"a.bmp\""), 0, 40),
                    teste::NovoItem(TipoEAN13, QStringLiteral("789"), 0, 120)};
        Banda b2;
        b2.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Total"), 0, 64),
                    teste::NovoItem(TipoComando, QStringLiteral("X"), 0, 64)};
        s.Documento.Bandas.append(b2);
        s.BandaSelecionada = 1;
        s.ItemSelecionado = 1;
        s.ExibirBanda();
    }
    Item &item(int b, int i) { return s.Documento.banda(b).Itens[i - 1]; }
    void Selecionar(int b, int i)
    {
        s.BandaSelecionada = b;
        s.ItemSelecionado = i;
        s.Faixa = {};
    }
    // The range over both bands: every item of each.
    void FaixaDuasBandas()
    {
        Selecionar(1, 1);
        s.Faixa = {true, 1, 2, 1, 2};
    }
    QTemporaryDir config;
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
};

}  // namespace

TEST_F(PainelTest, SemItemTudoDesabilitado)
{
    item(1, 1).CorFundo = 3;
    s.ItemSelecionado = 0;
    const EstadoPainel e = CalcularPainel(s);
    EXPECT_FALSE(e.temItem);
    EXPECT_FALSE(e.cabecalhoHabilitado || e.cabecalho || e.rodapeHabilitado || e.rodape);
    EXPECT_TRUE(e.texto.isEmpty());
    EXPECT_FALSE(e.textoHabilitado || e.fonteHabilitado || e.camposHabilitados || e.botoesItem);
    EXPECT_FALSE(e.autoVisivel);
    EXPECT_FALSE(e.tipoHabilitado);
    EXPECT_FALSE(e.anguloHabilitado);
    EXPECT_EQ(e.angulo, 0);
    EXPECT_TRUE(e.linhasVisivel);
    EXPECT_EQ(e.legendaCor, QStringLiteral("Cor do item:"));
    EXPECT_FALSE(e.tamanhoVisivel);
    EXPECT_EQ(e.corFundo, -1);
    EXPECT_EQ(e.selecionado, QStringLiteral("(1)"));
}

TEST_F(PainelTest, ValidarMostraOItemNaUnidadeEAAlturaAutomatica)
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
    EXPECT_TRUE(e.temItem && e.textoHabilitado && e.botoesItem && e.fonteHabilitado);
    EXPECT_EQ(e.texto, QStringLiteral("Nome"));
    EXPECT_FALSE(e.cabecalho);
    EXPECT_TRUE(e.rodape);
    EXPECT_NEAR(e.largura, 80 / 3.7795275, 1e-9);
    EXPECT_NEAR(e.altura, 38 / 3.7795275, 1e-9);
    EXPECT_NEAR(e.deslocamento, 19 / 3.7795275, 1e-9);
    EXPECT_DOUBLE_EQ(e.topo, 0);   // band 1's top shows as 0
    EXPECT_TRUE(e.alturaHabilitada);
    EXPECT_FALSE(e.autoVisivel);
    EXPECT_EQ(e.espessura, 3);
    // Position 7 of "9": justify and 270°.
    EXPECT_TRUE(e.caixas[6].marcada);
    EXPECT_EQ(e.angulo, 3);
    EXPECT_TRUE(e.caixas[0].marcada);
    EXPECT_FALSE(e.caixas[1].marcada);
    EXPECT_TRUE(e.caixas[4].marcada);
    EXPECT_EQ(e.linhas, (std::array<bool, 6>{false, true, false, false, false, true}));
    EXPECT_EQ(e.selecionado, QStringLiteral("(1, 1)"));

    b.Altura = -38;
    e = CalcularPainel(s);
    EXPECT_FALSE(e.alturaHabilitada);
    EXPECT_TRUE(e.autoVisivel);
    EXPECT_NEAR(e.altura, 38 / 3.7795275, 1e-9);
    Selecionar(2, 1);
    EXPECT_NEAR(CalcularPainel(s).topo, (s.Documento.banda(2).Topo - 16) / 3.7795275, 1e-9);
}

TEST_F(PainelTest, ExibirTipoPorTipoDeItem)
{
    // Text.
    EstadoPainel e = CalcularPainel(s);
    EXPECT_EQ(e.tipo, 0);
    EXPECT_TRUE(e.anguloHabilitado);
    EXPECT_EQ(e.legendaFonte, QStringLiteral("&Fonte"));
    EXPECT_TRUE(e.caixas[4].visivel && e.caixas[5].visivel && e.caixas[7].visivel && e.caixas[6].visivel);
    EXPECT_EQ(e.caixas[6].legenda, QStringLiteral("&Justificar"));
    EXPECT_FALSE(e.caixas[9].visivel);
    EXPECT_EQ(e.caixas[9].legenda, QStringLiteral("Cai&xa de texto"));
    EXPECT_FALSE(e.tamanhoVisivel);
    // Command.
    Selecionar(2, 2);
    e = CalcularPainel(s);
    EXPECT_EQ(e.tipo, 2);
    EXPECT_EQ(e.dicaFonte, QStringLiteral("Alterar a fonte do item selecionado"));
    // Picture.
    Selecionar(1, 2);
    item(1, 2).Atributos[6] = u'4';
    e = CalcularPainel(s);
    EXPECT_EQ(e.tipo, 1);
    EXPECT_FALSE(e.anguloHabilitado);
    EXPECT_EQ(e.angulo, 0);
    EXPECT_EQ(e.legendaFonte, QStringLiteral("&Figura"));
    EXPECT_EQ(e.dicaFonte, QStringLiteral("Alterar a figura do item selecionado"));
    EXPECT_FALSE(e.caixas[4].visivel || e.caixas[5].visivel || e.caixas[6].visivel || e.caixas[7].visivel);
    EXPECT_TRUE(e.caixas[9].visivel);
    EXPECT_EQ(e.caixas[9].dica, QStringLiteral("A figura não ultrapassa os limites do item"));
    // Linear barcode, zoom 3.
    Selecionar(1, 3);
    item(1, 3).Atributos[8] = u'3';
    e = CalcularPainel(s);
    EXPECT_EQ(e.tipo, 3);
    EXPECT_TRUE(e.anguloHabilitado);
    EXPECT_EQ(e.legendaFonte, QStringLiteral("A&lterar"));
    EXPECT_EQ(e.dicaFonte, QStringLiteral("Alterar o código de barras do item selecionado"));
    EXPECT_FALSE(e.caixas[4].visivel || e.caixas[5].visivel);
    EXPECT_TRUE(e.caixas[6].visivel && e.caixas[7].visivel && e.caixas[9].visivel);
    EXPECT_EQ(e.caixas[6].legenda, QStringLiteral("&Somente as barras"));
    EXPECT_EQ(e.caixas[9].dica, QStringLiteral("O código de barras fica com a altura da banda"));
    EXPECT_TRUE(e.tamanhoVisivel);
    EXPECT_EQ(e.tamanho, 2);
    EXPECT_TRUE(e.linhasVisivel);
    // PDF417: 7, 8 and 10 hidden again.
    item(1, 3).Tipo = TipoPDF417;
    e = CalcularPainel(s);
    EXPECT_FALSE(e.caixas[6].visivel || e.caixas[7].visivel || e.caixas[9].visivel);
    EXPECT_TRUE(e.tamanhoVisivel);
    // Graph bar.
    item(1, 3).Tipo = TipoBarraGrafico;
    e = CalcularPainel(s);
    EXPECT_EQ(e.tipo, 3);
    EXPECT_FALSE(e.anguloHabilitado);
    EXPECT_FALSE(e.linhasVisivel);
    EXPECT_EQ(e.legendaCor, QStringLiteral("Cor da barra:"));
    EXPECT_FALSE(e.caixas[6].visivel);
    EXPECT_TRUE(e.caixas[7].visivel && e.caixas[9].visivel);
    EXPECT_FALSE(e.tamanhoVisivel);
    EXPECT_EQ(e.legendaFonte, QStringLiteral("A&lterar"));
}

TEST_F(PainelTest, CaixasAnguloEZoomSobreAFaixa)
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
    EXPECT_EQ(item(1, 1).Atributos.at(6), u'5');
    EXPECT_EQ(item(1, 2).Atributos.at(6), u'0');
    EXPECT_EQ(item(1, 3).Atributos.at(6), u'4');
    DefinirZoom(s, 3);
    EXPECT_EQ(item(1, 3).Atributos.at(8), u'4');
    EXPECT_EQ(item(1, 1).Atributos.at(8), u'1');
    EXPECT_EQ(item(1, 2).Atributos.at(8), u'1');

    DefinirEspessura(s, 0);
    EXPECT_EQ(item(1, 2).Espessura, 1);
    DefinirEspessura(s, 100);
    EXPECT_EQ(item(1, 1).Espessura, 64);
    EXPECT_EQ(item(1, 3).Espessura, 64);
    EXPECT_EQ(item(2, 1).Espessura, 1);
}

TEST_F(PainelTest, LarguraAlturaEDeslocamentoEmMilimetros)
{
    s.DefinirUnidade(6);
    FaixaDuasBandas();
    ConfirmarLargura(s, 10);   // 37.795 px
    for (int b = 1; b <= 2; ++b)
        for (const Item &it : s.Documento.banda(b).Itens)
            EXPECT_EQ(it.Largura, 38);
    EXPECT_EQ(item(1, 2).Esquerda, 38);
    EXPECT_EQ(item(2, 2).Esquerda, 38);
    ConfirmarLargura(s, 0.1);   // below 1 counts as 1 mm
    EXPECT_EQ(item(2, 1).Largura, 4);

    s.Documento.banda(2).Altura = 0;
    ConfirmarAltura(s, 5);
    EXPECT_EQ(s.Documento.banda(1).Altura, 19);
    EXPECT_EQ(s.Documento.banda(2).Altura, 19);

    Selecionar(2, 1);
    EXPECT_TRUE(ConfirmarDeslocamento(s, 2));
    EXPECT_EQ(s.Documento.banda(2).Deslocamento, 8);
    EXPECT_FALSE(ConfirmarDeslocamento(s, 2.1));   // 7.9 rounds to the same pixels
}

TEST_F(PainelTest, CabecalhoERodapeComQuebraFinal)
{
    Selecionar(2, 1);
    MarcarCabecalho(s, true);
    EXPECT_EQ(s.Documento.BandaCabecalho, 2);
    s.Documento.QuebraPaginaFinal = true;
    const QString msg = MarcarRodape(s, true);
    EXPECT_EQ(s.Documento.BandaRodape, 2);
    EXPECT_EQ(s.Documento.BandaCabecalho, 0);
    EXPECT_FALSE(s.Documento.QuebraPaginaFinal);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, msg);
    EXPECT_TRUE(msg.startsWith(QStringLiteral("Não é possível finalizar com quebra de página")));
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Rodapé"));
    Selecionar(1, 1);
    MarcarCabecalho(s, true);
    EXPECT_EQ(s.Documento.BandaRodape, 2);
    MarcarCabecalho(s, false);
    EXPECT_EQ(s.Documento.BandaCabecalho, 0);
}

TEST_F(PainelTest, CoresBasicasEPaletaExtendida)
{
    CliqueCores(s, 11, true);
    EXPECT_EQ(item(1, 1).CorTexto, 1);
    CliqueCores(s, 10, true);
    EXPECT_EQ(item(1, 1).CorTexto, 0);
    CliqueCores(s, 16 * 11 + 3, false);
    EXPECT_EQ(item(1, 1).CorFundo, CorTransparente);
    CliqueCores(s, 16 * 11 + 3, true);
    EXPECT_EQ(item(1, 1).CorTexto, 0);
    CliqueCoresLinhas(s, 500, true);
    EXPECT_EQ(item(1, 1).CorLinha, 15);
    CliqueCoresLinhas(s, 22, false);
    EXPECT_EQ(item(1, 1).CorFundo, 2);

    EXPECT_EQ(NumeroPaletaExtendida(0, 0), 16);
    EXPECT_EQ(NumeroPaletaExtendida(127, 127), 79);
    EXPECT_EQ(NumeroPaletaExtendida(500, 500), 79);
    EXPECT_EQ(NumeroPaletaExtendida(16, 32), 33);
    EXPECT_EQ(NovaCor(99), 0);
    // A basic colour drops the macro of its letter only.
    item(1, 1).Texto = QStringLiteral("<%_T,1,2,3_%><%_F,4,5,6_%>Nome");
    CliquePaletaExtendida(s, AlvoPaleta::Linha, 20, 0, true);
    EXPECT_EQ(item(1, 1).CorLinha, 17);
    CliquePaletaExtendida(s, AlvoPaleta::Item, 0, 16, true);
    EXPECT_EQ(item(1, 1).CorTexto, 24);
    EXPECT_EQ(item(1, 1).Texto, QStringLiteral("<%_F,4,5,6_%>Nome"));
    CliquePaletaExtendida(s, AlvoPaleta::Linha, 0, 0, false);
    EXPECT_EQ(item(1, 1).CorFundo, 16);
    EXPECT_EQ(item(1, 1).Texto, QStringLiteral("Nome"));
}

TEST_F(PainelTest, CorLivreSoNosItensDeTextoDaFaixa)
{
    FaixaDuasBandas();
    ui.cores = {0x0000FF, 0x102030, std::nullopt};
    EXPECT_TRUE(CorLivre(s, u'F'));
    EXPECT_EQ(item(1, 1).Texto, QStringLiteral("<%_F,255,0,0_%>Nome"));
    EXPECT_EQ(item(1, 1).CorTexto, 72);
    EXPECT_EQ(item(2, 1).Texto, QStringLiteral("<%_F,255,0,0_%>Total"));
    EXPECT_EQ(item(1, 2).Texto, QStringLiteral("\"a.bmp\""));
    EXPECT_EQ(item(1, 3).Texto, QStringLiteral("789"));
    EXPECT_EQ(item(2, 2).Texto, QStringLiteral("X"));
    EXPECT_EQ(item(1, 2).CorTexto, 0);
    // Again: one background macro, the latest.
    EXPECT_TRUE(CorLivre(s, u'F'));
    EXPECT_EQ(item(1, 1).Texto, QStringLiteral("<%_F,48,32,16_%>Nome"));
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
    EXPECT_FALSE(AlterarFonte(s));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, MensagemFonteInvalida);
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Fonte"));
    EXPECT_EQ(item(1, 1).Fonte.Nome, QStringLiteral("Arial"));
    EXPECT_TRUE(AlterarFonte(s));
    EXPECT_EQ(item(2, 2).Fonte.Nome, QStringLiteral("Courier New"));
    EXPECT_EQ(item(2, 2).Fonte.Tamanho, 12);
    EXPECT_TRUE(item(1, 3).Fonte.Negrito);

    Selecionar(1, 2);
    EXPECT_EQ(AcaoFonte(s), AcaoBotaoFonte::Figura);
    ui.arquivos = {QString(), QStringLiteral("/img/logo.gif")};
    EXPECT_TRUE(AbrirFigura(s).isEmpty());
    EXPECT_EQ(item(1, 2).Texto, QStringLiteral("Igual"));
    EXPECT_EQ(AbrirFigura(s), QStringLiteral("\"/img/logo.gif\""));
    EXPECT_EQ(item(1, 2).Texto, QStringLiteral("\"/img/logo.gif\""));
    EXPECT_EQ(ui.dialogos[0].titulo, QStringLiteral("Abrir Figura..."));
    EXPECT_TRUE(ui.dialogos[0].filtro.endsWith(QStringLiteral("|GIF (*.gif)|*.gif|JPEG (*.jpg)|*.jpg")));
    Selecionar(1, 3);
    EXPECT_EQ(AcaoFonte(s), AcaoBotaoFonte::CodigoBarras);

    EXPECT_EQ(TextoMacro(s, 0), QStringLiteral("(%_pag_%)"));
    ui.entradas = {QStringLiteral(" 123"), QString(), std::nullopt};
    EXPECT_EQ(TextoMacro(s, 12), QStringLiteral("(%_12_%)"));
    EXPECT_TRUE(TextoMacro(s, 12).isEmpty());
    EXPECT_TRUE(TextoMacro(s, 12).isEmpty());
}
