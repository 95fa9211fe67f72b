#pragma once
// What the widget tests share: a modal window driven from inside its own
// event loop, the names the accessibility tree gives, and the Brazilian
// number format the fields show.

#include <QAccessible>
#include <QApplication>
#include <QLocale>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <type_traits>
#include <gtest/gtest.h>

namespace lumeta::teste {

// Numbers shown as a Brazilian user sees them ("12,5") while it lives.
struct LocalBrasil {
    QLocale anterior;
    LocalBrasil() { QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil)); }
    ~LocalBrasil() { QLocale::setDefault(anterior); }
};

// Runs `acao` on the next modal window of type T (one opened over another
// modal window too) once it shows; the call that opened it returns when the
// action has closed it. Focus moves only inside the active window, and a busy
// machine shows a dialog before the window system has activated it, so the
// action waits for that unless `ativar` is false.
template <class T = QWidget>
void QuandoAbrir(std::type_identity_t<std::function<void(T *)>> acao, bool ativar = true)
{
    auto *timer = new QTimer;
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, [timer, acao, ativar] {
        T *w = qobject_cast<T *>(QApplication::activeModalWidget());
        if (!w)
            return;
        timer->stop();
        timer->deleteLater();
        // A file, colour or font dialog the platform draws leaves its widget hidden.
        if (ativar && w->isVisible()) {
            w->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(w));
        }
        acao(w);
    });
    timer->start();
}

// Opens a dialog of type D with `abrir` and runs `acao` on it; false when no
// such dialog showed.
template <class D>
bool NoDialogo(const std::function<void()> &abrir, const std::function<void(D &)> &acao)
{
    bool visto = false;
    QuandoAbrir<D>([&](D *d) { visto = true, acao(*d); });
    abrir();
    return visto;
}

// Every accessible name and description under `i`, each name also after the
// names of its ancestors ("Margem Superior:/Margem em milímetros:").
inline void NomesAcessiveis(QAccessibleInterface *i, QStringList &nomes, const QString &caminho = QString(),
                            int profundidade = 0)
{
    if (!i || profundidade > 20)
        return;
    const QString nome = i->text(QAccessible::Name);
    const QString aqui = nome.isEmpty() ? caminho : caminho.isEmpty() ? nome : caminho + u'/' + nome;
    nomes << nome << aqui;
    for (int k = 0; k < i->childCount(); ++k)
        NomesAcessiveis(i->child(k), nomes, aqui, profundidade + 1);
}

// The window shows every expected name, and unless told
// otherwise nothing the user reaches with Tab is nameless.
inline void ConferirNomesAcessiveis(QWidget *janela, const QStringList &esperados, bool todosComNome = true)
{
    janela->show();
    QApplication::processEvents();
    QStringList nomes;
    QAccessibleInterface *raiz = QAccessible::queryAccessibleInterface(janela);
    for (int k = 0; k < raiz->childCount(); ++k)
        NomesAcessiveis(raiz->child(k), nomes);
    for (const QString &e : esperados)
        EXPECT_TRUE(nomes.contains(e)) << janela->objectName().toStdString() << ": " << e.toStdString();
    for (QWidget *w : todosComNome ? janela->findChildren<QWidget *>() : QList<QWidget *>())
        if (w->isVisible() && (w->focusPolicy() & Qt::TabFocus) && !w->focusProxy()) {
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name).isEmpty())
                << janela->objectName().toStdString() << ": " << w->objectName().toStdString();
        }
}

}  // namespace lumeta::teste
