#include "app/gui/frmLumetaEdit.h"
#include "document/Texto1252.h"
#include "output/Visualizacao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// A stand-in viewer: writes one argument a line and a copy of the file it
// was given, then renames the record so the test sees it whole.
void criarVisualizador(const QString &caminho)
{
    QFile f(caminho);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("#!/bin/sh\n"
            "d=$(dirname \"$0\")\n"
            "cp \"$2\" \"$d/copia.tmp\"\n"
            "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > \"$d/args.tmp\"\n"
            "mv \"$d/args.tmp\" \"$d/args.txt\"\n");
    f.close();
    f.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray lerQuandoExistir(const QString &caminho)
{
    if (!QTest::qWaitFor([&] { return QFile::exists(caminho); }, 10000))
        return QByteArray("<none>");
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    const QByteArray b = f.readAll();
    f.close();
    QFile::remove(caminho);
    return b;
}

// PATH and the viewer variable for one test, restored afterwards.
struct Ambiente {
    QByteArray path = qgetenv("PATH");
    QByteArray variavel = qgetenv(VariavelVisualizador);
    bool tinhaVariavel = qEnvironmentVariableIsSet(VariavelVisualizador);
    ~Ambiente()
    {
        qputenv("PATH", path);
        if (tinhaVariavel)
            qputenv(VariavelVisualizador, variavel);
        else
            qunsetenv(VariavelVisualizador);
    }
};

}  // namespace

TEST(Visualizar, TheViewerGetsTheCommandFileAndItsArguments)
{
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    Ambiente ambiente;
    QTemporaryDir bin, tmp;
    criarVisualizador(bin.filePath(QStringLiteral("Lumeta.exe")));
    qputenv("PATH", (bin.path() + QStringLiteral(":/usr/bin:/bin")).toLocal8Bit());
    qunsetenv(VariavelVisualizador);

    frmLumetaEdit janela(&ui);
    SessaoEdicao &s = janela.Sessao();
    s.ArquivoVisualizacao = tmp.filePath(QStringLiteral("Lumeta.tmp"));
    s.Documento.banda(1).Itens[0].Texto = QStringLiteral("Preço unitário");
    s.ConcluirEdicao();
    QAction *visualizar = janela.Acao(QStringLiteral("mnuEditarVisualizar"));
    visualizar->trigger();

    const QByteArray args = lerQuandoExistir(bin.filePath(QStringLiteral("args.txt")));
    EXPECT_EQ(args, "/G\n" + s.ArquivoVisualizacao.toUtf8() + "\n/T\nLumeta\n/SE\n");
    const QByteArray esperado = Para1252(s.TextoResultado);
    EXPECT_TRUE(esperado.contains("Pre\xE7o unit\xE1rio"));
    EXPECT_TRUE(esperado.contains("\r\n"));
    EXPECT_EQ(lerQuandoExistir(bin.filePath(QStringLiteral("copia.tmp"))), esperado);
    EXPECT_TRUE(ui.mensagens.isEmpty());

    // Sending e-mail: the example recipient before the last argument.
    janela.Acao(QStringLiteral("mnuConfigEnviarEmail"))->trigger();
    visualizar->trigger();
    EXPECT_EQ(lerQuandoExistir(bin.filePath(QStringLiteral("args.txt"))),
              "/G\n" + s.ArquivoVisualizacao.toUtf8() + "\n/T\nLumeta\n/ED\n" + EmailExemplo.toUtf8() + "\n/SE\n");
    EXPECT_EQ(lerQuandoExistir(bin.filePath(QStringLiteral("copia.tmp"))), Para1252(s.TextoResultado));

    // A viewer under another name, named by the variable.
    QFile::rename(bin.filePath(QStringLiteral("Lumeta.exe")), bin.filePath(QStringLiteral("envoltorio")));
    qputenv(VariavelVisualizador, bin.filePath(QStringLiteral("envoltorio")).toLocal8Bit());
    visualizar->trigger();
    EXPECT_TRUE(lerQuandoExistir(bin.filePath(QStringLiteral("args.txt"))).startsWith("/G\n"));
    EXPECT_TRUE(ui.mensagens.isEmpty());
}

TEST(Visualizar, AMissingViewerOrAnUnwritableFileIsReported)
{
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    Ambiente ambiente;
    QTemporaryDir vazio, tmp;
    qputenv("PATH", vazio.path().toLocal8Bit());
    qunsetenv(VariavelVisualizador);

    frmLumetaEdit janela(&ui);
    SessaoEdicao &s = janela.Sessao();
    s.ArquivoVisualizacao = tmp.filePath(QStringLiteral("Lumeta.tmp"));
    janela.Acao(QStringLiteral("mnuEditarVisualizar"))->trigger();
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("O Lumeta não foi encontrado, ou não está instalado!"));
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Visualizar"));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Exclamacao);
    // The file stays as written.
    QFile f(s.ArquivoVisualizacao);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), Para1252(s.TextoResultado));

    // A viewer named by the variable that cannot be run.
    QFile nao(vazio.filePath(QStringLiteral("Lumeta.exe")));
    ASSERT_TRUE(nao.open(QIODevice::WriteOnly));
    nao.close();
    nao.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    qputenv(VariavelVisualizador, nao.fileName().toLocal8Bit());
    janela.Acao(QStringLiteral("mnuEditarVisualizar"))->trigger();
    ASSERT_EQ(ui.mensagens.size(), 2);
    EXPECT_TRUE(ui.mensagens[1].texto.startsWith(QStringLiteral("Ocorreu o erro número 70 ao tentar visualizar!\r\r")))
        << ui.mensagens[1].texto.toStdString();

    s.ArquivoVisualizacao = tmp.filePath(QStringLiteral("sem/pasta/Lumeta.tmp"));
    janela.Acao(QStringLiteral("mnuEditarVisualizar"))->trigger();
    ASSERT_EQ(ui.mensagens.size(), 3);
    EXPECT_TRUE(ui.mensagens[2].texto.startsWith(QStringLiteral("Ocorreu um erro ao gravar o arquivo '")
                                                  + s.ArquivoVisualizacao))
        << ui.mensagens[2].texto.toStdString();
    EXPECT_EQ(ui.mensagens[2].titulo, QStringLiteral("Visualizar"));
}
