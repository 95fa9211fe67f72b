#pragma once
// The printer name dialog: the system's default printer, the printer the
// user picks when printing, or a printer named here (from the list or typed).

#include <QDialog>
#include <QStringList>
#include <functional>

class QLineEdit;
class QListWidget;

namespace lumeta {

class SessaoEdicao;

// The device names of the printers installed on the system, in its order.
// Tests replace it with names of their own.
extern std::function<QStringList()> ImpressorasInstaladas;

class frmNomeImpressora : public QDialog {
    Q_OBJECT
public:
    frmNomeImpressora(const QString &valor, const QStringList &impressoras, QWidget *pai = nullptr);
    // The value to store, valid after OK.
    QString Valor() const { return m_valor; }

    QListWidget *lstImpressoras = nullptr;
    QLineEdit *txtImpressora = nullptr;

protected:
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    void confirmar();
    QStringList m_lista;
    QString m_valor;
};

// "Nome da impressora": the document's printer through the dialog. The
// command text is refreshed and the document marked changed even when the
// dialog was cancelled (the value is then the same).
bool mnuConfigNomeImpressora(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
