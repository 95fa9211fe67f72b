// The languages dialog's operations on the folder: adding with the name
// cleaning and the refusal of an existing name, saving a changed template
// (and only a changed one, keeping the old file when the write fails), removal.
#include "output/Linguagem.h"

#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"
#include "support/TestSupport.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace lumeta;

TEST(LinguagemDialogo, AdicionarComNomeLimpoERecusaDoExistente)
{
    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
    LinguagemDef def;
    EXPECT_FALSE(AdicionarLinguagem(QString(), def, &ui));
    EXPECT_TRUE(ListarLinguagens().isEmpty());

    EXPECT_EQ(AdicionarLinguagem(QStringLiteral("meu:cobol"), def, &ui), QStringLiteral("meu_cobol"));
    EXPECT_TRUE(def.EhCobol);
    const QByteArray criado = teste::LerArquivo(pasta.Caminho(QStringLiteral("meu_cobol.lin")));
    EXPECT_EQ(criado, CodificarLin(LinguagemPadrao()));

    // The cleaned name is the one found, and the one the message names.
    def.DefVariaveis = QStringLiteral("alterada");
    EXPECT_FALSE(AdicionarLinguagem(QStringLiteral("meu*cobol"), def, &ui));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_EQ(ui.mensagens[0].texto, QStringLiteral("A linguagem 'meu_cobol' já existe!"));
    EXPECT_EQ(ui.mensagens[0].titulo, QStringLiteral("Nova Linguagem"));
    EXPECT_EQ(ui.mensagens[0].icone, Icone::Informacao);
    EXPECT_EQ(def.DefVariaveis, QStringLiteral("alterada"));
    EXPECT_EQ(teste::LerArquivo(pasta.Caminho(QStringLiteral("meu_cobol.lin"))), criado);
}

TEST(LinguagemDialogo, ModeloGravadoSoQuandoMuda)
{
    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
    LinguagemDef def;
    ASSERT_TRUE(NovaLin(QStringLiteral("C"), def, &ui));
    const QString arquivo = pasta.Caminho(QStringLiteral("C.lin"));
    QFile::remove(arquivo);
    // The editor's line feeds are the defaults' CR LF: nothing to write.
    EXPECT_FALSE(AtualizarModelo(QStringLiteral("C"), def, 1, QString(def.ComandoF).replace(QStringLiteral("\r\n"),
                                                                                              QStringLiteral("\n")),
                                 &ui));
    EXPECT_FALSE(QFile::exists(arquivo));

    EXPECT_TRUE(AtualizarModelo(QStringLiteral("C"), def, 5, QStringLiteral("faz(§c);\nfim;"), &ui));
    EXPECT_EQ(def.ComandosSimples, QStringLiteral("faz(§c);\r\nfim;"));
    const QByteArray gravado = teste::LerArquivo(arquivo);
    EXPECT_EQ(gravado, CodificarLin(def));

    // A template too long for its 16-bit count is refused: the file and the
    // definition stay as they were.
    EXPECT_FALSE(AtualizarModelo(QStringLiteral("C"), def, 0, QString(70000, u'x'), &ui));
    ASSERT_EQ(ui.mensagens.size(), 1);
    EXPECT_TRUE(ui.mensagens[0].texto.startsWith(QStringLiteral("Ocorreu o erro ")));
    EXPECT_TRUE(def.DefVariaveis.isEmpty());
    EXPECT_EQ(teste::LerArquivo(arquivo), gravado);
    EXPECT_EQ(LegendaOpcaoLinguagem(7), QStringLiteral("Comentário inicial"));
    EXPECT_EQ(&ModeloDaOpcao(def, 7), &def.ComentarioInicial);
}

TEST(LinguagemDialogo, RemocaoPerguntaAntes)
{
    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
    LinguagemDef def;
    ASSERT_TRUE(NovaLin(QStringLiteral("Java"), def, &ui));
    ui.respostas = {Resposta::Nao, Resposta::Sim};
    EXPECT_FALSE(RemoverLinguagem(QStringLiteral("Java"), &ui));
    EXPECT_TRUE(LinguagemExiste(QStringLiteral("Java")));
    EXPECT_TRUE(RemoverLinguagem(QStringLiteral("Java"), &ui));
    EXPECT_FALSE(LinguagemExiste(QStringLiteral("Java")));
    ASSERT_EQ(ui.perguntas.size(), 2);
    EXPECT_EQ(ui.perguntas[0].texto, QStringLiteral("Confirma a exclusão da linguagem 'Java'?"));
    EXPECT_EQ(ui.perguntas[0].titulo, QStringLiteral("Excluir Linguagem"));
    EXPECT_EQ(ui.perguntas[0].icone, Icone::Pergunta);
}
