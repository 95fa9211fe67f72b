// The rich sample layout (tests/data/amostra_rica.lmt): every item type,
// rotations, a justified paragraph, colours, pictures and barcodes.
#include "ApoioCanvas.h"
#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;
using namespace lumeta::teste;

namespace {

QString RaizRepositorio()
{
    return QDir(QStringLiteral(LUMETA_TEST_DATA "/../..")).absolutePath();
}

QString ArquivoAmostra() { return CaminhoDados(QStringLiteral("amostra_rica.lmt")); }

// The sample painted as the CLI paints it (full size, band 1 selected).
QImage PintarAmostra(LayoutDocumento &doc)
{
    const QString anterior = QDir::currentPath();
    QDir::setCurrent(RaizRepositorio());
    CanvasPagina canvas;
    canvas.TamanhoInicial(0);
    RecursosCanvas recursos;
    ExibirBanda(doc, 1, canvas, recursos);
    QDir::setCurrent(anterior);
    return canvas.Imagem;
}

}  // namespace

TEST(AmostraRica, PintarPorRegioesDaOMesmoQuePintarTudo)
{
    LayoutDocumento doc;
    ASSERT_TRUE(AbrirArquivoLMT(ArquivoAmostra(), doc).ok);
    // Written again, the rich layout gives back its file byte for byte.
    EXPECT_EQ(GravarLMT(doc), LerArquivo(ArquivoAmostra()));
    const QImage tudo = PintarAmostra(doc);
    ASSERT_FALSE(tudo.isNull());
    // The sample has spills: the picture below band 2, unclipped text below band 3.
    EXPECT_GT(doc.banda(2).Topo + std::abs(doc.banda(2).Altura), 0);

    const QString anterior = QDir::currentPath();
    QDir::setCurrent(RaizRepositorio());
    RecursosCanvas recursos;
    for (const QSize bloco : {QSize(97, 23), QSize(300, 180), QSize(1200, 900)}) {
        QImage partes(tudo.size(), QImage::Format_RGB32);
        partes.fill(Qt::magenta);
        for (int y = 0; y < tudo.height(); y += bloco.height())
            for (int x = 0; x < tudo.width(); x += bloco.width()) {
                // Each region is painted as a window paints its viewport:
                // into a picture of its own size, the canvas shifted.
                const QRect area(QPoint(x, y), bloco);
                QImage janela(bloco, QImage::Format_RGB32);
                janela.fill(Qt::magenta);
                QPainter p(&janela);
                p.translate(-x, -y);
                PintarLayout(p, doc, area, recursos);
                p.end();
                QPainter q(&partes);
                q.drawImage(QPoint(x, y), janela);
            }
        EXPECT_TRUE(partes == tudo) << bloco.width() << "x" << bloco.height();
    }
    QDir::setCurrent(anterior);
}

TEST(AmostraRica, CliPngGravaOCanvasComoOEditorMostra)
{
    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("amostra.png")), lmt = ArquivoAmostra();
    const auto cli = [](const QStringList &args) {
        QProcess p;
        p.setWorkingDirectory(RaizRepositorio());
        p.start(QStringLiteral(LUMETA_CLI), QStringList{QStringLiteral("png")} + args);
        p.waitForFinished(60000);
        return std::pair(p.exitCode(), QString::fromLocal8Bit(p.readAllStandardError()));
    };
    const auto [codigo, erros] = cli({lmt, png});
    ASSERT_EQ(codigo, 0) << erros.toStdString();
    const QImage lida(png);
    LayoutDocumento doc;
    ASSERT_TRUE(AbrirArquivoLMT(lmt, doc).ok);
    ASSERT_EQ(lida.size(), QSize(1120, 1120));
    EXPECT_EQ(lida.convertToFormat(QImage::Format_RGB32), PintarAmostra(doc));

    // Wrong arguments and unreadable files.
    const auto uso = cli({png}), semLayout = cli({dir.filePath(QStringLiteral("nada.lmt")), png}),
               semPasta = cli({lmt, dir.filePath(QStringLiteral("sem/pasta/x.png"))});
    EXPECT_TRUE(uso.first == 2 && uso.second.startsWith(QStringLiteral("Uso: lumetaedit-cli png")));
    EXPECT_TRUE(semLayout.first == 1 && !semLayout.second.isEmpty());
    EXPECT_TRUE(semPasta.first == 1 && semPasta.second.startsWith(QStringLiteral("Não foi possível gravar a figura")));
}
