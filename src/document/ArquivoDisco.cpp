#include "document/ArquivoDisco.h"

#include <QIODevice>

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumeta {

namespace {

ErroArquivo erro(int numero, const char *descricao)
{
    return {numero, QString::fromUtf8(descricao)};
}

// What cannot be opened as a file at all: a folder, a block device, a socket.
ErroArquivo acessoAoCaminho()
{
    return erro(75, "Erro de acesso ao caminho/arquivo");
}

QByteArray nomeLocal(const QString &caminho)
{
    return NomeParaSistema(caminho);
}

// A folder or file of the private folder that another user could have put
// there or could reach.
ErroArquivo naoPrivado()
{
    return erro(70, "Permissão negada: a pasta temporária não é só deste usuário");
}

bool privada(const struct stat &st)
{
    return S_ISDIR(st.st_mode) && st.st_uid == ::geteuid() && (st.st_mode & 0777) == 0700;
}

// lstat() of "pasta/" would follow a link named pasta.
QByteArray semBarraFinal(const QString &pasta)
{
    QByteArray n = nomeLocal(pasta);
    while (n.size() > 1 && n.endsWith('/'))
        n.chop(1);
    return n;
}

// The length of the valid UTF-8 sequence at p (1 to 4), or 0.
int sequenciaUtf8(const unsigned char *p, qsizetype resta)
{
    const unsigned char c = p[0];
    int n;
    char32_t minimo, v;
    if (c < 0x80)
        return 1;
    if (c >= 0xC2 && c <= 0xDF) {
        n = 2, minimo = 0x80, v = c & 0x1F;
    } else if (c >= 0xE0 && c <= 0xEF) {
        n = 3, minimo = 0x800, v = c & 0x0F;
    } else if (c >= 0xF0 && c <= 0xF4) {
        n = 4, minimo = 0x10000, v = c & 0x07;
    } else {
        return 0;
    }
    if (resta < n)
        return 0;
    for (int i = 1; i < n; ++i) {
        if ((p[i] & 0xC0) != 0x80)
            return 0;
        v = (v << 6) | (p[i] & 0x3F);
    }
    if (v < minimo || v > 0x10FFFF || (v >= 0xD800 && v <= 0xDFFF))
        return 0;
    return n;
}

// Writes everything or returns the errno that stopped it.
int escreverTudo(int fd, const QByteArray &dados, off_t inicio = -1)
{
    const char *p = dados.constData();
    qint64 falta = dados.size();
    off_t pos = inicio;
    while (falta > 0) {
        const size_t bloco = size_t(std::min<qint64>(falta, qint64(1) << 30));
        const ssize_t k = pos >= 0 ? ::pwrite(fd, p, bloco, pos) : ::write(fd, p, bloco);
        if (k < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        if (k == 0)
            return ENOSPC;
        p += k;
        falta -= k;
        if (pos >= 0)
            pos += k;
    }
    return 0;
}

int fechar(int fd)
{
    return ::close(fd) == 0 ? 0 : errno;
}

// A character device (/dev/null, a terminal) or a FIFO someone reads takes the
// bytes as a stream; replacing it with a regular file would destroy it.
ErroArquivo gravarNoDispositivo(const QString &alvo, const QByteArray &dados, bool fifo)
{
    // A FIFO nobody reads would block the editor forever: ENXIO instead.
    const int fd = ::open(nomeLocal(alvo).constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY | (fifo ? O_NONBLOCK : 0));
    if (fd < 0)
        return ErroDoSistema(errno, alvo);
    if (fifo)
        ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    int e = escreverTudo(fd, dados);
    const int f = fechar(fd);
    if (!e)
        e = f;
    return e ? ErroDoSistema(e, alvo) : ErroArquivo{};
}

// A writable file in a folder the user may not write: no new file can be made
// beside it, so it is rewritten where it is. The space is claimed first, so a
// full disk fails before the old contents are touched.
ErroArquivo gravarNoLugar(const QString &alvo, const QByteArray &dados)
{
    const int fd = ::open(nomeLocal(alvo).constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return ErroDoSistema(errno, alvo);
    struct stat st;
    int e = ::fstat(fd, &st) == 0 ? 0 : errno;
    if (!e && !S_ISREG(st.st_mode)) {
        ::close(fd);
        return acessoAoCaminho();
    }
    if (!e && dados.size() > st.st_size) {
        const int r = ::posix_fallocate(fd, 0, off_t(dados.size()));
        if (r != 0 && r != EOPNOTSUPP && r != EINVAL)
            e = r;
    }
    if (!e)
        e = escreverTudo(fd, dados, 0);
    if (!e && ::ftruncate(fd, off_t(dados.size())) != 0)
        e = errno;
    if (!e && ::fsync(fd) != 0)
        e = errno;
    const int f = fechar(fd);
    if (!e)
        e = f;
    return e ? ErroDoSistema(e, alvo) : ErroArquivo{};
}

void sincronizarPasta(const QString &pasta)
{
    const int fd = ::open(nomeLocal(pasta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// A new file beside the one to replace, named prefixo and a random suffix, in
// the folder `dir` (AT_FDCWD when prefixo is a path); fd < 0 and erro set when
// none could be made.
struct Temporario {
    QByteArray nome;
    int fd = -1;
    int erro = 0;
};

Temporario criarTemporario(int dir, const QByteArray &prefixo, int bandeiras, mode_t modo)
{
    Temporario t;
    for (int tentativa = 0; tentativa < 64; ++tentativa) {
        t.nome = prefixo + QByteArray::number(QRandomGenerator::global()->generate(), 36);
        t.fd = ::openat(dir, t.nome.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOCTTY | bandeiras, modo);
        if (t.fd >= 0 || errno != EEXIST)
            break;
    }
    if (t.fd < 0)
        t.erro = errno;
    return t;
}

// Writes the temporary, syncs and closes it, then renames it over destino, so
// the old file is replaced only once all of it is on disk; the temporary is
// removed when a step fails. Returns 0 or the error number.
int substituirPeloTemporario(int dir, const Temporario &t, const QByteArray &dados, const QByteArray &destino)
{
    int e = escreverTudo(t.fd, dados);
    if (!e && ::fsync(t.fd) != 0)
        e = errno;
    const int f = fechar(t.fd);
    if (!e)
        e = f;
    if (!e && ::renameat(dir, t.nome.constData(), dir, destino.constData()) != 0)
        e = errno;
    if (e)
        ::unlinkat(dir, t.nome.constData(), 0);
    return e;
}

}  // namespace

ErroArquivo ErroDoSistema(int codigo, const QString &caminho)
{
    switch (codigo) {
    case 0:
        return {};
    case ENOENT:
        if (!caminho.isEmpty() && QFileInfo(QFileInfo(caminho).absolutePath()).isDir())
            return erro(53, "Arquivo não encontrado");
        return erro(76, "Caminho não encontrado");
    case ENOTDIR:
        return erro(76, "Caminho não encontrado");
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return erro(70, "Permissão negada");
    case EISDIR:
    case ELOOP:
    case EBUSY:
        return acessoAoCaminho();
    case EEXIST:
        return erro(58, "O arquivo já existe");
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return erro(61, "Disco cheio");
    case EMFILE:
    case ENFILE:
        return erro(67, "Muitos arquivos");
    case ENAMETOOLONG:
    case EBADF:
    case EINVAL:
        return erro(52, "Nome ou número de arquivo incorreto");
    case ENXIO:
    case ENODEV:
        return erro(68, "Dispositivo não disponível");
    case EXDEV:
        return erro(74, "Não é possível renomear com unidade diferente");
    case ENOMEM:
        return erro(7, "Memória insuficiente");
    default:
        return erro(57, "Erro de E/S do dispositivo");
    }
}

namespace {

// The file a write replaces: a link keeps pointing where it did, and its
// target gets the new contents. `existe` and `st` tell what stands there.
struct AlvoGravacao {
    QString caminho;
    struct stat st {};
    bool existe = false;
    ErroArquivo erro;
};

AlvoGravacao ResolverAlvo(const QString &caminho)
{
    AlvoGravacao a;
    if (caminho.isEmpty()) {
        a.erro = ErroDoSistema(EINVAL);
        return a;
    }
    a.caminho = caminho;
    const QFileInfo info(caminho);
    if (info.isSymLink())
        a.caminho = info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
    a.existe = ::stat(nomeLocal(a.caminho).constData(), &a.st) == 0;
    if (!a.existe && errno != ENOENT)
        a.erro = ErroDoSistema(errno, a.caminho);
    return a;
}

}  // namespace

ErroArquivo GravarArquivoAtomico(const QString &caminho, const QByteArray &dados)
{
    const AlvoGravacao a = ResolverAlvo(caminho);
    if (a.erro)
        return a.erro;
    const QString &alvo = a.caminho;
    const struct stat &st = a.st;
    const bool existe = a.existe;
    if (existe) {
        if (S_ISCHR(st.st_mode) || S_ISFIFO(st.st_mode))
            return gravarNoDispositivo(alvo, dados, S_ISFIFO(st.st_mode));
        if (!S_ISREG(st.st_mode))
            return acessoAoCaminho();
        // A read-only file stays read-only, even where the folder would let a
        // rename replace it.
        if (::access(nomeLocal(alvo).constData(), W_OK) != 0)
            return ErroDoSistema(errno, alvo);
    }

    const QFileInfo fi(alvo);
    const QString pasta = fi.absolutePath();
    // The system applies the umask, as it would to a file created in place.
    const Temporario t = criarTemporario(AT_FDCWD, nomeLocal(pasta + QStringLiteral("/.") + fi.fileName() + QLatin1Char('.')),
                                         0, existe ? (st.st_mode & 0777) : 0666);
    if (t.fd < 0) {
        if (existe && (t.erro == EACCES || t.erro == EPERM))
            return gravarNoLugar(alvo, dados);
        return ErroDoSistema(t.erro, alvo);
    }
    if (existe) {
        // The replacement keeps the old file's mode and, when we may, its owner.
        ::fchmod(t.fd, st.st_mode & 07777);
        if (::geteuid() == 0)
            (void)::fchown(t.fd, st.st_uid, st.st_gid);
    }
    if (const int e = substituirPeloTemporario(AT_FDCWD, t, dados, nomeLocal(alvo)))
        return ErroDoSistema(e, alvo);
    sincronizarPasta(pasta);
    return {};
}

namespace {

// Writes straight to a file descriptor and keeps the first error number, so
// the message can carry the system's reason.
class DispositivoArquivo : public QIODevice {
public:
    int fd = -1;
    int erro = 0;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *dados, qint64 n) override
    {
        if (erro)
            return -1;
        if (int e = escreverTudo(fd, QByteArray::fromRawData(dados, qsizetype(n)))) {
            erro = e;
            return -1;
        }
        return n;
    }
};

}  // namespace

struct GravacaoArquivo::Dados {
    DispositivoArquivo dispositivo;
    Temporario temporario;
    QString alvo;
    bool direto = false;  // a device or FIFO, written into
};

GravacaoArquivo::GravacaoArquivo() : d(new Dados) {}

GravacaoArquivo::~GravacaoArquivo()
{
    if (d->dispositivo.fd >= 0) {
        ::close(d->dispositivo.fd);
        if (!d->direto)
            ::unlink(d->temporario.nome.constData());
    }
    delete d;
}

ErroArquivo GravacaoArquivo::Iniciar(const QString &caminho)
{
    const AlvoGravacao a = ResolverAlvo(caminho);
    if (a.erro)
        return a.erro;
    const QString &alvo = a.caminho;
    const struct stat &st = a.st;
    const bool existe = a.existe;
    if (existe && (S_ISCHR(st.st_mode) || S_ISFIFO(st.st_mode))) {
        d->dispositivo.fd = ::open(nomeLocal(alvo).constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
        if (d->dispositivo.fd < 0)
            return ErroDoSistema(errno, alvo);
        d->direto = true;
    } else {
        if (existe && !S_ISREG(st.st_mode))
            return acessoAoCaminho();
        if (existe && ::access(nomeLocal(alvo).constData(), W_OK) != 0)
            return ErroDoSistema(errno, alvo);
        const QFileInfo fi(alvo);
        d->temporario = criarTemporario(
            AT_FDCWD, nomeLocal(fi.absolutePath() + QStringLiteral("/.") + fi.fileName() + QLatin1Char('.')), 0,
            existe ? (st.st_mode & 0777) : 0666);
        if (d->temporario.fd < 0)
            return ErroDoSistema(d->temporario.erro, alvo);
        if (existe)
            ::fchmod(d->temporario.fd, st.st_mode & 07777);
        d->dispositivo.fd = d->temporario.fd;
    }
    d->alvo = alvo;
    d->dispositivo.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    return {};
}

QIODevice &GravacaoArquivo::Dispositivo()
{
    return d->dispositivo;
}

ErroArquivo GravacaoArquivo::Concluir()
{
    if (d->dispositivo.fd < 0)
        return ErroDoSistema(EBADF);
    int e = d->dispositivo.erro;
    if (!e && !d->direto && ::fsync(d->dispositivo.fd) != 0)
        e = errno;
    const int f = fechar(d->dispositivo.fd);
    d->dispositivo.fd = -1;
    d->dispositivo.close();
    if (!e)
        e = f;
    if (d->direto)
        return e ? ErroDoSistema(e, d->alvo) : ErroArquivo{};
    if (!e && ::rename(d->temporario.nome.constData(), nomeLocal(d->alvo).constData()) != 0)
        e = errno;
    if (e) {
        ::unlink(d->temporario.nome.constData());
        return ErroDoSistema(e, d->alvo);
    }
    sincronizarPasta(QFileInfo(d->alvo).absolutePath());
    return {};
}

bool PastaPrivada(const QString &pasta)
{
    struct stat st;
    return ::lstat(semBarraFinal(pasta).constData(), &st) == 0 && privada(st);
}

ErroArquivo GravarArquivoPrivado(const QString &caminho, const QByteArray &dados)
{
    const QFileInfo fi(caminho);
    if (caminho.isEmpty() || fi.fileName().isEmpty())
        return ErroDoSistema(EINVAL);
    const QByteArray pasta = semBarraFinal(fi.absolutePath());
    const bool criada = ::mkdir(pasta.constData(), 0700) == 0;
    if (!criada && errno != EEXIST)
        return ErroDoSistema(errno, caminho);
    // Everything below goes through the folder opened once, so it cannot be
    // swapped for another between the check and the write.
    const int dir = ::open(pasta.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (dir < 0)
        return errno == ELOOP || errno == ENOTDIR ? naoPrivado() : ErroDoSistema(errno, caminho);
    struct stat st;
    int e = ::fstat(dir, &st) == 0 ? 0 : errno;
    // The umask may have taken bits the owner needs from a folder just made.
    if (!e && criada && st.st_uid == ::geteuid() && ::fchmod(dir, 0700) == 0)
        st.st_mode = (st.st_mode & ~07777) | 0700;
    if (!e && !privada(st)) {
        ::close(dir);
        return naoPrivado();
    }
    const QByteArray nome = nomeLocal(fi.fileName());
    if (!e) {
        const Temporario t = criarTemporario(dir, '.' + nome + '.', O_NOFOLLOW, 0600);
        // rename() replaces the name itself: a link there is dropped, its
        // target never opened.
        e = t.fd < 0 ? t.erro : substituirPeloTemporario(dir, t, dados, nome);
        if (!e)
            ::fsync(dir);
    }
    ::close(dir);
    return e ? ErroDoSistema(e, caminho) : ErroArquivo{};
}

ArquivoLeitura::~ArquivoLeitura()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

ErroArquivo ArquivoLeitura::Abrir(const QString &caminho)
{
    return abrir(caminho, false);
}

ErroArquivo ArquivoLeitura::AbrirPrivado(const QString &caminho)
{
    return abrir(caminho, true);
}

ErroArquivo ArquivoLeitura::abrir(const QString &caminho, bool privado)
{
    m_caminho = caminho;
    const QByteArray nome = nomeLocal(caminho);
    if (privado && !PastaPrivada(QFileInfo(caminho).absolutePath()))
        return naoPrivado();
    // Looked at before opening: opening a device or a FIFO can itself wait or
    // have effects. In the private folder a link is not followed.
    struct stat st;
    if ((privado ? ::lstat(nome.constData(), &st) : ::stat(nome.constData(), &st)) != 0)
        return ErroDoSistema(errno, caminho);
    if (!S_ISREG(st.st_mode))
        return acessoAoCaminho();
    if (privado && st.st_uid != ::geteuid())
        return naoPrivado();
    m_fd = ::open(nome.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK | (privado ? O_NOFOLLOW : 0));
    if (m_fd < 0)
        return ErroDoSistema(errno, caminho);
    // The name may have been swapped for something else in between.
    if (::fstat(m_fd, &st) != 0 || !S_ISREG(st.st_mode) || (privado && st.st_uid != ::geteuid())) {
        ::close(m_fd);
        m_fd = -1;
        return acessoAoCaminho();
    }
    m_restante = st.st_size;
    return {};
}

ErroArquivo ArquivoLeitura::Ler(qint64 n, QByteArray &destino)
{
    n = std::min(n, m_restante);
    if (m_fd < 0 || n <= 0)
        return {};
    const qsizetype inicio = destino.size();
    destino.resize(inicio + n);
    qint64 lidos = 0;
    while (lidos < n) {
        const ssize_t k = ::read(m_fd, destino.data() + inicio + lidos, size_t(std::min<qint64>(n - lidos, 1 << 30)));
        if (k < 0) {
            if (errno == EINTR)
                continue;
            const int e = errno;
            destino.truncate(inicio + lidos);
            return ErroDoSistema(e, m_caminho);
        }
        if (k == 0)
            break;  // the file shrank since it was opened
        lidos += k;
    }
    destino.truncate(inicio + lidos);
    m_restante = lidos < n ? 0 : m_restante - lidos;
    return {};
}

ErroArquivo LerArquivoRegular(const QString &caminho, qint64 maximo, QByteArray &dados)
{
    dados.clear();
    ArquivoLeitura f;
    if (const ErroArquivo e = f.Abrir(caminho))
        return e;
    return f.Ler(maximo, dados);
}

QString NomeDoSistema(QByteArrayView bytes)
{
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    const qsizetype n = bytes.size();
    QString r;
    r.reserve(n);
    qsizetype i = 0;
    while (i < n) {
        qsizetype j = i;
        int k;
        while (j < n && (k = sequenciaUtf8(p + j, n - j)) > 0)
            j += k;
        r += QString::fromUtf8(bytes.data() + i, j - i);
        if (j < n) {
            r += QChar(char16_t(0xDC00 + p[j]));
            ++j;
        }
        i = j;
    }
    return r;
}

QByteArray NomeParaSistema(const QString &nome)
{
    QByteArray r;
    r.reserve(nome.size());
    qsizetype inicio = 0;
    for (qsizetype i = 0; i < nome.size(); ++i) {
        const char16_t c = nome.at(i).unicode();
        const bool escapado = c >= 0xDC80 && c <= 0xDCFF && (i == 0 || !nome.at(i - 1).isHighSurrogate());
        if (!escapado)
            continue;
        r += QStringView(nome).mid(inicio, i - inicio).toUtf8();
        r += char(c - 0xDC00);
        inicio = i + 1;
    }
    r += QStringView(nome).mid(inicio).toUtf8();
    return r;
}

}  // namespace lumeta
