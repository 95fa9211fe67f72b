#pragma once
// The one road by which the editor's commands talk to the user: message
// boxes, questions, file dialogs and input boxes. The window supplies the real
// one; tests supply a scripted one, so every command runs without a window.

#include <QString>
#include <optional>

namespace lumeta {

enum class Icone { Nenhum, Informacao, Exclamacao, Critico, Pergunta };
enum class Botoes { Ok, SimNao, SimNaoCancelar, OkCancelar };
enum class Resposta { Ok, Sim, Nao, Cancelar };

struct OpcoesArquivo {
    QString titulo;
    QString filtro;          // "Descrição (*.ext)|*.ext" pairs, as the editor states them
    QString nomeProposto;    // save: proposed name; open: may be empty
    QString pastaInicial;
    bool confirmarSobrescrever = true;  // save only
};

// A font as the font dialog shows and returns it; the size may have a
// fraction (the editor rounds it when it stores it).
struct FonteEscolhida {
    QString Nome;
    double Tamanho = 10;
    bool Negrito = false;
    bool Italico = false;
    bool Sublinhado = false;
    bool Tachado = false;

    bool operator==(const FonteEscolhida &) const = default;
};

class InterfaceUsuario {
public:
    virtual ~InterfaceUsuario() = default;
    virtual void Mensagem(const QString &texto, const QString &titulo, Icone icone) = 0;
    virtual Resposta Perguntar(const QString &texto, const QString &titulo, Botoes botoes, Icone icone) = 0;
    // An empty text means the dialog was cancelled.
    virtual QString ArquivoSalvar(const OpcoesArquivo &opcoes) = 0;
    virtual QString ArquivoAbrir(const OpcoesArquivo &opcoes) = 0;
    // An input box; nullopt when cancelled.
    virtual std::optional<QString> Entrada(const QString &pergunta, const QString &titulo, const QString &padrao) = 0;
    // The font dialog starting from `inicial`; nullopt when cancelled.
    // `soImpressao` lists only the fonts a printer can draw at any size.
    virtual std::optional<FonteEscolhida> Fonte(const FonteEscolhida &inicial, bool soImpressao) = 0;
    // The colour dialog starting from `inicial` (0x00BBGGRR); nullopt when
    // cancelled. Front ends without one report a cancel.
    virtual std::optional<int> Cor(int inicial) { (void)inicial; return std::nullopt; }
};

}  // namespace lumeta
