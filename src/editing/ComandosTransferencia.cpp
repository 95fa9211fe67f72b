#include "editing/ComandosTransferencia.h"

#include "document/ArquivoDisco.h"
#include "document/ArquivoLMT.h"
#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/Selecao.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace lumeta {

namespace {

constexpr int TamanhoMarcador = 32;

void avisar(SessaoEdicao &s, const QString &texto, const QString &titulo, Icone icone)
{
    if (s.Ui)
        s.Ui->Mensagem(texto, titulo, icone);
}

// The bands a copy writes: whole bands of a range over several bands, else
// one band holding the range's items (or the selected item, or all items).
QList<Banda> bandasCopiadas(const SessaoEdicao &s)
{
    const LayoutDocumento &doc = s.Documento;
    FaixaSelecao f = s.Faixa;
    if (!f.visivel) {
        const int n = doc.banda(s.BandaSelecionada).NumItens();
        f = {true, s.BandaSelecionada, s.BandaSelecionada, s.ItemSelecionado > 0 ? s.ItemSelecionado : 1,
             s.ItemSelecionado > 0 ? s.ItemSelecionado : n};
    }
    QList<Banda> r;
    if (f.bandaInicial != f.bandaFinal) {
        for (int b = f.bandaInicial; b <= f.bandaFinal; ++b)
            r.append(doc.banda(b));
        return r;
    }
    Banda b = doc.banda(f.bandaInicial);
    const int de = std::max(1, f.itemInicial);
    const int ate = std::min(b.NumItens(), f.itemFinal);
    b.Itens = b.Itens.mid(de - 1, std::max(0, ate - de + 1));
    r.append(b);
    return r;
}

// Whether a band read from the exchange file can be laid out: items, and
// sizes far beyond any page but small enough that the sums of widths and
// heights the layout makes stay inside 32 bits. Anything else was not
// written by a copy.
bool bandaAceitavel(const Banda &b)
{
    constexpr qint64 Limite = 1 << 20;
    const auto dentro = [](qint64 v) { return v >= -Limite && v <= Limite; };
    if (!dentro(b.Altura) || (b.Deslocamento != -9999 && !dentro(b.Deslocamento)))
        return false;
    qint64 soma = 0;
    for (const Item &it : b.Itens) {
        if (it.Largura < 0 || it.Largura > Limite)
            return false;
        soma += it.Largura;
    }
    return soma <= Limite * 64;
}

}  // namespace

QByteArray MarcadorTransferencia(int maior, int menor, int revisao)
{
    const int m = ((menor % 100) + 100) % 100;
    QByteArray t = "LumetaEdit (" + QByteArray::number(maior) + '.' + QByteArray::number(m / 10) + '.'
        + QByteArray::number(m % 10) + '.' + QByteArray::number(revisao) + ") clpbrd\r\n";
    if (t.size() < TamanhoMarcador)
        t.append(QByteArray(TamanhoMarcador - t.size(), ' '));
    return t.left(TamanhoMarcador);
}

QByteArray MarcadorTransferencia()
{
    return MarcadorTransferencia(LUMETA_VERSAO_MAIOR, LUMETA_VERSAO_MENOR, LUMETA_VERSAO_REVISAO);
}

std::optional<QList<Banda>> LerAreaTransferencia(SessaoEdicao &s)
{
    const QFileInfo info(s.ArquivoTransferencia);
    if (!info.exists()) {
        avisar(s, MensagemTransferenciaVazia, TituloColar, Icone::Exclamacao);
        return std::nullopt;
    }
    // Only a regular file of the user's own is read, and never more than it
    // holds: a device or a pipe in its place could block or never end, and a
    // file someone else left there is not this user's copy.
    ArquivoLeitura f;
    QByteArray dados;
    QList<Banda> bandas;
    const bool lido = !f.AbrirPrivado(s.ArquivoTransferencia) && !f.Ler(TamanhoMarcador, dados)
        && dados == MarcadorTransferencia() && !f.Ler(f.Restante(), dados) && LerBandas(dados, TamanhoMarcador, bandas);
    if (!lido || bandas.isEmpty() || !std::all_of(bandas.cbegin(), bandas.cend(), bandaAceitavel)) {
        avisar(s, MensagemTransferenciaInvalida, TituloColar, Icone::Exclamacao);
        return std::nullopt;
    }
    return bandas;
}

bool mnuEditarCopiar(SessaoEdicao &s)
{
    if (s.Ganchos.EsvaziarAreaTransferencia)
        s.Ganchos.EsvaziarAreaTransferencia();
    const QString &arquivo = s.ArquivoTransferencia;
    const QList<Banda> bandas = bandasCopiadas(s);
    // What a paste could not read back replaces nothing.
    ResultadoArquivo r = VerificarLimites(arquivo, bandas);
    if (r.ok && QFileInfo::exists(arquivo) && !QFile::remove(arquivo)) {
        avisar(s, arquivo + QStringLiteral("\n\n") + MensagemSubstituirTransferencia, QString(), Icone::Critico);
        return false;
    }
    if (r.ok)
        r = GravarArquivoTemporario(arquivo, GravarBandas(MarcadorTransferencia(), bandas));
    if (!r.ok) {
        avisar(s, r.mensagem, QString(), Icone::Exclamacao);
        return false;
    }
    return true;
}

void mnuEditarRecortar(SessaoEdicao &s)
{
    if (mnuEditarCopiar(s))
        mnuEditarExcluir(s);
}

void mnuEditarColarBanda(SessaoEdicao &s)
{
    const std::optional<QList<Banda>> bandas = LerAreaTransferencia(s);
    if (!bandas || !CabemBandas(s, bandas->size(), TituloColar))
        return;
    LayoutDocumento &doc = s.Documento;
    const bool noFim = s.CliqueAbaixoDaUltimaBanda;
    int primeira = 0, ultima = 0;
    for (const Banda &copia : *bandas) {
        int alvo;
        if (noFim) {
            s.AddBanda(0, false, 0, 0);
            alvo = doc.NumBandas();
        } else {
            alvo = s.BandaSelecionada;
            s.AddBanda(alvo, false, 0, 0);
        }
        doc.banda(alvo) = copia;
        doc.ReposicionarItem(alvo);
        if (primeira == 0)
            primeira = alvo;
        ultima = alvo;
    }
    // A band without items, as a layout file may hold, is copied and pasted
    // like any other; alone it leaves no item range to show.
    if (primeira != ultima || doc.banda(primeira).NumItens() > 0)
        s.Faixa = {true, primeira, ultima, 1, std::max(1, doc.banda(primeira).NumItens())};
    else
        LimparFaixa(s);
    s.ConcluirEdicao();
}

void mnuEditarColarItem(SessaoEdicao &s)
{
    const std::optional<QList<Banda>> bandas = LerAreaTransferencia(s);
    if (!bandas)
        return;
    qsizetype novos = 0;
    for (const Banda &b : *bandas)
        novos += b.Itens.size();
    if (novos == 0)   // the copy of a band without items: nothing to insert
        return;
    if (!CabemItens(s, s.BandaSelecionada, novos, TituloColar))
        return;
    LimparFaixa(s);
    const int banda = s.BandaSelecionada;
    Banda &destino = s.Documento.banda(banda);
    int primeiro = 0, ultimo = 0;
    for (const Banda &b : *bandas)
        for (const Item &copia : b.Itens) {
            const int sel = s.ItemSelecionado;
            s.AddItem(banda, false, 0);
            const int novo = sel > 0 ? sel : destino.NumItens();
            destino.Itens[novo - 1] = copia;
            if (primeiro == 0)
                primeiro = novo;
            ultimo = novo;
        }
    s.Documento.ReposicionarItem(banda);
    s.Faixa = {true, banda, banda, primeiro, ultimo};
    s.ConcluirEdicao();
}

void mnuEditarExcluir(SessaoEdicao &s)
{
    LayoutDocumento &doc = s.Documento;
    const FaixaSelecao f = s.Faixa;
    if (!f.visivel) {
        if (s.ItemSelecionado > 0)
            mnuEditarItemRemover(s);
        else
            mnuEditarBandaRemover(s);
        return;
    }
    Banda &b = doc.banda(f.bandaInicial);
    const bool bandasInteiras = f.bandaInicial != f.bandaFinal
        || (f.itemInicial <= 1 && f.itemFinal >= b.NumItens());
    if (bandasInteiras && f.bandaInicial <= 1 && f.bandaFinal >= doc.NumBandas()) {
        avisar(s, MensagemExcluirTodas, QString(), Icone::Informacao);
        return;
    }
    LimparFaixa(s);
    if (bandasInteiras) {
        for (int n = f.bandaFinal; n >= f.bandaInicial; --n)
            s.RemoverBanda(n);
        NadaSelecionado(s);
        MostrarSelecao(s, true);
    } else {
        b.Itens.remove(f.itemInicial - 1, f.itemFinal - f.itemInicial + 1);
        if (s.BandaSelecionada == f.bandaInicial && s.ItemSelecionado > b.NumItens())
            s.ItemSelecionado = b.NumItens();
    }
    s.ConcluirEdicao();
}

}  // namespace lumeta
