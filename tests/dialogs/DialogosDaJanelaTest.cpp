// The barcode and comment dialogs driven through their widgets, opened from
// the Edit menu of the real window: fixed value against field, the graph bar,
// the two boxes around the character 255, the tools menu and the placement
// kept in the settings.
#include "app/JanelaTeste.h"
#include "app/gui/LigacaoDialogos.h"
#include "dialogs/ApoioDialogos.h"
#include "dialogs/ApoioTestesDialogos.h"
#include "dialogs/frmCodigoBarras.h"
#include "dialogs/frmComentario.h"
#include "editing/ComandosDialogos.h"
#include "support/PastaLinguagensTemporaria.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

const QString AB = QStringLiteral("A") + QChar(0xFF) + QStringLiteral("B");

struct Janela : teste::JanelaTeste {
    Janela() { s.ItemSelecionado = 1; }
    Item &item() { return s.Documento.banda(1).Itens[0]; }
    QString &comentario() { return s.Documento.banda(1).Comentario; }
    bool abrir(const std::function<void(frmCodigoBarras &)> &passo)
    {
        // The entry is prepared when the Edit menu opens, as for the user; a
        // barcode item, where it is off, is reached through the panel instead.
        emit janela.mnuEditar->aboutToShow();
        QAction *a = acao("mnuEditarItemCodigoBarras");
        return teste::NoDialogo<frmCodigoBarras>(
            [&] { a->isEnabled() ? a->trigger() : (void)AbrirCodigoBarrasJanela(janela); }, passo);
    }
    bool abrir(const std::function<void(frmComentario &)> &passo)
    {
        return teste::NoDialogo<frmComentario>([this] { acao("mnuEditarBandaComentario")->trigger(); }, passo);
    }
};

}  // namespace

TEST(frmCodigoBarras, ValorFixoECampoSeExcluemPeloTeclado)
{
    Janela j;
    j.item().Texto = QStringLiteral("\"123\"");
    j.item().Tipo = TipoEAN13;
    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        EXPECT_TRUE(d.optTipo[TipoEAN13]->isChecked());
        EXPECT_EQ(QStringList({d.txtTexto->text(), d.txtComando->text(), d.lblInfo->text()}),
                  QStringList({"123", "", "0 até 9"}));
        d.optTipo[TipoCode39]->click();
        EXPECT_EQ(d.lblInfo->text(), QStringLiteral("0 até 9\nA até Z\n-. $/+%"));
        d.txtComando->setFocus();
        QTest::keyClicks(d.txtComando, QStringLiteral("CODIGO"));
        EXPECT_TRUE(d.txtTexto->text().isEmpty());
        d.chkCaixaTexto->click();
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(std::tuple(int(j.item().Tipo), j.item().Texto, j.item().Atributos),
              std::tuple(int(TipoCode39), QStringLiteral("CODIGO"), QStringLiteral("0000100011")));

    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        EXPECT_EQ(std::pair(d.txtTexto->text(), d.txtComando->text()), std::pair(QString(), QStringLiteral("CODIGO")));
        d.txtTexto->setFocus();
        QTest::keyClicks(d.txtTexto, QStringLiteral("789"));
        EXPECT_TRUE(d.txtComando->text().isEmpty());
        // Enter moves on to the next field and does not close the dialog.
        QTest::keyClick(d.txtTexto, Qt::Key_Return);
        EXPECT_EQ(d.focusWidget(), d.txtComando);
        d.optTipo[TipoEAN8]->click();
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(std::pair(int(j.item().Tipo), j.item().Texto), std::pair(int(TipoEAN8), QStringLiteral("\"789\"")));

    // Both fields emptied: an empty fixed value.
    frmCodigoBarras d(LerValoresCodigoBarras(j.s));
    d.txtTexto->clear();
    d.btnOk->click();
    EXPECT_EQ(d.Valores().Conteudo, QStringLiteral("\"\""));
}

TEST(frmCodigoBarras, BarraDeGraficoTomaAAlturaInteira)
{
    Janela j;
    j.item().Atributos = QStringLiteral("0010103011");
    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        EXPECT_TRUE(d.chkCaixaTexto->isChecked());
        d.optTipo[TipoBarraGrafico]->click();
        EXPECT_FALSE(d.chkCaixaTexto->isEnabled() || d.chkCaixaTexto->isChecked() || !d.lblInfo->isHidden());
        EXPECT_EQ(d.lblValor->text(), QStringLiteral("Altura:"));
        // The item's text was a field: typing the height empties it.
        EXPECT_EQ(d.txtComando->text(), QStringLiteral("Texto 1"));
        QTest::keyClicks(d.txtTexto, QStringLiteral("33,9"));
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
        EXPECT_EQ(d.txtTexto->text(), QStringLiteral("33"));
    }));
    EXPECT_EQ(std::tuple(int(j.item().Tipo), j.item().Texto, j.item().Atributos),
              std::tuple(int(TipoBarraGrafico), QStringLiteral("\"33\""), QStringLiteral("0001102010")));
}

TEST(frmComentario, DuasCaixasEmTornoDo255)
{
    Janela j;
    j.comentario() = AB;
    j.s.Alterado = false;
    // Box 1 emptied: no separator left; new lines are stored as CR LF.
    ASSERT_TRUE(j.abrir([](frmComentario &d) {
        EXPECT_EQ(std::pair(d.txtComentario[0]->toPlainText(), d.txtComentario[1]->toPlainText()),
                  std::pair(QStringLiteral("A"), QStringLiteral("B")));
        d.txtComentario[1]->clear();
        d.txtComentario[0]->setFocus();
        d.txtComentario[0]->moveCursor(QTextCursor::End);
        QTest::keyClick(d.txtComentario[0], Qt::Key_Return);
        QTest::keyClicks(d.txtComentario[0], QStringLiteral("x"));
        EXPECT_EQ(d.lblPos[0]->text(), QStringLiteral("(2, 2)"));
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(std::pair(j.comentario(), j.s.Alterado), std::pair(QStringLiteral("A\r\nx"), true));

    j.s.Alterado = false;
    ASSERT_TRUE(j.abrir([](frmComentario &d) { QTest::mouseClick(d.btnLimpar, Qt::LeftButton); }));
    EXPECT_TRUE(j.comentario().isEmpty() && j.s.Alterado);
}

TEST(frmComentario, FerramentasInseremNoCursorEAPosicaoFicaGuardadaNaTela)
{
    teste::ConfigTemporaria cfg;
    teste::PastaLinguagensTemporaria pasta;
    teste::InterfaceRoteirizada ui;
    LinguagemDef def;
    ASSERT_TRUE(NovaLin(QStringLiteral("Basic"), def, &ui));
    def.ComandosSimples = QStringLiteral("MOVE '§c' TO CMD");
    ASSERT_TRUE(SalvarLin(QStringLiteral("Basic"), def, &ui));
    {
        frmComentario d(QStringLiteral("ab") + QChar(0xFF) + QStringLiteral("cd"), &ui);
        d.show();
        ASSERT_EQ(d.mnuFerramentasQuebraTipo->actions().size(), 1);
        QAction *basic = d.mnuFerramentasQuebraTipo->actions()[0];
        EXPECT_EQ(basic->text(), QStringLiteral("Basic"));
        // The box with the focus takes the code at its caret.
        d.txtComentario[1]->setFocus();
        QTextCursor c = d.txtComentario[1]->textCursor();
        c.setPosition(1);
        d.txtComentario[1]->setTextCursor(c);
        basic->trigger();
        d.resize(500, 400);
        d.move(30, 40);
        d.btnOk->click();
        EXPECT_EQ(*d.Resultado(), QStringLiteral("ab") + QChar(0xFF) + QStringLiteral("cMOVE 'QP' TO CMD\r\nd"));
    }
    EXPECT_TRUE(ui.mensagens.isEmpty());
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
}
