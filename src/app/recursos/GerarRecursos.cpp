// Writes the files that ship beside the program and are made by its own
// writers: the ready language "Cobol" and the example layouts of the Help
// menu. The build runs it into the program's folder.
//
//   lumeta_recursos PASTA

#include "document/ArquivoLMT.h"
#include "document/ModuloLumetaEdit.h"
#include "output/Linguagem.h"

#include <QDir>
#include <QStringList>
#include <cstdio>

namespace lumeta {
namespace {

QString linhas(std::initializer_list<const char *> l)
{
    QStringList r;
    for (const char *t : l)
        r.append(QString::fromUtf8(t));
    return r.join(QStringLiteral("\r\n"));
}

// Every command line is a "move" of one literal to a field and a WRITE, in
// the shape the COBOL splitter knows how to cut at column 72. The value of a
// text, picture, barcode or bar is moved on its own, so that a host field can
// take the place of the literal ("§t" between quotes), and is joined to the
// fixed part by STRING; "~" marks the end of the fixed part, whose last blank
// must stay. No statement ends a sentence, so a band's comment can wrap the
// band's code in an inline PERFORM ... END-PERFORM.
LinguagemDef linguagemCobol()
{
    const char *const grava = "           write REG-LUMETA from WS-LINHA";
    const char *const junta1 = "           move spaces to WS-LINHA";
    const char *const junta2 = "           string WS-LUMETA-CMD delimited by \"~\"";
    const char *const junta3 = "                  WS-LUMETA-VALOR delimited by size into WS-LINHA";
    LinguagemDef d;
    d.DefVariaveis = linhas({
        "      * Definições do programa que usa um copybook da linguagem Cobol",
        "      * do LumetaEdit.",
        "      *",
        "      * Na FILE-CONTROL:",
        "      *    select ARQ-LUMETA assign to WS-LUMETA-ARQUIVO",
        "      *        organization is line sequential.",
        "      * Na FILE SECTION:",
        "      * fd  ARQ-LUMETA.",
        "      * 01  REG-LUMETA                 pic x(2000).",
        "      * Na WORKING-STORAGE SECTION:",
        "       01  WS-LUMETA-ARQUIVO          pic x(256) value \"relatorio.txt\".",
        "       01  WS-LUMETA-CMD              pic x(40).",
        "       01  WS-LUMETA-VALOR            pic x(2000).",
        "       01  WS-LINHA                   pic x(2000).",
    });
    d.ComentarioInicial = linhas({
        "      * Gerado pelo LumetaEdit: cada comando do layout vira uma linha",
        "      * de ARQ-LUMETA, que o programa abre antes deste COPY.",
    });
    d.ComandoF = linhas({"           move \"§c§t§n§i§s§r§f\" to WS-LINHA", grava});
    d.ComandoL = linhas({"           move \"§c§cl§cf§ei§ci§ai§el\" to WS-LINHA", grava});
    d.ComandoT = linhas({"           move \"§c§cl§cf§ei§ci§ai~\" to WS-LUMETA-CMD",
                         "           move \"§t\" to WS-LUMETA-VALOR", junta1, junta2, junta3, grava});
    d.ComandoRH = linhas({"           move \"§c ~\" to WS-LUMETA-CMD", "           move \"§rh\" to WS-LUMETA-VALOR",
                          junta1, junta2, junta3, grava});
    d.ComandosSimples = linhas({"           move \"§c\" to WS-LINHA", grava});
    d.ChamadaViewer = linhas({
        "      * Depois de fechar ARQ-LUMETA:",
        "           call \"SYSTEM\" using \"Lumeta.exe /G relatorio.txt /T Relatorio\"",
    });
    return d;
}

// --- example layouts ----------------------------------------------------------

const QString Caixa = QStringLiteral("0101110000");     // top, bottom, left and right lines
const QString Acima = QStringLiteral("0000100000");     // the top line
const QString AcimaAbaixo = QStringLiteral("0001100000");
const QString Direita = QStringLiteral("0100100010");   // right-aligned, one line
const QString Centro = QStringLiteral("1000100010");    // centred, one line

Item item(uint8_t tipo, const QString &texto, int largura, const FonteItem &fonte = {},
          const QString &atributos = QStringLiteral("0000100010"))
{
    Item it;
    it.Tipo = tipo;
    it.Texto = texto;
    it.Largura = largura;
    it.Fonte = fonte;
    it.Atributos = atributos;
    return it;
}

Item texto(const QString &t, int largura, const FonteItem &fonte = {}, const QString &atributos = QStringLiteral("0000100010"))
{
    return item(TipoTexto, t, largura, fonte, atributos);
}

Item campo(const QString &t, int largura, const FonteItem &fonte = {}, const QString &atributos = QStringLiteral("0000100010"))
{
    return item(TipoComando, t, largura, fonte, atributos);
}

FonteItem fonte(int tamanho, bool negrito = false, bool italico = false)
{
    FonteItem f;
    f.Tamanho = int16_t(tamanho);
    f.Negrito = negrito;
    f.Italico = italico;
    return f;
}

Banda banda(int altura, QList<Item> itens)
{
    Banda b;
    b.Altura = altura;
    b.Itens = std::move(itens);
    return b;
}

void comLinhas(Banda &b, const QString &linhas, uint8_t fundo = CorTransparente)
{
    for (Item &it : b.Itens) {
        it.Linhas = linhas;
        it.CorFundo = fundo;
    }
}

LayoutDocumento finalizar(LayoutDocumento doc)
{
    doc.ReposicionarTudo();
    return doc;
}

// An invoice: the company, the customer, the column titles that end the
// header, one band per item line, the total that starts the footer, and a
// barcode of the payment slip.
LayoutDocumento fatura()
{
    LayoutDocumento doc;
    const FonteItem titulo = fonte(16, true);
    doc.Bandas.append(banda(40, {texto(QStringLiteral("Comercial Exemplo Ltda."), 480, titulo),
                                 texto(QStringLiteral("FATURA"), 272, titulo, Direita)}));
    doc.Bandas.append(banda(18, {texto(QStringLiteral("Rua das Flores, 100 - Centro - São Paulo - SP"), 480, fonte(9)),
                                 texto(QStringLiteral("Fatura nº"), 120, fonte(10, true), Direita),
                                 campo(QStringLiteral("WS-NUMERO"), 152, fonte(10, true), Direita)}));
    doc.Bandas.append(banda(18, {texto(QStringLiteral("Cliente:"), 64, fonte(10, true)),
                                 campo(QStringLiteral("WS-CLIENTE"), 416),
                                 texto(QStringLiteral("Emissão:"), 80, fonte(10, true), Direita),
                                 texto(QStringLiteral("(%_dia_%)/(%_mes_%)/(%_ano_%)"), 192, {}, Direita)}));
    Banda colunas = banda(20, {texto(QStringLiteral("Código"), 96, fonte(10, true)),
                               texto(QStringLiteral("Descrição"), 368, fonte(10, true)),
                               texto(QStringLiteral("Qtd."), 64, fonte(10, true), Direita),
                               texto(QStringLiteral("Preço unit."), 112, fonte(10, true), Direita),
                               texto(QStringLiteral("Total"), 112, fonte(10, true), Direita)});
    comLinhas(colunas, AcimaAbaixo, 7);
    doc.Bandas.append(colunas);
    doc.BandaCabecalho = doc.NumBandas();
    doc.Bandas.append(banda(18, {campo(QStringLiteral("WS-CODIGO"), 96), campo(QStringLiteral("WS-DESCRICAO"), 368),
                                 campo(QStringLiteral("WS-QTD"), 64, {}, Direita),
                                 campo(QStringLiteral("WS-PRECO"), 112, {}, Direita),
                                 campo(QStringLiteral("WS-TOTAL-ITEM"), 112, {}, Direita)}));
    Banda total = banda(22, {texto(QStringLiteral("Total da fatura:"), 640, fonte(11, true), Direita),
                             campo(QStringLiteral("WS-TOTAL"), 112, fonte(11, true), Direita)});
    comLinhas(total, Acima);
    doc.Bandas.append(total);
    doc.BandaRodape = doc.NumBandas();
    Item barras = item(TipoInterlace25, QStringLiteral("WS-CODIGO-BARRAS"), 400, {}, QStringLiteral("0000100011"));
    doc.Bandas.append(banda(50, {barras, texto(QStringLiteral("Página (%_pag_%) de (%_pgs_%)"), 352, fonte(8), Direita)}));
    return finalizar(doc);
}

// Product labels: name in a box, an EAN-13 barcode and the price.
LayoutDocumento etiquetas()
{
    LayoutDocumento doc;
    Banda nome = banda(22, {campo(QStringLiteral("WS-PRODUTO"), 384, fonte(12, true), Centro)});
    comLinhas(nome, Caixa);
    doc.Bandas.append(nome);
    Item ean = item(TipoEAN13, QStringLiteral("WS-EAN"), 192, {}, QStringLiteral("0000100011"));
    doc.Bandas.append(banda(64, {ean, texto(QStringLiteral("R$"), 40, fonte(14, true), Direita),
                                 campo(QStringLiteral("WS-PRECO"), 152, fonte(20, true), Direita)}));
    // Taller than its text: the gap below each label.
    doc.Bandas.append(banda(40, {texto(QStringLiteral("Validade:"), 72, fonte(8)),
                                 campo(QStringLiteral("WS-VALIDADE"), 312, fonte(8))}));
    return finalizar(doc);
}

// Sales per month with a bar of a bar chart on every line.
LayoutDocumento vendas()
{
    LayoutDocumento doc;
    doc.Bandas.append(banda(32, {texto(QStringLiteral("Vendas por mês - (%_ano_%)"), 752, fonte(14, true), Centro)}));
    Banda colunas = banda(20, {texto(QStringLiteral("Mês"), 128, fonte(10, true)),
                               texto(QStringLiteral("Vendas (R$)"), 128, fonte(10, true), Direita),
                               texto(QStringLiteral("Participação no ano"), 496, fonte(10, true))});
    comLinhas(colunas, AcimaAbaixo);
    doc.Bandas.append(colunas);
    doc.BandaCabecalho = doc.NumBandas();
    Item barra = item(TipoBarraGrafico, QStringLiteral("WS-PERCENTUAL"), 496);
    barra.CorTexto = 9;
    barra.CorFundo = 9;
    doc.Bandas.append(banda(20, {campo(QStringLiteral("WS-MES"), 128), campo(QStringLiteral("WS-VALOR"), 128, {}, Direita),
                                 barra}));
    doc.Bandas.append(banda(18, {texto(QStringLiteral("Emitido em (%_dia_%)/(%_mes_%)/(%_ano_%) às (%_hor_%):(%_min_%)"),
                                       752, fonte(8, false, true), Direita)}));
    doc.BandaRodape = doc.NumBandas();
    return finalizar(doc);
}

bool gravar(const QString &caminho, const QByteArray &dados)
{
    const ResultadoArquivo r = GravarArquivo(caminho, dados);
    if (!r.ok)
        std::fprintf(stderr, "%s\n", qPrintable(r.mensagem));
    return r.ok;
}

}  // namespace
}  // namespace lumeta

int main(int argc, char **argv)
{
    using namespace lumeta;
    if (argc != 2) {
        std::fprintf(stderr, "Uso: lumeta_recursos PASTA\n");
        return 2;
    }
    const QDir pasta(QString::fromLocal8Bit(argv[1]));
    if (!pasta.mkpath(PastaExemplos)) {
        std::fprintf(stderr, "Não foi possível criar a pasta dos exemplos em %s\n", argv[1]);
        return 1;
    }
    bool ok = gravar(pasta.filePath(QStringLiteral("Cobol.lin")), CodificarLin(linguagemCobol()));
    const std::pair<const char *, LayoutDocumento> exemplos[] = {
        {"Fatura.lmt", fatura()}, {"Etiquetas de produto.lmt", etiquetas()}, {"Vendas por mês.lmt", vendas()}};
    for (const auto &[nome, doc] : exemplos)
        ok = gravar(pasta.filePath(PastaExemplos + QLatin1Char('/') + QString::fromUtf8(nome)), GravarLMT(doc)) && ok;
    return ok ? 0 : 1;
}
