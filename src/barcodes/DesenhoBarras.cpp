#include "barcodes/DesenhoBarras.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

namespace lumeta {

QPoint RotacionarPonto(int x, int y, int largura, int altura, int angulo)
{
    switch (angulo) {
    case 90:
        return {y, largura - x - 1};
    case 180:
        return {largura - x - 1, altura - y - 1};
    case 270:
        return {altura - y - 1, x};
    default:
        return {x, y};
    }
}

QString DigitosEmPares(QString valor)
{
    for (QChar &c : valor)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            c = QLatin1Char('0');
    if (valor.size() % 2 != 0)
        valor.prepend(QLatin1Char('0'));
    return valor;
}

std::string ExpandirLarguras(std::string_view larguras)
{
    std::string m;
    bool barra = true;
    for (const char c : larguras) {
        m.append(std::size_t(c - '0'), barra ? '1' : '0');
        barra = !barra;
    }
    return m;
}

std::string ExpandirLargoEstreito(std::string_view padrao)
{
    std::string m;
    bool barra = true;
    for (const char c : padrao) {
        m.append(c == 'w' ? 3 : 1, barra ? '1' : '0');
        barra = !barra;
    }
    return m;
}

QFont FonteLinhaLegivel(int angulo)
{
    QFont f(QStringLiteral("Arial"));
    f.setPixelSize(11);
    const bool girada = angulo == 90 || angulo == 180 || angulo == 270;
    f.setWeight(girada ? QFont::Medium : QFont::Normal);
    // Pictures are black on white only: they are stretched by whole factors
    // and any grey would smear into the bars.
    f.setStyleStrategy(QFont::NoAntialias);
    return f;
}

DesenhoBarras::DesenhoBarras(QImage &figura, int angulo)
    : m_figura(figura), m_angulo(angulo)
{
}

void DesenhoBarras::Dimensionar(int largura, int altura)
{
    m_largura = std::clamp(largura, 1, ComprimentoMaximoSimbolo);
    m_altura = std::clamp(altura, 1, AlturaMaximaSimbolo);
    if (AnguloDeitado(m_angulo))
        m_figura = QImage(m_altura, m_largura, QImage::Format_RGB32);
    else
        m_figura = QImage(m_largura, m_altura, QImage::Format_RGB32);
    m_figura.fill(Qt::white);
}

void DesenhoBarras::PintarPixel(int px, int py, QRgb cor)
{
    if (px < 0 || py < 0 || px >= m_largura || py >= m_altura)
        return;
    const QPoint p = RotacionarPonto(px, py, m_largura, m_altura, m_angulo);
    m_figura.setPixel(p, cor);
}

void DesenhoBarras::Modulos(std::string_view modulos, int topo, int comprimento, bool pintarEspacos)
{
    const QRgb preto = qRgb(0, 0, 0);
    const QRgb branco = qRgb(255, 255, 255);
    // Only the rows and columns the picture holds are walked.
    const int de = std::max(topo, 0);
    const int ate = int(std::min<qint64>(qint64(topo) + comprimento, m_altura));
    for (const char c : modulos) {
        ++x;
        if ((c != '1' && !pintarEspacos) || x < 0 || x >= m_largura)
            continue;
        const QRgb cor = c == '1' ? preto : branco;
        for (int y = de; y < ate; ++y)
            PintarPixel(x, y, cor);
    }
}

int DesenhoBarras::LarguraTexto(const QString &texto) const
{
    return QFontMetrics(FonteLinhaLegivel(m_angulo)).horizontalAdvance(texto);
}

void DesenhoBarras::Texto(double tx, int ty, const QString &texto)
{
    if (texto.isEmpty())
        return;
    // The line is set upright and then turned pixel by pixel with the bars, so
    // the digits look the same from every side and keep their place exactly.
    // Only the glyphs are copied: the text has no background.
    // The layer holds only the rows the line can touch, whatever the bars' height.
    const QFont f = FonteLinhaLegivel(m_angulo);
    const QFontMetrics medidas(f);
    const int de = std::clamp(ty - 2, 0, m_altura);
    const int ate = int(std::clamp<qint64>(qint64(ty) + medidas.height() + 2, de, m_altura));
    if (ate <= de)
        return;
    QImage capa(m_largura, ate - de, QImage::Format_RGB32);
    capa.fill(Qt::white);
    {
        QPainter p(&capa);
        p.setFont(f);
        p.setPen(Qt::black);
        // Centred texts fall on half pixels; the line snaps to the nearest column.
        p.drawText(QPointF(qRound(tx), ty - de + medidas.ascent()), texto);
    }
    const QRgb preto = qRgb(0, 0, 0);
    for (int y = de; y < ate; ++y) {
        const auto *linha = reinterpret_cast<const QRgb *>(capa.constScanLine(y - de));
        for (int x = 0; x < m_largura; ++x)
            if (qGray(linha[x]) < 128)
                PintarPixel(x, y, preto);
    }
}

}  // namespace lumeta
