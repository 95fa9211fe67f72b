#include "editing/SessaoEdicao.h"
#include "output/TextoComandos.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace lumeta;

namespace {

QStringList Linhas(const LayoutDocumento &d)
{
    const QString t = GerarTextoComandos(d);
    EXPECT_TRUE(t.isEmpty() || t.endsWith(QStringLiteral("\r\n")));
    QStringList l = t.split(QStringLiteral("\r\n"));
    l.removeLast();
    for (const QString &x : l)
        EXPECT_FALSE(x.contains(QLatin1Char('\n')) || x.contains(QLatin1Char('\r'))) << x.toStdString();
    return l;
}

LayoutDocumento ExemploTotal()
{
    SessaoEdicao s;
    Item &it = s.Documento.banda(1).Itens[0];
    it.Texto = QStringLiteral("Total");
    it.Largura = 200;
    return s.Documento;
}

}  // namespace

TEST(TextoComandos, ExemploDeUmaBandaComUmItemDaAsCincoLinhas)
{
    LayoutDocumento d = ExemploTotal();
    EXPECT_EQ(GerarTextoComandos(d), QStringLiteral("QJ 92\r\nF 100000Arial\r\nT 009900002001960000100010Total\r\n"
                                                    "RH 00018\r\nQL\r\n"));
    d.banda(1).Itens[0].CorFundo = 7;
    EXPECT_EQ(Linhas(d), (QStringList{"QJ 92", "F 100000Arial", "L 00070000000200000000000001",
                                      "T 009900002001960000100010Total", "RH 00018", "QL"}));
    d.banda(1).Itens[0].CorFundo = 99;
    d.banda(1).Itens[0].Linhas = QStringLiteral("0100000000");
    d.banda(1).Itens[0].CorLinha = 12;
    d.banda(1).Itens[0].Espessura = 3;
    EXPECT_EQ(Linhas(d)[2], QStringLiteral("L 12990000000200010000000003"));
}

TEST(TextoComandos, LinhasDeOpcoesNaOrdemEComSeusValores)
{
    LayoutDocumento d = ExemploTotal();
    d.NomeImpressora = QStringLiteral("HP 1020");
    d.MargemSuperior = QStringLiteral("\"12\"");
    d.MargemEsquerda = QStringLiteral("WS-MARGEM");
    d.MargemInferior = QStringLiteral("\"7.5\"");
    d.TextoEmail = QStringLiteral("Prezado{ENTER}Segue");
    d.Paisagem = d.Imprimir = d.Visivel = d.TemCapa = d.EnviarEmail = true;
    d.QualidadeJPG = 75;
    const QStringList l = Linhas(d);
    EXPECT_EQ(l.mid(0, 11), (QStringList{"I HP 1020", "MS 012", "ME WS-MARGEM", "MI 008", "QJ 75",
                                         "ET Prezado{ENTER}Segue", "IP", "IR", "SV", "TC", "E "}));
    const std::pair<int, const char *> tipos[] = {{1, "QJ 75"}, {2, "EE"}, {3, "EG"}, {4, "EP 75"}, {5, "EW"},
                                                  {0, "QJ 75"}, {9, "QJ 75"}};
    for (auto [tipo, linha] : tipos) {
        d.TipoEmail = int16_t(tipo);
        EXPECT_EQ(Linhas(d)[4], QString::fromLatin1(linha)) << tipo;
    }
    // Quoted margins are whole millimetres, half away from zero; no digits gives 0.
    for (auto [margem, valor] : {std::pair{"\"2.5\"", "003"}, std::pair{"\"-2.5\"", "-003"}, std::pair{"\"abc\"", "000"},
                                 std::pair{"\"1234\"", "1234"}, std::pair{"\" 15mm\"", "015"}})
        EXPECT_EQ(ValorMargem(QString::fromLatin1(margem)), QString::fromLatin1(valor)) << margem;
}

TEST(TextoComandos, FonteEhEscritaSoQuandoMudaInclusiveEntreBandas)
{
    SessaoEdicao s;
    s.AddItem(1, false, 0);
    s.AddItem(1, false, 0);
    s.AddBanda(0, false, 0, 0);
    LayoutDocumento &d = s.Documento;
    d.banda(1).Itens[2].Fonte.Sublinhado = true;
    d.banda(2).Itens[0].Fonte.Sublinhado = true;
    for (int b = 1; b <= 2; ++b)
        d.ReposicionarItem(b);
    EXPECT_EQ(Linhas(d), (QStringList{"QJ 92", "F 100000Arial", "T 009900002000600000100010Texto 1",
                                      "T 009900066000600000100010Texto 2", "F 100010Arial",
                                      "T 009900130000600000100010Texto 3", "RH 00018", "QL",
                                      "T 009900002000600000100010Texto 1", "RH 00018", "QL"}));
    d.banda(2).Itens[0].Fonte.Nome = QStringLiteral("arial");  // names compare case-sensitively
    d.banda(2).Itens[0].Fonte.Tamanho = 8;
    d.banda(2).Itens[0].Fonte.Negrito = true;
    d.banda(2).Itens[0].Fonte.Italico = true;
    d.banda(2).Itens[0].Fonte.Tachado = true;
    EXPECT_EQ(Linhas(d)[8], QStringLiteral("F 081111arial"));
}

TEST(TextoComandos, BandasQuebrasCabecalhoRodapeEDeslocamento)
{
    SessaoEdicao s;
    for (int i = 0; i < 3; ++i)
        s.AddBanda(0, false, 0, 0);
    LayoutDocumento &d = s.Documento;
    d.banda(1).Deslocamento = 5;      // band 1 never writes RT
    d.banda(2).Deslocamento = 12;
    d.banda(3).Deslocamento = -12;
    d.banda(4).Altura = -33;          // automatic height
    d.banda(2).Altura = 123456;       // too wide: every digit kept
    d.BandaCabecalho = 2;
    d.BandaRodape = 3;
    d.QuebraPaginaAdd(3);
    d.QuebraPaginaFinal = true;
    const QStringList l = Linhas(d);
    const QStringList esperado{"QJ 92", "F 100000Arial", "T 009900002000600000100010Texto 1", "RH 00018", "QL",
                               "T 009900002000600000100010Texto 1", "RT 00012", "RH 123456", "FC",
                               "QP", "T 009900002000600000100010Texto 1", "RT -0012", "RH 00018", "RO",
                               "T 009900002000600000100010Texto 1", "RH 00000", "QL", "QP"};
    EXPECT_EQ(l, esperado);
    d.BandaRodape = 2;  // both header end and footer start: the header wins
    EXPECT_EQ(Linhas(d)[8], QStringLiteral("FC"));
    d.Bandas.clear();
    d.QuebraPaginaFinal = false;
    EXPECT_EQ(Linhas(d), QStringList{"QJ 92"});
    d.QuebraPaginaFinal = true;
    EXPECT_EQ(Linhas(d), (QStringList{"QJ 92", "QP"}));
}

TEST(TextoComandos, CadaTipoDeItemComSuasRegrasDeValorELargura)
{
    SessaoEdicao s;
    Banda &b = s.Documento.banda(1);
    auto novo = [&](uint8_t tipo, const QString &texto, int largura) { b.Itens.append(teste::NovoItem(tipo, texto, 0, largura)); };
    b.Itens.clear();
    novo(TipoFigura, QString(), 3);                         // pictures: always, even empty and narrow
    novo(TipoFigura, QStringLiteral("\"c:\\logo.bmp\""), 50);
    novo(TipoFigura, QStringLiteral("WS-FOTO"), 50);
    novo(TipoEAN13, QStringLiteral("\"789\""), 80);
    novo(TipoCode128B, QStringLiteral("CODIGO"), 80);
    novo(TipoPDF417, QStringLiteral("\"a\"\"b\""), 80);
    novo(TipoCode39, QStringLiteral("\"1\""), 4);            // too narrow: no line
    novo(TipoBarraGrafico, QStringLiteral("WS-VALOR"), 40);
    novo(TipoBarraGrafico, QStringLiteral("\"35\""), 40);
    novo(TipoComando, QStringLiteral("WS-LINHA"), 5);
    novo(TipoTexto, QStringLiteral("estreito"), 4);          // F/L lines only
    novo(TipoTexto, QString(), 100);
    novo(77, QStringLiteral("tipo desconhecido"), 20);
    b.Itens[9].CorTexto = 4;
    b.Itens[7].CorTexto = 2;
    b.Itens[7].CorFundo = 14;
    b.Itens[7].Linhas = QStringLiteral("1111110000");  // chart bars never write L
    b.Itens[10].CorFundo = 3;
    s.Documento.ReposicionarItem(1);
    const QStringList l = Linhas(s.Documento);
    const QStringList esperado{
        "QJ 92", "F 100000Arial",
        "G 009900000000030000100010", "G 009900003000500000100010c:\\logo.bmp", "G 009900053000500000100010",
        "Ba009900103000800000100010789", "Bi0099001830008000001000101234567890",
        "B0009900263000800000100010ab",
        "LG02140034700040000010001010", "LG00990038700040000010001035",
        "T 049900429000010000100010WS-LINHA",
        "L 00030043200004000000000001",
        "T 009900538000160000100010tipo desconhecido",
        "RH 00018", "QL"};
    EXPECT_EQ(l, esperado);
    EXPECT_EQ(LetraCodigoBarras(80), QLatin1Char('0'));
}

TEST(TextoComandos, ListaDeComandosUtilizadosSemRepetirIgnorandoCaixa)
{
    SessaoEdicao s;
    s.AddItem(1, false, 0);
    s.AddItem(1, false, 0);
    s.AddBanda(0, false, 0, 0);
    s.AddItem(2, false, 0);
    LayoutDocumento &d = s.Documento;
    const char *textos[] = {"WS-NOME", "WS-DATA", "ws-nome", "WS-TOTAL"};
    Item *itens[] = {&d.banda(1).Itens[0], &d.banda(1).Itens[2], &d.banda(2).Itens[0], &d.banda(2).Itens[1]};
    for (int i = 0; i < 4; ++i) {
        itens[i]->Tipo = TipoComando;
        itens[i]->Texto = QString::fromLatin1(textos[i]);
    }
    EXPECT_EQ(ListaComandosUtilizados(d), QStringLiteral("WS-NOME\r\nWS-DATA\r\nWS-TOTAL\r\n"));
    EXPECT_EQ(ListaComandosUtilizados(SessaoEdicao().Documento), QString());
}

TEST(ConcatenarString, CresceEmPassosEDevolveSoOTextoUsado)
{
    clsConcatenarString s;
    s.Add(QStringLiteral("abc"));
    EXPECT_EQ(s.Capacidade(), 64000);
    s.Clear();
    EXPECT_EQ(s.ResultString(), QString());
    EXPECT_EQ(s.Capacidade(), 0);

    // A piece longer than the step takes what it needs; exactly full also grows.
    s.setBufferIncrement(4);
    QList<int> capacidades;
    for (const char *pedaco : {"abcdef", "g", "hi", "j"}) {
        s.Add(QString::fromLatin1(pedaco));
        capacidades << s.Capacidade();
    }
    EXPECT_EQ(capacidades, (QList<int>{6, 10, 10, 14}));
    EXPECT_EQ(s.ResultString(), QStringLiteral("abcdefghij"));
}
