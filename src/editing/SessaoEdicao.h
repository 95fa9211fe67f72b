#pragma once
// The editor session: the one open document, the state the editor keeps
// beside it (file names, changed flag, selection, undo ring, settings) and
// the edit cycle that every change ends with (relayout, automatic heights,
// paint, snapshot, command text). Commands act on this object, never on
// widgets: the window plugs into the hooks below, the command-line tool and
// the tests drive the same operations, the tests with a scripted user.
// The families of editing commands live beside it, one file each.

#include "canvas/Pintor.h"
#include "canvas/Unidades.h"
#include "controls/clsConcatenarString.h"
#include "document/Configuracoes.h"
#include "document/Desfazer.h"
#include "document/InterfaceUsuario.h"
#include "document/Layout.h"
#include "editing/EstadoEdicao.h"

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
    // Commits the property panel's pending edits before a click moves the
    // selection; false (a refused value) cancels the click.
    std::function<bool()> ConfirmarPainel;
    std::function<void()> MagicoAlterado;                      // the magic item's ghost moved or went
    std::function<void()> AlcaAlterada;                        // the rubber frame of a handle drag moved
    std::function<void(const QString &)> DigitarTexto;         // a character typed on the canvas
    std::function<void()> EsvaziarAreaTransferencia;           // empty the system clipboard
};

class SessaoEdicao {
public:
    LayoutDocumento Documento;
    QString NomeArquivo;
    QString NomeArquivoAnterior;
    bool Alterado = false;
    int BandaSelecionada = 1;
    int ItemSelecionado = 0;
    FaixaSelecao Faixa;
    bool CliqueAbaixoDaUltimaBanda = false;  // where the last canvas click was, for pasting bands
    ArrasteAlca Alca;                        // the handle drag under way
    FantasmaMagico Magico;                   // the magic item's ghost
    int16_t QualidadeJPGSessao = 0;
    FonteItem FontePadrao;   // the font given to new items (settings "FontName"...)
    Configuracoes Config;
    InterfaceUsuario *Ui = nullptr;  // must be set before any file command

    GanchosSessao Ganchos;
    CanvasPagina Canvas{true};      // size of the page canvas, full-size flag; painted where shown
    RecursosCanvas Recursos;        // fonts, measured heights, pictures, symbols
    ResultadoRepintura UltimaRepintura;
    Unidade UnidadeAtual;           // factor, decimals and label of the unit setting
    AnelDesfazer Desfazer;
    QString TextoResultado;         // the command text last shown
    QString ArquivoTransferencia;   // clipboard exchange file, fixed at start-up
    QString ArquivoVisualizacao;    // preview file, fixed at start-up

    SessaoEdicao();
    SessaoEdicao(const SessaoEdicao &) = delete;
    SessaoEdicao &operator=(const SessaoEdicao &) = delete;

    // The window caption: the product name for a new document, otherwise the
    // application title and the path in brackets.
    QString Titulo() const;

    // Resets the document to a new layout of one band holding one item,
    // repaints it and restarts the undo ring with it as the only state.
    void NovoLMT();

    // The model operations every command builds on (see ComandosBanda.h and
    // ComandosItem.h for the menu commands around them).
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
    bool PodeRefazer() const { return Desfazer.PodeRefazer(); }
    // Takes back the last undo, until the next edit.
    void RefazerEdicao();

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
    // "Exemplos": the open dialog in the folder of the shipped examples; a
    // missing folder is told, never passed over in silence.
    void ComandoExemplos(const QString &pasta);
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

private:
    // After a document was loaded or reset: relayout, caption, scroll bars,
    // repaint into a restarted undo ring, selection and panel.
    void AposCarregar();
    // After undo or redo put a stored state back: repaint without a
    // snapshot, selection and panel.
    void Restaurado();
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
