// The property panel of the real window, driven as a user drives it.
#include "app/JanelaTeste.h"
#include "app/gui/CanvasJanela.h"
#include "app/gui/PainelJanela.h"
#include "controls/ui/NumeroCtl.h"
#include "dialogs/frmCodigoBarras.h"
#include "editing/DesenhoSelecao.h"
#include "dialogs/ApoioTestesDialogos.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// The window with its first item selected by a click.
struct Painel : teste::LocalBrasil, teste::JanelaTeste {
    PainelJanela *p = janela.painel;

    Painel() : JanelaTeste({1100, 760})
    {
        QTest::mouseClick(janela.picPagina, Qt::LeftButton, {}, QPoint(8 + 10, 16 + 5));
        QApplication::processEvents();
    }
    Item &item() { return s.Documento.banda(1).Itens[0]; }
};

}  // namespace

TEST(PainelJanela, CamposNumericosECaixasPassamAdianteComEnter)
{
    Painel t;
    t.s.DefinirUnidade(6);
    t.s.ConcluirEdicao();
    EXPECT_EQ(t.p->numWidth->txtNumero()->text(), QStringLiteral("16,93"));   // 64 px
    t.p->numWidth->txtNumero()->setFocus();
    QTest::keyClicks(t.p->numWidth->txtNumero(), QStringLiteral("20"));
    QTest::keyClick(t.p->numWidth->txtNumero(), Qt::Key_Return);   // Enter acts as Tab
    EXPECT_FALSE(t.p->numWidth->txtNumero()->hasFocus());
    EXPECT_EQ(t.item().Largura, 76);
    EXPECT_EQ(t.p->numWidth->txtNumero()->text(), QStringLiteral("20,11"));
    const QImage img = t.janela.picPagina->grab().toImage();
    EXPECT_EQ(img.pixelColor(8 + 76 - 3, 16 + 9), CorSelecao);   // the frame's right handle moved

    // Enter moves on from boxes too; a click on a format box changes the T line.
    for (QWidget *w : std::initializer_list<QWidget *>{t.p->cmbTipo, t.p->cmbAngulo, t.p->chkCabecalho,
                                                         t.p->chkAlinhamento[0]}) {
        w->setFocus();
        QTest::keyClick(w, Qt::Key_Return);
        EXPECT_FALSE(w->hasFocus()) << w->objectName().toStdString();
    }
    EXPECT_EQ(std::pair(t.s.Documento.BandaCabecalho, t.item().Atributos.at(0)), std::pair(0, QChar(u'0')));

    // Only the item's T line can change: the edit cycle ran.
    const QString antes = t.s.TextoResultado;
    QCheckBox *centro = t.p->chkAlinhamento[0];
    QTest::mouseClick(centro, Qt::LeftButton, {}, QPoint(8, centro->height() / 2));
    EXPECT_NE(t.s.TextoResultado, antes);
    // Filling the panel from the session does not click the box again (nor
    // undo the click).
    t.s.ConcluirEdicao();
    EXPECT_EQ(t.item().Atributos.at(0), u'1');

    // The displacement, in pixels, keeps its sign.
    t.s.DefinirUnidade(3);
    t.s.AddBanda(0, false, 0, 0);
    t.s.BandaSelecionada = 2;
    t.s.ItemSelecionado = 1;
    t.s.ConcluirEdicao();
    QLineEdit *campo = t.p->numDeslocamento->txtNumero();
    campo->setFocus();
    QTest::keyClicks(campo, QStringLiteral("-16"));
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(t.s.Documento.banda(2).Deslocamento, -16);
    campo->setFocus();   // the sign stays when the field is entered again
    EXPECT_EQ(campo->text(), QStringLiteral("-16"));
}

TEST(PainelJanela, CaixaDeTipoBotaoFonteEMenuDeTipoAbremOCodigoDeBarras)
{
    Painel t;
    QComboBox *tipo = t.p->cmbTipo;
    tipo->setFocus();
    tipo->setCurrentIndex(3);
    auto cancelar = [](frmCodigoBarras &d) { d.reject(); };
    EXPECT_TRUE(teste::NoDialogo<frmCodigoBarras>([&] { emit tipo->activated(3); }, cancelar));
    EXPECT_EQ(std::pair(int(t.item().Tipo), tipo->currentText()), std::pair(int(TipoTexto), QStringLiteral("Texto")));

    t.item().Tipo = 31;
    t.s.ConcluirEdicao();
    EXPECT_TRUE(teste::NoDialogo<frmCodigoBarras>([&] { t.p->btnFonte->click(); }, cancelar));
    // A range makes it the font button at once; without the range it is the barcode's again.
    t.s.AddItem(1, false, 0);   // goes before the selected barcode
    t.s.ConcluirEdicao();
    QTest::mouseClick(t.janela.picPagina, Qt::LeftButton, Qt::ShiftModifier, QPoint(8 + 10, 16 + 5));
    // A plain click there would select the text item, whose button is the font's too.
    ASSERT_TRUE(t.s.Faixa.visivel);
    EXPECT_EQ(t.p->btnFonte->text(), QStringLiteral("&Fonte"));
    QTest::mouseClick(t.janela.picPagina, Qt::LeftButton, {}, QPoint(8 + 64 + 10, 16 + 5));
    EXPECT_EQ(t.p->btnFonte->text(), QStringLiteral("A&lterar"));   // the barcode's caption

    // The type pop-up offers every type but the item's own.
    auto direito = [&] {
        QContextMenuEvent e(QContextMenuEvent::Mouse, QPoint(5, 5), t.p->btnFonte->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(t.p->btnFonte, &e);
    };
    direito();
    QMenu *menu = t.p->mnuPopup2;
    ASSERT_TRUE(menu->isVisible());
    QStringList habilitadas;
    for (const QAction *a : menu->actions())
        if (a->isEnabled())
            habilitadas << a->objectName();
    EXPECT_EQ(habilitadas, (QStringList{"mnuPopup2Texto", "mnuPopup2Figura", "mnuPopup2Comando"}));
    menu->close();
    menu->actions()[0]->trigger();
    EXPECT_EQ(std::pair(t.s.ItemSelecionado, int(t.s.Documento.banda(1).Itens[1].Tipo)), std::pair(2, 0));
    direito();
    menu->close();
    EXPECT_TRUE(teste::NoDialogo<frmCodigoBarras>([&] { menu->actions()[3]->trigger(); }, cancelar));
}

TEST(PainelJanela, DigitarNoCanvasEnterEMacroNoCursor)
{
    Painel t;
    t.janela.picPagina->setFocus();
    QTest::keyClick(t.janela.picPagina, Qt::Key_A);
    EXPECT_TRUE(t.p->txtTexto->hasFocus());
    QTest::keyClicks(t.p->txtTexto, QStringLiteral("bc"));
    QTest::keyClick(t.p->txtTexto, Qt::Key_Return);
    EXPECT_EQ(t.item().Texto, QStringLiteral("abc"));
    EXPECT_TRUE(t.janela.picPagina->hasFocus());
    // Enter on the canvas goes back to the text, the numeric pad's too.
    QTest::keyClick(t.janela.picPagina, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(t.p->txtTexto->hasFocus());
    // A click on the canvas commits a pending edit first.
    QTest::keyClicks(t.p->txtTexto, QStringLiteral("!"));
    QTest::mouseClick(t.janela.picPagina, Qt::LeftButton, {}, QPoint(8 + 10, 16 + 5));
    EXPECT_TRUE(t.item().Texto.endsWith(QLatin1Char('!')));
    // The box takes every text the file holds, and not one character more.
    t.p->txtTexto->setFocus();
    t.p->txtTexto->setText(QString(MaximoTexto - 1, QLatin1Char('x')));
    QTest::keyClicks(t.p->txtTexto, QStringLiteral("yz"));
    QTest::keyClick(t.p->txtTexto, Qt::Key_Return);
    EXPECT_EQ(t.item().Texto.size(), MaximoTexto);

    // A macro inserted at the caret stays selected.
    t.p->txtTexto->setFocus();
    t.p->txtTexto->setText(QStringLiteral("Pág "));
    t.p->txtTexto->setCursorPosition(4);
    t.p->InserirMacro(0);
    EXPECT_EQ(t.p->txtTexto->selectedText(), QStringLiteral("(%_pag_%)"));
    QTest::keyClick(t.p->txtTexto, Qt::Key_Return);
    EXPECT_EQ(t.item().Texto, QStringLiteral("Pág (%_pag_%)"));
}

TEST(PainelJanela, ControlesAcessiveisPeloNome)
{
    Painel t;
    QStringList esperados = {
        "Texto:", "Tipo:", "Ângulo:", "Comprimento:", "Altura:", "Deslocamento:", "Esquerda:", "Topo:", "Fonte",
        "Final do cabeçalho", "Inicio do rodapé", "Remover o item selecionado - [DEL]",
        "Mover o item selecionado para a esquerda - [CTRL + Seta para esquerda]",
        "Mover o item selecionado para a direita - [CTRL + Seta para direita]", "Justificar", "Não cortar o texto",
        "* Tamanho (2~4)", "Espessura das linhas (1 a 64)", "Cor do Texto (Somente para itens de Texto)",
        "Cor do Fundo (Somente para itens de Texto)", "Cor das Linhas (Somente para itens de Texto)", "(1, 1)",
        "Arquivo texto", "Criar itens com um clique"};
    for (const QCheckBox *c : t.p->chkAlinhamento)
        if (c->isVisible() && c->text().isEmpty())
            esperados << c->toolTip();
    for (const QToolButton *b : t.p->lblAlinhamento)
        esperados << b->toolTip();
    for (const char *nome : {"picCores", "picCoresLinhas", "PicCorItem", "picCorLinha"})
        esperados << t.janela.findChild<QWidget *>(QLatin1String(nome))->toolTip();
    teste::ConferirNomesAcessiveis(&t.janela, esperados);
    // The boxes are heard by their labels, their entry is their value.
    for (const auto &[caixa, nome] : {std::pair<QComboBox *, QString>{t.p->cmbTipo, QStringLiteral("Tipo:")},
                                      {t.p->cmbAngulo, QStringLiteral("Ângulo:")},
                                      {t.p->cmbTamanho, QStringLiteral("Zoom:")}}) {
        QAccessibleInterface *i = QAccessible::queryAccessibleInterface(caixa);
        EXPECT_EQ(std::tuple(i->text(QAccessible::Name), i->text(QAccessible::Value), i->role()),
                  std::tuple(nome, caixa->currentText(), QAccessible::ComboBox));
    }
}
