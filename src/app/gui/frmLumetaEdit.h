#pragma once
// The editor's main window: menus, the toolbar, the page canvas with its
// tab and scroll bars, and the result pane with the command text. It owns
// the session and plugs its widgets into the session's hooks; the commands
// themselves live in the session.

#include "controls/ui/InterfaceUsuarioQt.h"
#include "controls/ui/ModMouseWheel.h"
#include "editing/SessaoEdicao.h"

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>

class QAction;
class QComboBox;
class QActionGroup;
class QMenu;
class QScrollBar;
class QSplitter;
class QPlainTextEdit;

namespace lumeta {

class ImagemClicavel;
class PicContainer;
class PicPagina;
class Regua;
class PainelJanela;
class TabCtl;
class XPButtonCtl;

// Addresses of the maker's site opened by the Help menu and the about box.
inline const QString EnderecoAtualizar = QStringLiteral("https://www.tavrosk.com.br/lumeta/download");
inline const QString EnderecoSite = QStringLiteral("https://www.tavrosk.com.br/lumeta");
inline const QString EmailAutor = QStringLiteral("lumeta@tavrosk.com.br");

class frmLumetaEdit : public QMainWindow {
    Q_OBJECT
public:
    // `ui` replaces the message boxes and file dialogs (tests); null uses
    // the real ones.
    explicit frmLumetaEdit(InterfaceUsuario *ui = nullptr, QWidget *pai = nullptr);
    ~frmLumetaEdit() override;

    // The start-up: settings, recent files, the command line (or the file
    // type registration and a new document), the mouse wheel. False when the
    // file named on the command line could not be read: the program ends.
    bool Iniciar(const QStringList &argumentos);

    SessaoEdicao &Sessao() { return m_sessao; }
    ModMouseWheel &Roda() { return m_roda; }
    // A menu entry by its name ("mnuArquivoNovo", "mnuArquivoRecente(2)").
    QAction *Acao(const QString &nome) const;

    // Moves the canvas one step of `vsbPagina` (the mouse wheel's routine).
    void RolarCanvas(DirecaoRolagem direcao);
    // Scrolls the selected item into view.
    void MostrarSelecao();
    // Scroll bar maxima from the canvas and viewport sizes.
    void AtualizarRolagem();
    // The canvas's zoom in percent, kept around a widget point of the page
    // (the view's middle when none is given).
    void AplicarZoom(int percentual, QPointF ancora = QPointF(-1, -1));
    // How many canvas pixels the viewport shows at the zoom.
    QSize ViewportCanvas() const;

    // How a failed open ends the program (default: leave the event loop
    // with status 1, without the shut-down questions).
    std::function<void()> AoEncerrar;

    // Widgets later parts of the window attach to.
    QMenu *mnuArquivo = nullptr;
    QMenu *mnuEditar = nullptr;
    QMenu *mnuConfig = nullptr;
    QMenu *mnuAjuda = nullptr;
    QMenu *mnuPopup = nullptr;
    QPlainTextEdit *rtbResultado = nullptr;
    ImagemClicavel *imgResultado = nullptr;
    TabCtl *tabPagina = nullptr;
    XPButtonCtl *btnMagic = nullptr;
    PicContainer *picContainer = nullptr;
    Regua *reguaHorizontal = nullptr;
    Regua *reguaVertical = nullptr;
    QWidget *cantoReguas = nullptr;
    QComboBox *cmbZoom = nullptr;
    PicPagina *picPagina = nullptr;
    QScrollBar *hsbPagina = nullptr;
    QScrollBar *vsbPagina = nullptr;
    QWidget *areaCanvas = nullptr;     // tab, canvas and scroll bars
    QWidget *colunaResultado = nullptr; // the result pane and its caption
    QSplitter *divisor = nullptr;      // canvas area | result pane
    PainelJanela *painel = nullptr;    // the property panel beside the canvas

protected:
    void closeEvent(QCloseEvent *e) override;
    bool eventFilter(QObject *obj, QEvent *e) override;

private:
    QAction *item(QMenu *menu, const QString &nome, const QString &legenda, bool habilitado = true);
    QMenu *submenu(QMenu *menu, const QString &nome, const QString &legenda);
    void criarMenus();
    void criarMenuArquivo();
    void criarMenuEditar();
    void criarMenuConfig();
    void criarMenuAjuda();
    void ligarDialogos();
    void criarJanela();
    void ligarSessao();

    void aplicarConfiguracoes();
    void atualizarTitulo();
    void atualizarRecentes();
    void atualizarUnidade();
    void mostrarReguas();
    void atualizarResultado();
    void atualizarOpcoes();
    void mostrarTextoResultado(const QString &texto);
    void prepararMenuEditar();
    void prepararMenuConfig();
    void prepararCopiarComo();
    void copiarComo(const QString &linguagem);
    void copiarComandos();
    void escolherFontePadrao();
    void abrirAjuda(const QString &endereco);
    void encerrar();

    SessaoEdicao m_sessao;
    std::unique_ptr<InterfaceUsuarioQt> m_uiPropria;
    ModMouseWheel m_roda;
    QActionGroup *m_grupoEmail = nullptr;
    QActionGroup *m_grupoMedida = nullptr;
    QActionGroup *m_grupoCpy = nullptr;
    QList<QAction *> m_cpyTipos;
    QList<QAction *> m_copiarComoTipos;
    bool m_encerrado = false;
    QString m_textoResultado;   // what the result pane holds, LF line ends
};

}  // namespace lumeta
