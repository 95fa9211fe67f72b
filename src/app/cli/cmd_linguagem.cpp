// Commands on language definitions: the code of a layout in a language (the
// copybook), and new language files.

#include "app/cli/Comandos.h"
#include "document/ArquivoLMT.h"
#include "document/Configuracoes.h"
#include "document/Texto1252.h"
#include "output/CopiarComo.h"
#include "output/Linguagem.h"

#include <optional>

namespace lumeta::cli {

namespace {

const char *const kUsoCopiarComo = "copiar-como LINGUAGEM ARQUIVO.lmt [SAIDA.cpy] [--string | --continuacao]";
const char *const kUsoLinguagem = "linguagem nova NOME | linguagem lista";

int usoErrado(Saidas &io, const char *uso)
{
    io.err(QStringLiteral("Uso: lumetaedit-cli ") + QString::fromUtf8(uso));
    return 2;
}

// A name is looked up in the languages folder; a path ending in ".lin" is read
// as it stands.
bool lerLinguagem(const QString &arg, LinguagemDef &ling, Saidas &io)
{
    const LeituraLin r = arg.endsWith(ExtensaoLinguagem, Qt::CaseInsensitive)
        ? LerArquivoLinguagem(arg, ling)
        : LerArquivoLinguagem(CaminhoLinguagem(arg), ling);
    if (r.resultado != ResultadoLin::Ok) {
        io.err(r.mensagem);
        return false;
    }
    return true;
}

const ComandoCli copiarComo(40, "copiar-como", kUsoCopiarComo,
    "Gera o código do layout na linguagem (Editar > Copiar como), em Windows-1252 com linhas\n"
    "terminadas por CR LF, para que as colunas do COBOL sejam bytes. Sem SAIDA o código vai\n"
    "para a saída padrão; SAIDA existente é substituído. LINGUAGEM é o nome de uma linguagem\n"
    "da pasta de linguagens (variável LUMETAEDIT_LINGUAGENS, ou a pasta do programa) ou o\n"
    "caminho de um arquivo .lin. Numa linguagem COBOL as linhas longas são quebradas com\n"
    "STRING (--string) ou com linhas de continuação (--continuacao); sem opção vale a\n"
    "configuração \"No COBOL usar STRING\" do editor.",
    [](const QStringList &args, Saidas &io) {
        QStringList pos;
        int formas = 0;
        std::optional<bool> cobolString;
        for (const QString &a : args) {
            if (a == QLatin1String("--string")) {
                cobolString = true;
                ++formas;
            } else if (a == QLatin1String("--continuacao")) {
                cobolString = false;
                ++formas;
            } else if (TemOpcao({a})) {
                return usoErrado(io, kUsoCopiarComo);
            } else {
                pos.append(a);
            }
        }
        if (pos.size() < 2 || pos.size() > 3 || formas > 1)
            return usoErrado(io, kUsoCopiarComo);
        if (!cobolString) {
            Configuracoes c;
            c.Ler();
            cobolString = c.NoCobolUsarString;
        }
        LinguagemDef ling;
        ling.CobolString = *cobolString;
        if (!lerLinguagem(pos[0], ling, io))
            return 1;
        LayoutDocumento doc;
        RecursosCanvas recursos;
        if (!CarregarLayout(pos[1], doc, recursos, io))
            return 1;
        const QByteArray codigo = Para1252(GerarCopiarComo(doc, ling));
        if (pos.size() == 2) {
            io.out(codigo);
            return 0;
        }
        const ResultadoArquivo r = GravarArquivo(pos[2], codigo);
        if (!r.ok) {
            io.err(r.mensagem);
            return 1;
        }
        return 0;
    });

const ComandoCli linguagem(50, "linguagem", kUsoLinguagem,
    "nova: cria o arquivo NOME.lin com os modelos de uma linguagem nova, na pasta de\n"
    "linguagens; no nome, \\ / : * ? \" < > | viram \"_\" (como no diálogo Linguagens).\n"
    "lista: os nomes das linguagens da pasta, em ordem alfabética.",
    [](const QStringList &args, Saidas &io) {
        if (args.size() == 1 && args[0] == QLatin1String("lista")) {
            QByteArray saida;
            for (const QString &n : ListarLinguagens(true))
                saida += n.toLocal8Bit() + '\n';
            io.out(saida);
            return 0;
        }
        if (args.size() != 2 || args[0] != QLatin1String("nova") || args[1].isEmpty() || TemOpcao(args))
            return usoErrado(io, kUsoLinguagem);
        const QString nome = LimparNomeLinguagem(args[1]);
        if (LinguagemExiste(nome)) {
            io.err(MensagemLinguagemExiste(nome));
            return 1;
        }
        const LeituraLin r = GravarArquivoLinguagem(CaminhoLinguagem(nome), LinguagemPadrao());
        if (r.resultado != ResultadoLin::Ok) {
            io.err(r.mensagem);
            return 1;
        }
        io.out(CaminhoLinguagem(nome).toLocal8Bit() + '\n');
        return 0;
    });

}  // namespace
}  // namespace lumeta::cli
