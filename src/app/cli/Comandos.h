#pragma once
// Sub-commands of lumetaedit-cli. Each source file registers its own commands
// with a static ComandoCli, so adding a command touches no other file.

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "canvas/Pintor.h"

namespace lumeta::cli {

using lumeta::LayoutDocumento;
using lumeta::RecursosCanvas;

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

// Whether an argument is an option ("-h", "--help"...): commands that take
// only file names refuse it rather than create a file of that name.
inline bool TemOpcao(const QStringList &args)
{
    for (const QString &a : args)
        if (a.size() > 1 && a.startsWith(QLatin1Char('-')))
            return true;
    return false;
}

// Shared by the commands that read a layout: reads it into the session and
// lays it out as the editor does once it opens the file, so what the command
// writes is what the editor shows. On failure prints the editor's message and
// returns false.
bool CarregarLayout(const QString &caminho, LayoutDocumento &doc, RecursosCanvas &recursos, Saidas &io);

// Writes a picture as PNG the way the editor writes its files (complete and
// synced before it replaces anything). A failure prints `mensagem` and, when
// the disk refused it, a blank line and the reason.
bool GravarPNG(const QImage &figura, const QString &caminho, const QString &mensagem, Saidas &io);

}  // namespace lumeta::cli
