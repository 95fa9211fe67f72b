#pragma once
// The editor's session as the main window drives it: the edit cycle that
// every change ends with (relayout, automatic heights, paint, snapshot,
// command text), undo, the file commands with the changed-document question,
// the start-up and shut-down steps and the configuration menu's effects.
// Nothing here knows a widget: the window plugs into the hooks below, and the
// tests drive the same operations with a scripted user.

#include "canvas/Pintor.h"
#include "canvas/Unidades.h"
#include "controls/clsConcatenarString.h"
#include "document/Desfazer.h"
#include "document/Sessao.h"

#include <QStringList>
#include <functional>

namespace lumeta {

// What the window does at the points of the cycle and of the file commands.
// Every hook may be left empty.
struct GanchosSessao {
    // Draw the canvas from the prepared model; the result says whether the
    // canvas grew (scroll bar maxima) or the selected band's height changed.
    std::function<void(const ResultadoRepintura &)> Pintar;
    std::function<void(const QString &)> MostrarResultado;     // the command text into the result pane
    std::function<void()> SelecionarBanda;                     // show the selected band again
    std::function<void()> SelecionarItem;                      // show the selection again
    std::function<void()> Validar;                             // refresh the property panel
    std::function<void()> RolagemInicial;                      // both canvas scroll bars to 0
    std::function<void()> Titulo;                              // the caption may have changed
    std::function<void()> ArquivosRecentes;                    // rebuild the recent-file menu
    std::function<void()> ConfiguracoesLidas;                  // apply the settings read at start-up
    std::function<void()> UnidadeAlterada;                     // unit check marks, labels and fields
    std::function<void()> ResultadoAlternado;                  // show or hide the result pane
    std::function<void()> OpcoesAlteradas;                     // check marks of the page options
    std::function<bool()> JanelaHabilitada;                    // the guard of Open (true when empty)
    std::function<void()> Encerrar;                            // end the program at once, no questions
};

class SessaoEdicao : public SessaoEditor {
public:
    GanchosSessao Ganchos;
    CanvasPagina Canvas;            // size of the page canvas, full-size flag
    RecursosCanvas Recursos;        // fonts, measured heights, pictures, symbols
    ResultadoRepintura UltimaRepintura;
    Unidade UnidadeAtual;           // factor, decimals and label of the unit setting
    AnelDesfazer Desfazer;
    QString TextoResultado;         // the command text last shown
    QString ArquivoTransferencia;   // clipboard exchange file, fixed at start-up
    QString ArquivoVisualizacao;    // preview file, fixed at start-up

    SessaoEdicao();

    // The repaint that every change ends with: relayout of the selected band,
    // band placement, automatic heights and canvas growth, paint, document
    // changed, undo snapshot (unless suppressed), command text.
    void ExibirBanda();
    // ExibirBanda, then the selection and the property panel shown again.
    void ConcluirEdicao();
    // Regenerates the command text and hands it to the result pane.
    void ExibirResultado();
    // A change of a page option that only the command text shows.
    void OpcaoAlterada();

    bool PodeDesfazer() const { return Desfazer.PodeDesfazer(); }
    void DesfazerEdicao();

    // --- start-up and shut-down --------------------------------------------
    // Steps of the start that are not widgets: the program folder setting,
    // the fixed paths, the settings, the recent files and the command line.
    // False when the document named on the command line could not be read
    // and the program must end.
    bool Iniciar(const QStringList &argumentos, const QString &pastaPrograma, const QString &programa);
    // The changed-document question of the exit; false keeps the window open.
    bool ConfirmarSaida() { return PerguntarSalvar(QStringLiteral("Sair")); }
    // Deletes the preview file and writes the view settings.
    void FinalizarSaida();

    // --- file menu -----------------------------------------------------------
    // "Deseja salvar as alterações?" when the document changed. False stops
    // the command (Cancel, or Yes and the save failed).
    bool PerguntarSalvar(const QString &titulo);
    void ComandoNovo();
    void ComandoAbrir();
    bool ComandoSalvar();
    bool ComandoSalvarComo();
    void ComandoAbrirRecente(int k);
    void ComandoExcluirRecentes();
    // Re-reads the recent-file settings (stopping at the first empty one).
    void ArquivosRecentes();

    // --- configuration menu --------------------------------------------------
    void AlternarPaisagem();
    void AlternarImprimir();
    void AlternarVisivel();
    void AlternarTemCapa();
    void AlternarEnviarEmail();
    // Refused (with the "Rodapé" message) while turning it on in a layout
    // with a footer band.
    bool AlternarQuebraPaginaFinal();
    void DefinirTipoEmail(int tipo);
    // The unit setting and the unit refresh: factor, decimals and label (an
    // unknown code behaves as pixels and keeps the label shown before).
    void DefinirUnidade(int codigo);
    void AlternarResultado();
    void AlternarFontesImpressora();
    void DefinirFontePadrao(const QString &nome, double tamanho, bool negrito, bool italico,
                            bool sublinhado, bool tachado);
    void DefinirCPY(const QString &linguagem);
    // The "CPY" setting as the store holds it now (the menu reads it each
    // time it opens).
    QString LerCPY();

protected:
    void AposCarregar() override;

private:
    void abrir(const QString &caminho);
    void chamar(const std::function<void()> &f) const
    {
        if (f)
            f();
    }

    clsConcatenarString m_resultado;
};

// The font size the editor keeps for a chosen size: rounded to the nearest
// whole number (halves to even), taken modulo 100, 0 becoming 8.
int16_t TamanhoFonteEscolhido(double tamanho);

// The command line as one path: every double quote removed.
QString ArgumentoCaminho(const QStringList &argumentos);

}  // namespace lumeta
