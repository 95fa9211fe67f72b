#include "output/Macros.h"

#include "output/TextoComandos.h"

#include <cmath>

namespace lumeta {

const std::array<MacroDef, 13> &TabelaMacros()
{
    static const std::array<MacroDef, 13> tabela = {{
        {"Página atual", "(%_pag_%)"},
        {"Número de páginas", "(%_pgs_%)"},
        {"Página atual (Formatado)", "(%_zpg_%)"},
        {"Número de páginas (Formatado)", "(%_zps_%)"},
        {"Dia da semana", "(%_sem_%)"},
        {"Nome do mês", "(%_msn_%)"},
        {"Dia", "(%_dia_%)"},
        {"Mês", "(%_mes_%)"},
        {"Ano", "(%_ano_%)"},
        {"Hora", "(%_hor_%)"},
        {"Minuto", "(%_min_%)"},
        {"Segundo", "(%_seg_%)"},
        {"Variável de cabeçalho e rodapé", ""},
    }};
    return tabela;
}

QString PerguntaVariavelMacro()
{
    return QStringLiteral(
        "Aqui você pode definir até 100 variáveis para usar no cabeçalho ou rodapé! Para atribuir valor grave no "
        "arquivo o número da variável e em seguida o valor.\nEx.: 01 Valor\n\nDigite o número da variável (00 até "
        "99):");
}

QString MacroVariavel(const QString &resposta)
{
    if (resposta.isEmpty())
        return QString();
    const QString dois = resposta.trimmed().left(2);
    int valor = 0;
    for (QChar c : dois) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            break;
        valor = valor * 10 + (c.unicode() - '0');
    }
    return QStringLiteral("(%_") + Numero(valor, 2) + QStringLiteral("_%)");
}

namespace {

QString Expandir(const QString &texto, int pagina, const QString &paginas, const QString &paginasFormatado,
                 const QDateTime &agora, const QLocale &local)
{
    // Most texts hold no macro at all; skip the twelve searches for them.
    if (!texto.contains(QLatin1String("(%_")))
        return texto;
    QString r = texto;
    const QDate hoje = agora.date();
    const QTime hora = agora.time();
    QString semana = local.dayName(hoje.dayOfWeek(), QLocale::LongFormat).toLower();
    if (!semana.isEmpty())
        semana[0] = semana[0].toUpper();
    const std::pair<const char *, QString> trocas[] = {
        {"(%_sem_%)", semana},
        {"(%_msn_%)", local.standaloneMonthName(hoje.month(), QLocale::LongFormat)},
        {"(%_dia_%)", Numero(hoje.day(), 2)},
        {"(%_mes_%)", Numero(hoje.month(), 2)},
        {"(%_ano_%)", Numero(hoje.year(), 4)},
        {"(%_hor_%)", Numero(hora.hour(), 2)},
        {"(%_min_%)", Numero(hora.minute(), 2)},
        {"(%_seg_%)", Numero(hora.second(), 2)},
        {"(%_pag_%)", QString::number(pagina)},
        {"(%_pgs_%)", paginas},
        {"(%_zpg_%)", Numero(pagina, 5)},
        {"(%_zps_%)", paginasFormatado},
    };
    for (const auto &[macro, valor] : trocas)
        r.replace(QLatin1String(macro), valor, Qt::CaseInsensitive);
    return r;
}

}  // namespace

QString ExpandirMacros(const QString &texto, int pagina, const QDateTime &agora, const QLocale &local)
{
    return Expandir(texto, pagina, QStringLiteral("10"), QStringLiteral("00010"), agora, local);
}

QString ExpandirMacros(const QString &texto, const ValoresMacros &v)
{
    if (!texto.contains(QLatin1String("(%_")))
        return texto;
    QString r;
    if (v.variaveis) {
        // Variables first, in one left-to-right pass, so a value that holds a
        // macro's text is printed as the host wrote it.
        r.reserve(texto.size());
        const QString paginas = QString::number(v.paginas), formatado = Numero(v.paginas, 5);
        qsizetype inicio = 0, busca = 0;
        for (;;) {
            const qsizetype p = texto.indexOf(QLatin1String("(%_"), busca);
            if (p < 0)
                break;
            busca = p + 3;
            const auto digito = [&](qsizetype k) { return texto[k] >= QLatin1Char('0') && texto[k] <= QLatin1Char('9'); };
            if (p + 8 > texto.size() || !digito(p + 3) || !digito(p + 4)
                || QStringView(texto).mid(p + 5, 3) != QLatin1String("_%)"))
                continue;
            r += Expandir(texto.mid(inicio, p - inicio), v.pagina, paginas, formatado, v.agora, v.local);
            r += v.variaveis->value((texto[p + 3].unicode() - '0') * 10 + (texto[p + 4].unicode() - '0'));
            inicio = busca = p + 8;
        }
        r += Expandir(texto.mid(inicio), v.pagina, paginas, formatado, v.agora, v.local);
        return r;
    }
    return Expandir(texto, v.pagina, QString::number(v.paginas), Numero(v.paginas, 5), v.agora, v.local);
}

namespace {

// Finds "<%_" + letter and the "_%>" closing it; returns the macro text, or an
// empty text when there is none or it is never closed (the rest is plain text).
QString proximaMacroCor(const QString &texto, QChar letra)
{
    const QString abre = QStringLiteral("<%_") + letra;
    const qsizetype p = texto.indexOf(abre, 0, Qt::CaseInsensitive);
    if (p < 0)
        return QString();
    const qsizetype f = texto.indexOf(QLatin1String("_%>"), p);
    if (f < 0)
        return QString();
    return texto.mid(p, f + 3 - p);
}

int componente(const QString &parte)
{
    const double v = parte.trimmed().toDouble();
    // Negative numbers wrap into 0..255 like the positive ones.
    const qint64 n = qint64(std::round(v));
    return int(((n % 256) + 256) % 256);
}

}  // namespace

CoresMacro MacroColor(const QString &texto)
{
    CoresMacro r;
    r.texto = texto;
    const QChar letras[] = {QLatin1Char('F'), QLatin1Char('T'), QLatin1Char('L')};
    int *destinos[] = {&r.fundo, &r.frente, &r.linha};
    for (int k = 0; k < 3; ++k) {
        for (;;) {
            const QString macro = proximaMacroCor(r.texto, letras[k]);
            if (macro.isEmpty())
                break;
            r.texto.remove(macro, Qt::CaseInsensitive);
            const QStringList partes = macro.mid(5, macro.size() - 8).split(QLatin1Char(','));
            if (partes.size() == 3)
                *destinos[k] = componente(partes[0]) + 256 * componente(partes[1]) + 65536 * componente(partes[2]);
        }
    }
    return r;
}

QString MacroColorRemover(const QString &texto, QChar letra)
{
    QString r = texto;
    for (;;) {
        const QString macro = proximaMacroCor(r, letra);
        if (macro.isEmpty())
            return r;
        r.remove(macro, Qt::CaseInsensitive);
    }
}

QString MontarMacroColor(QChar letra, int rgb)
{
    return QStringLiteral("<%_") + letra + QLatin1Char(',') + QString::number(rgb & 255) + QLatin1Char(',')
        + QString::number((rgb >> 8) & 255) + QLatin1Char(',') + QString::number((rgb >> 16) & 255)
        + QStringLiteral("_%>");
}

namespace {

struct Tag {
    const char *abre;
    const char *fecha;
    unsigned bit;
};
constexpr Tag kTags[] = {
    {"{n}", "{/n}", EstiloNegrito},
    {"{i}", "{/i}", EstiloItalico},
    {"{s}", "{/s}", EstiloSublinhado},
    {"{r}", "{/r}", EstiloTachado},
};

}  // namespace

PalavraEstilizada AplicarTags(const QString &palavra, unsigned &estado)
{
    PalavraEstilizada r{palavra, estado};
    if (!palavra.contains(QLatin1Char('{')))
        return r;
    unsigned fecha = 0;
    for (const Tag &t : kTags) {
        if (r.texto.contains(QLatin1String(t.abre), Qt::CaseInsensitive)) {
            r.estilo |= t.bit;
            r.texto.remove(QLatin1String(t.abre), Qt::CaseInsensitive);
        }
        if (r.texto.contains(QLatin1String(t.fecha), Qt::CaseInsensitive)) {
            fecha |= t.bit;
            r.texto.remove(QLatin1String(t.fecha), Qt::CaseInsensitive);
        }
    }
    estado = r.estilo & ~fecha;
    return r;
}

QString RemoverTags(const QString &texto)
{
    QString r = texto;
    if (!r.contains(QLatin1Char('{')))
        return r;
    for (const Tag &t : kTags) {
        r.remove(QLatin1String(t.abre), Qt::CaseInsensitive);
        r.remove(QLatin1String(t.fecha), Qt::CaseInsensitive);
    }
    return r;
}

}  // namespace lumeta
