#include "canvas/Figuras.h"

#include "barcodes/CodigoBarras.h"
#include "canvas/Metarquivos.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace lumeta {

const QImage &ImagemErro()
{
    // A small white sheet with a red cross, like a broken picture.
    static const QImage img = [] {
        QImage i(16, 16, QImage::Format_RGB32);
        i.fill(Qt::white);
        QPainter p(&i);
        p.setPen(QColor(128, 128, 128));
        p.drawRect(0, 0, 15, 15);
        p.setPen(QPen(QColor(204, 0, 0), 2));
        p.drawLine(4, 4, 11, 11);
        p.drawLine(11, 4, 4, 11);
        return i;
    }();
    return img;
}

const QImage &ImagemFigura()
{
    // A framed landscape: sky, sun and a hill.
    static const QImage img = [] {
        QImage i(32, 32, QImage::Format_RGB32);
        i.fill(QColor(198, 230, 255));
        QPainter p(&i);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 204, 0));
        p.drawEllipse(QRect(20, 5, 7, 7));
        p.setBrush(QColor(0, 140, 60));
        p.drawPolygon(QPolygon({QPoint(1, 30), QPoint(11, 14), QPoint(18, 22), QPoint(22, 18), QPoint(30, 30)}));
        p.setBrush(Qt::NoBrush);
        p.setPen(QColor(96, 96, 96));
        p.drawRect(0, 0, 31, 31);
        return i;
    }();
    return img;
}

QString ValorExibido(const QString &texto, const char *exemplo)
{
    if (texto.startsWith(QLatin1Char('"'))) {
        QString v = texto;
        v.remove(QLatin1Char('"'));
        return v;
    }
    return QString::fromLatin1(exemplo);
}

namespace {

// Metafiles larger than this are not read into memory.
constexpr qint64 MaximoMetarquivo = qint64(64) << 20;

QImage LerFigura(const QString &nome, qint64 tamanho)
{
    QFile arquivo(nome);
    if (!arquivo.open(QIODevice::ReadOnly))
        return {};
    if (TipoDeMetarquivo(arquivo.peek(88)) != TipoMetarquivo::Nenhum)
        return tamanho <= MaximoMetarquivo ? LerMetarquivo(arquivo.read(tamanho)) : QImage();
    QImageReader leitor(&arquivo);
    leitor.setDecideFormatFromContent(true);
    // Only the formats the report viewer loads too; anything else (PNG,
    // SVG...) shows the error picture, as it would not print.
    static const QList<QByteArray> formatos = {"bmp", "ico", "cur", "gif", "jpeg", "jpg"};
    return formatos.contains(leitor.format().toLower()) ? leitor.read() : QImage();
}

}  // namespace

const QImage &CacheFiguras::Figura(const QString &texto)
{
    if (m_entradas.size() > 4096 && !m_entradas.contains(texto))
        m_entradas.clear();
    Entrada &e = m_entradas[texto];
    if (e.passagem != m_passagem) {
        e.passagem = m_passagem;
        if (e.nome.isNull()) {
            e.nome = texto;
            e.nome.remove(QLatin1Char('"'));
            e.nome = e.nome.trimmed();
        }
        const QString &nome = e.nome;
        const QFileInfo info(nome);
        const bool existe = !nome.isEmpty() && info.isFile();
        const QDateTime modificado = existe ? info.lastModified() : QDateTime();
        const qint64 tamanho = existe ? info.size() : -1;
        if (modificado != e.modificado || tamanho != e.tamanho) {
            e.modificado = modificado;
            e.tamanho = tamanho;
            e.imagem = QImage();
            e.ok = false;
            if (existe) {
                const QImage lida = LerFigura(nome, tamanho);
                e.ok = !lida.isNull();
                if (e.ok)
                    e.imagem = lida.convertToFormat(lida.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                           : QImage::Format_RGB32);
            }
        }
    }
    if (e.nome.isEmpty())
        return ImagemFigura();
    return e.ok ? e.imagem : ImagemErro();
}

const QImage &CacheSimbolos::Simbolo(int tipo, const QString &texto, int alturaBarra, bool mostrarTexto, int angulo)
{
    // Every field shows the same sample, so fields share one symbol.
    const bool literal = texto.startsWith(QLatin1Char('"'));
    Chave chave{tipo, literal ? texto : QString(), alturaBarra, mostrarTexto, angulo};
    auto it = m_simbolos.find(chave);
    if (it == m_simbolos.end()) {
        // Kept by count and by bytes, so a layout of many long symbols
        // redraws some of them rather than holding them all.
        if (m_simbolos.size() > 4096 || m_bytes > MaximoBytesSimbolos) {
            m_simbolos.clear();
            m_bytes = 0;
        }
        const QString valor = ValorExibido(texto, "0123456789");
        QImage simbolo = DesenharCodigoBarras(tipo, valor, alturaBarra, mostrarTexto, angulo);
        m_bytes += simbolo.sizeInBytes();
        it = m_simbolos.insert(std::move(chave), std::move(simbolo));
    }
    return it->isNull() ? ImagemErro() : *it;
}

}  // namespace lumeta
