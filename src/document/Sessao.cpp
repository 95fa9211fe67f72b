#include "document/Sessao.h"

#include "document/ArquivoLMT.h"
#include "output/CopiarComo.h"

namespace lumeta {

SessaoEditor::SessaoEditor()
{
    NovoLMT();
}

void SessaoEditor::NovoLMT()
{
    BandaSelecionada = 1;
    ItemSelecionado = 0;
    NomeArquivo.clear();
    NomeArquivoAnterior.clear();
    QualidadeJPGSessao = 0;
    Documento = LayoutDocumento();
    AddBanda(0, false, 0, 0);
    AposCarregar();
    Alterado = false;
}

void SessaoEditor::AposCarregar()
{
    Documento.ReposicionarTudo();
}

QString SessaoEditor::Titulo() const
{
    if (NomeArquivo.isEmpty())
        return NomeProduto;
    return TituloAplicacao + QStringLiteral(" - [") + NomeArquivo + QLatin1Char(']');
}

bool SessaoEditor::SalvarLMT(bool proporNomeAnterior)
{
    if (!NomeArquivo.isEmpty()) {
        NomeArquivoAnterior = NomeArquivo;
    } else {
        OpcoesArquivo op;
        op.filtro = FiltroLMT;
        op.nomeProposto = proporNomeAnterior ? NomeArquivoAnterior : QString();
        op.confirmarSobrescrever = true;
        const QString escolhido = Ui ? Ui->ArquivoSalvar(op) : QString();
        if (escolhido.isEmpty()) {
            NomeArquivo = NomeArquivoAnterior;
            return false;
        }
        NomeArquivo = escolhido;
    }
    // The copybook comes first; its failure is reported and never keeps the
    // layout from being saved.
    GravarCopybookAoSalvar(Documento, NomeArquivo, Config.NoCobolUsarString, Ui);
    const ResultadoArquivo r = GravarArquivoLMT(NomeArquivo, Documento);
    if (!r.ok) {
        if (Ui)
            Ui->Mensagem(r.mensagem, QString(), Icone::Exclamacao);
        return false;
    }
    Config.GravarRecentes(NomeArquivo);
    return true;
}

SessaoEditor::ResultadoAbrir SessaoEditor::AbrirLMT(const QString &caminho)
{
    QString arquivo = caminho;
    if (arquivo.isEmpty()) {
        NomeArquivoAnterior = NomeArquivo;
        OpcoesArquivo op;
        op.filtro = FiltroLMT;
        op.pastaInicial = QStringLiteral(".");
        arquivo = Ui ? Ui->ArquivoAbrir(op) : QString();
        if (arquivo.isEmpty())
            return ResultadoAbrir::Cancelado;
    }
    NomeArquivo = arquivo;
    LayoutDocumento lido;
    const ResultadoArquivo r = AbrirArquivoLMT(arquivo, lido);
    if (r.leitura == ResultadoLeitura::FormatoInvalido) {
        if (Ui)
            Ui->Mensagem(r.mensagem, r.titulo, Icone::Exclamacao);
        NovoLMT();
        return ResultadoAbrir::FormatoInvalido;
    }
    if (!r.ok) {
        if (Ui)
            Ui->Mensagem(r.mensagem, r.titulo, Icone::Exclamacao);
        NomeArquivo = NomeArquivoAnterior;
        return ResultadoAbrir::Encerrar;
    }
    Documento = std::move(lido);
    QualidadeJPGSessao = 0;
    BandaSelecionada = 1;
    ItemSelecionado = 0;
    AposCarregar();
    Config.GravarRecentes(NomeArquivo);
    return ResultadoAbrir::Aberto;
}

void SessaoEditor::AddBanda(int posicao, bool duplicar, int32_t altura, int32_t largura)
{
    auto &bandas = Documento.Bandas;
    int nova;
    if (posicao <= 0) {
        bandas.append(Banda());
        nova = int(bandas.size());
    } else {
        // The band at posicao is copied down one place; with duplicar the two
        // copies stay and the lower one becomes the selection.
        bandas.insert(posicao - 1, bandas[posicao - 1]);
        nova = posicao;
        BandaSelecionada = posicao + 1;
        if (Documento.BandaCabecalho >= 1 && Documento.BandaCabecalho >= posicao)
            ++Documento.BandaCabecalho;
        if (Documento.BandaRodape >= 1 && Documento.BandaRodape >= posicao)
            ++Documento.BandaRodape;
    }
    if (duplicar) {
        if (posicao > 0)
            bandas[posicao].Deslocamento = 0;
        return;
    }
    Banda &b = bandas[nova - 1];
    b.Altura = altura == 0 ? 18 : altura;
    b.Deslocamento = 0;
    b.Comentario.clear();
    b.Itens.clear();
    // The new band is never the selected one here, so its item is appended.
    AddItem(nova, false, largura);
}

void SessaoEditor::AddItem(int banda, bool duplicar, int32_t largura)
{
    Banda &b = Documento.banda(banda);
    int novo;
    const int s = ItemSelecionado;
    if (BandaSelecionada == banda && s > 0 && s <= b.NumItens()) {
        b.Itens.insert(s - 1, b.Itens[s - 1]);
        novo = s;
        ItemSelecionado = s + 1;
    } else {
        b.Itens.append(Item());
        novo = b.NumItens();
    }
    if (duplicar)
        return;
    Item &item = b.Itens[novo - 1];
    item = Item();
    item.Largura = largura == 0 ? 64 : largura;
    item.Texto = QStringLiteral("Texto ") + QString::number(b.NumItens());
    item.Fonte = FontePadrao;
}

void SessaoEditor::RemoverBanda(int n)
{
    auto &bandas = Documento.Bandas;
    if (n < 1 || n > bandas.size())
        return;
    bandas.removeAt(n - 1);
    if (Documento.BandaCabecalho >= 1 && Documento.BandaCabecalho >= n)
        --Documento.BandaCabecalho;
    if (Documento.BandaRodape >= 1 && Documento.BandaRodape >= n)
        --Documento.BandaRodape;
    if (BandaSelecionada > bandas.size())
        BandaSelecionada = int(bandas.size());
}

}  // namespace lumeta
