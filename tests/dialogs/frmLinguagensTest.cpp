// The languages dialog driven through its widgets: the sorted list, a
// template written as soon as it is left changed, add and remove, and the
// STRING choice stored at every click.
#include "dialogs/frmLinguagens.h"

#include "dialogs/ApoioTestesDialogos.h"
#include "document/Configuracoes.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

struct Pasta {
    teste::ConfigTemporaria cfg;
    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
    Configuracoes config;

    explicit Pasta(const QStringList &nomes)
    {
        for (const QString &n : nomes) {
            LinguagemDef d;
            NovaLin(n, d, &ui);
        }
    }
};

QStringList itens(const QComboBox *c)
{
    QStringList r;
    for (int i = 0; i < c->count(); ++i)
        r << c->itemText(i);
    return r;
}

}  // namespace

TEST(frmLinguagens, ModeloGravadoAoSairDaOpcaoEControlesComNome)
{
    Pasta p({QStringLiteral("pascal"), QStringLiteral("Cobol ANSI"), QStringLiteral("basic")});
    frmLinguagens d(p.config, &p.ui);
    d.show();
    d.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&d));   // the focus check below needs the window active
    EXPECT_EQ(itens(d.cmbLin), (QStringList{"basic", "Cobol ANSI", "pascal"}));
    EXPECT_TRUE(d.optLin[0]->isChecked());
    EXPECT_EQ(d.lblLIN->text(), p.pasta.Caminho(QStringLiteral("basic.lin")));

    // Moving between options without a change writes nothing.
    QFile::remove(p.pasta.Caminho(QStringLiteral("basic.lin")));
    d.optLin[5]->click();
    EXPECT_EQ(d.txtLin->toPlainText(), QStringLiteral("§c = Comando"));
    d.optLin[0]->click();
    EXPECT_FALSE(QFile::exists(p.pasta.Caminho(QStringLiteral("basic.lin"))));

    d.txtLin->setFocus();
    QTest::keyClicks(d.txtLin, QStringLiteral("DIM A"));
    QTest::keyClick(d.txtLin, Qt::Key_Return);   // a new line, not the next control
    QTest::keyClicks(d.txtLin, QStringLiteral("DIM B"));
    EXPECT_EQ(d.focusWidget(), d.txtLin);
    d.optLin[7]->click();
    LinguagemDef lida;
    ASSERT_TRUE(LerLinguagem(QStringLiteral("basic"), lida, &p.ui));
    EXPECT_EQ(lida.DefVariaveis, QStringLiteral("DIM A\r\nDIM B"));

    // Another language: the last one is left as it was.
    d.cmbLin->setCurrentIndex(1);
    EXPECT_TRUE(d.Definicao().EhCobol && d.optLin[0]->isChecked() && p.ui.mensagens.isEmpty());

    // Every control is found by its name.
    QStringList esperados{"Selecione a linguagem:", "Adicionar uma nova linguagem", "Remover a linguagem selecionada",
                          "Comandos:", "Modelo do comando selecionado", "Pasta",
                          "No COBOL usar a função \"STRING\" para quebrar o texto", "Ok"};
    for (int i = 0; i < NumOpcoesLinguagem; ++i)
        esperados << LegendaOpcaoLinguagem(i).remove(u'&');
    teste::ConferirNomesAcessiveis(&d, esperados);
}

TEST(frmLinguagens, AdicionarRemoverECobolString)
{
    Pasta p({QStringLiteral("Java")});
    frmLinguagens d(p.config, &p.ui);
    d.show();
    p.ui.entradas = {QStringLiteral("a/b")};
    QTest::mouseClick(d.btnAdd, Qt::LeftButton);
    // The list is read back from the folder: the new file is there.
    EXPECT_EQ(itens(d.cmbLin), (QStringList{"a_b", "Java"}));
    EXPECT_EQ(d.cmbLin->currentText(), QStringLiteral("a_b"));

    p.ui.respostas = {Resposta::Sim, Resposta::Sim};
    QTest::mouseClick(d.btnRemove, Qt::LeftButton);
    EXPECT_EQ(itens(d.cmbLin), QStringList{"Java"});
    EXPECT_EQ(d.lblLIN->text(), p.pasta.Caminho(QStringLiteral("Java.lin")));
    QTest::mouseClick(d.btnRemove, Qt::LeftButton);
    // Nothing left: every editing control off.
    EXPECT_EQ(std::pair(d.cmbLin->count(), d.lblLIN->text()), std::pair(0, QString()));
    EXPECT_FALSE(d.txtLin->isEnabled() || d.btnRemove->isEnabled() || d.optLin[0]->isChecked() || d.optLin[0]->isEnabled());

    ASSERT_TRUE(d.chkCobolString->isChecked());
    QTest::mouseClick(d.chkCobolString, Qt::LeftButton);
    QSettings ini(p.cfg.ArquivoIni(), QSettings::IniFormat);
    EXPECT_EQ(ini.value(QStringLiteral("No COBOL usar STRING")).toString(), QStringLiteral("False"));
    EXPECT_FALSE(p.config.NoCobolUsarString);
}
