#include "dialogs/frmNomeImpressora.h"

#include "dialogs/Dialogo.h"
#include "editing/ComandosOpcoes.h"
#include "editing/SessaoEdicao.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinterInfo>
#include <QSignalBlocker>
#include <QPushButton>

namespace lumeta {

std::function<QStringList()> ImpressorasInstaladas = [] { return QPrinterInfo::availablePrinterNames(); };

frmNomeImpressora::frmNomeImpressora(const QString &valor, const QStringList &impressoras, QWidget *pai)
    : QDialog(pai), m_lista(ListaImpressoras(impressoras)), m_valor(valor)
{
    setObjectName(QStringLiteral("frmNomeImpressora"));
    setWindowTitle(QStringLiteral("Selecione a impressora"));
    new EnterComoTab(this);
    lstImpressoras = new QListWidget(this);
    lstImpressoras->setObjectName(QStringLiteral("lstImpressoras"));
    lstImpressoras->setAccessibleName(QStringLiteral("Impressoras"));
    lstImpressoras->addItems(m_lista);
    txtImpressora = new QLineEdit(this);
    txtImpressora->setObjectName(QStringLiteral("txtImpressora"));
    txtImpressora->installEventFilter(this);
    auto *rotulo = CriarRotulo(this, "lblImpressora", QStringLiteral("Imprerssora:"), txtImpressora);

    const int entrada = EntradaDoValor(m_lista, valor);
    if (entrada > 1 || entrada < 0)
        txtImpressora->setText(valor);
    lstImpressoras->setCurrentRow(entrada);
    if (entrada < 0)
        lstImpressoras->clearSelection();

    connect(txtImpressora, &QLineEdit::textEdited, this, [this](const QString &t) {
        const int k = EntradaImpressora(m_lista, t);
        const QSignalBlocker calado(lstImpressoras);
        lstImpressoras->setCurrentRow(k);
        if (k < 0)
            lstImpressoras->clearSelection();
    });
    // The box follows the list only when the user picks in the list: the
    // list taking the focus makes its first entry current without selecting
    // it, and that must not overwrite a typed name.
    connect(lstImpressoras, &QListWidget::itemSelectionChanged, this, [this] {
        const QList<QListWidgetItem *> escolhidas = lstImpressoras->selectedItems();
        if (lstImpressoras->hasFocus() && !escolhidas.isEmpty())
            txtImpressora->setText(escolhidas.first()->text());
    });
    connect(lstImpressoras, &QListWidget::itemDoubleClicked, this, &frmNomeImpressora::confirmar);

    QHBoxLayout *botoes = BotoesOkCancelar(this, [this] { confirmar(); });
    auto *linha = new QHBoxLayout;
    linha->addWidget(rotulo);
    linha->addWidget(txtImpressora, 1);
    auto *grade = new QVBoxLayout(this);
    grade->addWidget(lstImpressoras, 1);
    grade->addLayout(linha);
    grade->addLayout(botoes);
    resize(420, 300);
    // The list takes its first entry as current when it gets the focus with
    // none; starting in the box keeps a typed name that no entry matches.
    txtImpressora->setFocus();
}

bool frmNomeImpressora::eventFilter(QObject *obj, QEvent *e)
{
    if (obj == txtImpressora && e->type() == QEvent::FocusOut)
        txtImpressora->setText(txtImpressora->text().trimmed());
    return QDialog::eventFilter(obj, e);
}

void frmNomeImpressora::confirmar()
{
    const int k = lstImpressoras->selectedItems().isEmpty() ? -1 : lstImpressoras->currentRow();
    m_valor = ValorImpressora(k, txtImpressora->text());
    accept();
}

bool mnuConfigNomeImpressora(SessaoEdicao &s, QWidget *pai)
{
    frmNomeImpressora f(s.Documento.NomeImpressora, ImpressorasInstaladas(), pai);
    const bool aceito = f.exec() == QDialog::Accepted;
    DefinirNomeImpressora(s, f.Valor());
    return aceito;
}

}  // namespace lumeta
