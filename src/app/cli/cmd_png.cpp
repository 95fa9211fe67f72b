// A picture of a layout's canvas, as the editor shows it after opening the
// file: full size, automatic heights computed, no selection marks.

#include "app/cli/Comandos.h"
#include "canvas/Pintor.h"

#include <QGuiApplication>
#include <QScreen>

namespace lumeta::cli {

namespace {

constexpr qint64 LimiteMemoriaFiguraCli = qint64(256) << 20;

const ComandoCli png(40, "png", "png ARQUIVO.lmt SAIDA.png",
    "Grava em SAIDA.png o desenho do layout na página, como o editor o exibe\n"
    "(tamanho total, alturas automáticas calculadas, sem as marcas de seleção).",
    [](const QStringList &args, Saidas &io) {
        if (args.size() != 2 || TemOpcao(args)) {
            io.err(QStringLiteral("Uso: lumetaedit-cli png ARQUIVO.lmt SAIDA.png"));
            return 2;
        }
        LayoutDocumento doc;
        RecursosCanvas recursos;
        if (!CarregarLayout(args[0], doc, recursos, io))
            return 1;
        CanvasPagina canvas;
        // The picture is held whole here, unlike the window's: past this a
        // canvas falls back to 2016 x 2016 with the editor's message, so a
        // layout with huge numbers costs what an ordinary one does.
        canvas.LimiteMemoria = LimiteMemoriaFiguraCli;
        const QScreen *tela = QGuiApplication::primaryScreen();
        canvas.TamanhoInicial(tela ? tela->geometry().width() : 0);
        const ResultadoRepintura r = ExibirBanda(doc, 1, canvas, recursos);
        if (r.memoriaInsuficiente)
            io.err(MensagemMemoriaInsuficiente);
        return GravarPNG(canvas.Imagem, args[1],
                         QStringLiteral("Não foi possível gravar a figura '") + args[1] + QStringLiteral("'!"), io)
            ? 0
            : 1;
    });

}  // namespace
}  // namespace lumeta::cli
