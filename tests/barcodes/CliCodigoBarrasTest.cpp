// lumetaedit-cli codigo-barras: the picture it writes and its refusals.

#include "barcodes/CodigoBarras.h"
#include "barcodes/LeitorCodigoBarras.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

struct Execucao {
    int codigo;
    QString saida;
    QString erros;
};

Execucao Executar(const QStringList &args)
{
    QProcess p;
    p.start(QStringLiteral(LUMETA_CLI), QStringList{QStringLiteral("codigo-barras")} + args);
    p.waitForFinished(60000);
    return {p.exitCode(), QString::fromLocal8Bit(p.readAllStandardOutput()),
            QString::fromLocal8Bit(p.readAllStandardError())};
}

}  // namespace

TEST(CliCodigoBarras, GravaAFiguraDoCodificadorEmPNG)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    struct Caso {
        int tipo;
        const char *valor;
        const char *angulo;
    };
    // Every angle, and a linear and a PDF417 symbol turned; the drawing of
    // each type is pinned by the drawing tests.
    const Caso casos[] = {{33, "ab*c", "180"}, {34, "12a4", "270"}, {39, "Olá ~", "0"}, {80, "Ação 123", "90"}};
    for (const Caso &c : casos) {
        const QString arquivo = dir.filePath(QStringLiteral("cb%1.png").arg(c.tipo));
        const QString valor = QString::fromUtf8(c.valor);
        const Execucao e = Executar({QString::number(c.tipo), valor, arquivo, QStringLiteral("--angulo"),
                                     QString::fromLatin1(c.angulo)});
        EXPECT_EQ(e.codigo, 0) << c.tipo << " " << e.erros.toStdString();
        const QImage esperada = DesenharCodigoBarras(c.tipo, valor, 40, true, QString::fromLatin1(c.angulo).toInt());
        EXPECT_EQ(QImage(arquivo).convertToFormat(QImage::Format_RGB32), esperada) << c.tipo;
    }
    // Without --angulo the symbol is upright; "--angulo=N" works as well.
    const QString arquivo = dir.filePath(QStringLiteral("ean.png"));
    EXPECT_EQ(Executar({QStringLiteral("31"), QStringLiteral("590123412345"), arquivo}).codigo, 0);
    EXPECT_EQ(QImage(arquivo).size(), QSize(106, 52));
    const auto l = lumeta::teste::LerCodigoBarras(QImage(arquivo), ZXing::BarcodeFormat::EAN13);
    EXPECT_EQ(l.texto, "5901234123457");
    EXPECT_EQ(Executar({QStringLiteral("--angulo=270"), QStringLiteral("31"), QStringLiteral("1"), arquivo}).codigo, 0);
    EXPECT_EQ(QImage(arquivo).size(), QSize(52, 106));
}

TEST(CliCodigoBarras, RecusasComMensagemECodigo)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString arquivo = dir.filePath(QStringLiteral("x.png"));
    const QString semPasta = dir.filePath(QStringLiteral("nao/existe/x.png"));
    const QString uso = QStringLiteral(
        "Uso: lumetaedit-cli codigo-barras TIPO VALOR SAIDA.png [--angulo 0|90|180|270]\n");

    struct Caso {
        QStringList args;
        int codigo;
        QString erros;   // empty: any message
    };
    const Caso casos[] = {
        {{"31", "1"}, 2, uso},
        {{"31", "1", arquivo, "--angulo"}, 2, uso},
        {{"60", "1", arquivo}, 2, "Tipo de código de barras inválido: 60 (use 31 a 39, ou 80 para PDF417)\n"},
        {{"abc", "1", arquivo}, 2, {}},
        {{"31", "1", arquivo, "--angulo", "45"}, 2, "Ângulo inválido: 45 (use 0, 90, 180 ou 270)\n"},
        {{"80", "", arquivo}, 1, "O valor do PDF417 está vazio.\n"},
        {{"80", QString(3000, u'x') + u'é', arquivo}, 1, "O valor não cabe em um símbolo PDF417.\n"},
        {{"36", "A", semPasta}, 1, "Não foi possível gravar o arquivo " + semPasta + "\n\n76 - Caminho não encontrado\n"},
    };
    for (const Caso &c : casos) {
        const Execucao e = Executar(c.args);
        EXPECT_EQ(e.codigo, c.codigo) << c.args.join(u' ').left(40).toStdString();
        if (!c.erros.isEmpty()) {
            EXPECT_EQ(e.erros, c.erros);
        }
    }
    EXPECT_FALSE(QFile::exists(arquivo));
}
