// Files under bad conditions, on the real thing: a disk filled to the last
// byte, device nodes, FIFOs, folders, /dev/zero as input and /dev/full as the
// CLI's standard output. Nothing old may be lost and no message may carry the
// system's English text. Then the command-line tool as scripts call it: bytes
// on stdout, messages on stderr, exit status.
#include "controls/ModuloAssociar.h"
#include "document/ArquivoDisco.h"
#include "document/ArquivoLMT.h"
#include "document/ModuloLumetaEdit.h"
#include "document/Texto1252.h"
#include "editing/SessaoEdicao.h"
#include "output/CopiarComo.h"
#include "output/Linguagem.h"
#include "output/TextoComandos.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"
#include "support/TestSupport.h"
#include "support/VariavelTemporaria.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

using namespace lumeta;

namespace {

// English from the system or from Qt: any errno text, or words they use.
void SemIngles(const QString &mensagem)
{
    for (int e = 1; e < 134; ++e)
        EXPECT_FALSE(mensagem.contains(QString::fromLocal8Bit(std::strerror(e)))) << mensagem.toStdString();
    static const QRegularExpression ingles(
        QStringLiteral("\\b(file|error|such|denied|directory|space|device|writable|existing|unknown)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    EXPECT_FALSE(ingles.match(mensagem).hasMatch()) << mensagem.toStdString();
}

QStringList Entradas(const QString &pasta)
{
    return QDir(pasta).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

using teste::Execucao;

// The CLI (or a shell that starts it); its standard output goes to a file
// when one is named, else it is kept.
Execucao Cli(const QStringList &args, const QString &arquivoSaida = QString(),
             const QString &programa = QStringLiteral(LUMETA_CLI), const QString &pasta = QString())
{
    return teste::Executar(programa, args, pasta, false, arquivoSaida);
}

// A tmpfs of a few pages in a temporary folder, unmounted at the end.
class DiscoPequeno {
public:
    DiscoPequeno()
    {
        if (::geteuid() != 0) {
            motivo = "montar um tmpfs exige root";
            return;
        }
        if (::mount("tmpfs", qPrintable(dir.path()), "tmpfs", 0, "size=64k,mode=0755") != 0) {
            motivo = std::string("mount falhou: errno ") + std::to_string(errno);
            return;
        }
        montado = true;
    }
    ~DiscoPequeno()
    {
        if (montado)
            ::umount2(qPrintable(dir.path()), MNT_DETACH);
    }
    // Takes every byte left, first in blocks, then one byte at a time.
    void Encher()
    {
        const int fd = ::open(qPrintable(dir.filePath(QStringLiteral("enchimento"))), O_WRONLY | O_CREAT, 0644);
        const QByteArray bloco(4096, 'z');
        while (::write(fd, bloco.constData(), size_t(bloco.size())) > 0) {
        }
        while (::write(fd, "z", 1) > 0) {
        }
        ::close(fd);
    }
    QTemporaryDir dir;
    bool montado = false;
    std::string motivo;
};

}  // namespace

TEST(ArquivoDisco, DiscoCheioNaoApagaNadaEDizDiscoCheio)
{
    DiscoPequeno disco;
    if (!disco.montado)
        GTEST_SKIP() << disco.motivo;
    const QString pasta = disco.dir.path();
    const QString lmt = pasta + QStringLiteral("/keep.lmt");
    SessaoEdicao s;
    ASSERT_TRUE(GravarArquivoLMT(lmt, s.Documento).ok);
    const QByteArray antigo = teste::LerArquivo(lmt);
    const QString lin = pasta + QStringLiteral("/Cobol.lin");
    ASSERT_EQ(GravarArquivoLinguagem(lin, LinguagemPadrao()).resultado, ResultadoLin::Ok);
    const QByteArray linAntiga = teste::LerArquivo(lin);
    disco.Encher();
    const QStringList antes = Entradas(pasta);

    for (int b = 0; b < 40; ++b)
        s.AddBanda(0, false, 30, 500);
    // The CLI's "novo" and a copybook reach the disk through this same writer.
    EXPECT_EQ(GravarArquivoLMT(lmt, s.Documento).mensagem,
              QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + lmt + QStringLiteral("!\n\n61 - Disco cheio"));

    LinguagemDef maior = LinguagemPadrao();
    maior.ComandoT = QString(20000, QLatin1Char('t'));
    EXPECT_EQ(GravarArquivoLinguagem(lin, maior).mensagem,
              QStringLiteral("Ocorreu o erro 61 ao salvar a linguagem!\n\nDisco cheio"));
    teste::InterfaceRoteirizada ui;
    EXPECT_FALSE(GravarRegistro(pasta, 1, QStringLiteral("keep.lmt"), QByteArray(8000, 'r'), true, false, &ui));
    EXPECT_TRUE(ui.mensagens.back().texto.endsWith(QStringLiteral("Ocorreu o erro: 61 - Disco cheio")));

    EXPECT_EQ(teste::LerArquivo(lmt), antigo);
    EXPECT_EQ(teste::LerArquivo(lin), linAntiga);
    EXPECT_EQ(Entradas(pasta), antes);  // no temporary file left behind
}

// The null and full devices. As root the test makes its own nodes, so a
// writer that replaces devices destroys only those; /dev itself is safe from
// any other user.
struct Dispositivos {
    QString nulo = QStringLiteral("/dev/null"), cheio = QStringLiteral("/dev/full");
    explicit Dispositivos(const QTemporaryDir &dir)
    {
        if (::geteuid() != 0)
            return;
        nulo = dir.filePath(QStringLiteral("null"));
        cheio = dir.filePath(QStringLiteral("full"));
        EXPECT_EQ(::mknod(qPrintable(nulo), S_IFCHR | 0666, makedev(1, 3)), 0);
        EXPECT_EQ(::mknod(qPrintable(cheio), S_IFCHR | 0666, makedev(1, 7)), 0);
    }
};

bool EhDispositivo(const QString &caminho)
{
    struct stat st;
    return ::stat(qPrintable(caminho), &st) == 0 && S_ISCHR(st.st_mode);
}

TEST(ArquivoDisco, DispositivoEFifoNuncaSaoSubstituidosEPastaERecusada)
{
    const QByteArray dados = GravarLMT(SessaoEdicao().Documento);
    QTemporaryDir dir;
    const Dispositivos dev(dir);
    // Written into, and still a device afterwards (the full one: the CLI's
    // barcode below).
    EXPECT_FALSE(GravarArquivoAtomico(dev.nulo, dados));
    EXPECT_TRUE(EhDispositivo(dev.nulo));

    const QString fifo = dir.filePath(QStringLiteral("fifo.lmt"));
    ASSERT_EQ(::mkfifo(qPrintable(fifo), 0644), 0);
    // Nobody reads it: refused at once instead of blocking.
    EXPECT_EQ(GravarArquivoAtomico(fifo, dados).numero, 68);
    const int leitor = ::open(qPrintable(fifo), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(leitor, 0);
    EXPECT_FALSE(GravarArquivoAtomico(fifo, dados));
    QByteArray lido(dados.size() + 10, '\0');
    lido.resize(::read(leitor, lido.data(), size_t(lido.size())));
    ::close(leitor);
    EXPECT_EQ(lido, dados);
    struct stat st;
    ASSERT_EQ(::stat(qPrintable(fifo), &st), 0);
    EXPECT_TRUE(S_ISFIFO(st.st_mode));

    const QString pasta = dir.filePath(QStringLiteral("pasta.lmt"));
    ASSERT_TRUE(QDir().mkdir(pasta));
    EXPECT_EQ(GravarArquivo(pasta, dados).mensagem,
              QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + pasta
                  + QStringLiteral("!\n\n75 - Erro de acesso ao caminho/arquivo"));
    EXPECT_TRUE(QFileInfo(pasta).isDir());
    EXPECT_FALSE(Entradas(dir.path()).join(u' ').contains(QLatin1Char('.') + QStringLiteral("fifo.lmt.")));
}

TEST(ArquivoDisco, LeitorOlhaOCabecalhoPrimeiroERecusaOQueNaoEArquivo)
{
    QTemporaryDir dir;
    const QString fifo = dir.filePath(QStringLiteral("fifo.lmt"));
    ASSERT_EQ(::mkfifo(qPrintable(fifo), 0644), 0);
    const QString acesso = QStringLiteral("Erro de acesso ao caminho/arquivo");
    for (const QString &c : {QStringLiteral("/dev/zero"), fifo, dir.path()}) {
        LayoutDocumento d;
        const ResultadoArquivo r = AbrirArquivoLMT(c, d);
        EXPECT_EQ(r.mensagem, MensagemErroAbrir(c, acesso));
        LinguagemDef ling;
        EXPECT_EQ(LerArquivoLinguagem(c, ling).mensagem,
                  QStringLiteral("Ocorreu o erro 75 ao ler a linguagem!\n\n") + acesso);
    }
    // A huge file of another kind: refused from its header, nothing more read.
    const QString enorme = dir.filePath(QStringLiteral("enorme.lmt"));
    teste::GravarArquivoTeste(enorme, QByteArray(40, 'x'));
    ASSERT_TRUE(QFile::resize(enorme, qint64(64) << 30));
    LayoutDocumento d;
    EXPECT_EQ(AbrirArquivoLMT(enorme, d).leitura, ResultadoLeitura::FormatoInvalido);

    // The CLI on an endless input ends at once, within a memory limit where
    // the build lets one be set (the address sanitizer reserves more).
#if defined(__SANITIZE_ADDRESS__)
    const QString limite;
#else
    const QString limite = QStringLiteral("ulimit -v 400000; ");
#endif
    const Execucao r = Cli({QStringLiteral("-c"), limite + QStringLiteral("exec \"$0\" texto /dev/zero"),
                            QStringLiteral(LUMETA_CLI)},
                           QString(), QStringLiteral("/bin/sh"));
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.erros, MensagemErroAbrir(QStringLiteral("/dev/zero"), acesso) + u'\n');
}

TEST(ArquivoDisco, SaidaPadraoCheiaEFalhasDeArquivoFalamPortugues)
{
    QTemporaryDir dir;
    const QString lmt = dir.filePath(QStringLiteral("a.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(lmt, SessaoEdicao().Documento).ok);
    Execucao r = Cli({QStringLiteral("texto"), lmt}, QStringLiteral("/dev/full"));
    EXPECT_EQ(r.codigo, 1);
    EXPECT_EQ(r.erros,
              QStringLiteral("Ocorreu um erro ao gravar a saída padrão!\n\n61 - Disco cheio\n"));
    const Dispositivos dev(dir);
    r = Cli({QStringLiteral("codigo-barras"), QStringLiteral("36"), QStringLiteral("A"), dev.cheio});
    EXPECT_EQ(r.erros,
              QStringLiteral("Não foi possível gravar o arquivo ") + dev.cheio + QStringLiteral("\n\n61 - Disco cheio\n"));
    EXPECT_TRUE(EhDispositivo(dev.cheio));

    // Each failure with the number a Portuguese system gives it.
    const QString semPasta = dir.filePath(QStringLiteral("nao/existe.lmt"));
    const QString falta = dir.filePath(QStringLiteral("falta.lmt"));
    EXPECT_TRUE(GravarArquivo(semPasta, "abc").mensagem.endsWith(QStringLiteral("!\n\n76 - Caminho não encontrado")));
    if (::geteuid() != 0) {  // root may write anything
        const QString somenteLeitura = dir.filePath(QStringLiteral("ro.lmt"));
        teste::GravarArquivoTeste(somenteLeitura, "x");
        QFile::setPermissions(somenteLeitura, QFile::ReadOwner);
        EXPECT_TRUE(GravarArquivo(somenteLeitura, "abc").mensagem.endsWith(QStringLiteral("!\n\n70 - Permissão negada")));
    }
    LayoutDocumento d;
    EXPECT_EQ(AbrirArquivoLMT(falta, d).mensagem, MensagemErroAbrir(falta, QStringLiteral("Arquivo não encontrado")));
    EXPECT_EQ(AbrirArquivoLMT(semPasta, d).mensagem, MensagemErroAbrir(semPasta, QStringLiteral("Caminho não encontrado")));
    // A file where a folder should be: no number above names it.
    teste::InterfaceRoteirizada ui;
    EXPECT_FALSE(GravarRegistro(lmt, 1, QStringLiteral("v"), "abc", true, false, &ui));
    ASSERT_EQ(ui.mensagens.size(), 1);
    SemIngles(ui.mensagens[0].texto);
}

TEST(ArquivoDisco, ArquivoGravavelEmPastaSomenteLeituraEReescritoNoLugar)
{
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("layout.lmt"));
    teste::GravarArquivoTeste(caminho, QByteArray(300, 'v'));
    const QByteArray dados = GravarLMT(SessaoEdicao().Documento);
    // Root writes into any folder: a user without rights to it does the save.
    const uid_t usuario = ::geteuid() == 0 ? 65534 : ::geteuid();
    ASSERT_EQ(::chown(qPrintable(caminho), usuario, gid_t(-1)), 0);
    ASSERT_EQ(::chmod(qPrintable(dir.path()), 0555), 0);
    const pid_t filho = ::fork();
    if (filho == 0) {
        if (::geteuid() == 0 && ::setuid(usuario) != 0)
            ::_exit(100);
        ::_exit(GravarArquivoAtomico(caminho, dados).numero);
    }
    int estado = 0;
    ::waitpid(filho, &estado, 0);
    ::chmod(qPrintable(dir.path()), 0755);
    ASSERT_TRUE(WIFEXITED(estado));
    EXPECT_EQ(WEXITSTATUS(estado), 0);
    EXPECT_EQ(teste::LerArquivo(caminho), dados);
}

TEST(ArquivoDisco, NomesQueNaoSaoUtf8ChegamAoArquivo)
{
    for (const QByteArray &nome : {QByteArray("caf\xE9.lmt"), QByteArray("rela\xC3\xA7\xC3\xA3o \xFF\xFE.lmt"),
                                   QByteArray("a\xED\xA0\x80z"), QByteArray("\xC3")})
        EXPECT_EQ(NomeParaSistema(NomeDoSistema(nome)), nome);
    EXPECT_EQ(NomeDoSistema("rela\xC3\xA7\xC3\xA3o"), QStringLiteral("relação"));

    // A Latin-1 name from the command line: created, then read back.
    QTemporaryDir dir;
    const QByteArray bruto = QFile::encodeName(dir.path()) + "/caf\xE9.lmt";
    const Execucao r = Cli({QStringLiteral("-c"),
                            QStringLiteral("f=\"$1/$(printf 'caf\\351.lmt')\"; \"$0\" novo \"$f\" && exec \"$0\" texto \"$f\""),
                            QStringLiteral(LUMETA_CLI), dir.path()},
                           QString(), QStringLiteral("/bin/sh"));
    ASSERT_EQ(r.codigo, 0) << r.erros.toStdString();
    struct stat st;
    ASSERT_EQ(::stat(bruto.constData(), &st), 0);
    EXPECT_EQ(st.st_size, GravarLMT(SessaoEdicao().Documento).size());
    // Qt cannot name this file to remove it with its folder.
    EXPECT_EQ(::unlink(bruto.constData()), 0);
}

namespace {

bool Link(const QString &alvo, const QString &nome)
{
    return ::symlink(QFile::encodeName(alvo).constData(), QFile::encodeName(nome).constData()) == 0;
}

}  // namespace

TEST(ArquivoDisco, ArquivosTemporariosSoNumaPastaPrivadaENuncaAtravesDeUmLink)
{
    QTemporaryDir raiz;
    ASSERT_TRUE(raiz.isValid());
    const teste::VariavelTemporaria tmpdir("TMPDIR", raiz.path());
    const teste::VariavelTemporaria execucao("XDG_RUNTIME_DIR", QString());
    const QString vitima = raiz.filePath(QStringLiteral("vitima"));
    teste::GravarArquivoTeste(vitima, "original");

    // The old attack: a link named like the preview file in the shared folder.
    ASSERT_TRUE(Link(vitima, raiz.filePath(QStringLiteral("Lumeta.tmp"))));
    // The folder's name taken by a link, by another user's folder and by a
    // folder others can enter: each is passed over.
    const QString base = raiz.filePath(QStringLiteral("lumetaedit-") + QString::number(::geteuid()));
    ASSERT_TRUE(QDir().mkdir(raiz.filePath(QStringLiteral("alheia"))));
    ASSERT_TRUE(Link(raiz.filePath(QStringLiteral("alheia")), base));
    ASSERT_TRUE(QDir().mkdir(base + QStringLiteral("-1")));
    ASSERT_EQ(::chmod(QFile::encodeName(base + QStringLiteral("-1")).constData(), 0700), 0);
    if (::geteuid() == 0)
        ASSERT_EQ(::chown(QFile::encodeName(base + QStringLiteral("-1")).constData(), 4321, 4321), 0);
    else
        ASSERT_EQ(::chmod(QFile::encodeName(base + QStringLiteral("-1")).constData(), 0711), 0);
    ASSERT_TRUE(QDir().mkdir(base + QStringLiteral("-2")));
    ASSERT_EQ(::chmod(QFile::encodeName(base + QStringLiteral("-2")).constData(), 0777), 0);
    const QString pasta = PastaTemporaria();
    EXPECT_EQ(pasta, base + QStringLiteral("-3/"));
    for (const QString &outra : {base, base + QStringLiteral("-1"), base + QStringLiteral("-2")})
        EXPECT_EQ(GravarArquivoPrivado(outra + QStringLiteral("/Lumeta.tmp"), "novo").numero, 70) << outra.toStdString();
    EXPECT_TRUE(Entradas(raiz.filePath(QStringLiteral("alheia"))).isEmpty());

    // The first write makes the folder, private, and a file only the user reads.
    const QString previa = pasta + QStringLiteral("Lumeta.tmp");
    ASSERT_FALSE(GravarArquivoPrivado(previa, "novo"));
    struct stat st;
    ASSERT_EQ(::lstat(QFile::encodeName(base + QStringLiteral("-3")).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0700u);
    ASSERT_EQ(::lstat(QFile::encodeName(previa).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0600u);
    // A link planted in the private folder itself is replaced, not followed.
    ASSERT_TRUE(QFile::remove(previa));
    ASSERT_TRUE(Link(vitima, previa));
    ASSERT_FALSE(GravarArquivoPrivado(previa, "outro"));
    EXPECT_FALSE(QFileInfo(previa).isSymLink());
    EXPECT_EQ(teste::LerArquivo(previa), "outro");
    EXPECT_EQ(teste::LerArquivo(vitima), "original");
    EXPECT_TRUE(QFileInfo(raiz.filePath(QStringLiteral("Lumeta.tmp"))).isSymLink());
    EXPECT_EQ(Entradas(pasta), QStringList{QStringLiteral("Lumeta.tmp")});

    // Reading there: the user's own file only, never a link or another's file.
    ArquivoLeitura proprio;
    EXPECT_FALSE(proprio.AbrirPrivado(previa));
    const QString link = pasta + QStringLiteral("link");
    ASSERT_TRUE(Link(vitima, link));
    ArquivoLeitura porLink;
    EXPECT_TRUE(porLink.AbrirPrivado(link));
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(QFile::encodeName(previa).constData(), 4321, 4321), 0);
        ArquivoLeitura alheio;
        EXPECT_TRUE(alheio.AbrirPrivado(previa));
    }

    // The runtime folder is taken when it is private, and only then.
    const QString runtime = raiz.filePath(QStringLiteral("run"));
    ASSERT_TRUE(QDir().mkdir(runtime));
    ASSERT_EQ(::chmod(QFile::encodeName(runtime).constData(), 0700), 0);
    {
        const teste::VariavelTemporaria x("XDG_RUNTIME_DIR", runtime);
        EXPECT_EQ(PastaTemporaria(), runtime + QLatin1Char('/'));
        ASSERT_EQ(::chmod(QFile::encodeName(runtime).constData(), 0755), 0);
        EXPECT_EQ(PastaTemporaria(), pasta);
    }
}

namespace {

// Settings and languages in folders of the test's own, for the CLI as well.
class CliTeste : public ::testing::Test {
protected:
    QString caminho(const char *nome) const { return linguagens.Caminho(QString::fromUtf8(nome)); }

    teste::ConfigTemporaria config;
    teste::VariavelTemporaria xdg{"XDG_CONFIG_HOME", config.Config()};
    teste::PastaLinguagensTemporaria linguagens;
};

}  // namespace

TEST_F(CliTeste, NovoTextoComandosECopiarComoDaoOQueOEditorMostra)
{
    const QString novo = caminho("novo.lmt");
    Execucao r = Cli({QStringLiteral("novo"), novo});
    ASSERT_EQ(r.codigo, 0) << r.erros.toStdString();
    EXPECT_EQ(teste::LerArquivo(novo), GravarLMT(SessaoEdicao().Documento));

    // Every stored position is stale, in the selected band and in the others;
    // the texts have accents, one passes COBOL's column 72.
    LayoutDocumento doc;
    Banda b1, b2;
    b1.Topo = 900;
    b1.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("Preço € à vista, um texto que passa bem da coluna 72"), 500, 40),
                teste::NovoItem(TipoComando, QStringLiteral("WS-AÇÃO"), 3, 70)};
    b2.Topo = -5;
    b2.Altura = 0;
    b2.Itens = {teste::NovoItem(TipoTexto, QStringLiteral("B"), 77, 30),
                teste::NovoItem(TipoTexto, QStringLiteral("C"), 0, 50)};
    doc.Bandas = {b1, b2};
    const QString lmt = caminho("velho.lmt");
    ASSERT_TRUE(GravarArquivoLMT(lmt, doc).ok);
    SessaoEdicao editor;
    ASSERT_EQ(editor.AbrirLMT(lmt), SessaoEdicao::ResultadoAbrir::Aberto);
    ASSERT_NE(editor.TextoResultado, GerarTextoComandos(doc));  // the stale positions would show

    r = Cli({QStringLiteral("texto"), lmt});
    ASSERT_EQ(r.codigo, 0) << r.erros.toStdString();
    EXPECT_EQ(r.saida, Para1252(editor.TextoResultado));
    r = Cli({QStringLiteral("comandos"), lmt});
    EXPECT_EQ(r.saida, Para1252(ListaComandosUtilizados(editor.Documento)));

    ASSERT_TRUE(QFile::copy(QStringLiteral(LUMETA_DISTRIBUIDOS "/Cobol.lin"), caminho("Cobol.lin")));
    const QString cc = QStringLiteral("copiar-como"), cobol = QStringLiteral("Cobol");
    const auto codigo = [&](bool cobolString, bool ehCobol = true) {
        LinguagemDef l;
        LerArquivoLinguagem(caminho("Cobol.lin"), l);
        l.CobolString = cobolString;
        l.EhCobol = ehCobol;
        return Para1252(GerarCopiarComo(editor.Documento, l));
    };
    // Without a flag the editor's setting decides (default: STRING).
    EXPECT_EQ(Cli({cc, cobol, lmt}).saida, codigo(true));
    Configuracoes c;
    c.NoCobolUsarString = false;
    c.GravarNoCobolUsarString();
    EXPECT_EQ(Cli({cc, cobol, lmt, QStringLiteral("--string")}).saida, codigo(true));
    const QString saida = caminho("saida.cpy");
    teste::GravarArquivoTeste(saida, "velho");
    r = Cli({cc, cobol, lmt, saida});
    ASSERT_EQ(r.codigo, 0) << r.erros.toStdString();
    EXPECT_TRUE(r.saida.isEmpty());
    EXPECT_EQ(teste::LerArquivo(saida), codigo(false));
    // A path to a .lin file works as well; its name decides the COBOL step.
    QFile::copy(caminho("Cobol.lin"), caminho("outra.lin"));
    EXPECT_EQ(Cli({cc, caminho("outra.lin"), lmt, QStringLiteral("--continuacao")}).saida, codigo(false, false));
    EXPECT_EQ(Cli({QStringLiteral("linguagem"), QStringLiteral("lista")}).saida, QByteArray("Cobol\noutra\n"));
}

TEST_F(CliTeste, ErrosDaoAMensagemDoEditorECodigoDeSaida)
{
    const QString ruim = caminho("ruim.lmt"), lmt = caminho("bom.lmt");
    teste::GravarArquivoTeste(ruim, "LumetaEdit 1.0(z)               ");
    ASSERT_TRUE(GravarArquivoLMT(lmt, SessaoEdicao().Documento).ok);
    // A good header and every field, but no band.
    const QString semBandas = caminho("sem-bandas.lmt");
    teste::GravarArquivoTeste(semBandas, GravarLMT(LayoutDocumento()));
    // Arguments, exit status, start of the message; the runs go in order.
    const std::tuple<QStringList, int, QString> casos[] = {
        {{"texto", ruim}, 1, "Formato inválido!"},
        {{"texto", caminho("nao-existe.lmt")}, 1, "Ocorreu um erro ao abrir o arquivo '"},
        {{"png", semBandas, caminho("s.png")}, 1, "Ocorreu um erro ao abrir o arquivo '"},
        {{"png", lmt, caminho("sem/pasta/x.png")}, 1, "Não foi possível gravar a figura"},
        {{"png", lmt}, 2, "Uso: lumetaedit-cli png"},
        {{"novo", caminho("sem/pasta.lmt")}, 1, "Ocorreu um erro ao gravar o arquivo '"},
        {{"texto"}, 2, "Uso: lumetaedit-cli texto"},
        // An option is never taken for a file name.
        {{"novo", "--help"}, 2, "Uso: lumetaedit-cli novo"},
        {{"inexistente"}, 2, "Comando desconhecido: inexistente"},
        {{"linguagem", "nova"}, 2, {}},
        {{"linguagem", "nova", "meu:cobol"}, 0, {}},  // prints the new file's path
        {{"linguagem", "nova", "meu:cobol"}, 1, "A linguagem 'meu_cobol' já existe!"},
        {{"copiar-como", "Nenhuma", lmt}, 1, "O Arquivo '" + caminho("Nenhuma.lin") + "' não foi encontrado!"},
        {{"copiar-como", "meu_cobol", caminho("nada.lmt")}, 1, "Ocorreu um erro ao abrir o arquivo '"},
        {{"copiar-como", "meu_cobol"}, 2, {}},
        {{"copiar-como", "meu_cobol", lmt, "--string", "--continuacao"}, 2, {}},
    };
    for (const auto &[args, codigo, inicio] : casos) {
        const Execucao r = Cli(args, QString(), QStringLiteral(LUMETA_CLI), linguagens.Pasta());
        EXPECT_EQ(r.codigo, codigo) << args.join(u' ').toStdString();
        EXPECT_EQ(r.saida.isEmpty(), codigo != 0) << args.join(u' ').toStdString();
        EXPECT_TRUE(r.erros.startsWith(inicio)) << args.join(u' ').toStdString() << ": " << r.erros.toStdString();
    }
    EXPECT_FALSE(QFile::exists(caminho("--help")));
    EXPECT_EQ(teste::LerArquivo(caminho("meu_cobol.lin")), CodificarLin(LinguagemPadrao()));
    const Execucao r = Cli({QStringLiteral("ajuda")});
    EXPECT_EQ(r.codigo, 0);
    for (const char *cmd : {"novo SAIDA.lmt", "texto ARQUIVO.lmt", "comandos ARQUIVO.lmt"})
        EXPECT_TRUE(r.saida.contains(cmd)) << cmd;
}
