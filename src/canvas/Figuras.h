#pragma once
// The pictures the canvas shows: picture files, the error and placeholder
// pictures, and barcode symbols, each kept between repaints.

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QString>

namespace lumeta {

// `imgErro`: shown for a picture that cannot be loaded and for an unknown
// barcode type.
const QImage &ImagemErro();
// `imgFigura`: shown for a picture item without a file name.
const QImage &ImagemFigura();

// The value a barcode or graph bar shows for an item text: a quoted literal
// without its quotes, or `exemplo` for a field or command.
QString ValorExibido(const QString &texto, const char *exemplo);

// Picture files by item text. A repaint starts a new pass; the first use of a path
// in a pass checks the file again, so a picture changed on disk shows at the
// next repaint while one repaint never reads the same file twice.
class CacheFiguras {
public:
    void NovaPassagem() { ++m_passagem; }
    // The picture of an item text: its file name is the text without double
    // quotes, trimmed. The placeholder for an empty name, the error picture
    // when the file cannot be loaded.
    const QImage &Figura(const QString &texto);

private:
    struct Entrada {
        QString nome;   // the file name of the item text
        QImage imagem;
        bool ok = false;
        QDateTime modificado;
        qint64 tamanho = -1;
        quint64 passagem = 0;
    };
    QHash<QString, Entrada> m_entradas;
    quint64 m_passagem = 1;
};

// Barcode symbols by everything that shapes them.
class CacheSimbolos {
public:
    // The symbol of an item text (a quoted value, or the sample
    // "0123456789" for a field), or the error picture for an unknown type.
    const QImage &Simbolo(int tipo, const QString &texto, int alturaBarra, bool mostrarTexto, int angulo);

private:
    struct Chave {
        int tipo;
        QString texto;
        int alturaBarra;
        bool mostrarTexto;
        int angulo;
        bool operator==(const Chave &) const = default;
    };
    friend size_t qHash(const Chave &c, size_t semente) noexcept
    {
        return qHashMulti(semente, c.tipo, c.texto, c.alturaBarra, c.mostrarTexto, c.angulo);
    }
    static constexpr qint64 MaximoBytesSimbolos = qint64(64) << 20;
    QHash<Chave, QImage> m_simbolos;
    qint64 m_bytes = 0;
};

}  // namespace lumeta
