#include "controls/ui/CommonDialogCls.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QDoubleValidator>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace lumeta {

QStringList CommonDialogCls::FiltrosQt(const QString &filtro)
{
    QStringList resultado;
    const QStringList partes = filtro.split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QString padroes = partes[i + 1];
        padroes.replace(QLatin1Char(';'), QLatin1Char(' '));
        resultado << partes[i] + QStringLiteral(" (") + padroes.simplified() + QLatin1Char(')');
    }
    if (resultado.isEmpty())
        resultado << QStringLiteral("(*)");
    return resultado;
}

namespace {

void prepararArquivo(QFileDialog &d, const QString &titulo, const QString &filtro, const QString &nomeInicial)
{
    d.setWindowTitle(titulo);
    d.setOption(QFileDialog::HideNameFilterDetails, true);
    d.setOption(QFileDialog::ReadOnly, false);
    const QStringList filtros = CommonDialogCls::FiltrosQt(filtro);
    d.setNameFilters(filtros);
    d.selectNameFilter(filtros.first());
    if (!nomeInicial.isEmpty()) {
        const QFileInfo f(nomeInicial);
        if (f.isAbsolute() || nomeInicial.contains(QLatin1Char('/')))
            d.setDirectory(f.absolutePath());
        else
            d.setDirectory(QDir::currentPath());
        d.selectFile(f.fileName());
    } else {
        d.setDirectory(QDir::currentPath());
    }
}

// A refused name keeps the dialog open with the reason, as the system's save
// dialog does, instead of closing it as if the user had cancelled.
class DialogoSalvar : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    void accept() override
    {
        const QStringList escolhidos = selectedFiles();
        if (escolhidos.size() == 1 && !QFileInfo(escolhidos.first()).isDir()) {
            const QString recusa = CommonDialogCls::RecusaSalvar(escolhidos.first());
            if (!recusa.isEmpty()) {
                QMessageBox::warning(this, windowTitle(), recusa);
                return;
            }
        }
        QFileDialog::accept();
    }
};

}  // namespace

// The font chooser. Qt's own dialog knows only installed families, and the
// layouts name "Arial", "Times New Roman" and "Courier New", which this
// platform draws with metric-compatible families: for those names it offered
// made-up styles without bold. Here each of the three names stands for its
// twin's real styles, and the name itself is what the item keeps.
namespace {

struct Gemea {
    const char *nome;
    const char *familia;
};
constexpr Gemea Gemeas[] = {
    {"Arial", "Liberation Sans"},
    {"Times New Roman", "Liberation Serif"},
    {"Courier New", "Liberation Mono"},
};

// The family that draws `nome`: itself when installed, else its twin when
// that is, else whatever the system matches it to.
QString familiaQueDesenha(const QString &nome)
{
    const QStringList instaladas = QFontDatabase::families();
    if (instaladas.contains(nome, Qt::CaseInsensitive))
        return nome;
    for (const Gemea &g : Gemeas)
        if (nome.compare(QLatin1String(g.nome), Qt::CaseInsensitive) == 0
            && instaladas.contains(QLatin1String(g.familia)))
            return QLatin1String(g.familia);
    return QFontInfo(QFont(nome)).family();
}

struct EstiloFonte {
    QString legenda;
    bool negrito;
    bool italico;
};

// The bold and italic combinations the family really has, in the order of
// the system's font dialog.
QList<EstiloFonte> estilosDe(const QString &familia)
{
    bool tem[2][2] = {};
    for (const QString &e : QFontDatabase::styles(familia))
        tem[QFontDatabase::weight(familia, e) >= QFont::Bold][QFontDatabase::italic(familia, e)] = true;
    tem[0][0] = true;
    const EstiloFonte todos[] = {{QStringLiteral("Normal"), false, false},
                                 {QStringLiteral("Itálico"), false, true},
                                 {QStringLiteral("Negrito"), true, false},
                                 {QStringLiteral("Negrito Itálico"), true, true}};
    QList<EstiloFonte> r;
    for (const EstiloFonte &e : todos)
        if (tem[e.negrito][e.italico])
            r.append(e);
    return r;
}

QString textoTamanho(double t)
{
    return QLocale().toString(t, 'g', 4);
}

class DialogoFonte : public QDialog {
public:
    DialogoFonte(const FonteDialogo &inicial, bool soImpressao, QWidget *dono) : QDialog(dono), m_fonte(inicial)
    {
        setObjectName(QStringLiteral("frmFonte"));
        setWindowTitle(QStringLiteral("Fonte"));
        if (m_fonte.Nome.isEmpty())
            m_fonte.Nome = QStringLiteral("Arial");
        if (m_fonte.Tamanho <= 0)
            m_fonte.Tamanho = 10;

        txtFonte = caixa("txtFonte");
        lstFonte = lista("lstFonte", QStringLiteral("Fonte:"));
        txtEstilo = caixa("txtEstilo");
        txtEstilo->setReadOnly(true);
        lstEstilo = lista("lstEstilo", QStringLiteral("Estilo da fonte:"));
        txtTamanho = caixa("txtTamanho");
        txtTamanho->setValidator(new QDoubleValidator(1, 1638, 1, txtTamanho));
        lstTamanho = lista("lstTamanho", QStringLiteral("Tamanho:"));
        chkSublinhado = new QCheckBox(QStringLiteral("&Sublinhado"), this);
        chkSublinhado->setObjectName(QStringLiteral("chkSublinhado"));
        chkTachado = new QCheckBox(QStringLiteral("&Tachado"), this);
        chkTachado->setObjectName(QStringLiteral("chkTachado"));
        lblExemplo = new QLabel(QStringLiteral("AaBbYyZz"), this);
        lblExemplo->setObjectName(QStringLiteral("lblExemplo"));
        lblExemplo->setAlignment(Qt::AlignCenter);
        lblExemplo->setMinimumSize(200, 60);

        QStringList familias;
        for (const QString &f : QFontDatabase::families())
            if (!QFontDatabase::isPrivateFamily(f) && (!soImpressao || QFontDatabase::isScalable(f)))
                familias << f;
        for (const Gemea &g : Gemeas)
            if (familias.contains(QLatin1String(g.familia)) && !familias.contains(QLatin1String(g.nome)))
                familias << QLatin1String(g.nome);
        familias.sort(Qt::CaseInsensitive);
        lstFonte->addItems(familias);
        for (int t : QFontDatabase::standardSizes())
            lstTamanho->addItem(QString::number(t));

        auto *grade = new QGridLayout;
        const std::tuple<const char *, QLineEdit *, QListWidget *> colunas[] = {
            {"&Fonte:", txtFonte, lstFonte}, {"&Estilo da fonte:", txtEstilo, lstEstilo},
            {"Ta&manho:", txtTamanho, lstTamanho}};
        int c = 0;
        for (const auto &[legenda, txt, lst] : colunas) {
            auto *rot = new QLabel(QString::fromUtf8(legenda), this);
            rot->setBuddy(txt);
            QString nome = rot->text();
            nome.remove(QLatin1Char('&'));
            txt->setAccessibleName(nome);
            grade->addWidget(rot, 0, c);
            grade->addWidget(txt, 1, c);
            grade->addWidget(lst, 2, c);
            ++c;
        }
        grade->setColumnStretch(0, 3);
        grade->setColumnStretch(1, 2);
        grade->setColumnStretch(2, 1);
        auto *efeitos = new QGroupBox(QStringLiteral("Efeitos"), this);
        auto *lEfeitos = new QVBoxLayout(efeitos);
        lEfeitos->addWidget(chkSublinhado);
        lEfeitos->addWidget(chkTachado);
        auto *exemplo = new QGroupBox(QStringLiteral("Exemplo"), this);
        auto *lExemplo = new QVBoxLayout(exemplo);
        lExemplo->addWidget(lblExemplo);
        grade->addWidget(efeitos, 3, 0);
        grade->addWidget(exemplo, 3, 1, 1, 2);
        auto *btnOk = new QPushButton(QStringLiteral("&Ok"), this);
        btnOk->setObjectName(QStringLiteral("btnOk"));
        btnOk->setDefault(true);
        auto *btnCancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
        btnCancelar->setObjectName(QStringLiteral("btnCancelar"));
        connect(btnOk, &QPushButton::clicked, this, &QDialog::accept);
        connect(btnCancelar, &QPushButton::clicked, this, &QDialog::reject);
        auto *botoes = new QHBoxLayout;
        botoes->addStretch(1);
        botoes->addWidget(btnOk);
        botoes->addWidget(btnCancelar);
        auto *l = new QVBoxLayout(this);
        l->addLayout(grade);
        l->addLayout(botoes);

        // The starting font: a name the system lacks stays in the box, with
        // no entry chosen, until the user picks another family.
        txtFonte->setText(m_fonte.Nome);
        selecionarTexto(lstFonte, m_fonte.Nome);
        txtTamanho->setText(textoTamanho(m_fonte.Tamanho));
        selecionarTexto(lstTamanho, QString::number(m_fonte.Tamanho));
        chkSublinhado->setChecked(m_fonte.Sublinhado);
        chkTachado->setChecked(m_fonte.Tachado);
        carregarEstilos();

        // Only a family the user chooses replaces the name: the list taking
        // the focus makes its first entry current without choosing it, and
        // a name the system lacks would be lost.
        connect(lstFonte, &QListWidget::itemSelectionChanged, this, [this] {
            const QList<QListWidgetItem *> escolhidas = lstFonte->selectedItems();
            if (escolhidas.isEmpty())
                return;
            const QString f = escolhidas.first()->text();
            m_fonte.Nome = f;
            txtFonte->setText(f);
            carregarEstilos();
        });
        connect(txtFonte, &QLineEdit::textEdited, this, [this](const QString &t) {
            selecionarTexto(lstFonte, t.trimmed());
            if (!t.trimmed().isEmpty())
                m_fonte.Nome = t.trimmed();
            carregarEstilos();
        });
        connect(lstEstilo, &QListWidget::currentRowChanged, this, [this](int k) {
            if (k < 0 || k >= m_estilos.size())
                return;
            m_fonte.Negrito = m_estilos[k].negrito;
            m_fonte.Italico = m_estilos[k].italico;
            txtEstilo->setText(m_estilos[k].legenda);
            exibirExemplo();
        });
        connect(lstTamanho, &QListWidget::currentTextChanged, this, [this](const QString &t) {
            if (t.isEmpty())
                return;
            m_fonte.Tamanho = t.toDouble();
            txtTamanho->setText(t);
            exibirExemplo();
        });
        connect(txtTamanho, &QLineEdit::textEdited, this, [this](const QString &t) {
            bool ok = false;
            const double v = QLocale().toDouble(t, &ok);
            if (ok && v > 0) {
                m_fonte.Tamanho = v;
                selecionarTexto(lstTamanho, QString::number(v));
                exibirExemplo();
            }
        });
        for (QCheckBox *chk : {chkSublinhado, chkTachado})
            connect(chk, &QCheckBox::toggled, this, [this] {
                m_fonte.Sublinhado = chkSublinhado->isChecked();
                m_fonte.Tachado = chkTachado->isChecked();
                exibirExemplo();
            });
        txtFonte->setFocus();
    }

    FonteDialogo Escolhida() const { return m_fonte; }

private:
    QLineEdit *caixa(const char *nome)
    {
        auto *e = new QLineEdit(this);
        e->setObjectName(QString::fromLatin1(nome));
        return e;
    }
    QListWidget *lista(const char *nome, const QString &rotulo)
    {
        auto *l = new QListWidget(this);
        l->setObjectName(QString::fromLatin1(nome));
        l->setAccessibleName(rotulo);
        return l;
    }
    static void selecionarTexto(QListWidget *l, const QString &texto)
    {
        const QSignalBlocker calado(l);
        const QList<QListWidgetItem *> achados = l->findItems(texto, Qt::MatchFixedString);
        l->setCurrentItem(achados.isEmpty() ? nullptr : achados.first());
        if (achados.isEmpty())
            l->clearSelection();
        else
            l->scrollToItem(achados.first());
    }

    void carregarEstilos()
    {
        m_estilos = estilosDe(familiaQueDesenha(m_fonte.Nome));
        const QSignalBlocker calado(lstEstilo);
        lstEstilo->clear();
        int atual = 0;
        for (int k = 0; k < m_estilos.size(); ++k) {
            lstEstilo->addItem(m_estilos[k].legenda);
            if (m_estilos[k].negrito == m_fonte.Negrito && m_estilos[k].italico == m_fonte.Italico)
                atual = k;
        }
        lstEstilo->setCurrentRow(atual);
        m_fonte.Negrito = m_estilos[atual].negrito;
        m_fonte.Italico = m_estilos[atual].italico;
        txtEstilo->setText(m_estilos[atual].legenda);
        exibirExemplo();
    }

    void exibirExemplo()
    {
        QFont f(familiaQueDesenha(m_fonte.Nome));
        f.setPointSizeF(qBound(1.0, m_fonte.Tamanho, 72.0));
        f.setWeight(m_fonte.Negrito ? QFont::Bold : QFont::Normal);
        f.setItalic(m_fonte.Italico);
        f.setUnderline(m_fonte.Sublinhado);
        f.setStrikeOut(m_fonte.Tachado);
        lblExemplo->setFont(f);
    }

    FonteDialogo m_fonte;
    QList<EstiloFonte> m_estilos;
    QLineEdit *txtFonte, *txtEstilo, *txtTamanho;
    QListWidget *lstFonte, *lstEstilo, *lstTamanho;
    QCheckBox *chkSublinhado, *chkTachado;
    QLabel *lblExemplo;
};

}  // namespace

QString CommonDialogCls::RecusaSalvar(const QString &caminho)
{
    const QFileInfo f(caminho);
    if (!f.absoluteDir().exists())
        return QStringLiteral("%1\nCaminho não encontrado.\nVerifique se o caminho correto foi fornecido.")
            .arg(f.fileName());
    // A file without any write permission is read-only even for a user
    // (root) who could still write it.
    constexpr QFileDevice::Permissions escrita = QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    if (f.exists() && !f.isDir() && (!f.isWritable() || !(f.permissions() & escrita)))
        return QStringLiteral("%1\nEste arquivo é somente leitura.\nTente novamente com outro nome de arquivo.")
            .arg(f.fileName());
    return QString();
}

QString CommonDialogCls::GetSaveName(const QString &titulo, const QString &filtro, const QString &nomeInicial,
                                     const QString &extensaoPadrao, QWidget *dono)
{
    // Qt's own dialog, so that refusals keep it open wherever the editor runs.
    DialogoSalvar d(dono);
    d.setOption(QFileDialog::DontUseNativeDialog, true);
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setFileMode(QFileDialog::AnyFile);
    d.setOption(QFileDialog::DontConfirmOverwrite, false);
    prepararArquivo(d, titulo.isEmpty() ? QStringLiteral("Salvar como") : titulo, filtro, nomeInicial);
    QString ext = extensaoPadrao;
    if (ext.startsWith(QLatin1Char('.')))
        ext.remove(0, 1);
    d.setDefaultSuffix(ext);
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty())
        return QString();
    return d.selectedFiles().first();
}

QString CommonDialogCls::GetOpenName(const QString &titulo, const QString &filtro, const QString &nomeInicial,
                                     QWidget *dono)
{
    QFileDialog d(dono);
    d.setAcceptMode(QFileDialog::AcceptOpen);
    d.setFileMode(QFileDialog::ExistingFile);
    prepararArquivo(d, titulo.isEmpty() ? QStringLiteral("Abrir") : titulo, filtro, nomeInicial);
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty())
        return QString();
    return d.selectedFiles().first();
}

int CommonDialogCls::PickColor(int corInicial, QWidget *dono)
{
    QColorDialog d(dono);
    d.setOption(QColorDialog::DontUseNativeDialog, false);
    d.setCurrentColor(corInicial < 0 ? QColor(Qt::black) : BGRParaCor(corInicial));
    if (d.exec() != QDialog::Accepted)
        return -1;
    return CorParaBGR(d.selectedColor());
}

bool CommonDialogCls::GetFont(FonteDialogo &fonte, QWidget *dono, bool soImpressao)
{
    DialogoFonte d(fonte, soImpressao, dono);
    if (d.exec() != QDialog::Accepted)
        return false;
    fonte = d.Escolhida();
    return true;
}

}  // namespace lumeta
