#include "controls/RegrasNumero.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace lumeta;

namespace {

class RegrasNumeroTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        anterior = QLocale();
        QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    }
    void TearDown() override { QLocale::setDefault(anterior); }

    // Types every character of `teclas` with the caret at the end, after the
    // field took the focus with the whole text selected and replaced.
    static EfeitoTecla Digitar(RegrasNumero &r, const QString &teclas)
    {
        EfeitoTecla ultimo = EfeitoTecla::Consumida;
        for (QChar k : teclas)
            ultimo = r.Tecla(k);
        return ultimo;
    }
    static void Cursor(RegrasNumero &r, int pos, int tamanho = 0)
    {
        r.InicioSelecao = pos;
        r.TamanhoSelecao = tamanho;
    }
    QLocale anterior;
};

}  // namespace

TEST_F(RegrasNumeroTest, LimitesDeDigitosDoFormato)
{
    RegrasNumero r;   // 6.6
    r.GanharFoco();
    EXPECT_EQ(Digitar(r, QStringLiteral("123456")), EfeitoTecla::Consumida);
    EXPECT_EQ(r.Tecla(u'7'), EfeitoTecla::Recusada);
    EXPECT_EQ(r.Texto, QStringLiteral("123456"));
    EXPECT_EQ(r.Valor(), 123456);

    r.Texto = QStringLiteral("0");
    Cursor(r, 1);
    r.TextoAlterado();
    Digitar(r, QStringLiteral(",123456"));
    EXPECT_EQ(r.Texto, QStringLiteral("0,123456"));
    EXPECT_EQ(r.Tecla(u'7'), EfeitoTecla::Recusada);
    EXPECT_DOUBLE_EQ(r.Valor(), 0.123456);
    // A digit with a selection replaces it even at the limit.
    Cursor(r, 2, 6);
    EXPECT_EQ(r.Tecla(u'9'), EfeitoTecla::Consumida);
    EXPECT_EQ(r.Texto, QStringLiteral("0,9"));
}

TEST_F(RegrasNumeroTest, FormatoForaDaFaixaEIgnoradoEArredondado)
{
    RegrasNumero r;
    // Format, accepted, integer and decimal digits after it (6.6 by default).
    const std::tuple<double, bool, int, int> casos[] = {
        {13, false, 6, 6}, {0.5, false, 6, 6}, {3.25, true, 3, 3}, {12.9, true, 12, 9}, {4.0, true, 4, 0}};
    for (const auto &[formato, aceito, inteiros, decimais] : casos) {
        EXPECT_EQ(r.DefinirFormato(formato), aceito) << formato;
        EXPECT_EQ(r.MaxInteiros(), inteiros) << formato;
        EXPECT_EQ(r.MaxDecimais(), decimais) << formato;
    }
    // Without decimals the separator key does nothing.
    r.Texto = QStringLiteral("12");
    Cursor(r, 1);
    EXPECT_EQ(r.Tecla(u','), EfeitoTecla::Consumida);
    EXPECT_EQ(r.Texto, QStringLiteral("12"));
}

TEST_F(RegrasNumeroTest, SeparadorVaiParaOCursor)
{
    RegrasNumero r;
    r.Texto = QStringLiteral("1234");
    Cursor(r, 2);
    EXPECT_EQ(r.Tecla(u'.'), EfeitoTecla::Consumida);
    EXPECT_EQ(r.Texto, QStringLiteral("12,34"));
    EXPECT_EQ(r.InicioSelecao, 3);
    EXPECT_EQ(r.TamanhoSelecao, 2);
    EXPECT_DOUBLE_EQ(r.Valor(), 12.34);
    // Typed again further left, it moves rather than doubling.
    Cursor(r, 1);
    r.Tecla(u',');
    EXPECT_EQ(r.Texto, QStringLiteral("1,234"));
    // At the start and at the end a zero fills the empty side.
    Cursor(r, 0);
    r.Tecla(u',');
    EXPECT_EQ(r.Texto, QStringLiteral("0,1234"));
    Cursor(r, 6);
    r.Tecla(u',');
    EXPECT_EQ(r.Texto, QStringLiteral("01234,0"));
    // Everything selected gives 0,0 with the decimal part selected.
    Cursor(r, 0, int(r.Texto.size()));
    r.Tecla(u',');
    EXPECT_EQ(r.Texto, QStringLiteral("0,0"));
    EXPECT_EQ(r.InicioSelecao, 2);
    EXPECT_EQ(r.TamanhoSelecao, 1);
    // A selection holding the separator is deleted first.
    r.Texto = QStringLiteral("12,5");
    Cursor(r, 1, 2);
    r.Tecla(u',');
    EXPECT_EQ(r.Texto, QStringLiteral("1,5"));
}

TEST_F(RegrasNumeroTest, ExibicaoAoPerderOFocoComSeparadoresDoSistema)
{
    RegrasNumero r;
    r.DefinirValor(1234567.5);
    EXPECT_EQ(r.Texto, QStringLiteral("1.234.567,5"));
    r.GanharFoco();
    EXPECT_EQ(r.Texto, QStringLiteral("1234567,5"));
    EXPECT_EQ(r.TamanhoSelecao, 9);
    r.PerderFoco();
    EXPECT_EQ(r.Texto, QStringLiteral("1.234.567,5"));

    r.SeparadorMilhar = false;
    r.DefinirValor(1234567);
    EXPECT_EQ(r.Texto, QStringLiteral("1234567"));

    r.ManterDecimais = true;
    r.DefinirFormato(6.2);
    r.DefinirValor(12);
    EXPECT_EQ(r.Texto, QStringLiteral("12,00"));
    // A trailing separator left by the user goes with the display format.
    r.ManterDecimais = false;
    r.GanharFoco();
    r.Texto = QStringLiteral("12,");
    r.TextoAlterado();
    r.PerderFoco();
    EXPECT_EQ(r.Texto, QStringLiteral("12"));
}

TEST_F(RegrasNumeroTest, EscapeRestauraEVazioViraZero)
{
    RegrasNumero r;
    r.DefinirValor(42);
    r.GanharFoco();
    Digitar(r, QStringLiteral("7"));
    EXPECT_EQ(r.Valor(), 7);
    r.Tecla(u'\x1b');
    EXPECT_EQ(r.Valor(), 42);
    EXPECT_EQ(r.Texto, QStringLiteral("42"));
    EXPECT_EQ(r.TamanhoSelecao, 2);

    r.InicioSelecao = 0;
    r.TamanhoSelecao = 2;
    r.Tecla(u'\b');
    EXPECT_EQ(r.Texto, QStringLiteral("0"));
    r.PermitirVazio = true;
    Cursor(r, 0, 1);
    r.Tecla(u'\b');
    EXPECT_TRUE(r.Vazio());
    r.PerderFoco();
    EXPECT_EQ(r.Texto, QString());
}

TEST_F(RegrasNumeroTest, SinalSoComPermissao)
{
    RegrasNumero r;
    r.DefinirValor(15);
    EXPECT_EQ(r.Tecla(u'-'), EfeitoTecla::Recusada);
    EXPECT_EQ(r.Tecla(u'a'), EfeitoTecla::Recusada);
    // A pasted sign is dropped as well.
    r.Texto = QStringLiteral("-15");
    r.TextoAlterado();
    EXPECT_EQ(r.Texto, QStringLiteral("15"));
    EXPECT_EQ(r.Valor(), 15);

    r.PermitirSinal = true;
    EXPECT_EQ(r.Tecla(u'-'), EfeitoTecla::Consumida);
    EXPECT_EQ(r.Texto, QStringLiteral("-15"));
    EXPECT_EQ(r.Valor(), -15);
    EXPECT_EQ(r.InicioSelecao, 1);
    EXPECT_EQ(r.TamanhoSelecao, 2);
    r.Tecla(u'+');
    EXPECT_EQ(r.Texto, QStringLiteral("15"));
    EXPECT_EQ(r.TamanhoSelecao, 2);
    EXPECT_EQ(r.Tecla(u'\r'), EfeitoTecla::Passa);
    r.Travado = true;
    EXPECT_EQ(r.Tecla(u'1'), EfeitoTecla::Recusada);
}

TEST_F(RegrasNumeroTest, ColarGuardaSoOQueAsTeclasAceitam)
{
    // Pasted over the whole text of 0, in a 4.2 field.
    const struct {
        QString colado;
        bool sinal;
        QString texto;
    } casos[] = {
        {QStringLiteral("12abc3"), false, QStringLiteral("123")},
        {QStringLiteral("-16"), false, QStringLiteral("16")},
        {QStringLiteral("-16"), true, QStringLiteral("-16")},
        {QStringLiteral("R$ 7,25"), false, QStringLiteral("7,25")},
        {QStringLiteral("123456789"), false, QStringLiteral("1234")},
        {QStringLiteral("x y"), false, QStringLiteral("0")},
    };
    for (const auto &c : casos) {
        RegrasNumero r;
        r.DefinirFormato(4.2);
        r.PermitirSinal = c.sinal;
        r.GanharFoco();
        r.Colar(c.colado);
        EXPECT_EQ(r.Texto, c.texto) << c.colado.toStdString();
    }
}
