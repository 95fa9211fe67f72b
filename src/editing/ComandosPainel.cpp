#include "editing/ComandosPainel.h"

#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/PainelPropriedades.h"
#include "editing/Selecao.h"
#include "output/Macros.h"

#include <QSet>

namespace lumeta {

namespace {

Item &alvo(SessaoEdicao &s, const AlvoItens &a)
{
    return s.Documento.banda(a.banda).Itens[a.item - 1];
}

void repintar(SessaoEdicao &s)
{
    s.ExibirBanda();
    MostrarSelecao(s);
}

bool temItem(const SessaoEdicao &s)
{
    return s.ItemSelecionado >= 1 && s.ItemSelecionado <= s.Documento.banda(s.BandaSelecionada).NumItens();
}

void escreverDigito(Item &it, int posicao, int digito)
{
    it.Atributos[posicao - 1] = QChar(u'0' + digito);
}

}  // namespace

QString FiltroFiguras()
{
    return QStringLiteral("Todas as Figuras (*.bmp;*.ico;*.cur;*.rle;*.wmf;*.emf;*.gif;*.jpg)|*.bmp;*.ico;*.cur;*.rle;"
                          "*.wmf;*.emf;*.gif;*.jpg"
                          "|Bitmap do Windows (*.bmp)|*.bmp"
                          "|Ícone (*.ico)|*.ico"
                          "|Cursor (*.cur)|*.cur"
                          "|Windows RLE (*.rle)|*.rle"
                          "|Metarquivo do Windows (*.wmf)|*.wmf"
                          "|Metarquivo avançado do Windows (*.emf)|*.emf"
                          "|GIF (*.gif)|*.gif"
                          "|JPEG (*.jpg)|*.jpg");
}

void ConfirmarTexto(SessaoEdicao &s, const QString &texto)
{
    if (!temItem(s))
        return;
    for (const AlvoItens &a : ItensAlvo(s))
        alvo(s, a).Texto = texto;
    s.ExibirBanda();
    if (s.Documento.banda(s.BandaSelecionada).Altura < 1)
        MostrarSelecao(s);
}

void MarcarAtributo(SessaoEdicao &s, int n, bool marcada)
{
    if (n < 1 || n > 10 || !temItem(s))
        return;
    for (const AlvoItens &a : ItensAlvo(s)) {
        Item &it = alvo(s, a);
        if (n == 7)
            escreverDigito(it, 7, (DigitoAtributo(it.Atributos, 7) & ~1) + (marcada ? 1 : 0));
        else
            it.Atributos[n - 1] = marcada ? u'1' : u'0';
    }
    repintar(s);
}

void DefinirAngulo(SessaoEdicao &s, int indice)
{
    static const int bits[4] = {0, 2, 4, 8};
    if (indice < 0 || indice > 3 || !temItem(s))
        return;
    for (const AlvoItens &a : ItensAlvo(s)) {
        Item &it = alvo(s, a);
        if (it.Tipo != TipoFigura)
            escreverDigito(it, 7, (DigitoAtributo(it.Atributos, 7) & 1) + bits[indice]);
    }
    repintar(s);
}

void DefinirZoom(SessaoEdicao &s, int indice)
{
    if (indice < 0 || indice > 3 || !temItem(s))
        return;
    for (const AlvoItens &a : ItensAlvo(s)) {
        Item &it = alvo(s, a);
        if (EhCodigoBarras(it.Tipo))
            escreverDigito(it, 9, indice + 1);
    }
    repintar(s);
}

void DefinirEspessura(SessaoEdicao &s, double valor)
{
    if (!temItem(s))
        return;
    const int e = qBound(1, int(std::lround(qBound(-1.0, valor, 1000.0))), 64);
    for (const AlvoItens &a : ItensAlvo(s))
        alvo(s, a).Espessura = uint8_t(e);
    repintar(s);
}

void ConfirmarLargura(SessaoEdicao &s, double valor)
{
    if (!temItem(s))
        return;
    AplicarLargura(s, UnidadeParaPixels(valor < 1 ? 1 : valor, s.UnidadeAtual));
    s.Documento.ReposicionarItem(s.BandaSelecionada);
    repintar(s);
}

void ConfirmarAltura(SessaoEdicao &s, double valor)
{
    if (!temItem(s))
        return;
    AplicarAltura(s, qMax<int32_t>(1, UnidadeParaPixels(valor, s.UnidadeAtual)));
    repintar(s);
}

bool ConfirmarDeslocamento(SessaoEdicao &s, double valor)
{
    if (!temItem(s))
        return false;
    const int32_t px = UnidadeParaPixels(valor, s.UnidadeAtual);
    Banda &b = s.Documento.banda(s.BandaSelecionada);
    if (px == b.Deslocamento)
        return false;
    b.Deslocamento = px;
    repintar(s);
    return true;
}

void MarcarCabecalho(SessaoEdicao &s, bool marcada)
{
    LayoutDocumento &d = s.Documento;
    const int banda = s.BandaSelecionada;
    if (marcada) {
        d.BandaCabecalho = banda;
        if (d.BandaRodape != 0 && d.BandaRodape <= banda)
            d.BandaRodape = 0;
    } else {
        d.BandaCabecalho = 0;
    }
    repintar(s);
}

QString MarcarRodape(SessaoEdicao &s, bool marcada)
{
    LayoutDocumento &d = s.Documento;
    const int banda = s.BandaSelecionada;
    if (marcada) {
        d.BandaRodape = banda;
        if (d.BandaCabecalho >= banda)
            d.BandaCabecalho = 0;
    } else {
        d.BandaRodape = 0;
    }
    // The option goes off before the repaint, so the undo step of the footer
    // never holds a footer with the final break.
    const QString aviso = marcada ? VerificarRodapeQuebraFinal(s) : QString();
    repintar(s);
    return aviso;
}

bool AlterarFonte(SessaoEdicao &s)
{
    if (!temItem(s) || !s.Ui)
        return false;
    const FonteItem &atual = s.Documento.banda(s.BandaSelecionada).Itens[s.ItemSelecionado - 1].Fonte;
    const std::optional<FonteEscolhida> f = s.Ui->Fonte(
        {atual.Nome, double(atual.Tamanho), atual.Negrito, atual.Italico, atual.Sublinhado, atual.Tachado},
        s.Config.FontesImpressora);
    if (!f)
        return false;
    if (f->Nome.trimmed().isEmpty()) {
        s.Ui->Mensagem(MensagemFonteInvalida, QStringLiteral("Fonte"), Icone::Informacao);
        return false;
    }
    const FonteItem nova{f->Nome, TamanhoFonteEscolhido(f->Tamanho), f->Negrito, f->Italico, f->Sublinhado, f->Tachado};
    for (const AlvoItens &a : ItensAlvo(s))
        alvo(s, a).Fonte = nova;
    repintar(s);
    return true;
}

QString AbrirFigura(SessaoEdicao &s)
{
    if (!temItem(s) || !s.Ui)
        return QString();
    OpcoesArquivo o;
    o.titulo = TituloAbrirFigura;
    o.filtro = FiltroFiguras();
    const QString caminho = s.Ui->ArquivoAbrir(o);
    if (caminho.isEmpty())
        return QString();
    const QString texto = QLatin1Char('"') + caminho + QLatin1Char('"');
    s.Documento.banda(s.BandaSelecionada).Itens[s.ItemSelecionado - 1].Texto = texto;
    repintar(s);
    return texto;
}

AcaoBotaoFonte AcaoFonte(const SessaoEdicao &s)
{
    if (!temItem(s))
        return AcaoBotaoFonte::Nada;
    if (s.Faixa.visivel)
        return AcaoBotaoFonte::Fonte;
    const int tipo = s.Documento.banda(s.BandaSelecionada).Itens[s.ItemSelecionado - 1].Tipo;
    if (tipo == TipoFigura)
        return AcaoBotaoFonte::Figura;
    if (EhCodigoBarras(tipo) || tipo == TipoBarraGrafico)
        return AcaoBotaoFonte::CodigoBarras;
    return AcaoBotaoFonte::Fonte;
}

QString TextoMacro(SessaoEdicao &s, int indice)
{
    const auto &tabela = TabelaMacros();
    if (indice < 0 || indice >= int(tabela.size()))
        return QString();
    const MacroDef &m = tabela[size_t(indice)];
    if (m.macro && *m.macro)
        return QString::fromUtf8(m.macro);
    if (!s.Ui)
        return QString();
    const std::optional<QString> r = s.Ui->Entrada(PerguntaVariavelMacro(), QString::fromUtf8(m.legenda), QString());
    return r ? MacroVariavel(*r) : QString();
}

}  // namespace lumeta
