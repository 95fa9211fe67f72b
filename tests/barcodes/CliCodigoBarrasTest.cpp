// lumetaedit-cli codigo-barras: the picture it writes and its refusals.

#include "barcodes/CodigoBarras.h"
#include "canvas/ApoioCanvas.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

teste::Execucao Executar(const QStringList &args)
{
    return teste::ExecutarCli(QStringList{QStringLiteral("codigo-barras")} + args);
}

}  // namespace

TEST(CliCodigoBarras, GravaAFiguraDoCodificadorEmPNG)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    // Every angle, by either spelling of the option, before or after the
    // other arguments, or none (upright); a linear and a PDF417 symbol
    // turned. What each type draws, the drawing and decoding tests pin.
    const struct { int tipo; const char *valor; QStringList antes, depois; int angulo; } casos[] = {
        {33, "ab*c", {}, {"--angulo", "180"}, 180}, {34, "12a4", {}, {"--angulo", "270"}, 270},
        {39, "Olá ~", {}, {"--angulo", "0"}, 0},    {80, "Ação 123", {}, {"--angulo", "90"}, 90},
        {31, "590123412345", {}, {}, 0},            {31, "1", {"--angulo=270"}, {}, 270}};
    for (const auto &c : casos) {
        const QString arquivo = dir.filePath(QStringLiteral("cb%1-%2.png").arg(c.tipo).arg(c.angulo));
        const QString valor = QString::fromUtf8(c.valor);
        const teste::Execucao e = Executar(c.antes + QStringList{QString::number(c.tipo), valor, arquivo} + c.depois);
        EXPECT_EQ(e.codigo, 0) << c.tipo << " " << e.erros.toStdString();
        EXPECT_EQ(QImage(arquivo).convertToFormat(QImage::Format_RGB32), DesenharCodigoBarras(c.tipo, valor, 40, true, c.angulo))
            << c.tipo << " at " << c.angulo;
    }
}

TEST(CliCodigoBarras, RecusasComMensagemECodigo)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString arquivo = dir.filePath(QStringLiteral("x.png"));
    const QString semPasta = dir.filePath(QStringLiteral("nao/existe/x.png"));
    const QString uso = QStringLiteral(
        "Uso: lumetaedit-cli codigo-barras TIPO VALOR SAIDA.png [--angulo 0|90|180|270]\n");

    // An empty message stands for any message.
    const struct { QStringList args; int codigo; QString erros; } casos[] = {
        {{"31", "1"}, 2, uso},
        {{"31", "1", arquivo, "--angulo"}, 2, uso},
        {{"60", "1", arquivo}, 2, "Tipo de código de barras inválido: 60 (use 31 a 39, ou 80 para PDF417)\n"},
        {{"abc", "1", arquivo}, 2, {}},
        {{"31", "1", arquivo, "--angulo", "45"}, 2, "Ângulo inválido: 45 (use 0, 90, 180 ou 270)\n"},
        {{"80", "", arquivo}, 1, "O valor do PDF417 está vazio.\n"},
        {{"80", QString(3000, u'x') + u'é', arquivo}, 1, "O valor não cabe em um símbolo PDF417.\n"},
        {{"36", "A", semPasta}, 1, "Não foi possível gravar o arquivo " + semPasta + "\n\n76 - Caminho não encontrado\n"},
    };
    for (const auto &c : casos) {
        const teste::Execucao e = Executar(c.args);
        EXPECT_EQ(e.codigo, c.codigo) << c.args.join(u' ').left(40).toStdString();
        EXPECT_TRUE(c.erros.isEmpty() || e.erros == c.erros) << e.erros.toStdString();
    }
    EXPECT_FALSE(QFile::exists(arquivo));
}
