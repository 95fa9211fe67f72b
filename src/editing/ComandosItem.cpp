#include "editing/ComandosItem.h"

#include "editing/ComandosBanda.h"
#include "editing/Selecao.h"

#include <QSet>

namespace lumeta {

namespace {

bool temItem(const SessaoEdicao &s)
{
    return s.ItemSelecionado >= 1 && s.ItemSelecionado <= s.Documento.banda(s.BandaSelecionada).NumItens();
}

void concluir(SessaoEdicao &s)
{
    s.ConcluirEdicao();
}

}  // namespace

namespace {

void inserir(SessaoEdicao &s)
{
    LimparFaixa(s);
    s.AddItem(s.BandaSelecionada, false, 0);
    concluir(s);
}

}  // namespace

void mnuEditarItemInserir(SessaoEdicao &s)
{
    if (CabemItens(s, s.BandaSelecionada, 1, TituloInserirItem))
        inserir(s);
}

void mnuEditarItemAdicionar(SessaoEdicao &s)
{
    if (!CabemItens(s, s.BandaSelecionada, 1, TituloAdicionarItem))
        return;
    NadaSelecionado(s);
    inserir(s);
}

void mnuEditarItemDuplicar(SessaoEdicao &s)
{
    // A band without items has nothing to duplicate.
    if (s.Documento.banda(s.BandaSelecionada).Itens.isEmpty()
        || !CabemItens(s, s.BandaSelecionada, 1, TituloDuplicarItem))
        return;
    LimparFaixa(s);
    const int antes = s.ItemSelecionado;
    s.AddItem(s.BandaSelecionada, true, 0);
    // With no item selected the appended slot is a fresh item; the copy of
    // nothing is the band's last item.
    if (antes == 0) {
        Banda &b = s.Documento.banda(s.BandaSelecionada);
        if (b.NumItens() >= 2)
            b.Itens.last() = b.Itens[b.NumItens() - 2];
        s.ItemSelecionado = b.NumItens();
    }
    concluir(s);
}

void mnuEditarItemRemover(SessaoEdicao &s)
{
    if (!temItem(s))
        return;
    Banda &b = s.Documento.banda(s.BandaSelecionada);
    if (b.NumItens() <= 1) {
        const Resposta r = s.Ui ? s.Ui->Perguntar(PerguntaUltimoItem, QString(), Botoes::SimNao, Icone::Pergunta)
                                : Resposta::Nao;
        if (r != Resposta::Nao)
            mnuEditarBandaRemover(s);
        return;
    }
    LimparFaixa(s);
    b.Itens.removeAt(s.ItemSelecionado - 1);
    if (s.ItemSelecionado > b.NumItens())
        s.ItemSelecionado = b.NumItens();
    concluir(s);
}

void mnuEditarItemLeft(SessaoEdicao &s)
{
    if (!temItem(s) || s.ItemSelecionado <= 1)
        return;
    LimparFaixa(s);
    s.Documento.banda(s.BandaSelecionada).Itens.swapItemsAt(s.ItemSelecionado - 2, s.ItemSelecionado - 1);
    --s.ItemSelecionado;
    concluir(s);
}

void mnuEditarItemRight(SessaoEdicao &s)
{
    if (!temItem(s) || s.ItemSelecionado >= s.Documento.banda(s.BandaSelecionada).NumItens())
        return;
    LimparFaixa(s);
    s.Documento.banda(s.BandaSelecionada).Itens.swapItemsAt(s.ItemSelecionado - 1, s.ItemSelecionado);
    ++s.ItemSelecionado;
    concluir(s);
}

void DefinirTipoItem(SessaoEdicao &s, uint8_t tipo)
{
    const QList<AlvoItens> alvo = ItensAlvo(s);
    if (alvo.isEmpty())
        return;
    for (const AlvoItens &a : alvo) {
        Item &it = s.Documento.banda(a.banda).Itens[a.item - 1];
        it.Tipo = tipo;
        if (tipo == TipoFigura) {
            // Pictures are never rotated: only the justify bit survives.
            const int digito = it.Atributos.at(6).digitValue();
            it.Atributos[6] = QChar(u'0' + ((digito < 0 ? 0 : digito) & 1));
        }
    }
    concluir(s);
}

void AlternarLinha(SessaoEdicao &s, int n)
{
    if (n < 1 || n > 6 || !temItem(s))
        return;
    const Item &sel = s.Documento.banda(s.BandaSelecionada).Itens[s.ItemSelecionado - 1];
    const QChar novo = sel.Linhas.at(n - 1) == u'1' ? u'0' : u'1';
    for (const AlvoItens &a : ItensAlvo(s))
        s.Documento.banda(a.banda).Itens[a.item - 1].Linhas[n - 1] = novo;
    s.ExibirBanda();
    MostrarSelecao(s);
}

namespace {

// Positions of the outer lines in Linhas: right, bottom, top, left.
constexpr int PosicoesMoldura[] = {2, 4, 5, 6};

}  // namespace

bool TemMoldura(const Item &item)
{
    for (int n : PosicoesMoldura)
        if (item.Linhas.size() < n || item.Linhas.at(n - 1) != u'1')
            return false;
    return true;
}

void AlternarMoldura(SessaoEdicao &s)
{
    if (!temItem(s))
        return;
    const QChar novo = TemMoldura(s.Documento.banda(s.BandaSelecionada).Itens[s.ItemSelecionado - 1]) ? u'0' : u'1';
    for (const AlvoItens &a : ItensAlvo(s))
        for (int n : PosicoesMoldura)
            s.Documento.banda(a.banda).Itens[a.item - 1].Linhas[n - 1] = novo;
    s.ExibirBanda();
    MostrarSelecao(s);
}

void AlternarEstiloFonte(SessaoEdicao &s, EstiloFonte estilo)
{
    if (!temItem(s))
        return;
    auto campo = [estilo](FonteItem &f) -> bool & {
        return estilo == EstiloFonte::Negrito ? f.Negrito : estilo == EstiloFonte::Italico ? f.Italico : f.Sublinhado;
    };
    const bool novo = !campo(s.Documento.banda(s.BandaSelecionada).Itens[s.ItemSelecionado - 1].Fonte);
    for (const AlvoItens &a : ItensAlvo(s))
        campo(s.Documento.banda(a.banda).Itens[a.item - 1].Fonte) = novo;
    s.ExibirBanda();
    MostrarSelecao(s);
}

void AplicarLargura(SessaoEdicao &s, int32_t largura)
{
    QSet<int> bandas;
    for (const AlvoItens &a : ItensAlvo(s)) {
        s.Documento.banda(a.banda).Itens[a.item - 1].Largura = largura;
        bandas.insert(a.banda);
    }
    for (int b : bandas)
        s.Documento.ReposicionarItem(b);
}

EstadoMenuEditar PrepararMenuEditar(const SessaoEdicao &s, bool focoEmTexto)
{
    EstadoMenuEditar e;
    e.desfazer = !focoEmTexto && s.PodeDesfazer();
    e.refazer = !focoEmTexto && s.PodeRefazer();
    const Banda &b = s.Documento.banda(s.BandaSelecionada);
    if (temItem(s)) {
        const int tipo = b.Itens[s.ItemSelecionado - 1].Tipo;
        const bool barras = EhCodigoBarras(tipo) || tipo == TipoBarraGrafico;
        e.itemComandos = true;
        e.tipoTexto = tipo != TipoTexto;
        e.tipoFigura = tipo != TipoFigura;
        e.tipoComando = tipo != TipoComando;
        e.tipoCodigoBarras = !barras;
    }
    e.bandaPagina = BandaPaginaHabilitada(s.BandaSelecionada);
    e.legendaBandaPagina = LegendaBandaPagina(s.Documento, s.BandaSelecionada);
    e.legendaBandaAuto = LegendaBandaAuto(b);
    return e;
}

}  // namespace lumeta
