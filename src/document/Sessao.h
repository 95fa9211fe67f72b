#pragma once
// The editor session: the one open document and the state the editor keeps
// beside it. Editing commands act on this object, never on widgets, so that
// the same commands run from the window, the command-line tool and the tests.

#include "document/Configuracoes.h"
#include "document/InterfaceUsuario.h"
#include "document/Layout.h"

namespace lumeta {

class SessaoEditor {
public:
    LayoutDocumento Documento;
    QString NomeArquivo;
    QString NomeArquivoAnterior;
    bool Alterado = false;
    int BandaSelecionada = 1;
    int ItemSelecionado = 0;
    int16_t QualidadeJPGSessao = 0;
    FonteItem FontePadrao;   // the font given to new items (settings "FontName"...)
    Configuracoes Config;
    InterfaceUsuario *Ui = nullptr;  // must be set before any file command

    SessaoEditor();
    virtual ~SessaoEditor() = default;

    // The window caption: the product name for a new document, otherwise the
    // application title and the path in brackets.
    QString Titulo() const;

    // Resets the document to a new layout of one band holding one item.
    // The repaint, caption and undo restart belong to the layers above.
    void NovoLMT();

    void AddBanda(int posicao, bool duplicar, int32_t altura, int32_t largura);
    void AddItem(int banda, bool duplicar, int32_t largura);
    void RemoverBanda(int n);

    // Writes the document to NomeArquivo, asking for a name first when there is
    // none. False when the dialog was cancelled or the write failed (the user
    // has then been told why).
    bool SalvarLMT(bool proporNomeAnterior);

    enum class ResultadoAbrir {
        Aberto,
        Cancelado,        // the dialog was cancelled, nothing changed
        FormatoInvalido,  // refused and replaced by a new document
        Encerrar,         // an unreadable file: the editor must end at once
    };
    // Replaces the document with a file; an empty path asks for one first.
    ResultadoAbrir AbrirLMT(const QString &caminho);

protected:
    // Called after a document was loaded or reset, so the layers above can
    // relayout, repaint and restart the undo ring. The default relays out.
    virtual void AposCarregar();
};

}  // namespace lumeta
