// From the layout to the paper with a real COBOL program: it COPYs the
// copybook of a layout with a header, a detail band it repeats with its own
// data, and a footer that carries a running total in a variable; the editor's
// print engine turns the file the program wrote into pages.

#include "../barcodes/LeitorCodigoBarras.h"
#include "document/Texto1252.h"
#include "output/CopiarComo.h"
#include "output/Linguagem.h"
#include "support/TestSupport.h"

#include <QImage>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

constexpr int Linhas = 150;

LayoutDocumento Relatorio()
{
    LayoutDocumento doc;
    Banda cab;
    cab.Altura = 30;
    cab.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Relatório de teste"), 0, 400),
                 teste::NovoItem(TipoTexto, QStringLiteral("Página (%_pag_%) de (%_pgs_%)"), 400, 300)};
    Banda detalhe;
    detalhe.Itens = {teste::NovoItem(TipoComando, QStringLiteral("WS-DESCR"), 0, 300)};
    // The band's code: repeat it for every line, then write the running
    // total into variable 01, as a report program does.
    detalhe.Comentario = QStringLiteral("           perform varying WS-I from 1 by 1 until WS-I > 150\r\n"
                                        "           move WS-I to WS-NUM\r\n"
                                        "           move spaces to WS-DESCR\r\n"
                                        "           string \"Linha \" WS-NUM delimited by size into WS-DESCR"
                                        "\u00FF           add WS-I to WS-TOTAL\r\n"  // the code after the band
                                        "           move spaces to WS-LINHA\r\n"
                                        "           string \"01 \" WS-TOTAL delimited by size into WS-LINHA\r\n"
                                        "           write REG-LUMETA from WS-LINHA\r\n"
                                        "           end-perform");
    Banda rodape;
    rodape.Altura = 70;
    Item codigo = teste::NovoItem(TipoEAN13, QStringLiteral("\"7891234567895\""), 300, 120);
    rodape.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Total: (%_01_%)"), 0, 300), codigo};
    doc.Bandas = {cab, detalhe, rodape};
    doc.BandaCabecalho = 1;
    doc.BandaRodape = 3;
    doc.ReposicionarTudo();
    return doc;
}

}  // namespace

TEST(CobolImpressao, AHostProgramsReportPrintsWithHeaderFooterTotalsAndBarcode)
{
    const QString cobc = QStandardPaths::findExecutable(QStringLiteral("cobc"));
    if (cobc.isEmpty())
        GTEST_SKIP() << "cobc (GnuCOBOL) is not installed; tools/install-deps.sh installs it";
    QTemporaryDir dir;
    LinguagemDef ling;
    ASSERT_EQ(LerArquivoLinguagem(QStringLiteral(LUMETA_DISTRIBUIDOS "/Cobol.lin"), ling).resultado, ResultadoLin::Ok);
    teste::GravarArquivoTeste(dir.filePath("relatorio.cpy"), Para1252(GerarCopiarComo(Relatorio(), ling)));
    const QByteArray programa = teste::InicioProgramaCobol("relatorio", ling.DefVariaveis)
        + "       01 WS-I pic 9(4).\n"
          "       01 WS-NUM pic 9(3).\n"
          "       01 WS-TOTAL pic 9(7) value zero.\n"
          "       01 WS-DESCR pic x(30).\n"
          "       procedure division.\n"
          "           open output ARQ-LUMETA\n"
          "           copy \"relatorio.cpy\".\n"
          "           close ARQ-LUMETA\n"
          "           stop run.\n";
    teste::GravarArquivoTeste(dir.filePath("relatorio.cbl"), programa);
    QByteArray saida;
    ASSERT_EQ(teste::Rodar(cobc, {"-x", "-o", "relatorio", "relatorio.cbl"}, dir.path(), saida), 0) << saida.toStdString();
    ASSERT_EQ(teste::Rodar(dir.filePath("relatorio"), {}, dir.path(), saida), 0) << saida.toStdString();

    // The header of 30 and the footer of 70 pixels leave 927 rows: 51 lines
    // of 18 a page, so 150 lines make three pages.
    ASSERT_EQ(teste::Rodar(LUMETA_CLI, {"imprimir", "relatorio.txt", "relatorio.pdf"}, dir.path(), saida), 0)
        << saida.toStdString();
    ASSERT_EQ(teste::Rodar("pdftotext", {"-layout", "relatorio.pdf", "-"}, dir.path(), saida), 0);
    const QStringList paginas = QString::fromUtf8(saida).split(QLatin1Char('\f'), Qt::SkipEmptyParts);
    ASSERT_EQ(paginas.size(), 3);
    const int totais[] = {51 * 52 / 2, 102 * 103 / 2, Linhas * (Linhas + 1) / 2};
    int proxima = 1;
    for (int p = 0; p < 3; ++p) {
        SCOPED_TRACE(p + 1);
        const QString &t = paginas[p];
        EXPECT_EQ(t.count(QStringLiteral("Relatório de teste")), 1);
        EXPECT_EQ(t.count(QStringLiteral("Página %1 de 3").arg(p + 1)), 1);
        EXPECT_EQ(t.count(QStringLiteral("Total: %1").arg(totais[p], 7, 10, QLatin1Char('0'))), 1) << t.toStdString();
        // Every line once, in order, carrying on from the page before.
        for (const QString &l : t.split(QLatin1Char('\n')))
            if (l.trimmed().startsWith(QStringLiteral("Linha "))) {
                EXPECT_EQ(l.trimmed(), QStringLiteral("Linha %1").arg(proxima++, 3, 10, QLatin1Char('0')));
            }
    }
    EXPECT_EQ(proxima, Linhas + 1);

    // The footer's symbol reads back from every printed page.
    ASSERT_EQ(teste::Rodar(LUMETA_CLI, {"imprimir", "relatorio.txt", "pagina.png"}, dir.path(), saida), 0);
    for (int p = 1; p <= 3; ++p) {
        const QImage pagina(dir.filePath(QStringLiteral("pagina-%1.png").arg(p)));
        const teste::Leitura l = teste::LerCodigoBarras(pagina.copy(0, 900, pagina.width(), 223),
                                                        ZXing::BarcodeFormat::EAN13, 2);
        EXPECT_TRUE(l.ok) << p;
        EXPECT_EQ(l.texto, "7891234567895");
    }
}
