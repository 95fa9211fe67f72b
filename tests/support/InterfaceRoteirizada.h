#pragma once
// A user who answers from a script: each question, file dialog and input box
// takes the next queued answer, and every message shown is recorded.

#include "document/InterfaceUsuario.h"

#include <QList>
#include <QStringList>
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

    void Mensagem(const QString &texto, const QString &titulo, Icone icone) override
    {
        mensagens.append({texto, titulo, icone});
    }
    Resposta Perguntar(const QString &texto, const QString &titulo, Botoes, Icone icone) override
    {
        perguntas.append({texto, titulo, icone});
        if (respostas.empty())
            return Resposta::Cancelar;
        const Resposta r = respostas.front();
        respostas.pop_front();
        return r;
    }
    QString ArquivoSalvar(const OpcoesArquivo &o) override { return proximoArquivo(o); }
    QString ArquivoAbrir(const OpcoesArquivo &o) override { return proximoArquivo(o); }
    std::optional<QString> Entrada(const QString &, const QString &, const QString &) override
    {
        if (entradas.empty())
            return std::nullopt;
        std::optional<QString> r;
        r.swap(entradas.front());
        entradas.pop_front();
        return r;
    }

    std::optional<FonteEscolhida> Fonte(const FonteEscolhida &, bool soImpressao) override
    {
        fontesSoImpressao.push_back(soImpressao);
        if (fontes.empty())
            return std::nullopt;
        const bool cancelado = !fontes.front().has_value();
        const FonteEscolhida f = cancelado ? FonteEscolhida() : *fontes.front();
        fontes.pop_front();
        if (cancelado)
            return std::nullopt;
        return f;
    }

    std::deque<std::optional<int>> cores;  // answers of the colour dialog
    std::optional<int> Cor(int) override
    {
        if (cores.empty())
            return std::nullopt;
        const std::optional<int> c = cores.front();
        cores.pop_front();
        return c;
    }

private:
    QString proximoArquivo(const OpcoesArquivo &o)
    {
        dialogos.append(o);
        if (arquivos.empty())
            return QString();
        const QString r = arquivos.front();
        arquivos.pop_front();
        return r;
    }
};

}  // namespace lumeta::teste
