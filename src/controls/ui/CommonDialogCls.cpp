#include "controls/ui/CommonDialogCls.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMessageBox>

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
    const QString nome = fonte.Nome.isEmpty() ? QStringLiteral("Arial") : fonte.Nome;
    QFont inicial(nome);
    inicial.setPointSizeF(fonte.Tamanho > 0 ? fonte.Tamanho : 10);
    inicial.setWeight(fonte.Negrito ? QFont::Bold : QFont::Normal);
    inicial.setItalic(fonte.Italico);
    inicial.setUnderline(fonte.Sublinhado);
    inicial.setStrikeOut(fonte.Tachado);
    QFontDialog d(inicial, dono);
    d.setOption(QFontDialog::ScalableFonts, soImpressao);
    // A family that is not installed (Arial on most Linux systems) is matched
    // to another one: the dialog shows the given name and keeps it unless
    // the user picks another family.
    const QString casada = d.currentFont().family();
    if (casada != nome) {
        for (QLineEdit *campo : d.findChildren<QLineEdit *>())
            if (campo->text() == casada) {
                campo->setText(nome);
                break;
            }
    }
    if (d.exec() != QDialog::Accepted)
        return false;
    const QFont f = d.selectedFont();
    fonte.Nome = f.family() == casada ? nome : f.family();
    fonte.Tamanho = f.pointSizeF();
    fonte.Negrito = f.weight() >= QFont::Bold;
    fonte.Italico = f.italic();
    fonte.Sublinhado = f.underline();
    fonte.Tachado = f.strikeOut();
    return true;
}

}  // namespace lumeta
