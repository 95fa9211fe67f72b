#include "controls/ui/InterfaceUsuarioQt.h"

#include "controls/ui/CommonDialogCls.h"
#include "document/Layout.h"

#include <QDir>
#include <QAbstractButton>
#include <QCoreApplication>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>

namespace lumeta {

namespace {

QMessageBox::Icon iconeQt(Icone i)
{
    switch (i) {
    case Icone::Informacao: return QMessageBox::Information;
    case Icone::Exclamacao: return QMessageBox::Warning;
    case Icone::Critico: return QMessageBox::Critical;
    case Icone::Pergunta: return QMessageBox::Question;
    case Icone::Nenhum: break;
    }
    return QMessageBox::NoIcon;
}

// A box without a title carries the application's, as message boxes do.
QString tituloOu(const QString &titulo)
{
    return titulo.isEmpty() ? TituloAplicacao : titulo;
}

QString extensaoDoFiltro(const QString &filtro)
{
    // The first pattern of the first entry: "*.lmt" gives "lmt".
    const QStringList partes = filtro.split(QLatin1Char('|'));
    if (partes.size() < 2)
        return QString();
    const QString padrao = partes[1].section(QLatin1Char(';'), 0, 0).trimmed();
    const QString ext = padrao.startsWith(QStringLiteral("*.")) ? padrao.mid(2) : QString();
    return ext.contains(QLatin1Char('*')) || ext.contains(QLatin1Char('?')) ? QString() : ext;
}

}  // namespace

namespace {

// Qt 6 moved the file dialog's type column ("Folder", "File", "%1 File") to
// a context the catalogue does not know yet; they are looked up where Qt 5
// kept them.
class TraducaoQt : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char *contexto, const char *texto, const char *desambiguacao, int n) const override
    {
        const QString r = QTranslator::translate(contexto, texto, desambiguacao, n);
        if (r.isEmpty() && qstrcmp(contexto, "QAbstractFileIconProvider") == 0)
            return QTranslator::translate("QFileDialog", texto, desambiguacao, n);
        return r;
    }
};

}  // namespace

QTranslator *CarregarTraducoesQt(QCoreApplication &app)
{
    auto *t = new TraducaoQt(&app);
    if (!t->load(QLocale(QLocale::Portuguese, QLocale::Brazil), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete t;
        return nullptr;
    }
    QCoreApplication::installTranslator(t);
    return t;
}

void InterfaceUsuarioQt::Mensagem(const QString &texto, const QString &titulo, Icone icone)
{
    QMessageBox m(iconeQt(icone), tituloOu(titulo), texto, QMessageBox::Ok, m_dono);
    m.exec();
}

Resposta InterfaceUsuarioQt::Perguntar(const QString &texto, const QString &titulo, Botoes botoes, Icone icone)
{
    QMessageBox::StandardButtons b;
    switch (botoes) {
    case Botoes::Ok: b = QMessageBox::Ok; break;
    case Botoes::SimNao: b = QMessageBox::Yes | QMessageBox::No; break;
    case Botoes::SimNaoCancelar: b = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel; break;
    case Botoes::OkCancelar: b = QMessageBox::Ok | QMessageBox::Cancel; break;
    }
    QMessageBox m(iconeQt(icone), tituloOu(titulo), texto, b, m_dono);
    if (QAbstractButton *sim = m.button(QMessageBox::Yes))
        sim->setText(QStringLiteral("&Sim"));
    if (QAbstractButton *nao = m.button(QMessageBox::No))
        nao->setText(QStringLiteral("&Não"));
    if (QAbstractButton *cancelar = m.button(QMessageBox::Cancel))
        cancelar->setText(QStringLiteral("Cancelar"));
    switch (m.exec()) {
    case QMessageBox::Yes: return Resposta::Sim;
    case QMessageBox::No: return Resposta::Nao;
    case QMessageBox::Ok: return Resposta::Ok;
    default: return Resposta::Cancelar;
    }
}

QString InterfaceUsuarioQt::ArquivoSalvar(const OpcoesArquivo &o)
{
    QString inicial = o.nomeProposto;
    if (!o.pastaInicial.isEmpty() && !inicial.isEmpty() && QFileInfo(inicial).isRelative())
        inicial = QDir(o.pastaInicial).filePath(inicial);
    return CommonDialogCls::GetSaveName(o.titulo, o.filtro, inicial, extensaoDoFiltro(o.filtro), m_dono);
}

QString InterfaceUsuarioQt::ArquivoAbrir(const OpcoesArquivo &o)
{
    QString inicial = o.nomeProposto;
    if (!o.pastaInicial.isEmpty() && inicial.isEmpty())
        inicial = QDir(o.pastaInicial).absolutePath() + QLatin1Char('/');
    return CommonDialogCls::GetOpenName(o.titulo, o.filtro, inicial, m_dono);
}

std::optional<QString> InterfaceUsuarioQt::Entrada(const QString &pergunta, const QString &titulo, const QString &padrao)
{
    bool ok = false;
    const QString r = QInputDialog::getText(m_dono, tituloOu(titulo), pergunta, QLineEdit::Normal, padrao, &ok);
    if (!ok)
        return std::nullopt;
    return r;
}

std::optional<FonteEscolhida> InterfaceUsuarioQt::Fonte(const FonteEscolhida &inicial, bool soImpressao)
{
    FonteEscolhida f = inicial;
    if (!CommonDialogCls::GetFont(f, m_dono, soImpressao))
        return std::nullopt;
    return f;
}

std::optional<int> InterfaceUsuarioQt::Cor(int inicial)
{
    const int c = CommonDialogCls::PickColor(inicial, m_dono);
    if (c < 0)
        return std::nullopt;
    return c;
}

}  // namespace lumeta
