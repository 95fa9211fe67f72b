#pragma once
// The user as the editor's windows meet him: message boxes, questions, the
// file choosers and input boxes, all with the owner window given here.

#include "document/InterfaceUsuario.h"

class QCoreApplication;
class QTranslator;
class QWidget;

namespace lumeta {

// Qt's own texts (the file, font and colour dialogs, the overwrite question,
// standard buttons) in Brazilian Portuguese, from the system's Qt
// translations. The translator belongs to `app` and is installed in it;
// null when the translations are not installed.
QTranslator *CarregarTraducoesQt(QCoreApplication &app);

class InterfaceUsuarioQt : public InterfaceUsuario {
public:
    explicit InterfaceUsuarioQt(QWidget *dono = nullptr) : m_dono(dono) {}
    void setDono(QWidget *dono) { m_dono = dono; }

    void Mensagem(const QString &texto, const QString &titulo, Icone icone) override;
    Resposta Perguntar(const QString &texto, const QString &titulo, Botoes botoes, Icone icone) override;
    QString ArquivoSalvar(const OpcoesArquivo &opcoes) override;
    QString ArquivoAbrir(const OpcoesArquivo &opcoes) override;
    std::optional<QString> Entrada(const QString &pergunta, const QString &titulo, const QString &padrao) override;
    std::optional<FonteEscolhida> Fonte(const FonteEscolhida &inicial, bool soImpressao) override;
    std::optional<int> Cor(int inicial) override;

private:
    QWidget *m_dono;
};

}  // namespace lumeta
