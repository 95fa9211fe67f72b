// The print engine on a report of 100 and of 10,000 pages (a header, 50
// detail lines a page, a footer with the page number) written to PDF, each
// against its baseline: the same strings at the same places drawn by a bare
// QPdfWriter loop, which is the work the engine adds its own to. Each run
// happens in a child process, so its peak resident size is its own; pages
// per second and that peak are printed beside the time.
#include "document/Texto1252.h"
#include "impressao/MotorImpressao.h"

#include <QFile>
#include <QFont>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace lumeta;

namespace {

constexpr int LinhasPorPagina = 50;
constexpr int AlturaLinha = 19;  // 50 lines fill the 957 rows between header and footer

QString Texto(int indice, int coluna)
{
    switch (coluna) {
    case 0:
        return QString::number(100000 + indice);
    case 1:
        return QStringLiteral("Produto de número %1").arg(indice);
    default:
        return QString::number(indice * 37 % 10000) + QStringLiteral(",00");
    }
}

const int Esquerdas[] = {0, 100, 600};
const int Larguras[] = {96, 496, 164};

// The command file of `paginas` pages, written once per size.
const QString &Arquivo(int paginas)
{
    static QTemporaryDir dir;
    static std::map<int, QString> arquivos;
    QString &caminho = arquivos[paginas];
    if (!caminho.isEmpty())
        return caminho;
    caminho = dir.filePath(QStringLiteral("relatorio-%1.txt").arg(paginas));
    QFile f(caminho);
    f.open(QIODevice::WriteOnly);
    f.write("F 141000Arial\r\nT 009900002007640000100010Relatório de vendas\r\nRH 00040\r\nFC\r\nF 100000Arial\r\n");
    for (int i = 0; i < paginas * LinhasPorPagina; ++i) {
        QByteArray b;
        for (int c = 0; c < 3; ++c)
            b += "T 009900" + QByteArray::number(Esquerdas[c] + 2).rightJustified(5, '0')
                + QByteArray::number(Larguras[c] - 4).rightJustified(5, '0') + "0000100010" + Para1252(Texto(i, c))
                + "\r\n";
        f.write(b + "RH 00019\r\nQL\r\n");
    }
    f.write("T 009900002007640000100010Página (%_pag_%) de (%_pgs_%)\r\nRH 00030\r\nRO\r\n");
    return caminho;
}

// The baseline: the same strings at the same places, nothing laid out.
void PdfDireto(int paginas, const QString &saida)
{
    QPdfWriter pdf(saida);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    pdf.setResolution(96);
    QPainter p(&pdf);
    QFont titulo(QStringLiteral("Arial")), texto(QStringLiteral("Arial"));
    titulo.setPixelSize(19);
    titulo.setBold(true);
    texto.setPixelSize(13);
    const QPoint origem(15, 48);
    for (int n = 0; n < paginas; ++n) {
        if (n > 0)
            pdf.newPage();
        p.setFont(titulo);
        p.drawText(origem + QPoint(2, 18), QStringLiteral("Relatório de vendas"));
        p.setFont(texto);
        for (int l = 0; l < LinhasPorPagina; ++l)
            for (int c = 0; c < 3; ++c)
                p.drawText(origem + QPoint(Esquerdas[c] + 2, 40 + l * AlturaLinha + 13),
                           Texto(n * LinhasPorPagina + l, c));
        p.drawText(origem + QPoint(2, 997 + 13), QStringLiteral("Página %1 de %2").arg(n + 1).arg(paginas));
    }
}

void PdfMotor(int paginas, const QString &saida)
{
    MotorImpressao motor;
    QString erro;
    if (!motor.AbrirArquivo(Arquivo(paginas)) || motor.NumPaginas() != paginas || !GravarPDF(motor, saida, erro))
        _exit(1);
}

// Runs the work in a child and gives its peak resident size in megabytes.
double EmProcessoFilho(void (*trabalho)(int, const QString &), int paginas, const QString &saida)
{
    const pid_t filho = fork();
    if (filho == 0) {
        trabalho(paginas, saida);
        _exit(0);
    }
    int estado = 0;
    rusage uso{};
    wait4(filho, &estado, 0, &uso);
    if (!WIFEXITED(estado) || WEXITSTATUS(estado) != 0)
        return -1;
    return double(uso.ru_maxrss) / 1024;
}

void Medir(benchmark::State &st, void (*trabalho)(int, const QString &), const char *base)
{
    const int paginas = int(st.range(0));
    Arquivo(paginas);
    QTemporaryDir dir;
    double pico = 0;
    for (auto _ : st) {
        pico = EmProcessoFilho(trabalho, paginas, dir.filePath(QStringLiteral("saida.pdf")));
        if (pico < 0) {
            st.SkipWithError("o filho falhou");
            return;
        }
    }
    st.counters["paginas_s"] = benchmark::Counter(double(paginas) * double(st.iterations()),
                                                  benchmark::Counter::kIsRate);
    st.counters["pico_MB"] = pico;
    if (base)
        st.SetLabel(std::string("base=") + base + "/" + std::to_string(paginas) + "/iterations:1/real_time");
}

void BM_ImpressaoPdfBase(benchmark::State &st)
{
    Medir(st, PdfDireto, nullptr);
}

void BM_ImpressaoPdf(benchmark::State &st)
{
    Medir(st, PdfMotor, "BM_ImpressaoPdfBase");
}

}  // namespace

BENCHMARK(BM_ImpressaoPdfBase)->Arg(100)->Arg(10000)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);
BENCHMARK(BM_ImpressaoPdf)->Arg(100)->Arg(10000)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);
