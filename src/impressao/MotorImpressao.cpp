#include "impressao/MotorImpressao.h"

#include "canvas/Unidades.h"
#include "document/ArquivoDisco.h"
#include "document/ArquivoLMT.h"
#include "document/Texto1252.h"
#include "output/Macros.h"
#include "output/TextoComandos.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

namespace lumeta {

namespace {

// A4 in 1/96 inch.
constexpr double LarguraA4 = 210.0 / 25.4 * 96.0;
constexpr double AlturaA4 = 297.0 / 25.4 * 96.0;
// The canvas places the first band at 16 and every item 8 to the right.
constexpr int TopoArea = TopoPrimeiraBanda;
constexpr int EsquerdaArea = DeslocamentoItens;
// Past this many pages the caches of fonts, measures, pictures and symbols
// start again, so a long report does not keep every word it ever printed.
constexpr int PaginasPorRecursos = 32;
// A header or footer of more bands than a layout may hold is no header.
constexpr int MaximoBandasFixas = 32767;

int Milimetros(int mm)
{
    return int(std::lround(mm * 3.7795275));
}

bool EhTexto(const Item &it)
{
    return it.Tipo != TipoFigura && it.Tipo != TipoBarraGrafico && !EhCodigoBarras(it.Tipo);
}

}  // namespace

MotorImpressao::MotorImpressao() : m_momento(QDateTime::currentDateTime()) {}
MotorImpressao::~MotorImpressao() = default;

RecursosCanvas &MotorImpressao::recursos()
{
    if (!m_recursos)
        m_recursos = std::make_unique<RecursosCanvas>();
    return *m_recursos;
}

bool MotorImpressao::AbrirArquivo(const QString &caminho)
{
    const QString nome = QFileInfo(caminho).fileName();
    if (caminho.endsWith(QLatin1String(".lmt"), Qt::CaseInsensitive)) {
        LayoutDocumento doc;
        const ResultadoArquivo r = AbrirArquivoLMT(caminho, doc);
        if (!r.ok) {
            m_erro = r.mensagem;
            return false;
        }
        RecursosCanvas medida;
        PrepararLayoutAberto(doc, medida.Medidor);
        return AbrirTexto(GerarTextoComandos(doc), nome);
    }
    auto arquivo = std::make_unique<QFile>(caminho);
    if (QFileInfo(caminho).isDir() || !arquivo->open(QIODevice::ReadOnly)) {
        m_erro = QStringLiteral("Não foi possível abrir o arquivo de comandos '%1'!").arg(caminho);
        return false;
    }
    return Abrir(std::move(arquivo), nome);
}

bool MotorImpressao::AbrirTexto(const QString &texto, const QString &nome)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(Para1252(texto));
    buffer->open(QIODevice::ReadOnly);
    return Abrir(std::move(buffer), nome);
}

bool MotorImpressao::Abrir(std::unique_ptr<QIODevice> entrada, const QString &nome)
{
    m_entrada = std::move(entrada);
    m_nome = nome;
    m_erro.clear();
    m_cabecalho.clear();
    m_rodape.clear();
    m_paginas.clear();
    m_leitor = std::make_unique<LeitorComandos>(*m_entrada, m_nome);
    if (!lerEstrutura() || !paginar()) {
        m_paginas.clear();
        return false;
    }
    return true;
}

bool MotorImpressao::lerEstrutura()
{
    LeitorComandos &leitor = *m_leitor;
    const PosicaoLeitura comeco = leitor.Posicao();
    PosicaoLeitura antes = comeco, fimCabecalho = comeco, inicioRodape;
    bool achouCabecalho = false, achouRodape = false;
    BandaLida b;
    while (leitor.ProximaBanda(b)) {
        if (!achouRodape && !achouCabecalho && b.fim == FimBanda::Cabecalho) {
            achouCabecalho = true;
            fimCabecalho = leitor.Posicao();
        } else if (!achouRodape && b.fim == FimBanda::Rodape) {
            achouRodape = true;
            inicioRodape = antes;
        }
        antes = leitor.Posicao();
    }
    if (!leitor.Erro().isEmpty()) {
        m_erro = leitor.Erro();
        return false;
    }
    if (m_entrada->isSequential()) {
        m_erro = QStringLiteral("O arquivo de comandos '%1' não pode ser relido: imprima a partir de um arquivo comum.")
                     .arg(m_nome);
        return false;
    }
    m_opcoes = leitor.Opcoes;
    m_variaveisFinais = leitor.Variaveis;

    auto lerFixas = [&](const PosicaoLeitura &de, qint64 ate, std::vector<BandaLida> &destino) {
        leitor.Retomar(de);
        leitor.Limitar(ate);
        while (leitor.ProximaBanda(b)) {
            if (destino.size() >= size_t(MaximoBandasFixas)) {
                m_erro = MensagemErroComandos(m_nome, b.linha, QString(),
                                              QStringLiteral("cabeçalho ou rodapé com bandas demais"));
                return false;
            }
            destino.push_back(std::move(b));
        }
        return leitor.Erro().isEmpty() || (m_erro = leitor.Erro(), false);
    };
    leitor.Variaveis.clear();
    if (achouCabecalho && !lerFixas(comeco, fimCabecalho.deslocamento, m_cabecalho))
        return false;
    m_inicioCorpo = achouCabecalho ? fimCabecalho : comeco;
    m_variaveisCorpo = leitor.Variaveis;
    m_fimCorpo = achouRodape ? inicioRodape.deslocamento : -1;
    if (achouRodape && !lerFixas(inicioRodape, -1, m_rodape))
        return false;
    return true;
}

void MotorImpressao::expandir(Banda &banda, int pagina, int paginas, const VariaveisRelatorio &variaveis)
{
    const ValoresMacros v{pagina, paginas, m_momento, QLocale::system(), &variaveis};
    for (Item &it : banda.Itens)
        if (EhTexto(it))
            it.Texto = ExpandirMacros(it.Texto, v);
}

int MotorImpressao::alturaDe(const Banda &banda, int pagina, const VariaveisRelatorio &variaveis)
{
    if (banda.Altura >= 1)
        return banda.Altura;
    // The page count is not known while the pages are counted: the text is
    // measured with the page number in its place, the same in both passes.
    Banda medida = banda;
    expandir(medida, pagina, pagina, variaveis);
    return CalcularAlturaBanda(medida, recursos().Medidor);
}

bool MotorImpressao::disporPagina(int numero, Pagina &pagina, bool contar, PosicaoLeitura *proxima,
                                  bool *fimCorpo, const AoColocar &aoColocar)
{
    LeitorComandos &leitor = *m_leitor;
    if (++m_usosRecursos >= PaginasPorRecursos) {
        m_recursos.reset();
        m_usosRecursos = 0;
    }
    recursos().Figuras.NovaPassagem();
    if (!leitor.Retomar(pagina.inicio)) {
        m_erro = leitor.Erro();
        return false;
    }
    leitor.Variaveis = pagina.variaveisInicio;
    leitor.Limitar(m_fimCorpo);
    const int paginas = contar ? numero : NumPaginas();
    const bool fixas = !(m_opcoes.temCapa && numero == 1);
    const int alturaArea = m_opcoes.paisagem ? LarguraAreaImpressa : AlturaAreaImpressa;
    const int topoArea = TopoArea + Milimetros(m_opcoes.margemSuperior);
    const int fimArea = TopoArea + alturaArea - Milimetros(m_opcoes.margemInferior);

    BandaLida b;
    bool temBanda = leitor.ProximaBanda(b);
    if (!leitor.Erro().isEmpty()) {
        m_erro = leitor.Erro();
        return false;
    }
    // The header shows the values as the first band of the page begins.
    const VariaveisRelatorio variaveisCabecalho = leitor.Variaveis;

    qint64 topoAnterior = topoArea, fundoAnterior = topoArea;
    bool primeira = true;
    auto colocar = [&](const Banda &banda, int altura) {
        qint64 topo = primeira ? topoArea : std::max(fundoAnterior + banda.Deslocamento, topoAnterior);
        primeira = false;
        topoAnterior = topo;
        fundoAnterior = topo + altura;
        return std::pair<int, int>(Limitar32(topo), Limitar32(fundoAnterior));
    };
    auto entregar = [&](const Banda &banda, int topo, int fundo, int limite, const VariaveisRelatorio &variaveis) {
        if (!aoColocar)
            return;
        BandaColocada c{banda, topo, fundo, limite};
        expandir(c.banda, numero, paginas, variaveis);
        aoColocar(c);
    };

    if (fixas)
        for (const BandaLida &h : m_cabecalho) {
            const auto [topo, fundo] = colocar(h.banda, alturaDe(h.banda, numero, variaveisCabecalho));
            entregar(h.banda, topo, fundo, fimArea, variaveisCabecalho);
        }

    // The footer stands against the end of the area; its heights are taken
    // with the variables as the page starts, since its values are only
    // known when the page ends.
    int fimCorpoPagina = fimArea;
    std::vector<std::pair<int, int>> rodape;
    if (fixas && !m_rodape.empty()) {
        qint64 t = 0, f = 0, total = 0;
        for (size_t i = 0; i < m_rodape.size(); ++i) {
            const Banda &banda = m_rodape[i].banda;
            const int altura = alturaDe(banda, numero, variaveisCabecalho);
            t = i == 0 ? 0 : std::max(f + banda.Deslocamento, t);
            f = t + altura;
            total = std::max(total, f);
            rodape.emplace_back(Limitar32(t), Limitar32(f));
        }
        fimCorpoPagina = Limitar32(fimArea - total);
    }

    int colocadas = 0;
    bool cheia = false;
    bool acabou = !temBanda;
    PosicaoLeitura depois = leitor.Posicao();
    VariaveisRelatorio variaveisDepois = leitor.Variaveis;
    while (temBanda) {
        if (colocadas > 0 && (b.quebraAntes || cheia))
            break;
        const int altura = alturaDe(b.banda, numero, leitor.Variaveis);
        const qint64 topo = primeira ? topoArea : std::max(fundoAnterior + b.banda.Deslocamento, topoAnterior);
        if (topo + altura > fimCorpoPagina) {
            if (colocadas > 0)
                break;
            // Taller than the whole body: a page of its own, cut at its end.
            cheia = true;
        }
        const auto [t, f] = colocar(b.banda, altura);
        ++colocadas;
        depois = leitor.Posicao();
        variaveisDepois = leitor.Variaveis;
        entregar(b.banda, t, f, fimCorpoPagina, leitor.Variaveis);
        if (!contar && colocadas >= pagina.bandas) {
            // Read on to where the next page starts, as counting did, for
            // the values the footer shows.
            acabou = numero >= NumPaginas();
            if (!acabou && !leitor.ProximaBanda(b) && !leitor.Erro().isEmpty()) {
                m_erro = leitor.Erro();
                return false;
            }
            break;
        }
        temBanda = leitor.ProximaBanda(b);
        if (!leitor.Erro().isEmpty()) {
            m_erro = leitor.Erro();
            return false;
        }
        acabou = !temBanda;
    }
    // The last page's footer shows the values as the report ends, so the
    // assignments written with the footer count.
    const VariaveisRelatorio variaveisRodape = acabou ? m_variaveisFinais : leitor.Variaveis;
    if (contar) {
        pagina.bandas = colocadas;
        if (proxima)
            *proxima = depois;
        if (fimCorpo)
            *fimCorpo = acabou;
        m_proximasVariaveis = variaveisDepois;
    }
    for (size_t i = 0; i < rodape.size(); ++i)
        entregar(m_rodape[i].banda, fimCorpoPagina + rodape[i].first, fimCorpoPagina + rodape[i].second, fimArea,
                 variaveisRodape);
    return true;
}

bool MotorImpressao::paginar()
{
    Pagina p;
    p.inicio = m_inicioCorpo;
    p.variaveisInicio = m_variaveisCorpo;
    for (int n = 1;; ++n) {
        PosicaoLeitura proxima;
        bool fim = false;
        if (!disporPagina(n, p, true, &proxima, &fim, {}))
            return false;
        m_paginas.push_back(p);
        if (fim)
            return true;
        Pagina q;
        q.inicio = proxima;
        q.variaveisInicio = m_proximasVariaveis;
        p = std::move(q);
    }
}

std::vector<MotorImpressao::BandaColocada> MotorImpressao::BandasDaPagina(int pagina)
{
    std::vector<BandaColocada> bandas;
    if (pagina < 1 || pagina > NumPaginas())
        return bandas;
    Pagina &p = m_paginas[size_t(pagina - 1)];
    disporPagina(pagina, p, false, nullptr, nullptr, [&](BandaColocada &c) { bandas.push_back(std::move(c)); });
    return bandas;
}

QSizeF MotorImpressao::TamanhoFolha() const
{
    return m_opcoes.paisagem ? QSizeF(AlturaA4, LarguraA4) : QSizeF(LarguraA4, AlturaA4);
}

QPoint MotorImpressao::OrigemArea() const
{
    const QSizeF folha = TamanhoFolha();
    const int largura = m_opcoes.paisagem ? AlturaAreaImpressa : LarguraAreaImpressa;
    const int altura = m_opcoes.paisagem ? LarguraAreaImpressa : AlturaAreaImpressa;
    // Whole pixels, so that a page at 96 dpi and the canvas agree pixel for pixel.
    return QPoint(int(std::lround((folha.width() - largura) / 2)), int(std::lround((folha.height() - altura) / 2)));
}

bool MotorImpressao::PintarPagina(QPainter &pintor, int pagina)
{
    if (pagina < 1 || pagina > NumPaginas())
        return false;
    const QPoint origem = OrigemArea();
    const int largura = m_opcoes.paisagem ? AlturaAreaImpressa : LarguraAreaImpressa;
    const int altura = m_opcoes.paisagem ? LarguraAreaImpressa : AlturaAreaImpressa;
    const int margem = Milimetros(m_opcoes.margemEsquerda);
    pintor.save();
    // Canvas coordinates: the area starts at (8, 16); the left margin moves
    // the items, not the area.
    pintor.translate(origem.x() - EsquerdaArea + margem, origem.y() - TopoArea);
    const QRect area(EsquerdaArea - margem, TopoArea, largura, altura);
    Pagina &p = m_paginas[size_t(pagina - 1)];
    // An item whose font cannot be used keeps the one before it, across
    // bands, as on the canvas.
    FonteItem corrente = FontePadraoCanvas();
    // One clip for the page; a band cut at the end of the body gets its own.
    // Every clip is a path in a PDF page, so bands that fit go without.
    pintor.setClipRect(area, Qt::IntersectClip);
    const bool ok = disporPagina(pagina, p, false, nullptr, nullptr, [&](BandaColocada &c) {
        QRect recorte = area;
        recorte.setBottom(std::min(area.bottom(), c.limite - 1));
        const FonteItem *fonte = &corrente;
        if (!recorte.isEmpty() && c.topo <= recorte.bottom()) {
            const bool cortada = c.fundo > c.limite;
            if (cortada) {
                pintor.save();
                pintor.setClipRect(recorte, Qt::IntersectClip);
            }
            PintarBanda(pintor, c.banda, c.topo, c.fundo, recorte, recursos(), fonte, true);
            if (cortada)
                pintor.restore();
        } else {
            for (const Item &it : c.banda.Itens)
                if (FonteValida(it.Fonte))
                    fonte = &it.Fonte;
        }
        corrente = *fonte;
    });
    pintor.restore();
    return ok;
}

// ---- Outputs ----

QImage ImagemPagina(MotorImpressao &motor, int pagina, int dpi)
{
    const double escala = dpi / 96.0;
    const QSizeF folha = motor.TamanhoFolha() * escala;
    QImage imagem(QSize(int(std::lround(folha.width())), int(std::lround(folha.height()))), QImage::Format_RGB32);
    if (imagem.isNull())
        return imagem;
    imagem.setDotsPerMeterX(int(std::lround(dpi / 0.0254)));
    imagem.setDotsPerMeterY(int(std::lround(dpi / 0.0254)));
    imagem.fill(Qt::white);
    QPainter p(&imagem);
    p.scale(escala, escala);
    motor.PintarPagina(p, pagina);
    return imagem;
}

bool ImprimirPaginas(MotorImpressao &motor, QPagedPaintDevice &dispositivo, QString &erro,
                     const ProgressoImpressao &progresso, int primeira, int ultima)
{
    if (ultima <= 0 || ultima > motor.NumPaginas())
        ultima = motor.NumPaginas();
    primeira = std::max(primeira, 1);
    QPainter p;
    if (!p.begin(&dispositivo)) {
        erro = QStringLiteral("Não foi possível iniciar a impressão!");
        return false;
    }
    // The device's own resolution; the pages are drawn in 1/96 inch, the
    // page rectangle being the whole sheet.
    const double escala = dispositivo.logicalDpiX() / 96.0;
    for (int n = primeira; n <= ultima; ++n) {
        if (n > primeira && !dispositivo.newPage()) {
            erro = QStringLiteral("Não foi possível iniciar a página %1!").arg(n);
            return false;
        }
        p.save();
        p.scale(escala, escala);
        const bool ok = motor.PintarPagina(p, n);
        p.restore();
        if (!ok) {
            erro = motor.Erro();
            return false;
        }
        if (progresso && !progresso(n, ultima)) {
            erro = QStringLiteral("Impressão cancelada.");
            return false;
        }
    }
    return p.end();
}

bool GravarPDF(MotorImpressao &motor, const QString &caminho, QString &erro, const ProgressoImpressao &progresso)
{
    const QString mensagem = QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + caminho + QStringLiteral("'!");
    GravacaoArquivo arquivo;
    if (const ErroArquivo e = arquivo.Iniciar(caminho)) {
        erro = mensagem + QStringLiteral("\n\n") + QString::number(e.numero) + QStringLiteral(" - ") + e.descricao;
        return false;
    }
    {
        QPdfWriter pdf(&arquivo.Dispositivo());
        pdf.setCreator(QStringLiteral("LumetaEdit"));
        pdf.setTitle(QFileInfo(caminho).completeBaseName());
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageOrientation(motor.Opcoes().paisagem ? QPageLayout::Landscape : QPageLayout::Portrait);
        pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
        pdf.setResolution(96);
        if (!ImprimirPaginas(motor, pdf, erro, progresso))
            return false;
    }
    if (const ErroArquivo e = arquivo.Concluir()) {
        erro = mensagem + QStringLiteral("\n\n") + QString::number(e.numero) + QStringLiteral(" - ") + e.descricao;
        return false;
    }
    return true;
}

bool GravarPNGs(MotorImpressao &motor, const QString &caminho, int dpi, QString &erro,
                const ProgressoImpressao &progresso)
{
    QString base = caminho;
    if (base.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        base.chop(4);
    for (int n = 1; n <= motor.NumPaginas(); ++n) {
        const QString nome = base + QLatin1Char('-') + QString::number(n) + QStringLiteral(".png");
        const QImage imagem = ImagemPagina(motor, n, dpi);
        QByteArray png;
        QBuffer buffer(&png);
        if (imagem.isNull() || !buffer.open(QIODevice::WriteOnly) || !imagem.save(&buffer, "PNG")) {
            erro = QStringLiteral("Não foi possível gravar a figura '") + nome + QStringLiteral("'!");
            return false;
        }
        if (const ErroArquivo e = GravarArquivoAtomico(nome, png)) {
            erro = QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + nome + QStringLiteral("'!\n\n")
                + QString::number(e.numero) + QStringLiteral(" - ") + e.descricao;
            return false;
        }
        if (progresso && !progresso(n, motor.NumPaginas())) {
            erro = QStringLiteral("Impressão cancelada.");
            return false;
        }
    }
    return true;
}

}  // namespace lumeta
