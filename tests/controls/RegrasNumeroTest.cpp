// The numeric field's rules: keys typed over a text and a selection, the
// display form on leaving the field, Escape, emptiness and pasting.
#include "controls/RegrasNumero.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace lumeta;

namespace {

class RegrasNumeroTest : public ::testing::Test {
protected:
    void SetUp() override { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }
    void TearDown() override { QLocale::setDefault(anterior); }
    QLocale anterior;
};

}  // namespace

TEST_F(RegrasNumeroTest, TeclasSobreTextoESelecao)
{
    struct Caso {
        double formato;
        bool sinal;
        const char *texto;
        int inicio, tamanho;
        const char *teclas;
        const char *resultado;
        EfeitoTecla ultima;
        int selInicio = -1, selTamanho = -1;
    };
    const auto C = EfeitoTecla::Consumida, R = EfeitoTecla::Recusada;
    const Caso casos[] = {
        {6.6, false, "0", 0, 1, "1234567", "123456", R},              // six integer digits at most
        {6.6, false, "0", 1, 0, ",1234567", "0,123456", R},           // and six decimals
        {6.6, false, "0,123456", 2, 6, "9", "0,9", C},                // a selection is replaced even at the limit
        {4.0, false, "12", 1, 0, ",", "12", C},                       // no decimals: the separator does nothing
        // The separator goes to the caret, moving rather than doubling; a
        // zero fills an empty side; over everything it gives 0,0.
        {6.6, false, "1234", 2, 0, ".", "12,34", C, 3, 2},
        {6.6, false, "12,34", 1, 0, ",", "1,234", C},
        {6.6, false, "1,234", 0, 0, ",", "0,1234", C},
        {6.6, false, "0,1234", 6, 0, ",", "01234,0", C},
        {6.6, false, "01234,0", 0, 7, ",", "0,0", C, 2, 1},
        {6.6, false, "12,5", 1, 2, ",", "1,5", C},                    // a selected separator is deleted first
        // A sign only when allowed; it keeps the digits selected.
        {6.6, false, "15", 2, 0, "-", "15", R},
        {6.6, false, "15", 2, 0, "a", "15", R},
        {6.6, true, "15", 2, 0, "-", "-15", C, 1, 2},
        {6.6, true, "-15", 3, 0, "+", "15", C, 0, 2},
        {6.6, false, "15", 2, 0, "\r", "15", EfeitoTecla::Passa},
        {6.6, false, "42", 0, 2, "\b", "0", C},                       // emptied: a zero
        {6.6, false, "123", 2, 0, "\b", "13", C, 1, 0},               // Backspace takes the digit before the caret
        {6.6, true, "-15", 0, 0, "2", "-215", C, 2, 0},               // a digit typed before the sign goes after it
        {6.6, false, "-15", 0, 0, "", "15", C},                       // a pasted sign goes when not allowed
    };
    for (const Caso &c : casos) {
        SCOPED_TRACE(std::string(c.texto) + " <- " + c.teclas);
        RegrasNumero r;
        r.DefinirFormato(c.formato);
        r.PermitirSinal = c.sinal;
        r.Texto = QString::fromLatin1(c.texto);
        r.TextoAlterado();
        r.InicioSelecao = c.inicio;
        r.TamanhoSelecao = c.tamanho;
        EfeitoTecla ultima = C;
        for (const char k : std::string(c.teclas))
            ultima = r.Tecla(QLatin1Char(k));
        EXPECT_EQ(r.Texto, QString::fromLatin1(c.resultado));
        EXPECT_EQ(ultima, c.ultima);
        EXPECT_DOUBLE_EQ(r.Valor(), QLocale().toDouble(r.Texto));
        if (c.selInicio >= 0) {
            EXPECT_EQ(std::pair(r.InicioSelecao, r.TamanhoSelecao), std::pair(c.selInicio, c.selTamanho));
        }
    }
    RegrasNumero travado;
    travado.Travado = true;
    EXPECT_EQ(travado.Tecla(u'1'), R);
}

TEST_F(RegrasNumeroTest, FormatoForaDaFaixaEIgnoradoEArredondado)
{
    RegrasNumero r;
    // Format, accepted, integer and decimal digits after it (6.6 by default).
    const std::tuple<double, bool, int, int> casos[] = {
        {13, false, 6, 6}, {0.5, false, 6, 6}, {3.25, true, 3, 3}, {12.9, true, 12, 9}, {4.0, true, 4, 0}};
    for (const auto &[formato, aceito, inteiros, decimais] : casos) {
        EXPECT_EQ(r.DefinirFormato(formato), aceito) << formato;
        EXPECT_EQ(std::pair(r.MaxInteiros(), r.MaxDecimais()), std::pair(inteiros, decimais)) << formato;
    }
}

TEST_F(RegrasNumeroTest, ExibicaoAoPerderOFocoEscapeEVazio)
{
    RegrasNumero r;
    r.DefinirValor(1234567.5);
    EXPECT_EQ(r.Texto, QStringLiteral("1.234.567,5"));
    r.GanharFoco();
    EXPECT_EQ(r.Texto, QStringLiteral("1234567,5"));
    r.Tecla(u'7');   // over the whole text, selected on focus
    EXPECT_EQ(r.Valor(), 7);
    r.Tecla(u'\x1b');   // Escape brings back the value the field had on focus
    EXPECT_EQ(std::pair(r.Texto, r.TamanhoSelecao), std::pair(QStringLiteral("1234567,5"), 9));
    r.PerderFoco();
    EXPECT_EQ(r.Texto, QStringLiteral("1.234.567,5"));

    r.SeparadorMilhar = false;
    EXPECT_EQ(r.Exibicao(1234567), QStringLiteral("1234567"));
    r.ManterDecimais = true;
    r.DefinirFormato(6.2);
    EXPECT_EQ(r.Exibicao(12), QStringLiteral("12,00"));
    // A trailing separator left by the user goes with the display format.
    r.ManterDecimais = false;
    r.GanharFoco();
    r.Texto = QStringLiteral("12,");
    r.TextoAlterado();
    r.PerderFoco();
    EXPECT_EQ(r.Texto, QStringLiteral("12"));

    r.PermitirVazio = true;
    r.GanharFoco();
    r.Tecla(u'\b');
    EXPECT_TRUE(r.Vazio());
    r.PerderFoco();
    EXPECT_EQ(r.Texto, QString());
}

TEST_F(RegrasNumeroTest, ColarGuardaSoOQueAsTeclasAceitam)
{
    // Pasted over the whole text of 0, in a 4.2 field.
    for (auto [colado, sinal, texto] : {std::tuple{"12abc3", false, "123"}, {"-16", false, "16"}, {"-16", true, "-16"},
                                        {"R$ 7,25", false, "7,25"}, {"123456789", false, "1234"}, {"x y", false, "0"}}) {
        RegrasNumero r;
        r.DefinirFormato(4.2);
        r.PermitirSinal = sinal;
        r.GanharFoco();
        r.Colar(QString::fromLatin1(colado));
        EXPECT_EQ(r.Texto, QString::fromLatin1(texto)) << colado;
    }
}
