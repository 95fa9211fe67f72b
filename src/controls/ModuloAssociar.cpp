#include "controls/ModuloAssociar.h"

#include "document/ArquivoDisco.h"
#include "document/InterfaceUsuario.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPainterPath>
#include <QProcess>
#include <QStandardPaths>
#include <cerrno>
#include <filesystem>

namespace lumeta {

QString PastaDadosUsuario()
{
    const QString xdg = qEnvironmentVariable("XDG_DATA_HOME");
    if (!xdg.isEmpty() && QDir::isAbsolutePath(xdg))
        return QDir::cleanPath(xdg);
    return QDir::homePath() + QStringLiteral("/.local/share");
}

QString TipoMime(const QString &extensao)
{
    return QStringLiteral("application/x-lumeta-") + extensao.toLower();
}

QString LinhaComandoAbrir(const QString &programa)
{
    // Desktop entries split the command at blanks, so a path holding one
    // must be quoted; the field code itself never is.
    static const QString reservados = QStringLiteral(" \t\n\"'\\><~|&;$*?#()`");
    QString p = programa;
    bool citar = false;
    for (QChar c : p)
        if (reservados.contains(c))
            citar = true;
    if (citar) {
        p.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        p.replace(QLatin1Char('"'), QStringLiteral("\\\""));
        p.replace(QLatin1Char('`'), QStringLiteral("\\`"));
        p.replace(QLatin1Char('$'), QStringLiteral("\\$"));
        p = QLatin1Char('"') + p + QLatin1Char('"');
    }
    return p + QStringLiteral(" %f");
}

namespace {

QString caminhoChave(const QString &chave)
{
    return QDir::isAbsolutePath(chave) ? chave : PastaDadosUsuario() + QLatin1Char('/') + chave;
}

void avisar(InterfaceUsuario *ui, bool mostrarErros, const QString &texto)
{
    if (mostrarErros && ui)
        ui->Mensagem(texto, QString(), Icone::Exclamacao);
}

QByteArray png(const QImage &img)
{
    QByteArray dados;
    QBuffer b(&dados);
    b.open(QIODevice::WriteOnly);
    img.save(&b, "PNG");
    return dados;
}

void atualizarCache(const QString &ferramenta, const QString &pasta)
{
    const QString programa = QStandardPaths::findExecutable(ferramenta);
    if (programa.isEmpty())
        return;
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p.setStandardOutputFile(QProcess::nullDevice());
    p.start(programa, {pasta});
    if (p.waitForStarted(2000))
        p.waitForFinished(10000);
}

}  // namespace

bool GravarRegistro(const QString &chave, int tipo, const QString &nome, const QByteArray &valor,
                    bool mostrarErros, bool gravarJa, InterfaceUsuario *ui)
{
    Q_UNUSED(tipo);  // every value is stored as the bytes it is given
    Q_UNUSED(gravarJa);  // every value reaches the disk before it replaces the old one
    const QString pasta = caminhoChave(chave);
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(QFile::encodeName(pasta).toStdString()), ec);
    auto falhou = [&](const QString &inicio, const ErroArquivo &e) {
        avisar(ui, mostrarErros,
               inicio + QStringLiteral("\n\nOcorreu o erro: ") + QString::number(e.numero) + QStringLiteral(" - ")
                   + e.descricao);
        return false;
    };
    if (ec || !QFileInfo(pasta).isDir())
        return falhou(QStringLiteral("Não foi possível criar ou abrir a entrada do registro: ") + pasta,
                      ErroDoSistema(ec ? ec.value() : ENOTDIR, pasta));
    const ErroArquivo e = GravarArquivoAtomico(pasta + QLatin1Char('/') + nome, valor);
    if (e)
        return falhou(QStringLiteral("Não foi possível salvar o valor do registro: ")
                          + (nome.isEmpty() ? QStringLiteral("Padrão") : nome),
                      e);
    return true;
}

bool Associar(const QString &extensao, const QString &descricao, const QString &programa,
              const QString &icone, InterfaceUsuario *ui)
{
    const QString ext = extensao.toLower();
    const QString tipoMime = TipoMime(ext);
    const QString nomeIconeTipo = QString(tipoMime).replace(QLatin1Char('/'), QLatin1Char('-'));
    QString nomeIcone = QFileInfo(icone).completeBaseName().toLower();
    if (nomeIcone.isEmpty())
        nomeIcone = QStringLiteral("lumetaedit");
    const QString programaBase = QFileInfo(programa).completeBaseName().toLower();

    const QByteArray mime = QStringLiteral(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
        "  <mime-type type=\"%1\">\n"
        "    <comment>%2</comment>\n"
        "    <icon name=\"%3\"/>\n"
        "    <glob pattern=\"*.%4\"/>\n"
        "  </mime-type>\n"
        "</mime-info>\n").arg(tipoMime, descricao.toHtmlEscaped(), nomeIconeTipo, ext).toUtf8();
    const QByteArray desktop = QStringLiteral(
        "[Desktop Entry]\n"
        "Type=Application\n"
        "Name=LumetaEdit 2.0\n"
        "GenericName=Editor de Layout do Lumeta\n"
        "Comment=%1\n"
        "Exec=%2\n"
        "Icon=%3\n"
        "MimeType=%4;\n"
        "Terminal=false\n"
        "Categories=Office;Development;\n").arg(descricao, LinhaComandoAbrir(programa), nomeIcone, tipoMime).toUtf8();
    const QByteArray imagem = png(DesenharIconeLumetaEdit(48));

    struct Entrada {
        QString chave;
        int tipo;
        QString nome;
        QByteArray valor;
    };
    const Entrada entradas[] = {
        {QStringLiteral("mime/packages"), RegistroTexto, programaBase + QLatin1Char('-') + ext + QStringLiteral(".xml"), mime},
        {QStringLiteral("icons/hicolor/48x48/mimetypes"), RegistroBinario, nomeIconeTipo + QStringLiteral(".png"), imagem},
        {QStringLiteral("icons/hicolor/48x48/apps"), RegistroBinario, nomeIcone + QStringLiteral(".png"), imagem},
        {QStringLiteral("applications"), RegistroTexto, programaBase + QStringLiteral(".desktop"), desktop},
    };
    bool mudou = false;
    for (const Entrada &e : entradas) {
        // Entries already in place are left alone, so an ordinary start does
        // not touch the disk or the desktop's caches.
        QByteArray atual;
        if (!LerArquivoRegular(caminhoChave(e.chave) + QLatin1Char('/') + e.nome, e.valor.size() + 1, atual)
            && atual == e.valor)
            continue;
        if (!GravarRegistro(e.chave, e.tipo, e.nome, e.valor, true, false, ui))
            return false;
        mudou = true;
    }
    if (mudou) {
        // The desktop reads the caches, not the files; a missing tool only
        // delays the association until the desktop rebuilds them itself. This
        // runs once, when the entries change, so the start may wait for it.
        const QString base = PastaDadosUsuario();
        atualizarCache(QStringLiteral("update-mime-database"), base + QStringLiteral("/mime"));
        atualizarCache(QStringLiteral("update-desktop-database"), base + QStringLiteral("/applications"));
    }
    return true;
}

QImage DesenharIconeLumetaEdit(int tamanho)
{
    QImage img(tamanho, tamanho, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(tamanho / 48.0, tamanho / 48.0);
    // The page, with its top-right corner folded.
    QPainterPath pagina;
    pagina.moveTo(8, 3);
    pagina.lineTo(32, 3);
    pagina.lineTo(41, 12);
    pagina.lineTo(41, 45);
    pagina.lineTo(8, 45);
    pagina.closeSubpath();
    p.setPen(QPen(QColor(70, 80, 95), 1.5));
    p.setBrush(Qt::white);
    p.drawPath(pagina);
    p.setBrush(QColor(205, 212, 222));
    p.drawPolygon(QPolygonF({QPointF(32, 3), QPointF(32, 12), QPointF(41, 12)}));
    p.setPen(Qt::NoPen);
    // Header band.
    p.setBrush(QColor(40, 110, 200));
    p.drawRect(QRectF(12, 14, 25, 6));
    // Rows of items, each a few cells wide.
    const QColor cores[] = {QColor(120, 130, 145), QColor(160, 170, 185)};
    for (int linha = 0; linha < 4; ++linha) {
        const qreal y = 24 + linha * 5;
        p.setBrush(cores[linha % 2]);
        p.drawRect(QRectF(12, y, 10, 2.6));
        p.drawRect(QRectF(24, y, linha == 3 ? 6 : 13, 2.6));
    }
    // The footer band.
    p.setBrush(QColor(230, 140, 30));
    p.drawRect(QRectF(12, 40, 25, 2.5));
    return img;
}

}  // namespace lumeta
