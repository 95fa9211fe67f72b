#pragma once
// What the property panel shows for the current selection: every control's
// value, caption, tooltip and state, computed from the session alone so the
// window only renders it. `Validar` fills the item and band fields,
// `ExibirTipo` adapts the controls to the item's type.
#include "editing/SessaoEdicao.h"

#include <array>

namespace lumeta {

inline const QStringList ListaTipos = {QStringLiteral("Texto"), QStringLiteral("Figura"),
                                       QStringLiteral("Comando"), QStringLiteral("Cód. Barras")};
inline const QStringList ListaAngulos = {QStringLiteral("0°"), QStringLiteral("90°"), QStringLiteral("180°"),
                                         QStringLiteral("270°")};
inline const QStringList ListaZoom = {QStringLiteral(" 1 ×"), QStringLiteral(" 2 ×"), QStringLiteral(" 3 ×"),
                                      QStringLiteral(" 4 ×")};

// A text-flag check box (`chkAlinhamento`).
struct EstadoCaixa {
    QString legenda;
    QString dica;
    bool visivel = true;
    bool marcada = false;
};

struct EstadoPainel {
    bool temItem = false;
    QString selecionado;               // lblSelecionado

    // Band.
    bool cabecalhoHabilitado = false, cabecalho = false;   // chkCabecalho
    bool rodapeHabilitado = false, rodape = false;         // chkRodape
    bool alturaHabilitada = false;    // numHeight takes a typed height
    bool autoVisivel = false;         // picAuto covers it

    // Item text and buttons.
    QString texto;                    // txtTexto (white when enabled, grey otherwise)
    bool textoHabilitado = false;
    bool fonteHabilitado = false;     // btnFonte
    QString legendaFonte = QStringLiteral("&Fonte");
    QString dicaFonte = QStringLiteral("Alterar a fonte do item selecionado");
    bool botoesItem = false;          // btnRemove, btnLeft, btnRight

    // Numeric fields, in the current unit.
    bool camposHabilitados = false;
    double largura = 0, esquerda = 0, topo = 0, altura = 0, deslocamento = 0;
    int espessura = 1;

    // Type.
    bool tipoHabilitado = false;      // cmbTipo (grey when disabled)
    int tipo = -1;                    // index in ListaTipos, -1 untouched
    int angulo = 0;                   // index in ListaAngulos
    bool anguloHabilitado = false;
    bool linhasVisivel = true;        // fraLinhas
    QString legendaCor = QStringLiteral("Cor do item:");  // fraCor
    bool tamanhoVisivel = false;      // fraTamanho
    int tamanho = 0;                  // index in ListaZoom
    std::array<EstadoCaixa, 10> caixas;   // chkAlinhamento(1..10) at [0..9]
    std::array<bool, 6> linhas{};         // lblAlinhamento(1..6)

    // Colours (numbers as the item stores them; -1 with no item).
    int corTexto = -1, corFundo = -1, corLinha = -1;
};

// The captions and tooltips the check boxes have before any item adapts them.
std::array<EstadoCaixa, 10> CaixasIniciais();

// The digit of a text-flag position, 0 when it is not a digit.
int DigitoAtributo(const QString &atributos, int posicao);

// The whole panel for the session's selection.
EstadoPainel CalcularPainel(const SessaoEdicao &s);
// Only what `ExibirTipo` changes, applied to `e`.
void ExibirTipo(const SessaoEdicao &s, EstadoPainel &e);

}  // namespace lumeta
