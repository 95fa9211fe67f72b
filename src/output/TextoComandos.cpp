#include "output/TextoComandos.h"

#include <cmath>

namespace lumeta {

namespace {

const QString kAspas = QStringLiteral("\"0\"");

void fimLinha(clsConcatenarString &s)
{
    s.Add(QLatin1StringView("\r\n"));
}

void linhaSimples(clsConcatenarString &s, const char *codigo)
{
    s.Add(QLatin1StringView(codigo));
    fimLinha(s);
}

}  // namespace

void AcrescentarNumero(clsConcatenarString &s, qint64 valor, int largura)
{
    QChar buf[24];
    int n = 0;
    quint64 mag = valor < 0 ? quint64(-(valor + 1)) + 1 : quint64(valor);
    char16_t digitos[24];
    int d = 0;
    do {
        digitos[d++] = char16_t(u'0' + mag % 10);
        mag /= 10;
    } while (mag);
    if (valor < 0)
        buf[n++] = QLatin1Char('-');
    for (int i = d; i < largura; ++i)
        buf[n++] = QLatin1Char('0');
    while (d)
        buf[n++] = QChar(digitos[--d]);
    s.Add(buf, n);
}

QString Numero(qint64 valor, int largura)
{
    clsConcatenarString s;
    s.setBufferIncrement(24);
    AcrescentarNumero(s, valor, largura);
    return s.ResultString();
}

QChar LetraCodigoBarras(int tipo)
{
    return tipo < 80 ? QChar(char16_t(tipo % 10 + 96)) : QChar(char16_t(tipo % 10 + 48));
}

QString ValorItem(const Item &item)
{
    if (item.Texto.startsWith(QLatin1Char('"'))) {
        QString v = item.Texto;
        return v.remove(QLatin1Char('"'));
    }
    switch (item.Tipo) {
    case TipoFigura:
        return QString();
    case TipoBarraGrafico:
        return QStringLiteral("10");
    default:
        return QStringLiteral("1234567890");
    }
}

double NumeroInicial(const QString &texto)
{
    qsizetype i = 0;
    const qsizetype n = texto.size();
    while (i < n && (texto[i] == QLatin1Char(' ') || texto[i] == QLatin1Char('\t')))
        ++i;
    QString num;
    if (i < n && (texto[i] == QLatin1Char('-') || texto[i] == QLatin1Char('+')))
        num += texto[i++];
    bool ponto = false;
    bool digito = false;
    for (; i < n; ++i) {
        const QChar c = texto[i];
        if (c.isDigit() && c.unicode() < 128) {
            num += c;
            digito = true;
        } else if (c == QLatin1Char('.') && !ponto) {
            num += c;
            ponto = true;
        } else {
            break;
        }
    }
    if (!digito)
        return 0;
    return num.toDouble();
}

qint64 Arredondar(double v)
{
    return qint64(std::round(v));
}

QString ValorMargem(const QString &margem)
{
    if (margem.startsWith(QLatin1Char('"'))) {
        QString semAspas = margem;
        semAspas.remove(QLatin1Char('"'));
        return Numero(Arredondar(NumeroInicial(semAspas)), 3);
    }
    return margem;
}

bool TemLinhaL(const Item &item)
{
    return item.Tipo != TipoBarraGrafico
        && (item.Linhas != QLatin1String("0000000000") || item.CorFundo != CorTransparente);
}

void GerarTextoComandos(const LayoutDocumento &doc, clsConcatenarString &s)
{
    s.Esvaziar();
    if (!doc.NomeImpressora.isEmpty()) {
        s.Add(QLatin1StringView("I "));
        s.Add(doc.NomeImpressora);
        fimLinha(s);
    }
    const std::pair<const char *, const QString *> margens[] = {
        {"MS ", &doc.MargemSuperior}, {"ME ", &doc.MargemEsquerda}, {"MI ", &doc.MargemInferior}};
    for (const auto &[codigo, margem] : margens) {
        if (*margem == kAspas)
            continue;
        s.Add(QLatin1StringView(codigo));
        s.Add(ValorMargem(*margem));
        fimLinha(s);
    }
    switch (doc.TipoEmail) {
    case 2:
        linhaSimples(s, "EE");
        break;
    case 3:
        linhaSimples(s, "EG");
        break;
    case 4:
        s.Add(QLatin1StringView("EP "));
        AcrescentarNumero(s, doc.QualidadeJPG, 0);
        fimLinha(s);
        break;
    case 5:
        linhaSimples(s, "EW");
        break;
    default:
        s.Add(QLatin1StringView("QJ "));
        AcrescentarNumero(s, doc.QualidadeJPG, 0);
        fimLinha(s);
        break;
    }
    if (!doc.TextoEmail.isEmpty()) {
        s.Add(QLatin1StringView("ET "));
        s.Add(doc.TextoEmail);
        fimLinha(s);
    }
    if (doc.Paisagem)
        linhaSimples(s, "IP");
    if (doc.Imprimir)
        linhaSimples(s, "IR");
    if (doc.Visivel)
        linhaSimples(s, "SV");
    if (doc.TemCapa)
        linhaSimples(s, "TC");
    if (doc.EnviarEmail)
        linhaSimples(s, "E ");

    // The empty font differs from any real one, so the first item always
    // writes its font; the current font carries over from band to band.
    FonteItem corrente{QString(), 0, false, false, false, false};
    for (int b = 1; b <= doc.NumBandas(); ++b) {
        const Banda &banda = doc.banda(b);
        if (doc.QuebraPaginaSeek(b))
            linhaSimples(s, "QP");
        for (const Item &it : banda.Itens) {
            if (FonteDiferente(it.Fonte, corrente)) {
                s.Add(QLatin1StringView("F "));
                AcrescentarNumero(s, it.Fonte.Tamanho, 2);
                s.Add(Booleano(it.Fonte.Negrito));
                s.Add(Booleano(it.Fonte.Italico));
                s.Add(Booleano(it.Fonte.Sublinhado));
                s.Add(Booleano(it.Fonte.Tachado));
                s.Add(it.Fonte.Nome);
                fimLinha(s);
                corrente = it.Fonte;
            }
            if (TemLinhaL(it)) {
                s.Add(QLatin1StringView("L "));
                AcrescentarNumero(s, it.CorLinha, 2);
                AcrescentarNumero(s, it.CorFundo, 2);
                AcrescentarNumero(s, it.Esquerda, 5);
                AcrescentarNumero(s, it.Largura, 5);
                s.Add(it.Linhas);
                AcrescentarNumero(s, it.Espessura, 2);
                fimLinha(s);
            }
            const bool visivel = !it.Texto.isEmpty() && it.Largura >= 5;
            if (it.Tipo == TipoFigura) {
                s.Add(QLatin1StringView("G 0099"));
                AcrescentarNumero(s, it.Esquerda, 5);
                AcrescentarNumero(s, it.Largura, 5);
                s.Add(it.Atributos);
                s.Add(ValorItem(it));
                fimLinha(s);
            } else if (EhCodigoBarras(it.Tipo)) {
                if (visivel) {
                    s.Add(QLatin1Char('B'));
                    s.Add(LetraCodigoBarras(it.Tipo));
                    s.Add(QLatin1StringView("0099"));
                    AcrescentarNumero(s, it.Esquerda, 5);
                    AcrescentarNumero(s, it.Largura, 5);
                    s.Add(it.Atributos);
                    s.Add(ValorItem(it));
                    fimLinha(s);
                }
            } else if (it.Tipo == TipoBarraGrafico) {
                if (visivel) {
                    s.Add(QLatin1StringView("LG"));
                    AcrescentarNumero(s, it.CorTexto, 2);
                    AcrescentarNumero(s, it.CorFundo, 2);
                    AcrescentarNumero(s, it.Esquerda, 5);
                    AcrescentarNumero(s, it.Largura, 5);
                    s.Add(it.Atributos);
                    s.Add(ValorItem(it));
                    fimLinha(s);
                }
            } else if (visivel) {
                // The text sits 2 pixels inside the cell on each side.
                s.Add(QLatin1StringView("T "));
                AcrescentarNumero(s, it.CorTexto, 2);
                s.Add(QLatin1StringView("99"));
                AcrescentarNumero(s, qint64(it.Esquerda) + 2, 5);
                AcrescentarNumero(s, qint64(it.Largura) - 4, 5);
                s.Add(it.Atributos);
                s.Add(it.Texto);
                fimLinha(s);
            }
        }
        if (b >= 2 && banda.Deslocamento != 0) {
            s.Add(QLatin1StringView("RT "));
            AcrescentarNumero(s, banda.Deslocamento, banda.Deslocamento < 0 ? 4 : 5);
            fimLinha(s);
        }
        s.Add(QLatin1StringView("RH "));
        AcrescentarNumero(s, banda.Altura < 1 ? 0 : banda.Altura, 5);
        fimLinha(s);
        if (b == doc.BandaCabecalho)
            linhaSimples(s, "FC");
        else if (b == doc.BandaRodape)
            linhaSimples(s, "RO");
        else
            linhaSimples(s, "QL");
    }
    if (doc.QuebraPaginaFinal)
        linhaSimples(s, "QP");
}

QString GerarTextoComandos(const LayoutDocumento &doc)
{
    clsConcatenarString s;
    GerarTextoComandos(doc, s);
    return s.ResultString();
}

QString ListaComandosUtilizados(const LayoutDocumento &doc)
{
    QString lista = QStringLiteral("|");
    for (const Banda &b : doc.Bandas)
        for (const Item &it : b.Itens)
            if (it.Tipo == TipoComando
                && !lista.contains(QLatin1Char('|') + it.Texto + QLatin1Char('|'), Qt::CaseInsensitive))
                lista += it.Texto + QLatin1Char('|');
    return lista.mid(1).replace(QLatin1Char('|'), FimLinha);
}

}  // namespace lumeta
