#include "dialogs/frmCodigoBarras.h"

#include "dialogs/ApoioDialogos.h"
#include "editing/Selecao.h"
#include "editing/ComandosDialogos.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace lumeta {

namespace {
// The preview box: room for the widest sample at one pixel per module.
constexpr int LarguraPrevia = 260;
constexpr int AlturaPrevia = 110;
}  // namespace

frmCodigoBarras::frmCodigoBarras(const ValoresCodigoBarras &valores, QWidget *pai)
    : QDialog(pai), m_valores(valores)
{
    setObjectName(QStringLiteral("frmCodigoBarras"));
    setWindowTitle(QStringLiteral("Alterar o Código de Barras"));

    auto *grupo = new QGroupBox(QStringLiteral("Tipo:"), this);
    auto *grade = new QGridLayout(grupo);
    int k = 0;
    const int porColuna = 6;
    for (uint8_t tipo : TiposDialogoCodigoBarras) {
        auto *opt = new QRadioButton(LegendaTipoCodigoBarras(tipo), grupo);
        opt->setObjectName(QStringLiteral("optTipo(%1)").arg(tipo));
        grade->addWidget(opt, k % porColuna, k / porColuna);
        optTipo.insert(tipo, opt);
        connect(opt, &QRadioButton::toggled, this, [this](bool ligado) {
            if (ligado)
                ExibirCodigoBarras();
        });
        EnterComoTab(opt);
        ++k;
    }

    picCodigoBarras = new QLabel(this);
    picCodigoBarras->setObjectName(QStringLiteral("picCodigoBarras"));
    picCodigoBarras->setToolTip(QStringLiteral("Exemplo"));
    picCodigoBarras->setAccessibleName(picCodigoBarras->toolTip());
    picCodigoBarras->setFixedSize(LarguraPrevia, AlturaPrevia);
    picCodigoBarras->setAlignment(Qt::AlignCenter);
    picCodigoBarras->setFrameShape(QFrame::StyledPanel);
    picCodigoBarras->setAutoFillBackground(true);
    QPalette pal = picCodigoBarras->palette();
    pal.setColor(QPalette::Window, Qt::white);
    picCodigoBarras->setPalette(pal);
    lblTitInfo = new QLabel(QStringLiteral("Caracteres válidos:"), this);
    lblTitInfo->setObjectName(QStringLiteral("lblTitInfo"));
    lblInfo = new QLabel(this);
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    lblInfo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblInfo->setTextFormat(Qt::PlainText);
    lblInfo->setMinimumHeight(lblInfo->fontMetrics().lineSpacing() * 4);

    // Hiding the info for the graph bar must not make the window jump.
    for (QLabel *l : {lblTitInfo, lblInfo}) {
        QSizePolicy sp = l->sizePolicy();
        sp.setRetainSizeWhenHidden(true);
        l->setSizePolicy(sp);
    }
    auto *direita = new QVBoxLayout;
    direita->addWidget(picCodigoBarras);
    direita->addWidget(lblTitInfo);
    direita->addWidget(lblInfo);
    direita->addStretch();

    auto *topo = new QHBoxLayout;
    topo->addWidget(grupo);
    topo->addLayout(direita);

    lblValor = new QLabel(QStringLiteral("Código de Barras:"), this);
    lblValor->setObjectName(QStringLiteral("lblValor"));
    // Its caption changes with the type; the column keeps the wider one.
    lblValor->setMinimumWidth(lblValor->fontMetrics().horizontalAdvance(QStringLiteral("Comando ou Variável:")));
    txtTexto = new QLineEdit(this);
    txtTexto->setObjectName(QStringLiteral("txtTexto"));
    lblValor->setBuddy(txtTexto);
    auto *lblComando = new QLabel(QStringLiteral("Comando ou Variável:"), this);
    lblComando->setObjectName(QStringLiteral("lblComando"));
    txtComando = new QLineEdit(this);
    txtComando->setObjectName(QStringLiteral("txtComando"));
    lblComando->setBuddy(txtComando);
    chkCaixaTexto = new QCheckBox(QStringLiteral("Usar a altura da banda (&Redimensionar)"), this);
    chkCaixaTexto->setObjectName(QStringLiteral("chkCaixaTexto"));
    for (QWidget *w : {static_cast<QWidget *>(txtTexto), static_cast<QWidget *>(txtComando),
                       static_cast<QWidget *>(chkCaixaTexto)})
        EnterComoTab(w);

    auto *campos = new QGridLayout;
    campos->addWidget(lblValor, 0, 0);
    campos->addWidget(txtTexto, 0, 1);
    campos->addWidget(lblComando, 1, 0);
    campos->addWidget(txtComando, 1, 1);
    campos->addWidget(chkCaixaTexto, 2, 1);

    btnOk = new QPushButton(QStringLiteral("&Ok"), this);
    btnOk->setObjectName(QStringLiteral("btnOk"));
    btnOk->setDefault(true);
    btnCancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
    btnCancelar->setObjectName(QStringLiteral("btnCancelar"));
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(btnOk);
    botoes->addWidget(btnCancelar);

    auto *raiz = new QVBoxLayout(this);
    raiz->addLayout(topo);
    raiz->addLayout(campos);
    raiz->addLayout(botoes);
    raiz->setSizeConstraint(QLayout::SetFixedSize);

    // Only one of the two fields holds the value: what the user types in one
    // empties the other (filling them here is not typing).
    connect(txtTexto, &QLineEdit::textEdited, this, [this] {
        txtComando->clear();
        ExibirCodigoBarras();
    });
    connect(txtComando, &QLineEdit::textEdited, this, [this] {
        txtTexto->clear();
        ExibirCodigoBarras();
    });
    connect(btnOk, &QPushButton::clicked, this, &frmCodigoBarras::confirmar);
    connect(btnCancelar, &QPushButton::clicked, this, &QDialog::reject);

    const CamposCodigoBarras c = SepararConteudo(valores.Conteudo);
    txtTexto->setText(c.texto);
    txtComando->setText(c.comando);
    chkCaixaTexto->setChecked(valores.AlturaBanda);
    QRadioButton *inicial = optTipo.value(valores.Tipo, optTipo.value(TipoEAN13));
    inicial->setChecked(true);
    ExibirCodigoBarras();
}

int frmCodigoBarras::TipoSelecionado() const
{
    for (auto it = optTipo.cbegin(); it != optTipo.cend(); ++it)
        if (it.value()->isChecked())
            return it.key();
    return TipoEAN13;
}

void frmCodigoBarras::ExibirCodigoBarras()
{
    const int tipo = TipoSelecionado();
    const bool grafico = tipo == TipoBarraGrafico;
    lblValor->setText(grafico ? QStringLiteral("Altura:") : QStringLiteral("Código de Barras:"));
    if (grafico)
        chkCaixaTexto->setChecked(false);
    chkCaixaTexto->setEnabled(!grafico);
    lblTitInfo->setVisible(!grafico);
    lblInfo->setVisible(!grafico);
    lblInfo->setText(CaracteresValidos(tipo));
    QPixmap px = QPixmap::fromImage(PreviaCodigoBarras(tipo));
    if (px.width() > LarguraPrevia - 8 || px.height() > AlturaPrevia - 8)
        px = px.scaled(LarguraPrevia - 8, AlturaPrevia - 8, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picCodigoBarras->setPixmap(px);
}

void frmCodigoBarras::confirmar()
{
    const int tipo = TipoSelecionado();
    QString texto = txtTexto->text();
    m_valores.Tipo = uint8_t(tipo);
    m_valores.BarraGrafico = tipo == TipoBarraGrafico;
    m_valores.Conteudo = ConteudoDosCampos(tipo, texto, txtComando->text());
    txtTexto->setText(texto);
    m_valores.AlturaBanda = chkCaixaTexto->isChecked();
    m_confirmado = true;
    accept();
}

bool AbrirCodigoBarras(SessaoEdicao &s, QWidget *pai)
{
    if (ItensAlvo(s).isEmpty())
        return false;
    frmCodigoBarras dlg(LerValoresCodigoBarras(s), pai);
    if (dlg.exec() != QDialog::Accepted || !dlg.Confirmado())
        return false;
    AplicarCodigoBarras(s, dlg.Valores());
    return true;
}

}  // namespace lumeta
