#pragma once
// "Linguagens": creates, edits and deletes the language files. A template is
// written to its file as soon as the editor is left with a change; there is
// no separate save command.

#include "output/Linguagem.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QToolButton;

namespace lumeta {

struct Configuracoes;

class frmLinguagens : public QDialog {
    Q_OBJECT
public:
    // `config` holds the STRING choice, stored at every click of its box.
    frmLinguagens(Configuracoes &config, InterfaceUsuario *ui, QWidget *pai = nullptr);

    // Fills the list (sorted as the menus are) and selects `selecionar`, or
    // the first entry when it is not there.
    void CarregarLin(const QString &selecionar = QString());
    void Habilitar();
    void Desabilitar();
    // Writes the shown template when it was changed (leaving the editor).
    void ValidarTexto();
    const LinguagemDef &Definicao() const { return m_def; }

    QComboBox *cmbLin = nullptr;
    QToolButton *btnAdd = nullptr;
    QToolButton *btnRemove = nullptr;
    QRadioButton *optLin[NumOpcoesLinguagem] = {};
    QPlainTextEdit *txtLin = nullptr;
    QLabel *lblLIN = nullptr;
    QCheckBox *chkCobolString = nullptr;
    QPushButton *btnOk = nullptr;

    void done(int r) override;

protected:
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    void selecionarLinguagem();
    void mostrarOpcao(int indice);
    void adicionar();
    void remover();

    Configuracoes &m_config;
    InterfaceUsuario *m_ui;
    LinguagemDef m_def;
    QString m_nome;          // the language read into m_def ("" with none)
    int m_opcao = -1;        // the option whose template txtLin shows
    bool m_carregando = false;
};

}  // namespace lumeta
