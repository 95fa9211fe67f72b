#include "dialogs/frmEstilo.h"

#include "dialogs/Dialogo.h"
#include "editing/ComandosOpcoes.h"
#include "editing/ComandosPainel.h"
#include "editing/SessaoEdicao.h"
#include "output/Estilo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>

namespace lumeta {

namespace {

struct BotaoEstilo {
    const char *legenda;
    const char *dica;
};
const BotaoEstilo Legendas[4] = {
    {"&Negrito", "Negrito: {n}...{/n}"},
    {"&Itálico", "Itálico: {i}...{/i}"},
    {"&Sublinhado", "Sublinhado: {s}...{/s}"},
    {"&Riscado", "Riscado: {r}...{/r}"},
};

}  // namespace

frmEstilo::frmEstilo(const QString &texto, QWidget *pai) : QDialog(pai)
{
    setObjectName(QStringLiteral("frmEstilo"));
    setWindowTitle(QStringLiteral("Estilo do Item"));
    txtEstilo = new QPlainTextEdit(this);
    txtEstilo->setObjectName(QStringLiteral("txtEstilo"));
    txtEstilo->setPlainText(TextoParaEstilo(texto));
    auto *rotulo = CriarRotulo(this, "lblEstilo", QStringLiteral("&Texto do item:"), txtEstilo);

    auto *estilos = new QHBoxLayout;
    for (int k = 0; k < 4; ++k) {
        QPushButton *b = CriarBotao(this, "", QString::fromUtf8(Legendas[k].legenda));
        b->setObjectName(QStringLiteral("btnEstilo(%1)").arg(k));
        b->setToolTip(QString::fromUtf8(Legendas[k].dica));
        b->setCheckable(true);
        b->setAutoDefault(false);
        QFont f = b->font();
        f.setBold(k == 0);
        f.setItalic(k == 1);
        f.setUnderline(k == 2);
        f.setStrikeOut(k == 3);
        b->setFont(f);
        connect(b, &QPushButton::clicked, this, [this, k](bool ligar) { aplicar(k, ligar); });
        btnEstilo[k] = b;
        estilos->addWidget(b);
    }
    estilos->addStretch(1);

    QHBoxLayout *botoes = BotoesOkCancelar(this, [this] {
        m_texto = TextoDoEstilo(txtEstilo->toPlainText());
        accept();
    });

    auto *grade = new QVBoxLayout(this);
    grade->addLayout(estilos);
    grade->addWidget(rotulo);
    grade->addWidget(txtEstilo, 1);
    grade->addLayout(botoes);
    // The buttons follow the caret as it moves, whatever moves it.
    connect(txtEstilo, &QPlainTextEdit::cursorPositionChanged, this, &frmEstilo::atualizarBotoes);
    connect(txtEstilo, &QPlainTextEdit::selectionChanged, this, &frmEstilo::atualizarBotoes);
    atualizarBotoes();
    resize(520, 300);
    txtEstilo->setFocus();
}

void frmEstilo::atualizarBotoes()
{
    const QTextCursor c = txtEstilo->textCursor();
    const QString t = txtEstilo->toPlainText();
    for (int k = 0; k < 4; ++k)
        btnEstilo[k]->setChecked(EstiloPressionado(t, c.selectionStart(), c.selectionEnd(), QChar::fromLatin1(LetrasEstilo[k])));
}

void frmEstilo::aplicar(int k, bool ligar)
{
    QTextCursor c = txtEstilo->textCursor();
    const auto r = AplicarEstilo(txtEstilo->toPlainText(), c.selectionStart(), c.selectionEnd(),
                                 QChar::fromLatin1(LetrasEstilo[k]), ligar);
    if (r) {
        // One edit of the whole text keeps a single undo step in the box.
        c.select(QTextCursor::Document);
        c.insertText(r->texto);
        c.setPosition(int(r->inicio));
        c.setPosition(int(r->fim), QTextCursor::KeepAnchor);
        txtEstilo->setTextCursor(c);
    }
    atualizarBotoes();
    txtEstilo->setFocus();
}

bool mnuEditarItemEstilo(SessaoEdicao &s, QWidget *pai)
{
    if (s.ItemSelecionado < 1 || s.BandaSelecionada < 1 || s.BandaSelecionada > s.Documento.NumBandas())
        return false;
    const Banda &b = s.Documento.banda(s.BandaSelecionada);
    if (s.ItemSelecionado > b.NumItens())
        return false;
    const Item &item = b.Itens[s.ItemSelecionado - 1];
    // Pictures and barcodes have no words to style, only the item's font.
    if (item.Tipo != TipoTexto && item.Tipo != TipoComando)
        return AlterarFonte(s);
    frmEstilo f(item.Texto, pai);
    if (f.exec() != QDialog::Accepted)
        return false;
    DefinirTextoEstilo(s, f.Texto());
    return true;
}

}  // namespace lumeta
