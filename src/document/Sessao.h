#pragma once
// The editor session: the one open document and the state the editor keeps
// beside it. Editing commands act on this object, never on widgets, so that
// the same commands run from the window, the command-line tool and the tests.

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

    SessaoEditor();
    virtual ~SessaoEditor() = default;

    // Resets the document to a new layout of one band holding one item.
    // The repaint, caption and undo restart belong to the layers above.
    void NovoLMT();

    void AddBanda(int posicao, bool duplicar, int32_t altura, int32_t largura);
    void AddItem(int banda, bool duplicar, int32_t largura);
    void RemoverBanda(int n);
};

}  // namespace lumeta
