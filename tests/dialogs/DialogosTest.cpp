#include "controls/ui/NumeroCtl.h"
#include "dialogs/frmCodigoBarras.h"
#include "dialogs/frmComentario.h"
#include "dialogs/frmEstilo.h"
#include "dialogs/frmMargens.h"
#include "dialogs/frmNomeImpressora.h"
#include "dialogs/frmQualidadeJPG.h"
#include "dialogs/frmTextoEmail.h"
#include "editing/SessaoEdicao.h"
#include "output/Visualizacao.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"
#include "dialogs/ApoioTestesDialogos.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

struct Sessao {
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    SessaoEdicao s;
    Sessao() { s.Ui = &ui; }
};

using teste::QuandoAbrir;

// The buttons the dialogs do not keep are found by their names.
void clicar(QWidget *w, const char *botao)
{
    auto *b = w->findChild<QPushButton *>(QLatin1String(botao));
    ASSERT_NE(b, nullptr) << botao;
    QTest::mouseClick(b, Qt::LeftButton);
}

void digitar(QLineEdit *campo, const QString &texto)
{
    campo->setFocus();
    campo->selectAll();
    QTest::keyClick(campo, Qt::Key_Delete);
    QTest::keyClicks(campo, texto);
}

}  // namespace

TEST(Dialogos, OptionsAreShownAsStoredAndWrittenBackAsTyped)
{
    Sessao t;
    teste::LocalBrasil brasil;
    LayoutDocumento &d = t.s.Documento;
    d.MargemSuperior = QStringLiteral("MARGEM-SUP");
    d.MargemEsquerda = QStringLiteral("\"12.5\"");
    d.MargemInferior = QStringLiteral("VAR-INF");
    QuandoAbrir<frmMargens>([](frmMargens *w) {
        QLineEdit *sup = w->numSuperior->txtNumero(), *esq = w->numEsquerda->txtNumero(), *inf = w->numInferior->txtNumero();
        EXPECT_EQ(QStringList({w->txtSuperior->text(), sup->text(), esq->text(), w->txtEsquerda->text()}),
                  QStringList({"MARGEM-SUP", "", "12,5", ""}));
        // Enter moves on as Tab and is swallowed.
        sup->setFocus();
        QTest::keyClick(sup, Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), w->txtSuperior);
        // Typing a name empties the number of the same margin, and a number the name.
        digitar(w->txtEsquerda, QStringLiteral("VAR-ESQ"));
        EXPECT_EQ(esq->text(), QString());
        digitar(inf, QStringLiteral("7"));
        EXPECT_EQ(w->txtInferior->text(), QString());
        // A paste keeps what the keys take, the decimal comma among them.
        QApplication::clipboard()->setText(QStringLiteral(",5 cm"));
        QTest::keyClick(inf, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(inf->text(), QStringLiteral("7,5"));
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuConfigMargens(t.s, nullptr));
    // The names show whole in the command text, the number as stored.
    EXPECT_EQ(d.MargemInferior, QStringLiteral("\"7.5\""));
    EXPECT_TRUE(t.s.Alterado);
    EXPECT_TRUE(t.s.TextoResultado.startsWith(QStringLiteral("MS MARGEM-SUP\r\nME VAR-ESQ\r\nMI 008\r\n")))
        << t.s.TextoResultado.toStdString();

    const auto anterior = ImpressorasInstaladas;
    ImpressorasInstaladas = [] { return QStringList{QStringLiteral("HP LaserJet 1020"), QStringLiteral("PDF Virtual")}; };
    t.s.Documento.NomeImpressora = QStringLiteral("Antiga");
    QuandoAbrir<frmNomeImpressora>([](frmNomeImpressora *w) {
        QListWidget *lista = w->lstImpressoras;
        ASSERT_EQ(lista->count(), 4);
        // A printer that is not installed: only the text box, also once the
        // list has the focus.
        EXPECT_TRUE(lista->selectedItems().isEmpty());
        lista->setFocus();
        EXPECT_EQ(w->txtImpressora->text(), QStringLiteral("Antiga"));
        // A name typed in other capitals selects its entry and is stored as typed.
        digitar(w->txtImpressora, QStringLiteral("pdf virtual"));
        EXPECT_EQ(std::pair(lista->currentRow(), lista->selectedItems().size()), std::pair(3, qsizetype(1)));
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuConfigNomeImpressora(t.s, nullptr));
    EXPECT_TRUE(t.s.TextoResultado.startsWith(QStringLiteral("I pdf virtual\r\n")));

    QuandoAbrir<frmQualidadeJPG>([](frmQualidadeJPG *w) {
        QLineEdit *num = w->numQualidadeJPG->txtNumero();
        EXPECT_EQ(num->text(), QStringLiteral("92"));
        digitar(num, QStringLiteral("150"));
        EXPECT_EQ(num->text(), QStringLiteral("100"));
        digitar(num, QStringLiteral("75"));
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuConfigQualidadeJPG(t.s, nullptr));
    EXPECT_EQ(t.s.QualidadeJPGSessao, 75);
    EXPECT_TRUE(t.s.TextoResultado.contains(QStringLiteral("\r\nQJ 75\r\n"))) << t.s.TextoResultado.toStdString();

    t.s.Documento.TextoEmail = QStringLiteral("Prezado{ENTER}segue{enter}anexo");
    QuandoAbrir<frmTextoEmail>([](frmTextoEmail *w) {
        QPlainTextEdit *txt = w->txtTexto;
        EXPECT_EQ(std::pair(txt->toPlainText(), txt->font().family()),
                  std::pair(QStringLiteral("Prezado\nsegue{enter}anexo"), QStringLiteral("Times New Roman")));
        txt->moveCursor(QTextCursor::End);
        // Enter in the box is a new line, not OK.
        QTest::keyClick(txt, Qt::Key_Return);
        QTest::keyClicks(txt, QStringLiteral("Att."));
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuConfigEmailTexto(t.s, nullptr));
    EXPECT_TRUE(t.s.TextoResultado.contains(QStringLiteral("\r\nET Prezado{ENTER}segue{enter}anexo{ENTER}Att.\r\n")));

    QuandoAbrir([](QWidget *w) { clicar(w, "btnLimpar"); });
    EXPECT_TRUE(mnuConfigEmailTexto(t.s, nullptr));
    EXPECT_EQ(t.s.Documento.TextoEmail, QString());

    // The style of the selected item.
    t.s.ItemSelecionado = 1;
    Item &item = t.s.Documento.banda(1).Itens[0];
    item.Texto = QStringLiteral("Total geral");
    QuandoAbrir<frmEstilo>([](frmEstilo *w) {
        QPlainTextEdit *txt = w->txtEstilo;
        QPushButton *negrito = w->btnEstilo[0];
        QTextCursor c = txt->textCursor();
        c.setPosition(1);
        c.setPosition(4, QTextCursor::KeepAnchor);  // "ota"
        txt->setTextCursor(c);
        QTest::mouseClick(negrito, Qt::LeftButton);
        EXPECT_EQ(txt->toPlainText(), QStringLiteral("{n}Total{/n} geral"));
        // The caret alone inside "Total": the button shows pressed, a click removes both tags.
        c = txt->textCursor();
        c.setPosition(5);
        txt->setTextCursor(c);
        EXPECT_TRUE(negrito->isChecked());
        QTest::mouseClick(negrito, Qt::LeftButton);
        EXPECT_EQ(txt->toPlainText(), QStringLiteral("Total geral"));
        EXPECT_FALSE(negrito->isChecked());
        // Italic on the last word; Enter in the box is a new line, not OK.
        txt->moveCursor(QTextCursor::End);
        QTest::mouseClick(w->btnEstilo[1], Qt::LeftButton);
        txt->moveCursor(QTextCursor::End);
        QTest::keyClick(txt, Qt::Key_Return);
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuEditarItemEstilo(t.s, nullptr));
    EXPECT_TRUE(t.s.TextoResultado.contains(QStringLiteral("Total {i}geral{/i}{e}")));

    // Only text and command items have a style.
    item.Tipo = TipoFigura;
    EXPECT_FALSE(mnuEditarItemEstilo(t.s, nullptr));
    ImpressorasInstaladas = anterior;
}

TEST(Dialogos, CancelOrEscapeChangesNothing)
{
    Sessao t;
    t.s.ItemSelecionado = 1;
    t.s.Documento.banda(1).Comentario = QStringLiteral("A") + QChar(0xFF) + QStringLiteral("B");
    t.s.Documento.NomeImpressora = QStringLiteral("<?>");
    const LayoutDocumento antes = t.s.Documento;
    const std::pair<bool (*)(SessaoEdicao &, QWidget *), std::function<void(QWidget *)>> casos[] = {
        {mnuConfigMargens, [](QWidget *w) {
             QLineEdit *sup = static_cast<frmMargens *>(w)->numSuperior->txtNumero();
             digitar(sup, QStringLiteral("3"));
             QTest::keyClick(sup, Qt::Key_Escape);   // from a number too
         }},
        {mnuConfigNomeImpressora, [](QWidget *w) {
             // A click on another entry writes it into the box.
             auto *d = static_cast<frmNomeImpressora *>(w);
             QListWidget *lista = d->lstImpressoras;
             QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
             EXPECT_EQ(d->txtImpressora->text(), QStringLiteral("<< Padrão do Windows >>"));
             clicar(w, "btnCancelar");
         }},
        {mnuConfigQualidadeJPG, [](QWidget *w) {
             digitar(static_cast<frmQualidadeJPG *>(w)->numQualidadeJPG->txtNumero(), QStringLiteral("20"));
             clicar(w, "btnCancelar");
         }},
        {mnuConfigEmailTexto, [](QWidget *w) {
             clicar(w, "btnPadrao");
             EXPECT_EQ(static_cast<frmTextoEmail *>(w)->txtTexto->toPlainText(), TextoEmailPadrao());
             clicar(w, "btnCancelar");
         }},
        {mnuEditarItemEstilo, [](QWidget *w) {
             static_cast<frmEstilo *>(w)->txtEstilo->selectAll();
             QTest::mouseClick(static_cast<frmEstilo *>(w)->btnEstilo[3], Qt::LeftButton);
             clicar(w, "btnCancelar");
         }},
        {AbrirCodigoBarras, [](QWidget *w) {
             static_cast<frmCodigoBarras *>(w)->optTipo[TipoBarraGrafico]->click();
             static_cast<frmCodigoBarras *>(w)->btnCancelar->click();
         }},
        {AbrirComentario, [](QWidget *w) {
             static_cast<frmComentario *>(w)->txtComentario[0]->setPlainText(QStringLiteral("descartado"));
             static_cast<frmComentario *>(w)->btnCancelar->click();
         }},
    };
    for (const auto &[abrir, acao] : casos) {
        QuandoAbrir(acao);
        EXPECT_FALSE(abrir(t.s, nullptr));
        // The printer and the quality are stored back, unchanged, and mark the layout changed.
        EXPECT_EQ(t.s.Alterado, abrir == mnuConfigQualidadeJPG || abrir == mnuConfigNomeImpressora);
        t.s.Alterado = false;
    }
    EXPECT_EQ(t.s.Documento, antes);
    EXPECT_EQ(t.s.QualidadeJPGSessao, 92);
}

TEST(Dialogos, EveryControlIsFoundByItsNameUnderItsTitle)
{
    teste::ConfigTemporaria cfg;
    frmTextoEmail email{QString()};
    frmEstilo estilo(QStringLiteral("x"));
    frmMargens margens(QStringLiteral("\"0\""), QStringLiteral("\"0\""), QStringLiteral("\"0\""));
    frmNomeImpressora impressora(QString(), {QStringLiteral("PDF Virtual")});
    frmQualidadeJPG jpg(92);
    frmCodigoBarras barras(ValoresCodigoBarras{});
    frmComentario comentario(QString(), nullptr);
    QStringList nomesMargens{"Ok", "Cancelar"};
    for (const char *quadro : {"Margem Superior:", "Margem Esquerda:", "Margem Inferior:"})
        for (const char *campo : {"Margem em milímetros:", "Comando ou Variável:"})
            nomesMargens << QString::fromUtf8(quadro) + QLatin1Char('/') + QString::fromUtf8(campo);
    QStringList nomesBarras{"Alterar o Código de Barras", "Tipo:", "Código de Barras:", "Comando ou Variável:",
                            "Usar a altura da banda (Redimensionar)", "Exemplo", "Caracteres válidos:", "Ok", "Cancelar"};
    for (uint8_t t : TiposDialogoCodigoBarras)
        nomesBarras << LegendaTipoCodigoBarras(t);
    const std::pair<QDialog *, QStringList> casos[] = {
        {&email, {"Texto do e-mail", "Digite o texto que será exibido no corpo do e-mail:", "Ok", "Cancelar",
                  "Limpar", "Padrão"}},
        {&estilo, {"Estilo do Item", "Negrito", "Itálico", "Sublinhado", "Riscado", "Texto do item:", "Ok", "Cancelar"}},
        {&margens, QStringList{"Margens do papel"} + nomesMargens},
        {&impressora, {"Selecione a impressora", "Impressoras", "Imprerssora:", "Ok", "Cancelar"}},
        {&jpg, {"Qualidade do JPG no e-mail", "Digite o percentual (1-100):", "Ok", "Cancelar"}},
        {&barras, nomesBarras},
        {&comentario, {"Comentário e Programação adicional da Banda", "Inserir antes da banda selecionada:",
                       "Inserir depois da banda selecionada:", "Linha e Coluna", "Ok", "Cancelar", "Limpar",
                       "Ferramentas"}},
    };
    for (const auto &[dialogo, nomes] : casos) {
        EXPECT_EQ(dialogo->windowTitle(), nomes.first());
        teste::ConferirNomesAcessiveis(dialogo, nomes.mid(1));
        dialogo->close();
    }
    EXPECT_EQ(barras.btnOk->text(), QStringLiteral("&Ok"));
}
