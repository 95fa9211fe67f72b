#include "canvas/Figuras.h"

#include "barcodes/CodigoBarras.h"

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

const QImage &CacheFiguras::Figura(const QString &nome)
{
    if (nome.isEmpty())
        return ImagemFigura();
    Entrada &e = m_entradas[nome];
    if (e.passagem != m_passagem) {
        e.passagem = m_passagem;
        const QFileInfo info(nome);
        const bool existe = info.isFile();
        const QDateTime modificado = existe ? info.lastModified() : QDateTime();
        const qint64 tamanho = existe ? info.size() : -1;
        if (modificado != e.modificado || tamanho != e.tamanho) {
            e.modificado = modificado;
            e.tamanho = tamanho;
            e.imagem = QImage();
            e.ok = false;
            if (existe) {
                QImageReader leitor(nome);
                leitor.setDecideFormatFromContent(true);
                // Only the formats the report viewer loads too; anything else
                // (PNG, SVG...) shows the error picture, as it would not print.
                static const QList<QByteArray> formatos = {"bmp", "ico", "cur", "gif", "jpeg", "jpg"};
                const QImage lida = formatos.contains(leitor.format().toLower()) ? leitor.read() : QImage();
                e.ok = !lida.isNull();
                if (e.ok)
                    e.imagem = lida.convertToFormat(lida.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                           : QImage::Format_RGB32);
            }
        }
    }
    return e.ok ? e.imagem : ImagemErro();
}

const QImage &CacheSimbolos::Simbolo(int tipo, const QString &valor, int alturaBarra, bool mostrarTexto, int angulo)
{
    Chave chave{tipo, valor, alturaBarra, mostrarTexto, angulo};
    auto it = m_simbolos.find(chave);
    if (it == m_simbolos.end()) {
        if (m_simbolos.size() > 4096)
            m_simbolos.clear();
        it = m_simbolos.insert(std::move(chave), DesenharCodigoBarras(tipo, valor, alturaBarra, mostrarTexto, angulo));
    }
    return it->isNull() ? ImagemErro() : *it;
}

}  // namespace lumeta
