// Prints a command file (or a layout's command text) into a PDF, PNG pages
// or a printer, with the editor's own print engine.

#include "app/cli/Comandos.h"
#include "impressao/MotorImpressao.h"

#include <cstdio>
#include <unistd.h>

namespace lumeta::cli {

#ifdef LUMETA_IMPRESSORA
// In its own file, which links the system's print support.
bool EnviarParaImpressora(MotorImpressao &motor, const QString &impressora, QString &erro,
                          const ProgressoImpressao &progresso);
#endif

namespace {

constexpr const char *UsoImprimir = "Uso: lumetaedit-cli imprimir ENTRADA SAIDA.pdf|SAIDA.png [--dpi N]\n"
                                    "     lumetaedit-cli imprimir ENTRADA --impressora NOME";

// A long report shows where it is, on a terminal only: scripts read clean
// standard error.
ProgressoImpressao Progresso()
{
    if (!::isatty(STDERR_FILENO))
        return {};
    return [](int pagina, int paginas) {
        if (paginas >= 20 && (pagina % 10 == 0 || pagina == paginas)) {
            std::fprintf(stderr, "\rPágina %d de %d", pagina, paginas);
            if (pagina == paginas)
                std::fputc('\n', stderr);
            std::fflush(stderr);
        }
        return true;
    };
}

const ComandoCli imprimir(45, "imprimir", "imprimir ENTRADA SAIDA [--dpi N] | imprimir ENTRADA --impressora NOME",
    "Imprime o arquivo de comandos ENTRADA (ou o texto de um layout .lmt) com o motor\n"
    "de impressão do editor: SAIDA.pdf grava um PDF, SAIDA.png grava uma figura por\n"
    "página (SAIDA-1.png, SAIDA-2.png...) a N pontos por polegada (padrão 96);\n"
    "--impressora envia as páginas para a impressora NOME.",
    [](const QStringList &argumentos, Saidas &io) {
        QStringList args = argumentos;
        int dpi = 96;
        QString impressora;
        bool temImpressora = false;
        for (qsizetype i = 0; i < args.size();) {
            if (args[i] == QLatin1String("--dpi") && i + 1 < args.size()) {
                bool ok = false;
                dpi = args[i + 1].toInt(&ok);
                if (!ok || dpi < 24 || dpi > 1200) {
                    io.err(QStringLiteral("A resolução deve ser um número de 24 a 1200 pontos por polegada."));
                    return 2;
                }
                args.remove(i, 2);
            } else if (args[i] == QLatin1String("--impressora") && i + 1 < args.size()) {
                impressora = args[i + 1];
                temImpressora = true;
                args.remove(i, 2);
            } else {
                ++i;
            }
        }
        const qsizetype esperados = temImpressora ? 1 : 2;
        if (args.size() != esperados || TemOpcao(args)) {
            io.err(QString::fromUtf8(UsoImprimir));
            return 2;
        }
        const QString saida = temImpressora ? QString() : args[1];
        const bool pdf = saida.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
        const bool png = saida.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
        if (!temImpressora && !pdf && !png) {
            io.err(QStringLiteral("A saída deve terminar em \".pdf\" ou \".png\"."));
            return 2;
        }
        MotorImpressao motor;
        if (!motor.AbrirArquivo(args[0])) {
            io.err(motor.Erro());
            return 1;
        }
        QString erro;
        bool ok = false;
        if (temImpressora) {
#ifdef LUMETA_IMPRESSORA
            ok = EnviarParaImpressora(motor, impressora, erro, Progresso());
#else
            erro = QStringLiteral("Esta compilação do LumetaEdit não imprime na impressora '%1'.").arg(impressora);
#endif
        } else {
            ok = pdf ? GravarPDF(motor, saida, erro, Progresso()) : GravarPNGs(motor, saida, dpi, erro, Progresso());
        }
        if (!ok) {
            io.err(erro);
            return 1;
        }
        return 0;
    });

}  // namespace
}  // namespace lumeta::cli
