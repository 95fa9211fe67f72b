#pragma once
// "Alterar o Código de Barras": the type of a barcode or graph-bar item, its
// fixed value or field, and whether the symbol follows the band height, with
// a live preview of a sample symbol and the characters the type accepts.

#include "barcodes/ValoresCodigoBarras.h"

#include <QDialog>
#include <QMap>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace lumeta {

class SessaoEdicao;

class frmCodigoBarras : public QDialog {
    Q_OBJECT
public:
    explicit frmCodigoBarras(const ValoresCodigoBarras &valores, QWidget *pai = nullptr);

    // The values after OK (the ones given while the dialog was not confirmed).
    const ValoresCodigoBarras &Valores() const { return m_valores; }
    bool Confirmado() const { return m_confirmado; }

    // Refreshes the preview and the info text for the selected option.
    void ExibirCodigoBarras();
    int TipoSelecionado() const;

    QMap<int, QRadioButton *> optTipo;
    QLineEdit *txtTexto = nullptr;
    QLineEdit *txtComando = nullptr;
    QLabel *lblValor = nullptr;
    QCheckBox *chkCaixaTexto = nullptr;
    QLabel *picCodigoBarras = nullptr;
    QLabel *lblTitInfo = nullptr;
    QLabel *lblInfo = nullptr;
    QPushButton *btnOk = nullptr;
    QPushButton *btnCancelar = nullptr;

private:
    void confirmar();

    ValoresCodigoBarras m_valores;
    bool m_confirmado = false;
};

// The menu command: opens the dialog on the selected item and, on OK, applies
// it to that item or every item of the range. True when it was applied.
bool AbrirCodigoBarras(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
