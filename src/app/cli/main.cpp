// lumetaedit-cli: the editor's core without its window, for scripts and build
// pipelines. Every output is byte for byte what the editor itself produces.

#include "app/cli/Comandos.h"
#include "canvas/Pintor.h"
#include "document/ArquivoDisco.h"
#include "document/ArquivoLMT.h"

#include <QBuffer>
#include <QGuiApplication>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

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

bool GravarPNG(const QImage &figura, const QString &caminho, const QString &mensagem, Saidas &io)
{
    QByteArray png;
    QBuffer buffer(&png);
    if (figura.isNull() || !buffer.open(QIODevice::WriteOnly) || !figura.save(&buffer, "PNG")) {
        io.err(mensagem);
        return false;
    }
    const ResultadoArquivo r = GravarArquivo(caminho, png);
    if (!r.ok)
        io.err(mensagem + QStringLiteral("\n\n") + QString::number(r.numeroErro) + QStringLiteral(" - ")
               + r.descricaoErro);
    return r.ok;
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
    // The arguments as the system gave them: a file name need not be UTF-8.
    QStringList args;
    for (int i = 1; i < argc; ++i)
        args << lumeta::NomeDoSistema(argv[i]);

    // Standard output is written unbuffered and checked, so a full disk or a
    // closed reader behind it fails the command instead of losing the text.
    static int erroSaida = 0;
    Saidas io;
    io.out = [](const QByteArray &b) {
        const char *p = b.constData();
        qsizetype falta = b.size();
        while (falta > 0 && !erroSaida) {
            const ssize_t k = ::write(STDOUT_FILENO, p, size_t(falta));
            if (k < 0 && errno == EINTR)
                continue;
            if (k <= 0)
                erroSaida = k < 0 ? errno : ENOSPC;
            else
                p += k, falta -= k;
        }
    };
    io.err = [](const QString &m) {
        const QByteArray b = m.toLocal8Bit() + '\n';
        std::fwrite(b.constData(), 1, size_t(b.size()), stderr);
    };

    auto terminar = [&](int rc) {
        if (!erroSaida)
            return rc;
        const lumeta::ErroArquivo e = lumeta::ErroDoSistema(erroSaida);
        io.err(QStringLiteral("Ocorreu um erro ao gravar a saída padrão!\n\n") + QString::number(e.numero)
               + QStringLiteral(" - ") + e.descricao);
        return 1;
    };
    if (args.isEmpty() || args[0] == QLatin1String("ajuda") || args[0] == QLatin1String("--help")
        || args[0] == QLatin1String("-h") || args[0] == QLatin1String("help")) {
        io.out(Ajuda().toLocal8Bit());
        return terminar(args.isEmpty() ? 2 : 0);
    }
    const QString nome = args.takeFirst();
    for (const auto &c : TodosComandos())
        if (c.nome == nome)
            return terminar(c.funcao(args, io));
    io.err(QStringLiteral("Comando desconhecido: ") + nome + QStringLiteral(" (veja 'lumetaedit-cli ajuda')"));
    return 2;
}
