#pragma once
// The property panel beside the canvas. It renders the state the core
// computes (CalcularPainel) and turns the user's actions into the panel
// commands; values it fills in itself never run a command.
#include "editing/ComandosItem.h"
#include "editing/PainelPropriedades.h"
#include "editing/Paletas.h"

#include <QWidget>
#include <array>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QToolButton;

namespace lumeta {

class NumeroCtl;
class PaletaCores;
class PaletaExtendida;
class AmostraCor;

class PainelJanela : public QWidget {
    Q_OBJECT
public:
    PainelJanela(SessaoEdicao &sessao, QWidget *pai);

    // `Validar`: everything from the session again.
    void Atualizar();
    // Only the font button's caption and tooltip: a range set or cleared
    // changes them without the rest of the panel being refreshed.
    void AtualizarBotaoFonte();
    // Commits the pending edits (text, thickness, width, height,
    // displacement); false would cancel the click that asked for it.
    bool ConfirmarPendentes();
    // A character typed on the canvas.
    void DigitarTexto(const QString &c);
    // Enter on the canvas.
    void FocarTexto();
    bool TextoTemFoco() const;
    // A line button clicked by a key.
    void ClicarLinha(int n);
    // The frame button (Ctrl+5) and the style keys (Ctrl+B, I, U).
    void ClicarMoldura();
    void AlternarEstilo(EstiloFonte estilo);
    // `mnuEditarMacroItem(indice)`.
    void InserirMacro(int indice);
    // Where the focus returns after Enter in the text box.
    void setCanvas(QWidget *canvas);

    QLineEdit *txtTexto = nullptr;
    QComboBox *cmbTipo = nullptr;
    QComboBox *cmbAngulo = nullptr;
    QComboBox *cmbTamanho = nullptr;
    QGroupBox *fraTamanho = nullptr;
    QGroupBox *fraLinhas = nullptr;
    QGroupBox *fraCor = nullptr;
    QGroupBox *fraAlinhamentoTexto = nullptr;
    std::array<QCheckBox *, 10> chkAlinhamento{};
    std::array<QToolButton *, 6> lblAlinhamento{};
    QToolButton *btnMoldura = nullptr;
    NumeroCtl *numThickness = nullptr;
    NumeroCtl *numWidth = nullptr;
    NumeroCtl *numHeight = nullptr;
    NumeroCtl *numDeslocamento = nullptr;
    NumeroCtl *numLeft = nullptr;
    NumeroCtl *numTop = nullptr;
    QLabel *picAuto = nullptr;
    QCheckBox *chkCabecalho = nullptr;
    QCheckBox *chkRodape = nullptr;
    QPushButton *btnFonte = nullptr;
    QToolButton *btnRemove = nullptr;
    QToolButton *btnLeft = nullptr;
    QToolButton *btnRight = nullptr;
    QLabel *lblSelecionado = nullptr;
    PaletaCores *picCores = nullptr;
    PaletaCores *picCoresLinhas = nullptr;
    AmostraCor *PicCorItem = nullptr;
    AmostraCor *picCorLinha = nullptr;
    PaletaExtendida *picPaletaExtendida = nullptr;
    QToolButton *lblTexto = nullptr;
    QToolButton *lblFundo = nullptr;
    QToolButton *lblLinhas = nullptr;
    QMenu *mnuPopup2 = nullptr;

signals:
    // `btnFonte` or `mnuPopup2CodigoBarras` on a barcode: the dialog lives
    // with the window, which owns the dialogs.
    void CodigoBarrasPedido();

protected:
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    void criar();
    void executar(const std::function<void()> &comando);
    void confirmarTexto();
    void confirmarCampo(NumeroCtl *campo);
    void clicarFonte();
    void abrirPaleta(AlvoPaleta alvo, QWidget *amostra);

    SessaoEdicao &m_sessao;
    QWidget *m_canvas = nullptr;
    QList<QLabel *> m_unidades;
    bool m_preenchendo = false;
    bool m_textoPendente = false;
    QList<NumeroCtl *> m_pendentes;
};

}  // namespace lumeta
