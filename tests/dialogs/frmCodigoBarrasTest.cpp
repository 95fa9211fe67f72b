// The barcode dialog driven through its widgets, opened from the Edit menu of
// the real window: the two fields, the graph-bar option, OK and Cancel.
#include "dialogs/frmCodigoBarras.h"

#include "app/gui/LigacaoDialogos.h"
#include "app/gui/frmLumetaEdit.h"
#include "dialogs/ApoioTestesDialogos.h"
#include "editing/ComandosDialogos.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

struct Janela {
    teste::ConfigTemporaria cfg;
    teste::InterfaceRoteirizada ui;
    frmLumetaEdit janela{&ui};
    SessaoEdicao &s = janela.Sessao();

    Janela()
    {
        janela.Iniciar({});
        s.ItemSelecionado = 1;
    }
    Item &item() { return s.Documento.banda(1).Itens[0]; }
    bool abrir(const std::function<void(frmCodigoBarras &)> &acao)
    {
        QAction *a = janela.Acao(QStringLiteral("mnuEditarItemCodigoBarras"));
        // The entry is prepared when the Edit menu opens, as for the user; a
        // barcode item is reached through the panel's font button instead.
        emit janela.mnuEditar->aboutToShow();
        if (EhCodigoBarras(item().Tipo) || item().Tipo == TipoBarraGrafico) {
            EXPECT_FALSE(a->isEnabled());
            return teste::NoDialogo<frmCodigoBarras>([this] { AbrirCodigoBarrasJanela(janela); }, acao);
        }
        return teste::NoDialogo<frmCodigoBarras>([a] { a->trigger(); }, acao);
    }
};

}  // namespace

TEST(frmCodigoBarras, ValorFixoVirandoCampoPeloTeclado)
{
    Janela j;
    j.item().Texto = QStringLiteral("\"123\"");
    j.item().Tipo = TipoEAN13;
    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        EXPECT_TRUE(d.optTipo[TipoEAN13]->isChecked());
        EXPECT_EQ(d.txtTexto->text(), QStringLiteral("123"));
        EXPECT_TRUE(d.txtComando->text().isEmpty());
        EXPECT_EQ(d.lblInfo->text(), QStringLiteral("0 até 9"));
        d.optTipo[TipoCode39]->click();
        EXPECT_EQ(d.lblInfo->text(), QStringLiteral("0 até 9\nA até Z\n-. $/+%"));
        d.txtComando->setFocus();
        QTest::keyClicks(d.txtComando, QStringLiteral("CODIGO"));
        EXPECT_TRUE(d.txtTexto->text().isEmpty());
        d.chkCaixaTexto->click();
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(j.item().Tipo, TipoCode39);
    EXPECT_EQ(j.item().Texto, QStringLiteral("CODIGO"));
    EXPECT_EQ(j.item().Atributos, QStringLiteral("0000100011"));
    EXPECT_TRUE(j.s.TextoResultado.contains(QStringLiteral("Bf0099000000006400001000111234567890")))
        << j.s.TextoResultado.toStdString();
}

TEST(frmCodigoBarras, CampoVirandoValorFixoEOkVazio)
{
    Janela j;
    j.item().Texto = QStringLiteral("NUMERO");
    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        EXPECT_TRUE(d.txtTexto->text().isEmpty());
        EXPECT_EQ(d.txtComando->text(), QStringLiteral("NUMERO"));
        d.txtTexto->setFocus();
        QTest::keyClicks(d.txtTexto, QStringLiteral("789"));
        EXPECT_TRUE(d.txtComando->text().isEmpty());
        // Enter moves on to the next field and does not close the dialog.
        QTest::keyClick(d.txtTexto, Qt::Key_Return);
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(d.focusWidget(), d.txtComando);
        d.optTipo[TipoEAN8]->click();
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
    }));
    EXPECT_EQ(j.item().Tipo, TipoEAN8);
    EXPECT_EQ(j.item().Texto, QStringLiteral("\"789\""));
    EXPECT_TRUE(j.s.TextoResultado.contains(QStringLiteral("Bb009900000000640000100010789")));

    // Both fields emptied: an empty fixed value.
    frmCodigoBarras d(LerValoresCodigoBarras(j.s));
    d.txtTexto->clear();
    d.btnOk->click();
    EXPECT_EQ(d.Valores().Conteudo, QStringLiteral("\"\""));
}

TEST(frmCodigoBarras, BarraDeGraficoECancelar)
{
    Janela j;
    j.item().Atributos = QStringLiteral("0010103011");
    const LayoutDocumento antes = j.s.Documento;
    const QString textoAntes = j.s.TextoResultado;
    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        EXPECT_TRUE(d.chkCaixaTexto->isChecked());
        d.optTipo[TipoBarraGrafico]->click();
        EXPECT_FALSE(d.chkCaixaTexto->isEnabled());
        EXPECT_FALSE(d.chkCaixaTexto->isChecked());
        EXPECT_EQ(d.lblValor->text(), QStringLiteral("Altura:"));
        EXPECT_TRUE(d.lblInfo->isHidden());
        QTest::mouseClick(d.btnCancelar, Qt::LeftButton);
    }));
    EXPECT_EQ(j.s.Documento, antes);
    EXPECT_EQ(j.s.TextoResultado, textoAntes);

    ASSERT_TRUE(j.abrir([](frmCodigoBarras &d) {
        d.optTipo[TipoBarraGrafico]->click();
        // The item's text was a field: typing the height empties it.
        EXPECT_EQ(d.txtComando->text(), QStringLiteral("Texto 1"));
        QTest::keyClicks(d.txtTexto, QStringLiteral("33,9"));
        QTest::mouseClick(d.btnOk, Qt::LeftButton);
        EXPECT_EQ(d.txtTexto->text(), QStringLiteral("33"));
    }));
    EXPECT_EQ(j.item().Tipo, TipoBarraGrafico);
    EXPECT_EQ(j.item().Texto, QStringLiteral("\"33\""));
    EXPECT_EQ(j.item().Atributos, QStringLiteral("0001102010"));
}

TEST(frmCodigoBarras, CadaControleTemNomeAcessivel)
{
    teste::ConfigTemporaria cfg;
    frmCodigoBarras d(ValoresCodigoBarras{});
    QStringList esperados{"Tipo:", "Código de Barras:", "Comando ou Variável:",
                          "Usar a altura da banda (Redimensionar)", "Exemplo", "Caracteres válidos:", "Ok", "Cancelar"};
    for (uint8_t t : TiposDialogoCodigoBarras)
        esperados << LegendaTipoCodigoBarras(t);
    teste::ConferirNomesAcessiveis(&d, esperados);
    EXPECT_EQ(d.btnOk->text(), QStringLiteral("&Ok"));
}
