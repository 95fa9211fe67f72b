#pragma once
// The .lmt layout file: a 32-byte text header carrying a revision letter, then a
// field-by-field little-endian dump of the model. Every revision from "a" on is
// read; revision "t" is written.

#include "document/Layout.h"

#include <QByteArray>

namespace lumeta {

inline constexpr char RevisaoAtual = 't';
inline const QString FiltroLMT = QStringLiteral("Lumeta Layout (*.lmt)|*.lmt");

enum class ResultadoLeitura {
    Ok,
    FormatoInvalido,   // no header naming a revision this editor knows (also a file under 32 bytes)
    ErroLeitura,       // the file is shorter than its fields say, or unreadable
};

struct LeituraLMT {
    ResultadoLeitura resultado = ResultadoLeitura::Ok;
    QString erro;      // the error text of ErroLeitura (why the bytes could not be read)
    char revisao = 0;
};

// Decodes a whole file's bytes. On failure the document is left untouched.
LeituraLMT LerLMT(const QByteArray &dados, LayoutDocumento &doc);
QByteArray GravarLMT(const LayoutDocumento &doc);

// A band list behind a marker, as the clipboard exchange file holds it: a
// 16-bit count and the band records of the current revision. LerBandas
// reads from `inicio` and leaves `bandas` untouched unless every record is
// whole.
QByteArray GravarBandas(const QByteArray &marcador, const QList<Banda> &bandas);
bool LerBandas(const QByteArray &dados, qsizetype inicio, QList<Banda> &bandas);

// The messages the editor shows for a failed open or save, word for word.
QString MensagemFormatoInvalido(const QString &caminho);
QString MensagemErroAbrir(const QString &caminho, const QString &erro);
QString MensagemErroGravar(const QString &caminho, int numero, const QString &descricao);
inline const QString TituloFormatoInvalido = QStringLiteral("Impossível Abrir");

struct ResultadoArquivo {
    bool ok = true;
    ResultadoLeitura leitura = ResultadoLeitura::Ok;
    QString mensagem;  // ready to show when !ok
    QString titulo;
    int numeroErro = 0;     // a failed write: the error number and description
    QString descricaoErro;  // that the message carries, for other messages
};

// Reads a file from disk into doc; doc is unchanged unless ok. Only a regular
// file is read, its header first.
ResultadoArquivo AbrirArquivoLMT(const QString &caminho, LayoutDocumento &doc);

// Writes any file of the editor (see GravarArquivoAtomico) and words a failure
// with the editor's save message.
ResultadoArquivo GravarArquivo(const QString &caminho, const QByteArray &dados);
// The same for a file of the private temporary folder (GravarArquivoPrivado).
ResultadoArquivo GravarArquivoTemporario(const QString &caminho, const QByteArray &dados);

// The error number of a layout or band list past what the file can hold.
inline constexpr int ErroEstouro = 6;
// Why bands or a layout cannot be written so that they read back (a count
// or a text past the file's limits); empty when they can.
QString ExcessoLimites(const QList<Banda> &bandas);
QString ExcessoLimites(const LayoutDocumento &doc);
// ExcessoLimites worded as a failed save of caminho; ok when nothing exceeds.
ResultadoArquivo VerificarLimites(const QString &caminho, const QList<Banda> &bandas);
ResultadoArquivo VerificarLimites(const QString &caminho, const LayoutDocumento &doc);

// Refuses a layout past the limits before anything is written, so the old
// file stays as it was.
ResultadoArquivo GravarArquivoLMT(const QString &caminho, const LayoutDocumento &doc);

}  // namespace lumeta
