#include "support/TestSupport.h"

#include "document/Texto1252.h"

#include <QFile>
#include <QProcess>

namespace lumeta::teste {

LayoutDocumento LayoutBandaAltissima()
{
    Banda alta;
    alta.Altura = 1778384986;
    // Stretched to the band, turned (a turned symbol takes its bars from
    // the item's width), magnified; the digits lie at the far end.
    const std::tuple<uint8_t, const char *, int, const char *> itens[] = {
        {TipoEAN13, "\"789123456789\"", 200, "0000000021"}, {TipoTexto, "Texto", 100, "0000100010"},
        {TipoBarraGrafico, "\"99999999999\"", 80, "0000100010"}, {TipoCode128B, "\"ABC\"", 2000000000, "0000002011"},
        {TipoInterlace25, "\"12345\"", 64, "0000004001"}, {TipoPDF417, "\"PDF\"", 90, "0000000031"},
    };
    for (const auto &[tipo, texto, largura, atributos] : itens)
        alta.Itens.append({.Texto = QString::fromLatin1(texto), .Fonte = {}, .Largura = largura,
                           .Atributos = QString::fromLatin1(atributos), .Tipo = tipo});
    Banda comum;
    comum.Altura = 18;
    comum.Itens = {NovoItem(TipoTexto, QStringLiteral("fim"), 0, 64)};
    LayoutDocumento doc;
    doc.Bandas = {alta, comum};
    doc.ReposicionarTudo();
    return doc;
}

QString CaminhoDados(const QString &nome)
{
    return QStringLiteral(LUMETA_TEST_DATA "/") + nome;
}

QByteArray LerArquivo(const QString &caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

void GravarArquivoTeste(const QString &caminho, const QByteArray &dados)
{
    QFile f(caminho);
    if (f.open(QIODevice::WriteOnly))
        f.write(dados);
}

QByteArray InicioProgramaCobol(const char *nome, const QString &defVariaveis)
{
    return QByteArray("       identification division.\n"
                      "       program-id. ") + nome + ".\n"
        "       environment division.\n"
        "       input-output section.\n"
        "       file-control.\n"
        "           select ARQ-LUMETA assign to WS-LUMETA-ARQUIVO\n"
        "               organization is line sequential.\n"
        "       data division.\n"
        "       file section.\n"
        "       fd  ARQ-LUMETA.\n"
        "       01  REG-LUMETA pic x(2000).\n"
        "       working-storage section.\n"
        + Para1252(defVariaveis) + "\n";
}

Execucao Executar(const QString &programa, const QStringList &args, const QString &pasta, bool juntar,
                  const QString &arquivoSaida)
{
    QProcess p;
    p.setWorkingDirectory(pasta);
    if (juntar)
        p.setProcessChannelMode(QProcess::MergedChannels);
    if (!arquivoSaida.isEmpty())
        p.setStandardOutputFile(arquivoSaida);
    p.start(programa, args);
    const bool terminou = p.waitForFinished(120000);
    p.kill();
    p.waitForFinished();
    return {terminou && p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, p.readAllStandardOutput(),
            QString::fromLocal8Bit(p.readAllStandardError())};
}

}  // namespace lumeta::teste
