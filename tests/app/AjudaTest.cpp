// The Help menu: the shipped manual and tutorial in the program's own help
// window, the shipped example layouts, and a word for whatever is missing.
#include "app/JanelaTeste.h"
#include "app/gui/JanelaAjuda.h"
#include "document/ModuloLumetaEdit.h"
#include "support/VariavelTemporaria.h"

#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <gtest/gtest.h>

using namespace lumeta;

TEST(Ajuda, ManualTutorialEExemplosDaPastaDoProgramaOuUmaMensagem)
{
    teste::VariavelTemporaria recursos(VariavelPastaRecursos, QStringLiteral(LUMETA_DISTRIBUIDOS));
    teste::JanelaTeste j;

    // "Conteúdo": the manual, in one help window that "Tutorial" reuses.
    j.acao("mnuAjudaConteudo")->trigger();
    auto *ajuda = j.janela.findChild<JanelaAjuda *>();
    ASSERT_TRUE(ajuda && ajuda->isVisible());
    QTextBrowser *texto = ajuda->Navegador();
    EXPECT_TRUE(texto->toPlainText().contains(QStringLiteral("Os marcadores \"§\"")));
    j.acao("mnuAjudaTutorial")->trigger();
    EXPECT_EQ(j.janela.findChildren<JanelaAjuda *>().size(), 1);
    EXPECT_TRUE(texto->toPlainText().startsWith(QStringLiteral("Tutorial: uma fatura")));
    // "Voltar" goes back along the links followed.
    texto->setSource(QUrl(QStringLiteral("Leia-me.html")));
    ajuda->findChild<QPushButton *>(QStringLiteral("btnVoltar"))->click();
    EXPECT_TRUE(texto->toPlainText().startsWith(QStringLiteral("Tutorial: uma fatura")));

    // "Exemplos": the open dialog in the examples' folder; every example
    // opens as a layout of several bands.
    const QString exemplos = QStringLiteral(LUMETA_DISTRIBUIDOS "/exemplos");
    const QStringList arquivos = QDir(exemplos).entryList({QStringLiteral("*.lmt")}, QDir::Files);
    EXPECT_EQ(arquivos.size(), 3);
    for (const QString &a : arquivos) {
        j.ui.arquivos = {exemplos + QLatin1Char('/') + a};
        j.acao("mnuAjudaExemplo")->trigger();
        EXPECT_EQ(j.ui.dialogos.last().pastaInicial, exemplos);
        EXPECT_EQ(j.janela.Sessao().NomeArquivo, exemplos + QLatin1Char('/') + a);
        EXPECT_GE(j.janela.Sessao().Documento.NumBandas(), 3) << a.toStdString();
    }

    // Nothing shipped where the program looks: a message each, never silence;
    // none before.
    QTemporaryDir vazia;
    teste::VariavelTemporaria semRecursos(VariavelPastaRecursos, vazia.path());
    j.acao("mnuAjudaConteudo")->trigger();
    j.acao("mnuAjudaExemplo")->trigger();
    ASSERT_EQ(j.ui.mensagens.size(), 2);
    EXPECT_EQ(std::pair(j.ui.mensagens[0].texto, j.ui.mensagens[0].titulo),
              std::pair(MensagemDocumentoAjuda(PastaRecursos() + DocumentoConteudo), QStringLiteral("Ajuda")));
    EXPECT_EQ(j.ui.mensagens[1].texto, PastaRecursos() + PastaExemplos
                                         + QStringLiteral("\n\nNão foi possível encontrar a pasta dos exemplos acima!"));
}
