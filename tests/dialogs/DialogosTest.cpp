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

template <class T>
T *filho(QWidget *w, const char *nome)
{
    T *c = w->findChild<T *>(QString::fromLatin1(nome));
    EXPECT_NE(c, nullptr) << nome;
    return c;
}

// The text box inside a numeric field.
QLineEdit *numero(QWidget *w, const char *nome)
{
    auto *n = filho<NumeroCtl>(w, nome);
    return n ? n->txtNumero() : nullptr;
}

void clicar(QWidget *w, const char *botao) { QTest::mouseClick(filho<QPushButton>(w, botao), Qt::LeftButton); }

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
    const QLocale local;
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    LayoutDocumento &d = t.s.Documento;
    d.MargemSuperior = QStringLiteral("MARGEM-SUP");
    d.MargemEsquerda = QStringLiteral("\"12.5\"");
    d.MargemInferior = QStringLiteral("VAR-INF");
    QuandoAbrir([](QWidget *w) {
        auto *numSup = numero(w, "numSuperior");
        EXPECT_EQ(filho<QLineEdit>(w, "txtSuperior")->text(), QStringLiteral("MARGEM-SUP"));
        EXPECT_EQ(numSup->text(), QString());
        EXPECT_EQ(numero(w, "numEsquerda")->text(), QStringLiteral("12,5"));
        EXPECT_EQ(filho<QLineEdit>(w, "txtEsquerda")->text(), QString());
        // Enter moves on as Tab and is swallowed.
        numSup->setFocus();
        QTest::keyClick(numSup, Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), filho<QLineEdit>(w, "txtSuperior"));
        // Typing a name empties the number of the same margin, and a number the name.
        digitar(filho<QLineEdit>(w, "txtEsquerda"), QStringLiteral("VAR-ESQ"));
        EXPECT_EQ(numero(w, "numEsquerda")->text(), QString());
        digitar(numero(w, "numInferior"), QStringLiteral("7"));
        EXPECT_EQ(filho<QLineEdit>(w, "txtInferior")->text(), QString());
        // A paste keeps what the keys take, the decimal comma among them.
        QApplication::clipboard()->setText(QStringLiteral(",5 cm"));
        QTest::keyClick(numero(w, "numInferior"), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(numero(w, "numInferior")->text(), QStringLiteral("7,5"));
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuConfigMargens(t.s, nullptr));
    EXPECT_EQ(QStringList({d.MargemSuperior, d.MargemEsquerda, d.MargemInferior}),
              QStringList({"MARGEM-SUP", "VAR-ESQ", "\"7.5\""}));
    EXPECT_TRUE(t.s.Alterado);
    EXPECT_TRUE(t.s.TextoResultado.startsWith(QStringLiteral("MS MARGEM-SUP\r\nME VAR-ESQ\r\nMI 008\r\n")))
        << t.s.TextoResultado.toStdString();

    const auto anterior = ImpressorasInstaladas;
    ImpressorasInstaladas = [] { return QStringList{QStringLiteral("HP LaserJet 1020"), QStringLiteral("PDF Virtual")}; };
    t.s.Documento.NomeImpressora = QStringLiteral("Antiga");
    QuandoAbrir([](QWidget *w) {
        auto *lista = filho<QListWidget>(w, "lstImpressoras");
        auto *txt = filho<QLineEdit>(w, "txtImpressora");
        ASSERT_EQ(lista->count(), 4);
        // A printer that is not installed: only the text box, also once the
        // list has the focus.
        EXPECT_EQ(txt->text(), QStringLiteral("Antiga"));
        EXPECT_TRUE(lista->selectedItems().isEmpty());
        lista->setFocus();
        EXPECT_EQ(txt->text(), QStringLiteral("Antiga"));
        digitar(txt, QStringLiteral("pdf virtual"));
        EXPECT_EQ(lista->currentRow(), 3);
        EXPECT_EQ(lista->selectedItems().size(), 1);
        EXPECT_EQ(txt->text(), QStringLiteral("pdf virtual"));
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuConfigNomeImpressora(t.s, nullptr));
    EXPECT_TRUE(t.s.TextoResultado.startsWith(QStringLiteral("I pdf virtual\r\n")));

    QuandoAbrir([](QWidget *w) {
        auto *num = numero(w, "numQualidadeJPG");
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
    QuandoAbrir([](QWidget *w) {
        auto *txt = filho<QPlainTextEdit>(w, "txtTexto");
        EXPECT_EQ(txt->toPlainText(), QStringLiteral("Prezado\nsegue{enter}anexo"));
        EXPECT_EQ(txt->font().family(), QStringLiteral("Times New Roman"));
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
    QuandoAbrir([](QWidget *w) {
        auto *txt = filho<QPlainTextEdit>(w, "txtEstilo");
        auto *negrito = filho<QPushButton>(w, "btnEstilo(0)");
        QTextCursor c = txt->textCursor();
        c.setPosition(1);
        c.setPosition(4, QTextCursor::KeepAnchor);  // "ota"
        txt->setTextCursor(c);
        EXPECT_FALSE(negrito->isChecked());
        QTest::mouseClick(negrito, Qt::LeftButton);
        EXPECT_EQ(txt->toPlainText(), QStringLiteral("{n}Total{/n} geral"));
        EXPECT_TRUE(negrito->isChecked());
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
        QTest::mouseClick(filho<QPushButton>(w, "btnEstilo(1)"), Qt::LeftButton);
        txt->moveCursor(QTextCursor::End);
        QTest::keyClick(txt, Qt::Key_Return);
        clicar(w, "btnOk");
    });
    EXPECT_TRUE(mnuEditarItemEstilo(t.s, nullptr));
    EXPECT_EQ(item.Texto, QStringLiteral("Total {i}geral{/i}{e}"));
    EXPECT_TRUE(t.s.TextoResultado.contains(QStringLiteral("Total {i}geral{/i}{e}")));

    // Only text and command items have a style.
    item.Tipo = TipoFigura;
    EXPECT_FALSE(mnuEditarItemEstilo(t.s, nullptr));
    ImpressorasInstaladas = anterior;
    QLocale::setDefault(local);
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
             digitar(numero(w, "numSuperior"), QStringLiteral("3"));
             QTest::keyClick(numero(w, "numSuperior"), Qt::Key_Escape);   // from a number too
         }},
        {mnuConfigNomeImpressora, [](QWidget *w) {
             // A click on another entry writes it into the box.
             auto *lista = filho<QListWidget>(w, "lstImpressoras");
             QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
             EXPECT_EQ(filho<QLineEdit>(w, "txtImpressora")->text(), QStringLiteral("<< Padrão do Windows >>"));
             clicar(w, "btnCancelar");
         }},
        {mnuConfigQualidadeJPG, [](QWidget *w) {
             digitar(numero(w, "numQualidadeJPG"), QStringLiteral("20"));
             clicar(w, "btnCancelar");
         }},
        {mnuConfigEmailTexto, [](QWidget *w) {
             clicar(w, "btnPadrao");
             EXPECT_EQ(filho<QPlainTextEdit>(w, "txtTexto")->toPlainText(), TextoEmailPadrao());
             clicar(w, "btnCancelar");
         }},
        {mnuEditarItemEstilo, [](QWidget *w) {
             filho<QPlainTextEdit>(w, "txtEstilo")->selectAll();
             QTest::mouseClick(filho<QPushButton>(w, "btnEstilo(3)"), Qt::LeftButton);
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
