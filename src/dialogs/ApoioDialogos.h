#pragma once
// Small behaviours every dialog of the editor shares: Enter moving on like
// Tab in single-line fields, and a window placement kept in the settings.

#include <QFont>
#include <QRect>
#include <QString>

class QWidget;

namespace lumeta {

// Enter (either key) in `campo` moves the focus to the next control instead of
// pressing the dialog's default button.
void EnterComoTab(QWidget *campo);

// "Courier New" for the boxes that hold host-program code.
QFont FonteCodigo();

// `janela` moved (and, when larger than `tela`, shrunk) so that it lies
// wholly inside `tela`.
QRect ManterNaTela(const QRect &janela, const QRect &tela);

// The geometry stored under "<chave>.Left/Top/Width/Height", applied kept on
// the screen of the window; nothing when no placement was stored yet.
void RestaurarPosicao(QWidget *janela, const QString &chave);
void GravarPosicao(const QWidget *janela, const QString &chave);

}  // namespace lumeta
