#pragma once
// Whole files read and written through the system's own calls, so that every
// failure is seen where it happens (a full disk shows on write, on sync or on
// close, never later) and is told to the user with the error number and the
// Portuguese text the editor's users know from their own system.

#include <QByteArray>
#include <QString>

class QIODevice;

namespace lumeta {

struct ErroArquivo {
    int numero = 0;      // 0: no error
    QString descricao;

    explicit operator bool() const { return numero != 0; }
};

// File names as the system spells them, bytes that need not be UTF-8. A
// byte that is not part of valid UTF-8 becomes the lone surrogate U+DC00 +
// byte, and goes back to the same byte, so a name in another encoding
// (Latin-1 from an old system, say) still reaches its file.
QString NomeDoSistema(QByteArrayView bytes);
QByteArray NomeParaSistema(const QString &nome);

// The editor's number and text for a system error code (errno). A missing
// file is told apart from a missing folder when the path is given.
ErroArquivo ErroDoSistema(int codigo, const QString &caminho = QString());

// Replaces the file at `caminho` with `dados`: everything is written to a new
// file beside it, synced to disk and only then renamed over the old one, so a
// failure at any step leaves the old file byte for byte. A character device or
// a FIFO with a reader is written into, never replaced; a folder, a block
// device, a socket or a FIFO nobody reads is refused.
ErroArquivo GravarArquivoAtomico(const QString &caminho, const QByteArray &dados);

// A file too large to hold whole (a report of thousands of pages), written
// as a stream with the same promise as GravarArquivoAtomico: the data goes to
// a new file beside the name, and only Concluir, once everything is written
// and synced, renames it over the old one. Dropped without Concluir, or on
// any failure, the new file is removed and the old one stays as it was.
class GravacaoArquivo {
public:
    GravacaoArquivo();
    ~GravacaoArquivo();
    GravacaoArquivo(const GravacaoArquivo &) = delete;
    GravacaoArquivo &operator=(const GravacaoArquivo &) = delete;

    ErroArquivo Iniciar(const QString &caminho);
    // Where the data goes; a failed write is kept and told by Concluir.
    QIODevice &Dispositivo();
    ErroArquivo Concluir();

private:
    struct Dados;
    Dados *d;
};

// Whether a folder is one only this user can enter: a real folder (not a
// link to one), owned by the user, mode 0700.
bool PastaPrivada(const QString &pasta);

// Writes a file of the editor's private folder (the exchange and preview
// files). The folder is made (mode 0700) when missing and refused when it is
// not private; the contents go to a new file there that is then renamed over
// the name, so a link planted in its place is replaced, never written through.
ErroArquivo GravarArquivoPrivado(const QString &caminho, const QByteArray &dados);

// A regular file opened for reading. Anything else (folder, device, FIFO,
// socket) is refused before a byte is read, and no read goes past the size the
// file had when it was opened, so memory stays bounded by that size.
class ArquivoLeitura {
public:
    ArquivoLeitura() = default;
    ArquivoLeitura(const ArquivoLeitura &) = delete;
    ArquivoLeitura &operator=(const ArquivoLeitura &) = delete;
    ~ArquivoLeitura();

    ErroArquivo Abrir(const QString &caminho);
    // A file of the private folder: a link in its place is not followed, and a
    // file another user owns, or one in a folder that is not private, is
    // refused before a byte is read.
    ErroArquivo AbrirPrivado(const QString &caminho);
    qint64 Restante() const { return m_restante; }
    // Appends up to n bytes (fewer at the end of the file) to `destino`.
    ErroArquivo Ler(qint64 n, QByteArray &destino);

private:
    ErroArquivo abrir(const QString &caminho, bool privado);

    int m_fd = -1;
    qint64 m_restante = 0;
    QString m_caminho;
};

// The first `maximo` bytes of a regular file (all of it when smaller).
ErroArquivo LerArquivoRegular(const QString &caminho, qint64 maximo, QByteArray &dados);

}  // namespace lumeta
