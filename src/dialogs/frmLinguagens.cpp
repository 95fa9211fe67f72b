#include "dialogs/frmLinguagens.h"

#include "dialogs/ApoioDialogos.h"
#include "document/Configuracoes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace lumeta {

frmLinguagens::frmLinguagens(Configuracoes &config, InterfaceUsuario *ui, QWidget *pai)
    : QDialog(pai), m_config(config), m_ui(ui)
{
    setObjectName(QStringLiteral("frmLinguagens"));
    setWindowTitle(QStringLiteral("Linguagens"));
    setSizeGripEnabled(true);
    m_def.CobolString = config.NoCobolUsarString;

    auto *rotuloLista = new QLabel(QStringLiteral("Selecione a linguagem:"), this);
    cmbLin = new QComboBox(this);
    cmbLin->setObjectName(QStringLiteral("cmbLin"));
    cmbLin->setMinimumWidth(240);
    rotuloLista->setBuddy(cmbLin);
    EnterComoTab(cmbLin);
    btnAdd = new QToolButton(this);
    btnAdd->setObjectName(QStringLiteral("btnAdd"));
    btnAdd->setText(QStringLiteral("+"));
    btnAdd->setToolTip(QStringLiteral("Adicionar uma nova linguagem"));
    btnAdd->setAccessibleName(btnAdd->toolTip());
    btnRemove = new QToolButton(this);
    btnRemove->setObjectName(QStringLiteral("btnRemove"));
    btnRemove->setText(QStringLiteral("−"));
    btnRemove->setToolTip(QStringLiteral("Remover a linguagem selecionada"));
    btnRemove->setAccessibleName(btnRemove->toolTip());
    auto *linhaLista = new QHBoxLayout;
    linhaLista->addWidget(rotuloLista);
    linhaLista->addWidget(cmbLin, 1);
    linhaLista->addWidget(btnAdd);
    linhaLista->addWidget(btnRemove);

    auto *grupo = new QGroupBox(QStringLiteral("Comandos:"), this);
    auto *grade = new QGridLayout(grupo);
    for (int i = 0; i < NumOpcoesLinguagem; ++i) {
        optLin[i] = new QRadioButton(LegendaOpcaoLinguagem(i), grupo);
        optLin[i]->setObjectName(QStringLiteral("optLin(%1)").arg(i));
        grade->addWidget(optLin[i], i % 4, i / 4);
        EnterComoTab(optLin[i]);
        connect(optLin[i], &QRadioButton::toggled, this, [this, i](bool ligado) {
            if (ligado && !m_carregando)
                mostrarOpcao(i);
        });
    }

    txtLin = new QPlainTextEdit(this);
    txtLin->setObjectName(QStringLiteral("txtLin"));
    txtLin->setFont(FonteCodigo());
    txtLin->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtLin->setTabChangesFocus(true);
    txtLin->setToolTip(QStringLiteral("Modelo do comando selecionado"));
    txtLin->setAccessibleName(txtLin->toolTip());
    txtLin->installEventFilter(this);

    auto *rotuloPasta = new QLabel(QStringLiteral("Pasta"), this);
    lblLIN = new QLabel(this);
    lblLIN->setObjectName(QStringLiteral("lblLIN"));
    lblLIN->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblLIN->setFrameShape(QFrame::StyledPanel);
    lblLIN->setMinimumWidth(360);
    rotuloPasta->setBuddy(lblLIN);
    auto *linhaPasta = new QHBoxLayout;
    linhaPasta->addWidget(rotuloPasta);
    linhaPasta->addWidget(lblLIN, 1);

    chkCobolString = new QCheckBox(QStringLiteral("No COBOL usar a função \"STRING\" para quebrar o texto"), this);
    chkCobolString->setObjectName(QStringLiteral("chkCobolString"));
    chkCobolString->setChecked(config.NoCobolUsarString);
    EnterComoTab(chkCobolString);

    btnOk = new QPushButton(QStringLiteral("&Ok"), this);
    btnOk->setObjectName(QStringLiteral("btnOk"));
    btnOk->setAutoDefault(false);
    auto *linhaFim = new QHBoxLayout;
    linhaFim->addWidget(chkCobolString);
    linhaFim->addStretch();
    linhaFim->addWidget(btnOk);

    auto *raiz = new QVBoxLayout(this);
    raiz->addLayout(linhaLista);
    raiz->addWidget(grupo);
    raiz->addWidget(txtLin, 1);
    raiz->addLayout(linhaPasta);
    raiz->addLayout(linhaFim);
    resize(620, 520);

    connect(cmbLin, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_carregando)
            selecionarLinguagem();
    });
    connect(btnAdd, &QToolButton::clicked, this, &frmLinguagens::adicionar);
    connect(btnRemove, &QToolButton::clicked, this, &frmLinguagens::remover);
    connect(chkCobolString, &QCheckBox::clicked, this, [this](bool v) {
        m_config.NoCobolUsarString = v;
        m_config.GravarNoCobolUsarString();
        m_def.CobolString = v;
    });
    connect(btnOk, &QPushButton::clicked, this, &QDialog::accept);

    CarregarLin();
}

void frmLinguagens::CarregarLin(const QString &selecionar)
{
    m_carregando = true;
    cmbLin->clear();
    cmbLin->addItems(ListarLinguagens(true));
    const int i = cmbLin->findText(selecionar);
    cmbLin->setCurrentIndex(cmbLin->count() == 0 ? -1 : std::max(i, 0));
    m_carregando = false;
    selecionarLinguagem();
}

void frmLinguagens::selecionarLinguagem()
{
    ValidarTexto();
    m_nome.clear();
    if (cmbLin->currentIndex() >= 0 && LerLinguagem(cmbLin->currentText(), m_def, m_ui)) {
        m_nome = cmbLin->currentText();
        Habilitar();
    } else {
        Desabilitar();
    }
}

void frmLinguagens::Habilitar()
{
    for (QRadioButton *o : optLin)
        o->setEnabled(true);
    btnRemove->setEnabled(true);
    txtLin->setEnabled(true);
    lblLIN->setText(CaminhoLinguagem(m_nome));
    m_carregando = true;
    optLin[0]->setChecked(true);
    m_carregando = false;
    m_opcao = -1;
    mostrarOpcao(0);
}

void frmLinguagens::Desabilitar()
{
    m_opcao = -1;
    txtLin->clear();
    txtLin->setEnabled(false);
    // Exclusive buttons cannot all be cleared while they stay exclusive.
    for (QRadioButton *o : optLin) {
        o->setAutoExclusive(false);
        o->setChecked(false);
        o->setAutoExclusive(true);
        o->setEnabled(false);
    }
    btnRemove->setEnabled(false);
    lblLIN->clear();
}

void frmLinguagens::mostrarOpcao(int indice)
{
    ValidarTexto();
    m_opcao = indice;
    txtLin->setPlainText(QString(ModeloDaOpcao(m_def, indice)).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void frmLinguagens::ValidarTexto()
{
    if (m_opcao < 0 || m_nome.isEmpty())
        return;
    AtualizarModelo(m_nome, m_def, m_opcao, txtLin->toPlainText(), m_ui);
}

void frmLinguagens::adicionar()
{
    if (!m_ui)
        return;
    ValidarTexto();
    const std::optional<QString> resposta =
        m_ui->Entrada(QStringLiteral("Digite o nome da nova linguagem:"), TituloNovaLinguagem, QString());
    if (!resposta)
        return;
    const std::optional<QString> nome = AdicionarLinguagem(*resposta, m_def, m_ui);
    if (!nome)
        return;
    m_opcao = -1;
    CarregarLin(*nome);
}

void frmLinguagens::remover()
{
    if (m_nome.isEmpty())
        return;
    ValidarTexto();
    if (!RemoverLinguagem(m_nome, m_ui))
        return;
    const int anterior = cmbLin->currentIndex();
    m_opcao = -1;
    m_nome.clear();
    m_carregando = true;
    cmbLin->removeItem(anterior);
    cmbLin->setCurrentIndex(cmbLin->count() == 0 ? -1 : std::min(anterior, cmbLin->count() - 1));
    m_carregando = false;
    selecionarLinguagem();
}

bool frmLinguagens::eventFilter(QObject *obj, QEvent *e)
{
    if (obj == txtLin && e->type() == QEvent::FocusOut)
        ValidarTexto();
    return QDialog::eventFilter(obj, e);
}

void frmLinguagens::done(int r)
{
    ValidarTexto();
    QDialog::done(r);
}

}  // namespace lumeta
