// Language definition files: bytes on disk, defaults, names, listing, the
// messages of files that cannot be used, and the languages dialog's
// operations on the folder (adding, saving a changed template, removal).
#include "output/Linguagem.h"

#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"
#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace lumeta;
using teste::Bytes;

namespace {

class PastaLinguagensTeste : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(pasta.Valida()); }
    QString caminho(const QString &nome) const { return pasta.Caminho(nome); }
    QByteArray lido(const char *nome) const { return teste::LerArquivo(caminho(QString::fromUtf8(nome))); }
    // The one message shown since the last check: it starts with `inicio`.
    void mensagemUnica(const QString &inicio, Icone icone)
    {
        ASSERT_EQ(ui.mensagens.size(), 1);
        EXPECT_TRUE(ui.mensagens[0].texto.startsWith(inicio)) << ui.mensagens[0].texto.toStdString();
        EXPECT_EQ(ui.mensagens[0].icone, icone);
        ui.mensagens.clear();
    }

    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
};

QByteArray em1252(const char *utf8)
{
    QByteArray b;
    for (QChar c : QString::fromUtf8(utf8))
        b.append(char(c.unicode()));  // every test text is Latin-1, which 1252 shares here
    return b;
}

}  // namespace

TEST_F(PastaLinguagensTeste, NovaLinguagemGravaOsPadroesByteAByteEONomeDizSeECobol)
{
    LinguagemDef def;
    def.ComandoT = QStringLiteral("lixo de antes");
    ASSERT_TRUE(NovaLin(QStringLiteral("Cobol ANSI"), def, &ui));
    EXPECT_TRUE(def.EhCobol);
    EXPECT_EQ(CaminhoLinguagem(QStringLiteral("Cobol ANSI")), caminho(QStringLiteral("Cobol ANSI.lin")));

    const QByteArray esperado =
        Bytes()
            .i32(1)
            .str("")
            .str(em1252("*** Aqui podem ser inseridos comandos ou comentários iniciais ***"))
            .str(em1252("§c = Comando\r\n§t = Tamanho 9(2)\r\n§n = Negrito 9(1)\r\n§i = Itálico 9(1)\r\n"
                        "§s = Sublinhado 9(1)\r\n§r = Riscado 9(1)\r\n§f = Nome da Fonte x(n)"))
            .str(em1252("§c = Comando\r\n§cl = Cor da Linha 9(2)\r\n§cf = Cor do fundo 9(2)\r\n"
                        "§ei = Esquerda do item 9(5)\r\n§ci = Comprimento do item 9(5)\r\n"
                        "§ai = Alinhamento do item 9(10)\r\n§el = Espessura da linha 9(2)"))
            .str(em1252("§c = Comando\r\n§cl = Cor do texto 9(2)\r\n§cf = Cor do fundo 9(2)\r\n"
                        "§ei = Esquerda do item 9(5)\r\n§ci = Comprimento do item 9(5)\r\n"
                        "§ai = Alinhamento do item 9(10)\r\n§t = Texto x(n)"))
            .str(em1252("§c = Comando\r\n§rh = Row Height"))
            .str(em1252("§c = Comando"))
            .str("")
            .b;
    // One byte a character: "§" is A7 and "á" E1, never two UTF-8 bytes.
    EXPECT_EQ(lido("Cobol ANSI.lin"), esperado);

    // A name without "cobol" clears the flag on the next read.
    ASSERT_TRUE(NovaLin(QStringLiteral("Clipper"), def, &ui));
    def.EhCobol = true;
    ASSERT_TRUE(LerLinguagem(QStringLiteral("Clipper"), def, &ui));
    EXPECT_FALSE(def.EhCobol);
}

TEST_F(PastaLinguagensTeste, ModelosVaziosEAcentuadosNoArquivoEOLimiteDeUmModelo)
{
    LinguagemDef def;
    def.DefVariaveis = QStringLiteral("Itálico €");
    def.ComandoF = QStringLiteral("move \"§c§t\" to WS-L");
    def.ChamadaViewer = QString(65535, QLatin1Char('x'));
    ASSERT_TRUE(SalvarLin(QStringLiteral("acentos"), def, nullptr));
    const QByteArray b = lido("acentos.lin");
    // 9 bytes of "Itálico €": the euro sign is the single byte 80.
    EXPECT_EQ(b.mid(4, 11), QByteArray("\x09\x00It\xE1lico \x80", 11));
    // The empty opening comment is the two bytes 0, 0.
    EXPECT_EQ(b.mid(15, 2), QByteArray("\x00\x00", 2));
    EXPECT_EQ(b.size(), 4 + 8 * 2 + 9 + def.ComandoF.size() + 65535);

    LinguagemDef lida;
    ASSERT_TRUE(LerLinguagem(QStringLiteral("acentos"), lida, nullptr));
    EXPECT_EQ(ModelosLinguagem(lida), ModelosLinguagem(def));

    // One byte more than its count holds is refused.
    def.ComandoL = QString(65536, QLatin1Char('y'));
    EXPECT_FALSE(SalvarLin(QStringLiteral("acentos"), def, &ui));
    mensagemUnica(QStringLiteral("Ocorreu o erro 6 ao salvar a linguagem!\n\n"), Icone::Critico);
}

TEST_F(PastaLinguagensTeste, ArquivosHostisDaoAsMensagensSemQuebrar)
{
    const auto lerBytes = [&](const QByteArray &dados) {
        teste::GravarArquivoTeste(caminho(QStringLiteral("hostil.lin")), dados);
        teste::InterfaceRoteirizada ui;
        LinguagemDef def;
        def.ComandoT = QStringLiteral("anterior");
        const bool ok = LerLinguagem(QStringLiteral("hostil"), def, &ui);
        EXPECT_EQ(def.ComandoT, ok ? def.ComandoT : QStringLiteral("anterior"));  // untouched on failure
        return std::make_pair(ok, ui.mensagens);
    };
    const QString invalido = QStringLiteral("O arquivo '") + caminho(QStringLiteral("hostil.lin"))
        + QStringLiteral("' é inválido!");
    const QString curto = QStringLiteral("Ocorreu o erro 62 ao ler a linguagem!\n\nEntrada além do fim do arquivo");

    Bytes oito;
    oito.i32(1).str("ab").str("ab").str("ab").str("ab").str("ab").str("ab").str("ab").str("ab");
    struct Caso {
        const char *nome;
        QByteArray dados;
        QString mensagem;
    };
    const Caso casos[] = {
        {"versao 2", Bytes().i32(2).str("a").b, invalido},
        {"versao 1 em big-endian", Bytes().raw(QByteArray("\0\0\0\1", 4)).b, invalido},
        {"arquivo vazio", QByteArray(), invalido},
        {"tres bytes", QByteArray("\1\0\0", 3), invalido},
        {"so a versao", Bytes().i32(1).b, curto},
        {"contagem maxima sem bytes", Bytes().i32(1).str("a").str("b").i16(0xFFFF).raw("xyz").b, curto},
        {"contagem cortada", Bytes().i32(1).str("a").u8(5).b, curto},
        {"oitavo texto curto", oito.b.left(oito.b.size() - 1), curto},
        {"bytes depois do oitavo texto", oito.b + QByteArray(100000, '\xFF'), QString()},  // not the reader's concern
    };
    for (const Caso &c : casos) {
        SCOPED_TRACE(c.nome);
        const auto [ok, mensagens] = lerBytes(c.dados);
        EXPECT_EQ(ok, c.mensagem.isEmpty());
        ASSERT_EQ(mensagens.size(), c.mensagem.isEmpty() ? 0 : 1);
        if (!ok) {
            EXPECT_EQ(std::tuple(mensagens[0].texto, mensagens[0].titulo, mensagens[0].icone),
                      std::tuple(c.mensagem, QStringLiteral("Ler Linguagem"), c.mensagem == invalido ? Icone::Exclamacao : Icone::Critico));
        }
    }

    // Random garbage, and random cuts of a valid file: a message or success, never a crash.
    QRandomGenerator rng(20240611);
    const QByteArray valido = CodificarLin(LinguagemPadrao());
    for (int i = 0; i < 3000; ++i) {
        QByteArray d;
        if (i % 2) {
            d = valido.left(rng.bounded(int(valido.size()) + 1));
        } else {
            d.resize(rng.bounded(64));
            for (char &c : d)
                c = char(rng.bounded(256));
            if (i % 4 == 0 && d.size() >= 4)
                d.replace(0, 4, QByteArray("\1\0\0\0", 4));
        }
        LinguagemDef x;
        const LeituraLin r = DecodificarLin(d, x);
        if (r.resultado == ResultadoLin::Ok)
            ASSERT_EQ(CodificarLin(x), d.left(CodificarLin(x).size()));
        else
            ASSERT_TRUE(r.resultado == ResultadoLin::Invalido || r.resultado == ResultadoLin::ErroLeitura);
    }
}

TEST_F(PastaLinguagensTeste, NomesListaArquivoEmMaiusculasEPasta)
{
    for (auto [digitado, limpo] : {std::pair{"meu:cobol", "meu_cobol"}, std::pair{"a\\b/c:d*e?f\"g<h>i|j k.l", "a_b_c_d_e_f_g_h_i_j k.l"},
                                   std::pair{".", "_"}, std::pair{"..", "__"}})
        EXPECT_EQ(LimparNomeLinguagem(QString::fromLatin1(digitado)), QString::fromLatin1(limpo));
    for (auto [nome, cobol] : {std::pair{"meu_cobol", true}, std::pair{"xCoBoLx", true},
                               std::pair{"Cobo l", false}, std::pair{"Delphi", false}})
        EXPECT_EQ(NomeEhCobol(QString::fromLatin1(nome)), cobol) << nome;

    // The cleaned name is the one found, and the one the message names.
    LinguagemDef def;
    EXPECT_EQ(AdicionarLinguagem(QStringLiteral("meu:cobol"), def, &ui), QStringLiteral("meu_cobol"));
    EXPECT_TRUE(def.EhCobol);
    EXPECT_FALSE(AdicionarLinguagem(QStringLiteral("meu*cobol"), def, &ui));
    mensagemUnica(MensagemLinguagemExiste(QStringLiteral("meu_cobol")), Icone::Informacao);

    // A name of dots is a language the list shows, not a hidden file.
    ASSERT_TRUE(NovaLin(LimparNomeLinguagem(QStringLiteral("..")), def, &ui));
    for (const char *n : {"Zeta.lin", "alfa.lin", "Beta.LIN", "leia.txt", "semextensao"})
        teste::GravarArquivoTeste(caminho(QString::fromUtf8(n)), CodificarLin(LinguagemPadrao()));
    ASSERT_TRUE(QDir(pasta.Pasta()).mkdir(QStringLiteral("pasta.lin")));
    EXPECT_EQ(ListarLinguagens(true), (QStringList{"__", "alfa", "Beta", "meu_cobol", "Zeta"}));
    EXPECT_EQ(ListarLinguagens(false), (QStringList{"Beta", "Zeta", "__", "alfa", "meu_cobol"}));
    // A file named in capitals, as copied from another system, is read and
    // saved where it is.
    EXPECT_TRUE(LerLinguagem(QStringLiteral("Beta"), def, &ui));
    def.ComandoT = QStringLiteral("T");
    EXPECT_TRUE(SalvarLin(QStringLiteral("Beta"), def, &ui));
    EXPECT_EQ(lido("Beta.LIN"), CodificarLin(def));
    EXPECT_FALSE(QFile::exists(caminho(QStringLiteral("Beta.lin"))));
    EXPECT_FALSE(LerLinguagem(QStringLiteral("beta"), def, &ui));
    mensagemUnica(QStringLiteral("O Arquivo '"), Icone::Exclamacao);

    qunsetenv(VariavelPastaLinguagens);
    EXPECT_EQ(PastaLinguagens(), QCoreApplication::applicationDirPath());
}

TEST_F(PastaLinguagensTeste, ModeloComQuebrasSimplesLongoDemaisERemocaoQuePergunta)
{
    LinguagemDef def;
    ASSERT_TRUE(NovaLin(QStringLiteral("C"), def, &ui));
    // A template written with bare line feeds keeps them, and is not rewritten
    // when left as it was.
    def.ComandoL = QStringLiteral("a\nb");
    EXPECT_FALSE(AtualizarModelo(QStringLiteral("C"), def, 2, QStringLiteral("a\nb"), &ui));
    EXPECT_TRUE(AtualizarModelo(QStringLiteral("C"), def, 2, QStringLiteral("a\nc"), &ui));
    EXPECT_EQ(def.ComandoL, QStringLiteral("a\nc"));
    const QByteArray gravado = lido("C.lin");
    EXPECT_EQ(gravado, CodificarLin(def));

    // A template too long for its 16-bit count is refused: the file (which a
    // save replaces, never appends to) and the definition stay as they were.
    EXPECT_FALSE(AtualizarModelo(QStringLiteral("C"), def, 0, QString(70000, u'x'), &ui));
    mensagemUnica(QStringLiteral("Ocorreu o erro "), Icone::Critico);
    EXPECT_TRUE(def.DefVariaveis.isEmpty());
    EXPECT_EQ(lido("C.lin"), gravado);

    // Removal asks first: "No" keeps the file.
    ui.respostas = {Resposta::Nao};
    EXPECT_FALSE(RemoverLinguagem(QStringLiteral("C"), &ui));
    EXPECT_TRUE(LinguagemExiste(QStringLiteral("C")));
    ASSERT_EQ(ui.perguntas.size(), 1);
    EXPECT_EQ(std::tuple(ui.perguntas[0].texto, ui.perguntas[0].titulo, ui.perguntas[0].icone),
              std::tuple(QStringLiteral("Confirma a exclusão da linguagem 'C'?"), QStringLiteral("Excluir Linguagem"), Icone::Pergunta));
}
