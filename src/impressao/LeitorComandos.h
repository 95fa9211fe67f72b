#pragma once
// Reads the command text a host program writes (or the editor shows) as a
// stream: report options, band blocks, page breaks and the header and footer
// variables. Every line is checked; the first one that is none of the known
// commands stops the reading with a message that names it, so a file of
// garbage costs one line of work and a file without line ends one line's
// worth of memory.

#include "document/Layout.h"

#include <QMap>
#include <QString>

class QIODevice;

namespace lumeta {

// The report options, from the option lines wherever they stand.
struct OpcoesRelatorio {
    QString impressora;          // "I "
    int margemSuperior = 0;      // "MS ", millimetres
    int margemEsquerda = 0;      // "ME "
    int margemInferior = 0;      // "MI "
    bool paisagem = false;       // "IP"
    bool semVisualizar = false;  // "IR"
    bool temCapa = false;        // "TC": the first page has neither header nor footer
};

using VariaveisRelatorio = QMap<int, QString>;

enum class FimBanda { Linha, Cabecalho, Rodape };  // "QL", "FC", "RO"

// A band block made back into the model's band: its items at the positions
// the lines give, with the font in use for each.
struct BandaLida {
    Banda banda;
    FimBanda fim = FimBanda::Linha;
    bool quebraAntes = false;  // a "QP" came before it
    qint64 linha = 0;          // where the block starts, for messages
};

// Where the reading stands between two bands: enough to start there again.
struct PosicaoLeitura {
    qint64 deslocamento = 0;  // byte offset of the next line
    qint64 linha = 0;         // lines read before it
    FonteItem fonte;          // "F " carries over from band to band
    bool fonteDefinida = false;
    bool quebraPendente = false;
};

class LeitorComandos {
public:
    // `nome` names the file in messages. The device stays the caller's.
    LeitorComandos(QIODevice &entrada, const QString &nome);

    // The next band block; the option and variable lines before it are
    // applied to Opcoes and Variaveis. False at the end of the input (or of
    // the limit set by Limitar) and on an error (Erro then says why).
    bool ProximaBanda(BandaLida &banda);

    // Stops the reading at a byte offset, the start of a band block.
    void Limitar(qint64 deslocamento) { m_limite = deslocamento; }
    PosicaoLeitura Posicao() const;
    bool Retomar(const PosicaoLeitura &posicao);

    const QString &Erro() const { return m_erro; }
    OpcoesRelatorio Opcoes;
    VariaveisRelatorio Variaveis;

    // The longest line read: a text of 65,535 characters and its command.
    static constexpr qsizetype MaximoLinha = 65535 + 64;

private:
    enum class Lida { Linha, Fim, Erro };
    Lida lerLinha(QString &linha);
    bool falhar(const QString &linha, const char *motivo);
    bool fimBloco(BandaLida &banda, const QString &linha);

    QIODevice &m_entrada;
    QString m_nome;
    QByteArray m_buffer;
    qsizetype m_inicioBuffer = 0;   // first unread byte of m_buffer
    qint64 m_deslocamento = 0;      // file offset of m_buffer[m_inicioBuffer]
    qint64 m_linha = 0;
    qint64 m_limite = -1;
    bool m_fimArquivo = false;
    FonteItem m_fonte;
    bool m_fonteDefinida = false;
    bool m_quebraPendente = false;
    QString m_erro;
};

// The message for an input that ends inside a band block, or holds a bad
// line: the file, the line number, the line and the reason.
QString MensagemErroComandos(const QString &nome, qint64 linha, const QString &texto, const QString &motivo);

}  // namespace lumeta
