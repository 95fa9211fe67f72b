// Copy-as code: template filling, the COBOL splitter line by line, the
// copybook file and its place in saving a layout.
#include "output/CopiarComo.h"

#include "document/ArquivoLMT.h"
#include "editing/SessaoEdicao.h"
#include "document/Texto1252.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

const QString kCRLF = QStringLiteral("\r\n");

QString linhas(std::initializer_list<QString> l)
{
    QString r;
    for (const QString &s : l)
        r += s + kCRLF;
    return r;
}

QString em(int n)
{
    return QString(n, QLatin1Char(' '));
}

// The COBOL code of the command text's own example: one item of 200 pixels
// at 0, only the text template filled (the other templates are empty).
QStringList codigoDoExemplo(const QString &texto, bool cobolString)
{
    LayoutDocumento doc;
    doc.Bandas.append(Banda{});
    doc.Bandas[0].Itens.append(teste::NovoItem(TipoTexto, texto, 0, 200));
    LinguagemDef l;
    l.ComandoT = QStringLiteral("           move \"§c§cl§cf§ei§ci§ai§t\" to WS-LINHA.");
    l.EhCobol = true;
    l.CobolString = cobolString;
    return GerarCopiarComo(doc, l).split(kCRLF, Qt::SkipEmptyParts);
}

}  // namespace

TEST(CopiarComo, ExemploDoMoveCurtoMantidoELongoQuebradoNasDuasFormas)
{
    for (bool forma : {false, true})
        EXPECT_EQ(codigoDoExemplo(QStringLiteral("Total"), forma),
                  QStringList{"           move \"T 009900002001960000100010Total\" to WS-LINHA."});

    // Continuation: the open literal runs to column 72, goes on after a "-" in
    // column 7, and the rest of the statement follows on its own line.
    const QString quarenta = QStringLiteral("Relatorio mensal de vendas por filial 01");
    EXPECT_EQ(codigoDoExemplo(quarenta, false),
              (QStringList{"           move \"T 009900002001960000100010Relatorio mensal de vendas po",
                           "      -    \"r filial 01\"", em(14) + " to WS-LINHA."}));

    // STRING: the target is cleared, the literal is cut into closed pieces
    // ending in column 72, and "to" becomes "delimited by size into".
    EXPECT_EQ(codigoDoExemplo(quarenta, true),
              (QStringList{"           move spaces to WS-LINHA.",
                           "           string \"T 009900002001960000100010Relatorio mensal de vendas\"",
                           "           \" por filial 01\"", em(14) + " delimited by size into WS-LINHA."}));
}

TEST(QuebrarLinhasCobol, LimitesAspasCaudaELinhasIncompletas)
{
    const auto x = [](int n, char c) { return QString(n, QLatin1Char(c)); };
    const QString cont = QStringLiteral("      -    \""), l72 = em(11) + "move \"" + x(49, 'a') + "\" to X";
    const QString semAspas = em(11) + QStringLiteral("MOVE WS-CAMPO-COM-NOME-BEM-COMPRIDO-DEMAIS TO WS-OUTRO-CAMPO-MUITO-LONGO");
    const QString longa = em(11) + "MOVE \"" + x(150, 'x') + "\" TO WS-V", ate72 = em(11) + "move \"" + x(55, 'b') + "\" to Y";
    const QString semCauda = em(11) + "display \"" + x(70, 'd') + "\"";
    const struct {
        QString entrada;
        bool string;
        QString saida;
    } casos[] = {
        // Exactly 72 stays; text after the last line end is dropped.
        {l72 + kCRLF + "resto sem fim de linha", false, l72 + kCRLF},
        {"sem fim de linha", false, QString()},
        {kCRLF + kCRLF, true, linhas({QString(), QString()})},
        // In the STRING form the limit is 71: the same line becomes a STRING
        // statement whose one literal already fits.
        {l72 + kCRLF, true, linhas({em(11) + "move spaces to X", em(11) + "string \"" + x(49, 'a') + "\"",
                                    em(14) + " delimited by size into X"})},
        // A long line without a literal is left long, "move" and all.
        {semAspas + kCRLF, true, semAspas + kCRLF},
        // Upper-case MOVE and TO are found; several cuts for a long literal.
        {longa + kCRLF, false, linhas({em(11) + "MOVE \"" + x(55, 'x'), cont + x(60, 'x'), cont + x(35, 'x') + "\"",
                                       em(14) + " TO WS-V"})},
        {longa + kCRLF, true, linhas({em(11) + "move spaces TO WS-V", em(11) + "string \"" + x(52, 'x') + "\"",
                                      em(11) + "\"" + x(59, 'x') + "\"", em(11) + "\"" + x(39, 'x') + "\"",
                                      em(14) + " delimited by size into WS-V"})},
        // A cut that leaves only the closing quote: the continuation line keeps
        // it, or the literal would stay open; the STRING form writes no empty literal.
        {ate72 + kCRLF, false, linhas({ate72.left(72), cont + "\"", em(14) + " to Y"})},
        {em(11) + "move \"" + x(52, 'c') + "\" to Y" + kCRLF, true,
         linhas({em(11) + "move spaces to Y", em(11) + "string \"" + x(52, 'c') + "\"", em(14) + " delimited by size into Y"})},
        // A literal that ends the line has no tail; lines are treated one by one.
        {"curta" + kCRLF + semCauda + kCRLF + "fim" + kCRLF, false,
         linhas({QStringLiteral("curta"), semCauda.left(72), cont + x(18, 'd') + "\"", QStringLiteral("fim")})},
    };
    ASSERT_EQ(l72.size(), 72);
    for (const auto &c : casos)
        EXPECT_EQ(QuebrarLinhasCobol(c.entrada, c.string), c.saida) << c.entrada.toStdString();
}

TEST(CopiarComo, MarcadoresOrdemDeTrocaComentariosELinhasSoltas)
{
    LayoutDocumento doc;
    doc.MargemSuperior = QStringLiteral("\"15\"");
    doc.MargemEsquerda = QStringLiteral("WS-MARG");
    doc.BandaCabecalho = 1;
    doc.EnviarEmail = true;  // "E ": its blank is part of the command
    Banda b;
    const auto item = teste::NovoItem;
    b.Comentario = QStringLiteral("A") + QChar(0xFF) + QStringLiteral("B");
    b.Itens = {item(TipoTexto, QStringLiteral("Nome"), 0, 100),
               item(TipoComando, QStringLiteral("WS-NOME"), 100, 100),
               item(TipoBarraGrafico, QStringLiteral("\"35\""), 700, 100),
               item(99, QStringLiteral("tipo desconhecido"), 809, 50)};
    b.Itens[2].CorTexto = 3;
    b.Itens[2].CorFundo = 5;
    b.Itens[3].Fonte.Sublinhado = true;
    doc.Bandas.append(b);
    Banda soAntes, soDepois;
    soAntes.Comentario = QStringLiteral("só antes");
    soDepois.Comentario = QChar(0xFF) + QStringLiteral("só depois");
    doc.Bandas += {soAntes, soDepois};

    LinguagemDef l;
    l.ComentarioInicial = QStringLiteral("// início");
    l.ComandoRH = QStringLiteral("MOVE '§rh' TO X §c");
    l.ComandosSimples = QStringLiteral("S §c");
    l.ComandoF = QStringLiteral("F §c|§t|§n§i§s§r|§f");
    l.ComandoL = QStringLiteral("L");
    // "§c" is replaced last: "§cl", "§cf" and "§ci" are not cut short by it.
    l.ComandoT = QStringLiteral("§c|§cl|§cf|§ei|§ci|§ai|bare=§t|q='§t'|d=\"§t\"");
    l.DefVariaveis = l.ChamadaViewer = QStringLiteral("never inserted");
    EXPECT_EQ(GerarCopiarComo(doc, l),
              linhas({QStringLiteral("// início"), QStringLiteral("MOVE '15' TO X MS"), QStringLiteral("MOVE WS-MARG TO X ME"),
                      QStringLiteral("S QJ 92"), QStringLiteral("S E "), QString(),
                      QStringLiteral("A"),
                      QStringLiteral("F F |10|0000|Arial"),
                      QStringLiteral("T |00|99|00002|00096|0000100010|bare=Nome|q='Nome'|d=\"Nome\""),
                      QStringLiteral("T |00|99|00102|00096|0000100010|bare=§t|q=WS-NOME|d=WS-NOME"),
                      QStringLiteral("LG|03|05|00700|00100|0000100010|bare=35|q='35'|d=\"35\""),
                      QStringLiteral("F F |10|0010|Arial"),
                      QStringLiteral("T |00|99|00811|00046|0000100010|bare=tipo desconhecido|q='tipo desconhecido'"
                                     "|d=\"tipo desconhecido\""),
                      QStringLiteral("MOVE '00018' TO X RH"), QStringLiteral("S FC"), QStringLiteral("B"), QString(),
                      QStringLiteral("só antes"), QStringLiteral("MOVE '00018' TO X RH"), QStringLiteral("S QL"), QString(),
                      QStringLiteral("MOVE '00018' TO X RH"), QStringLiteral("S QL"), QStringLiteral("só depois"),
                      QString()}));

    // Line feeds typed in a plain editor come out as CR LF; a COBOL
    // language's opening comment keeps its last line.
    LinguagemDef lf;
    lf.ComandosSimples = QStringLiteral("a\nb");
    lf.ComentarioInicial = QStringLiteral("c\r\nd\n");
    EXPECT_TRUE(GerarCopiarComo(LayoutDocumento(), lf)
                    .startsWith(linhas({QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("a"), QStringLiteral("b")})));
    lf.EhCobol = true;
    lf.ComentarioInicial = QStringLiteral("      * um\r\n      * dois");
    EXPECT_TRUE(GerarCopiarComo(LayoutDocumento(), lf).startsWith(linhas({QStringLiteral("      * um"), QStringLiteral("      * dois")})));
}

namespace {

class CopybookTeste : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(pasta.Valida());
        ling.ComentarioInicial = QStringLiteral("      * Relatório");
        ling.ComandosSimples = QStringLiteral("           move \"§c\" to WS-LINHA");
        ling.ComandoRH = QStringLiteral("           move \"§c §rh\" to WS-LINHA");
        ling.ComandoF = ling.ComandosSimples;
        ling.ComandoT = QStringLiteral("           move \"§c§cl§cf§ei§ci§ai§t\" to WS-LINHA");
        ASSERT_TRUE(SalvarLin(QStringLiteral("Cobol Teste"), ling, nullptr));
        ling.EhCobol = true;
    }
    QString caminho(const QString &nome) const { return pasta.Caminho(nome); }

    teste::ConfigTemporaria config;
    teste::PastaLinguagensTemporaria pasta;
    LinguagemDef ling;
};

}  // namespace

TEST_F(CopybookTeste, ArquivoEm1252PerguntaAntesDeSubstituir)
{
    SessaoEdicao s;
    s.Documento.banda(1).Itens[0].Texto = QStringLiteral("Preço à vista, um texto longo o bastante para a quebra");
    teste::InterfaceRoteirizada ui;
    const QString cpy = caminho(QStringLiteral("saida.cpy"));
    QString codigo;
    ASSERT_EQ(CopiarComo(s.Documento, ling, cpy, &ui, &codigo), ResultadoCopiarComo::Gravado);
    EXPECT_EQ(codigo, GerarCopiarComo(s.Documento, ling));

    // An existing file: the question; "No" leaves it alone, "Yes" replaces it.
    teste::GravarArquivoTeste(cpy, "antigo");
    ui.respostas = {Resposta::Nao, Resposta::Sim};
    EXPECT_EQ(CopiarComo(s.Documento, ling, cpy, &ui), ResultadoCopiarComo::Recusado);
    ASSERT_EQ(ui.perguntas.size(), 1);
    EXPECT_EQ(std::tuple(ui.perguntas[0].texto, ui.perguntas[0].titulo, ui.perguntas[0].icone),
              std::tuple(cpy + QStringLiteral("\n\nO arquivo acima já existe!\n\nDeseja substituí-lo?"), QStringLiteral("Salvar"), Icone::Pergunta));
    EXPECT_EQ(teste::LerArquivo(cpy), QByteArray("antigo"));
    EXPECT_EQ(CopiarComo(s.Documento, ling, cpy, &ui), ResultadoCopiarComo::Gravado);
    EXPECT_EQ(teste::LerArquivo(cpy), Para1252(codigo));

    // No file: only the text, for the clipboard.
    QString texto;
    EXPECT_EQ(CopiarComo(s.Documento, ling, QString(), &ui, &texto), ResultadoCopiarComo::Texto);
    EXPECT_EQ(texto, codigo);
    // A file that cannot be written (its message: the save-with-copybook test).
    EXPECT_EQ(CopiarComo(s.Documento, ling, caminho(QStringLiteral("sem/pasta.cpy")), &ui), ResultadoCopiarComo::Erro);

    EXPECT_EQ(CaminhoCopybook(QStringLiteral("/x/REL.LMT")), QStringLiteral("/x/REL.cpy"));
}

TEST_F(CopybookTeste, SalvarLayoutGravaOCopybookQuandoHaLinguagemEMesmoComFalhaSalvaOLayout)
{
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
    s.Ui = &ui;
    s.Documento.banda(1).Itens[0].Texto = QString(60, QLatin1Char('z'));
    const QString lmt = caminho(QStringLiteral("rel.lmt"));
    const QString cpy = caminho(QStringLiteral("rel.cpy"));

    // No language chosen: only the layout.
    s.NomeArquivo = lmt;
    ASSERT_TRUE(s.SalvarLMT(false));
    EXPECT_TRUE(QFile::exists(lmt) && !QFile::exists(cpy));

    // The setting is read at the moment of saving; the STRING choice comes
    // from the session's settings.
    Configuracoes c;
    c.CPY = QStringLiteral("Cobol Teste");
    c.GravarCPY();
    s.Config.NoCobolUsarString = false;
    ASSERT_TRUE(s.SalvarLMT(false));
    LinguagemDef esperado = ling;
    esperado.CobolString = false;
    EXPECT_EQ(teste::LerArquivo(cpy), Para1252(GerarCopiarComo(s.Documento, esperado)));
    EXPECT_TRUE(ui.mensagens.isEmpty());

    // Saving again asks about the copybook; "No" keeps it and still saves the layout.
    s.Documento.banda(1).Altura = 40;
    ui.respostas = {Resposta::Nao};
    const QByteArray cpyAntes = teste::LerArquivo(cpy);
    ASSERT_TRUE(s.SalvarLMT(false));
    EXPECT_EQ(ui.perguntas.size(), 1);
    EXPECT_EQ(teste::LerArquivo(cpy), cpyAntes);
    EXPECT_EQ(teste::LerArquivo(lmt), GravarLMT(s.Documento));

    // A copybook that cannot be written is reported; the layout is saved all the same.
    const QString lmt2 = caminho(QStringLiteral("dois.lmt"));
    ASSERT_TRUE(QDir(pasta.Pasta()).mkdir(QStringLiteral("dois.cpy")));
    s.NomeArquivo = lmt2;
    ui.respostas = {Resposta::Sim};
    ASSERT_TRUE(s.SalvarLMT(false));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_TRUE(ui.mensagens[0].texto.startsWith(QStringLiteral("Ocorreu um erro ao gravar o arquivo '")
                                                  + caminho(QStringLiteral("dois.cpy"))));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Exclamacao);
    EXPECT_EQ(teste::LerArquivo(lmt2), GravarLMT(s.Documento));

    // A language that is gone: its message, and the layout is saved.
    c.CPY = QStringLiteral("Sumiu");
    c.GravarCPY();
    ui.mensagens.clear();
    s.NomeArquivo = caminho(QStringLiteral("tres.lmt"));
    ASSERT_TRUE(s.SalvarLMT(false));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto,
              QStringLiteral("O Arquivo '") + caminho(QStringLiteral("Sumiu.lin")) + QStringLiteral("' não foi encontrado!"));
    EXPECT_TRUE(QFile::exists(caminho(QStringLiteral("tres.lmt"))) && !QFile::exists(caminho(QStringLiteral("tres.cpy"))));
}
