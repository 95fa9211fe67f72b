#include "dialogs/ApoioDialogos.h"

#include "document/Configuracoes.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QSettings>
#include <QWidget>
#include <memory>

namespace lumeta {

namespace {

class FiltroEnter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *obj, QEvent *e) override
    {
        if (e->type() != QEvent::KeyPress)
            return false;
        auto *k = static_cast<QKeyEvent *>(e);
        if ((k->key() != Qt::Key_Return && k->key() != Qt::Key_Enter)
            || (k->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
            return false;
        // A Tab sent to the field takes the widget's own road to the next
        // control of the focus chain.
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(obj, &tab);
        return true;
    }
};

}  // namespace

void EnterComoTab(QWidget *campo)
{
    campo->installEventFilter(new FiltroEnter(campo));
}

QFont FonteCodigo()
{
    QFont f(QStringLiteral("Courier New"), 10);
    f.setStyleHint(QFont::TypeWriter);
    f.setFixedPitch(true);
    return f;
}

QRect ManterNaTela(const QRect &janela, const QRect &tela)
{
    QRect r = janela;
    r.setWidth(std::min(r.width(), tela.width()));
    r.setHeight(std::min(r.height(), tela.height()));
    if (r.right() > tela.right())
        r.moveRight(tela.right());
    if (r.bottom() > tela.bottom())
        r.moveBottom(tela.bottom());
    if (r.left() < tela.left())
        r.moveLeft(tela.left());
    if (r.top() < tela.top())
        r.moveTop(tela.top());
    return r;
}

void RestaurarPosicao(QWidget *janela, const QString &chave)
{
    std::unique_ptr<QSettings> cfg(AbrirConfig());
    const QString w = cfg->value(chave + QStringLiteral(".Width")).toString();
    const QString h = cfg->value(chave + QStringLiteral(".Height")).toString();
    if (w.isEmpty() || h.isEmpty())
        return;
    const QRect guardada(cfg->value(chave + QStringLiteral(".Left")).toInt(),
                         cfg->value(chave + QStringLiteral(".Top")).toInt(), std::max(w.toInt(), 1),
                         std::max(h.toInt(), 1));
    QScreen *tela = QGuiApplication::screenAt(guardada.center());
    if (!tela)
        tela = janela->screen() ? janela->screen() : QGuiApplication::primaryScreen();
    const QRect r = tela ? ManterNaTela(guardada, tela->availableGeometry()) : guardada;
    janela->resize(r.size().expandedTo(janela->minimumSize()));
    janela->move(r.topLeft());
}

void GravarPosicao(const QWidget *janela, const QString &chave)
{
    std::unique_ptr<QSettings> cfg(AbrirConfig());
    const QPoint p = janela->pos();
    cfg->setValue(chave + QStringLiteral(".Left"), QString::number(p.x()));
    cfg->setValue(chave + QStringLiteral(".Top"), QString::number(p.y()));
    cfg->setValue(chave + QStringLiteral(".Width"), QString::number(janela->width()));
    cfg->setValue(chave + QStringLiteral(".Height"), QString::number(janela->height()));
}

}  // namespace lumeta
