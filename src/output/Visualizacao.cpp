#include "output/Visualizacao.h"

#include "document/ArquivoDisco.h"
#include "document/ArquivoLMT.h"
#include "document/Texto1252.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <cerrno>

namespace lumeta {

namespace {

const QString MarcaEnter = QStringLiteral("{ENTER}");

}  // namespace

QStringList ArgumentosVisualizador(const QString &arquivo, bool enviarEmail)
{
    QStringList a{QStringLiteral("/G"), arquivo, QStringLiteral("/T"), QStringLiteral("Lumeta")};
    if (enviarEmail)
        a << QStringLiteral("/ED") << EmailExemplo;
    a << QStringLiteral("/SE");
    return a;
}

QString LocalizarVisualizador()
{
    const QString nome = qEnvironmentVariable(VariavelVisualizador).trimmed();
    if (nome.isEmpty())
        return QStandardPaths::findExecutable(QStringLiteral("Lumeta.exe"));
    if (nome.contains(QLatin1Char('/')))
        return QFileInfo::exists(nome) ? nome : QString();
    return QStandardPaths::findExecutable(nome);
}

bool Visualizar(const QString &texto, const QString &arquivo, bool enviarEmail, InterfaceUsuario *ui)
{
    const ErroArquivo gravacao = GravarArquivoPrivado(arquivo, Para1252(texto));
    if (gravacao) {
        ui->Mensagem(MensagemErroGravar(arquivo, gravacao.numero, gravacao.descricao), TituloVisualizar,
                     Icone::Exclamacao);
        return false;
    }
    const QString programa = LocalizarVisualizador();
    if (programa.isEmpty()) {
        ui->Mensagem(MensagemLumetaAusente, TituloVisualizar, Icone::Exclamacao);
        return false;
    }
    int numero = 0;
    if (!QFileInfo(programa).isExecutable()) {
        numero = EACCES;
    } else {
        errno = 0;
        if (!QProcess::startDetached(programa, ArgumentosVisualizador(arquivo, enviarEmail)))
            numero = errno ? errno : ENOEXEC;
    }
    if (numero == 0)
        return true;
    const ErroArquivo e = ErroDoSistema(numero, programa);
    ui->Mensagem(QStringLiteral("Ocorreu o erro número ") + QString::number(e.numero)
                     + QStringLiteral(" ao tentar visualizar!\r\r") + e.descricao,
                 TituloVisualizar, Icone::Exclamacao);
    return false;
}

QString TextoEmailParaCaixa(const QString &armazenado)
{
    QString t = armazenado;
    return t.replace(MarcaEnter, QStringLiteral("\n"), Qt::CaseSensitive);
}

QString TextoEmailDaCaixa(const QString &caixa)
{
    QString t = caixa;
    t.replace(QStringLiteral("\r\n"), MarcaEnter);
    return t.replace(QLatin1Char('\n'), MarcaEnter);
}

QString TextoEmailPadrao()
{
    return QStringLiteral("Em anexo o orçamento solicitado!\n"
                          "\n"
                          "Se você não possui o Adobe Reader® 6.0 ou superior instalado, será necessário\n"
                          "fazer o download no site abaixo:\n"
                          "\n"
                          "Versão 6.0 (9Mb):\n"
                          "https://www.exemplo.com.br/leitor-pdf/versao-6.0/instalador.exe\n"
                          "Outras versões:\n"
                          "https://www.exemplo.com.br/leitor-pdf/versoes\n");
}

}  // namespace lumeta
