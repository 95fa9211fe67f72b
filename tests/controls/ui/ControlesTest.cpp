#include "controls/ui/CommonDialogCls.h"
#include "controls/ui/InterfaceUsuarioQt.h"
#include "controls/ui/ModMouseWheel.h"
#include "controls/ui/TabCtl.h"
#include "controls/ui/XPButtonCtl.h"
#include "dialogs/ApoioTestesDialogos.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QCheckBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// A file dialog whose name box has the focus ignores selectFile(); nothing
// here checks focus, so the dialogs are driven without being activated.
template <class T = QWidget>
void QuandoAbrir(std::type_identity_t<std::function<void(T *)>> acao)
{
    teste::QuandoAbrir<T>(std::move(acao), false);
}

void Clicar(QWidget *w, QPoint p, Qt::MouseButton b = Qt::LeftButton) { QTest::mouseClick(w, b, {}, p); }

}  // namespace

TEST(TabCtl, FormaTamanhoMinimoRotuloECliques)
{
    TabCtl tab;
    tab.setText(QStringLiteral("Página"));
    tab.show();
    tab.resize(10, 5);
    EXPECT_EQ(tab.size(), QSize(64, 24));
    tab.resize(120, 30);
    auto *lbl = tab.findChild<QLabel *>(QStringLiteral("lblTab"));
    ASSERT_NE(lbl, nullptr);
    EXPECT_EQ(std::pair(lbl->text(), lbl->width()), std::pair(QStringLiteral("Página"), 116));
    // The slanted left edge and the cut corner are outside the control.
    EXPECT_FALSE(tab.mask().contains(QPoint(2, 2)) || tab.mask().contains(QPoint(118, 1)));
    EXPECT_TRUE(tab.mask().contains(QPoint(16, 1)));

    EXPECT_FALSE(lbl->font().bold());
    tab.setSelected(true);
    EXPECT_TRUE(tab.Selected() && lbl->font().bold());

    int cliques = 0;
    QObject::connect(&tab, &TabCtl::Click, [&] { ++cliques; });
    Clicar(lbl, QPoint(20, 10));
    Clicar(&tab, QPoint(60, 28));
    Clicar(&tab, QPoint(60, 28), Qt::RightButton);
    EXPECT_EQ(cliques, 2);

    // The outline is drawn in grey around a white face.
    const QImage img = tab.grab().toImage();
    EXPECT_EQ(QColor(img.pixel(60, 29)), QColor(128, 128, 128));
    EXPECT_EQ(QColor(img.pixel(105, 20)), tab.palette().color(QPalette::Base));
}

TEST(XPButtonCtl, AlternanciaCliqueTeclasEFoco)
{
    QWidget pai;
    auto *antes = new XPButtonCtl(&pai);
    auto *b = new XPButtonCtl(&pai);
    auto *depois = new XPButtonCtl(&pai);
    b->setCaption(QStringLiteral("&Magia"));
    b->resize(80, 26);
    pai.show();

    int cliques = 0;
    QList<bool> valores;
    QObject::connect(b, &XPButtonCtl::Click, [&] { ++cliques; });
    QObject::connect(b, &XPButtonCtl::ValueChanged, [&](bool v) { valores << v; });
    Clicar(b, QPoint(10, 10));         // a plain button does not toggle
    b->setCheckBoxBehaviour(true);
    Clicar(b, QPoint(10, 10));
    Clicar(b, QPoint(10, 10));

    // A release outside the button is no click.
    QTest::mousePress(b, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseRelease(b, Qt::LeftButton, {}, QPoint(200, 10));
    EXPECT_EQ(cliques, 3);

    // Space released after being pressed on the button clicks it.
    QTest::keyClick(b, Qt::Key_Space);
    EXPECT_EQ(cliques, 4);
    EXPECT_EQ(valores, QList<bool>({true, false, true}));

    // Arrows move the focus as Tab and Shift+Tab do.
    pai.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pai));
    b->setFocus();
    QTest::keyClick(b, Qt::Key_Right);
    EXPECT_TRUE(depois->hasFocus());
    QTest::keyClick(depois, Qt::Key_Left);
    QTest::keyClick(b, Qt::Key_Up);
    EXPECT_TRUE(antes->hasFocus());

    // Hover, with the caption gone and the button up: the face takes
    // BackOver; leaving raises MouseLeave.
    b->setCaption(QString());
    b->setValue(false);
    b->BackColor = QColor(10, 20, 30);
    b->BackOver = QColor(200, 100, 50);
    EXPECT_EQ(QColor(b->grab().toImage().pixel(40, 13)), QColor(10, 20, 30));
    QEnterEvent entra(QPointF(5, 5), QPointF(5, 5), b->mapToGlobal(QPointF(5, 5)));
    QApplication::sendEvent(b, &entra);
    EXPECT_EQ(QColor(b->grab().toImage().pixel(40, 13)), QColor(200, 100, 50));
    int saidas = 0;
    QObject::connect(b, &XPButtonCtl::MouseLeave, [&] { ++saidas; });
    QEvent sai(QEvent::Leave);
    QApplication::sendEvent(b, &sai);
    EXPECT_FALSE(b->MouseOver());
    EXPECT_EQ(saidas, 1);
}

// Installing, scrolling and removing through the window: frmLumetaEditTest.
TEST(ModMouseWheel, UmEntalheParaLongeRolaParaCimaQualquerOutroParaBaixoEDeLadoNada)
{
    // 0.75 of a notch rounds to one, half a notch to none.
    for (auto [delta, direcao] : {std::pair{120, RolarAcima}, {90, RolarAcima}, {60, RolarAbaixo}, {240, RolarAbaixo},
                                  {-120, RolarAbaixo}})
        EXPECT_EQ(DirecaoRoda(delta), direcao) << delta;
    // The window still gets the wheel first; sideways is not the wheel message.
    struct Janela : QWidget {
        int rodas = 0;
        void wheelEvent(QWheelEvent *e) override { ++rodas, e->ignore(); }
    } janela;
    QList<DirecaoRolagem> passos;
    ModMouseWheel roda([&](DirecaoRolagem d) { passos << d; });
    ASSERT_TRUE(roda.InstalarRoda(&janela, true));
    for (QPoint delta : {QPoint(0, -120), QPoint(120, 0)}) {
        QWheelEvent e(QPointF(5, 5), QPointF(5, 5), QPoint(), delta, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&janela, &e);
    }
    EXPECT_EQ(passos, QList<DirecaoRolagem>({RolarAbaixo}));
    EXPECT_EQ(janela.rodas, 2);
}

TEST(CommonDialogCls, FiltrosCoresEDialogosComAsOpcoesPedidas)
{
    EXPECT_EQ(CommonDialogCls::FiltrosQt(QStringLiteral("Lumeta Layout (*.lmt)|*.lmt")),
              QStringList({"Lumeta Layout (*.lmt) (*.lmt)"}));
    EXPECT_EQ(CommonDialogCls::FiltrosQt(QStringLiteral("Figuras|*.bmp;*.jpg|Todos|*.*")),
              QStringList({"Figuras (*.bmp *.jpg)", "Todos (*.*)"}));

    QTemporaryDir dir;
    const QString existente = dir.filePath(QStringLiteral("a.lmt"));
    teste::GravarArquivoTeste(existente, {});

    QuandoAbrir<QFileDialog>([&](QFileDialog *d) {
        EXPECT_EQ(d->windowTitle(), QStringLiteral("Abrir layout"));
        EXPECT_EQ(std::pair(d->fileMode(), d->acceptMode()), std::pair(QFileDialog::ExistingFile, QFileDialog::AcceptOpen));
        // The description reads as the editor gives it.
        EXPECT_EQ(d->selectedNameFilter(), QStringLiteral("Lumeta Layout (*.lmt)"));
        d->selectFile(existente);
        static_cast<QDialog *>(d)->accept();
    });
    EXPECT_EQ(CommonDialogCls::GetOpenName(QStringLiteral("Abrir layout"), QStringLiteral("Lumeta Layout (*.lmt)|*.lmt"),
                                           dir.path() + QLatin1Char('/'), nullptr),
              existente);

    // The save mode and its overwrite question: the refusal walk below.
    QuandoAbrir<QFileDialog>([&](QFileDialog *d) {
        EXPECT_EQ(d->defaultSuffix(), QStringLiteral("lmt"));
        EXPECT_EQ(d->directory().absolutePath(), QDir(dir.path()).absolutePath());
        d->reject();
    });
    EXPECT_EQ(CommonDialogCls::GetSaveName(QString(), QStringLiteral("Lumeta Layout (*.lmt)|*.lmt"), existente,
                                           QStringLiteral("lmt"), nullptr),
              QString());

    QuandoAbrir<QColorDialog>([](QColorDialog *d) {
        EXPECT_EQ(d->currentColor(), QColor(0x11, 0x22, 0x33));
        d->setCurrentColor(QColor(1, 2, 3));
        d->accept();
    });
    EXPECT_EQ(CommonDialogCls::PickColor(0x332211, nullptr), 0x030201);
    QuandoAbrir([](QWidget *w) { qobject_cast<QDialog *>(w)->reject(); });
    EXPECT_EQ(CommonDialogCls::PickColor(0, nullptr), -1);
}

TEST(InterfaceUsuarioQt, CaixasComTituloIconeEBotoesEmPortugues)
{
    InterfaceUsuarioQt ui;
    QuandoAbrir<QMessageBox>([](QMessageBox *m) {
        EXPECT_EQ(std::tuple(m->windowTitle(), m->text(), m->icon()),
                  std::tuple(QStringLiteral("Sair"), QStringLiteral("Deseja salvar as alterações?"), QMessageBox::Question));
        EXPECT_EQ(std::pair(m->button(QMessageBox::Yes)->text(), m->button(QMessageBox::No)->text()),
                  std::pair(QStringLiteral("&Sim"), QStringLiteral("&Não")));
        ASSERT_NE(m->button(QMessageBox::Cancel), nullptr);
        m->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(ui.Perguntar(QStringLiteral("Deseja salvar as alterações?"), QStringLiteral("Sair"), Botoes::SimNaoCancelar,
                           Icone::Pergunta),
              Resposta::Nao);
    QuandoAbrir([](QWidget *w) { qobject_cast<QMessageBox *>(w)->button(QMessageBox::Cancel)->click(); });
    EXPECT_EQ(ui.Perguntar(QStringLiteral("x"), QStringLiteral("Novo"), Botoes::SimNaoCancelar, Icone::Pergunta),
              Resposta::Cancelar);

    QuandoAbrir<QMessageBox>([](QMessageBox *m) {
        // A box without a title of its own carries the application's.
        EXPECT_EQ(std::pair(m->windowTitle(), m->icon()), std::pair(QStringLiteral("LumetaEdit 2.0"), QMessageBox::Information));
        m->accept();
    });
    ui.Mensagem(QStringLiteral("Não foi possível encontrar o arquivo acima!"), QString(), Icone::Informacao);

    QuandoAbrir<QInputDialog>([](QInputDialog *d) {
        EXPECT_EQ(d->labelText(), QStringLiteral("Número:"));
        d->setTextValue(QStringLiteral("07"));
        d->accept();
    });
    EXPECT_EQ(ui.Entrada(QStringLiteral("Número:"), QStringLiteral("Variável"), QString()), std::optional<QString>(QStringLiteral("07")));
    QuandoAbrir([](QWidget *w) { qobject_cast<QDialog *>(w)->reject(); });
    EXPECT_EQ(ui.Entrada(QStringLiteral("Número:"), QStringLiteral("Variável"), QString()), std::nullopt);
}

TEST(CommonDialogCls, SalvarRecusaSomenteLeituraEPastaInexistenteMantendoODialogoAberto)
{
    QTemporaryDir dir;
    const QString somenteLeitura = dir.filePath(QStringLiteral("fixo.lmt"));
    teste::GravarArquivoTeste(somenteLeitura, {});
    ASSERT_TRUE(QFile::setPermissions(somenteLeitura, QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther));
    const QString semPasta = dir.filePath(QStringLiteral("nao/existe/novo.lmt"));
    // A writable layout in a read-only folder can still be chosen.
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("pasta")));
    const QString naPastaFixa = dir.filePath(QStringLiteral("pasta/livre.lmt"));
    teste::GravarArquivoTeste(naPastaFixa, {});
    ASSERT_TRUE(QFile::setPermissions(dir.filePath(QStringLiteral("pasta")),
                                      QFileDevice::ReadOwner | QFileDevice::ExeOwner));

    EXPECT_EQ(CommonDialogCls::RecusaSalvar(dir.filePath(QStringLiteral("novo.lmt"))), QString());

    // The user types each name and presses Save: the two refused ones leave
    // the dialog open with the reason, the third is returned.
    QStringList avisos;
    QuandoAbrir<QFileDialog>([&](QFileDialog *d) {
        auto *nome = d->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        auto *lista = d->findChild<QListView *>(QStringLiteral("listView"));
        ASSERT_NE(nome, nullptr);
        ASSERT_NE(lista, nullptr);
        // Typing into the focused name box drops the file picked before;
        // without a focused window the test drops it itself.
        auto digitar = [&](const QString &texto) {
            lista->clearSelection();
            nome->setText(texto);
        };
        for (const QString &recusado : {somenteLeitura, semPasta}) {
            digitar(recusado);
            QuandoAbrir<QMessageBox>([&](QMessageBox *m) {
                avisos << m->windowTitle() + QLatin1Char('|') + m->text();
                m->accept();
            });
            static_cast<QDialog *>(d)->accept();
        }
        digitar(naPastaFixa);
        // It exists: the overwrite question comes first.
        QuandoAbrir<QMessageBox>([&](QMessageBox *m) {
            avisos << m->windowTitle();
            m->button(QMessageBox::Yes)->click();
        });
        static_cast<QDialog *>(d)->accept();
    });
    EXPECT_EQ(CommonDialogCls::GetSaveName(QStringLiteral("Salvar layout"), QStringLiteral("Lumeta Layout (*.lmt)|*.lmt"),
                                           dir.filePath(QStringLiteral("a.lmt")), QStringLiteral("lmt"), nullptr),
              naPastaFixa);
    EXPECT_EQ(avisos, QStringList({"Salvar layout|fixo.lmt\nEste arquivo é somente leitura.\nTente novamente com outro nome de arquivo.",
                                   "Salvar layout|novo.lmt\nCaminho não encontrado.\nVerifique se o caminho correto foi fornecido.",
                                   "Salvar layout"}));
    QFile::setPermissions(dir.filePath(QStringLiteral("pasta")), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

TEST(CommonDialogCls, FonteNaoInstaladaGuardaONomeAteOutraSerEscolhida)
{
    const QString ausente = QStringLiteral("Fonte Que Nenhum Sistema Tem");
    for (bool outra : {false, true}) {
        FonteDialogo fonte{ausente, 10, false, false, false, false};
        QuandoAbrir([&](QWidget *w) {
            EXPECT_EQ(w->findChild<QLineEdit *>(QStringLiteral("txtFonte"))->text(), ausente);
            QListWidget *familias = w->findChild<QListWidget *>(QStringLiteral("lstFonte"));
            ASSERT_NE(familias, nullptr);
            EXPECT_TRUE(familias->selectedItems().isEmpty());
            if (outra)  // another family picked in the list replaces the name
                familias->setCurrentRow(0);
            static_cast<QDialog *>(w)->accept();
        });
        ASSERT_TRUE(CommonDialogCls::GetFont(fonte, nullptr));
        EXPECT_EQ(fonte.Nome == ausente, !outra);
        EXPECT_EQ(fonte.Tamanho, 10);
    }
}

TEST(CommonDialogCls, NomesDosLayoutsComOsEstilosReaisDaFamiliaGemea)
{
    // The three names layouts use offer bold; the dialog opens on the item's
    // style, size and underline, and the style comes back as chosen.
    for (const auto &[nome, estilo] : {std::pair{"Arial", 2}, {"Times New Roman", 3}, {"Courier New", 1}}) {
        FonteDialogo fonte{QString::fromLatin1(nome), 12, true, false, true, false};
        QuandoAbrir([&](QWidget *d) {
            auto *estilos = d->findChild<QListWidget *>(QStringLiteral("lstEstilo"));
            QStringList legendas;
            for (int k = 0; k < estilos->count(); ++k)
                legendas << estilos->item(k)->text();
            EXPECT_EQ(legendas, (QStringList{"Normal", "Itálico", "Negrito", "Negrito Itálico"})) << nome;
            EXPECT_EQ(estilos->currentRow(), 2);
            EXPECT_TRUE(d->findChild<QCheckBox *>(QStringLiteral("chkSublinhado"))->isChecked());
            EXPECT_EQ(d->findChild<QLineEdit *>(QStringLiteral("txtTamanho"))->text(), QStringLiteral("12"));
            teste::ConferirNomesAcessiveis(d, {"Fonte:", "Estilo da fonte:", "Tamanho:", "Sublinhado", "Ok"});
            estilos->setCurrentRow(estilo);
            static_cast<QDialog *>(d)->accept();
        });
        ASSERT_TRUE(CommonDialogCls::GetFont(fonte, nullptr));
        EXPECT_EQ(fonte, (FonteDialogo{QString::fromLatin1(nome), 12, estilo >= 2, estilo % 2 == 1, true, false})) << nome;
    }
    // Cancelled: the font stays as it was.
    FonteDialogo fonte{QStringLiteral("Arial"), 12, true, false, true, false};
    const FonteDialogo antes = fonte;
    QuandoAbrir([](QWidget *d) { static_cast<QDialog *>(d)->reject(); });
    EXPECT_FALSE(CommonDialogCls::GetFont(fonte, nullptr));
    EXPECT_EQ(fonte, antes);
}

TEST(InterfaceUsuarioQt, BotoesDoQtEmPortuguesComAsTraducoesCarregadas)
{
    QTranslator *traducao = CarregarTraducoesQt(*QCoreApplication::instance());
    if (!traducao)
        GTEST_SKIP() << "Qt's pt_BR translations (Debian package qt6-translations-l10n) are not installed";
    // One catalogue holds every button: one of them shows it loaded.
    QMessageBox m(QMessageBox::Warning, QStringLiteral("Salvar"), QStringLiteral("x"), QMessageBox::Cancel);
    EXPECT_EQ(m.button(QMessageBox::Cancel)->text(), QStringLiteral("Cancelar"));
    delete traducao;
}
