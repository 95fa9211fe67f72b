#pragma once
// Sub-commands of lumetaedit-cli. Each source file registers its own commands
// with a static ComandoCli, so adding a command touches no other file.

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "document/Layout.h"

namespace lumeta::cli {

using lumeta::LayoutDocumento;

struct Saidas {
    std::function<void(const QByteArray &)> out;  // raw bytes to standard output
    std::function<void(const QString &)> err;     // a message line to standard error
};

struct ComandoCli {
    using Funcao = std::function<int(const QStringList &args, Saidas &io)>;
    ComandoCli(int ordem, const char *nome, const char *uso, const char *descricao, Funcao f);
};

struct DefinicaoComando {
    int ordem;
    QString nome;
    QString uso;
    QString descricao;
    ComandoCli::Funcao funcao;
};
std::vector<DefinicaoComando> &TodosComandos();

// Shared by the commands that read a layout: on failure prints the editor's
// message and returns false.
bool CarregarLayout(const QString &caminho, LayoutDocumento &destino, Saidas &io);

// Writes a picture as PNG the way the editor writes its files (complete and
// synced before it replaces anything). A failure prints `mensagem` and, when
// the disk refused it, a blank line and the reason.
bool GravarPNG(const QImage &figura, const QString &caminho, const QString &mensagem, Saidas &io);

}  // namespace lumeta::cli
