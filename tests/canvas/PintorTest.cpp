#include "ApoioCanvas.h"
#include "barcodes/CodigoBarras.h"
#include "canvas/Atributos.h"
#include "canvas/Pintor.h"
#include "editing/SessaoEdicao.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <QTemporaryDir>
#include <array>
#include <gtest/gtest.h>
#include <tuple>

using namespace lumeta;
using namespace lumeta::teste;

namespace {

const QRgb Branco = qRgb(255, 255, 255);
const QRgb CinzaCelula = qRgb(230, 230, 230);
const QRgb Vermelho = qRgb(255, 0, 0);   // basic colour 12
const QRgb Azul = qRgb(0, 0, 255);       // basic colour 9, and the page-break arrow
const QRgb Ciano = qRgb(0, 255, 255);    // basic colour 11
const QRgb Verde = qRgb(0, 255, 0);      // basic colour 10
const QRgb Preto = qRgb(0, 0, 0);

Item Novo(const QString &texto, int largura = 64, uint8_t tipo = TipoTexto)
{
    return teste::NovoItem(tipo, texto, 0, largura);
}

LayoutDocumento UmaBanda(const Item &it, int altura = 18)
{
    LayoutDocumento doc;
    Banda b;
    b.Altura = altura;
    b.Itens = {it};
    doc.Bandas = {b};
    return doc;
}

// The canvas a 1120 x 1120 window shows of a layout.
QImage Pintar(LayoutDocumento doc)
{
    for (int b = 1; b <= doc.NumBandas(); ++b)
        doc.ReposicionarItem(b);
    CanvasPagina canvas;
    canvas.Tamanho = QSize(1120, 1120);
    RecursosCanvas recursos;
    ExibirBanda(doc, 1, canvas, recursos);
    return canvas.Imagem;
}

// Where the light red text of a one-band layout lies.
QRect TextoVermelho(const QImage &img) { return CaixaTinta(img, TintaDe(QColor(255, 0, 0)), QRect(0, 0, 300, 200)); }

}  // namespace

TEST(Pintor, LayoutVazioMostraSoOMarcadorDaPagina)
{
    for (bool paisagem : {false, true}) {
        LayoutDocumento doc;
        doc.Paisagem = paisagem;
        const QImage img = Pintar(doc);
        const int x = paisagem ? 1035 : 776, y = paisagem ? 784 : 1043;
        const QRgb cor = paisagem ? Verde : Ciano;
        EXPECT_TRUE(Todos(img, QRect(x, 0, 1, y + 1), cor) && Todos(img, QRect(0, y, x + 1, 1), cor)) << paisagem;
        // The label in light red, at x + 2 from the top.
        EXPECT_EQ(MarcadorDaPagina(paisagem).rotulo, paisagem ? QStringLiteral("A4 (Paisagem)") : QStringLiteral("A4 (Retrato)"));
        const QRect rotulo = CaixaTinta(img, TintaDe(QColor(255, 0, 0)));
        EXPECT_TRUE(rotulo.left() >= x + 2 && rotulo.left() <= x + 4 && rotulo.bottom() <= 12 && rotulo.width() > (paisagem ? 60 : 50))
            << rotulo.x() << "," << rotulo.y() << " " << rotulo.width();
        // Nothing else: no band, no outline.
        EXPECT_TRUE(Todos(img, QRect(0, 16, x, y - 16), Branco)) << paisagem;
    }
}

TEST(Pintor, ContornoFundoELinhasDaCelula)
{
    // Band 1 at top 16, 30 high; item 64 wide at x 8: the cell is x 8..71, y 16..45.
    Item it = Novo(QString());
    const QRect celula(8, 16, 64, 30), volta = celula.adjusted(-3, -3, 3, 3);
    QImage img = Pintar(UmaBanda(it, 30));
    EXPECT_TRUE(Contorno(img, celula, CinzaCelula));
    EXPECT_TRUE(Todos(img, celula.adjusted(1, 1, -1, -1), Branco));
    EXPECT_EQ(ContarPixels(img, volta, CinzaCelula), 2 * 64 + 2 * 28);

    // A background covers the outline exactly: basic, extended palette
    // (0000C6, dark red), and an F macro that overrides it and makes a
    // transparent item opaque.
    const struct { int fundo; const char *texto; QRgb cor; } fundos[] = {
        {12, "", Vermelho}, {16 + 8 * 5 + 1, "", qRgb(0xC6, 0, 0)},
        {CorTransparente, "<%_F,1,2,3_%>", qRgb(1, 2, 3)}, {5, "<%_F,1,2,3_%>", qRgb(1, 2, 3)}};
    for (const auto &f : fundos) {
        it.CorFundo = uint8_t(f.fundo);
        it.Texto = QString::fromLatin1(f.texto);
        img = Pintar(UmaBanda(it, 30));
        EXPECT_TRUE(Todos(img, celula, f.cor) && ContarPixels(img, volta, f.cor) == 64 * 30) << f.fundo;
    }

    // The six lines, thickness 3, cut from the cell.
    const std::pair<const char *, QRect> casos[] = {
        {"0000100000", QRect(8, 16, 64, 3)},    // position 5: top
        {"0001000000", QRect(8, 43, 64, 3)},    // position 4: bottom
        {"0000010000", QRect(8, 16, 3, 30)},    // position 6: left
        {"0100000000", QRect(69, 16, 3, 30)},   // position 2: right
        {"1000000000", QRect(8, 30, 64, 3)},    // position 1: middle, 16 + (31 - 3) / 2
        {"0010000000", QRect(39, 16, 3, 30)},   // position 3: middle, 8 + (65 - 3) / 2
    };
    it.Texto.clear();
    it.CorFundo = CorTransparente;
    it.CorLinha = 9;
    it.Espessura = 3;
    for (const auto &[linhas, esperado] : casos) {
        it.Linhas = QString::fromLatin1(linhas);
        img = Pintar(UmaBanda(it, 30));
        EXPECT_TRUE(Todos(img, esperado, Azul)) << linhas;
        EXPECT_EQ(ContarPixels(img, img.rect(), Azul), esperado.width() * esperado.height()) << linhas;
    }
    // All six at once, in an L macro's colour (one colour serves them all);
    // a thickness beyond the cell stays in it.
    it.Linhas = QStringLiteral("1111110000");
    it.Texto = QStringLiteral("<%_L,0,128,0_%>");
    EXPECT_TRUE(Todos(Pintar(UmaBanda(it, 30)), QRect(39, 16, 3, 30), qRgb(0, 128, 0)));
    it.Espessura = 64;
    it.Texto.clear();
    img = Pintar(UmaBanda(it, 30));
    EXPECT_TRUE(Todos(img, celula, Azul) && ContarPixels(img, img.rect(), Azul) == 64 * 30);
}

TEST(Pintor, TextoNaCelulaComCorRecorteEMacros)
{
    Item it = Novo(QStringLiteral("WWWWWWWWWWWW"), 40);
    it.CorTexto = 12;
    // The text rectangle is the cell less 2 pixels a side: x 10 .. 45, right edge out.
    QRect t = TextoVermelho(Pintar(UmaBanda(it)));
    EXPECT_TRUE(QRect(QPoint(10, 16), QPoint(44, 32)).contains(t)) << t.x() << "," << t.y() << " " << t.width();
    // Position 8: no clipping.
    it.Atributos = QStringLiteral("0000100110");
    EXPECT_GT(TextoVermelho(Pintar(UmaBanda(it))).right(), 100);

    // A T macro colours the text and is not shown.
    it.Atributos = QStringLiteral("0000100010");
    it.Texto = QStringLiteral("<%_T,0,128,0_%>WW");
    QImage img = Pintar(UmaBanda(it));
    EXPECT_TRUE(TextoVermelho(img).isEmpty());
    t = CaixaTinta(img, TintaDe(QColor(0, 128, 0)), QRect(0, 0, 300, 100));
    EXPECT_GE(t.left(), 10);
    EXPECT_LE(t.right(), 10 + 2 * 13);

    // Macros show their display form.
    it.Texto = QStringLiteral("(%_pag_%) de (%_PGS_%)");
    it.Largura = 200;
    const QImage macro = Pintar(UmaBanda(it));
    it.Texto = QStringLiteral("1 de 10");
    EXPECT_EQ(macro, Pintar(UmaBanda(it)));

    // An item narrower than 5 pixels shows no text, but its outline.
    it.Largura = 4;
    img = Pintar(UmaBanda(it));
    EXPECT_TRUE(TextoVermelho(img).isEmpty());
    EXPECT_TRUE(Todos(img, QRect(8, 16, 4, 1), CinzaCelula));

    // Centred (position 1); that justify overrides it, the measuring test shows.
    it.Largura = 200;
    it.Texto = QStringLiteral("Texto");
    it.Atributos = QStringLiteral("1000100010");
    EXPECT_GT(TextoVermelho(Pintar(UmaBanda(it))).left(), 80);
}

TEST(Pintor, TextoGiradoCaiNoQuadranteDoPontoInicial)
{
    // A 100 x 100 cell at (8, 16); the text area is x 10 .. 105.
    Item it = Novo(QStringLiteral("Abc"), 100);
    it.CorTexto = 12;
    const struct { char digito; bool direita, baixo; } casos[] = {
        {'0', false, false}, {'2', false, true}, {'4', true, true}, {'8', true, false}};
    for (const auto &c : casos) {
        it.Atributos = QStringLiteral("000010") + QLatin1Char(c.digito) + QStringLiteral("010");
        const QRect t = TextoVermelho(Pintar(UmaBanda(it, 100)));
        EXPECT_TRUE(QRect(c.direita ? 58 : 8, c.baixo ? 66 : 16, 50, 50).contains(t))
            << c.digito << ": " << t.x() << "," << t.y() << " " << t.width() << "x" << t.height();
    }
    // Not a digit: no angle; 2 wins over 4.
    EXPECT_EQ(std::pair(AnguloAtributos(QStringLiteral("000010E010")), AnguloAtributos(QStringLiteral("0000106010"))),
              std::pair(0, 90));
}

TEST(Pintor, MarcasDeQuebraDePaginaEComentario)
{
    LayoutDocumento doc;
    doc.Bandas = QList<Banda>(3, UmaBanda(Novo(QString()), 20).Bandas[0]);
    doc.banda(1).Comentario = QStringLiteral("* só comentário");
    doc.banda(2).Comentario = QStringLiteral("* com quebra");
    doc.Quebras = {2, 3};
    const QImage img = Pintar(doc);
    // Band 1 (16 .. 35): a bar x 2..4 in RGB(210, 210, 210).
    EXPECT_TRUE(Todos(img, QRect(2, 16, 3, 20), qRgb(210, 210, 210)));
    EXPECT_EQ(ContarPixels(img, QRect(0, 16, 8, 20), qRgb(210, 210, 210)), 60);
    // Band 2 (36 .. 55): grey bar x 1..5, the blue arrow over it.
    const int topo = 36, fundo = 56;
    for (const QRect &r : {QRect(3, topo, 4, 1), QRect(3, topo, 1, fundo - topo), QRect(2, fundo - 2, 3, 1), QRect(1, fundo - 3, 5, 1)})
        EXPECT_TRUE(Todos(img, r, Azul)) << r.x() << "," << r.y();
    EXPECT_EQ((std::array{img.pixel(1, topo + 1), img.pixel(5, topo + 1), img.pixel(6, topo + 1)}),
              (std::array{qRgb(192, 192, 192), qRgb(192, 192, 192), Branco}));
    // Band 3 (56 .. 75): the arrow without the bar.
    EXPECT_TRUE(Todos(img, QRect(3, 56, 1, 20), Azul));
    EXPECT_EQ(ContarPixels(img, QRect(0, 56, 8, 20), qRgb(192, 192, 192)), 0);
    // Shaft 20, the top line 3 more, the arrow heads 2 and 4 more.
    EXPECT_EQ(ContarPixels(img, QRect(0, 56, 8, 20), Azul), 20 + 3 + 2 + 4);
}

TEST(Pintor, BandaAutomaticaPintadaComAAlturaCalculada)
{
    // Band 1 is 19 high (the height test shows why): its bottom outline on
    // row 34, band 2's top on row 35.
    LayoutDocumento doc = UmaBanda(Novo(QStringLiteral("Texto 1")), 0);
    doc.Bandas.append(UmaBanda(Novo(QString())).Bandas[0]);
    EXPECT_TRUE(Todos(Pintar(doc), QRect(8, 34, 64, 2), CinzaCelula));
}

TEST(Pintor, FigurasDeArquivoErroEMarcador)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QImage vermelha(10, 6, QImage::Format_RGB32);
    vermelha.fill(Vermelho);
    const QString bmp = dir.filePath(QStringLiteral("f.bmp"));
    ASSERT_TRUE(vermelha.save(bmp, "BMP"));

    // Positions in a 64 x 30 cell at (8, 16): left/top, centre (1, 4), far
    // edge (2, 8); the centre is round(55 / 2) and round(25 / 2), halves to even.
    Item it = Novo(QStringLiteral("\"") + bmp + QStringLiteral("\""), 64, TipoFigura);
    for (const auto &[atributos, pos] : {std::pair{"0000100010", QPoint(8, 16)}, std::pair{"1010100010", QPoint(8 + 28, 16 + 12)},
                                         std::pair{"0101100010", QPoint(72 - 10, 46 - 6)}}) {
        it.Atributos = QString::fromLatin1(atributos);
        EXPECT_EQ(CaixaTinta(Pintar(UmaBanda(it, 30)), Exata(Vermelho)), QRect(pos, QSize(10, 6))) << atributos;
    }

    // A picture keeps its size: it is neither scaled nor cut by the cell.
    QImage grande(40, 50, QImage::Format_RGB32);
    grande.fill(Azul);
    const QString g = dir.filePath(QStringLiteral("g.jpg"));
    ASSERT_TRUE(grande.save(g, "JPG", 100));
    it.Texto = QStringLiteral("  \"") + g + QStringLiteral("\" ");
    it.Atributos = QStringLiteral("0000100010");
    EXPECT_EQ(CaixaTinta(Pintar(UmaBanda(it)), TintaDe(QColor(0, 0, 255))), QRect(8, 16, 40, 50));

    // GIF (one red pixel), ICO and CUR load as well.
    GravarArquivoTeste(dir.filePath(QStringLiteral("p.gif")),
                       QByteArray::fromHex("47494638396101000100800000ff00000000002c00000000010001000002024401003b"));
    QImage icone(16, 16, QImage::Format_ARGB32);
    icone.fill(QColor(0, 128, 0));
    ASSERT_TRUE(icone.save(dir.filePath(QStringLiteral("i.ico")), "ico") && icone.save(dir.filePath(QStringLiteral("i.cur")), "cur"));
    for (const auto &[nome, cor, lado] : {std::tuple{"p.gif", Vermelho, 1}, std::tuple{"i.ico", qRgb(0, 128, 0), 16},
                                          std::tuple{"i.cur", qRgb(0, 128, 0), 16}}) {
        it.Texto = dir.filePath(QString::fromLatin1(nome));
        EXPECT_EQ(CaixaTinta(Pintar(UmaBanda(it)), Exata(cor)), QRect(8, 16, lado, lado)) << nome;
    }

    // A missing file, a format the viewer cannot load and an empty name.
    ASSERT_TRUE(vermelha.save(dir.filePath(QStringLiteral("x.png")), "PNG"));
    for (const char *nome : {"nao_existe.bmp", "x.png"}) {
        it.Texto = dir.filePath(QString::fromLatin1(nome));
        EXPECT_TRUE(Mostra(Pintar(UmaBanda(it)), QPoint(8, 16), ImagemErro())) << nome;
    }
    it.Texto = QStringLiteral("\"\"");
    EXPECT_TRUE(Mostra(Pintar(UmaBanda(it, 40)), QPoint(8, 16), ImagemFigura()));
}

TEST(Pintor, AlturaDasBarrasDoCodigo)
{
    Item it = Novo(QString(), 120, TipoCode128B);
    // Clipped (position 8 "0"): the band less 12, but 40 at most unless
    // resized; digits hidden: the whole band. Not clipped: 40, or at least 40
    // when resized. At 90 and 270 degrees the item's width stands for the band.
    const struct { const char *atributos; int banda, altura; } casos[] = {
        {"0000000000", 30, 18}, {"0000000000", 52, 40}, {"0000000000", 53, 40}, {"0000000001", 80, 68},
        {"0000001000", 30, 30}, {"0000000100", 30, 40}, {"0000000100", 90, 40}, {"0000000101", 30, 40},
        {"0000000101", 90, 78}, {"0000002001", 30, 108}, {"0000008000", 30, 40}};
    for (const auto &c : casos) {
        it.Atributos = QString::fromLatin1(c.atributos);
        EXPECT_EQ(AlturaBarrasCodigo(it, c.banda), c.altura) << c.atributos << " " << c.banda;
    }
    // Type 37 never shows its digits.
    it.Tipo = TipoInterlace25SemNumeros;
    it.Atributos = QStringLiteral("0000000000");
    EXPECT_FALSE(MostrarDigitosCodigo(it));
}

TEST(Pintor, CodigoDeBarrasComoOSimboloNaAlturaDasBarras)
{
    // The canvas shows exactly the symbol drawn at the bars' height, each
    // module repeated by the magnification along it. A field shows the
    // sample value. Bars taller than the symbol drawn (a tall band, or a
    // wide item when turned) come from a shorter one whose middle row
    // repeats: digits and guards must land as if drawn whole. Type 37 has
    // no digits: its bars take their rows and fill the band.
    const struct { uint8_t tipo; const char *valor, *atributos; int largura, banda; } casos[] = {
        {TipoCode128B, "WS-CODIGO", "0000000020", 300, 60},  // magnification 2 doubles the length
        {TipoCode128B, "\"ABC\"", "0000002030", 60, 400},    // 90 degrees, 3 times down; 60 less 12 capped at 40
        {TipoEAN13, "\"789123456789\"", "0000000021", 300, 700}, {TipoEAN13, "\"789123456789\"", "0000002001", 700, 300},
        {TipoCode128B, "\"ABC\"", "0000004001", 300, 700},        {TipoCode39, "\"AB-1\"", "0000008001", 700, 300},
        {TipoInterlace25NumerosTopo, "\"1234\"", "0000000001", 300, 700},
        {TipoInterlace25SemNumeros, "\"1234\"", "0000002001", 700, 300},
        {TipoCode128C, "\"123456\"", "0000001001", 300, 700}, {TipoInterlace25SemNumeros, "\"1234\"", "0000000001", 300, 700},
    };
    for (const auto &c : casos) {
        Item it = Novo(QString::fromLatin1(c.valor), c.largura, c.tipo);
        it.Atributos = QString::fromLatin1(c.atributos);
        const int angulo = AnguloAtributos(it.Atributos);
        const bool deitado = angulo == 90 || angulo == 270;
        const QString valor = it.Texto.startsWith(u'"') ? QString(it.Texto).remove(u'"') : QStringLiteral("0123456789");
        const QImage inteiro =
            DesenharCodigoBarras(c.tipo, valor, AlturaBarrasCodigo(it, c.banda), MostrarDigitosCodigo(it), angulo);
        const int mag = MagnificacaoAtributos(it.Atributos);
        EXPECT_TRUE(Mostra(Pintar(UmaBanda(it, c.banda)), QPoint(8, 16), inteiro, deitado ? 1 : mag, deitado ? mag : 1))
            << c.tipo << " " << c.atributos;
    }

    // Centred in both directions.
    Item it = Novo(QStringLiteral("\"ABC\""), 300, TipoCode128B);
    it.Atributos = QStringLiteral("1010000010");
    const QImage abc = DesenharCodigoBarras(TipoCode128B, QStringLiteral("ABC"), 40, true, 0);
    const QPoint pos(8 + int(std::nearbyint((301 - abc.width()) / 2.0)), 16 + int(std::nearbyint((61 - 52) / 2.0)));
    EXPECT_TRUE(Mostra(Pintar(UmaBanda(it, 60)), pos, abc));

    // PDF417 grows across its rows.
    it.Tipo = TipoPDF417;
    it.Atributos = QStringLiteral("0000000020");
    it.Largura = 400;
    const QImage pdf = DesenharCodigoBarras(TipoPDF417, QStringLiteral("ABC"), 0, true, 0);
    EXPECT_EQ(CaixaTinta(Pintar(UmaBanda(it, 300)), Exata(Preto), QRect(8, 16, 400, 300)).height(),
              CaixaTinta(pdf, Exata(Preto)).height() * 2);
}

TEST(Pintor, BarraDeGrafico)
{
    Item it = Novo(QStringLiteral("\"25\""), 64, TipoBarraGrafico);
    it.Atributos = QStringLiteral("0001100010");  // bottom
    it.CorTexto = 9;
    it.CorFundo = 12;
    it.Linhas = QStringLiteral("1111110000");     // graph bars have no lines...
    it.CorLinha = 2;
    QImage img = Pintar(UmaBanda(it, 40));
    // ...and no background: a blue bar 64 x 25 on the bottom, outlined in red.
    const QRect barra(8, 56 - 25, 64, 25);
    EXPECT_TRUE(Todos(img, barra.adjusted(1, 1, -1, -1), Azul) && Contorno(img, barra, Vermelho));
    EXPECT_EQ(ContarPixels(img, img.rect(), Vermelho), 2 * 64 + 2 * 23);
    EXPECT_TRUE(Todos(img, QRect(9, 17, 62, 13), Branco));

    // A field shows 10; transparent outline; negative and zero values.
    it.CorFundo = CorTransparente;
    it.Atributos = QStringLiteral("0000100010");
    for (auto [texto, altura] : {std::pair{"WS-VALOR", 10}, std::pair{"\"-7\"", 7}, std::pair{"\"0\"", 1},
                                 std::pair{"\"12,6\"", 12}, std::pair{"\"12.6\"", 13}}) {
        it.Texto = QString::fromLatin1(texto);
        EXPECT_EQ(CaixaTinta(Pintar(UmaBanda(it, 40)), Exata(Azul)), QRect(8, 16, 64, altura)) << texto;
    }
    // Colour 80 or more: a black bar.
    it.CorTexto = 80;
    it.Texto = QStringLiteral("\"5\"");
    EXPECT_TRUE(Todos(Pintar(UmaBanda(it, 40)), QRect(8, 16, 64, 5), Preto));
}

TEST(Pintor, CrescimentoDoCanvasEMemoria)
{
    InterfaceRoteirizada ui;
    SessaoEdicao s;
    s.Ui = &ui;
    s.Documento.banda(1).Itens[0].Largura = 1500;
    for (int i = 0; i < 70; ++i)
        s.AddBanda(0, false, 18, 0);
    CanvasPagina canvas;
    canvas.TamanhoInicial(1000);
    RecursosCanvas recursos;
    ResultadoRepintura r = ExibirBanda(s.Documento, s.BandaSelecionada, canvas, recursos, s.Ui);
    EXPECT_TRUE(r.canvasCresceu && !r.memoriaInsuficiente);
    // The first band bottom past 1120 - 64 is 16 + 58 * 18 = 1060; the
    // canvas is then 1444 high and the last bottom, 1294, fits.
    EXPECT_EQ(canvas.Tamanho, QSize(1500 + 128, 1060 + 384));
    EXPECT_EQ(canvas.Imagem.size(), canvas.Tamanho);

    // A canvas too large for memory falls back to 2016 x 2016, once.
    for (int i = 0; i < 100; ++i)
        s.AddBanda(0, false, 18, 0);
    canvas.LimiteMemoria = 2100LL * 2100 * 4;
    for (bool primeira : {true, false}) {
        r = ExibirBanda(s.Documento, s.BandaSelecionada, canvas, recursos, s.Ui);
        EXPECT_EQ(r.memoriaInsuficiente, primeira);
        EXPECT_FALSE(canvas.TamanhoTotal);
        EXPECT_EQ(canvas.Imagem.size(), QSize(2016, 2016));
        ASSERT_EQ(ui.mensagens.size(), 1);
    }
    EXPECT_EQ(std::tuple(ui.mensagens[0].texto, ui.mensagens[0].titulo, ui.mensagens[0].icone),
              std::tuple(QStringLiteral("Memória insuficiente para exibir o layout no tamanho total!"), TituloAplicacao, Icone::Exclamacao));
}

