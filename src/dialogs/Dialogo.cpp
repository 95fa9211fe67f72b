#include "dialogs/Dialogo.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace lumeta {

EnterComoTab::EnterComoTab(QDialog *dialogo) : QObject(dialogo), m_dialogo(dialogo)
{
    // The filter must see the key before the dialog's default button does.
    qApp->installEventFilter(this);
}

bool EnterComoTab::eventFilter(QObject *obj, QEvent *e)
{
    if (e->type() != QEvent::KeyPress)
        return false;
    auto *campo = qobject_cast<QLineEdit *>(obj);
    if (!campo || campo->window() != m_dialogo)
        return false;
    const int tecla = static_cast<QKeyEvent *>(e)->key();
    if (tecla != Qt::Key_Return && tecla != Qt::Key_Enter)
        return false;
    // Qt's own Tab walk knows focus proxies and compound fields.
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(campo, &tab);
    return true;
}

QPushButton *CriarBotao(QWidget *pai, const char *nome, const QString &legenda)
{
    auto *b = new QPushButton(legenda, pai);
    b->setObjectName(QString::fromLatin1(nome));
    // OK is every dialog's default button: Enter reaches it from a focused
    // button only, fields keep their own Enter.
    if (qstrcmp(nome, "btnOk") == 0)
        b->setDefault(true);
    return b;
}

QHBoxLayout *BotoesOkCancelar(QDialog *dialogo, const std::function<void()> &ok)
{
    QPushButton *btnOk = CriarBotao(dialogo, "btnOk", QStringLiteral("&Ok"));
    QPushButton *btnCancelar = CriarBotao(dialogo, "btnCancelar", QStringLiteral("&Cancelar"));
    QObject::connect(btnOk, &QPushButton::clicked, dialogo, ok);
    QObject::connect(btnCancelar, &QPushButton::clicked, dialogo, &QDialog::reject);
    auto *botoes = new QHBoxLayout;
    botoes->addStretch(1);
    botoes->addWidget(btnOk);
    botoes->addWidget(btnCancelar);
    return botoes;
}

QLabel *CriarRotulo(QWidget *pai, const char *nome, const QString &legenda, QWidget *campo)
{
    auto *l = new QLabel(legenda, pai);
    l->setObjectName(QString::fromLatin1(nome));
    l->setBuddy(campo);
    return l;
}

}  // namespace lumeta
