// The rich sample layout (tests/data/amostra_rica.lmt): every item type,
// rotations, a justified paragraph, colours and barcodes. It is built here;
// run with LUMETA_GRAVAR_AMOSTRAS=1 to write it again after a change.
#include "ApoioCanvas.h"
#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"
#include "support/TestSupport.h"

#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;
using namespace lumeta::teste;

namespace {

// The picture the sample shows, relative to the repository's root (the CLI
// is run from there).
const QString FiguraAmostra = QStringLiteral("tests/data/amostra_rica.bmp");

QString RaizRepositorio()
{
    return QDir(QStringLiteral(LUMETA_TEST_DATA "/../..")).absolutePath();
}

QImage FiguraDaAmostra()
{
    // 48 x 48: four coloured quarters and a black diagonal.
    QImage img(48, 48, QImage::Format_RGB32);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x)
            img.setPixel(x, y, x == y ? qRgb(0, 0, 0)
                              : x < 24 ? (y < 24 ? qRgb(255, 200, 0) : qRgb(0, 120, 200))
                                       : (y < 24 ? qRgb(200, 30, 60) : qRgb(40, 160, 80)));
    return img;
}

Item It(uint8_t tipo, const QString &texto, int largura, const char *atributos = "0000100010")
{
    Item it = NovoItem(tipo, texto, 0, largura);
    it.Atributos = QString::fromLatin1(atributos);
    return it;
}

FonteItem Fonte(const char *nome, int tamanho, bool negrito = false, bool italico = false)
{
    return FonteItem{QString::fromLatin1(nome), int16_t(tamanho), negrito, italico};
}

Banda NovaBanda(int altura, QList<Item> itens, const QString &comentario = {})
{
    Banda b;
    b.Altura = altura;
    b.Itens = std::move(itens);
    b.Comentario = comentario;
    return b;
}

LayoutDocumento LayoutRico()
{
    LayoutDocumento doc;
    // 1: header - title centred on an extended-palette background, page number on the right.
    Item titulo = It(TipoTexto, QStringLiteral("{n}Relatório de Vendas{/n} {i}mensal{/i}"), 480, "1010100010");
    titulo.Fonte = Fonte("Arial", 16);
    titulo.CorFundo = 16 + 8 * 2 + 5;  // FFFFBD
    titulo.CorTexto = 1;
    titulo.Linhas = QStringLiteral("0001000000");
    titulo.Espessura = 2;
    titulo.CorLinha = 1;
    Item pagina = It(TipoTexto, QStringLiteral("Página (%_pag_%) de (%_pgs_%)"), 200, "0101100010");
    pagina.Linhas = QStringLiteral("0001000000");
    pagina.Espessura = 2;
    pagina.CorLinha = 1;
    doc.Bandas.append(NovaBanda(40, {titulo, pagina}, QStringLiteral("* cabeçalho\xFF* fim")));

    // 2: pictures (a file that spills below the band, the placeholder, a
    // missing one) and a justified paragraph in an automatic band.
    Item paragrafo = It(TipoTexto,
        QStringLiteral("   Este parágrafo justificado mostra como as palavras se espalham até a margem direita, "
                       "linha após linha, enquanto a última linha, curta, fica alinhada à esquerda."),
        360, "0000011010");
    paragrafo.Fonte = Fonte("Times New Roman", 10);
    doc.Bandas.append(NovaBanda(0, {It(TipoFigura, QStringLiteral("\"") + FiguraAmostra + QStringLiteral("\""), 56),
                                    It(TipoFigura, QStringLiteral("\"\""), 40, "1010100010"),
                                    It(TipoFigura, QStringLiteral("\"nao_existe.bmp\""), 32, "1010100010"), paragrafo}));

    // 3: styles, colour macros, fonts, an unclipped text reaching into band 4
    // (the band has a fixed height, or it would grow to hold it).
    Item estilos = It(TipoTexto, QStringLiteral("Texto {n}negrito{/n}, {i}itálico{/i}, {s}sublinhado{/s} e "
                                                "{r}tachado{/r}{e}segunda linha {N}{I}forte e inclinada"),
                      250, "0000010010");
    Item cores = It(TipoTexto, QStringLiteral("<%_T,255,255,255_%><%_F,0,90,160_%>Branco no azul"), 120, "1010100010");
    cores.Fonte = Fonte("Courier New", 9, true);
    Item vaza = It(TipoTexto, QStringLiteral("Sem corte: este texto passa da célula e da banda"), 90, "0000010110");
    vaza.CorTexto = 5;
    Item comando = It(TipoComando, QStringLiteral("WS-TOTAL-GERAL"), 110, "0100100010");
    comando.Fonte = Fonte("Arial", 9, false, true);
    doc.Bandas.append(NovaBanda(48, {estilos, cores, vaza, comando}));

    // 4: the four angles, framed, and a centred pair of lines.
    QList<Item> giros;
    const char *angulos[] = {"0000010010", "0000012010", "0000014010", "0000018010"};
    const char *nomes[] = {"Zero graus", "Noventa graus", "Cento e oitenta", "Duzentos e setenta"};
    for (int i = 0; i < 4; ++i) {
        Item g = It(TipoTexto, QString::fromUtf8(nomes[i]), 90, angulos[i]);
        g.Linhas = QStringLiteral("1111110000");
        g.CorLinha = uint8_t(16 + 8 * 4 + i);
        g.CorTexto = uint8_t(16 + 8 * 6 + i);
        g.Fonte = Fonte("Arial", 11, i % 2 == 1);
        giros.append(g);
    }
    Item meio = It(TipoTexto, QStringLiteral("Linhas do meio"), 150, "1010100010");
    meio.Linhas = QStringLiteral("1010000000");
    meio.Espessura = 3;
    meio.CorLinha = 12;
    giros.append(meio);
    doc.Bandas.append(NovaBanda(110, giros, QStringLiteral("* giros")));

    // 5: linear barcodes, a page break after the band.
    Item ean = It(TipoEAN13, QStringLiteral("\"789123456789\""), 120, "0000000000");
    Item c39 = It(TipoCode39Check, QStringLiteral("\"LUMETA-1\""), 170, "1010000010");
    Item c128c = It(TipoCode128C, QStringLiteral("\"20240607\""), 100, "1010000010");
    Item i25 = It(TipoInterlace25, QStringLiteral("WS-CAMPO"), 130, "0001000000");
    Item c128b = It(TipoCode128B, QStringLiteral("\"Abc-123\""), 180, "0000000020");
    doc.Bandas.append(NovaBanda(70, {ean, c39, c128c, i25, c128b}));
    doc.QuebraPaginaAdd(5);

    // 6: PDF417, interleaved 2 of 5 without and with digits on top, a barcode
    // turned 90 degrees and magnified, and one that only shows its bars.
    doc.Bandas.append(NovaBanda(90, {It(TipoPDF417, QStringLiteral("\"LumetaEdit PDF417\""), 200, "0000000020"),
                                     It(TipoInterlace25SemNumeros, QStringLiteral("\"123456\""), 110, "1010000000"),
                                     It(TipoInterlace25NumerosTopo, QStringLiteral("\"123456\""), 110, "1010000000"),
                                     It(TipoCode128B, QStringLiteral("\"ROT\""), 70, "0000002020"),
                                     It(TipoCode39, QStringLiteral("\"BARRAS\""), 150, "1010001001")}));

    // 7: graph bars on the bottom, like a chart.
    QList<Item> barras;
    const int valores[] = {10, 25, 40, 55, 32};
    for (int i = 0; i < 5; ++i) {
        Item b = It(TipoBarraGrafico, QStringLiteral("\"%1\"").arg(valores[i]), 40, "1001000000");
        b.CorTexto = uint8_t(9 + i % 4);
        b.CorFundo = i == 2 ? uint8_t(0) : CorTransparente;
        barras.append(b);
    }
    barras.append(It(TipoBarraGrafico, QStringLiteral("WS-VALOR"), 40, "1001000000"));
    doc.Bandas.append(NovaBanda(60, barras));

    // 8: the sixteen basic backgrounds, then thick frames.
    QList<Item> paleta;
    for (int c = 0; c < 16; ++c) {
        Item p = It(TipoTexto, QString::number(c), 24, "1010100010");
        p.CorFundo = uint8_t(c);
        p.CorTexto = c == 0 || c == 1 || c == 4 || c == 8 ? 15 : 0;
        paleta.append(p);
    }
    Item grosso = It(TipoTexto, QStringLiteral("Moldura"), 100, "1010100010");
    grosso.Linhas = QStringLiteral("0101110000");
    grosso.Espessura = 4;
    grosso.CorLinha = 16 + 8 * 5 + 6;
    paleta.append(grosso);
    doc.Bandas.append(NovaBanda(24, paleta));

    // 9: footer, placed 8 pixels below the band before.
    Banda rodape = NovaBanda(20, {It(TipoTexto, QStringLiteral("Rodapé - (%_07_%)"), 680, "1010100010")},
                             QStringLiteral("* rodapé"));
    rodape.Deslocamento = 8;
    doc.Bandas.append(rodape);
    doc.BandaCabecalho = 1;
    doc.BandaRodape = 9;

    for (int b = 1; b <= doc.NumBandas(); ++b)
        doc.ReposicionarItem(b);
    doc.ReposicionarBanda();
    return doc;
}

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

TEST(AmostraRica, ArquivoDeDadosEstaEmDia)
{
    const QByteArray lmt = GravarLMT(LayoutRico());
    QBuffer bmp;
    bmp.open(QIODevice::WriteOnly);
    FiguraDaAmostra().save(&bmp, "BMP");
    if (qEnvironmentVariableIsSet("LUMETA_GRAVAR_AMOSTRAS")) {
        GravarArquivoTeste(CaminhoDados(QStringLiteral("amostra_rica.lmt")), lmt);
        GravarArquivoTeste(CaminhoDados(QStringLiteral("amostra_rica.bmp")), bmp.data());
    }
    EXPECT_EQ(LerArquivo(CaminhoDados(QStringLiteral("amostra_rica.lmt"))), lmt);
    EXPECT_EQ(LerArquivo(CaminhoDados(QStringLiteral("amostra_rica.bmp"))), bmp.data());
}

TEST(AmostraRica, PintarPorRegioesDaOMesmoQuePintarTudo)
{
    LayoutDocumento doc = LayoutRico();
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
    const QString png = dir.filePath(QStringLiteral("amostra.png")), lmt = CaminhoDados(QStringLiteral("amostra_rica.lmt"));
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
    EXPECT_EQ(lida.pixel(776, 500), qRgb(0, 255, 255));

    // Wrong arguments and unreadable files.
    EXPECT_EQ(cli({png}).first, 2);
    EXPECT_TRUE(cli({png}).second.startsWith(QStringLiteral("Uso: lumetaedit-cli png")));
    const auto semLayout = cli({dir.filePath(QStringLiteral("nada.lmt")), png});
    EXPECT_EQ(semLayout.first, 1);
    EXPECT_FALSE(semLayout.second.isEmpty());
    const auto semPasta = cli({lmt, dir.filePath(QStringLiteral("sem/pasta/x.png"))});
    EXPECT_EQ(semPasta.first, 1);
    EXPECT_TRUE(semPasta.second.startsWith(QStringLiteral("Não foi possível gravar a figura")));
}
