#include "editing/Paletas.h"

#include "canvas/Cores.h"
#include "editing/Selecao.h"
#include "output/Macros.h"

namespace lumeta {

namespace {

enum class Campo { Texto, Fundo, Linha };

// Sets one colour number on the selected item or the range, dropping the
// colour macro that would override it.
void definirCor(SessaoEdicao &s, Campo campo, int numero)
{
    const QList<AlvoItens> alvos = ItensAlvo(s);
    if (alvos.isEmpty())
        return;
    static const QChar letras[3] = {u'T', u'F', u'L'};
    const QChar letra = letras[int(campo)];
    for (const AlvoItens &a : alvos) {
        Item &it = s.Documento.banda(a.banda).Itens[a.item - 1];
        (campo == Campo::Texto ? it.CorTexto : campo == Campo::Fundo ? it.CorFundo : it.CorLinha) = uint8_t(numero);
        it.Texto = MacroColorRemover(it.Texto, letra);
    }
    s.ExibirBanda();
    MostrarSelecao(s);
}

}  // namespace

void CliqueCores(SessaoEdicao &s, int x, bool esquerdo)
{
    const int n = qMax(0, x) / ColunaCor;
    if (esquerdo)
        definirCor(s, Campo::Texto, n > 15 ? 0 : n);
    else
        definirCor(s, Campo::Fundo, n > 15 ? CorTransparente : n);
}

void CliqueCoresLinhas(SessaoEdicao &s, int x, bool esquerdo)
{
    const int n = qMin(15, qMax(0, x) / ColunaCor);
    definirCor(s, esquerdo ? Campo::Linha : Campo::Fundo, n);
}

int NumeroPaletaExtendida(int x, int y)
{
    const int coluna = qBound(0, x / CelulaPaleta, 7);
    const int linha = qBound(0, y / CelulaPaleta, 7);
    return (linha + 2) * 8 + coluna;
}

void CliquePaletaExtendida(SessaoEdicao &s, AlvoPaleta alvo, int x, int y, bool esquerdo)
{
    const int n = NumeroPaletaExtendida(x, y);
    if (!esquerdo)
        definirCor(s, Campo::Fundo, n);
    else
        definirCor(s, alvo == AlvoPaleta::Item ? Campo::Texto : Campo::Linha, n);
}

void AplicarCorLivre(SessaoEdicao &s, QChar letra, int rgb)
{
    const QList<AlvoItens> alvos = ItensAlvo(s);
    if (alvos.isEmpty())
        return;
    for (const AlvoItens &a : alvos) {
        Item &it = s.Documento.banda(a.banda).Itens[a.item - 1];
        if (it.Tipo != TipoTexto)
            continue;
        it.CorTexto = letra == u'T' ? 16 : 72;
        it.Texto = MontarMacroColor(letra, rgb) + MacroColorRemover(it.Texto, letra);
    }
    s.ExibirBanda();
    MostrarSelecao(s);
}

bool CorLivre(SessaoEdicao &s, QChar letra)
{
    if (ItensAlvo(s).isEmpty() || !s.Ui)
        return false;
    const std::optional<int> c = s.Ui->Cor(0);
    if (!c)
        return false;
    AplicarCorLivre(s, letra, *c);
    return true;
}

}  // namespace lumeta
