#include "document/ModuloLumetaEdit.h"

#include "document/ArquivoDisco.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <unistd.h>

namespace lumeta {

namespace {

QString comSeparador(QString pasta)
{
    if (!pasta.endsWith(QLatin1Char('/')) && !pasta.endsWith(QLatin1Char('\\')))
        pasta += QLatin1Char('/');
    return pasta;
}

}  // namespace

QString PastaTemporaria()
{
    const QString execucao = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(execucao) && PastaPrivada(execucao))
        return comSeparador(QDir::cleanPath(execucao));
    const QString base =
        QDir(QDir::tempPath()).filePath(QStringLiteral("lumetaedit-") + QString::number(::geteuid()));
    for (int i = 0; i < 10; ++i) {
        const QString pasta = i == 0 ? base : base + QLatin1Char('-') + QString::number(i);
        const QFileInfo info(pasta);
        if ((!info.exists() && !info.isSymLink()) || PastaPrivada(pasta))
            return comSeparador(pasta);
    }
    // Every name is taken by someone else: writes there are refused with a
    // message, and nothing there is read.
    return comSeparador(base);
}

QString PastaPrograma()
{
    return comSeparador(QCoreApplication::applicationDirPath());
}

QString PastaRecursos()
{
    const QString pasta = qEnvironmentVariable(VariavelPastaRecursos);
    return pasta.isEmpty() ? PastaPrograma() : comSeparador(pasta);
}

QString CaminhoLongo(const QString &caminho)
{
    if (caminho.isEmpty())
        return caminho;
    const QString absoluto = QDir::cleanPath(QFileInfo(QDir::fromNativeSeparators(caminho)).absoluteFilePath());
    const QStringList partes = absoluto.split(QLatin1Char('/'));
    // The first part is the root ("" on Unix, the drive elsewhere).
    QString resultado = partes.first();
    bool existe = true;
    for (qsizetype i = 1; i < partes.size(); ++i) {
        const QString &parte = partes[i];
        QString nome = parte;
        if (existe && !parte.isEmpty()) {
            const QDir pasta(resultado.isEmpty() ? QStringLiteral("/") : resultado + QLatin1Char('/'));
            if (!QFileInfo::exists(pasta.filePath(parte))) {
                existe = false;
            } else {
                // On a case-insensitive volume the entry may be stored in
                // another case than typed: take the stored spelling.
                const QStringList entradas = pasta.entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
                if (!entradas.contains(parte)) {
                    for (const QString &e : entradas)
                        if (e.compare(parte, Qt::CaseInsensitive) == 0) {
                            nome = e;
                            break;
                        }
                }
            }
        }
        resultado += QLatin1Char('/') + nome;
    }
    return resultado;
}

QString NomeDoArquivo(const QString &caminho)
{
    const qsizetype p = std::max(caminho.lastIndexOf(QLatin1Char('/')), caminho.lastIndexOf(QLatin1Char('\\')));
    return caminho.mid(p + 1);
}

}  // namespace lumeta
