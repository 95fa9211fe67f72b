#pragma once
// The program's own help window: the manual and the tutorial that ship in
// the "ajuda" folder beside the program, shown in a text browser, so help
// works on a machine without a web browser or an office suite.

#include "document/InterfaceUsuario.h"

#include <QWidget>

class QTextBrowser;
class QPushButton;

namespace lumeta {

inline const QString TituloJanelaAjuda = QStringLiteral("Ajuda do LumetaEdit");
inline const QString TituloAjuda = QStringLiteral("Ajuda");

class JanelaAjuda : public QWidget {
    Q_OBJECT
public:
    explicit JanelaAjuda(QWidget *pai = nullptr);

    // Shows a document (a path, optionally with "#anchor"). False, and the
    // window unchanged, when the file cannot be read.
    bool Mostrar(const QString &caminho);
    QTextBrowser *Navegador() const { return m_navegador; }

private:
    QTextBrowser *m_navegador;
    QPushButton *m_voltar;
    QPushButton *m_avancar;
};

// The message for a document or address that could not be opened.
QString MensagemDocumentoAjuda(const QString &alvo);

// Opens a shipped document in the help window of `dono` (one per window,
// made on first use) and brings it to the front; a document that cannot be
// read is told through `ui`. True when it is shown.
bool AbrirDocumentoAjuda(QWidget *dono, InterfaceUsuario *ui, const QString &caminho);

}  // namespace lumeta
