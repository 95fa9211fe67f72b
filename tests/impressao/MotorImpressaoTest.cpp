// The print engine: how command text becomes pages, what it refuses, and
// that a band on paper is the band the canvas paints.

#include "canvas/Pintor.h"
#include "document/ArquivoLMT.h"
#include "document/Texto1252.h"
#include "impressao/MotorImpressao.h"
#include "output/TextoComandos.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QRandomGenerator>

namespace lumeta {
namespace {

// One band block: a text item 96 pixels wide and the band's height.
QString Bloco(const QString &texto, int altura, const char *fim = "QL", int rt = 0, bool quebra = false,
              const char *atributos = "0000100010")
{
    QString b;
    if (quebra)
        b += QStringLiteral("QP\r\n");
    b += QStringLiteral("F 100000Arial\r\nT 00990000200092") + QLatin1String(atributos) + texto + QStringLiteral("\r\n");
    if (rt)
        b += QStringLiteral("RT ") + Numero(rt, rt < 0 ? 4 : 5) + QStringLiteral("\r\n");
    return b + QStringLiteral("RH ") + Numero(altura, 5) + QStringLiteral("\r\n") + QLatin1String(fim)
        + QStringLiteral("\r\n");
}

QString Detalhes(int n, int altura, int primeiro = 1)
{
    QString t;
    for (int i = primeiro; i < primeiro + n; ++i)
        t += Bloco(QString::number(i), altura);
    return t;
}

struct Colocacao {
    QString texto;
    int topo, fundo;
};

// Every band of every page: its first text and where it stands.
std::vector<std::vector<Colocacao>> Paginas(MotorImpressao &m)
{
    std::vector<std::vector<Colocacao>> r;
    for (int p = 1; p <= m.NumPaginas(); ++p) {
        r.emplace_back();
        for (const auto &b : m.BandasDaPagina(p))
            r.back().push_back({b.banda.Itens.isEmpty() ? QString() : b.banda.Itens[0].Texto, b.topo, b.fundo});
    }
    return r;
}

std::vector<std::vector<Colocacao>> Imprimir(const QString &texto)
{
    MotorImpressao m;
    EXPECT_TRUE(m.AbrirTexto(texto, QStringLiteral("teste.txt"))) << m.Erro().toStdString();
    return Paginas(m);
}

QStringList Textos(const std::vector<Colocacao> &pagina)
{
    QStringList t;
    for (const auto &c : pagina)
        t << c.texto;
    return t;
}

TEST(Paginacao, BandsFlowAndBreakWhereTheBodyEnds)
{
    // 100-pixel bands: 10 fit in the 1027 rows of the area, 9 between a
    // 50-pixel header and a 30-pixel footer, 7 across a landscape page.
    struct Caso {
        const char *nome;
        QString texto;
        int paginas;
        int primeiraPagina;  // bands of page 1, header and footer included
        int segundaPagina;
    } casos[] = {
        {"sem cabeçalho", Detalhes(25, 100), 3, 10, 10},
        {"cabeçalho e rodapé", Bloco("cab", 50, "FC") + Detalhes(25, 100) + Bloco("rod", 30, "RO"), 3, 11, 11},
        {"capa sem cabeçalho e rodapé", "TC\r\n" + Bloco("cab", 50, "FC") + Detalhes(25, 100) + Bloco("rod", 30, "RO"),
         3, 10, 11},
        {"paisagem", "IP\r\n" + Detalhes(15, 100), 3, 7, 7},
        {"margens de 10 mm", "MS 010\r\nMI 010\r\n" + Detalhes(25, 100), 3, 9, 9},
        {"quebra antes da terceira", Bloco("1", 20) + Bloco("2", 20) + Bloco("3", 20, "QL", 0, true) + "QP\r\n", 2, 2, 1},
        {"quebra na primeira banda da página", Bloco("1", 20, "QL", 0, true) + Bloco("2", 20), 1, 2, 0},
        {"banda maior que a página", Bloco("1", 20) + Bloco("2", 2000) + Bloco("3", 20), 3, 1, 1},
        {"13 bandas de 79 enchem as 1027 linhas", Detalhes(14, 79), 2, 13, 1},
        {"só cabeçalho e rodapé", Bloco("cab", 50, "FC") + Bloco("rod", 30, "RO"), 1, 2, 0},
        {"nenhuma banda", QStringLiteral("QJ 92\r\n"), 1, 0, 0},
    };
    for (const Caso &c : casos) {
        SCOPED_TRACE(c.nome);
        const auto paginas = Imprimir(c.texto);
        ASSERT_EQ(int(paginas.size()), c.paginas);
        EXPECT_EQ(int(paginas[0].size()), c.primeiraPagina);
        if (c.paginas > 1) {
            EXPECT_EQ(int(paginas[1].size()), c.segundaPagina);
        }
    }
}

TEST(Paginacao, HeaderFooterAndBandPlacement)
{
    const auto p = Imprimir(Bloco("cab", 50, "FC") + Detalhes(25, 100) + Bloco("rod", 30, "RO"));
    for (const auto &pagina : p) {
        // Header at the top of the area, footer against its end (16 + 1027).
        EXPECT_EQ(pagina.front().texto, "cab");
        EXPECT_EQ(pagina.front().topo, 16);
        EXPECT_EQ(pagina.back().texto, "rod");
        EXPECT_EQ(pagina.back().fundo, 1043);
        EXPECT_EQ(pagina[1].topo, 66);
    }
    EXPECT_EQ(Textos(p[1]).mid(1, 2), QStringList({"10", "11"}));
    EXPECT_EQ(Textos(p[2]).mid(1, 7), QStringList({"19", "20", "21", "22", "23", "24", "25"}));
    // A footer band with RT -9999 stands level with the footer band above it.
    const auto r = Imprimir(Detalhes(2, 20) + Bloco("rod", 30, "RO") + Bloco("nota", 10, "QL", -9999));
    EXPECT_EQ(std::pair(r[0][2].topo, r[0][3].topo), std::pair(1013, 1013));

    // RT: against the previous band's bottom, never above its top; the top
    // margin moves the first band; an oversized band is cut at the body end.
    const auto q = Imprimir("MS 010\r\n" + Bloco("a", 20) + Bloco("b", 30, "QL", -9999) + Bloco("c", 10, "QL", -5)
                            + Bloco("d", 10, "QL", 12) + Bloco("e", 5000));
    ASSERT_EQ(q.size(), 2u);
    const int topo = 16 + 38;
    EXPECT_EQ(q[0][0].topo, topo);
    EXPECT_EQ(q[0][1].topo, topo);                    // level with "a"
    EXPECT_EQ(q[0][2].topo, topo + 30 - 5);           // "b" ends lower than "a"
    EXPECT_EQ(q[0][3].topo, topo + 35 + 12);
    EXPECT_EQ(q[1][0].texto, "e");
    EXPECT_EQ(q[1][0].fundo, topo + 5000);

    MotorImpressao m;
    ASSERT_TRUE(m.AbrirTexto(Bloco("e", 5000), QStringLiteral("x")));
    EXPECT_EQ(m.BandasDaPagina(1).at(0).limite, 1043);

    // The left margin moves the items on the sheet, 10 mm = 38 pixels.
    const QString fundo = QStringLiteral("L 00000000000096000000000001\r\n");
    int tinta[2] = {-1, -1};
    for (int i = 0; i < 2; ++i) {
        MotorImpressao comMargem;
        ASSERT_TRUE(comMargem.AbrirTexto((i ? "ME 010\r\n" : "") + fundo + Bloco("x", 20), "x"));
        const QImage pagina = ImagemPagina(comMargem, 1, 96);
        for (int x = 0; x < pagina.width() && tinta[i] < 0; ++x)
            if (pagina.pixel(x, 60) == qRgb(0, 0, 0))
                tinta[i] = x;
    }
    EXPECT_EQ(std::pair(tinta[0], tinta[1]), std::pair(13, 13 + 38));
}

TEST(Paginacao, AutomaticHeightsFollowThePrintedText)
{
    // "RH 00000": the band is as tall as its wrapped text, measured on the
    // data the host wrote, not on the layout's example.
    const QString longo = QString(QStringLiteral("palavra ")).repeated(40);
    const auto p = Imprimir(Bloco("curto", 0) + Bloco(longo, 0, "QL", 0, false, "0000000010") + Bloco("curto", 0));
    ASSERT_EQ(p.size(), 1u);
    const int curta = p[0][0].fundo - p[0][0].topo;
    const int alta = p[0][1].fundo - p[0][1].topo;
    EXPECT_GT(curta, 8);
    EXPECT_GT(alta, 8 * curta);
    EXPECT_EQ(p[0][2].topo, p[0][1].fundo);

    // Enough tall automatic bands overflow onto more pages.
    QString muitos;
    for (int i = 0; i < 12; ++i)
        muitos += Bloco(longo, 0, "QL", 0, false, "0000000010");
    const auto q = Imprimir(muitos);
    EXPECT_EQ(int(q.size()), (12 + int(q[0].size()) - 1) / int(q[0].size()));
    EXPECT_LE(q[0].back().fundo, 1043);
}

TEST(Paginacao, MacrosGetPagesAndVariablesAsThePageStartsAndEnds)
{
    // The header shows variable 01 as the page starts, the footer variable
    // 02 as the page ends: a running total of the page's lines.
    QString t = QStringLiteral("01 Cliente A\r\n") + Bloco("(%_01_%)", 50, "FC");
    int total = 0;
    for (int i = 1; i <= 25; ++i) {
        total += i;
        t += Bloco(QString::number(i), 100) + QStringLiteral("02 ") + QString::number(total) + QStringLiteral("\r\n");
        if (i == 12)
            t += QStringLiteral("01 Cliente B\r\n");
    }
    t += Bloco("Página (%_pag_%) de (%_pgs_%) - (%_zpg_%)/(%_zps_%) - (%_02_%) - [(%_77_%)]", 30, "RO");
    const auto p = Imprimir(t);
    ASSERT_EQ(p.size(), 3u);
    const QString rodapes[] = {"Página 1 de 3 - 00001/00003 - 45 - []", "Página 2 de 3 - 00002/00003 - 171 - []",
                               "Página 3 de 3 - 00003/00003 - 325 - []"};
    const char *cabecalhos[] = {"Cliente A", "Cliente A", "Cliente B"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(p[i].back().texto, rodapes[i]);
        EXPECT_EQ(p[i].front().texto, cabecalhos[i]);
    }

    MotorImpressao m;
    m.DefinirMomento(QDateTime(QDate(2026, 3, 7), QTime(9, 5, 4)));
    ASSERT_TRUE(m.AbrirTexto(Bloco("(%_dia_%)/(%_MES_%)/(%_ano_%) (%_hor_%):(%_min_%):(%_seg_%)", 20), "x"));
    EXPECT_EQ(m.BandasDaPagina(1).at(0).banda.Itens[0].Texto, "07/03/2026 09:05:04");
}

TEST(LeituraComandos, BadInputIsRefusedNamingTheLine)
{
    const QString bom = Bloco("a", 20);
    struct Caso {
        QByteArray texto;
        const char *motivo;
        int linha;
    } casos[] = {
        {Para1252(bom + "ZZ lixo\r\n"), "comando desconhecido", 5},
        {Para1252(bom + "F 100000Arial\r\nRH 00x18\r\nQL\r\n"), "número inválido", 6},
        {Para1252(bom + "L 000000000\r\nQL\r\n"), "linha incompleta", 5},
        {Para1252(bom + "T 0099000020009A0000100010x\r\nQL\r\n"), "número inválido", 5},
        {Para1252(bom + "F 10000xArial\r\nQL\r\n"), "estilo inválido", 5},
        {Para1252(bom + "MS abc\r\n"), "número inválido", 5},
        {Para1252(bom + "Bz0099000000010000000000001\r\nQL\r\n"), "comando desconhecido", 5},
        {Para1252(bom + "F 100000Arial\r\nT 009900002000920000100010x\r\nRH 00018"), "termina dentro de uma banda", 7},
        {Para1252(bom) + QByteArray(70000, 'x'), "linha longa demais", 5},
        {QByteArray(200000, '\0'), "linha longa demais", 1},
    };
    for (const Caso &c : casos) {
        SCOPED_TRACE(c.motivo);
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(c.texto);
        buffer->open(QIODevice::ReadOnly);
        MotorImpressao m;
        EXPECT_FALSE(m.Abrir(std::move(buffer), QStringLiteral("dados.txt")));
        EXPECT_EQ(m.NumPaginas(), 0);
        EXPECT_TRUE(m.Erro().startsWith("O arquivo de comandos 'dados.txt' não pode ser impresso")) << m.Erro().toStdString();
        EXPECT_TRUE(m.Erro().contains(c.motivo)) << m.Erro().toStdString();
        EXPECT_TRUE(m.Erro().contains(QStringLiteral("na linha %1.").arg(c.linha))) << m.Erro().toStdString();
    }
    // A device of endless zeros is refused at its first line.
    MotorImpressao zero;
    EXPECT_FALSE(zero.AbrirArquivo(QStringLiteral("/dev/zero")));
    EXPECT_TRUE(zero.Erro().contains("linha longa demais na linha 1")) << zero.Erro().toStdString();
}

// ---- Paper against the canvas ----

QImage Canvas(const LayoutDocumento &doc)
{
    QImage img(1120, 1120, QImage::Format_RGB32);
    QPainter p(&img);
    RecursosCanvas r;
    OpcoesPintura op;
    op.marcasEditor = false;
    PintarLayout(p, doc, img.rect(), r, op);
    return img;
}

// Each band of each page against the same band of the canvas, pixel for
// pixel, at 96 dpi: the page moves it by the area's corner and the page's
// own placement. Header and footer are compared where the canvas shows them
// too: the first page's header, the last page's footer.
void CompararComCanvas(LayoutDocumento doc, const QString &antes = QString())
{
    RecursosCanvas medida;
    PrepararLayoutAberto(doc, medida.Medidor);
    const QImage canvas = Canvas(doc);
    MotorImpressao m;
    ASSERT_TRUE(m.AbrirTexto(antes + GerarTextoComandos(doc), "x")) << m.Erro().toStdString();
    const QPoint origem = m.OrigemArea();
    const int cabecalho = doc.BandaCabecalho;
    const int rodape = doc.BandaRodape > cabecalho ? doc.NumBandas() - doc.BandaRodape + 1 : 0;
    int corpo = cabecalho, comparadas = 0;
    for (int p = 1; p <= m.NumPaginas(); ++p) {
        const QImage pagina = ImagemPagina(m, p, 96);
        const auto bandas = m.BandasDaPagina(p);
        for (int j = 0; j < int(bandas.size()); ++j) {
            int banda = -1;
            if (j < cabecalho)
                banda = p == 1 ? j : -1;
            else if (j >= int(bandas.size()) - rodape)
                banda = p == m.NumPaginas() ? doc.NumBandas() - (int(bandas.size()) - j) : -1;
            else
                banda = corpo++;
            if (banda < 0)
                continue;
            const auto &colocada = bandas[size_t(j)];
            const int altura = std::min(colocada.fundo, colocada.limite) - colocada.topo;
            const QRect noCanvas(8, doc.Bandas[banda].Topo, 768, altura);
            const QRect naPagina(origem.x(), origem.y() + colocada.topo - 16, 768, altura);
            ASSERT_EQ(canvas.copy(noCanvas), pagina.copy(naPagina)) << "página " << p << ", banda " << banda + 1;
            ++comparadas;
        }
    }
    EXPECT_EQ(comparadas, doc.NumBandas());
}

TEST(PapelECanvas, EachBandPrintsTheCanvasPixels)
{
    LayoutDocumento amostra;
    ASSERT_TRUE(AbrirArquivoLMT(QStringLiteral(LUMETA_TEST_DATA "/amostra_rica.lmt"), amostra).ok);
    // The canvas shows ten pages as a sample, and a sample symbol for a
    // field; paper has the real count and the value the host writes.
    for (Banda &b : amostra.Bandas)
        for (Item &it : b.Itens) {
            it.Texto.replace(QStringLiteral("(%_pgs_%)"), QStringLiteral("(%_pag_%)"));
            if (EhCodigoBarras(it.Tipo) && !it.Texto.startsWith(QLatin1Char('"')))
                it.Texto = QStringLiteral("\"0123456789\"");
        }
    // Its footer shows variable 07 as written, which is what the host gets
    // when it assigns that text.
    CompararComCanvas(amostra, QStringLiteral("07 (%_07_%)\r\n"));

    QRandomGenerator aleatorio(20261124);
    // An empty text with lines or a background is an "L " line alone.
    const char *textos[] = {"Total", "{n}Cliente{/n} especial com nome longo", "\"7891234567895\"", "\"42\"",
                            "Uma frase longa que quebra em várias linhas dentro da célula estreita", ""};
    const uint8_t tipos[] = {TipoTexto, TipoTexto, 31, 39, TipoBarraGrafico, TipoComando, TipoPDF417};
    for (int semente = 0; semente < 12; ++semente) {
        LayoutDocumento doc;
        const int bandas = 1 + aleatorio.bounded(5);
        for (int i = 0; i < bandas; ++i) {
            Banda b;
            b.Altura = aleatorio.bounded(3) == 0 ? 0 : 10 + aleatorio.bounded(120);
            b.Deslocamento = i > 0 && aleatorio.bounded(4) == 0 ? -aleatorio.bounded(30) : 0;
            const int itens = aleatorio.bounded(5);
            for (int k = 0; k < itens; ++k) {
                Item it;
                it.Tipo = tipos[aleatorio.bounded(int(std::size(tipos)))];
                it.Texto = QString::fromUtf8(textos[aleatorio.bounded(int(std::size(textos)))]);
                // A symbol of a field shows a sample on the canvas and
                // another in the command text: only fixed values compare.
                // An empty bar shows a sample on the canvas and is no line at all.
                if (EhCodigoBarras(it.Tipo) && !it.Texto.startsWith(QLatin1Char('"')))
                    it.Texto = QStringLiteral("\"1234\"");
                if (it.Tipo == TipoBarraGrafico && it.Texto.isEmpty())
                    it.Texto = QStringLiteral("\"10\"");
                it.Largura = 20 + aleatorio.bounded(200);
                it.CorFundo = aleatorio.bounded(3) == 0 ? uint8_t(aleatorio.bounded(16)) : CorTransparente;
                it.Linhas = aleatorio.bounded(2) ? QStringLiteral("1101100000") : QStringLiteral("0000000000");
                // Vertical centre, justify or hidden digits, 90 degrees,
                // no clipping, magnification: each at random.
                it.Atributos = QStringLiteral("0000100010");
                it.Atributos[2] = QLatin1Char('0' + aleatorio.bounded(2));
                it.Atributos[6] = QLatin1Char("0123"[aleatorio.bounded(4)]);
                it.Atributos[7] = QLatin1Char('0' + aleatorio.bounded(2));
                it.Atributos[8] = QLatin1Char('1' + aleatorio.bounded(2));
                it.Fonte.Tamanho = int16_t(8 + aleatorio.bounded(8));
                it.Fonte.Negrito = aleatorio.bounded(2);
                b.Itens.append(it);
            }
            doc.Bandas.append(b);
        }
        SCOPED_TRACE(semente);
        CompararComCanvas(doc);
    }
}

}  // namespace
}  // namespace lumeta
