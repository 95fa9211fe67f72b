// The comment and programming dialog driven through its widgets: the two
// boxes around the character 255, the buttons, the caret label, the tools
// menu and the window placement kept in the settings.
#include "dialogs/frmComentario.h"

#include "app/gui/frmLumetaEdit.h"
#include "dialogs/ApoioDialogos.h"
#include "dialogs/ApoioTestesDialogos.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

const QString AB = QStringLiteral("A") + QChar(0xFF) + QStringLiteral("B");

struct Janela {
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    frmLumetaEdit janela{&ui};
    SessaoEdicao &s = janela.Sessao();

    Janela() { janela.Iniciar({}); }
    QString &comentario() { return s.Documento.banda(1).Comentario; }
    bool abrir(const std::function<void(frmComentario &)> &acao)
    {
        QAction *a = janela.Acao(QStringLiteral("mnuEditarBandaComentario"));
        return teste::NoDialogo<frmComentario>([a] { a->trigger(); }, acao);
    }
};

}  // namespace

TEST(frmComentario, DuasCaixasEmTornoDo255)
{
    Janela j;
    j.comentario() = AB;
    j.s.Alterado = false;
    ASSERT_TRUE(j.abrir([](frmComentario &d) {
        EXPECT_EQ(d.txtComentario[0]->toPlainText(), QStringLiteral("A"));
        EXPECT_EQ(d.txtComentario[1]->toPlainText(), QStringLiteral("B"));
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(j.comentario(), AB);

    // Box 1 emptied: no separator left; new lines are stored as CR LF.
    ASSERT_TRUE(j.abrir([](frmComentario &d) {
        d.txtComentario[1]->clear();
        d.txtComentario[0]->setFocus();
        d.txtComentario[0]->moveCursor(QTextCursor::End);
        QTest::keyClick(d.txtComentario[0], Qt::Key_Return);
        QTest::keyClicks(d.txtComentario[0], QStringLiteral("x"));
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(d.lblPos[0]->text(), QStringLiteral("(2, 2)"));
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(j.comentario(), QStringLiteral("A\r\nx"));
    EXPECT_TRUE(j.s.Alterado);

    j.comentario() = AB;
    const QString texto = j.s.TextoResultado;
    j.s.Alterado = false;
    ASSERT_TRUE(j.abrir([](frmComentario &d) {
        d.txtComentario[0]->setPlainText(QStringLiteral("descartado"));
        QTest::mouseClick(d.btnCancelar, Qt::LeftButton);
    }));
    EXPECT_EQ(j.comentario(), AB);
    EXPECT_FALSE(j.s.Alterado);

    ASSERT_TRUE(j.abrir([](frmComentario &d) { QTest::mouseClick(d.btnLimpar, Qt::LeftButton); }));
    EXPECT_TRUE(j.comentario().isEmpty());
    EXPECT_TRUE(j.s.Alterado);
}

TEST(frmComentario, FerramentasInseremNoCursor)
{
    teste::ConfigTemporaria cfg;
    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
    LinguagemDef def;
    ASSERT_TRUE(NovaLin(QStringLiteral("Basic"), def, &ui));
    def.ComandosSimples = QStringLiteral("MOVE '§c' TO CMD");
    ASSERT_TRUE(SalvarLin(QStringLiteral("Basic"), def, &ui));
    ASSERT_TRUE(NovaLin(QStringLiteral("Antiga"), def, &ui));

    frmComentario d(QStringLiteral("ab") + QChar(0xFF) + QStringLiteral("cd"), &ui);
    d.show();
    ASSERT_EQ(d.mnuFerramentasQuebraTipo->actions().size(), 2);
    QAction *basic = nullptr;
    for (QAction *a : d.mnuFerramentasQuebraTipo->actions())
        if (a->text() == QStringLiteral("Basic"))
            basic = a;
    ASSERT_NE(basic, nullptr);
    // The box with the focus takes the code at its caret.
    d.txtComentario[1]->setFocus();
    QTextCursor c = d.txtComentario[1]->textCursor();
    c.setPosition(1);
    d.txtComentario[1]->setTextCursor(c);
    basic->trigger();
    EXPECT_EQ(d.txtComentario[1]->toPlainText(), QStringLiteral("cMOVE 'QP' TO CMD\nd"));
    EXPECT_EQ(d.txtComentario[0]->toPlainText(), QStringLiteral("ab"));
    d.btnOk->click();
    EXPECT_EQ(*d.Resultado(), QStringLiteral("ab") + QChar(0xFF) + QStringLiteral("cMOVE 'QP' TO CMD\r\nd"));
    EXPECT_TRUE(ui.mensagens.isEmpty());
}

TEST(frmComentario, PosicaoGuardadaEMantidaNaTela)
{
    teste::ConfigTemporaria cfg;
    {
        frmComentario d(QString(), nullptr);
        d.resize(500, 400);
        d.move(30, 40);
        d.btnCancelar->click();
    }
    {
        QSettings ini(cfg.ArquivoIni(), QSettings::IniFormat);
        EXPECT_EQ(ini.value(QStringLiteral("Comentário.Width")).toString(), QStringLiteral("500"));
        EXPECT_EQ(ini.value(QStringLiteral("Comentário.Height")).toString(), QStringLiteral("400"));
        EXPECT_TRUE(ini.contains(QStringLiteral("Comentário.Left")));
        ini.setValue(QStringLiteral("Comentário.Left"), QStringLiteral("90000"));
        ini.setValue(QStringLiteral("Comentário.Top"), QStringLiteral("-500"));
    }
    frmComentario d(QString(), nullptr);
    const QRect tela = d.screen()->availableGeometry();
    EXPECT_TRUE(tela.contains(QRect(d.pos(), d.size()))) << d.x() << "," << d.y();
    EXPECT_EQ(d.size(), QSize(500, 400));

    EXPECT_EQ(ManterNaTela(QRect(-50, 700, 300, 200), QRect(0, 0, 1280, 800)), QRect(0, 600, 300, 200));
    EXPECT_EQ(ManterNaTela(QRect(10, 10, 2000, 100), QRect(0, 0, 1280, 800)), QRect(0, 10, 1280, 100));

    teste::ConferirNomesAcessiveis(&d, {"Inserir antes da banda selecionada:", "Inserir depois da banda selecionada:",
                                        "Linha e Coluna", "Ok", "Cancelar", "Limpar", "Ferramentas"});
}
