#include "app/gui/AvisosQt.h"
#include "app/gui/Autor.h"
#include "app/gui/CanvasJanela.h"
#include "app/gui/frmLumetaEdit.h"
#include "controls/ui/TabCtl.h"
#include "controls/ui/XPButtonCtl.h"
#include "document/ArquivoLMT.h"
#include "output/Linguagem.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "support/PastaLinguagensTemporaria.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QSettings>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::ConfigTemporaria;
using lumeta::teste::InterfaceRoteirizada;

namespace {

struct Janela {
    ConfigTemporaria cfg;
    InterfaceRoteirizada ui;
    frmLumetaEdit janela{&ui};
    int encerramentos = 0;

    explicit Janela(const QStringList &args = {})
    {
        janela.AoEncerrar = [this] { ++encerramentos; };
        iniciado = janela.Iniciar(args);
        janela.resize(1000, 700);
        janela.show();
        QApplication::processEvents();
    }
    bool iniciado = false;
    QAction *acao(const char *nome) { return janela.Acao(QString::fromLatin1(nome)); }
    void editar()
    {
        janela.Sessao().AddBanda(0, false, 0, 0);
        janela.Sessao().ConcluirEdicao();
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

TEST(frmLumetaEdit, MenusEEstadosNoPrimeiroInicio)
{
    Janela j;
    ASSERT_TRUE(j.iniciado);
    QStringList topo;
    for (QAction *a : j.janela.menuBar()->actions())
        topo << a->text();
    EXPECT_EQ(topo, QStringList({"&Arquivo", "&Editar", "&Configurar", "Aj&uda"}));

    // Nothing to undo, no break, no item; the macro, comment and language
    // entries stay enabled though their menus follow the selection.
    for (const char *nome : {"mnuEditarDesfazer", "mnuEditarBandaPagina", "mnuEditarItemRemover",
                             "mnuEditarItemCodigoBarras", "mnuEditarMacro", "mnuArquivoExcluirRecentes"})
        EXPECT_FALSE(j.acao(nome)->isEnabled()) << nome;
    for (const char *nome : {"mnuEditarMacroItem(0)", "mnuEditarMacroItem(12)", "mnuEditarBandaComentario",
                             "mnuEditarLinguagens", "mnuEditarColar", "mnuArquivoSalvar"})
        EXPECT_TRUE(j.acao(nome)->isEnabled()) << nome;
    EXPECT_EQ(NomesDoMenu(j.janela.mnuArquivo),
              QStringList({"mnuArquivoNovo", "mnuArquivoAbrir", "mnuArquivoSalvar", "mnuArquivoSalvarComo",
                           "mnuArquivoRecente(1)", "mnuArquivoRecente(2)", "mnuArquivoRecente(3)",
                           "mnuArquivoRecente(4)", "mnuArquivoExcluirRecentes", "mnuArquivoSair"}));

    // A first start: no recent files, so their entries, the separator and
    // "Excluir Atalhos" are hidden; pixels, the result pane, JPG e-mail.
    for (int k = 1; k <= 4; ++k)
        EXPECT_FALSE(j.janela.Acao(QStringLiteral("mnuArquivoRecente(%1)").arg(k))->isVisible());
    EXPECT_FALSE(j.acao("mnuArquivoExcluirRecentes")->isVisible());
    for (const char *nome : {"mnuConfigMedidaPixels", "mnuConfigResultado", "mnuConfigEmailJPG"})
        EXPECT_TRUE(j.acao(nome)->isChecked()) << nome;
    for (const char *nome : {"mnuConfigMedidaMilimetros", "mnuConfigPaisagem"})
        EXPECT_FALSE(j.acao(nome)->isChecked()) << nome;
    EXPECT_TRUE(j.janela.btnMagic->Value());
    EXPECT_EQ(j.janela.windowTitle(), QStringLiteral("LumetaEdit 2.0 - Editor de Layout do Lumeta"));
    EXPECT_EQ(j.janela.tabPagina->Text(), QStringLiteral("Página"));
    EXPECT_TRUE(j.janela.tabPagina->Selected());
    EXPECT_EQ(j.janela.minimumSize(), QSize(633, 384));
}

TEST(frmLumetaEdit, PainelDeResultadoAlternaEFazMenuProprio)
{
    Janela j;
    ASSERT_TRUE(j.janela.rtbResultado->isVisible());
    const int larguraCom = j.janela.areaCanvas->width();
    const int resultadoX = j.janela.rtbResultado->mapTo(&j.janela, QPoint(0, 0)).x();
    EXPECT_GT(resultadoX, j.janela.areaCanvas->mapTo(&j.janela, QPoint(0, 0)).x() + larguraCom - 1);
    j.acao("mnuConfigResultado")->trigger();
    QApplication::processEvents();
    EXPECT_FALSE(j.janela.rtbResultado->isVisible());
    EXPECT_FALSE(j.acao("mnuConfigResultado")->isChecked());
    EXPECT_FALSE(j.janela.Sessao().Config.ExibirResultado);
    const int larguraSem = j.janela.areaCanvas->width();
    EXPECT_GT(larguraSem, larguraCom + 150);
    EXPECT_GE(larguraSem, j.janela.centralWidget()->width() - 8);
    // The picture beside the toolbar switches it back.
    emit j.janela.imgResultado->Click();
    QApplication::processEvents();
    EXPECT_TRUE(j.janela.rtbResultado->isVisible());
    EXPECT_TRUE(j.acao("mnuConfigResultado")->isChecked());
    EXPECT_EQ(j.janela.areaCanvas->width(), larguraCom);

    // Options of the Configure menu regenerate the pane at once.
    j.acao("mnuConfigEmailPDF")->trigger();
    EXPECT_TRUE(j.janela.rtbResultado->toPlainText().startsWith(QStringLiteral("EP 100\n")));
    EXPECT_TRUE(j.acao("mnuConfigEmailPDF")->isChecked());
    EXPECT_FALSE(j.acao("mnuConfigEmailJPG")->isChecked());

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

TEST(frmLumetaEdit, DesfazerSoComEdicaoEForaDeCaixaDeTexto)
{
    Janela j;
    QAction *desfazer = j.acao("mnuEditarDesfazer");
    emit j.janela.mnuEditar->aboutToShow();
    EXPECT_FALSE(desfazer->isEnabled());
    j.editar();
    j.editar();
    emit j.janela.mnuEditar->aboutToShow();
    EXPECT_TRUE(desfazer->isEnabled());
    // A text box with the focus keeps its own undo.
    auto *caixa = new QLineEdit(j.janela.centralWidget());
    caixa->show();
    caixa->setFocus();
    QApplication::processEvents();
    emit j.janela.mnuEditar->aboutToShow();
    EXPECT_FALSE(desfazer->isEnabled());
    // The read-only result pane is no text box: undo and Ctrl+Z work there.
    j.janela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&j.janela));
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
    EXPECT_TRUE(j.janela.isVisible());

    j.janela.btnMagic->setValue(false);
    j.acao("mnuConfigMedidaCentimetros")->trigger();
    EXPECT_FALSE(j.acao("mnuConfigMedidaPixels")->isChecked());
    j.ui.respostas = {Resposta::Nao};
    EXPECT_TRUE(j.janela.close());
    QSettings s(j.cfg.ArquivoIni(), QSettings::IniFormat);
    EXPECT_EQ(s.value(QStringLiteral("MagicItem")).toString(), QStringLiteral("False"));
    EXPECT_EQ(s.value(QStringLiteral("Unidade de Medida")).toString(), QStringLiteral("7"));
}

TEST(frmLumetaEdit, ArquivosRecentesNoMenuEAberturaQueFalhaEncerraSemPerguntar)
{
    Janela j;
    const QString rel = j.cfg.Pasta() + QStringLiteral("/rel.lmt");
    const QString outro = j.cfg.Pasta() + QStringLiteral("/a&b.lmt");
    j.ui.arquivos = {rel, outro};
    j.acao("mnuArquivoSalvarComo")->trigger();
    j.acao("mnuArquivoSalvarComo")->trigger();
    // The latest name goes first, its ampersand shown as one.
    EXPECT_EQ(j.acao("mnuArquivoRecente(1)")->text(), QStringLiteral("a&&b.lmt"));
    EXPECT_EQ(j.acao("mnuArquivoRecente(2)")->text(), QStringLiteral("rel.lmt"));
    EXPECT_FALSE(j.acao("mnuArquivoRecente(3)")->isVisible());
    EXPECT_TRUE(j.acao("mnuArquivoExcluirRecentes")->isVisible());
    EXPECT_EQ(j.janela.windowTitle(), QStringLiteral("LumetaEdit 2.0 - [") + outro + QStringLiteral("]"));

    j.acao("mnuArquivoExcluirRecentes")->trigger();
    EXPECT_FALSE(j.acao("mnuArquivoRecente(1)")->isVisible());
    EXPECT_FALSE(j.acao("mnuArquivoExcluirRecentes")->isVisible());

    // An unreadable file (here a whole one without bands) ends the program
    // without asking about changes.
    const QString ruim = j.cfg.Pasta() + QStringLiteral("/ruim.lmt");
    teste::GravarArquivoTeste(ruim, GravarLMT(LayoutDocumento()));
    j.editar();
    j.ui.respostas = {Resposta::Nao};
    j.ui.arquivos = {ruim};
    const qsizetype perguntas = j.ui.perguntas.size();
    j.acao("mnuArquivoAbrir")->trigger();
    EXPECT_EQ(j.encerramentos, 1);
    EXPECT_EQ(j.ui.perguntas.size(), perguntas + 1);   // only the one before the dialog
    EXPECT_TRUE(j.janela.close());                       // no further question
    EXPECT_EQ(j.ui.perguntas.size(), perguntas + 1);
}

TEST(frmLumetaEdit, MenuConfigurarReconstroiOsCpyERecusaQuebraComRodape)
{
    teste::PastaLinguagensTemporaria pasta;
    for (const char *nome : {"Cobol.lin", "basic.lin"})
        ASSERT_EQ(GravarArquivoLinguagem(pasta.Caminho(QLatin1String(nome)), LinguagemPadrao()).resultado,
                  ResultadoLin::Ok);
    Janela j;
    auto cpyGravado = [&] { return QSettings(j.cfg.ArquivoIni(), QSettings::IniFormat).value(QStringLiteral("CPY")).toString(); };
    j.janela.Sessao().DefinirCPY(QStringLiteral("COBOL"));
    QMenu *cpy = j.janela.findChild<QMenu *>(QStringLiteral("mnuConfigCpy"));
    emit j.janela.mnuConfig->aboutToShow();
    EXPECT_EQ(NomesDoMenu(cpy), QStringList({"mnuConfigCpyNenhum", "mnuConfigCpyTipo(1)", "mnuConfigCpyTipo(2)"}));
    EXPECT_EQ(j.acao("mnuConfigCpyTipo(1)")->text(), QStringLiteral("basic"));
    EXPECT_EQ(j.acao("mnuConfigCpyTipo(2)")->text(), QStringLiteral("Cobol"));
    EXPECT_TRUE(j.acao("mnuConfigCpyTipo(2)")->isChecked());
    EXPECT_FALSE(j.acao("mnuConfigCpyNenhum")->isChecked());

    // A language removed on disk leaves the menu the next time it opens.
    QFile::remove(pasta.Caminho(QStringLiteral("Cobol.lin")));
    j.acao("mnuConfigCpyTipo(1)")->trigger();
    emit j.janela.mnuConfig->aboutToShow();
    EXPECT_EQ(NomesDoMenu(cpy), QStringList({"mnuConfigCpyNenhum", "mnuConfigCpyTipo(1)"}));
    EXPECT_TRUE(j.acao("mnuConfigCpyTipo(1)")->isChecked());
    EXPECT_EQ(cpyGravado(), QStringLiteral("basic"));
    j.acao("mnuConfigCpyNenhum")->trigger();
    emit j.janela.mnuConfig->aboutToShow();
    EXPECT_TRUE(j.acao("mnuConfigCpyNenhum")->isChecked());
    EXPECT_EQ(cpyGravado(), QString());

    // The copy-as submenu lists the languages too, and copies the code.
    QMenu *como = j.janela.findChild<QMenu *>(QStringLiteral("mnuEditarCopiarComo"));
    emit como->aboutToShow();
    EXPECT_EQ(NomesDoMenu(como), QStringList({"mnuEditarCopiarComoComandos", "mnuEditarCopiarComoTipo(1)"}));
    QApplication::clipboard()->setText(QStringLiteral("antes"));
    j.acao("mnuEditarCopiarComoTipo(1)")->trigger();
    EXPECT_NE(QApplication::clipboard()->text(), QStringLiteral("antes"));
    EXPECT_TRUE(j.ui.mensagens.isEmpty());

    // Final page break with a footer band: refused, check mark unchanged.
    j.editar();
    j.janela.Sessao().Documento.BandaRodape = 2;
    j.acao("mnuConfigQuebraPagina")->trigger();
    ASSERT_EQ(j.ui.mensagens.size(), 1);
    EXPECT_EQ(j.ui.mensagens[0].titulo, QStringLiteral("Rodapé"));
    EXPECT_FALSE(j.acao("mnuConfigQuebraPagina")->isChecked());
    EXPECT_FALSE(j.janela.Sessao().Documento.QuebraPaginaFinal);
}

TEST(frmLumetaEdit, CanvasPintaORodaRolaEAboutBox)
{
    Janela j;
    // The page picture shows what the viewport holds of the canvas.
    EXPECT_GE(j.janela.Sessao().Canvas.Tamanho.width(), 1120);
    EXPECT_EQ(j.janela.picPagina->size(), j.janela.picContainer->size());
    const QImage img = j.janela.picPagina->grab(QRect(0, 0, 800, 200)).toImage();
    EXPECT_EQ(QColor(img.pixel(8, 20)), QColor(230, 230, 230));       // the item's cell outline
    EXPECT_EQ(QColor(img.pixel(776, 150)), QColor(0, 255, 255));      // portrait page marker
    EXPECT_EQ(QColor(img.pixel(400, 150)), QColor(Qt::white));

    // Scroll bars move the page inside the viewport.
    QScrollBar *v = j.janela.vsbPagina;
    ASSERT_GT(v->maximum(), 0);
    EXPECT_EQ(v->maximum(), 1120 - j.janela.picContainer->height());
    v->setValue(10);  // the cell outline's row 20 now shows on row 10
    EXPECT_EQ(QColor(j.janela.picPagina->grab(QRect(0, 0, 800, 200)).toImage().pixel(8, 10)), QColor(230, 230, 230));
    v->setValue(100);
    EXPECT_EQ(j.janela.picPagina->ParaCanvas(QPointF(3, 4)), QPoint(3, 104));
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
    j.janela.Roda().RemoverRoda();
    j.janela.Roda().RemoverRoda();   // nothing installed: nothing happens
    v->setValue(200);
    roda(120);
    EXPECT_EQ(v->value(), 200);

    // Showing the selection scrolls the selected item into view.
    v->setValue(v->maximum());
    j.janela.hsbPagina->setValue(0);
    j.janela.Sessao().ItemSelecionado = 1;
    j.janela.MostrarSelecao();
    EXPECT_EQ(v->value(), 16 - 8);
    j.janela.Sessao().ItemSelecionado = 0;

    // The about box shows the build's own version and opens the site.
    Autor autor(&j.janela);
    auto rotulo = [&](const char *nome) { return autor.findChild<QLabel *>(QLatin1String(nome)); };
    EXPECT_EQ(rotulo("lblVersao")->text(), QStringLiteral("Versão %1.%2.%3")
                                               .arg(LUMETA_VERSAO_MAIOR).arg(LUMETA_VERSAO_MENOR).arg(LUMETA_VERSAO_REVISAO));
    EXPECT_TRUE(rotulo("lblSite")->text().contains(QStringLiteral("href=\"") + EnderecoSite));
    EXPECT_TRUE(rotulo("lblSite")->openExternalLinks());
}

TEST(frmLumetaEdit, PainelDeResultadoTrocaSoOTrechoAlteradoEGuardaALeitura)
{
    Janela j;
    QPlainTextEdit *pane = j.janela.rtbResultado;
    auto mostrado = [&] { return QString(j.janela.Sessao().TextoResultado).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); };
    // No undo history grows with every change.
    EXPECT_FALSE(pane->document()->isUndoRedoEnabled());

    SessaoEdicao &s = j.janela.Sessao();
    for (int b = 0; b < 200; ++b)
        s.AddBanda(0, false, 0, 0);
    s.ConcluirEdicao();
    EXPECT_EQ(pane->toPlainText(), mostrado());
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
    EXPECT_EQ(pane->document()->blockCount(), mostrado().count(QLatin1Char('\n')) + 1);
    j.ui.respostas = {Resposta::Nao};
    j.acao("mnuArquivoNovo")->trigger();
    EXPECT_EQ(pane->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts),
              QStringList({"QJ 92", "F 100000Arial", "T 009900002000600000100010Texto 1", "RH 00018", "QL"}));
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
        Janela j({caminho});
        ASSERT_TRUE(j.iniciado);
        SessaoEdicao &s = j.janela.Sessao();
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
        ASSERT_EQ(s.BandaSelecionada, 32767);
        ASSERT_EQ(s.ItemSelecionado, 3);
        QTest::keyClick(pagina, Qt::Key_Delete);
        EXPECT_EQ(s.Documento.banda(32767).NumItens(), 9);
        EXPECT_EQ(v->value(), v->maximum());
    }

    // One changed byte: a band 1,778,384,986 pixels high. The window makes
    // that canvas too, paints what shows at either end and says nothing.
    const QString alta = dir.filePath(QStringLiteral("alta.lmt"));
    ASSERT_TRUE(GravarArquivoLMT(alta, teste::LayoutBandaAltissima()).ok);
    teste::ContadorMensagensQt avisos;
    Janela j({alta});
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
