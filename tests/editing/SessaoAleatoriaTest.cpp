// A long seeded run of everything a user can do on the canvas, the keys, the
// panel and the Edit menu, also on files with bands without items, checking
// the layout's rules after every single step.

#include "document/ArquivoLMT.h"
#include "editing/AlcasMagico.h"
#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/ComandosPainel.h"
#include "editing/ComandosTransferencia.h"
#include "editing/DesenhoSelecao.h"
#include "editing/PainelPropriedades.h"
#include "editing/Selecao.h"
#include "editing/Teclado.h"
#include "support/InterfaceRoteirizada.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace lumeta;

namespace {

constexpr int NumPassos = 100000;
constexpr unsigned Semente = 20240612;

// Answers every question and font dialog at random; the base class keeps
// the messages.
class UsuarioAleatorio : public teste::InterfaceRoteirizada {
public:
    explicit UsuarioAleatorio(std::mt19937 &g) : m_g(g) {}
    Resposta Perguntar(const QString &, const QString &, Botoes, Icone) override
    {
        return std::array{Resposta::Sim, Resposta::Nao, Resposta::Cancelar}[m_g() % 3];
    }
    std::optional<FonteEscolhida> Fonte(const FonteEscolhida &, bool) override
    {
        if (m_g() % 2)
            return std::nullopt;
        return FonteEscolhida{QStringLiteral("Arial"), double(m_g() % 130), bool(m_g() % 2), false, false, false};
    }

private:
    std::mt19937 &m_g;
};

// Layouts a file may hold though no command makes them: bands without
// items (the number of items of each band), read back through the reader.
LayoutDocumento LayoutLido(std::initializer_list<int> itens)
{
    LayoutDocumento d;
    for (int n : itens) {
        d.Bandas.append(Banda());
        for (int i = 1; i <= n; ++i)
            d.Bandas.last().Itens.append(teste::NovoItem(TipoTexto, QString::number(i), 0, 64));
    }
    LayoutDocumento lido;
    EXPECT_EQ(LerLMT(GravarLMT(d), lido).resultado, ResultadoLeitura::Ok);
    return lido;
}

// Empty when the session keeps every rule of the layout and the selection.
std::string Violacao(const SessaoEdicao &s)
{
    const LayoutDocumento &d = s.Documento;
    const int n = d.NumBandas();
    if (n < 1)
        return "no band";
    for (int b = 1; b <= n; ++b) {
        int32_t esquerda = 0;
        for (const Item &it : d.banda(b).Itens) {
            if (it.Esquerda != esquerda || it.Linhas.size() != 10 || it.Atributos.size() != 10)
                return "place or flags of an item of band " + std::to_string(b);
            esquerda += it.Largura;
        }
    }
    if (s.BandaSelecionada < 1 || s.BandaSelecionada > n || s.ItemSelecionado < 0
        || s.ItemSelecionado > d.banda(s.BandaSelecionada).NumItens())
        return "selection " + std::to_string(s.BandaSelecionada) + "," + std::to_string(s.ItemSelecionado);
    if (d.BandaCabecalho < 0 || d.BandaCabecalho > n || d.BandaRodape < 0 || d.BandaRodape > n)
        return "header or footer marker";
    const QSet<int16_t> quebras(d.Quebras.cbegin(), d.Quebras.cend());
    if (quebras.size() != d.Quebras.size()
        || std::any_of(quebras.cbegin(), quebras.cend(), [n](int16_t q) { return q < 1 || q > n; }))
        return "page breaks";
    const FaixaSelecao &f = s.Faixa;
    if (f.visivel) {
        if (f.bandaInicial < 1 || f.bandaFinal > n || f.bandaInicial > f.bandaFinal || f.itemInicial < 1
            || f.itemInicial > f.itemFinal)
            return "range outside the layout";
        if (f.UmaBanda() && f.itemFinal > d.banda(f.bandaInicial).NumItens())
            return "range past the band's last item";
    }
    return {};
}

class Roteiro {
public:
    Roteiro(SessaoEdicao &s, std::mt19937 &g) : s(s), g(g) {}

    int Entre(int de, int ate) { return de + int(g() % unsigned(ate - de + 1)); }
    bool Chance(int porCento) { return int(g() % 100) < porCento; }
    int Fundo() const
    {
        const Banda &u = s.Documento.banda(s.Documento.NumBandas());
        return u.Topo + std::abs(u.Altura);
    }
    QPoint Ponto() { return QPoint(Entre(-8, 420), Entre(-8, Fundo() + 40)); }

    // What opening a file does to the session, without the settings store.
    void Abrir(const LayoutDocumento &lido)
    {
        s.Documento = lido;
        s.BandaSelecionada = 1;
        s.ItemSelecionado = 0;
        s.Faixa = FaixaSelecao();
        s.Documento.ReposicionarTudo();
        s.Desfazer.PosicaoDesfazer = AnelDesfazer::NumPosicoes;
        s.ConcluirEdicao();
        s.Desfazer.InicioDesfazer = 1;
    }

    // One user action; returns its name for the failure message. Handle
    // drags check the rules after every move themselves.
    const char *Passo(const std::function<void(const char *)> &verificar)
    {
        LayoutDocumento &d = s.Documento;
        // Now and then a file with bands without items is opened, so every
        // command also meets them.
        if (Chance(1) && Chance(40)) {
            static const LayoutDocumento lidos[] = {LayoutLido({0}), LayoutLido({0, 2, 0, 1}), LayoutLido({3, 0}),
                                                    LayoutLido({0, 0, 0})};
            Abrir(lidos[g() % std::size(lidos)]);
            return "open layout with empty bands";
        }
        // Keep the layout small, by the commands themselves.
        if (d.NumBandas() > 10) {
            s.BandaSelecionada = Entre(1, d.NumBandas());
            mnuEditarBandaRemover(s);
            return "trim bands";
        }
        if (d.banda(s.BandaSelecionada).NumItens() > 8) {
            s.ItemSelecionado = Entre(1, d.banda(s.BandaSelecionada).NumItens());
            mnuEditarItemRemover(s);
            return "trim items";
        }
        switch (Entre(0, 14)) {
        case 0: {
            const QPoint p = Ponto();
            MouseDownCanvas(s, p.x(), p.y(), Chance(25) ? BotaoMouse::Direito : BotaoMouse::Esquerdo, Chance(20));
            return "mouse-down";
        }
        case 1: {
            const QPoint p = Ponto();
            ArrastarSelecao(s, p.x(), p.y());
            return "drag selection";
        }
        case 2: {
            const int alca = Entre(0, 7);
            const QRect moldura = RetanguloSelecao(s);
            if (moldura.isEmpty() || !IniciarArrasteAlca(s, alca, QRectF(RetanguloAlca(moldura, alca)).center()))
                return "handle refused";
            const QPointF inicio = s.Alca.inicio;
            for (int k = Entre(1, 4); k > 0; --k) {
                MoverArrasteAlca(s, inicio + QPointF(Entre(-70, 70), Entre(-70, 70)));
                verificar("handle move");
            }
            SoltarArrasteAlca(s);
            return "handle drag";
        }
        case 3: {
            const QPoint p = Ponto();
            MoverMagico(s, p.x(), p.y(), Chance(85));
            if (Chance(50))
                CliqueMagico(s);
            return "magic item";
        }
        case 4:
        case 5: {
            static constexpr int teclas[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,    Qt::Key_Down,
                                             Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End,
                                             Qt::Key_Delete, Qt::Key_Minus,    Qt::Key_Plus,  Qt::Key_Asterisk,
                                             Qt::Key_1,      Qt::Key_8,        Qt::Key_Return, Qt::Key_A};
            static constexpr Qt::KeyboardModifiers mods[] = {Qt::NoModifier,     Qt::ShiftModifier, Qt::ShiftModifier,
                                                             Qt::ControlModifier, Qt::AltModifier,   Qt::KeypadModifier,
                                                             Qt::ShiftModifier | Qt::ControlModifier};
            const int tecla = teclas[g() % std::size(teclas)];
            const Qt::KeyboardModifiers m = mods[g() % std::size(mods)];
            TeclaCanvas(s, tecla, m);
            BotaoLinhaDoAtalho(tecla, m);
            return "key";
        }
        case 6: {
            static const QString caracteres[] = {QStringLiteral("a"), QStringLiteral("-"), QStringLiteral("+"),
                                                 QStringLiteral("*"), QString(QChar(27)), QString(QChar(9))};
            CaractereCanvas(s, caracteres[g() % std::size(caracteres)]);
            return "character";
        }
        case 7:
            switch (Entre(0, 8)) {
            case 0: mnuEditarBandaAdicionar(s); return "band add";
            case 1: mnuEditarBandaInserir(s); return "band insert";
            case 2: mnuEditarBandaDuplicar(s); return "band duplicate";
            case 3: mnuEditarBandaRemover(s); return "band remove";
            case 4: mnuEditarBandaUp(s); return "band up";
            case 5: mnuEditarBandaDown(s); return "band down";
            case 6: mnuEditarBandaAuto(s); return "band auto";
            case 7: mnuEditarBandaPagina(s); return "band page break";
            default: mnuEditarBandaFonte(s); return "band font";
            }
        case 8:
            switch (Entre(0, 6)) {
            case 0: mnuEditarItemInserir(s); return "item insert";
            case 1: mnuEditarItemAdicionar(s); return "item add";
            case 2: mnuEditarItemDuplicar(s); return "item duplicate";
            case 3: mnuEditarItemRemover(s); return "item remove";
            case 4: mnuEditarItemLeft(s); return "item left";
            case 5: mnuEditarItemRight(s); return "item right";
            default: DefinirTipoItem(s, uint8_t(Entre(0, 2))); return "item type";
            }
        case 9:
            switch (Entre(0, 4)) {
            case 0: mnuEditarCopiar(s); return "copy";
            case 1: mnuEditarRecortar(s); return "cut";
            case 2: mnuEditarColarBanda(s); return "paste bands";
            case 3: mnuEditarColarItem(s); return "paste items";
            default: mnuEditarExcluir(s); return "delete";
            }
        case 10:
            Chance(70) ? s.DesfazerEdicao() : s.RefazerEdicao();
            return "undo or redo";
        case 11:
            mnuEditarTudo(s);
            return "select all";
        case 12:
            // What the panel's header and footer boxes do to the markers.
            if (Chance(50))
                d.BandaCabecalho = Chance(70) ? s.BandaSelecionada : 0;
            else
                d.BandaRodape = Chance(70) ? s.BandaSelecionada : 0;
            s.ConcluirEdicao();
            return "header/footer";
        case 13:
            // The property panel, as its controls call the session.
            CalcularPainel(s);
            AreaMarcasEdicao(s);
            switch (Entre(0, 9)) {
            case 0: ConfirmarTexto(s, QStringLiteral("t")); return "panel text";
            case 1: MarcarAtributo(s, Entre(1, 10), Chance(50)); return "panel box";
            case 2: DefinirAngulo(s, Entre(0, 3)); return "panel angle";
            case 3: DefinirEspessura(s, Entre(1, 9)); return "panel thickness";
            case 4: ConfirmarLargura(s, Entre(1, 200)); return "panel width";
            case 5: ConfirmarAltura(s, Entre(1, 60)); return "panel height";
            case 6: ConfirmarDeslocamento(s, Entre(-20, 20)); return "panel offset";
            case 7: MarcarCabecalho(s, Chance(50)); return "panel header";
            case 8: AlterarFonte(s); return "panel font";
            default: AcaoFonte(s); return "panel font button";
            }
        default:
            PrepararMenuEditar(s, Chance(10));
            return "edit menu";
        }
    }

private:
    SessaoEdicao &s;
    std::mt19937 &g;
};

}  // namespace

TEST(SessaoAleatoria, CemMilComandosMantemAsRegrasDoLayoutEOArquivoRelido)
{
    // Every copy writes the exchange file through a synced rename; on a disk
    // those syncs, not the editor, would take most of the run's time.
    const QString memoria = QStringLiteral("/dev/shm");
    QTemporaryDir pasta(QFileInfo(memoria).isWritable() ? memoria + QStringLiteral("/lumeta-XXXXXX")
                                                       : QDir::tempPath() + QStringLiteral("/lumeta-XXXXXX"));
    ASSERT_TRUE(pasta.isValid());
    // LUMETA_SEMENTE replays another run.
    bool outra = false;
    const unsigned semente = unsigned(qEnvironmentVariableIntValue("LUMETA_SEMENTE", &outra));
    std::mt19937 g(outra ? semente : Semente);
    UsuarioAleatorio ui(g);
    SessaoEdicao s;
    s.Ui = &ui;
    s.ArquivoTransferencia = pasta.filePath(QStringLiteral("~TMP_LumetaEdit.clp"));
    int pinturas = 0, maiorNumBandas = 0;
    s.Ganchos.Pintar = [&](const ResultadoRepintura &) {
        ++pinturas;
        maiorNumBandas = std::max(maiorNumBandas, s.Documento.NumBandas());
    };
    Roteiro roteiro(s, g);

    int passo = 0, abertos = 0;
    const char *acao = "start";
    std::string erro;
    const auto verificar = [&](const char *onde) {
        if (erro.empty()) {
            const std::string v = Violacao(s);
            if (!v.empty())
                erro = "step " + std::to_string(passo) + " (" + onde + "): " + v;
        }
    };
    verificar(acao);
    for (passo = 1; passo <= NumPassos && erro.empty(); ++passo) {
        acao = roteiro.Passo(verificar);
        abertos += std::string(acao).starts_with("open");
        verificar(acao);
    }
    ASSERT_EQ(erro, std::string()) << "seed " << (outra ? semente : Semente);
    // The run must have reached the interesting states, not idled in one.
    EXPECT_FALSE(ui.mensagens.isEmpty());
    EXPECT_GT(pinturas, NumPassos / 4);
    EXPECT_GE(maiorNumBandas, 8);
    EXPECT_GT(abertos, 50);

    const QByteArray dados = GravarLMT(s.Documento);
    LayoutDocumento relido;
    ASSERT_EQ(LerLMT(dados, relido).resultado, ResultadoLeitura::Ok);
    EXPECT_EQ(relido, s.Documento);
}
