#pragma once
// Helpers shared by the tests: byte builders for hand-made files and a
// temporary folder per test.

#include "document/Layout.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace lumeta::teste {

// Little-endian writer for building .lmt/.lin files by hand in tests.
struct Bytes {
    QByteArray b;
    Bytes &raw(const QByteArray &s) { b.append(s); return *this; }
    Bytes &u8(int v) { return raw(QByteArray(1, char(v))); }
    Bytes &i16(int v) { return u8(v).u8(v >> 8); }
    Bytes &i32(int v) { return i16(v).i16(v >> 16); }
    Bytes &str(const QByteArray &s) { return i16(int(s.size())).raw(s); }  // 16-bit count + bytes
    // The 32-byte header of a revision letter.
    Bytes &cab(const char *revisao) { return raw(("LumetaEdit 1.0(" + QByteArray(revisao) + ")").leftJustified(32)); }
};

// An item of the given type, text and horizontal place; the rest as a new
// item has it.
inline Item NovoItem(uint8_t tipo, const QString &texto, int esquerda, int largura)
{
    return {.Texto = texto, .Fonte = {}, .Esquerda = esquerda, .Largura = largura, .Tipo = tipo};
}

// A COBOL program up to its working storage, with the file the shipped
// language's copybooks write (ARQ-LUMETA, line sequential) and the
// language's own variables declared.
QByteArray InicioProgramaCobol(const char *nome, const QString &defVariaveis);

// A good layout with one byte changed: its first band, full of symbols
// stretched to the band, a graph bar and text, is 1,778,384,986 pixels high;
// a second, ordinary band follows it.
LayoutDocumento LayoutBandaAltissima();

// Counts Qt's messages (warnings and the like) while it lives, and keeps
// them off standard error.
class ContadorMensagensQt {
public:
    ContadorMensagensQt() { s_total = 0; }
    ~ContadorMensagensQt() { qInstallMessageHandler(m_anterior); }
    int total() const { return s_total; }

private:
    inline static int s_total = 0;
    QtMessageHandler m_anterior =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++s_total; });
};

// A program run to its end in `pasta`: its exit code (-1 when it crashed or
// did not end within two minutes), its standard output (its errors too with
// `juntar`; nothing when `arquivoSaida` takes it) and its errors.
struct Execucao {
    int codigo;
    QByteArray saida;
    QString erros;
};
Execucao Executar(const QString &programa, const QStringList &args, const QString &pasta = {}, bool juntar = false,
                  const QString &arquivoSaida = {});
// The exit code of a program run in `pasta`; its output and errors together in `saida`.
inline int Rodar(const QString &programa, const QStringList &args, const QString &pasta, QByteArray &saida)
{
    const Execucao e = Executar(programa, args, pasta, true);
    saida = e.saida;
    return e.codigo;
}

QString CaminhoDados(const QString &nome);
QByteArray LerArquivo(const QString &caminho);
void GravarArquivoTeste(const QString &caminho, const QByteArray &dados);

}  // namespace lumeta::teste

#include <ostream>
// Readable failure messages for Qt texts.
inline void PrintTo(const QString &s, std::ostream *os)
{
    *os << '"' << s.toStdString() << '"';
}
