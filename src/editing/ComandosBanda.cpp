#include "editing/ComandosBanda.h"

#include "editing/Selecao.h"

#include <cstdlib>

namespace lumeta {

namespace {

QString Informar(SessaoEdicao &s, const QString &texto)
{
    if (s.Ui)
        s.Ui->Mensagem(texto, TituloRodape, Icone::Informacao);
    return texto;
}

bool recusar(SessaoEdicao &s, const QString &texto, const QString &titulo)
{
    if (s.Ui)
        s.Ui->Mensagem(texto, titulo, Icone::Informacao);
    return false;
}

}  // namespace

bool CabemBandas(SessaoEdicao &s, qsizetype novas, const QString &titulo)
{
    return s.Documento.NumBandas() + novas <= MaximoBandas || recusar(s, MensagemLimiteBandas, titulo);
}

bool CabemItens(SessaoEdicao &s, int banda, qsizetype novos, const QString &titulo)
{
    return s.Documento.banda(banda).NumItens() + novos <= MaximoItens || recusar(s, MensagemLimiteItens, titulo);
}

void mnuEditarBandaAdicionar(SessaoEdicao &s)
{
    if (!CabemBandas(s, 1, TituloAdicionarBanda))
        return;
    LimparFaixa(s);
    s.AddBanda(0, false, 0, 0);
    s.ConcluirEdicao();
}

void mnuEditarBandaInserir(SessaoEdicao &s)
{
    if (!CabemBandas(s, 1, TituloInserirBanda))
        return;
    LimparFaixa(s);
    s.AddBanda(s.BandaSelecionada, false, 0, 0);
    MostrarSelecao(s, true);
    s.ConcluirEdicao();
}

void mnuEditarBandaDuplicar(SessaoEdicao &s)
{
    if (!CabemBandas(s, 1, TituloDuplicarBanda))
        return;
    LimparFaixa(s);
    s.AddBanda(s.BandaSelecionada, true, 0, 0);
    MostrarSelecao(s, true);
    s.ConcluirEdicao();
}

bool mnuEditarBandaRemover(SessaoEdicao &s)
{
    if (s.Documento.NumBandas() <= 1) {
        if (s.Ui)
            s.Ui->Mensagem(MensagemUltimaBanda, QString(), Icone::Informacao);
        return false;
    }
    LimparFaixa(s);
    s.RemoverBanda(s.BandaSelecionada);
    NadaSelecionado(s);
    MostrarSelecao(s, true);
    s.ConcluirEdicao();
    return true;
}

namespace {

// Exchanges band n with band n + 1. The header and footer markers stay
// where they are; page breaks follow their bands.
void trocarBandas(LayoutDocumento &doc, int n)
{
    doc.Bandas.swapItemsAt(n - 1, n);
    const bool a = doc.QuebraPaginaSeek(n);
    const bool b = doc.QuebraPaginaSeek(n + 1);
    if (a != b) {
        doc.QuebraPaginaRemove(a ? n : n + 1);
        doc.QuebraPaginaAdd(a ? n + 1 : n);
    }
}

}  // namespace

void mnuEditarBandaUp(SessaoEdicao &s)
{
    if (s.BandaSelecionada <= 1)
        return;
    LimparFaixa(s);
    trocarBandas(s.Documento, s.BandaSelecionada - 1);
    --s.BandaSelecionada;
    MostrarSelecao(s, true);
    s.ConcluirEdicao();
}

void mnuEditarBandaDown(SessaoEdicao &s)
{
    if (s.BandaSelecionada >= s.Documento.NumBandas())
        return;
    LimparFaixa(s);
    trocarBandas(s.Documento, s.BandaSelecionada);
    ++s.BandaSelecionada;
    MostrarSelecao(s, true);
    s.ConcluirEdicao();
}

void mnuEditarBandaFonte(SessaoEdicao &s)
{
    Banda &banda = s.Documento.banda(s.BandaSelecionada);
    if (!s.Ui || banda.Itens.isEmpty())
        return;
    const bool temItem = s.ItemSelecionado >= 1 && s.ItemSelecionado <= banda.NumItens();
    const FonteItem &atual = banda.Itens[temItem ? s.ItemSelecionado - 1 : 0].Fonte;
    const std::optional<FonteEscolhida> f = s.Ui->Fonte(
        {atual.Nome, double(atual.Tamanho), atual.Negrito, atual.Italico, atual.Sublinhado, atual.Tachado},
        s.Config.FontesImpressora);
    if (!f)
        return;
    for (Item &it : banda.Itens)
        it.Fonte = FonteItem{f->Nome, TamanhoFonteEscolhido(f->Tamanho), f->Negrito, f->Italico, f->Sublinhado, f->Tachado};
    s.ExibirBanda();
    if (banda.Altura < 1)
        MostrarSelecao(s);
}

void AplicarAltura(SessaoEdicao &s, int32_t altura)
{
    for (int n : BandasAlvo(s))
        if (n >= 1 && n <= s.Documento.NumBandas())
            s.Documento.banda(n).Altura = altura;
}

void mnuEditarBandaAuto(SessaoEdicao &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    for (int n : BandasAlvo(sessao)) {
        if (n < 1 || n > doc.NumBandas())
            continue;
        Banda &b = doc.banda(n);
        b.Altura = b.Altura >= 1 ? 0 : Magnitude(b.Altura);
    }
    sessao.ExibirBanda();
    MostrarSelecao(sessao);
}

QString LegendaBandaAuto(const Banda &banda)
{
    return banda.Altura >= 1 ? QStringLiteral("Alt&ura automática") : QStringLiteral("Alt&ura manual");
}

bool mnuEditarBandaPagina(SessaoEdicao &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    const int n = sessao.BandaSelecionada;
    if (!BandaPaginaHabilitada(n) || n > doc.NumBandas())
        return false;
    if (doc.QuebraPaginaSeek(n))
        doc.QuebraPaginaRemove(n);
    else
        doc.QuebraPaginaAdd(n);
    sessao.ConcluirEdicao();
    return true;
}

QString LegendaBandaPagina(const LayoutDocumento &doc, int banda)
{
    return doc.QuebraPaginaSeek(banda) ? QStringLiteral("Remover a &Quebra de Página")
                                       : QStringLiteral("&Quebrar a Página");
}

QString mnuConfigQuebraPagina(SessaoEdicao &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    if (!doc.QuebraPaginaFinal && doc.BandaRodape != 0)
        return Informar(sessao, MensagemQuebraFinalComRodape);
    doc.QuebraPaginaFinal = !doc.QuebraPaginaFinal;
    sessao.Alterado = true;
    return QString();
}

QString VerificarRodapeQuebraFinal(SessaoEdicao &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    if (!doc.QuebraPaginaFinal || doc.BandaRodape == 0)
        return QString();
    const QString texto = Informar(sessao, MensagemQuebraFinalRemovida);
    doc.QuebraPaginaFinal = false;
    // As the menu command does: the result pane and the menu's check mark
    // lose the final break at once.
    sessao.OpcaoAlterada();
    return texto;
}

}  // namespace lumeta
