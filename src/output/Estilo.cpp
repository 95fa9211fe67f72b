#include "output/Estilo.h"

namespace lumeta {

namespace {

QString abertura(QChar letra) { return QStringLiteral("{") + letra + QLatin1Char('}'); }
QString fechamento(QChar letra) { return QStringLiteral("{/") + letra + QLatin1Char('}'); }

bool separaPalavras(QChar c) { return c == u' ' || c == u'\n' || c == u'\r'; }

}  // namespace

QString TextoParaEstilo(const QString &texto)
{
    QString t = texto;
    return t.replace(QStringLiteral("{e}"), QStringLiteral("\n"), Qt::CaseSensitive);
}

QString TextoDoEstilo(const QString &caixa)
{
    QString t = caixa;
    t.replace(QStringLiteral("\r\n"), QStringLiteral("{e}"));
    t.replace(QLatin1Char('\n'), QStringLiteral("{e}"));
    return t.replace(QLatin1Char('\t'), QString(8, QLatin1Char(' ')));
}

bool EstiloAberto(const QString &texto, qsizetype pos, QChar letra)
{
    const QString antes = texto.left(pos);
    return antes.lastIndexOf(abertura(letra), -1, Qt::CaseInsensitive)
        > antes.lastIndexOf(fechamento(letra), -1, Qt::CaseInsensitive);
}

bool EstiloPressionado(const QString &texto, qsizetype inicio, qsizetype fim, QChar letra)
{
    return EstiloAberto(texto, inicio, letra) || EstiloAberto(texto, fim, letra);
}

std::optional<EdicaoEstilo> AplicarEstilo(const QString &texto, qsizetype inicio, qsizetype fim, QChar letra,
                                          bool ligar)
{
    if (inicio > fim)
        std::swap(inicio, fim);
    inicio = std::clamp<qsizetype>(inicio, 0, texto.size());
    fim = std::clamp<qsizetype>(fim, 0, texto.size());
    while (fim < texto.size() && !separaPalavras(texto[fim]))
        ++fim;
    while (inicio > 0 && !separaPalavras(texto[inicio - 1]))
        --inicio;
    if (inicio == fim)
        return std::nullopt;

    QString palavras = texto.mid(inicio, fim - inicio);
    QString antes, depois;
    if (ligar) {
        antes = abertura(letra);
        depois = fechamento(letra);
    } else {
        palavras.remove(abertura(letra), Qt::CaseInsensitive);
        palavras.remove(fechamento(letra), Qt::CaseInsensitive);
        if (EstiloAberto(texto, inicio, letra))
            antes = fechamento(letra) + QLatin1Char(' ');
        if (EstiloAberto(texto, fim, letra) && fim < texto.size())
            depois = QLatin1Char(' ') + abertura(letra);
    }
    EdicaoEstilo r;
    r.texto = texto.left(inicio) + antes + palavras + depois + texto.mid(fim);
    r.inicio = inicio + antes.size();
    r.fim = r.inicio + palavras.size();
    return r;
}

}  // namespace lumeta
