#include "controls/ui/NomesPelaDica.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLabel>
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

}  // namespace

void NomearPelaDica(QWidget *raiz)
{
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
