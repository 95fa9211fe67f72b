#pragma once
// The print engine: command text laid out into A4 pages and painted with the
// canvas's own band painter. Opening a report reads it three times as a
// stream and keeps only what every page needs:
//  1. every line is checked, the options read and the header (the bands up
//     to the one that ends in "FC") and footer (from the one that ends in
//     "RO" to the end) located;
//  2. header and footer are kept; the bands between them are laid out page
//     by page (heights, "RT" placement, overflow, "QP"), and each page keeps
//     only where it starts in the file, so the page count is known;
//  3. painting a page reads its bands again from there.
// Memory thus follows the header, the footer and the page count, never the
// size of the report.

#include "canvas/Pintor.h"
#include "impressao/LeitorComandos.h"

#include <QDateTime>
#include <QIODevice>
#include <QSizeF>
#include <functional>
#include <memory>
#include <deque>
#include <vector>

class QPainter;
class QPagedPaintDevice;

namespace lumeta {

// The printable area, in canvas pixels (1/96 inch on paper).
inline constexpr int LarguraAreaImpressa = 768;
inline constexpr int AlturaAreaImpressa = 1027;

class MotorImpressao {
public:
    MotorImpressao();
    ~MotorImpressao();

    // A command file, or a layout file (".lmt"), read as its command text.
    bool AbrirArquivo(const QString &caminho);
    // Command text already in memory (the result pane's).
    bool AbrirTexto(const QString &texto, const QString &nome);
    // Any readable device; the engine takes it. It must be able to seek.
    bool Abrir(std::unique_ptr<QIODevice> entrada, const QString &nome);

    const QString &Erro() const { return m_erro; }
    int NumPaginas() const { return int(m_paginas.size()); }
    const OpcoesRelatorio &Opcoes() const { return m_opcoes; }
    // The sheet in 1/96 inch: A4, turned with "IP".
    QSizeF TamanhoFolha() const;
    // The top-left corner of the printable area on the sheet, 1/96 inch.
    QPoint OrigemArea() const;
    // The moment printing started, for the date and time macros; fixed for
    // tests.
    void DefinirMomento(const QDateTime &momento) { m_momento = momento; }

    // Paints page `pagina` (1-based) with the painter's units in 1/96 inch
    // from the sheet's top-left corner. The page is not cleared.
    bool PintarPagina(QPainter &pintor, int pagina);

    // Where each band of a page lands (canvas coordinates of the printable
    // area: top at 16, items at Esquerda + 8), header, body and footer.
    struct BandaColocada {
        Banda banda;
        int topo = 0;
        int fundo = 0;
        int limite = 0;  // the band is cut here (the end of the body)
    };
    std::vector<BandaColocada> BandasDaPagina(int pagina);

private:
    struct Pagina {
        PosicaoLeitura inicio;
        // As the reading stands at `inicio`; what the header and footer show
        // is read again from there.
        VariaveisRelatorio variaveisInicio;
        int bandas = 0;
    };
    using AoColocar = std::function<void(BandaColocada &)>;
    bool lerEstrutura();
    bool paginar();
    // Lays out one page from its start: the same code for counting the pages
    // and for painting them, so both agree on every break.
    bool disporPagina(int numero, Pagina &pagina, bool contar, PosicaoLeitura *proxima, bool *fimCorpo,
                      const AoColocar &aoColocar);
    void expandir(Banda &banda, int pagina, int paginas, const VariaveisRelatorio &variaveis);
    int alturaDe(const Banda &banda, int pagina, const VariaveisRelatorio &variaveis);
    RecursosCanvas &recursos();

    std::unique_ptr<QIODevice> m_entrada;
    std::unique_ptr<LeitorComandos> m_leitor;
    QString m_nome;
    QString m_erro;
    OpcoesRelatorio m_opcoes;
    std::vector<BandaLida> m_cabecalho, m_rodape;
    PosicaoLeitura m_inicioCorpo;
    VariaveisRelatorio m_variaveisCorpo;
    qint64 m_fimCorpo = -1;
    VariaveisRelatorio m_variaveisFinais;
    VariaveisRelatorio m_proximasVariaveis;  // as the reading stands where the next page starts
    std::deque<Pagina> m_paginas;  // grows without copying what it holds
    QDateTime m_momento;
    std::unique_ptr<RecursosCanvas> m_recursos;
    int m_usosRecursos = 0;
};

// Where the pages go. `progresso` hears (page, pages) after each page and
// may stop the work by answering false.
using ProgressoImpressao = std::function<bool(int, int)>;

// Every page into a PDF file (vector text, fonts embedded), written to a new
// file beside the name and renamed over it only when complete.
bool GravarPDF(MotorImpressao &motor, const QString &caminho, QString &erro, const ProgressoImpressao &progresso = {});
// One PNG per page: "NOME-1.png", "NOME-2.png"... for "NOME.png", at `dpi`.
bool GravarPNGs(MotorImpressao &motor, const QString &caminho, int dpi, QString &erro,
                const ProgressoImpressao &progresso = {});
// The image of one page at `dpi`.
QImage ImagemPagina(MotorImpressao &motor, int pagina, int dpi);
// Every page onto a paged device (a PDF writer, a printer) whose page size
// and orientation the caller set up; `newPage` comes between pages.
bool ImprimirPaginas(MotorImpressao &motor, QPagedPaintDevice &dispositivo, QString &erro,
                     const ProgressoImpressao &progresso = {}, int primeira = 1, int ultima = 0);

}  // namespace lumeta
