#include "controls/ui/CommonDialogCls.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>

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

}  // namespace

QString CommonDialogCls::GetSaveName(const QString &titulo, const QString &filtro, const QString &nomeInicial,
                                     const QString &extensaoPadrao, QWidget *dono)
{
    QFileDialog d(dono);
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
    const QString escolhido = d.selectedFiles().first();
    // The folder of the chosen name must exist; the dialog lets a typed one through.
    if (!QFileInfo(escolhido).absoluteDir().exists())
        return QString();
    return escolhido;
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

bool CommonDialogCls::GetFont(FonteDialogo &fonte, QWidget *dono)
{
    QFont inicial(fonte.Nome.isEmpty() ? QStringLiteral("Arial") : fonte.Nome);
    inicial.setPointSizeF(fonte.Tamanho > 0 ? fonte.Tamanho : 10);
    inicial.setWeight(fonte.Negrito ? QFont::Bold : QFont::Normal);
    inicial.setItalic(fonte.Italico);
    inicial.setUnderline(fonte.Sublinhado);
    inicial.setStrikeOut(fonte.Tachado);
    QFontDialog d(inicial, dono);
    d.setOption(QFontDialog::ScalableFonts, false);
    if (d.exec() != QDialog::Accepted)
        return false;
    const QFont f = d.selectedFont();
    fonte.Nome = f.family();
    fonte.Tamanho = f.pointSizeF();
    fonte.Negrito = f.weight() >= QFont::Bold;
    fonte.Italico = f.italic();
    fonte.Sublinhado = f.underline();
    fonte.Tachado = f.strikeOut();
    return true;
}

}  // namespace lumeta
