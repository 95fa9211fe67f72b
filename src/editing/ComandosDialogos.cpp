#include "editing/ComandosDialogos.h"

#include "editing/Selecao.h"

namespace lumeta {

namespace {

// Positions of the text flags (1-based in the editor's tables).
constexpr int PosCentroVertical = 3;
constexpr int PosBase = 4;
constexpr int PosRotacao = 7;
constexpr int PosAlturaBanda = 10;

void definir(QString &flags, int posicao, bool ligado)
{
    flags[posicao - 1] = ligado ? u'1' : u'0';
}

// A graph bar is placed like a picture: it keeps only its angle, as one of
// the digits 0, 2, 4 or 8 (the first angle bit that is set wins, as the
// painter reads it); the justify bit means nothing for a bar.
QChar digitoRotacaoBarra(QChar atual)
{
    const int v = atual.isDigit() ? atual.digitValue() : 0;
    for (int bit : {2, 4, 8})
        if (v & bit)
            return QChar(u'0' + bit);
    return u'0';
}

}  // namespace

ValoresCodigoBarras LerValoresCodigoBarras(const SessaoEdicao &s)
{
    ValoresCodigoBarras v;
    if (s.ItemSelecionado < 1 || s.BandaSelecionada < 1 || s.BandaSelecionada > s.Documento.Bandas.size())
        return v;
    const Banda &b = s.Documento.banda(s.BandaSelecionada);
    if (s.ItemSelecionado > b.NumItens())
        return v;
    const Item &it = b.Itens[s.ItemSelecionado - 1];
    v.Tipo = it.Tipo;
    v.Conteudo = it.Texto;
    v.AlturaBanda = it.Atributos.size() >= PosAlturaBanda && it.Atributos[PosAlturaBanda - 1] == u'1';
    v.BarraGrafico = it.Tipo == TipoBarraGrafico;
    return v;
}

void AplicarCodigoBarras(SessaoEdicao &s, const ValoresCodigoBarras &v)
{
    const QList<AlvoItens> alvo = ItensAlvo(s);
    if (alvo.isEmpty())
        return;
    for (const AlvoItens &a : alvo) {
        Item &it = s.Documento.banda(a.banda).Itens[a.item - 1];
        it.Tipo = v.Tipo;
        it.Texto = v.Conteudo;
        QString &f = it.Atributos;
        definir(f, PosAlturaBanda, v.AlturaBanda);
        definir(f, PosBase, v.BarraGrafico);
        if (v.BarraGrafico) {
            definir(f, PosCentroVertical, false);
            f[PosRotacao - 1] = digitoRotacaoBarra(f[PosRotacao - 1]);
        }
    }
    s.ConcluirEdicao();
}

void DefinirComentario(SessaoEdicao &s, const QString &comentario)
{
    if (s.BandaSelecionada < 1 || s.BandaSelecionada > s.Documento.Bandas.size())
        return;
    s.Documento.banda(s.BandaSelecionada).Comentario = comentario;
    s.ConcluirEdicao();
}

}  // namespace lumeta
