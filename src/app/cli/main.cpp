// lumetaedit-cli: the editor's core without its window, for scripts and build
// pipelines. Every output is byte for byte what the editor itself produces.

#include "app/cli/Comandos.h"
#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace lumeta::cli {

std::vector<DefinicaoComando> &TodosComandos()
{
    static std::vector<DefinicaoComando> comandos;
    return comandos;
}

ComandoCli::ComandoCli(int ordem, const char *nome, const char *uso, const char *descricao, Funcao f)
{
    TodosComandos().push_back({ordem, QString::fromUtf8(nome), QString::fromUtf8(uso),
                               QString::fromUtf8(descricao), std::move(f)});
}

bool CarregarLayout(const QString &caminho, LayoutDocumento &doc, RecursosCanvas &recursos, Saidas &io)
{
    const ResultadoArquivo r = AbrirArquivoLMT(caminho, doc);
    if (!r.ok) {
        io.err(r.mensagem);
        return false;
    }
    PrepararLayoutAberto(doc, recursos.Medidor);
    return true;
}

namespace {

QString Ajuda()
{
    auto comandos = TodosComandos();
    std::sort(comandos.begin(), comandos.end(), [](const auto &a, const auto &b) { return a.ordem < b.ordem; });
    QString t = QStringLiteral(
        "lumetaedit-cli - o LumetaEdit sem janela, para scripts e compilações.\n\n"
        "Uso: lumetaedit-cli COMANDO [ARGUMENTOS]\n\nComandos:\n");
    for (const auto &c : comandos) {
        t += QStringLiteral("  ") + c.uso + QLatin1Char('\n');
        for (const QString &linha : c.descricao.split(QLatin1Char('\n')))
            t += QStringLiteral("      ") + linha + QLatin1Char('\n');
    }
    t += QStringLiteral(
        "  ajuda\n      Mostra este texto.\n\n"
        "Em caso de erro a mensagem do editor vai para a saída de erros e o código de saída é 1;\n"
        "argumentos inválidos dão o código 2.\n");
    return t;
}

}  // namespace
}  // namespace lumeta::cli

int main(int argc, char **argv)
{
    using namespace lumeta::cli;
    // The tool never opens a window; painting and font metrics work off-screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Standard error carries the editor's messages only, so scripts can show
    // them as they are; Qt's own diagnostics are for developers.
    if (qEnvironmentVariableIsEmpty("LUMETAEDIT_DEBUG"))
        qInstallMessageHandler([](QtMsgType tipo, const QMessageLogContext &, const QString &msg) {
            if (tipo == QtFatalMsg) {
                std::fprintf(stderr, "%s\n", qPrintable(msg));
                std::abort();
            }
        });
    QGuiApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);

    Saidas io;
    io.out = [](const QByteArray &b) { std::fwrite(b.constData(), 1, size_t(b.size()), stdout); };
    io.err = [](const QString &m) {
        const QByteArray b = m.toLocal8Bit() + '\n';
        std::fwrite(b.constData(), 1, size_t(b.size()), stderr);
    };

    if (args.isEmpty() || args[0] == QLatin1String("ajuda") || args[0] == QLatin1String("--help")
        || args[0] == QLatin1String("-h") || args[0] == QLatin1String("help")) {
        io.out(Ajuda().toLocal8Bit());
        return args.isEmpty() ? 2 : 0;
    }
    const QString nome = args.takeFirst();
    for (const auto &c : TodosComandos())
        if (c.nome == nome) {
            const int rc = c.funcao(args, io);
            std::fflush(stdout);
            return rc;
        }
    io.err(QStringLiteral("Comando desconhecido: ") + nome + QStringLiteral(" (veja 'lumetaedit-cli ajuda')"));
    return 2;
}
