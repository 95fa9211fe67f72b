#include "app/gui/AvisosQt.h"

#include <cstdio>
#include <cstdlib>

namespace lumeta {

QString LimiteAvisos::Filtrar(const QString &mensagem)
{
    // Numbers of any length count as one and the same.
    QString chave;
    for (const QChar c : QStringView(mensagem).left(200))
        if (!c.isDigit())
            chave += c;
        else if (!chave.endsWith(QLatin1Char('#')))
            chave += QLatin1Char('#');
    QMutexLocker trava(&m_trava);
    if (m_total >= TotalMostrado)
        return {};
    const int vezes = ++m_vistas[chave];
    if (vezes > RepeticoesMostradas + 1)
        return {};
    ++m_total;
    if (vezes == RepeticoesMostradas + 1)
        return QStringLiteral("(repetições desta mensagem omitidas) ") + mensagem.left(200);
    return mensagem;
}

void InstalarLimiteAvisos()
{
    static LimiteAvisos limite;
    qInstallMessageHandler([](QtMsgType tipo, const QMessageLogContext &, const QString &msg) {
        const QString texto = tipo == QtFatalMsg ? msg : limite.Filtrar(msg);
        if (!texto.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(texto));
            std::fflush(stderr);
        }
        if (tipo == QtFatalMsg)
            std::abort();
    });
}

}  // namespace lumeta
