// The print preview as a user meets it: a host program's command file opened
// from the file menu, paged, zoomed and saved as PDF.

#include "app/JanelaTeste.h"
#include "app/gui/JanelaPrevia.h"
#include "dialogs/ApoioTestesDialogos.h"
#include "document/Texto1252.h"
#include "support/TestSupport.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

using namespace lumeta;

namespace {

// A header and 25 details of 100 pixels: three pages.
QByteArray TresPaginas()
{
    QString t = QStringLiteral("F 100000Arial\r\nT 009900002000920000100010Cabeçalho\r\nRH 00050\r\nFC\r\n");
    for (int i = 1; i <= 25; ++i)
        t += QStringLiteral("T 009900002000920000100010Linha %1\r\nRH 00100\r\nQL\r\n").arg(i);
    return Para1252(t);
}

}  // namespace

TEST(Previa, ACommandFileIsPagedZoomedAndSavedAsPdf)
{
    teste::JanelaTeste j;
    QTemporaryDir dir;
    const QString arquivo = dir.filePath("relatorio.txt"), pdf = dir.filePath("relatorio.pdf");
    teste::GravarArquivoTeste(arquivo, TresPaginas());
    teste::GravarArquivoTeste(dir.filePath("ruim.txt"), "F 100000Arial\r\nXX 1\r\n");

    // A file the engine refuses is told, and no preview opens.
    j.ui.arquivos = {dir.filePath("ruim.txt"), arquivo, pdf};
    QAction *abrir = j.acao("mnuArquivoImprimirComandos");
    abrir->trigger();
    ASSERT_EQ(j.ui.mensagens.size(), 1);
    EXPECT_TRUE(j.ui.mensagens[0].texto.contains("comando desconhecido na linha 2")) << j.ui.mensagens[0].texto.toStdString();
    EXPECT_EQ(j.janela.findChild<JanelaPrevia *>(), nullptr);

    abrir->trigger();
    auto *previa = j.janela.findChild<JanelaPrevia *>();
    ASSERT_NE(previa, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(previa));
    teste::ConferirNomesAcessiveis(previa, {"Anterior", "Próxima", "Zoom:", "Páginas", "Imprimir...",
                                            "Salvar PDF...", "Fechar"});
    auto *pagina = previa->findChild<QLabel *>("lblPagina");
    EXPECT_EQ(pagina->text(), QStringLiteral("Página 1 de 3"));
    QTest::mouseClick(previa->findChild<QPushButton *>("btnProxima"), Qt::LeftButton);
    EXPECT_EQ(pagina->text(), QStringLiteral("Página 2 de 3"));
    QTest::mouseClick(previa->findChild<QPushButton *>("btnAnterior"), Qt::LeftButton);
    EXPECT_EQ(pagina->text(), QStringLiteral("Página 1 de 3"));

    // Half size shows more of the pages at once; only what shows is painted.
    VistaPaginas *vista = previa->Vista();
    QApplication::processEvents();
    const int antes = vista->PaginasPintadas();
    EXPECT_TRUE(antes >= 1 && antes <= 2) << antes;
    auto *zoom = previa->findChild<QComboBox *>();
    zoom->setCurrentIndex(zoom->findText(QStringLiteral("50 %")));
    EXPECT_DOUBLE_EQ(vista->Zoom(), 0.5);
    vista->viewport()->repaint();
    EXPECT_EQ(vista->PaginasPintadas(), antes + 2);

    QTest::mouseClick(previa->findChild<QPushButton *>("btnSalvarPDF"), Qt::LeftButton);
    EXPECT_TRUE(teste::Executar(QStringLiteral("pdfinfo"), {pdf}).saida.contains("Pages:           3"));
    EXPECT_EQ(j.ui.mensagens.size(), 1);
    previa->close();
}
