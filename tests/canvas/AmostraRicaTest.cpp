// The rich sample layout (tests/data/amostra_rica.lmt): every item type,
// rotations, a justified paragraph, colours, pictures and barcodes.
#include "ApoioCanvas.h"
#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QPainter>
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

    // Each region painted as a window paints its viewport. The sample
    // spills: the picture below band 2, unclipped text below band 3.
    const QString anterior = QDir::currentPath();
    QDir::setCurrent(RaizRepositorio());
    RecursosCanvas recursos;
    for (const QSize bloco : {QSize(97, 23), QSize(300, 180), QSize(1200, 900)}) {
        QImage partes(tudo.size(), QImage::Format_RGB32);
        QPainter q(&partes);
        for (int y = 0; y < tudo.height(); y += bloco.height())
            for (int x = 0; x < tudo.width(); x += bloco.width())
                q.drawImage(QPoint(x, y), PintarJanela(doc, QRect(QPoint(x, y), bloco), recursos));
        q.end();
        EXPECT_TRUE(partes == tudo) << bloco.width() << "x" << bloco.height();
    }
    QDir::setCurrent(anterior);
}

TEST(AmostraRica, CliPngGravaOCanvasComoOEditorMostra)
{
    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("amostra.png")), lmt = ArquivoAmostra();
    const Execucao feito = ExecutarCli({QStringLiteral("png"), lmt, png}, RaizRepositorio());
    ASSERT_EQ(feito.codigo, 0) << feito.erros.toStdString();
    LayoutDocumento doc;
    ASSERT_TRUE(AbrirArquivoLMT(lmt, doc).ok);
    EXPECT_EQ(QImage(png).convertToFormat(QImage::Format_RGB32), PintarAmostra(doc));
}
