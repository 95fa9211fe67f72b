#include "editing/SessaoEdicao.h"

#include "editing/ComandosBanda.h"

#include "controls/ModuloAssociar.h"
#include "document/ArquivoLMT.h"
#include "document/ModuloLumetaEdit.h"
#include "output/CopiarComo.h"
#include "output/TextoComandos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cmath>

namespace lumeta {

int16_t TamanhoFonteEscolhido(double tamanho)
{
    const long n = std::lrint(std::nearbyint(tamanho)) % 100;
    return int16_t(n == 0 ? 8 : n);
}

QString ArgumentoCaminho(const QStringList &argumentos)
{
    QString linha = argumentos.join(QLatin1Char(' '));
    linha.remove(QLatin1Char('"'));
    return linha;
}

SessaoEdicao::SessaoEdicao()
    : ArquivoTransferencia(PastaTemporaria() + NomeArquivoTransferencia),
      ArquivoVisualizacao(PastaTemporaria() + NomeArquivoVisualizacao)
{
    NovoLMT();
}

void SessaoEdicao::NovoLMT()
{
    BandaSelecionada = 1;
    ItemSelecionado = 0;
    Faixa = FaixaSelecao();
    NomeArquivo.clear();
    NomeArquivoAnterior.clear();
    QualidadeJPGSessao = 0;
    Documento = LayoutDocumento();
    AddBanda(0, false, 0, 0);
    AposCarregar();
    Alterado = false;
}

QString SessaoEdicao::Titulo() const
{
    if (NomeArquivo.isEmpty())
        return NomeProduto;
    return TituloAplicacao + QStringLiteral(" - [") + NomeArquivo + QLatin1Char(']');
}

bool SessaoEdicao::SalvarLMT(bool proporNomeAnterior)
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
    // A layout the file cannot hold writes nothing, not even its copybook.
    ResultadoArquivo r = VerificarLimites(NomeArquivo, Documento);
    if (r.ok) {
        // The copybook comes first; its failure is reported and never keeps
        // the layout from being saved.
        GravarCopybookAoSalvar(Documento, NomeArquivo, Config.NoCobolUsarString, Ui);
        r = GravarArquivo(NomeArquivo, GravarLMT(Documento));
    }
    if (!r.ok) {
        if (Ui)
            Ui->Mensagem(r.mensagem, QString(), Icone::Exclamacao);
        return false;
    }
    Config.GravarRecentes(NomeArquivo);
    return true;
}

SessaoEdicao::ResultadoAbrir SessaoEdicao::AbrirLMT(const QString &caminho)
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
    Faixa = FaixaSelecao();
    AposCarregar();
    Config.GravarRecentes(NomeArquivo);
    return ResultadoAbrir::Aberto;
}

void SessaoEdicao::AddBanda(int posicao, bool duplicar, int32_t altura, int32_t largura)
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
        // A page break stays after the band it was set on; a duplicate's
        // source keeps its break, the copy gets none.
        for (int16_t &q : Documento.Quebras)
            if (q > posicao || (q == posicao && !duplicar))
                ++q;
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

void SessaoEdicao::AddItem(int banda, bool duplicar, int32_t largura)
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

void SessaoEdicao::RemoverBanda(int n)
{
    auto &bandas = Documento.Bandas;
    if (n < 1 || n > bandas.size())
        return;
    bandas.removeAt(n - 1);
    // The break after a removed band goes with it.
    if (Documento.QuebraPaginaSeek(n))
        Documento.QuebraPaginaRemove(n);
    for (int16_t &q : Documento.Quebras)
        if (q > n)
            --q;
    if (Documento.BandaCabecalho >= 1 && Documento.BandaCabecalho >= n)
        --Documento.BandaCabecalho;
    if (Documento.BandaRodape >= 1 && Documento.BandaRodape >= n)
        --Documento.BandaRodape;
    if (BandaSelecionada > bandas.size())
        BandaSelecionada = int(bandas.size());
}


// --- the edit cycle ----------------------------------------------------------

void SessaoEdicao::ExibirBanda()
{
    UltimaRepintura = PrepararRepintura(Documento, BandaSelecionada, Canvas, Recursos, Ui);
    if (Ganchos.Pintar)
        Ganchos.Pintar(UltimaRepintura);
    if (UltimaRepintura.selecionadaAutomatica)
        chamar(Ganchos.SelecionarItem);
    Alterado = true;
    if (!Desfazer.SemInstantaneo)
        Desfazer.Gravar(Documento, BandaSelecionada, ItemSelecionado);
    ExibirResultado();
}

void SessaoEdicao::ConcluirEdicao()
{
    ExibirBanda();
    chamar(Ganchos.SelecionarItem);
    chamar(Ganchos.Validar);
}

void SessaoEdicao::ExibirResultado()
{
    GerarTextoComandos(Documento, m_resultado);
    TextoResultado = m_resultado.ResultString();
    if (Ganchos.MostrarResultado)
        Ganchos.MostrarResultado(TextoResultado);
}

void SessaoEdicao::OpcaoAlterada()
{
    ExibirResultado();
    chamar(Ganchos.UnidadeAlterada);
    chamar(Ganchos.OpcoesAlteradas);
    Alterado = true;
}

void SessaoEdicao::DesfazerEdicao()
{
    if (!Desfazer.PodeDesfazer())
        return;
    Desfazer.Voltar(Documento, BandaSelecionada, ItemSelecionado);
    Restaurado();
}

void SessaoEdicao::RefazerEdicao()
{
    if (!Desfazer.PodeRefazer())
        return;
    Desfazer.Avancar(Documento, BandaSelecionada, ItemSelecionado);
    Restaurado();
}

void SessaoEdicao::Restaurado()
{
    // The range was drawn over the bands being replaced: it may name bands
    // or items the restored layout does not have.
    Faixa = FaixaSelecao();
    Desfazer.SemInstantaneo = true;
    ExibirBanda();
    chamar(Ganchos.SelecionarBanda);
    chamar(Ganchos.SelecionarItem);
    chamar(Ganchos.Validar);
    Desfazer.SemInstantaneo = false;
}

void SessaoEdicao::AposCarregar()
{
    Documento.ReposicionarTudo();
    chamar(Ganchos.Titulo);
    chamar(Ganchos.RolagemInicial);
    // The repaint stores the loaded state in slot 1, which then becomes the
    // oldest: the ring holds that one state and undo is off.
    Desfazer.PosicaoDesfazer = AnelDesfazer::NumPosicoes;
    Desfazer.SemInstantaneo = false;
    ExibirBanda();
    Desfazer.InicioDesfazer = 1;
    chamar(Ganchos.SelecionarBanda);
    chamar(Ganchos.SelecionarItem);
    chamar(Ganchos.Validar);
}

// --- start-up and shut-down --------------------------------------------------

bool SessaoEdicao::Iniciar(const QStringList &argumentos, const QString &pastaPrograma, const QString &programa)
{
    Config.GravarPasta(pastaPrograma);

    Config.Ler();
    FontePadrao = Config.FontePadrao;
    UnidadeAtual = UnidadeDe(Config.UnidadeMedida, UnidadeAtual.rotulo);
    chamar(Ganchos.ConfiguracoesLidas);
    chamar(Ganchos.UnidadeAlterada);
    chamar(Ganchos.ResultadoAlternado);

    ArquivosRecentes();

    const QString caminho = ArgumentoCaminho(argumentos);
    if (caminho.trimmed().isEmpty()) {
        Associar(QStringLiteral("lmt"), QStringLiteral("Layout do Lumeta"), programa, programa, Ui);
        NovoLMT();
        chamar(Ganchos.Titulo);
        return true;
    }
    const ResultadoAbrir r = AbrirLMT(CaminhoLongo(caminho));
    chamar(Ganchos.Titulo);
    chamar(Ganchos.ArquivosRecentes);
    if (r == ResultadoAbrir::Encerrar)
        return false;
    Alterado = false;
    return true;
}

void SessaoEdicao::FinalizarSaida()
{
    if (!ArquivoVisualizacao.isEmpty() && QFile::exists(ArquivoVisualizacao))
        QFile::remove(ArquivoVisualizacao);
    Config.FontePadrao = FontePadrao;
    Config.GravarAoSair();
}

// --- file menu -------------------------------------------------------------------

bool SessaoEdicao::PerguntarSalvar(const QString &titulo)
{
    if (!Alterado)
        return true;
    const Resposta r = Ui ? Ui->Perguntar(QStringLiteral("Deseja salvar as alterações?"), titulo,
                                          Botoes::SimNaoCancelar, Icone::Pergunta)
                          : Resposta::Cancelar;
    if (r == Resposta::Cancelar)
        return false;
    if (r == Resposta::Sim)
        return ComandoSalvar();
    return true;
}

void SessaoEdicao::ComandoNovo()
{
    if (!PerguntarSalvar(QStringLiteral("Novo")))
        return;
    NovoLMT();
    chamar(Ganchos.Titulo);
}

void SessaoEdicao::abrir(const QString &caminho)
{
    const ResultadoAbrir r = AbrirLMT(caminho);
    chamar(Ganchos.Titulo);
    if (r == ResultadoAbrir::Encerrar) {
        chamar(Ganchos.Encerrar);
        return;
    }
    if (r == ResultadoAbrir::Aberto) {
        Alterado = false;
        chamar(Ganchos.ArquivosRecentes);
    }
}

void SessaoEdicao::ComandoExemplos(const QString &pasta)
{
    if (Ganchos.JanelaHabilitada && !Ganchos.JanelaHabilitada())
        return;
    const QString titulo = QStringLiteral("Exemplos");
    if (!QFileInfo(pasta).isDir()) {
        if (Ui)
            Ui->Mensagem(pasta + QStringLiteral("\n\nNão foi possível encontrar a pasta dos exemplos acima!"), titulo,
                         Icone::Exclamacao);
        return;
    }
    if (!PerguntarSalvar(QStringLiteral("Abrir")))
        return;
    OpcoesArquivo op;
    op.titulo = titulo;
    op.filtro = FiltroLMT;
    op.pastaInicial = pasta;
    const QString arquivo = Ui ? Ui->ArquivoAbrir(op) : QString();
    if (arquivo.isEmpty())
        return;
    NomeArquivoAnterior = NomeArquivo;
    abrir(arquivo);
}

void SessaoEdicao::ComandoAbrir()
{
    if (Ganchos.JanelaHabilitada && !Ganchos.JanelaHabilitada())
        return;
    if (!PerguntarSalvar(QStringLiteral("Abrir")))
        return;
    abrir(QString());
}

bool SessaoEdicao::ComandoSalvar()
{
    const bool ok = SalvarLMT(false);
    if (ok)
        Alterado = false;
    chamar(Ganchos.Titulo);
    if (ok)
        chamar(Ganchos.ArquivosRecentes);
    return ok;
}

bool SessaoEdicao::ComandoSalvarComo()
{
    NomeArquivoAnterior = NomeArquivo;
    NomeArquivo.clear();
    const bool ok = SalvarLMT(true);
    if (ok)
        Alterado = false;
    chamar(Ganchos.Titulo);
    if (ok)
        chamar(Ganchos.ArquivosRecentes);
    return ok;
}

void SessaoEdicao::ComandoAbrirRecente(int k)
{
    if (k < 1 || k > Config.ArquivosRecentes.size())
        return;
    const QString caminho = Config.ArquivosRecentes[k - 1];
    if (!QFileInfo(caminho).isFile()) {
        if (Ui)
            Ui->Mensagem(caminho + QStringLiteral("\n\nNão foi possível encontrar o arquivo acima!"), QString(),
                         Icone::Informacao);
        return;
    }
    if (Ganchos.JanelaHabilitada && !Ganchos.JanelaHabilitada())
        return;
    if (!PerguntarSalvar(QStringLiteral("Abrir")))
        return;
    const QString pasta = QFileInfo(caminho).absolutePath();
    if (caminho.contains(QLatin1Char('/')) || caminho.contains(QLatin1Char('\\')))
        QDir::setCurrent(pasta);
    abrir(caminho);
}

void SessaoEdicao::ComandoExcluirRecentes()
{
    Config.ExcluirRecentes();
    ArquivosRecentes();
}

void SessaoEdicao::ArquivosRecentes()
{
    Config.LerRecentes();
    chamar(Ganchos.ArquivosRecentes);
}

// --- configuration menu ---------------------------------------------------------

void SessaoEdicao::AlternarPaisagem()
{
    Documento.Paisagem = !Documento.Paisagem;
    // Orientation is a page option: it changes the view, not the band
    // structure, so it takes no snapshot.
    Desfazer.SemInstantaneo = true;
    ExibirBanda();
    Desfazer.SemInstantaneo = false;
    chamar(Ganchos.OpcoesAlteradas);
    Alterado = true;
}

void SessaoEdicao::AlternarImprimir()
{
    Documento.Imprimir = !Documento.Imprimir;
    OpcaoAlterada();
}

void SessaoEdicao::AlternarVisivel()
{
    Documento.Visivel = !Documento.Visivel;
    OpcaoAlterada();
}

void SessaoEdicao::AlternarTemCapa()
{
    Documento.TemCapa = !Documento.TemCapa;
    OpcaoAlterada();
}

void SessaoEdicao::AlternarEnviarEmail()
{
    Documento.EnviarEmail = !Documento.EnviarEmail;
    OpcaoAlterada();
}

bool SessaoEdicao::AlternarQuebraPaginaFinal()
{
    if (!mnuConfigQuebraPagina(*this).isEmpty()) {
        // Refused: the menu's check mark must fall back to the document.
        chamar(Ganchos.OpcoesAlteradas);
        return false;
    }
    OpcaoAlterada();
    return true;
}

void SessaoEdicao::DefinirTipoEmail(int tipo)
{
    Documento.TipoEmail = int16_t(tipo);
    if (tipo == 1)
        Documento.QualidadeJPG = QualidadeJPGSessao != 0 ? QualidadeJPGSessao : int16_t(92);
    else if (tipo == 4)
        Documento.QualidadeJPG = QualidadeJPGSessao != 0 ? QualidadeJPGSessao : int16_t(100);
    OpcaoAlterada();
}

void SessaoEdicao::DefinirUnidade(int codigo)
{
    Config.UnidadeMedida = codigo;
    UnidadeAtual = UnidadeDe(codigo, UnidadeAtual.rotulo);
    chamar(Ganchos.UnidadeAlterada);
}

void SessaoEdicao::AlternarResultado()
{
    Config.ExibirResultado = !Config.ExibirResultado;
    chamar(Ganchos.ResultadoAlternado);
}

void SessaoEdicao::AlternarFontesImpressora()
{
    Config.FontesImpressora = !Config.FontesImpressora;
}

void SessaoEdicao::DefinirFontePadrao(const QString &nome, double tamanho, bool negrito, bool italico,
                                      bool sublinhado, bool tachado)
{
    FontePadrao.Nome = nome;
    FontePadrao.Tamanho = TamanhoFonteEscolhido(tamanho);
    FontePadrao.Negrito = negrito;
    FontePadrao.Italico = italico;
    FontePadrao.Sublinhado = sublinhado;
    FontePadrao.Tachado = tachado;
    Config.FontePadrao = FontePadrao;
}

void SessaoEdicao::DefinirCPY(const QString &linguagem)
{
    Config.CPY = linguagem;
    Config.GravarCPY();
}

QString SessaoEdicao::LerCPY()
{
    Config.CPY = LerConfigCPY();
    return Config.CPY;
}

}  // namespace lumeta
