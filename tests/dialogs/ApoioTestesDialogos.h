#pragma once
// What the dialog tests share: the names the accessibility tree gives, and a
// modal dialog driven from inside its own event loop.

#include <QAccessible>
#include <QApplication>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace lumeta::teste {

inline void NomesAcessiveis(QAccessibleInterface *i, QStringList &nomes, int profundidade = 0)
{
    if (!i || profundidade > 20)
        return;
    const QString nome = i->text(QAccessible::Name);
    if (!nome.isEmpty())
        nomes.append(nome);
    for (int k = 0; k < i->childCount(); ++k)
        NomesAcessiveis(i->child(k), nomes, profundidade + 1);
}

inline QStringList NomesAcessiveis(QWidget *janela)
{
    QStringList nomes;
    NomesAcessiveis(QAccessible::queryAccessibleInterface(janela), nomes);
    return nomes;
}

// Runs `acao` on the modal dialog of type D once it shows; `abrir` opens it.
template <class D>
bool NoDialogo(const std::function<void()> &abrir, const std::function<void(D &)> &acao)
{
    bool visto = false;
    QTimer::singleShot(0, [&] {
        if (auto *d = qobject_cast<D *>(QApplication::activeModalWidget())) {
            visto = true;
            acao(*d);
        }
    });
    abrir();
    return visto;
}

}  // namespace lumeta::teste
