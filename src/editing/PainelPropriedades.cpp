#include "editing/PainelPropriedades.h"

#include "canvas/Atributos.h"
#include "editing/ComandosBanda.h"
#include "editing/Selecao.h"

namespace lumeta {

std::array<EstadoCaixa, 10> CaixasIniciais()
{
    std::array<EstadoCaixa, 10> c;
    c[0].dica = QStringLiteral("Centralizar o texto na horizontal");
    c[1].dica = QStringLiteral("Alinhar o texto à direita");
    c[2].dica = QStringLiteral("Centralizar o texto na vertical");
    c[3].dica = QStringLiteral("Alinhar o texto à base");
    c[4].dica = QStringLiteral("Somente uma linha de texto");
    c[5].dica = QStringLiteral("Várias linhas de texto (caixa de texto)");
    c[6].legenda = QStringLiteral("&Justificar");
    c[7].legenda = QStringLiteral("Não co&rtar o texto");
    c[7].dica = QStringLiteral("Exibir todo o conteúdo do item");
    c[8].legenda = QStringLiteral("* Tamanho (2~4)");
    c[9].legenda = QStringLiteral("Cai&xa de texto");
    c[9].dica = QStringLiteral("Exibir as palavras sem corta-las");
    c[9].visivel = false;
    return c;
}

int DigitoAtributo(const QString &atributos, int posicao)
{
    return DigitoPosicao(atributos, posicao);
}

namespace {

const Item *itemSelecionado(const SessaoEdicao &s)
{
    if (s.ItemSelecionado < 1 || s.BandaSelecionada < 1 || s.BandaSelecionada > s.Documento.NumBandas())
        return nullptr;
    const Banda &b = s.Documento.banda(s.BandaSelecionada);
    return s.ItemSelecionado <= b.NumItens() ? &b.Itens[s.ItemSelecionado - 1] : nullptr;
}

}  // namespace

void ExibirTipo(const SessaoEdicao &s, EstadoPainel &e)
{
    const Item *it = itemSelecionado(s);
    if (!it) {
        e.tipoHabilitado = false;
        e.angulo = 0;
        e.anguloHabilitado = false;
        e.linhasVisivel = true;
        e.legendaCor = QStringLiteral("Cor do item:");
        e.tamanho = 0;
        e.tamanhoVisivel = false;
        return;
    }
    const int tipo = it->Tipo;
    e.tipoHabilitado = true;
    e.linhasVisivel = tipo != TipoBarraGrafico;
    e.legendaCor = tipo == TipoBarraGrafico ? QStringLiteral("Cor da barra:") : QStringLiteral("Cor do item:");
    auto &c = e.caixas;
    const bool barras = EhCodigoBarras(tipo) || tipo == TipoBarraGrafico;
    if (tipo == TipoFigura) {
        e.tipo = 1;
        e.angulo = 0;
        e.anguloHabilitado = false;
        e.legendaFonte = QStringLiteral("&Figura");
        e.dicaFonte = QStringLiteral("Alterar a figura do item selecionado");
        c[4].visivel = c[5].visivel = c[7].visivel = c[6].visivel = c[8].visivel = false;
        c[9] = {QStringLiteral("Redimensi&onar"), QStringLiteral("A figura não ultrapassa os limites do item"), true,
                c[9].marcada};
        e.tamanhoVisivel = false;
    } else if (barras) {
        e.tipo = 3;
        e.anguloHabilitado = tipo != TipoBarraGrafico;
        if (!e.anguloHabilitado)
            e.angulo = 0;
        e.legendaFonte = QStringLiteral("A&lterar");
        e.dicaFonte = QStringLiteral("Alterar o código de barras do item selecionado");
        c[4].visivel = c[5].visivel = c[8].visivel = false;
        c[7].visivel = true;
        c[6] = {QStringLiteral("&Somente as barras"), QString(), tipo != TipoBarraGrafico, c[6].marcada};
        c[9] = {QStringLiteral("Redimensi&onar"), QStringLiteral("O código de barras fica com a altura da banda"), true,
                c[9].marcada};
        e.tamanhoVisivel = tipo != TipoBarraGrafico;
        if (tipo == TipoPDF417)
            c[6].visivel = c[7].visivel = c[9].visivel = false;
    } else {
        e.tipo = tipo == TipoComando ? 2 : 0;
        e.anguloHabilitado = true;
        e.legendaFonte = QStringLiteral("&Fonte");
        e.dicaFonte = QStringLiteral("Alterar a fonte do item selecionado");
        c[4].visivel = c[5].visivel = c[7].visivel = c[8].visivel = true;
        c[6] = {QStringLiteral("&Justificar"), QString(), true, c[6].marcada};
        c[9] = {QStringLiteral("Cai&xa de texto"), QStringLiteral("Exibir as palavras sem corta-las"), false,
                c[9].marcada};
        e.tamanhoVisivel = false;
    }
}

EstadoPainel CalcularPainel(const SessaoEdicao &s)
{
    EstadoPainel e;
    e.caixas = CaixasIniciais();
    e.selecionado = LegendaSelecao(s);
    const Item *it = itemSelecionado(s);
    if (it) {
        const Banda &b = s.Documento.banda(s.BandaSelecionada);
        const Unidade &u = s.UnidadeAtual;
        e.temItem = true;
        e.cabecalhoHabilitado = e.rodapeHabilitado = true;
        e.cabecalho = s.Documento.BandaCabecalho == s.BandaSelecionada;
        e.rodape = s.Documento.BandaRodape == s.BandaSelecionada;
        e.botoesItem = e.fonteHabilitado = true;
        e.texto = it->Texto;
        e.textoHabilitado = true;
        e.camposHabilitados = true;
        e.largura = PixelsParaUnidade(it->Largura, u);
        e.esquerda = PixelsParaUnidade(it->Esquerda, u);
        e.topo = PixelsParaUnidade(b.Topo - 16, u);
        e.altura = PixelsParaUnidade(Magnitude(b.Altura), u);
        e.deslocamento = PixelsParaUnidade(b.Deslocamento, u);
        e.alturaHabilitada = AlturaManual(b);
        e.autoVisivel = !e.alturaHabilitada;
        e.espessura = it->Espessura;
        for (int n = 1; n <= 10; ++n)
            e.caixas[n - 1].marcada = it->Atributos.at(n - 1) == u'1';
        const int d7 = DigitoAtributo(it->Atributos, 7);
        e.caixas[6].marcada = (d7 & 1) != 0;
        e.angulo = AnguloAtributos(it->Atributos) / 90;
        e.tamanho = qBound(1, DigitoAtributo(it->Atributos, 9), 4) - 1;
        for (int n = 1; n <= 6; ++n)
            e.linhas[n - 1] = it->Linhas.at(n - 1) == u'1';
        e.corTexto = it->CorTexto;
        e.corFundo = it->CorFundo;
        e.corLinha = it->CorLinha;
    }
    ExibirTipo(s, e);
    // With a range the button always opens the font dialog, whatever the types.
    if (s.Faixa.visivel && e.temItem) {
        e.legendaFonte = QStringLiteral("&Fonte");
        e.dicaFonte = QStringLiteral("Alterar a fonte do item selecionado");
    }
    return e;
}

}  // namespace lumeta
