// Commands on whole layouts: a new one, its command text, its command list.

#include "app/cli/Comandos.h"
#include "document/ArquivoLMT.h"
#include "editing/SessaoEdicao.h"
#include "document/Texto1252.h"
#include "output/TextoComandos.h"

namespace lumeta::cli {

namespace {

int usoErrado(Saidas &io, const char *uso)
{
    io.err(QStringLiteral("Uso: lumetaedit-cli ") + QString::fromUtf8(uso));
    return 2;
}

const ComandoCli novo(10, "novo", "novo SAIDA.lmt",
    "Grava um layout novo: uma banda com o item \"Texto 1\", como o comando Novo do editor.",
    [](const QStringList &args, Saidas &io) {
        if (args.size() != 1 || TemOpcao(args))
            return usoErrado(io, "novo SAIDA.lmt");
        SessaoEdicao sessao;
        const ResultadoArquivo r = GravarArquivoLMT(args[0], sessao.Documento);
        if (!r.ok) {
            io.err(r.mensagem);
            return 1;
        }
        return 0;
    });

const ComandoCli texto(20, "texto", "texto ARQUIVO.lmt",
    "Escreve na saída padrão o arquivo texto de comandos do layout, exatamente os bytes\n"
    "que o Lumeta.exe lê (Windows-1252, linhas terminadas por CR LF).",
    [](const QStringList &args, Saidas &io) {
        if (args.size() != 1 || TemOpcao(args))
            return usoErrado(io, "texto ARQUIVO.lmt");
        LayoutDocumento doc;
        RecursosCanvas recursos;
        if (!CarregarLayout(args[0], doc, recursos, io))
            return 1;
        io.out(Para1252(GerarTextoComandos(doc)));
        return 0;
    });

const ComandoCli comandos(30, "comandos", "comandos ARQUIVO.lmt",
    "Escreve os textos distintos dos itens de comando do layout, um por linha\n"
    "(o mesmo que Editar > Copiar como > Comandos utilizados).",
    [](const QStringList &args, Saidas &io) {
        if (args.size() != 1 || TemOpcao(args))
            return usoErrado(io, "comandos ARQUIVO.lmt");
        LayoutDocumento doc;
        RecursosCanvas recursos;
        if (!CarregarLayout(args[0], doc, recursos, io))
            return 1;
        io.out(Para1252(ListaComandosUtilizados(doc)));
        return 0;
    });

}  // namespace
}  // namespace lumeta::cli
