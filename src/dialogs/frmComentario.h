#pragma once
// "Comentário e Programação adicional da Banda": the code placed before and
// after a band's commands, with a tools menu that inserts a page break or a
// header and footer variable written in any defined language.

#include "output/Comentario.h"

#include <QDialog>
#include <optional>

class QAction;
class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QTimer;

namespace lumeta {

class InterfaceUsuario;
class SessaoEdicao;

class frmComentario : public QDialog {
    Q_OBJECT
public:
    frmComentario(const QString &comentario, InterfaceUsuario *ui, QWidget *pai = nullptr);

    // The band's new text after OK or Limpar; nothing after Cancelar.
    const std::optional<QString> &Resultado() const { return m_resultado; }

    // Fills both language submenus with the language files, in the order found.
    void CarregarTipo();
    // Shows box `indice`'s caret position in its position label.
    void LinhaColuna(int indice);
    // Inserts the tool's code of a language where the user is typing.
    void InserirCodigo(const QString &linguagem, FerramentaComentario ferramenta);

    QPlainTextEdit *txtComentario[2] = {};
    QLabel *lblPos[2] = {};
    QPushButton *btnOk = nullptr;
    QPushButton *btnCancelar = nullptr;
    QPushButton *btnLimpar = nullptr;
    QMenu *mnuFerramentas = nullptr;
    QMenu *mnuFerramentasQuebraTipo = nullptr;
    QMenu *mnuFerramentasVarMacroTipo = nullptr;
    QTimer *tmrLinhaColuna = nullptr;

    void done(int r) override;

private:
    void fechar(std::optional<QString> resultado);

    InterfaceUsuario *m_ui;
    std::optional<QString> m_resultado;
};

// The menu command: opens the dialog on the selected band and stores the
// text back with a repaint. True when the band was changed.
bool AbrirComentario(SessaoEdicao &s, QWidget *pai);

}  // namespace lumeta
