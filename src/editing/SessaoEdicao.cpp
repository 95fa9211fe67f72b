#include "editing/SessaoEdicao.h"

#include "canvas/ComandosCanvas.h"

#include "controls/ModuloAssociar.h"
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
{
    // The base constructor made the new document before this class existed,
    // so the ring is started here.
    Desfazer.PosicaoDesfazer = AnelDesfazer::NumPosicoes;
    ExibirBanda();
    Desfazer.InicioDesfazer = 1;
    Alterado = false;
}

// --- the edit cycle ----------------------------------------------------------

void SessaoEdicao::ExibirBanda()
{
    UltimaRepintura = PrepararRepintura(*this, Canvas, Recursos);
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
    m_resultado.Clear();
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
    Desfazer.SemInstantaneo = true;
    ExibirBanda();
    chamar(Ganchos.SelecionarBanda);
    chamar(Ganchos.SelecionarItem);
    chamar(Ganchos.Validar);
    Desfazer.SemInstantaneo = false;
}

void SessaoEdicao::AposCarregar()
{
    SessaoEditor::AposCarregar();
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
    ArquivoTransferencia = PastaTemporaria() + NomeArquivoTransferencia;
    ArquivoVisualizacao = PastaTemporaria() + NomeArquivoVisualizacao;

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
