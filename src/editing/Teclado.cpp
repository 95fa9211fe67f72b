#include "editing/Teclado.h"

#include "editing/ComandosBanda.h"
#include "editing/ComandosItem.h"
#include "editing/ComandosTransferencia.h"
#include "editing/Selecao.h"

#include <algorithm>
#include <cstdlib>

namespace lumeta {

namespace {

constexpr Qt::KeyboardModifiers Modificadores = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier
    | Qt::MetaModifier;

void mudarItem(SessaoEdicao &s, int item)
{
    LimparFaixa(s);
    s.ItemSelecionado = item;
    MostrarSelecao(s);
}

void mudarBanda(SessaoEdicao &s, int banda)
{
    LimparFaixa(s);
    s.BandaSelecionada = banda;
    const int n = s.Documento.banda(banda).NumItens();
    s.ItemSelecionado = std::min(s.ItemSelecionado == 0 ? 1 : s.ItemSelecionado, n);
    MostrarSelecao(s, true);
}

bool semModificador(SessaoEdicao &s, int tecla, bool numerico, ResultadoTecla &r)
{
    const LayoutDocumento &doc = s.Documento;
    const int itens = doc.banda(s.BandaSelecionada).NumItens();
    switch (tecla) {
    case Qt::Key_Left:
        if (s.ItemSelecionado >= 2)
            mudarItem(s, s.ItemSelecionado - 1);
        return true;
    case Qt::Key_Right:
        if (s.ItemSelecionado < itens)
            mudarItem(s, s.ItemSelecionado + 1);
        return true;
    case Qt::Key_Up:
        if (s.BandaSelecionada >= 2)
            mudarBanda(s, s.BandaSelecionada - 1);
        return true;
    case Qt::Key_Down:
        if (s.BandaSelecionada < doc.NumBandas())
            mudarBanda(s, s.BandaSelecionada + 1);
        return true;
    case Qt::Key_PageUp:
        r.rolagem = AcaoRolagem::PaginaAcima;
        return true;
    case Qt::Key_PageDown:
        r.rolagem = AcaoRolagem::PaginaAbaixo;
        return true;
    case Qt::Key_Home:
        r.rolagem = AcaoRolagem::Inicio;
        return true;
    case Qt::Key_End:
        r.rolagem = AcaoRolagem::Fim;
        return true;
    case Qt::Key_Delete:
        if (s.ItemSelecionado > 0)
            mnuEditarExcluir(s);
        else
            mnuEditarBandaRemover(s);
        return true;
    case Qt::Key_Minus:
        if (!numerico)
            return false;
        if (s.ItemSelecionado > 0)
            mnuEditarExcluir(s);
        else
            mnuEditarBandaRemover(s);
        return true;
    case Qt::Key_Plus:
        if (!numerico)
            return false;
        mnuEditarItemInserir(s);
        return true;
    case Qt::Key_Asterisk:
        if (!numerico)
            return false;
        mnuEditarItemAdicionar(s);
        return true;
    default:
        return false;
    }
}

bool comShift(SessaoEdicao &s, int tecla)
{
    if (tecla != Qt::Key_Left && tecla != Qt::Key_Right && tecla != Qt::Key_Up && tecla != Qt::Key_Down)
        return false;
    if (s.ItemSelecionado < 1)
        return true;
    Banda &banda = s.Documento.banda(s.BandaSelecionada);
    if (tecla == Qt::Key_Left || tecla == Qt::Key_Right) {
        const int atual = banda.Itens[s.ItemSelecionado - 1].Largura;
        const int passo = tecla == Qt::Key_Left ? -8 : 8;
        AplicarLargura(s, std::clamp(atual + passo, MinimoTeclado, MaximoTeclado));
    } else {
        const int atual = Magnitude(banda.Altura);
        const int passo = tecla == Qt::Key_Up ? -8 : 8;
        AplicarAltura(s, std::clamp(atual + passo, MinimoTeclado, MaximoTeclado));
    }
    s.Documento.ReposicionarItem(s.BandaSelecionada);
    s.ConcluirEdicao();
    return true;
}

bool comCtrl(SessaoEdicao &s, int tecla)
{
    switch (tecla) {
    case Qt::Key_Up:
        mnuEditarBandaUp(s);
        return true;
    case Qt::Key_Down:
        mnuEditarBandaDown(s);
        return true;
    case Qt::Key_Left:
        mnuEditarItemLeft(s);
        return true;
    case Qt::Key_Right:
        mnuEditarItemRight(s);
        return true;
    default:
        return false;
    }
}

}  // namespace

ResultadoTecla TeclaCanvas(SessaoEdicao &s, int tecla, Qt::KeyboardModifiers modificadores)
{
    ResultadoTecla r;
    const bool numerico = modificadores.testFlag(Qt::KeypadModifier);
    const Qt::KeyboardModifiers m = modificadores & Modificadores;
    if (m == Qt::NoModifier)
        r.consumida = semModificador(s, tecla, numerico, r);
    else if (m == Qt::ShiftModifier)
        r.consumida = comShift(s, tecla);
    else if (m == Qt::ControlModifier)
        r.consumida = comCtrl(s, tecla);
    return r;
}

bool CaractereCanvas(SessaoEdicao &s, const QString &texto)
{
    if (texto.isEmpty())
        return false;
    const QChar c = texto.at(0);
    if (c == QChar(27)) {
        NadaSelecionado(s);
        if (s.Ganchos.Validar)
            s.Ganchos.Validar();
        return true;
    }
    if (c == u'-' || c == u'+' || c == u'*')
        return true;
    if (!c.isPrint() || s.ItemSelecionado < 1)
        return false;
    if (s.Ganchos.DigitarTexto)
        s.Ganchos.DigitarTexto(texto);
    return true;
}

int NovaRolagem(int valor, int passoGrande, int maximo, AcaoRolagem acao)
{
    switch (acao) {
    case AcaoRolagem::PaginaAbaixo:
        return std::min(maximo, valor + passoGrande);
    case AcaoRolagem::PaginaAcima:
        return std::max(0, valor - passoGrande);
    case AcaoRolagem::Inicio:
        return 0;
    case AcaoRolagem::Fim:
        return maximo;
    case AcaoRolagem::Nenhuma:
        break;
    }
    return valor;
}

int BotaoLinhaDoAtalho(int tecla, Qt::KeyboardModifiers modificadores)
{
    const Qt::KeyboardModifiers m = modificadores & Modificadores;
    if (tecla < Qt::Key_0 || tecla > Qt::Key_9)
        return 0;
    const int digito = tecla - Qt::Key_0;
    if (m == Qt::AltModifier)
        return digito >= 1 && digito <= 6 ? digito : 0;
    if (m == Qt::ControlModifier) {
        static constexpr int mapa[10] = {0, 1, 4, 3, 6, 0, 2, 0, 5, 0};
        return mapa[digito];
    }
    return 0;
}

QString DicaBotaoLinha(const QString &dica, int n)
{
    static const char *const ctrl[6] = {"ou CTRL + 1 ", "ou CTRL + 6 ", "ou CTRL + 3 ",
                                        "ou CTRL + 2 ", "ou CTRL + 8 ", "ou CTRL + 4 "};
    if (n < 1 || n > 6)
        return dica;
    return dica + QStringLiteral(" ALT + ") + QString::number(n) + QLatin1Char(' ') + QLatin1String(ctrl[n - 1]);
}

}  // namespace lumeta
