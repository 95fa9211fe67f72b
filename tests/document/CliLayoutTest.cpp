// The command-line tool as scripts call it: bytes on stdout, messages on
// stderr, exit status.
#include "document/ArquivoLMT.h"
#include "document/Texto1252.h"
#include "editing/SessaoEdicao.h"
#include "output/CopiarComo.h"
#include "output/Linguagem.h"
#include "output/TextoComandos.h"
#include "support/ConfigTemporaria.h"
#include "support/TestSupport.h"

#include <QProcess>
#include <QTemporaryDir>
#include <tuple>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

struct Execucao {
    int codigo;
    QByteArray saida;
    QByteArray erros;
};

Execucao Cli(const QStringList &args, const QString &pasta = QString())
{
    QProcess p;
    p.setWorkingDirectory(pasta);
    p.start(QStringLiteral(LUMETA_CLI), args);
    p.waitForFinished(60000);
    return {p.exitCode(), p.readAllStandardOutput(), p.readAllStandardError()};
}

}  // namespace

TEST(Cli, NovoTextoEComandosDaoOsBytesDoEditor)
{
    QTemporaryDir dir;
    const QString novo = dir.filePath(QStringLiteral("novo.lmt"));
    Execucao r = Cli({QStringLiteral("novo"), novo});
    ASSERT_EQ(r.codigo, 0) << r.erros.toStdString();
    EXPECT_EQ(teste::LerArquivo(novo), GravarLMT(SessaoEdicao().Documento));

    r = Cli({QStringLiteral("texto"), novo});
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.saida, QByteArray("QJ 92\r\nF 100000Arial\r\nT 009900002000600000100010Texto 1\r\nRH 00018\r\nQL\r\n"));

    SessaoEdicao s;
    s.Documento.banda(1).Itens[0].Texto = QStringLiteral("Preço € à vista");
    s.AddItem(1, false, 0);
    s.AddItem(1, false, 0);
    s.Documento.banda(1).Itens[1].Tipo = TipoComando;
    s.Documento.banda(1).Itens[1].Texto = QStringLiteral("WS-AÇÃO");
    s.Documento.banda(1).Itens[2].Tipo = TipoComando;
    s.Documento.banda(1).Itens[2].Texto = QStringLiteral("WS-FIM");
    const QString caminho = dir.filePath(QStringLiteral("acentos.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(caminho, s.Documento).ok);
    r = Cli({QStringLiteral("texto"), caminho});
    EXPECT_TRUE(r.saida.contains(QByteArray("T 009900002000600000100010Pre\xE7o \x80 \xE0 vista\r\n")));
    r = Cli({QStringLiteral("comandos"), caminho});
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.saida, QByteArray("WS-A\xC7\xC3O\r\nWS-FIM\r\n"));
}

TEST(Cli, ErrosDaoAMensagemDoEditorECodigoDeSaida)
{
    QTemporaryDir dir;
    const QString ruim = dir.filePath(QStringLiteral("ruim.lmt"));
    teste::GravarArquivoTeste(ruim, "LumetaEdit 1.0(z)               ");
    // A good header and every field, but no band.
    const QString semBandas = dir.filePath(QStringLiteral("sem-bandas.lmt"));
    teste::GravarArquivoTeste(semBandas, GravarLMT(LayoutDocumento()));
    // Arguments, exit status, start of the message.
    const std::tuple<QStringList, int, QString> casos[] = {
        {{"texto", ruim}, 1, "Formato inválido!"},
        {{"texto", dir.filePath(QStringLiteral("nao-existe.lmt"))}, 1, "Ocorreu um erro ao abrir o arquivo '"},
        {{"png", semBandas, dir.filePath(QStringLiteral("s.png"))}, 1, "Ocorreu um erro ao abrir o arquivo '"},
        {{"novo", dir.filePath(QStringLiteral("sem/pasta.lmt"))}, 1, "Ocorreu um erro ao gravar o arquivo '"},
        {{"texto"}, 2, "Uso: lumetaedit-cli texto"},
        // An option is never taken for a file name.
        {{"novo", "--help"}, 2, "Uso: lumetaedit-cli novo"},
        {{"inexistente"}, 2, "Comando desconhecido: inexistente"},
    };
    for (const auto &[args, codigo, inicio] : casos) {
        const Execucao r = Cli(args, dir.path());
        EXPECT_EQ(r.codigo, codigo) << args.join(u' ').toStdString();
        EXPECT_TRUE(r.saida.isEmpty());
        EXPECT_TRUE(QString::fromLocal8Bit(r.erros).startsWith(inicio)) << r.erros.toStdString();
    }
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("--help"))));
    const Execucao r = Cli({QStringLiteral("ajuda")});
    EXPECT_EQ(r.codigo, 0);
    for (const char *cmd : {"novo SAIDA.lmt", "texto ARQUIVO.lmt", "comandos ARQUIVO.lmt"})
        EXPECT_TRUE(r.saida.contains(cmd)) << cmd;
}

TEST(Cli, PosicoesVelhasDoArquivoDaoOTextoDoPainelDoEditor)
{
    teste::ConfigTemporaria config;
    QTemporaryDir dir;
    // Every stored position is stale, in the selected band and in the others.
    LayoutDocumento doc;
    Banda b1, b2;
    b1.Topo = 900;
    b1.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("A"), 500, 40),
                teste::NovoItem(TipoComando, QStringLiteral("WS-A"), 3, 70)};
    b2.Topo = -5;
    b2.Altura = 0;
    b2.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("B"), 77, 30),
                teste::NovoItem(TipoTexto, QStringLiteral("C"), 0, 50)};
    doc.Bandas = {b1, b2};
    const QString caminho = dir.filePath(QStringLiteral("velho.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(caminho, doc).ok);
    const QString lin = dir.filePath(QStringLiteral("cobol.lin"));
    ASSERT_EQ(GravarArquivoLinguagem(lin, LinguagemPadrao()).resultado, ResultadoLin::Ok);

    SessaoEdicao editor;
    ASSERT_EQ(editor.AbrirLMT(caminho), SessaoEdicao::ResultadoAbrir::Aberto);
    ASSERT_NE(editor.TextoResultado, GerarTextoComandos(doc));  // the stale positions would show

    Execucao r = Cli({QStringLiteral("texto"), caminho});
    ASSERT_EQ(r.codigo, 0) << r.erros.toStdString();
    EXPECT_EQ(r.saida, Para1252(editor.TextoResultado));
    r = Cli({QStringLiteral("comandos"), caminho});
    EXPECT_EQ(r.saida, Para1252(ListaComandosUtilizados(editor.Documento)));
    LinguagemDef ling;
    ASSERT_EQ(LerArquivoLinguagem(lin, ling).resultado, ResultadoLin::Ok);
    ling.CobolString = true;
    r = Cli({QStringLiteral("copiar-como"), lin, caminho, QStringLiteral("--string")});
    EXPECT_EQ(r.saida, Para1252(GerarCopiarComo(editor.Documento, ling)));
}
