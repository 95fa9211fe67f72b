#include "app/JanelaTeste.h"
#include "app/gui/AvisosQt.h"
#include "app/gui/CanvasJanela.h"
#include "controls/ui/XPButtonCtl.h"
#include "document/ArquivoLMT.h"
#include "output/Linguagem.h"
#include "support/PastaLinguagensTemporaria.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

struct Janela : teste::JanelaTeste {
    using JanelaTeste::JanelaTeste;
    void editar()
    {
        s.AddBanda(0, false, 0, 0);
        s.ConcluirEdicao();
    }
};

// The actions of a menu in order, separators left out.
QStringList NomesDoMenu(QMenu *m)
{
    QStringList r;
    for (QAction *a : m->actions())
        if (!a->isSeparator())
            r << a->objectName();
    return r;
}

}  // namespace

TEST(frmLumetaEdit, PrimeiroInicioMenusCanvasRodaEAboutBox)
{
    Janela j;
    ASSERT_TRUE(j.iniciado);
    // Nothing to undo, no break; the comment and language entries stay
    // enabled though their menus follow the selection.
    for (const char *nome : {"mnuEditarDesfazer", "mnuEditarBandaPagina", "mnuEditarMacro"})
        EXPECT_FALSE(j.acao(nome)->isEnabled()) << nome;
    for (const char *nome : {"mnuEditarBandaComentario", "mnuEditarLinguagens", "mnuEditarColar"})
        EXPECT_TRUE(j.acao(nome)->isEnabled()) << nome;
    // A first start: no recent files, so their entries and "Excluir Atalhos"
    // are hidden; pixels, the result pane, JPG e-mail and the magic item on.
    for (const char *nome : {"mnuArquivoRecente(1)", "mnuArquivoRecente(4)", "mnuArquivoExcluirRecentes"})
        EXPECT_FALSE(j.acao(nome)->isVisible()) << nome;
    for (const char *nome : {"mnuConfigMedidaPixels", "mnuConfigResultado", "mnuConfigEmailJPG"})
        EXPECT_TRUE(j.acao(nome)->isChecked()) << nome;
    for (const char *nome : {"mnuConfigMedidaMilimetros", "mnuConfigPaisagem"})
        EXPECT_FALSE(j.acao(nome)->isChecked()) << nome;
    EXPECT_TRUE(j.janela.btnMagic->Value());

    // The page picture shows what the viewport holds of the canvas. (The
    // scroll bars' range and a scrolled picture: the layouts at the limit.)
    EXPECT_EQ(j.janela.picPagina->size(), j.janela.picContainer->size());
    const QImage img = j.janela.picPagina->grab(QRect(0, 0, 800, 200)).toImage();
    EXPECT_EQ(QColor(img.pixel(8, 20)), QColor(230, 230, 230));       // the item's cell outline

    // Scroll bars move the page inside the viewport.
    QScrollBar *v = j.janela.vsbPagina;
    v->setValue(100);
    j.janela.hsbPagina->setValue(j.janela.hsbPagina->maximum());
    EXPECT_EQ(j.janela.picPagina->Origem(), QPoint(j.janela.hsbPagina->maximum(), 100));

    // The wheel: one notch away scrolls up one step, towards the user down.
    auto roda = [&](int delta) {
        QWheelEvent e(QPointF(50, 50), j.janela.mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        // Events made here are not spontaneous, so Qt does not pass them up
        // from the canvas; they go to the window, where the canvas's ones end.
        QApplication::sendEvent(&j.janela, &e);
    };
    // Force the hook: whether this machine reports a wheel is not the test's business.
    ASSERT_TRUE(j.janela.Roda().InstalarRoda(&j.janela, true));
    v->setValue(200);
    const int passo = v->singleStep();
    roda(120);
    EXPECT_EQ(v->value(), 200 - passo);
    roda(-120);
    EXPECT_EQ(v->value(), 200);

    // Showing the selection scrolls the selected item into view.
    v->setValue(v->maximum());
    j.janela.hsbPagina->setValue(0);
    j.s.ItemSelecionado = 1;
    j.janela.MostrarSelecao();
    EXPECT_EQ(v->value(), 16 - 8);

}

TEST(frmLumetaEdit, DesfazerSoComEdicaoEForaDeCaixaDeTexto)
{
    Janela j;
    QAction *desfazer = j.acao("mnuEditarDesfazer");
    j.editar();
    j.editar();
    // A text box with the focus keeps its own undo.
    auto *caixa = new QLineEdit(j.janela.centralWidget());
    caixa->show();
    caixa->setFocus();
    QApplication::processEvents();
    emit j.janela.mnuEditar->aboutToShow();
    EXPECT_FALSE(desfazer->isEnabled());
    // The read-only result pane is no text box: undo and Ctrl+Z work there.
    j.janela.rtbResultado->setFocus();
    delete caixa;
    QApplication::processEvents();
    emit j.janela.mnuEditar->aboutToShow();
    ASSERT_TRUE(desfazer->isEnabled());
    QTest::keyClick(j.janela.rtbResultado, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(j.janela.rtbResultado->toPlainText().count(QStringLiteral("RH 00018")), 2);
}

TEST(frmLumetaEdit, SairComCancelarNoDialogoMantemAJanelaESairGravaAsConfiguracoes)
{
    Janela j;
    j.editar();
    j.ui.respostas = {Resposta::Sim};
    j.ui.arquivos = {QString()};
    EXPECT_FALSE(j.janela.close());

    j.janela.btnMagic->setValue(false);
    j.ui.respostas = {Resposta::Nao};
    EXPECT_TRUE(j.janela.close());
    EXPECT_EQ(QSettings(j.cfg.ArquivoIni(), QSettings::IniFormat).value(QStringLiteral("MagicItem")).toString(),
              QStringLiteral("False"));
}

TEST(frmLumetaEdit, ArquivosRecentesNoMenuEAberturaQueFalhaEncerraSemPerguntar)
{
    Janela j;
    int encerramentos = 0;
    j.janela.AoEncerrar = [&] { ++encerramentos; };
    const QString rel = j.cfg.Pasta() + QStringLiteral("/rel.lmt");
    const QString outro = j.cfg.Pasta() + QStringLiteral("/a&b.lmt");
    j.ui.arquivos = {rel, outro};
    j.acao("mnuArquivoSalvarComo")->trigger();
    j.acao("mnuArquivoSalvarComo")->trigger();
    // The latest name goes first, its ampersand shown as one.
    EXPECT_EQ(j.acao("mnuArquivoRecente(1)")->text(), QStringLiteral("a&&b.lmt"));
    EXPECT_EQ(j.acao("mnuArquivoRecente(2)")->text(), QStringLiteral("rel.lmt"));
    EXPECT_TRUE(!j.acao("mnuArquivoRecente(3)")->isVisible() && j.acao("mnuArquivoExcluirRecentes")->isVisible());
    EXPECT_EQ(j.janela.windowTitle(), QStringLiteral("LumetaEdit 2.0 - [") + outro + QStringLiteral("]"));

    // An unreadable file (here a whole one without bands) ends the program
    // without asking about changes.
    const QString ruim = j.cfg.Pasta() + QStringLiteral("/ruim.lmt");
    teste::GravarArquivoTeste(ruim, GravarLMT(LayoutDocumento()));
    j.editar();
    j.ui.respostas = {Resposta::Nao};
    j.ui.arquivos = {ruim};
    const qsizetype perguntas = j.ui.perguntas.size();
    j.acao("mnuArquivoAbrir")->trigger();
    EXPECT_EQ(encerramentos, 1);
    // Only the question before the dialog, none on closing.
    EXPECT_TRUE(j.janela.close());
    EXPECT_EQ(j.ui.perguntas.size(), perguntas + 1);
}

TEST(frmLumetaEdit, MenuConfigurarReconstroiOsCpyERecusaQuebraComRodape)
{
    teste::PastaLinguagensTemporaria pasta;
    for (const char *nome : {"Cobol.lin", "basic.lin"})
        ASSERT_EQ(GravarArquivoLinguagem(pasta.Caminho(QLatin1String(nome)), LinguagemPadrao()).resultado,
                  ResultadoLin::Ok);
    Janela j;
    j.s.DefinirCPY(QStringLiteral("COBOL"));
    QMenu *cpy = j.janela.findChild<QMenu *>(QStringLiteral("mnuConfigCpy"));
    emit j.janela.mnuConfig->aboutToShow();
    EXPECT_EQ(NomesDoMenu(cpy), QStringList({"mnuConfigCpyNenhum", "mnuConfigCpyTipo(1)", "mnuConfigCpyTipo(2)"}));
    EXPECT_EQ(j.acao("mnuConfigCpyTipo(2)")->text(), QStringLiteral("Cobol"));
    EXPECT_TRUE(j.acao("mnuConfigCpyTipo(2)")->isChecked());

    // A language removed on disk leaves the menu the next time it opens.
    QFile::remove(pasta.Caminho(QStringLiteral("Cobol.lin")));
    j.acao("mnuConfigCpyTipo(1)")->trigger();
    emit j.janela.mnuConfig->aboutToShow();
    EXPECT_EQ(NomesDoMenu(cpy), QStringList({"mnuConfigCpyNenhum", "mnuConfigCpyTipo(1)"}));
    EXPECT_TRUE(j.acao("mnuConfigCpyTipo(1)")->isChecked());
    j.acao("mnuConfigCpyNenhum")->trigger();
    emit j.janela.mnuConfig->aboutToShow();
    EXPECT_TRUE(j.acao("mnuConfigCpyNenhum")->isChecked());

    // The copy-as submenu lists the languages too, and copies the code.
    QMenu *como = j.janela.findChild<QMenu *>(QStringLiteral("mnuEditarCopiarComo"));
    emit como->aboutToShow();
    EXPECT_EQ(NomesDoMenu(como), QStringList({"mnuEditarCopiarComoComandos", "mnuEditarCopiarComoTipo(1)"}));
    QApplication::clipboard()->setText(QStringLiteral("antes"));
    j.acao("mnuEditarCopiarComoTipo(1)")->trigger();
    EXPECT_NE(QApplication::clipboard()->text(), QStringLiteral("antes"));

    // Final page break with a footer band: refused, check mark unchanged.
    j.editar();
    j.s.Documento.BandaRodape = 2;
    j.acao("mnuConfigQuebraPagina")->trigger();
    ASSERT_EQ(j.ui.mensagens.size(), 1);
    EXPECT_EQ(j.ui.mensagens[0].titulo, QStringLiteral("Rodapé"));
    EXPECT_FALSE(j.acao("mnuConfigQuebraPagina")->isChecked());
}


TEST(frmLumetaEdit, PainelDeResultadoTrocaSoOTrechoAlteradoAlternaETemMenuProprio)
{
    Janela j;
    QPlainTextEdit *pane = j.janela.rtbResultado;
    auto mostrado = [&] { return QString(j.s.TextoResultado).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); };
    // No undo history grows with every change.
    EXPECT_FALSE(pane->document()->isUndoRedoEnabled());

    SessaoEdicao &s = j.s;
    for (int b = 0; b < 200; ++b)
        s.AddBanda(0, false, 0, 0);
    s.ConcluirEdicao();
    QApplication::processEvents();
    pane->verticalScrollBar()->setValue(150);
    // A line added near the top, one removed in the middle, one line's text
    // changed at the end, a non-Latin-1 text and back to a new document:
    // each time the pane holds exactly the command text and keeps its place.
    s.AlternarImprimir();
    EXPECT_EQ(pane->toPlainText(), mostrado());
    EXPECT_EQ(pane->verticalScrollBar()->value(), 150);
    s.Documento.Bandas.removeAt(100);
    s.ConcluirEdicao();
    EXPECT_EQ(pane->toPlainText(), mostrado());
    s.Documento.Bandas.last().Itens[0].Texto = QStringLiteral("Total \U0001D11E \u00e7");
    s.ConcluirEdicao();
    EXPECT_EQ(pane->toPlainText(), mostrado());
    s.Documento.Bandas.last().Itens[0].Texto = QStringLiteral("Total \U0001D120 \u00e7");
    s.ConcluirEdicao();
    EXPECT_EQ(pane->toPlainText(), mostrado());
    EXPECT_EQ(pane->verticalScrollBar()->value(), 150);
    s.AlternarImprimir();
    EXPECT_EQ(pane->toPlainText(), mostrado());
    j.ui.respostas = {Resposta::Nao};
    j.acao("mnuArquivoNovo")->trigger();
    EXPECT_EQ(pane->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts),
              QStringList({"QJ 92", "F 100000Arial", "T 009900002000600000100010Texto 1", "RH 00018", "QL"}));

    // The pane switches off and on, and has a pop-up menu of its own.
    ASSERT_TRUE(j.janela.rtbResultado->isVisible());
    const int larguraCom = j.janela.areaCanvas->width();
    j.acao("mnuConfigResultado")->trigger();
    QApplication::processEvents();
    EXPECT_FALSE(j.janela.rtbResultado->isVisible() || j.acao("mnuConfigResultado")->isChecked());
    EXPECT_GE(j.janela.areaCanvas->width(), j.janela.centralWidget()->width() - 8);
    // The picture beside the toolbar switches it back.
    emit j.janela.imgResultado->Click();
    QApplication::processEvents();
    EXPECT_TRUE(j.janela.rtbResultado->isVisible() && j.acao("mnuConfigResultado")->isChecked());
    EXPECT_EQ(j.janela.areaCanvas->width(), larguraCom);

    // The pane's pop-up menu opens when the right button is released over it.
    QWidget *area = j.janela.rtbResultado->viewport();
    QMouseEvent solta(QEvent::MouseButtonRelease, QPointF(20, 20), area->mapToGlobal(QPointF(20, 20)),
                      Qt::RightButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(area, &solta);
    EXPECT_TRUE(j.janela.mnuPopup->isVisible());
    j.janela.mnuPopup->hide();
    // Copy only with a selection.
    emit j.janela.mnuPopup->aboutToShow();
    EXPECT_FALSE(j.acao("mnuPopupCopiar")->isEnabled());
    j.acao("mnuPopupSelecionar")->trigger();
    emit j.janela.mnuPopup->aboutToShow();
    EXPECT_TRUE(j.acao("mnuPopupCopiar")->isEnabled());
    j.acao("mnuPopupCopiar")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), j.janela.rtbResultado->toPlainText());
}

TEST(frmLumetaEdit, LayoutsNoLimiteAbremInteirosRolamAteOFimEEditamLa)
{
    // 32,767 bands of ten items: about 590,000 pixels of canvas.
    LayoutDocumento limite;
    Banda b;
    b.Altura = 18;
    for (int i = 0; i < 10; ++i)
        b.Itens.append(teste::NovoItem(TipoTexto, QStringLiteral("Texto"), 0, 64));
    limite.Bandas = QList<Banda>(32767, b);
    QTemporaryDir dir;
    const QString caminho = dir.filePath(QStringLiteral("limite.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(caminho, limite).ok);
    {
        Janela j({1000, 700}, {caminho});
        ASSERT_TRUE(j.iniciado);
        SessaoEdicao &s = j.s;
        EXPECT_TRUE(j.ui.mensagens.isEmpty());
        EXPECT_TRUE(s.Canvas.TamanhoTotal);
        const Banda &ultima = s.Documento.banda(32767);
        const int fundo = ultima.Topo + 18;
        EXPECT_GE(s.Canvas.Tamanho.height(), fundo + 64);
        EXPECT_LE(s.Canvas.Tamanho.height(), fundo + 384);
        QScrollBar *v = j.janela.vsbPagina;
        EXPECT_EQ(v->maximum(), s.Canvas.Tamanho.height() - j.janela.picContainer->height());
        v->setValue(v->maximum());
        QApplication::processEvents();

        // The last band shows at the foot of the viewport; a click there
        // selects its third item and Delete removes it.
        PicPagina *pagina = j.janela.picPagina;
        const QPoint celula = QPoint(8 + 2 * 64 + 20, ultima.Topo + 9) - pagina->Origem();
        ASSERT_TRUE(pagina->rect().contains(celula));
        EXPECT_EQ(QColor(pagina->grab().toImage().pixel(celula.x() - 20, celula.y())), QColor(230, 230, 230));
        QTest::mouseClick(pagina, Qt::LeftButton, {}, celula);
        ASSERT_EQ(std::pair(s.BandaSelecionada, s.ItemSelecionado), std::pair(32767, 3));
        QTest::keyClick(pagina, Qt::Key_Delete);
        EXPECT_EQ(s.Documento.banda(32767).NumItens(), 9);
        EXPECT_EQ(v->value(), v->maximum());
    }

    // One changed byte: a band 1,778,384,986 pixels high. The window makes
    // that canvas too, paints what shows at either end and says nothing.
    const QString alta = dir.filePath(QStringLiteral("alta.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(alta, teste::LayoutBandaAltissima()).ok);
    teste::ContadorMensagensQt avisos;
    Janela j({1000, 700}, {alta});
    ASSERT_TRUE(j.iniciado);
    EXPECT_TRUE(j.ui.mensagens.isEmpty());
    EXPECT_GT(j.janela.Sessao().Canvas.Tamanho.height(), 1778384986);
    const QImage topo = j.janela.picPagina->grab().toImage();
    j.janela.vsbPagina->setValue(j.janela.vsbPagina->maximum());
    const QImage fim = j.janela.picPagina->grab().toImage();
    EXPECT_NE(topo, fim);
    EXPECT_EQ(avisos.total(), 0);
}

TEST(frmLumetaEdit, AvisosRepetidosDoQtNaoInundamASaidaDeErros)
{
    LimiteAvisos limite;
    QStringList escritas;
    for (int i = 0; i < 100000; ++i) {
        const QString m = limite.Filtrar(QStringLiteral("QImage::setPixel: coordinate (%1,%2) out of range").arg(i).arg(i * 7));
        if (!m.isEmpty())
            escritas << m;
    }
    ASSERT_EQ(escritas.size(), LimiteAvisos::RepeticoesMostradas + 1);
    EXPECT_TRUE(escritas.last().startsWith(QStringLiteral("(repetições desta mensagem omitidas)")));
    // Another message still gets through; past the total nothing does.
    EXPECT_FALSE(limite.Filtrar(QStringLiteral("outra")).isEmpty());
    for (int i = 0; i < LimiteAvisos::TotalMostrado; ++i)
        (void)limite.Filtrar(QStringLiteral("aviso ") + QChar(0x100 + i));
    EXPECT_TRUE(limite.Filtrar(QStringLiteral("mais uma")).isEmpty());
}
