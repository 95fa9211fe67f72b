#include "controls/ui/NomesPelaDica.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace lumeta {

namespace {

// Marks the names this module gave, so that a new tooltip renames them but a
// caption or an explicit name is never overwritten.
constexpr char PropriedadeNome[] = "lumetaNomePelaDica";

// A caption of its own: a button's text, or a label that names the field.
// Qt would also lend a group's title to an unnamed control inside it, which
// says nothing about that control.
bool temLegenda(const QWidget *w)
{
    if (!w->accessibleName().isEmpty())
        return true;
    if (const auto *b = qobject_cast<const QAbstractButton *>(w))
        return !b->text().isEmpty();
    for (const QLabel *l : w->window()->findChildren<QLabel *>())
        if (l->buddy() == w)
            return true;
    return false;
}

void nomear(QWidget *w)
{
    const QString dica = w->toolTip();
    if (dica.isEmpty() || qobject_cast<QLabel *>(w))
        return;
    if (!w->property(PropriedadeNome).toBool()) {
        if (temLegenda(w))
            return;
        w->setProperty(PropriedadeNome, true);
    }
    if (w->accessibleName() != dica)
        w->setAccessibleName(dica);
}

class FiltroDicas : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *obj, QEvent *e) override
    {
        if (e->type() == QEvent::ToolTipChange && obj->isWidgetType())
            nomear(static_cast<QWidget *>(obj));
        return false;
    }
};

// Qt names a list box on this platform by its current entry, so a screen
// reader hears "Texto" where the box means "Tipo:". A box given a name keeps
// it, and the entry is its value.
class CaixaNomeada : public QAccessibleWidget {
public:
    explicit CaixaNomeada(QComboBox *c) : QAccessibleWidget(c, QAccessible::ComboBox) {}

    QString text(QAccessible::Text t) const override
    {
        const QString valor = caixa()->isEditable() ? caixa()->lineEdit()->text() : caixa()->currentText();
        if (t == QAccessible::Name)
            return caixa()->accessibleName().isEmpty() ? valor : caixa()->accessibleName();
        if (t == QAccessible::Value)
            return valor;
        return QAccessibleWidget::text(t);
    }
    int childCount() const override { return 1; }
    QAccessibleInterface *child(int i) const override
    {
        return i == 0 ? QAccessible::queryAccessibleInterface(caixa()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *c) const override
    {
        return c && c->object() == caixa()->view() ? 0 : -1;
    }
    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << showMenuAction(); }
    void doAction(const QString &acao) override
    {
        if (acao == showMenuAction())
            caixa()->showPopup();
        else
            QAccessibleWidget::doAction(acao);
    }

private:
    QComboBox *caixa() const { return static_cast<QComboBox *>(widget()); }
};

// Qt makes a box's interface while the box is built, before it has a name,
// and keeps it: the factory takes every box and reads the name when asked.
QAccessibleInterface *fabricaCaixas(const QString &, QObject *o)
{
    auto *c = qobject_cast<QComboBox *>(o);
    return c ? new CaixaNomeada(c) : nullptr;
}

}  // namespace

void NomearCaixasPeloNome()
{
    static bool instalada = false;
    if (!instalada)
        QAccessible::installFactory(fabricaCaixas);
    instalada = true;
}

void NomearPelaDica(QWidget *raiz)
{
    NomearCaixasPeloNome();
    static FiltroDicas *filtro = nullptr;
    if (!filtro) {
        filtro = new FiltroDicas(qApp);
        qApp->installEventFilter(filtro);
    }
    nomear(raiz);
    for (QWidget *w : raiz->findChildren<QWidget *>())
        nomear(w);
}

}  // namespace lumeta
