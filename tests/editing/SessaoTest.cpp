#include "document/ArquivoLMT.h"
#include "editing/SessaoEdicao.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

class SessaoTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config.path());
        s.Ui = &ui;
    }
    QTemporaryDir config;
    QTemporaryDir dir;
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
};

}  // namespace

TEST_F(SessaoTest, NovoLayoutTemUmaBandaComOItemPadrao)
{
    s.FontePadrao = FonteItem{QStringLiteral("Courier New"), 12, true, false, false, false};
    s.Documento.Paisagem = true;
    s.NomeArquivo = QStringLiteral("/x.lmt");
    s.QualidadeJPGSessao = 70;
    s.NovoLMT();
    const LayoutDocumento &d = s.Documento;
    ASSERT_EQ(d.NumBandas(), 1);
    EXPECT_EQ(d.banda(1).Topo, 16);
    EXPECT_EQ(d.banda(1).Altura, 18);
    ASSERT_EQ(d.banda(1).NumItens(), 1);
    const Item &it = d.banda(1).Itens[0];
    EXPECT_EQ(it.Texto, QStringLiteral("Texto 1"));
    EXPECT_EQ(it.Largura, 64);
    EXPECT_EQ(it.Linhas, QStringLiteral("0000000000"));
    EXPECT_EQ(it.Atributos, QStringLiteral("0000100010"));
    EXPECT_EQ(it.Fonte, s.FontePadrao);
    EXPECT_EQ(it.CorFundo, 99);
    EXPECT_FALSE(d.Paisagem);
    EXPECT_EQ(s.NomeArquivo, QString());
    EXPECT_EQ(s.QualidadeJPGSessao, 0);
    EXPECT_FALSE(s.Alterado);
    EXPECT_EQ(s.Titulo(), QStringLiteral("LumetaEdit 2.0 - Editor de Layout do Lumeta"));
}

TEST_F(SessaoTest, InserirERemoverBandasAjustaCabecalhoRodapeESelecao)
{
    s.AddBanda(0, false, 0, 0);
    s.AddBanda(0, false, 25, 100);
    EXPECT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(s.Documento.banda(3).Altura, 25);
    EXPECT_EQ(s.Documento.banda(3).Itens[0].Largura, 100);
    EXPECT_EQ(s.BandaSelecionada, 1);  // appending keeps the selection
    s.Documento.BandaCabecalho = 2;
    s.Documento.BandaRodape = 3;
    s.AddBanda(2, false, 0, 0);
    EXPECT_EQ(s.Documento.BandaCabecalho, 3);
    EXPECT_EQ(s.Documento.BandaRodape, 4);
    EXPECT_EQ(s.BandaSelecionada, 3);
    EXPECT_EQ(s.Documento.banda(2).Itens[0].Texto, QStringLiteral("Texto 1"));
    EXPECT_EQ(s.Documento.banda(2).Altura, 18);
    s.RemoverBanda(1);
    EXPECT_EQ(s.Documento.BandaCabecalho, 2);
    EXPECT_EQ(s.Documento.BandaRodape, 3);
    s.Documento.BandaCabecalho = 0;
    s.Documento.BandaRodape = 0;
    s.RemoverBanda(1);
    EXPECT_EQ(s.Documento.BandaCabecalho, 0);
    EXPECT_EQ(s.Documento.BandaRodape, 0);
    s.BandaSelecionada = 2;
    s.RemoverBanda(2);
    EXPECT_EQ(s.BandaSelecionada, 1);  // clamped to the new band count
}

TEST_F(SessaoTest, DuplicarBandaCopiaItensEZeraDeslocamentoDaCopiaDeBaixo)
{
    s.AddBanda(0, false, 0, 0);
    Banda &b2 = s.Documento.banda(2);
    b2.Deslocamento = 7;
    b2.Comentario = QStringLiteral("c");
    b2.Itens[0].Texto = QStringLiteral("orig");
    s.AddBanda(2, true, 0, 0);
    ASSERT_EQ(s.Documento.NumBandas(), 3);
    EXPECT_EQ(s.Documento.banda(2).Deslocamento, 7);
    EXPECT_EQ(s.Documento.banda(3).Deslocamento, 0);
    EXPECT_EQ(s.Documento.banda(3).Itens[0].Texto, QStringLiteral("orig"));
    EXPECT_EQ(s.Documento.banda(3).Comentario, QStringLiteral("c"));
    EXPECT_EQ(s.BandaSelecionada, 3);
}

TEST_F(SessaoTest, InserirItemAntesDoSelecionadoOuNoFim)
{
    s.AddItem(1, false, 0);
    Banda &b = s.Documento.banda(1);
    ASSERT_EQ(b.NumItens(), 2);
    EXPECT_EQ(b.Itens[1].Texto, QStringLiteral("Texto 2"));
    b.Itens[1].Texto = QStringLiteral("segundo");
    s.ItemSelecionado = 2;
    s.AddItem(1, false, 40);
    ASSERT_EQ(b.NumItens(), 3);
    EXPECT_EQ(b.Itens[1].Texto, QStringLiteral("Texto 3"));
    EXPECT_EQ(b.Itens[1].Largura, 40);
    EXPECT_EQ(b.Itens[2].Texto, QStringLiteral("segundo"));
    EXPECT_EQ(s.ItemSelecionado, 3);
    s.AddItem(1, true, 0);  // duplicates the selected item
    ASSERT_EQ(b.NumItens(), 4);
    EXPECT_EQ(b.Itens[2].Texto, QStringLiteral("segundo"));
    EXPECT_EQ(b.Itens[3].Texto, QStringLiteral("segundo"));
    EXPECT_EQ(s.ItemSelecionado, 4);
    s.Documento.ReposicionarItem(1);
    EXPECT_EQ(b.Itens[0].Esquerda, 0);
    EXPECT_EQ(b.Itens[1].Esquerda, 64);
    EXPECT_EQ(b.Itens[2].Esquerda, 104);
    EXPECT_EQ(b.Itens[3].Esquerda, 168);
}

TEST_F(SessaoTest, BandasSaoPosicionadasPelaMagnitudeDaAlturaENuncaAcimaDaAnterior)
{
    for (int i = 0; i < 4; ++i)
        s.AddBanda(0, false, 0, 0);
    LayoutDocumento &d = s.Documento;
    d.banda(1).Altura = -30;
    d.banda(2).Altura = 30;
    d.banda(3).Deslocamento = -100;
    d.banda(4).Deslocamento = 5;
    d.banda(5).Deslocamento = -9999;
    d.ReposicionarBanda();
    EXPECT_EQ(d.banda(1).Topo, 16);
    EXPECT_EQ(d.banda(2).Topo, 46);
    EXPECT_EQ(d.banda(3).Topo, 46);  // would start above band 2
    EXPECT_EQ(d.banda(4).Topo, 46 + 18 + 5);
    EXPECT_EQ(d.banda(5).Topo, 69);  // starts level with the band above
}

TEST_F(SessaoTest, ListaDeQuebrasRemoveTrocandoPeloUltimo)
{
    LayoutDocumento &d = s.Documento;
    d.QuebraPaginaAdd(2);
    d.QuebraPaginaAdd(5);
    d.QuebraPaginaAdd(7);
    EXPECT_TRUE(d.QuebraPaginaSeek(5));
    d.QuebraPaginaRemove(5);
    EXPECT_EQ(d.Quebras, (QList<int16_t>{2, 7}));
    EXPECT_FALSE(d.QuebraPaginaSeek(5));
    d.QuebraPaginaRemove(2);
    EXPECT_EQ(d.Quebras, (QList<int16_t>{7}));
    d.QuebraPaginaRemove(7);
    EXPECT_TRUE(d.Quebras.isEmpty());
    d.QuebraPaginaRemove(7);
    EXPECT_TRUE(d.Quebras.isEmpty());
}

TEST_F(SessaoTest, SalvarPedeNomeSoQuandoNaoHaEVoltaAoAnteriorAoCancelar)
{
    s.NomeArquivoAnterior = QStringLiteral("/antigo.lmt");
    ui.arquivos = {QString()};
    EXPECT_FALSE(s.SalvarLMT(true));
    EXPECT_EQ(s.NomeArquivo, QStringLiteral("/antigo.lmt"));
    ASSERT_EQ(ui.dialogos.size(), 1);
    EXPECT_EQ(ui.dialogos[0].nomeProposto, QStringLiteral("/antigo.lmt"));
    EXPECT_EQ(ui.dialogos[0].filtro, QStringLiteral("Lumeta Layout (*.lmt)|*.lmt"));

    const QString caminho = dir.filePath(QStringLiteral("a.lmt"));
    s.NomeArquivo.clear();
    ui.arquivos = {caminho};
    EXPECT_TRUE(s.SalvarLMT(false));
    EXPECT_EQ(ui.dialogos[1].nomeProposto, QString());
    EXPECT_EQ(s.NomeArquivo, caminho);
    EXPECT_EQ(s.Titulo(), QStringLiteral("LumetaEdit 2.0 - [") + caminho + QStringLiteral("]"));
    EXPECT_EQ(teste::LerArquivo(caminho).size(), 166);
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList{caminho});
    EXPECT_TRUE(s.SalvarLMT(false));  // has a name: no dialog
    EXPECT_EQ(ui.dialogos.size(), 2);

    // A failed write tells the user and keeps the path being written.
    const QString ruim = dir.filePath(QStringLiteral("x/y.lmt"));
    s.NomeArquivo.clear();
    ui.arquivos = {ruim};
    s.Alterado = true;
    EXPECT_FALSE(s.SalvarLMT(false));
    EXPECT_EQ(s.NomeArquivo, ruim);
    EXPECT_TRUE(s.Alterado);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Exclamacao);
    EXPECT_TRUE(ui.mensagens[0].texto.startsWith(QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + ruim));
}

TEST_F(SessaoTest, AbrirRecusaFormatoNovoEEncerraEmArquivoIlegivel)
{
    const QString bom = dir.filePath(QStringLiteral("bom.lmt"));
    SessaoEdicao outra;
    outra.AddBanda(0, false, 40, 0);
    outra.Documento.Paisagem = true;
    outra.Documento.ReposicionarBanda();
    ASSERT_TRUE(GravarArquivoLMT(bom, outra.Documento).ok);
    s.QualidadeJPGSessao = 50;
    s.BandaSelecionada = 1;
    EXPECT_EQ(s.AbrirLMT(bom), SessaoEdicao::ResultadoAbrir::Aberto);
    EXPECT_EQ(s.Documento, outra.Documento);
    EXPECT_EQ(s.NomeArquivo, bom);
    EXPECT_EQ(s.QualidadeJPGSessao, 0);
    EXPECT_EQ(s.Config.ArquivosRecentes, QStringList{bom});

    ui.arquivos = {QString()};
    EXPECT_EQ(s.AbrirLMT(QString()), SessaoEdicao::ResultadoAbrir::Cancelado);
    EXPECT_EQ(s.NomeArquivo, bom);

    const QString novo = dir.filePath(QStringLiteral("novo.lmt"));
    teste::GravarArquivoTeste(novo, "LumetaEdit 1.0(v)               xxxx");
    EXPECT_EQ(s.AbrirLMT(novo), SessaoEdicao::ResultadoAbrir::FormatoInvalido);
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Impossível Abrir"));
    EXPECT_TRUE(ui.mensagens[0].texto.startsWith(QStringLiteral("Formato inválido!")));
    EXPECT_EQ(s.Documento, SessaoEdicao().Documento);
    // Shorter than a header: the same wrong format, never the end of the editor.
    teste::GravarArquivoTeste(novo, "LumetaEdit 1.0(t)");
    s.AbrirLMT(bom);
    EXPECT_EQ(s.AbrirLMT(novo), SessaoEdicao::ResultadoAbrir::FormatoInvalido);
    EXPECT_EQ(ui.mensagens.back().texto, MensagemFormatoInvalido(novo));
    EXPECT_EQ(s.Documento, SessaoEdicao().Documento);

    s.NomeArquivo = bom;
    const QString curto = dir.filePath(QStringLiteral("curto.lmt"));
    teste::GravarArquivoTeste(curto, GravarLMT(outra.Documento).left(60));
    ui.arquivos = {curto};
    EXPECT_EQ(s.AbrirLMT(QString()), SessaoEdicao::ResultadoAbrir::Encerrar);
    EXPECT_EQ(s.NomeArquivo, bom);
    ASSERT_EQ(ui.mensagens.size(), 3);
    EXPECT_EQ(ui.mensagens[2].icone, Icone::Exclamacao);
    EXPECT_TRUE(ui.mensagens[2].texto.startsWith(QStringLiteral("Ocorreu um erro ao abrir o arquivo '") + curto));
}

TEST_F(SessaoTest, ConfiguracoesTemPadroesTextosBooleanosERecentesSemDuplicatas)
{
    Configuracoes c;
    c.Ler();
    EXPECT_TRUE(c.ExibirResultado);
    EXPECT_FALSE(c.FontesImpressora);
    EXPECT_EQ(c.UnidadeMedida, 3);
    EXPECT_TRUE(c.NoCobolUsarString);
    EXPECT_TRUE(c.MagicItem);
    EXPECT_EQ(c.FontePadrao, FonteItem());
    EXPECT_EQ(c.CPY, QString());
    c.MagicItem = false;
    c.FontePadrao.Tamanho = 13;
    c.GravarAoSair();
    {
        std::unique_ptr<QSettings> st(AbrirConfig());
        EXPECT_EQ(st->value(QStringLiteral("MagicItem")).toString(), QStringLiteral("False"));
        EXPECT_EQ(st->value(QStringLiteral("Exibir Resultado")).toString(), QStringLiteral("True"));
        EXPECT_EQ(st->value(QStringLiteral("FontSize")).toString(), QStringLiteral("13"));
        st->setValue(QStringLiteral("Fontes Impressora"), QStringLiteral("-1"));
    }
    Configuracoes lida;
    lida.Ler();
    EXPECT_FALSE(lida.MagicItem);
    EXPECT_TRUE(lida.FontesImpressora);
    EXPECT_EQ(lida.FontePadrao.Tamanho, 13);
    // A hand-edited size stays within the two digits of the command text.
    for (const auto &[escrito, lido] : {std::pair{"500", 99}, std::pair{"0", 1}, std::pair{"-7", 1}}) {
        std::unique_ptr<QSettings>(AbrirConfig())->setValue(QStringLiteral("FontSize"), QString::fromLatin1(escrito));
        Configuracoes c2;
        c2.Ler();
        EXPECT_EQ(c2.FontePadrao.Tamanho, lido) << escrito;
    }

    EXPECT_EQ(ListaRecentes({QStringLiteral("c:\\A.LMT"), QStringLiteral("d.lmt"), QStringLiteral("e.lmt"),
                             QStringLiteral("f.lmt")},
                            QStringLiteral("C:\\a.lmt")),
              (QStringList{QStringLiteral("C:\\a.lmt"), QStringLiteral("d.lmt"), QStringLiteral("e.lmt"),
                           QStringLiteral("f.lmt")}));
    for (const char *f : {"1.lmt", "2.lmt", "3.lmt", "4.lmt", "5.lmt"})
        lida.GravarRecentes(QString::fromLatin1(f));
    EXPECT_EQ(lida.ArquivosRecentes, (QStringList{QStringLiteral("5.lmt"), QStringLiteral("4.lmt"),
                                                  QStringLiteral("3.lmt"), QStringLiteral("2.lmt")}));
    {
        std::unique_ptr<QSettings> st(AbrirConfig());
        st->setValue(QStringLiteral("Arquivo recente 2"), QString());
    }
    lida.Ler();
    EXPECT_EQ(lida.ArquivosRecentes, QStringList{QStringLiteral("5.lmt")});
}
