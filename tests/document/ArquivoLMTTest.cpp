#include "document/ArquivoLMT.h"
#include "editing/SessaoEdicao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QTemporaryDir>
#include <functional>
#include <tuple>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace lumeta;
using lumeta::teste::Bytes;

namespace {

// Item record of revisions d..t.
void itemAtual(Bytes &e, const QByteArray &texto, const QByteArray &fonte, int tamanho, int largura, int tipo,
               int corLinha = 0, int espessura = 1)
{
    e.str(texto).str(fonte).i16(tamanho).i16(-1).i16(0).i16(0).i16(-1).i32(0).i32(largura);
    e.raw("1010100000").raw("0000100010").u8(3).u8(7).u8(corLinha).u8(espessura).u8(tipo);
}

// Item record of revisions a..c: no line colour or thickness.
void itemAntigo(Bytes &e, const QByteArray &texto, int largura, int tipo)
{
    e.str(texto).str("Courier New").i16(12).i16(0).i16(-1).i16(0).i16(0).i32(0).i32(largura);
    e.raw("0000000000").raw("1000100010").u8(4).u8(99).u8(tipo);
}

}  // namespace

TEST(ArquivoLMT, NovoLayoutTemExatamente166Bytes)
{
    SessaoEdicao s;
    const QByteArray b = GravarLMT(s.Documento);
    Bytes e;
    e.cab("t").i16(1).i32(16).i32(18).i32(0).str("").i16(1).i16(1).i32(1).i32(1);
    e.str("Texto 1").str("Arial").i16(10).i16(0).i16(0).i16(0).i16(0).i32(0).i32(64);
    e.raw("0000000000").raw("0000100010").u8(0).u8(99).u8(0).u8(1).u8(0);
    e.i16(0).i16(0).i16(0).str("").i16(0).i16(92).i16(1).str("").i32(0).str("\"0\"").str("\"0\"").i32(0);
    e.i16(0).i16(0).i16(0).i16(0).str("\"0\"");
    EXPECT_EQ(b.toHex(' '), e.b.toHex(' '));
}

TEST(ArquivoLMT, QuebrasDePaginaTextosEBooleanosGravadosComoNaTabela)
{
    SessaoEdicao s;
    LayoutDocumento &d = s.Documento;
    d.QuebraPaginaAdd(3);
    d.QuebraPaginaAdd(7);
    d.TextoEmail = QStringLiteral("Ação €1{ENTER}fim");
    d.Paisagem = true;
    d.banda(1).Comentario = QStringLiteral("antes") + QChar(0xFF) + QStringLiteral("depois");
    const QByteArray b = GravarLMT(d);
    // NumQuebras, header (1 dimension, 2 elements, lower bound 1), 3, 7, then TemCapa...
    Bytes quebras;
    quebras.i16(2).i16(1).i32(2).i32(1).i16(3).i16(7).i16(0).i16(0).str("\"0\"");
    EXPECT_TRUE(b.endsWith(quebras.b));
    // True is FF FF. The texts' 1252 bytes: the rich sample's round trip and the reading back below.
    const qsizetype depoisBandas = 34 + 12 + 2 + 12 + 2 + 10 + (2 + 7) + (2 + 5) + 10 + 8 + 20 + 5;
    EXPECT_EQ(b.mid(depoisBandas, 6).toHex(), QByteArray("ffff00000000"));
    LayoutDocumento lido;
    ASSERT_EQ(LerLMT(b, lido).resultado, ResultadoLeitura::Ok);
    EXPECT_EQ(lido, d);
}

TEST(ArquivoLMT, RevisoesAEBUsamRegistrosAntigosEPadroes)
{
    Bytes a;
    a.cab("a").i16(2);
    a.i32(16).i32(20).i32(0).i16(2).i16(1).i32(2).i32(1);
    itemAntigo(a, "Nome", 100, 0);
    itemAntigo(a, "logo.bmp", 50, 1);
    a.i32(36).i32(-14).i32(-3).i16(1).i16(1).i32(1).i32(1);
    itemAntigo(a, "X", 30, 2);
    a.i16(-1).i16(0).i16(1);  // Paisagem, Imprimir, Visivel (any non-zero is true)
    Bytes b;
    b.cab("b").i16(1).i32(16).i32(18).i32(0).i16(1).i16(1).i32(1).i32(1);
    itemAntigo(b, "foto.jpg", 64, 1);
    b.i16(0).i16(-1).i16(0).str("HP LaserJet").i16(-1);

    LayoutDocumento da, db;
    ASSERT_EQ(LerLMT(a.b, da).resultado, ResultadoLeitura::Ok);
    ASSERT_EQ(LerLMT(b.b, db).resultado, ResultadoLeitura::Ok);
    ASSERT_EQ(da.NumBandas(), 2);
    EXPECT_EQ(QList<int>({da.banda(1).Altura, da.banda(2).Altura, da.banda(2).Deslocamento}), QList<int>({20, -14, -3}));
    const Item &n = da.banda(1).Itens[0];
    EXPECT_EQ(std::tuple(n.Texto, n.Fonte.Nome, int(n.Fonte.Tamanho), bool(n.Fonte.Italico), n.Atributos),
              std::tuple(QStringLiteral("Nome"), QStringLiteral("Courier New"), 12, true, QStringLiteral("1000100010")));
    EXPECT_EQ(QList<int>({n.CorTexto, n.CorFundo, n.CorLinha, n.Tipo}), QList<int>({4, 99, 0, 0}));
    // Picture texts are quoted on reading.
    EXPECT_EQ(da.banda(1).Itens[1].Texto, QStringLiteral("\"logo.bmp\""));
    EXPECT_EQ(db.banda(1).Itens[0].Texto, QStringLiteral("\"foto.jpg\""));
    EXPECT_EQ(da.banda(2).Itens[0].Tipo, TipoComando);
    EXPECT_TRUE(da.Paisagem && !da.Imprimir && da.Visivel && !da.QuebraPaginaFinal && da.NomeImpressora.isEmpty());
    // Revision b added the printer name and the final page break.
    EXPECT_EQ(db.NomeImpressora, QStringLiteral("HP LaserJet"));
    EXPECT_TRUE(db.QuebraPaginaFinal && db.Imprimir);
    for (const LayoutDocumento *d : {&da, &db}) {
        EXPECT_EQ(QList<int>({d->QualidadeJPG, d->TipoEmail, d->BandaCabecalho, d->BandaRodape,
                              d->banda(1).Itens[0].Espessura}),
                  QList<int>({90, 1, 0, 0, 1}));
        EXPECT_EQ(QStringList({d->MargemEsquerda, d->MargemSuperior, d->MargemInferior, d->banda(1).Comentario}),
                  QStringList({"\"0\"", "\"0\"", "\"0\"", ""}));
        EXPECT_TRUE(d->Quebras.isEmpty());
    }
}

// Revisions d..t, built field by field as each revision added them.
static QByteArray ArquivoRevisao(char rev)
{
    Bytes e;
    const char letra[2] = {rev, 0};
    e.cab(letra).i16(1).i32(16).i32(18).i32(0);
    if (rev >= 'e')
        e.str("coment");
    e.i16(2).i16(1).i32(2).i32(1);
    itemAtual(e, "Valor", "Times New Roman", 9, 80, 0, 5, 3);
    itemAtual(e, rev >= 's' ? "\"c:\\fig.gif\"" : "c:\\fig.gif", "Arial", 8, 40, 1);
    e.i16(0).i16(0).i16(0).str("PDF Printer").i16(0).i16(77);
    if (rev >= 'f')
        e.i16(4);
    if (rev >= 'g')
        e.str("Oi{ENTER}tchau");
    if (rev >= 'h')
        e.i32(1);
    if (rev >= 'j')
        e.str("WS-ESQ").str("\"12\"");
    if (rev >= 'l')
        e.i32(1);
    if (rev >= 'n')
        e.i16(1).i16(1).i32(1).i32(1).i16(1);
    if (rev >= 'o')
        e.i16(-1);
    if (rev >= 'q')
        e.i16(-1);
    if (rev >= 'r')
        e.str("\"5\"");
    return e.b;
}

TEST(ArquivoLMT, CadaRevisaoDeDATLeSeusCamposEPadroes)
{
    for (char rev = 'd'; rev <= 't'; ++rev) {
        SCOPED_TRACE(std::string("revisao ") + rev);
        LayoutDocumento d;
        const LeituraLMT r = LerLMT(ArquivoRevisao(rev), d);
        ASSERT_EQ(r.resultado, ResultadoLeitura::Ok);
        ASSERT_EQ(d.NumBandas(), 1);
        const Banda &b = d.banda(1);
        EXPECT_EQ(b.Comentario, rev >= 'e' ? QStringLiteral("coment") : QString());
        ASSERT_EQ(b.NumItens(), 2);
        const Item &v = b.Itens[0];
        EXPECT_EQ(std::tuple(v.Fonte.Nome, bool(v.Fonte.Negrito), bool(v.Fonte.Tachado), v.Linhas, int(v.CorLinha),
                             int(v.Espessura)),
                  std::tuple(QStringLiteral("Times New Roman"), true, true, QStringLiteral("1010100000"), 5, 3));
        // Picture texts became quoted expressions at revision s; older ones are quoted on reading.
        EXPECT_EQ(b.Itens[1].Texto, QStringLiteral("\"c:\\fig.gif\""));
        EXPECT_EQ(std::tuple(d.NomeImpressora, d.QualidadeJPG, d.TipoEmail),
                  std::tuple(QStringLiteral("PDF Printer"), 77, rev >= 'f' ? 4 : 1));
        EXPECT_EQ(d.TextoEmail, rev >= 'g' ? QStringLiteral("Oi{ENTER}tchau") : QString());
        EXPECT_EQ(d.BandaCabecalho, rev >= 'h' ? 1 : 0);
        EXPECT_EQ(d.MargemEsquerda, rev >= 'j' ? QStringLiteral("WS-ESQ") : QStringLiteral("\"0\""));
        EXPECT_EQ(d.MargemSuperior, rev >= 'j' ? QStringLiteral("\"12\"") : QStringLiteral("\"0\""));
        EXPECT_EQ(d.BandaRodape, rev >= 'l' ? 1 : 0);
        EXPECT_EQ(d.Quebras, rev >= 'n' ? QList<int16_t>{1} : QList<int16_t>{});
        EXPECT_EQ(d.TemCapa, rev >= 'o');
        EXPECT_EQ(d.EnviarEmail, rev >= 'q');
        EXPECT_EQ(d.MargemInferior, rev >= 'r' ? QStringLiteral("\"5\"") : QStringLiteral("\"0\""));
    }
}

TEST(ArquivoLMT, CabecalhoDesconhecidoEhRecusadoComAMensagemDoEditor)
{
    const QByteArray corpo = ArquivoRevisao('t').mid(32);
    for (const char *cab : {"LumetaEdit 1.0(u)", "LumetaEdit 1.0(T)", "LumetaEdit 1.1(t)", "Lumeta 1.0(t)",
                            "LumetaEdit 1.0(tt)", "                                "}) {
        SCOPED_TRACE(cab);
        QByteArray c(cab);
        c.append(QByteArray(32 - c.size(), ' '));
        LayoutDocumento d;
        EXPECT_EQ(LerLMT(c + corpo, d).resultado, ResultadoLeitura::FormatoInvalido);
    }
    // Blanks around the header are allowed, and any revision letter past the field list reads as "t".
    QByteArray c("   LumetaEdit 1.0(t)");
    c.append(QByteArray(32 - c.size(), ' '));
    LayoutDocumento d;
    EXPECT_EQ(LerLMT(c + corpo, d).resultado, ResultadoLeitura::Ok);

    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("novo.lmt"));
    // Shorter than a header is a wrong format too, not a broken file.
    for (const QByteArray &conteudo : {QByteArray("LumetaEdit 1.0(u)               ") + corpo, QByteArray("LumetaEdit 1.0(t)")}) {
        teste::GravarArquivoTeste(caminho, conteudo);
        EXPECT_EQ(AbrirArquivoLMT(caminho, d).mensagem, QStringLiteral("Formato inválido!\n\nO arquivo '") + caminho
                                  + QStringLiteral("' não foi salvo pelo LumetaEdit 2.0.7.1.\n\nProvavelmente foi salvo "
                                                   "por uma versão mais recente, tente fazer a atualização."));
    }
}

TEST(ArquivoLMT, LetrasSemCamposNovosLeemComoAAnterior)
{
    for (auto [rev, anterior] : {std::pair{'i', 'h'}, {'k', 'j'}, {'m', 'l'}, {'p', 'o'}}) {
        QByteArray arq = ArquivoRevisao(anterior);
        arq[15] = rev;
        LayoutDocumento a, b;
        ASSERT_EQ(LerLMT(arq, a).resultado, ResultadoLeitura::Ok) << rev;
        ASSERT_EQ(LerLMT(ArquivoRevisao(anterior), b).resultado, ResultadoLeitura::Ok);
        EXPECT_EQ(a, b) << rev;
    }
}

TEST(ArquivoLMT, ArquivoTruncadoEmQualquerPontoDaErroDeLeituraSemAlterarODocumento)
{
    SessaoEdicao s;
    s.AddBanda(0, false, 30, 100);
    s.Documento.QuebraPaginaAdd(2);
    const QByteArray completo = GravarLMT(s.Documento);
    LayoutDocumento original;
    original.NomeImpressora = QStringLiteral("intacto");
    for (qsizetype n = 0; n < completo.size(); ++n) {
        LayoutDocumento d = original;
        const LeituraLMT r = LerLMT(completo.left(n), d);
        // Without a whole header there is no layout format to speak of.
        ASSERT_EQ(r.resultado, n < 32 ? ResultadoLeitura::FormatoInvalido : ResultadoLeitura::ErroLeitura)
            << "corte em " << n;
        EXPECT_EQ(r.erro.isEmpty(), n < 32);
        ASSERT_EQ(d, original);
    }
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("curto.lmt"));
    teste::GravarArquivoTeste(caminho, completo.left(100));
    LayoutDocumento d;
    const ResultadoArquivo r = AbrirArquivoLMT(caminho, d);
    EXPECT_TRUE(r.mensagem.startsWith(QStringLiteral("Ocorreu um erro ao abrir o arquivo '") + caminho
                                      + QStringLiteral("!\n\n")));
    EXPECT_GT(r.mensagem.size(), 40 + caminho.size());
}

TEST(ArquivoLMT, ContagensHostisSaoRecusadasSemAlocarAlemDoArquivo)
{
    const auto banda = [] { return Bytes().cab("t").i16(1).i32(0).i32(18).i32(0); };
    QByteArray quebras = GravarLMT(SessaoEdicao().Documento);
    quebras.chop(2 + 2 + 2 + 2 + 5);
    const std::pair<const char *, QByteArray> casos[] = {
        {"bandas demais", Bytes().cab("t").i16(32767).b},
        {"bandas negativas", Bytes().cab("t").i16(-5).i16(0).i16(0).i16(0).b},
        {"itens demais", banda().str("").i16(1).i16(1).i32(0x7FFFFFFF).i32(1).b},
        {"itens negativos", banda().str("").i16(1).i16(1).i32(-1).i32(1).b},
        {"dimensoes estranhas", banda().str("").i16(1).i16(7).i32(1).i32(1).b},
        {"texto maior que o arquivo", banda().i16(-1).raw("abc").b},
        {"quebras demais", quebras + Bytes().i16(3).i16(1).i32(1000000).i32(1).i16(1).b},
        // A whole file but no band: an open layout always has one.
        {"nenhuma banda", GravarLMT(LayoutDocumento())},
    };
    for (const auto &[nome, dados] : casos) {
        LayoutDocumento d;
        EXPECT_EQ(LerLMT(dados, d).resultado, ResultadoLeitura::ErroLeitura) << nome;
    }
}

TEST(ArquivoLMT, GravarSubstituiOArquivoEMantemModoELigacao)
{
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("rel.lmt"));
    teste::GravarArquivoTeste(caminho, QByteArray(5000, 'x'));
    QFile::setPermissions(caminho, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const QString ligacao = dir.filePath(QStringLiteral("atalho.lmt"));
    ASSERT_TRUE(QFile::link(caminho, ligacao));
    SessaoEdicao s;
    ASSERT_TRUE(GravarArquivoLMT(ligacao, s.Documento).ok);
    EXPECT_EQ(teste::LerArquivo(caminho), GravarLMT(s.Documento));  // replaced, not appended to
    EXPECT_TRUE(QFileInfo(ligacao).isSymLink());
    struct stat st;
    ASSERT_EQ(::stat(qPrintable(caminho), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0640u);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST(ArquivoLMT, LayoutAlemDosLimitesNaoEhGravadoEOArquivoAntigoFica)
{
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
    s.Ui = &ui;
    s.NomeArquivo = cfg.Pasta() + QStringLiteral("/bom.lmt");
    ASSERT_TRUE(s.SalvarLMT(false));
    const QByteArray bom = teste::LerArquivo(s.NomeArquivo);
    const LayoutDocumento novo = s.Documento;
    const QString longo(MaximoTexto + 1, QLatin1Char('x'));
    // What each change makes the file unable to hold.
    const std::pair<const char *, std::function<void(LayoutDocumento &)>> casos[] = {
        {"mais de 32767 bandas", [](LayoutDocumento &d) { d.Bandas.insert(0, MaximoBandas, d.banda(1)); }},
        {"a banda 1 tem mais de 32767 itens",
         [](LayoutDocumento &d) { d.banda(1).Itens.insert(0, MaximoItens, d.banda(1).Itens[0]); }},
        {"o item 1 da banda 1 passa de 65535 bytes", [&](LayoutDocumento &d) { d.banda(1).Itens[0].Texto = longo; }},
        {"o comentário da banda 1 passa de 65535 bytes", [&](LayoutDocumento &d) { d.banda(1).Comentario = longo; }},
        {"um texto das opções do layout passa de 65535 bytes", [&](LayoutDocumento &d) { d.TextoEmail = longo; }},
    };
    for (const auto &[excesso, mudar] : casos) {
        s.Documento = novo;
        mudar(s.Documento);
        ui.mensagens.clear();
        EXPECT_FALSE(s.SalvarLMT(false)) << excesso;
        ASSERT_EQ(ui.mensagens.size(), 1) << excesso;
        EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + s.NomeArquivo
                                             + QStringLiteral("!\n\n6 - Estouro de capacidade (") + excesso
                                             + QLatin1Char(')'));
        EXPECT_EQ(ui.mensagens[0].icone, Icone::Exclamacao);
        EXPECT_FALSE(GravarArquivoLMT(s.NomeArquivo, s.Documento).ok) << excesso;
        ASSERT_EQ(teste::LerArquivo(s.NomeArquivo), bom) << excesso;
    }
    // The limits themselves are stored and read back.
    s.Documento = novo;
    s.Documento.banda(1).Itens[0].Texto = longo.left(MaximoTexto);
    ASSERT_TRUE(s.SalvarLMT(false));
    LayoutDocumento lido;
    ASSERT_TRUE(AbrirArquivoLMT(s.NomeArquivo, lido).ok);
    EXPECT_EQ(lido.banda(1).Itens[0].Texto.size(), MaximoTexto);
}

namespace {

// Bytes this process has read through read() and its kin so far.
qint64 BytesLidosPeloProcesso()
{
    QFile io(QStringLiteral("/proc/self/io"));
    if (!io.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &linha : io.readAll().split('\n'))
        if (linha.startsWith("rchar:"))
            return linha.mid(6).trimmed().toLongLong();
    return -1;
}

}  // namespace

TEST(ArquivoLMT, ArquivoLidoAosBlocosSemCarregarOQueSegueOUltimoCampo)
{
    // Many blocks' worth of layout, with long texts that straddle the blocks,
    // followed by a gigabyte of zeros (sparse: nothing lands on the disk).
    SessaoEdicao s;
    for (int i = 0; i < 300; ++i)
        s.AddBanda(0, false, 30, 100);
    for (Banda &b : s.Documento.Bandas)
        b.Itens[0].Texto = QString(997, QLatin1Char('y'));
    s.Documento.MargemInferior = QStringLiteral("WS-FIM");
    const QByteArray dados = GravarLMT(s.Documento);
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("longo.lmt"));
    teste::GravarArquivoTeste(caminho, dados);
    const qint64 cauda = qint64(1) << 30;
    ASSERT_TRUE(QFile::resize(caminho, dados.size() + cauda));

    const qint64 antes = BytesLidosPeloProcesso();
    ASSERT_GE(antes, 0);
    LayoutDocumento lido;
    ASSERT_TRUE(AbrirArquivoLMT(caminho, lido).ok);
    EXPECT_LT(BytesLidosPeloProcesso() - antes, dados.size() + 256 * 1024);
    LayoutDocumento esperado;
    ASSERT_EQ(LerLMT(dados, esperado).resultado, ResultadoLeitura::Ok);
    EXPECT_EQ(lido, esperado);
    EXPECT_EQ(lido.MargemInferior, QStringLiteral("WS-FIM"));
}
