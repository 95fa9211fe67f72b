// The command text line by line. The rich layout of the COBOL proof is pinned
// whole in CobolFimAFimTest; here, what that layout does not reach.
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
    return l;
}

}  // namespace

TEST(TextoComandos, TipoDeEmailEMargens)
{
    LayoutDocumento d;
    d.QualidadeJPG = 75;
    for (auto [tipo, linha] : {std::pair{1, "QJ 75"}, {2, "EE"}, {3, "EG"}, {4, "EP 75"}, {5, "EW"}, {0, "QJ 75"}, {9, "QJ 75"}}) {
        d.TipoEmail = int16_t(tipo);
        EXPECT_EQ(Linhas(d), QStringList{QString::fromLatin1(linha)}) << tipo;
    }
    // Quoted margins are whole millimetres, half away from zero; no digits gives 0.
    for (auto [margem, valor] : {std::pair{"\"2.5\"", "003"}, {"\"-2.5\"", "-003"}, {"\"abc\"", "000"},
                                 {"\"1234\"", "1234"}, {"\" 15mm\"", "015"}})
        EXPECT_EQ(ValorMargem(QString::fromLatin1(margem)), QString::fromLatin1(valor)) << margem;
}

TEST(TextoComandos, BandasSemDeslocamentoNaPrimeiraAlturasForaDoComumESemBandas)
{
    LayoutDocumento d;
    Banda b;
    b.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("a"), 0, 60)};
    b.Deslocamento = 5;  // band 1 never writes RT
    b.Altura = -33;      // automatic height
    d.Bandas.append(b);
    b.Deslocamento = 12;
    b.Altura = 123456;   // too wide: every digit kept
    d.Bandas.append(b);
    d.BandaCabecalho = 1;
    d.BandaRodape = 1;   // both header end and footer start: the header wins
    EXPECT_EQ(Linhas(d), (QStringList{"QJ 92", "F 100000Arial", "T 009900002000560000100010a", "RH 00000", "FC",
                                      "T 009900002000560000100010a", "RT 00012", "RH 123456", "QL"}));
    d.Bandas.clear();
    EXPECT_EQ(Linhas(d), QStringList{"QJ 92"});
    d.QuebraPaginaFinal = true;
    EXPECT_EQ(Linhas(d), (QStringList{"QJ 92", "QP"}));
}

TEST(TextoComandos, ItensEstreitosVaziosDesconhecidosEFonteQueSoMudaNaCaixa)
{
    LayoutDocumento d;
    Banda b;
    const auto item = teste::NovoItem;
    b.Itens = {item(TipoCode39, QStringLiteral("\"1\""), 0, 4),          // too narrow: no line
               item(TipoPDF417, QStringLiteral("\"a\"\"b\""), 4, 80),
               item(TipoTexto, QString(), 84, 100),                      // no text: no line
               item(TipoTexto, QStringLiteral("estreito"), 184, 4),       // too narrow for text: its fill only
               item(77, QStringLiteral("tipo desconhecido"), 188, 20)};
    b.Itens[3].CorFundo = 3;
    b.Itens[4].Fonte.Nome = QStringLiteral("arial");  // names compare case-sensitively
    d.Bandas.append(b);
    EXPECT_EQ(Linhas(d), (QStringList{"QJ 92", "F 100000Arial", "B0009900004000800000100010ab", "L 00030018400004000000000001",
                                      "F 100000arial", "T 009900190000160000100010tipo desconhecido", "RH 00018", "QL"}));
}

TEST(TextoComandos, ListaDeComandosUtilizadosSemRepetirIgnorandoCaixa)
{
    LayoutDocumento d;
    Banda b;
    for (const char *t : {"WS-NOME", "WS-DATA", "ws-nome", "WS-TOTAL"})
        b.Itens.append(teste::NovoItem(TipoComando, QString::fromLatin1(t), 0, 10));
    b.Itens.insert(1, teste::NovoItem(TipoTexto, QStringLiteral("WS-TEXTO"), 0, 10));
    d.Bandas = {b, b};
    EXPECT_EQ(ListaComandosUtilizados(d), QStringLiteral("WS-NOME\r\nWS-DATA\r\nWS-TOTAL\r\n"));
    EXPECT_EQ(ListaComandosUtilizados(LayoutDocumento()), QString());
}

TEST(ConcatenarString, UmPedacoMaiorQueOPassoCabeInteiro)
{
    clsConcatenarString s;
    s.setBufferIncrement(4);
    s.Add(QStringLiteral("abcdef"));
    EXPECT_GE(s.Capacidade(), 6);
    s.Add(QStringLiteral("ghij"));
    EXPECT_EQ(s.ResultString(), QStringLiteral("abcdefghij"));
}
