#include "barcodes/ValoresCodigoBarras.h"

#include "barcodes/CodigoBarras.h"

#include <QPainter>
#include <cmath>

namespace lumeta {

namespace {

const QChar Aspas = u'"';

// The characters of Code 128 set B (and of the PDF417 text), one group a line.
const QString CaracteresTabelaB = QStringLiteral("0 até 9\nA até Z\n! \"#$%&'()*+,-./:\n;<=>?@[\\]^_`{|}~");

}  // namespace

QString LegendaTipoCodigoBarras(int tipo)
{
    switch (tipo) {
    case TipoEAN13: return QStringLiteral("EAN-13");
    case TipoEAN8: return QStringLiteral("EAN-8");
    case TipoCode39Check: return QStringLiteral("Code 39 (Com CheckSum)");
    case TipoCode128C: return QStringLiteral("Code 128 (Tabela C)");
    case TipoInterlace25: return QStringLiteral("Intercalado 25");
    case TipoCode39: return QStringLiteral("Code 39");
    case TipoInterlace25SemNumeros: return QStringLiteral("Intercalado 25 (Sem números)");
    case TipoInterlace25NumerosTopo: return QStringLiteral("Intercalado 25 (Números no topo)");
    case TipoCode128B: return QStringLiteral("Code 128 (Tabela B)");
    case TipoBarraGrafico: return QStringLiteral("Barra de gráfico");
    case TipoPDF417: return QStringLiteral("2D PDF417");
    default: return QString();
    }
}

CamposCodigoBarras SepararConteudo(const QString &conteudo)
{
    if (conteudo.startsWith(Aspas))
        return {QString(conteudo).remove(Aspas), QString()};
    return {QString(), conteudo};
}

int AlturaBarraGrafico(const QString &texto)
{
    const QString t = texto.trimmed();
    int i = 0;
    QString numero;
    if (i < t.size() && (t[i] == u'-' || t[i] == u'+'))
        numero += t[i++];
    while (i < t.size() && t[i].isDigit() && t[i].unicode() < 128)
        numero += t[i++];
    bool ok = false;
    const double v = numero.toDouble(&ok);
    if (!ok || !std::isfinite(v))
        return 0;
    // Digits after a "." or "," are a fraction, which is dropped.
    return int(std::clamp(v, -2147483647.0, 2147483647.0));
}

QString ConteudoDosCampos(int tipo, QString &texto, const QString &comando)
{
    if (tipo == TipoBarraGrafico && comando.isEmpty())
        texto = QString::number(AlturaBarraGrafico(texto));
    if (!comando.isEmpty())
        return comando;
    return Aspas + texto + Aspas;
}

QString AmostraCodigoBarras(int tipo)
{
    switch (tipo) {
    case TipoEAN13: return QStringLiteral("123456789012");
    case TipoEAN8: return QStringLiteral("1234567");
    case TipoCode39:
    case TipoCode39Check: return QStringLiteral("ABC123");
    case TipoCode128B:
    case TipoPDF417: return QStringLiteral("123.456/Abc");
    case TipoBarraGrafico: return QString();
    default: return QStringLiteral("1234567890");
    }
}

QString CaracteresValidos(int tipo)
{
    switch (tipo) {
    case TipoCode39:
    case TipoCode39Check: return QStringLiteral("0 até 9\nA até Z\n-. $/+%");
    case TipoCode128B:
    case TipoPDF417: return CaracteresTabelaB;
    case TipoBarraGrafico: return QString();
    default: return QStringLiteral("0 até 9");
    }
}

QImage PreviaCodigoBarras(int tipo)
{
    if (tipo != TipoBarraGrafico)
        return DesenharCodigoBarras(tipo, AmostraCodigoBarras(tipo), 40, true, 0);
    QImage img(75, 49, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setPen(Qt::black);
    p.setBrush(QColor(0, 0, 128));
    // Corners are inclusive, as the painter's boxes are.
    for (const auto &[x0, x1, y0] : {std::tuple{6, 26, 0}, std::tuple{30, 50, 24}, std::tuple{54, 74, 8}})
        p.drawRect(x0, y0, x1 - x0, 48 - y0);
    return img;
}

}  // namespace lumeta
