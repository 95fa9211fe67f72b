#pragma once
// A user who answers from a script: each question, file dialog and input box
// takes the next queued answer, and every message shown is recorded.

#include "document/InterfaceUsuario.h"

#include <QList>
#include <deque>
#include <vector>

namespace lumeta::teste {

struct MensagemVista {
    QString texto;
    QString titulo;
    Icone icone;
};

class InterfaceRoteirizada : public InterfaceUsuario {
public:
    std::deque<Resposta> respostas;
    std::deque<QString> arquivos;              // answers of the file dialogs ("" = cancel)
    std::deque<std::optional<QString>> entradas;
    QList<MensagemVista> mensagens;
    QList<MensagemVista> perguntas;
    QList<OpcoesArquivo> dialogos;
    std::deque<std::optional<FonteEscolhida>> fontes;  // answers of the font dialog
    std::vector<bool> fontesSoImpressao;                // how each font dialog was asked
    std::deque<std::optional<int>> cores;               // answers of the colour dialog

    void Mensagem(const QString &texto, const QString &titulo, Icone icone) override
    {
        mensagens.append({texto, titulo, icone});
    }
    Resposta Perguntar(const QString &texto, const QString &titulo, Botoes, Icone icone) override
    {
        perguntas.append({texto, titulo, icone});
        return proxima(respostas, Resposta::Cancelar);
    }
    QString ArquivoSalvar(const OpcoesArquivo &o) override { dialogos.append(o); return proxima(arquivos); }
    QString ArquivoAbrir(const OpcoesArquivo &o) override { dialogos.append(o); return proxima(arquivos); }
    std::optional<QString> Entrada(const QString &, const QString &, const QString &) override { return proxima(entradas); }
    std::optional<FonteEscolhida> Fonte(const FonteEscolhida &, bool soImpressao) override
    {
        fontesSoImpressao.push_back(soImpressao);
        return proxima(fontes);
    }
    std::optional<int> Cor(int) override { return proxima(cores); }

private:
    // The next queued answer; once the script runs out, a cancel.
    template <class T>
    static T proxima(std::deque<T> &fila, T vazia = T())
    {
        if (fila.empty())
            return vazia;
        std::swap(vazia, fila.front());
        fila.pop_front();
        return vazia;
    }
};

}  // namespace lumeta::teste
