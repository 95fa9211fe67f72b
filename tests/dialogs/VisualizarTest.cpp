#include "app/JanelaTeste.h"
#include "app/gui/JanelaPrevia.h"
#include "document/Texto1252.h"
#include "output/Visualizacao.h"
#include "support/TestSupport.h"
#include "support/VariavelTemporaria.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

QByteArray lerQuandoExistir(const QString &caminho)
{
    if (!QTest::qWaitFor([&] { return QFile::exists(caminho); }, 10000))
        return QByteArray("<none>");
    const QByteArray b = teste::LerArquivo(caminho);
    QFile::remove(caminho);
    return b;
}

}  // namespace

TEST(Visualizar, TheViewerGetsTheCommandFileOrTheUserIsToldWhy)
{
    teste::JanelaTeste j;
    QTemporaryDir bin, tmp;
    teste::VariavelTemporaria path("PATH", bin.path() + QStringLiteral(":/usr/bin:/bin"));
    teste::VariavelTemporaria semVisualizador(VariavelVisualizador, QString());
    j.s.ArquivoVisualizacao = tmp.filePath(QStringLiteral("Lumeta.tmp"));
    j.s.Documento.banda(1).Itens[0].Texto = QStringLiteral("Preço unitário");
    j.s.ConcluirEdicao();
    const QByteArray esperado = Para1252(j.s.TextoResultado);
    ASSERT_TRUE(esperado.contains("Pre\xE7o unit\xE1rio\r\n"));
    QAction *visualizar = j.acao("mnuEditarVisualizar");

    // No viewer on the path: the editor's own preview shows the pages.
    visualizar->trigger();
    auto *previa = j.janela.findChild<JanelaPrevia *>();
    ASSERT_NE(previa, nullptr);
    const auto bandas = previa->Motor().BandasDaPagina(1);
    ASSERT_FALSE(bandas.empty());
    EXPECT_EQ(bandas[0].banda.Itens[0].Texto, QStringLiteral("Preço unitário"));
    previa->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // A stand-in viewer writes one argument a line and a copy of its file,
    // then renames the record so the test sees it whole.
    const QString viewer = bin.filePath(QStringLiteral("Lumeta.exe"));
    teste::GravarArquivoTeste(viewer, "#!/bin/sh\nd=$(dirname \"$0\")\ncp \"$2\" \"$d/copia.tmp\"\n"
                                      "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > \"$d/args.tmp\"\n"
                                      "mv \"$d/args.tmp\" \"$d/args.txt\"\n");
    QFile::setPermissions(viewer, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    visualizar->trigger();
    EXPECT_EQ(lerQuandoExistir(bin.filePath(QStringLiteral("args.txt"))),
              "/G\n" + j.s.ArquivoVisualizacao.toUtf8() + "\n/T\nLumeta\n/SE\n");
    EXPECT_EQ(lerQuandoExistir(bin.filePath(QStringLiteral("copia.tmp"))), esperado);

    // The variable names the viewer before the path; one that cannot run.
    QFile::setPermissions(viewer, QFile::ReadOwner | QFile::WriteOwner);
    QFile::rename(viewer, bin.filePath(QStringLiteral("envoltorio")));
    qputenv(VariavelVisualizador, bin.filePath(QStringLiteral("envoltorio")).toLocal8Bit());
    visualizar->trigger();
    ASSERT_EQ(j.ui.mensagens.size(), 1);
    EXPECT_TRUE(j.ui.mensagens[0].texto.startsWith(QStringLiteral("Ocorreu o erro número 70 ao tentar visualizar!\r\r")))
        << j.ui.mensagens[0].texto.toStdString();

    j.s.ArquivoVisualizacao = tmp.filePath(QStringLiteral("sem/pasta/Lumeta.tmp"));
    visualizar->trigger();
    ASSERT_EQ(j.ui.mensagens.size(), 2);
    EXPECT_TRUE(j.ui.mensagens[1].texto.startsWith(QStringLiteral("Ocorreu um erro ao gravar o arquivo '")
                                                    + j.s.ArquivoVisualizacao))
        << j.ui.mensagens[1].texto.toStdString();
}
