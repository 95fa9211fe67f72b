// The generated copybook compiled by a real COBOL compiler: a program that
// includes it must write the command file of the layout, line for line.
#include "output/CopiarComo.h"
#include "output/Linguagem.h"

#include "document/Texto1252.h"
#include "output/TextoComandos.h"
#include "support/TestSupport.h"

#include <QMap>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

const QString kCRLF = QStringLiteral("\r\n");

const auto item = teste::NovoItem;

// Every item type, fonts that change, frame lines, a margin variable, a band
// comment on both sides, long texts with accents, page breaks and options.
LayoutDocumento layoutCompleto(const QString &antes, const QString &depois)
{
    LayoutDocumento doc;
    doc.NomeImpressora = QStringLiteral("HP LaserJet 4");
    doc.MargemSuperior = QStringLiteral("\"100\"");
    doc.MargemEsquerda = QStringLiteral("WS-MARGEM");
    doc.MargemInferior = QStringLiteral("\"250\"");
    doc.TipoEmail = 4;
    doc.QualidadeJPG = 85;
    doc.TextoEmail = QStringLiteral("Prezado cliente,{ENTER}segue o relatório mensal de vendas em anexo."
                                    "{ENTER}Atenciosamente, Depto. Comercial");
    doc.Paisagem = doc.Imprimir = doc.Visivel = doc.TemCapa = doc.EnviarEmail = doc.QuebraPaginaFinal = true;

    Banda cab;
    cab.Altura = 30;
    Item titulo = item(TipoTexto, QStringLiteral("Relatório de Vendas — Filial São João"), 0, 400);
    titulo.Fonte = FonteItem{QStringLiteral("Arial"), 14, true, false, false, false};
    titulo.Atributos = QStringLiteral("0000100110");
    titulo.Linhas = QStringLiteral("0101000000");
    titulo.CorLinha = 4;
    titulo.Espessura = 2;
    titulo.CorTexto = 12;
    Item pagina = item(TipoTexto, QStringLiteral("Página (%_pag_%) de (%_pgs_%)"), 400, 160);
    pagina.Fonte = FonteItem{QStringLiteral("Arial"), 8, false, true, false, false};
    cab.Itens = {titulo, pagina};
    doc.Bandas.append(cab);
    doc.BandaCabecalho = 1;

    Banda corpo;
    corpo.Deslocamento = -12;
    corpo.Comentario = antes + QChar(0xFF) + depois;
    Item fundo = item(TipoTexto, QStringLiteral("Cliente:"), 0, 64);
    fundo.CorFundo = 7;
    fundo.Fonte.Nome = QStringLiteral("Courier New");
    corpo.Itens = {fundo,
                   item(TipoComando, QStringLiteral("WS-NOME"), 64, 120),
                   item(TipoFigura, QStringLiteral("\"logo.bmp\""), 184, 48),
                   item(TipoFigura, QStringLiteral("WS-FOTO"), 232, 48),
                   item(TipoFigura, QString(), 280, 16),
                   item(TipoBarraGrafico, QStringLiteral("\"35\""), 296, 40),
                   item(TipoBarraGrafico, QStringLiteral("WS-BARRA"), 336, 40),
                   item(TipoTexto, QStringLiteral("x"), 376, 4)};
    corpo.Itens[5].CorTexto = 2;
    corpo.Itens[5].CorFundo = 9;
    corpo.Itens[6].Linhas = QStringLiteral("1111000000");  // never an "L " line for a bar
    doc.Bandas.append(corpo);
    doc.QuebraPaginaAdd(2);

    Banda barras;
    barras.Altura = 0;
    barras.Deslocamento = 5;
    const std::pair<uint8_t, const char *> codigos[] = {
        {TipoEAN13, "\"7891234567895\""}, {TipoEAN8, "\"12345670\""},     {TipoCode39Check, "WS-CODIGO"},
        {TipoCode128C, "\"123456\""},     {TipoInterlace25, "\"1234\""}, {TipoCode39, "\"ABC-123\""},
        {TipoInterlace25SemNumeros, "\"5678\""}, {TipoInterlace25NumerosTopo, "\"9012\""},
        {TipoCode128B, "\"Code 128 B\""},
        {TipoPDF417, "\"PDF417 com um texto comprido o bastante para passar da coluna 72\""}};
    int x = 0;
    for (const auto &[tipo, valor] : codigos) {
        barras.Itens.append(item(tipo, QString::fromUtf8(valor), x, 72));
        x += 72;
    }
    doc.Bandas.append(barras);

    Banda detalhe;
    detalhe.Itens = {item(TipoTexto,
                          QStringLiteral("Observação: este texto é longo de propósito, com acentuação (ação, "
                                         "coração, pão), para que o COBOL o divida em várias linhas seguidas "
                                         "e as colunas sejam contadas em bytes."),
                          0, 700),
                     // Shorter than the one before, but still cut: STRING must not
                     // leave the end of the previous value behind.
                     item(TipoTexto, QStringLiteral("Segundo texto, mais curto que o anterior, mas além da coluna"),
                          700, 100)};
    detalhe.Itens[0].Atributos = QStringLiteral("1000000010");
    doc.Bandas.append(detalhe);

    Banda rodape;
    rodape.Itens = {item(TipoTexto, QStringLiteral("{n}Total geral:{/n} R$ 1.234,56"), 0, 300)};
    doc.Bandas.append(rodape);
    doc.BandaRodape = 5;
    return doc;
}

// The command text of layoutCompleto() as the program writes it: the host's
// data in place of a variable's name or a sample value, the text template's
// geometry (left + 2, width - 4) for pictures and barcodes, no line for a
// picture without text, the blank that ends "E " gone (a line sequential file
// drops it), and the band comment's lines "01 Antes da banda" before the
// band's first command (its page break) and "02 Depois da banda" after its
// last one.
QStringList comandosDoPrograma(const LayoutDocumento &doc)
{
    const QMap<QString, QString> proprias = {
        {QStringLiteral("E "), QStringLiteral("E")},
        {QStringLiteral("ME WS-MARGEM"), QStringLiteral("ME 012")},
        {QStringLiteral("T 009900066001160000100010WS-NOME"), QStringLiteral("T 009900066001160000100010Fulano de Tal")},
        {QStringLiteral("G 009900234000440000100010"), QStringLiteral("G 009900234000440000100010fundo.jpg")},
        {QStringLiteral("G 009900282000120000100010"), QString()},
        {QStringLiteral("Bc0099001460006800001000101234567890"), QStringLiteral("Bc009900146000680000100010CODE-39X")},
    };
    QStringList esperado;
    for (QString linha : GerarTextoComandos(doc).split(kCRLF, Qt::SkipEmptyParts)) {
        if (linha.startsWith(u'G') || linha.startsWith(u'B'))
            linha.replace(6, 10, QStringLiteral("%1%2").arg(linha.mid(6, 5).toInt() + 2, 5, 10, QLatin1Char('0'))
                                     .arg(linha.mid(11, 5).toInt() - 4, 5, 10, QLatin1Char('0')));
        linha = proprias.value(linha, linha);
        if (!linha.isEmpty())
            esperado.append(linha);
    }
    const qsizetype qp = esperado.indexOf(QStringLiteral("QP"));
    esperado.insert(qp, QStringLiteral("01 Antes da banda"));
    esperado.insert(esperado.indexOf(QStringLiteral("QL"), qp) + 1, QStringLiteral("02 Depois da banda"));
    return esperado;
}

}  // namespace

// The same layout's command text, whole: every option, font change, frame,
// item type, band offset and height, header, footer and page break.
TEST(TextoComandos, LayoutCompletoLinhaALinha)
{
    const LayoutDocumento doc = layoutCompleto(QStringLiteral("antes"), QStringLiteral("depois"));
    EXPECT_EQ(GerarTextoComandos(doc).split(kCRLF), QStringList({
        "I HP LaserJet 4", "MS 100", "ME WS-MARGEM", "MI 250", "EP 85",
        "ET Prezado cliente,{ENTER}segue o relatório mensal de vendas em anexo.{ENTER}Atenciosamente, Depto. Comercial",
        "IP", "IR", "SV", "TC", "E ", "F 141000Arial", "L 04990000000400010100000002",
        "T 129900002003960000100110Relatório de Vendas — Filial São João", "F 080100Arial",
        "T 009900402001560000100010Página (%_pag_%) de (%_pgs_%)", "RH 00030", "FC", "QP", "F 100000Courier New",
        "L 00070000000064000000000001", "T 009900002000600000100010Cliente:", "F 100000Arial",
        "T 009900066001160000100010WS-NOME", "G 009900184000480000100010logo.bmp", "G 009900232000480000100010",
        "G 009900280000160000100010", "LG02090029600040000010001035", "LG00990033600040000010001010", "RT -0012",
        "RH 00018", "QL", "Ba0099000000007200001000107891234567895", "Bb00990007200072000010001012345670",
        "Bc0099001440007200001000101234567890", "Bd009900216000720000100010123456", "Be0099002880007200001000101234",
        "Bf009900360000720000100010ABC-123", "Bg0099004320007200001000105678", "Bh0099005040007200001000109012",
        "Bi009900576000720000100010Code 128 B",
        "B0009900648000720000100010PDF417 com um texto comprido o bastante para passar da coluna 72", "RT 00005",
        "RH 00000", "QL",
        "T 009900002006961000000010Observação: este texto é longo de propósito, com acentuação (ação, coração, pão), para que o COBOL o divida em várias linhas seguidas e as colunas sejam contadas em bytes.",
        "T 009900702000960000100010Segundo texto, mais curto que o anterior, mas além da coluna", "RH 00018", "QL",
        "T 009900002002960000100010{n}Total geral:{/n} R$ 1.234,56", "RH 00018", "RO", "QP", ""}));
}

// The language that ships with the program, as a new user takes it: a
// program declares what its "Definição das variáveis" says, COPYs the
// copybook and writes the command file, line by line, with its own data.
TEST(CobolFimAFim, LinguagemCobolDistribuidaCompilaEGravaOsComandos)
{
    const QString cobc = QStandardPaths::findExecutable(QStringLiteral("cobc"));
    if (cobc.isEmpty())
        GTEST_SKIP() << "cobc (GnuCOBOL) is not installed; tools/install-deps.sh installs it";
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    LinguagemDef ling;
    const LeituraLin lida = LerArquivoLinguagem(QStringLiteral(LUMETA_DISTRIBUIDOS "/Cobol.lin"), ling);
    ASSERT_EQ(lida.resultado, ResultadoLin::Ok) << lida.mensagem.toStdString();
    ASSERT_TRUE(ling.EhCobol);

    // The band comment as the comment editor's tool writes a variable line,
    // inside an inline PERFORM: no generated statement may end its sentence.
    const auto linha = [&](const char *comando) {
        return QString(ling.ComandosSimples).replace(QStringLiteral("§c"), QString::fromUtf8(comando));
    };
    const LayoutDocumento doc =
        layoutCompleto(QStringLiteral("           perform 1 times\r\n") + linha("01 Antes da banda"),
                       linha("02 Depois da banda") + QStringLiteral("\r\n           end-perform"));
    teste::GravarArquivoTeste(dir.filePath(QStringLiteral("relatorio.cbl")),
                              teste::InicioProgramaCobol("primeiro", ling.DefVariaveis)
                                  + "       01 ws-nome pic x(30) value \"Fulano de Tal\".\n"
                                    "       01 ws-margem pic x(3) value \"012\".\n"
                                    "       01 ws-foto pic x(9) value \"fundo.jpg\".\n"
                                    "       01 ws-codigo pic x(8) value \"CODE-39X\".\n"
                                    "       01 ws-barra pic x(2) value \"10\".\n"
                                    "       procedure division.\n"
                                    "           open output ARQ-LUMETA\n"
                                    "           copy \"relatorio.cpy\".\n"
                                    "           close ARQ-LUMETA\n"
                                    "           stop run.\n");
    for (bool cobolString : {false, true}) {
        SCOPED_TRACE(cobolString ? "STRING" : "continuacao");
        ling.CobolString = cobolString;
        teste::GravarArquivoTeste(dir.filePath(QStringLiteral("relatorio.cpy")), Para1252(GerarCopiarComo(doc, ling)));
        QByteArray saida;
        ASSERT_EQ(teste::Rodar(cobc, {QStringLiteral("-x"), QStringLiteral("-o"), QStringLiteral("relatorio"),
                               QStringLiteral("relatorio.cbl")}, dir.path(), saida), 0) << saida.toStdString();
        EXPECT_TRUE(saida.isEmpty()) << saida.toStdString();  // not even a warning
        ASSERT_EQ(teste::Rodar(dir.filePath(QStringLiteral("relatorio")), {}, dir.path(), saida), 0) << saida.toStdString();
        // Line by line, for a readable report when they differ.
        EXPECT_EQ(De1252(teste::LerArquivo(dir.filePath(QStringLiteral("relatorio.txt")))).split(QLatin1Char('\n')),
                  comandosDoPrograma(doc) + QStringList{QString()});
    }
}
