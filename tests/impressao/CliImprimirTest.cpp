// The "imprimir" command as scripts use it: exit codes, messages and files.

#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

namespace {

lumeta::teste::Execucao Imprimir(const QStringList &args)
{
    return lumeta::teste::Executar(QStringLiteral(LUMETA_CLI), QStringList{QStringLiteral("imprimir")} + args);
}

TEST(CliImprimir, ExitCodesMessagesAndFiles)
{
    QTemporaryDir dir;
    const QString bom = dir.filePath("bom.txt"), ruim = dir.filePath("ruim.txt");
    lumeta::teste::GravarArquivoTeste(bom, "F 100000Arial\r\nT 009900002000920000100010Oi\r\nRH 00020\r\nQL\r\n");
    lumeta::teste::GravarArquivoTeste(ruim, "F 100000Arial\r\nRH 0002x\r\n");
    struct Caso {
        QStringList args;
        int codigo;
        const char *mensagem;
    } casos[] = {
        {{bom}, 2, "Uso: lumetaedit-cli imprimir"},
        {{bom, dir.filePath("x.doc")}, 2, "\".pdf\" ou \".png\""},
        {{bom, dir.filePath("x.png"), "--dpi", "5"}, 2, "24 a 1200"},
        {{ruim, dir.filePath("x.pdf")}, 1, "número inválido na linha 2"},
        {{dir.filePath("falta.txt"), dir.filePath("x.pdf")}, 1, "Não foi possível abrir o arquivo de comandos"},
        {{bom, "--impressora", "Nenhuma"}, 1, "'Nenhuma'"},
        {{bom, dir.filePath("sem/x.pdf")}, 1, "Ocorreu um erro ao gravar o arquivo"},
        {{bom, dir.filePath("r.pdf")}, 0, ""},
        {{bom, dir.filePath("r.png"), "--dpi", "48"}, 0, ""},
    };
    for (const Caso &c : casos) {
        SCOPED_TRACE(c.args.join(' ').toStdString());
        const auto r = Imprimir(c.args);
        EXPECT_EQ(r.codigo, c.codigo);
        EXPECT_TRUE(r.erros.contains(QString::fromUtf8(c.mensagem))) << r.erros.toStdString();
    }
    // Only the good runs left files, each whole.
    EXPECT_EQ(QDir(dir.path()).entryList({"*.pdf", "*.png", ".*.pdf*"}, QDir::Files | QDir::Hidden),
              QStringList({"r-1.png", "r.pdf"}));
    EXPECT_TRUE(lumeta::teste::LerArquivo(dir.filePath("r.pdf")).startsWith("%PDF"));
    EXPECT_EQ(QImage(dir.filePath("r-1.png")).size(), QSize(397, 561));  // A4 at 48 dpi
}

}  // namespace
