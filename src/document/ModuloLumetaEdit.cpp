#include "document/ModuloLumetaEdit.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

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
    return comSeparador(QDir::tempPath());
}

QString PastaPrograma()
{
    return comSeparador(QCoreApplication::applicationDirPath());
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
