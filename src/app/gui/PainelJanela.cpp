#include "app/gui/PainelJanela.h"

#include "canvas/Cores.h"
#include "controls/ui/NomesPelaDica.h"
#include "controls/ui/NumeroCtl.h"
#include "editing/ComandosItem.h"
#include "editing/ComandosPainel.h"
#include "editing/Selecao.h"
#include "editing/Teclado.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace lumeta {

// A row of the 16 basic colours; the selected colours are marked above
// (text or line) and below (background) their boxes.
class PaletaCores : public QWidget {
public:
    explicit PaletaCores(QWidget *pai) : QWidget(pai) { setFixedSize(16 * ColunaCor + 2, CaixaCor + 8); }
    std::function<void(int x, bool esquerdo)> Clique;
    int marcaCima = -1, marcaBaixo = -1;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        const QColor face = palette().color(QPalette::Button);
        for (int i = 0; i < 16; ++i) {
            const QRect caixa(i * ColunaCor, 4, CaixaCor, CaixaCor);
            p.fillRect(caixa, CorQt(CoresBasicas()[size_t(i)]));
            p.setPen(face.darker(160));
            p.drawRect(caixa.adjusted(0, 0, -1, -1));
        }
        p.setPen(Qt::NoPen);
        p.setBrush(palette().color(QPalette::WindowText));
        auto marca = [&](int n, bool cima) {
            if (n < 0 || n > 15)
                return;
            const int x = n * ColunaCor + CaixaCor / 2;
            const int y = cima ? 0 : height();
            const int d = cima ? 3 : -3;
            const QPoint t[3] = {{x - 3, y}, {x + 3, y}, {x, y + d}};
            p.drawPolygon(t, 3);
        };
        marca(marcaCima, true);
        marca(marcaBaixo, false);
    }
    void mousePressEvent(QMouseEvent *e) override
    {
        if (Clique)
            Clique(int(e->position().x()), e->button() == Qt::LeftButton);
    }
};

// The swatch that shows an item's colours and drops the palette down.
class AmostraCor : public QWidget {
public:
    explicit AmostraCor(bool linha, QWidget *pai) : QWidget(pai), m_linha(linha)
    {
        setFixedSize(36, 22);
        setCursor(Qt::PointingHandCursor);
    }
    std::function<void()> Clique;
    int frente = -1, fundo = -1;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        const QRect r = rect().adjusted(0, 0, -1, -1);
        p.fillRect(r, fundo >= 0 && fundo <= 79 ? CorQt(NovaCor(fundo)) : palette().color(QPalette::Base));
        if (m_linha) {
            if (frente >= 0)
                p.setPen(QPen(CorQt(NovaCor(frente)), 3));
            p.drawRect(r.adjusted(2, 2, -2, -2));
        } else if (frente >= 0) {
            p.setPen(CorQt(NovaCor(frente)));
            p.drawText(r, Qt::AlignCenter, QStringLiteral("Aa"));
        }
        p.setPen(palette().color(QPalette::Mid));
        p.setBrush(Qt::NoBrush);
        p.drawRect(r);
    }
    void mouseReleaseEvent(QMouseEvent *) override
    {
        if (Clique && isEnabled())
            Clique();
    }

private:
    bool m_linha;
};

// The drop-down 8 x 8 palette; hides itself when it loses the focus.
class PaletaExtendida : public QWidget {
public:
    explicit PaletaExtendida(QWidget *pai) : QWidget(pai, Qt::Popup)
    {
        setObjectName(QStringLiteral("picPaletaExtendida"));
        setFixedSize(8 * CelulaPaleta, 8 * CelulaPaleta);
        setFocusPolicy(Qt::StrongFocus);
    }
    AlvoPaleta alvo = AlvoPaleta::Item;
    QString Etiqueta() const { return EtiquetaPaleta(alvo); }
    std::function<void(int x, int y, bool esquerdo)> Clique;
    std::array<int, 3> marcas{-1, -1, -1};   // text or line, background

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        for (int n = 16; n < 80; ++n) {
            const QRect r(((n - 16) % 8) * CelulaPaleta, ((n - 16) / 8) * CelulaPaleta, CelulaPaleta, CelulaPaleta);
            p.fillRect(r, CorQt(NovaCor(n)));
            p.setPen(palette().color(QPalette::Button));
            p.drawRect(r.adjusted(0, 0, -1, -1));
            for (int k = 0; k < 2; ++k)
                if (marcas[size_t(k)] == n) {
                    p.setPen(QPen(k == 0 ? Qt::black : Qt::white, 2));
                    p.drawRect(r.adjusted(2 + 2 * k, 2 + 2 * k, -3 - 2 * k, -3 - 2 * k));
                }
        }
    }
    void mouseReleaseEvent(QMouseEvent *e) override
    {
        const QPoint p = e->position().toPoint();
        hide();
        if (Clique && rect().contains(p))
            Clique(p.x(), p.y(), e->button() == Qt::LeftButton);
    }
    void focusOutEvent(QFocusEvent *) override { hide(); }
};

namespace {

// The pictures of the caption-less buttons: a small frame with the line
// (or the text alignment) they stand for.
QIcon iconeLinha(int n)
{
    QPixmap px(18, 18);
    px.fill(Qt::transparent);
    QPainter p(&px);
    p.setPen(QPen(QColor(160, 160, 160), 1, Qt::DotLine));
    p.drawRect(2, 2, 13, 13);
    p.setPen(QPen(Qt::black, 2));
    switch (n) {
    case 1: p.drawLine(2, 9, 15, 9); break;     // horizontal middle
    case 2: p.drawLine(15, 2, 15, 15); break;   // right
    case 3: p.drawLine(9, 2, 9, 15); break;     // vertical middle
    case 4: p.drawLine(2, 15, 15, 15); break;   // bottom
    case 5: p.drawLine(2, 2, 15, 2); break;     // top
    case 6: p.drawLine(2, 2, 2, 15); break;     // left
    default: p.drawRect(2, 2, 13, 13); break;   // the whole frame
    }
    return QIcon(px);
}

QIcon iconeAlinhamento(int n)
{
    QPixmap px(18, 18);
    px.fill(Qt::transparent);
    QPainter p(&px);
    p.setPen(QPen(Qt::black, 1));
    auto linhas = [&](int x0, int y0, const std::array<int, 3> &larg) {
        for (int i = 0; i < 3; ++i)
            p.drawLine(x0 + (14 - larg[size_t(i)]) * (n == 1 ? 1 : n == 2 ? 2 : 0) / 2, y0 + 3 * i,
                       x0 + (14 - larg[size_t(i)]) * (n == 1 ? 1 : n == 2 ? 2 : 0) / 2 + larg[size_t(i)], y0 + 3 * i);
    };
    switch (n) {
    case 1:
    case 2: linhas(2, 5, {14, 8, 11}); break;
    case 3: p.drawRect(1, 1, 15, 15); linhas(3, 6, {11, 11, 11}); break;
    case 4: p.drawRect(1, 1, 15, 15); linhas(3, 9, {11, 11, 11}); break;
    case 5: p.drawLine(2, 9, 15, 9); break;
    default: linhas(2, 3, {14, 14, 14}); linhas(2, 12, {14, 9, 0}); break;
    }
    return QIcon(px);
}

QToolButton *botao(QWidget *pai, const QString &nome, const QString &dica, const QIcon &icone)
{
    auto *b = new QToolButton(pai);
    b->setObjectName(nome);
    b->setToolTip(dica);
    b->setIcon(icone);
    b->setAutoRaise(false);
    b->setFixedSize(26, 24);
    return b;
}

}  // namespace

PainelJanela::PainelJanela(SessaoEdicao &sessao, QWidget *pai) : QWidget(pai), m_sessao(sessao)
{
    setObjectName(QStringLiteral("painelPropriedades"));
    NomearCaixasPeloNome();
    CarregarPaletaExtendida();
    criar();
    Atualizar();
}

void PainelJanela::criar()
{
    auto *l = new QVBoxLayout(this);
    l->setContentsMargins(6, 4, 6, 4);
    l->setSpacing(6);

    // Selection, text, type, angle.
    auto *gTexto = new QGridLayout;
    gTexto->setHorizontalSpacing(6);
    gTexto->setVerticalSpacing(4);
    lblSelecionado = new QLabel(QStringLiteral("(1, 1)"), this);
    lblSelecionado->setObjectName(QStringLiteral("lblSelecionado"));
    lblSelecionado->setToolTip(QStringLiteral("Banda e item selecionados"));
    auto *rotTexto = new QLabel(QStringLiteral("Te&xto:"), this);
    txtTexto = new QLineEdit(this);
    txtTexto->setObjectName(QStringLiteral("txtTexto"));
    // Every text the file can store, not the box's own 32,767 characters.
    txtTexto->setMaxLength(int(MaximoTexto));
    rotTexto->setBuddy(txtTexto);
    txtTexto->installEventFilter(this);
    connect(txtTexto, &QLineEdit::textEdited, this, [this] { m_textoPendente = true; });
    gTexto->addWidget(rotTexto, 0, 0);
    gTexto->addWidget(lblSelecionado, 0, 1, Qt::AlignRight);
    gTexto->addWidget(txtTexto, 1, 0, 1, 2);
    l->addLayout(gTexto);

    auto *gTipo = new QGridLayout;
    gTipo->setHorizontalSpacing(6);
    auto *rotTipo = new QLabel(QStringLiteral("Ti&po:"), this);
    cmbTipo = new QComboBox(this);
    cmbTipo->setObjectName(QStringLiteral("cmbTipo"));
    cmbTipo->addItems(ListaTipos);
    rotTipo->setBuddy(cmbTipo);
    auto *rotAngulo = new QLabel(QStringLiteral("Ân&gulo:"), this);
    cmbAngulo = new QComboBox(this);
    cmbAngulo->setObjectName(QStringLiteral("cmbAngulo"));
    cmbAngulo->addItems(ListaAngulos);
    rotAngulo->setBuddy(cmbAngulo);
    gTipo->addWidget(rotTipo, 0, 0);
    gTipo->addWidget(cmbTipo, 1, 0);
    gTipo->addWidget(rotAngulo, 0, 1);
    gTipo->addWidget(cmbAngulo, 1, 1);
    gTipo->setColumnStretch(0, 3);
    gTipo->setColumnStretch(1, 2);
    l->addLayout(gTipo);
    connect(cmbTipo, &QComboBox::activated, this, [this](int i) {
        if (i == 3) {
            executar([this] { emit CodigoBarrasPedido(); });
            // The box keeps the focus, so the refresh leaves it alone: a
            // cancelled dialog must not leave "Cód. Barras" on a text item.
            const int tipo = CalcularPainel(m_sessao).tipo;
            if (tipo >= 0)
                cmbTipo->setCurrentIndex(tipo);
            return;
        }
        static const uint8_t tipos[3] = {TipoTexto, TipoFigura, TipoComando};
        executar([this, i] { DefinirTipoItem(m_sessao, tipos[i]); });
    });
    connect(cmbAngulo, &QComboBox::activated, this, [this](int i) { executar([this, i] { DefinirAngulo(m_sessao, i); }); });

    // Buttons.
    auto *hBotoes = new QHBoxLayout;
    hBotoes->setSpacing(4);
    btnFonte = new QPushButton(QStringLiteral("&Fonte"), this);
    btnFonte->setObjectName(QStringLiteral("btnFonte"));
    btnFonte->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(btnFonte, &QPushButton::clicked, this, &PainelJanela::clicarFonte);
    btnRemove = botao(this, QStringLiteral("btnRemove"), QStringLiteral("Remover o item selecionado - [DEL]"),
                      style()->standardIcon(QStyle::SP_DialogDiscardButton));
    btnLeft = botao(this, QStringLiteral("btnLeft"),
                    QStringLiteral("Mover o item selecionado para a esquerda - [CTRL + Seta para esquerda]"),
                    style()->standardIcon(QStyle::SP_ArrowLeft));
    btnRight = botao(this, QStringLiteral("btnRight"),
                     QStringLiteral("Mover o item selecionado para a direita - [CTRL + Seta para direita]"),
                     style()->standardIcon(QStyle::SP_ArrowRight));
    connect(btnRemove, &QToolButton::clicked, this, [this] { executar([this] { mnuEditarItemRemover(m_sessao); }); });
    connect(btnLeft, &QToolButton::clicked, this, [this] { executar([this] { mnuEditarItemLeft(m_sessao); }); });
    connect(btnRight, &QToolButton::clicked, this, [this] { executar([this] { mnuEditarItemRight(m_sessao); }); });
    hBotoes->addWidget(btnFonte, 1);
    hBotoes->addWidget(btnLeft);
    hBotoes->addWidget(btnRight);
    hBotoes->addWidget(btnRemove);
    l->addLayout(hBotoes);

    // The type pop-up of btnFonte.
    mnuPopup2 = new QMenu(this);
    mnuPopup2->setObjectName(QStringLiteral("mnuPopup2"));
    const QStringList nomes = {QStringLiteral("mnuPopup2Texto"), QStringLiteral("mnuPopup2Figura"),
                               QStringLiteral("mnuPopup2Comando"), QStringLiteral("mnuPopup2CodigoBarras")};
    const QStringList legendas = {QStringLiteral("&Texto"), QStringLiteral("&Figura"), QStringLiteral("C&omando"),
                                  QStringLiteral("Código de &Barras")};
    for (int i = 0; i < 4; ++i) {
        QAction *a = mnuPopup2->addAction(legendas[i]);
        a->setObjectName(nomes[i]);
        if (i < 3) {
            static const uint8_t tipos[3] = {TipoTexto, TipoFigura, TipoComando};
            connect(a, &QAction::triggered, this, [this, i] { executar([this, i] { DefinirTipoItem(m_sessao, tipos[i]); }); });
        } else {
            connect(a, &QAction::triggered, this, [this] { executar([this] { emit CodigoBarrasPedido(); }); });
        }
    }
    connect(btnFonte, &QPushButton::customContextMenuRequested, this, [this](const QPoint &p) {
        if (!CalcularPainel(m_sessao).temItem)
            return;
        const EstadoMenuEditar e = PrepararMenuEditar(m_sessao, false);
        const bool habilitado[4] = {e.tipoTexto, e.tipoFigura, e.tipoComando, e.tipoCodigoBarras};
        const QList<QAction *> acoes = mnuPopup2->actions();
        for (int i = 0; i < acoes.size(); ++i)
            acoes[i]->setEnabled(habilitado[i]);
        mnuPopup2->popup(btnFonte->mapToGlobal(p));
    });

    // Sizes.
    auto *gCampos = new QGridLayout;
    gCampos->setHorizontalSpacing(6);
    gCampos->setVerticalSpacing(4);
    auto campo = [&](const QString &nome, const QString &legenda, int linha, int coluna) {
        auto *rot = new QLabel(legenda, this);
        auto *n = new NumeroCtl(this);
        n->setObjectName(nome);
        n->Rotular(rot);
        n->setFixedWidth(96);
        auto *un = new QLabel(this);
        m_unidades.append(un);
        gCampos->addWidget(rot, linha, coluna * 3);
        gCampos->addWidget(n, linha, coluna * 3 + 1);
        gCampos->addWidget(un, linha, coluna * 3 + 2);
        return n;
    };
    numWidth = campo(QStringLiteral("numWidth"), QStringLiteral("Compri&mento:"), 0, 0);
    numHeight = campo(QStringLiteral("numHeight"), QStringLiteral("Alt&ura:"), 1, 0);
    numDeslocamento = campo(QStringLiteral("numDeslocamento"), QStringLiteral("Deslocamen&to:"), 2, 0);
    numLeft = campo(QStringLiteral("numLeft"), QStringLiteral("Esquerda:"), 3, 0);
    numTop = campo(QStringLiteral("numTop"), QStringLiteral("Topo:"), 4, 0);
    numDeslocamento->setAllowSignal(true);   // a band may start above the end of the previous one
    numLeft->setLocked(true);
    numTop->setLocked(true);
    gCampos->setColumnStretch(2, 1);
    l->addLayout(gCampos);
    // The automatic-height marker covers the height field.
    picAuto = new QLabel(QStringLiteral("Auto"), this);
    picAuto->setObjectName(QStringLiteral("lblAuto"));
    picAuto->setToolTip(QStringLiteral("Clique para alterar a altura da banda"));
    picAuto->setAlignment(Qt::AlignCenter);
    picAuto->setAutoFillBackground(true);
    picAuto->setFrameShape(QFrame::StyledPanel);
    picAuto->setCursor(Qt::PointingHandCursor);
    picAuto->installEventFilter(this);
    numHeight->installEventFilter(this);

    for (NumeroCtl *n : {numWidth, numHeight, numDeslocamento}) {
        connect(n, &NumeroCtl::Change, this, [this, n] {
            if (!m_preenchendo && !m_pendentes.contains(n))
                m_pendentes.append(n);
        });
        connect(n, &NumeroCtl::Saiu, this, [this, n] { confirmarCampo(n); });
        n->txtNumero()->installEventFilter(this);
    }

    auto *hBanda = new QHBoxLayout;
    chkCabecalho = new QCheckBox(QStringLiteral("Final do ca&beçalho"), this);
    chkCabecalho->setObjectName(QStringLiteral("chkCabecalho"));
    chkCabecalho->setToolTip(QStringLiteral("Indica onde termina o cabeçalho"));
    chkRodape = new QCheckBox(QStringLiteral("&Inicio do rodapé"), this);
    chkRodape->setObjectName(QStringLiteral("chkRodape"));
    chkRodape->setToolTip(QStringLiteral("Indica onde inicia o rodapé"));
    connect(chkCabecalho, &QCheckBox::clicked, this,
            [this](bool v) { executar([this, v] { MarcarCabecalho(m_sessao, v); }); });
    connect(chkRodape, &QCheckBox::clicked, this, [this](bool v) { executar([this, v] { MarcarRodape(m_sessao, v); }); });
    hBanda->addWidget(chkCabecalho);
    hBanda->addWidget(chkRodape);
    l->addLayout(hBanda);

    // Text flags.
    fraAlinhamentoTexto = new QGroupBox(QStringLiteral("Formato do texto:"), this);
    fraAlinhamentoTexto->setObjectName(QStringLiteral("fraAlinhamentoTexto"));
    auto *gFlags = new QGridLayout(fraAlinhamentoTexto);
    gFlags->setContentsMargins(6, 4, 6, 4);
    gFlags->setVerticalSpacing(2);
    auto *hIcones = new QHBoxLayout;
    hIcones->setSpacing(8);
    const std::array<EstadoCaixa, 10> iniciais = CaixasIniciais();
    for (int n = 1; n <= 10; ++n) {
        auto *c = new QCheckBox(iniciais[size_t(n - 1)].legenda, fraAlinhamentoTexto);
        c->setObjectName(QStringLiteral("chkAlinhamento(%1)").arg(n));
        c->setToolTip(iniciais[size_t(n - 1)].dica);
        if (n <= 6) {
            c->setIcon(iconeAlinhamento(n));
            hIcones->addWidget(c);
        }
        chkAlinhamento[size_t(n - 1)] = c;
        connect(c, &QCheckBox::clicked, this, [this, n](bool v) { executar([this, n, v] { MarcarAtributo(m_sessao, n, v); }); });
    }
    hIcones->addStretch(1);
    gFlags->addLayout(hIcones, 0, 0, 1, 2);
    gFlags->addWidget(chkAlinhamento[6], 1, 0);
    gFlags->addWidget(chkAlinhamento[7], 1, 1);
    gFlags->addWidget(chkAlinhamento[8], 2, 0);
    gFlags->addWidget(chkAlinhamento[9], 2, 1);
    fraTamanho = new QGroupBox(QStringLiteral("Zoom:"), fraAlinhamentoTexto);
    fraTamanho->setObjectName(QStringLiteral("fraTamanho"));
    auto *hZoom = new QHBoxLayout(fraTamanho);
    hZoom->setContentsMargins(6, 2, 6, 2);
    cmbTamanho = new QComboBox(fraTamanho);
    cmbTamanho->setObjectName(QStringLiteral("cmbTamanho"));
    cmbTamanho->addItems(ListaZoom);
    hZoom->addWidget(cmbTamanho);
    connect(cmbTamanho, &QComboBox::activated, this, [this](int i) { executar([this, i] { DefinirZoom(m_sessao, i); }); });
    gFlags->addWidget(fraTamanho, 3, 0, 1, 2);
    l->addWidget(fraAlinhamentoTexto);

    // Lines.
    fraLinhas = new QGroupBox(QStringLiteral("Linhas:"), this);
    fraLinhas->setObjectName(QStringLiteral("fraLinhas"));
    auto *hLinhas = new QHBoxLayout(fraLinhas);
    hLinhas->setContentsMargins(6, 4, 6, 4);
    hLinhas->setSpacing(2);
    static const char *const dicas[6] = {"Linha horizontal no meio", "Linha à direita", "Linha vertical no meio",
                                         "Linha de baixo", "Linha de cima", "Linha à esquerda"};
    for (int n = 1; n <= 6; ++n) {
        QToolButton *b = botao(fraLinhas, QStringLiteral("lblAlinhamento(%1)").arg(n),
                               DicaBotaoLinha(QString::fromUtf8(dicas[n - 1]), n), iconeLinha(n));
        b->setCheckable(true);
        lblAlinhamento[size_t(n - 1)] = b;
        hLinhas->addWidget(b);
        connect(b, &QToolButton::clicked, this, [this, n] { ClicarLinha(n); });
    }
    btnMoldura = botao(fraLinhas, QStringLiteral("btnMoldura"), QStringLiteral("Moldura - [CTRL + 5]"), iconeLinha(7));
    btnMoldura->setCheckable(true);
    hLinhas->addWidget(btnMoldura);
    connect(btnMoldura, &QToolButton::clicked, this, &PainelJanela::ClicarMoldura);
    hLinhas->addSpacing(6);
    numThickness = new NumeroCtl(fraLinhas);
    numThickness->setObjectName(QStringLiteral("numThickness"));
    numThickness->setNumberFormat(2.0);
    numThickness->setToolTip(QStringLiteral("Espessura das linhas (1 a 64)"));
    numThickness->setFixedWidth(36);
    connect(numThickness, &NumeroCtl::Change, this, [this] {
        if (!m_preenchendo && !m_pendentes.contains(numThickness))
            m_pendentes.append(numThickness);
    });
    connect(numThickness, &NumeroCtl::Saiu, this, [this] { confirmarCampo(numThickness); });
    numThickness->txtNumero()->installEventFilter(this);
    hLinhas->addWidget(numThickness);
    hLinhas->addStretch(1);
    l->addWidget(fraLinhas);

    // Colours.
    fraCor = new QGroupBox(QStringLiteral("Cor do item:"), this);
    fraCor->setObjectName(QStringLiteral("fraCor"));
    auto *gCor = new QGridLayout(fraCor);
    gCor->setContentsMargins(6, 4, 6, 4);
    gCor->setHorizontalSpacing(6);
    gCor->setVerticalSpacing(2);
    picCores = new PaletaCores(fraCor);
    picCores->setObjectName(QStringLiteral("picCores"));
    picCores->setToolTip(QStringLiteral("Cor do texto (botão esquerdo) e do fundo (outro botão)"));
    picCores->Clique = [this](int x, bool esq) { executar([this, x, esq] { CliqueCores(m_sessao, x, esq); }); };
    picCoresLinhas = new PaletaCores(fraCor);
    picCoresLinhas->setObjectName(QStringLiteral("picCoresLinhas"));
    picCoresLinhas->setToolTip(QStringLiteral("Cor das linhas (botão esquerdo) e do fundo (outro botão)"));
    picCoresLinhas->Clique = [this](int x, bool esq) { executar([this, x, esq] { CliqueCoresLinhas(m_sessao, x, esq); }); };
    PicCorItem = new AmostraCor(false, fraCor);
    PicCorItem->setObjectName(QStringLiteral("PicCorItem"));
    PicCorItem->setToolTip(QStringLiteral("Mais cores para o texto e o fundo"));
    PicCorItem->Clique = [this] { abrirPaleta(AlvoPaleta::Item, PicCorItem); };
    picCorLinha = new AmostraCor(true, fraCor);
    picCorLinha->setObjectName(QStringLiteral("picCorLinha"));
    picCorLinha->setToolTip(QStringLiteral("Mais cores para as linhas e o fundo"));
    picCorLinha->Clique = [this] { abrirPaleta(AlvoPaleta::Linha, picCorLinha); };
    gCor->setColumnStretch(2, 1);
    gCor->addWidget(picCores, 0, 0);
    gCor->addWidget(PicCorItem, 0, 1);
    gCor->addWidget(picCoresLinhas, 1, 0);
    gCor->addWidget(picCorLinha, 1, 1);
    auto *hLivres = new QHBoxLayout;
    hLivres->setSpacing(4);
    auto *rotLivre = new QLabel(QStringLiteral("Cor livre:"), fraCor);
    hLivres->addWidget(rotLivre);
    const std::array<std::pair<QChar, const char *>, 3> livres = {
        std::pair<QChar, const char *>{u'T', "Cor do Texto (Somente para itens de Texto)"},
        {u'F', "Cor do Fundo (Somente para itens de Texto)"},
        {u'L', "Cor das Linhas (Somente para itens de Texto)"}};
    static const char *const nomesLivres[3] = {"lblTexto", "lblFundo", "lblLinhas"};
    for (int i = 0; i < 3; ++i) {
        QPixmap px(16, 16);
        px.fill(Qt::transparent);
        QPainter p(&px);
        QLinearGradient g(0, 0, 16, 16);
        g.setColorAt(0, Qt::red);
        g.setColorAt(0.5, Qt::green);
        g.setColorAt(1, Qt::blue);
        p.fillRect(2, 2, 12, 12, g);
        p.setPen(Qt::white);
        p.drawText(QRect(0, 0, 16, 16), Qt::AlignCenter, QString(livres[size_t(i)].first));
        p.end();
        QToolButton *b = botao(fraCor, QString::fromLatin1(nomesLivres[i]), QString::fromUtf8(livres[size_t(i)].second),
                               QIcon(px));
        const QChar letra = livres[size_t(i)].first;
        connect(b, &QToolButton::clicked, this, [this, letra] { executar([this, letra] { CorLivre(m_sessao, letra); }); });
        (i == 0 ? lblTexto : i == 1 ? lblFundo : lblLinhas) = b;
        hLivres->addWidget(b);
    }
    hLivres->addStretch(1);
    gCor->addLayout(hLivres, 2, 0, 1, 2);
    l->addWidget(fraCor);
    l->addStretch(1);

    picPaletaExtendida = new PaletaExtendida(this);
    picPaletaExtendida->Clique = [this](int x, int y, bool esq) {
        const AlvoPaleta alvo = picPaletaExtendida->alvo;
        executar([this, alvo, x, y, esq] { CliquePaletaExtendida(m_sessao, alvo, x, y, esq); });
    };

    // The boxes are named by their labels, as the fields are; Enter moves on
    // from them and from the check boxes as it does from the fields.
    cmbTipo->setAccessibleName(QStringLiteral("Tipo:"));
    cmbAngulo->setAccessibleName(QStringLiteral("Ângulo:"));
    cmbTamanho->setAccessibleName(QStringLiteral("Zoom:"));
    for (QWidget *w : std::initializer_list<QWidget *>{cmbTipo, cmbAngulo, cmbTamanho, chkCabecalho, chkRodape})
        w->installEventFilter(this);
    for (QCheckBox *c : chkAlinhamento)
        c->installEventFilter(this);

    setTabOrder(txtTexto, cmbTipo);
    setTabOrder(cmbTipo, cmbAngulo);
    setTabOrder(cmbAngulo, btnFonte);
    setTabOrder(btnFonte, numWidth);
    setTabOrder(numWidth, numHeight);
    setTabOrder(numHeight, numDeslocamento);
}

void PainelJanela::Atualizar()
{
    m_preenchendo = true;
    const EstadoPainel e = CalcularPainel(m_sessao);
    const Unidade &u = m_sessao.UnidadeAtual;
    const FormatosCampos f = FormatosDaUnidade(u);
    numWidth->setNumberFormat(f.numWidth);
    numHeight->setNumberFormat(f.numHeight);
    numDeslocamento->setNumberFormat(f.numDeslocamento);
    numLeft->setNumberFormat(f.numLeft);
    numTop->setNumberFormat(f.numTop);
    for (QLabel *un : m_unidades)
        un->setText(u.rotulo);

    lblSelecionado->setText(e.selecionado);
    chkCabecalho->setEnabled(e.cabecalhoHabilitado);
    chkCabecalho->setChecked(e.cabecalho);
    chkRodape->setEnabled(e.rodapeHabilitado);
    chkRodape->setChecked(e.rodape);
    if (!m_textoPendente || !txtTexto->hasFocus()) {
        txtTexto->setText(e.texto);
        txtTexto->setCursorPosition(0);   // the start of a long text, not its end
    }
    m_textoPendente = m_textoPendente && txtTexto->hasFocus();
    txtTexto->setEnabled(e.textoHabilitado);
    btnFonte->setEnabled(e.fonteHabilitado);
    btnFonte->setText(e.legendaFonte);
    btnFonte->setToolTip(e.dicaFonte);
    for (QWidget *w : {static_cast<QWidget *>(btnRemove), static_cast<QWidget *>(btnLeft), static_cast<QWidget *>(btnRight)})
        w->setEnabled(e.botoesItem);
    for (NumeroCtl *n : {numWidth, numHeight, numDeslocamento, numLeft, numTop, numThickness})
        n->setEnabled(e.camposHabilitados);
    numWidth->setValue(ArredondarCampo(e.largura, u));
    numLeft->setValue(ArredondarCampo(e.esquerda, u));
    numTop->setValue(ArredondarCampo(e.topo, u));
    numHeight->setValue(ArredondarCampo(e.altura, u));
    numDeslocamento->setValue(ArredondarCampo(e.deslocamento, u));
    numHeight->setEnabled(e.camposHabilitados && e.alturaHabilitada);
    picAuto->setVisible(e.temItem && e.autoVisivel);
    picAuto->setGeometry(QRect(numHeight->mapTo(this, QPoint(0, 0)), numHeight->size()));
    picAuto->raise();
    numThickness->setValue(e.espessura);
    m_pendentes.clear();

    if (cmbTipo != QApplication::focusWidget() && e.tipo >= 0)
        cmbTipo->setCurrentIndex(e.tipo);
    cmbTipo->setEnabled(e.tipoHabilitado);
    cmbAngulo->setCurrentIndex(e.angulo);
    cmbAngulo->setEnabled(e.anguloHabilitado);
    fraLinhas->setVisible(e.linhasVisivel);
    fraCor->setTitle(e.legendaCor);
    fraTamanho->setVisible(e.tamanhoVisivel);
    cmbTamanho->setCurrentIndex(e.tamanho);
    for (int n = 0; n < 10; ++n) {
        QCheckBox *c = chkAlinhamento[size_t(n)];
        const EstadoCaixa &ec = e.caixas[size_t(n)];
        c->setText(ec.legenda);
        c->setToolTip(ec.dica);
        c->setVisible(ec.visivel);
        c->setChecked(ec.marcada);
        c->setEnabled(e.temItem);
    }
    for (int n = 0; n < 6; ++n) {
        lblAlinhamento[size_t(n)]->setChecked(e.linhas[size_t(n)]);
        lblAlinhamento[size_t(n)]->setEnabled(e.temItem);
    }
    // Right, bottom, top and left: the four outer lines.
    btnMoldura->setChecked(e.linhas[1] && e.linhas[3] && e.linhas[4] && e.linhas[5]);
    btnMoldura->setEnabled(e.temItem);
    picCores->marcaCima = e.corTexto;
    picCores->marcaBaixo = e.corFundo;
    picCoresLinhas->marcaCima = e.corLinha;
    picCoresLinhas->marcaBaixo = e.corFundo;
    PicCorItem->frente = e.corTexto;
    PicCorItem->fundo = e.corFundo;
    picCorLinha->frente = e.corLinha;
    picCorLinha->fundo = e.corFundo;
    picPaletaExtendida->marcas = {e.corTexto, e.corFundo, e.corLinha};
    for (QWidget *w : std::initializer_list<QWidget *>{picCores, picCoresLinhas, PicCorItem, picCorLinha, lblTexto,
                                                         lblFundo, lblLinhas}) {
        w->setEnabled(e.temItem);
        w->update();
    }
    m_preenchendo = false;
}

void PainelJanela::AtualizarBotaoFonte()
{
    const EstadoPainel e = CalcularPainel(m_sessao);
    btnFonte->setText(e.legendaFonte);
    btnFonte->setToolTip(e.dicaFonte);
}

void PainelJanela::executar(const std::function<void()> &comando)
{
    if (m_preenchendo)
        return;
    ConfirmarPendentes();
    comando();
}

void PainelJanela::confirmarTexto()
{
    if (!m_textoPendente)
        return;
    m_textoPendente = false;
    ConfirmarTexto(m_sessao, txtTexto->text());
}

void PainelJanela::confirmarCampo(NumeroCtl *campo)
{
    if (!m_pendentes.removeOne(campo))
        return;
    const double v = campo->Value();
    if (campo == numThickness)
        DefinirEspessura(m_sessao, v);
    else if (campo == numWidth)
        ConfirmarLargura(m_sessao, v);
    else if (campo == numHeight)
        ConfirmarAltura(m_sessao, v);
    else if (campo == numDeslocamento && !ConfirmarDeslocamento(m_sessao, v))
        Atualizar();
}

bool PainelJanela::ConfirmarPendentes()
{
    confirmarTexto();
    for (NumeroCtl *n : {numThickness, numWidth, numHeight, numDeslocamento})
        confirmarCampo(n);
    return true;
}

void PainelJanela::DigitarTexto(const QString &c)
{
    if (!txtTexto->isEnabled())
        return;
    txtTexto->setFocus(Qt::OtherFocusReason);
    txtTexto->setText(c);
    txtTexto->setCursorPosition(int(c.size()));
    m_textoPendente = true;
}

void PainelJanela::FocarTexto()
{
    if (txtTexto->isEnabled())
        txtTexto->setFocus(Qt::OtherFocusReason);
}

void PainelJanela::setCanvas(QWidget *canvas)
{
    m_canvas = canvas;
    canvas->installEventFilter(this);
}

bool PainelJanela::TextoTemFoco() const
{
    return txtTexto->hasFocus();
}

void PainelJanela::ClicarLinha(int n)
{
    if (n < 1 || n > 6 || !lblAlinhamento[size_t(n - 1)]->isEnabled())
        return;
    executar([this, n] { AlternarLinha(m_sessao, n); });
}

void PainelJanela::ClicarMoldura()
{
    if (btnMoldura->isEnabled())
        executar([this] { AlternarMoldura(m_sessao); });
}

void PainelJanela::AlternarEstilo(EstiloFonte estilo)
{
    executar([this, estilo] { AlternarEstiloFonte(m_sessao, estilo); });
}

void PainelJanela::InserirMacro(int indice)
{
    const QString macro = TextoMacro(m_sessao, indice);
    if (macro.isEmpty())
        return;
    if (!txtTexto->hasFocus() && txtTexto->isEnabled()) {
        txtTexto->setFocus(Qt::OtherFocusReason);
        QApplication::processEvents();
    }
    if (!txtTexto->hasFocus() && !txtTexto->isEnabled())
        return;
    const int inicio = txtTexto->hasSelectedText() ? txtTexto->selectionStart() : txtTexto->cursorPosition();
    txtTexto->insert(macro);
    txtTexto->setSelection(inicio, int(macro.size()));
    m_textoPendente = true;
}

void PainelJanela::clicarFonte()
{
    switch (AcaoFonte(m_sessao)) {
    case AcaoBotaoFonte::Fonte:
        executar([this] { AlterarFonte(m_sessao); });
        break;
    case AcaoBotaoFonte::Figura:
        executar([this] { AbrirFigura(m_sessao); });
        break;
    case AcaoBotaoFonte::CodigoBarras:
        executar([this] { emit CodigoBarrasPedido(); });
        break;
    case AcaoBotaoFonte::Nada:
        break;
    }
}

void PainelJanela::abrirPaleta(AlvoPaleta alvo, QWidget *amostra)
{
    picPaletaExtendida->alvo = alvo;
    picPaletaExtendida->move(amostra->mapToGlobal(QPoint(amostra->width() + 2, 0)));
    picPaletaExtendida->show();
    picPaletaExtendida->setFocus(Qt::PopupFocusReason);
}

bool PainelJanela::eventFilter(QObject *obj, QEvent *e)
{
    if (e->type() == QEvent::MouseButtonRelease && obj == picAuto && !numHeight->isEnabled() && txtTexto->isEnabled()) {
        numHeight->setEnabled(true);
        picAuto->hide();
        numHeight->setFocus(Qt::MouseFocusReason);
        return true;
    }
    if ((e->type() == QEvent::Resize || e->type() == QEvent::Move) && obj == numHeight)
        picAuto->setGeometry(QRect(numHeight->mapTo(this, QPoint(0, 0)), numHeight->size()));
    if (e->type() == QEvent::FocusOut && obj == txtTexto)
        confirmarTexto();
    if (e->type() == QEvent::KeyPress) {
        auto *k = static_cast<QKeyEvent *>(e);
        const bool enter = k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter;
        if (enter && obj == m_canvas && (k->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
            if (txtTexto->isEnabled())
                FocarTexto();
            return true;
        }
        if (enter && obj == txtTexto) {
            confirmarTexto();
            if (m_canvas)
                m_canvas->setFocus(Qt::OtherFocusReason);
            return true;
        }
        if (enter && obj != m_canvas) {   // any other field: as Tab
            focusNextChild();
            return true;
        }
    }
    return QWidget::eventFilter(obj, e);
}

}  // namespace lumeta
