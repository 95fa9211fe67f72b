#include "editing/Selecao.h"

#include <algorithm>
#include <cstdlib>

namespace lumeta {

namespace {

qint64 fundo(const Banda &b)
{
    return qint64(b.Topo) + std::abs(qint64(b.Altura)) - 1;
}

int limitar(qint64 v)
{
    return int(std::clamp<qint64>(v, INT32_MIN, INT32_MAX));
}

void chamar(const std::function<void()> &f)
{
    if (f)
        f();
}

}  // namespace

PontoLocalizado LocalizarPonto(const LayoutDocumento &doc, int x, int y)
{
    int menorBanda = 0;
    for (int b = doc.NumBandas(); b >= 1; --b) {
        const Banda &banda = doc.banda(b);
        if (y < banda.Topo || y > fundo(banda))
            continue;
        for (int i = 1; i <= banda.NumItens(); ++i) {
            const Item &it = banda.Itens[i - 1];
            const qint64 esq = qint64(it.Esquerda) + MargemItens;
            if (x >= esq && x <= esq + it.Largura - 1)
                return {b, i};
        }
        menorBanda = b;
    }
    return {menorBanda, 0};
}

QRect RetanguloSelecao(const SessaoEdicao &s)
{
    const LayoutDocumento &doc = s.Documento;
    if (s.BandaSelecionada < 1 || s.BandaSelecionada > doc.NumBandas())
        return {};
    const Banda &b = doc.banda(s.BandaSelecionada);
    if (s.ItemSelecionado < 1 || s.ItemSelecionado > b.NumItens())
        return {};
    const Item &it = b.Itens[s.ItemSelecionado - 1];
    return QRect(limitar(qint64(it.Esquerda) + MargemItens), b.Topo, it.Largura,
                 limitar(std::abs(qint64(b.Altura))));
}

QRect RetanguloFaixa(const SessaoEdicao &s)
{
    const FaixaSelecao &f = s.Faixa;
    const LayoutDocumento &doc = s.Documento;
    if (!f.visivel || f.bandaInicial < 1 || f.bandaFinal > doc.NumBandas())
        return {};
    if (f.UmaBanda()) {
        const Banda &b = doc.banda(f.bandaInicial);
        const int ultimo = std::min(f.itemFinal, b.NumItens());
        if (f.itemInicial < 1 || ultimo < f.itemInicial)
            return {};
        const Item &primeiro = b.Itens[f.itemInicial - 1];
        const Item &fim = b.Itens[ultimo - 1];
        return QRect(limitar(qint64(primeiro.Esquerda) + 7), b.Topo - 1,
                     limitar(qint64(fim.Esquerda) + fim.Largura - primeiro.Esquerda + 2),
                     limitar(std::abs(qint64(b.Altura)) + 2));
    }
    qint64 largura = 0;
    for (int n = f.bandaInicial; n <= f.bandaFinal; ++n) {
        const Banda &b = doc.banda(n);
        if (!b.Itens.isEmpty())
            largura = std::max(largura, qint64(b.Itens.last().Esquerda) + b.Itens.last().Largura);
    }
    const Banda &primeira = doc.banda(f.bandaInicial);
    const qint64 baixo = fundo(doc.banda(f.bandaFinal));
    return QRect(7, primeira.Topo - 1, limitar(largura + 2), limitar(baixo - primeira.Topo + 3));
}

QString LegendaSelecao(const SessaoEdicao &s)
{
    if (s.ItemSelecionado > 0)
        return QStringLiteral("(%1, %2)").arg(s.BandaSelecionada).arg(s.ItemSelecionado);
    return QStringLiteral("(%1)").arg(s.BandaSelecionada);
}

bool DentroDaFaixa(const SessaoEdicao &s, int banda, int item)
{
    const FaixaSelecao &f = s.Faixa;
    if (!f.visivel || banda < f.bandaInicial || banda > f.bandaFinal)
        return false;
    return f.VariasBandas() || (item >= f.itemInicial && item <= f.itemFinal);
}

void SelecionarFaixa(SessaoEdicao &s, int banda, int item)
{
    FaixaSelecao &f = s.Faixa;
    if (banda == 0 || item == 0) {
        if (f.visivel) {
            f = FaixaSelecao();
            chamar(s.Ganchos.SelecionarItem);
        }
        return;
    }
    if (banda != FaixaTudo) {
        f.bandaInicial = std::min(banda, s.BandaSelecionada);
        f.bandaFinal = std::max(banda, s.BandaSelecionada);
        if (s.ItemSelecionado > 0) {
            f.itemInicial = std::min(item, s.ItemSelecionado);
            f.itemFinal = std::max(item, s.ItemSelecionado);
        } else {
            f.itemInicial = f.itemFinal = item;
        }
    }
    f.visivel = true;
    chamar(s.Ganchos.SelecionarItem);
}

void NadaSelecionado(SessaoEdicao &s)
{
    s.ItemSelecionado = 0;
    chamar(s.Ganchos.SelecionarItem);
}

void MostrarSelecao(SessaoEdicao &s, bool bandaMudou)
{
    if (bandaMudou)
        chamar(s.Ganchos.SelecionarBanda);
    chamar(s.Ganchos.SelecionarItem);
    chamar(s.Ganchos.Validar);
}

ReacaoMouse MouseDownCanvas(SessaoEdicao &s, int x, int y, BotaoMouse botao, bool shift)
{
    // Pending panel edits are committed first; a refused value keeps the
    // user where the value is.
    if (s.ItemSelecionado > 0 && s.Ganchos.ConfirmarPainel && !s.Ganchos.ConfirmarPainel())
        return ReacaoMouse::Nada;
    const LayoutDocumento &doc = s.Documento;
    PontoLocalizado hit = LocalizarPonto(doc, x, y);
    const bool direito = botao == BotaoMouse::Direito;

    if (shift && hit.banda > 0 && hit.item > 0) {
        if (hit.banda == s.BandaSelecionada && hit.item == s.ItemSelecionado)
            LimparFaixa(s);
        else
            SelecionarFaixa(s, hit.banda, hit.item);
        return ReacaoMouse::Nada;
    }
    if (direito && s.Faixa.visivel && DentroDaFaixa(s, hit.banda, hit.item))
        return ReacaoMouse::MenuEditar;

    LimparFaixa(s);
    const Banda &ultima = doc.banda(doc.NumBandas());
    s.CliqueAbaixoDaUltimaBanda = y > fundo(ultima);
    bool continuar = true;
    if (hit.banda == 0) {
        if (y < doc.banda(1).Topo) {
            hit.banda = 1;
        } else if (s.CliqueAbaixoDaUltimaBanda) {
            hit.banda = doc.NumBandas();
        } else {
            NadaSelecionado(s);
            continuar = false;
        }
    }
    if (continuar) {
        const bool bandaMudou = hit.banda != s.BandaSelecionada;
        if (bandaMudou) {
            s.BandaSelecionada = hit.banda;
            chamar(s.Ganchos.SelecionarBanda);
        }
        if (hit.item > 0) {
            const bool mudou = bandaMudou || hit.item != s.ItemSelecionado;
            s.ItemSelecionado = hit.item;
            if (mudou)
                chamar(s.Ganchos.SelecionarItem);
        } else {
            NadaSelecionado(s);
        }
    }
    chamar(s.Ganchos.Validar);
    return direito ? ReacaoMouse::MenuEditar : ReacaoMouse::Nada;
}

void ArrastarSelecao(SessaoEdicao &s, int x, int y)
{
    if (s.ItemSelecionado < 1)
        return;
    const LayoutDocumento &doc = s.Documento;
    PontoLocalizado hit = LocalizarPonto(doc, x, y);
    if (hit.banda == 0) {
        const int sel = s.BandaSelecionada;
        if (y < doc.banda(sel).Topo) {
            for (int b = 1; b <= sel; ++b)
                if (doc.banda(b).Topo > y) {
                    hit.banda = b;
                    break;
                }
        } else {
            for (int b = doc.NumBandas(); b >= sel; --b)
                if (doc.banda(b).Topo <= y) {
                    hit.banda = b;
                    break;
                }
        }
        if (hit.banda == 0)
            hit.banda = sel;
    }
    if (hit.item == 0)
        hit.item = x < MargemItens ? 1 : doc.banda(hit.banda).NumItens();
    if (hit.banda == s.BandaSelecionada && hit.item == s.ItemSelecionado) {
        if (s.Faixa.visivel) {
            LimparFaixa(s);
            chamar(s.Ganchos.Validar);
        }
        return;
    }
    SelecionarFaixa(s, hit.banda, hit.item);
}

void mnuEditarTudo(SessaoEdicao &s)
{
    LimparFaixa(s);
    const bool bandaMudou = s.BandaSelecionada != 1;
    const int itens = s.Documento.banda(1).NumItens();
    s.BandaSelecionada = 1;
    s.ItemSelecionado = std::min(1, itens);
    MostrarSelecao(s, bandaMudou);
    // A lone band without items has nothing to hold a range; over several
    // bands the range takes whole bands and its items do not matter.
    if (s.Documento.NumBandas() == 1 && itens == 0)
        return;
    FaixaSelecao &f = s.Faixa;
    f.bandaInicial = 1;
    f.bandaFinal = s.Documento.NumBandas();
    f.itemInicial = 1;
    f.itemFinal = std::max(1, itens);
    SelecionarFaixa(s, FaixaTudo, FaixaTudo);
}

QList<AlvoItens> ItensAlvo(const SessaoEdicao &s)
{
    QList<AlvoItens> r;
    const LayoutDocumento &doc = s.Documento;
    const FaixaSelecao &f = s.Faixa;
    if (f.visivel) {
        for (int b = std::max(1, f.bandaInicial); b <= std::min(f.bandaFinal, doc.NumBandas()); ++b) {
            const int n = doc.banda(b).NumItens();
            const int de = f.VariasBandas() ? 1 : std::max(1, f.itemInicial);
            const int ate = f.VariasBandas() ? n : std::min(n, f.itemFinal);
            for (int i = de; i <= ate; ++i)
                r.append({b, i});
        }
        return r;
    }
    if (s.ItemSelecionado > 0 && s.BandaSelecionada >= 1 && s.BandaSelecionada <= doc.NumBandas()
        && s.ItemSelecionado <= doc.banda(s.BandaSelecionada).NumItens())
        r.append({s.BandaSelecionada, s.ItemSelecionado});
    return r;
}

QList<int> BandasAlvo(const SessaoEdicao &s)
{
    QList<int> r;
    if (s.Faixa.VariasBandas()) {
        for (int b = s.Faixa.bandaInicial; b <= s.Faixa.bandaFinal; ++b)
            r.append(b);
    } else {
        r.append(s.BandaSelecionada);
    }
    return r;
}

}  // namespace lumeta
