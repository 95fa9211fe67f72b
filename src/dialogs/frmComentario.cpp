#include "dialogs/frmComentario.h"

#include "dialogs/ApoioDialogos.h"
#include "document/Configuracoes.h"
#include "editing/ComandosDialogos.h"

#include <QApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace lumeta {

namespace {
const QString ChavePosicao = QStringLiteral("Comentário");
// Keyboard moves of the caret change no text: the label follows them on a timer.
constexpr int IntervaloLinhaColuna = 150;
}  // namespace

frmComentario::frmComentario(const QString &comentario, InterfaceUsuario *ui, QWidget *pai)
    : QDialog(pai), m_ui(ui)
{
    setObjectName(QStringLiteral("frmComentario"));
    setWindowTitle(QStringLiteral("Comentário e Programação adicional da Banda"));
    setSizeGripEnabled(true);

    auto *barra = new QMenuBar(this);
    mnuFerramentas = barra->addMenu(QStringLiteral("&Ferramentas"));
    mnuFerramentas->setObjectName(QStringLiteral("mnuFerramentas"));
    mnuFerramentasQuebraTipo = mnuFerramentas->addMenu(QStringLiteral("&Inserir quebra de página"));
    mnuFerramentasQuebraTipo->setObjectName(QStringLiteral("mnuFerramentasQuebraTipo"));
    mnuFerramentasQuebraTipo->menuAction()->setObjectName(QStringLiteral("mnuFerramentasQuebra"));
    mnuFerramentasVarMacroTipo = mnuFerramentas->addMenu(QStringLiteral("&Alterar váriável de cabeçalho e rodapé"));
    mnuFerramentasVarMacroTipo->setObjectName(QStringLiteral("mnuFerramentasVarMacroTipo"));
    mnuFerramentasVarMacroTipo->menuAction()->setObjectName(QStringLiteral("mnuFerramentasVarMacro"));

    const QString titulos[2] = {QStringLiteral("Inserir antes da banda selecionada:"),
                                QStringLiteral("Inserir depois da banda selecionada:")};
    auto *grade = new QGridLayout;
    for (int i = 0; i < 2; ++i) {
        auto *rotulo = new QLabel(titulos[i], this);
        txtComentario[i] = new QPlainTextEdit(this);
        txtComentario[i]->setObjectName(QStringLiteral("txtComentario(%1)").arg(i));
        txtComentario[i]->setFont(FonteCodigo());
        txtComentario[i]->setLineWrapMode(QPlainTextEdit::NoWrap);
        txtComentario[i]->setTabChangesFocus(true);
        rotulo->setBuddy(txtComentario[i]);
        lblPos[i] = new QLabel(QStringLiteral("(1, 1)"), this);
        lblPos[i]->setObjectName(QStringLiteral("lblPos(%1)").arg(i));
        lblPos[i]->setToolTip(QStringLiteral("Linha e Coluna"));
        lblPos[i]->setAccessibleName(lblPos[i]->toolTip());
        lblPos[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grade->addWidget(rotulo, i * 2, 0);
        grade->addWidget(lblPos[i], i * 2, 1);
        grade->addWidget(txtComentario[i], i * 2 + 1, 0, 1, 2);
        connect(txtComentario[i], &QPlainTextEdit::textChanged, this, [this, i] { LinhaColuna(i); });
        connect(txtComentario[i], &QPlainTextEdit::cursorPositionChanged, this, [this, i] { LinhaColuna(i); });
    }

    btnOk = new QPushButton(QStringLiteral("&Ok"), this);
    btnOk->setObjectName(QStringLiteral("btnOk"));
    btnCancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
    btnCancelar->setObjectName(QStringLiteral("btnCancelar"));
    btnLimpar = new QPushButton(QStringLiteral("&Limpar"), this);
    btnLimpar->setObjectName(QStringLiteral("btnLimpar"));
    auto *botoes = new QHBoxLayout;
    botoes->addWidget(btnLimpar);
    botoes->addStretch();
    botoes->addWidget(btnOk);
    botoes->addWidget(btnCancelar);

    auto *raiz = new QVBoxLayout(this);
    raiz->setMenuBar(barra);
    raiz->addLayout(grade);
    raiz->addLayout(botoes);
    resize(640, 480);

    connect(btnOk, &QPushButton::clicked, this, [this] {
        fechar(JuntarComentario(CaixaParaComentario(txtComentario[0]->toPlainText()),
                                CaixaParaComentario(txtComentario[1]->toPlainText())));
    });
    connect(btnCancelar, &QPushButton::clicked, this, [this] { fechar(std::nullopt); });
    connect(btnLimpar, &QPushButton::clicked, this, [this] { fechar(QString()); });

    tmrLinhaColuna = new QTimer(this);
    tmrLinhaColuna->setObjectName(QStringLiteral("tmrLinhaColuna"));
    tmrLinhaColuna->setInterval(IntervaloLinhaColuna);
    connect(tmrLinhaColuna, &QTimer::timeout, this, [this] {
        LinhaColuna(0);
        LinhaColuna(1);
    });
    tmrLinhaColuna->start();

    CarregarTipo();
    RestaurarPosicao(this, ChavePosicao);
    const PartesComentario partes = DividirComentario(comentario);
    txtComentario[0]->setPlainText(ComentarioParaCaixa(partes.antes));
    txtComentario[1]->setPlainText(ComentarioParaCaixa(partes.depois));
    for (QPlainTextEdit *t : txtComentario)
        t->moveCursor(QTextCursor::Start);
    txtComentario[0]->setFocus();
}

void frmComentario::CarregarTipo()
{
    mnuFerramentasQuebraTipo->clear();
    mnuFerramentasVarMacroTipo->clear();
    const QStringList nomes = ListarLinguagens(false);
    for (int i = 0; i < nomes.size(); ++i) {
        const QString nome = nomes[i];
        QAction *q = mnuFerramentasQuebraTipo->addAction(nome);
        q->setObjectName(QStringLiteral("mnuFerramentasQuebraTipo(%1)").arg(i));
        connect(q, &QAction::triggered, this, [this, nome] { InserirCodigo(nome, FerramentaComentario::QuebraPagina); });
        QAction *v = mnuFerramentasVarMacroTipo->addAction(nome);
        v->setObjectName(QStringLiteral("mnuFerramentasVarMacroTipo(%1)").arg(i));
        connect(v, &QAction::triggered, this, [this, nome] { InserirCodigo(nome, FerramentaComentario::VariavelMacro); });
    }
    mnuFerramentasQuebraTipo->setEnabled(!nomes.isEmpty());
    mnuFerramentasVarMacroTipo->setEnabled(!nomes.isEmpty());
}

void frmComentario::LinhaColuna(int indice)
{
    QPlainTextEdit *t = txtComentario[indice];
    lblPos[indice]->setText(lumeta::LinhaColuna(t->toPlainText(), t->textCursor().position()));
}

void frmComentario::InserirCodigo(const QString &linguagem, FerramentaComentario ferramenta)
{
    LinguagemDef ling;
    Configuracoes cfg;
    cfg.Ler();
    ling.CobolString = cfg.NoCobolUsarString;
    if (!LerLinguagem(linguagem, ling, m_ui))
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString codigo = ComentarioParaCaixa(CodigoFerramenta(ling, ferramenta));
    // The dialog's own focus: the tools menu does not take it from the box.
    QWidget *foco = focusWidget();
    QPlainTextEdit *alvo = foco == txtComentario[1] ? txtComentario[1] : txtComentario[0];
    alvo->insertPlainText(codigo);
    QApplication::restoreOverrideCursor();
}

void frmComentario::fechar(std::optional<QString> resultado)
{
    m_resultado = std::move(resultado);
    if (m_resultado)
        accept();
    else
        reject();
}

void frmComentario::done(int r)
{
    tmrLinhaColuna->stop();
    GravarPosicao(this, ChavePosicao);
    QDialog::done(r);
}

bool AbrirComentario(SessaoEdicao &s, QWidget *pai)
{
    if (s.BandaSelecionada < 1 || s.BandaSelecionada > s.Documento.Bandas.size())
        return false;
    frmComentario dlg(s.Documento.banda(s.BandaSelecionada).Comentario, s.Ui, pai);
    dlg.exec();
    if (!dlg.Resultado())
        return false;
    DefinirComentario(s, *dlg.Resultado());
    return true;
}

}  // namespace lumeta
