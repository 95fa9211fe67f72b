#pragma once
// The band commands of the Edit menu: add, insert, duplicate, remove, move
// up and down, height mode, page break after the band, band font; and the
// final page break against the footer. Each runs the edit cycle and shows
// the selection again, except where said.

#include "editing/SessaoEdicao.h"

#include <QList>
#include <QString>

namespace lumeta {

inline const QString MensagemQuebraFinalComRodape =
    QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!");
inline const QString MensagemQuebraFinalRemovida = MensagemQuebraFinalComRodape
    + QStringLiteral("\n\nA quebra de página será removida do final da página.");
inline const QString TituloRodape = QStringLiteral("Rodapé");

inline const QString MensagemUltimaBanda = QStringLiteral("Não é possível remover a última banda!");

// The file's counts are 16-bit: a command that would add bands or items
// past them is refused (information, titled after the command) and changes
// nothing. Each check tells the user and returns false when `novas` more
// would not fit.
inline const QString MensagemLimiteBandas =
    QStringLiteral("O layout já tem o máximo de %1 bandas!").arg(MaximoBandas);
inline const QString MensagemLimiteItens =
    QStringLiteral("A banda já tem o máximo de %1 itens!").arg(MaximoItens);
inline const QString TituloAdicionarBanda = QStringLiteral("Adicionar Banda");
inline const QString TituloInserirBanda = QStringLiteral("Inserir Banda");
inline const QString TituloDuplicarBanda = QStringLiteral("Duplicar Banda");
inline const QString TituloAdicionarItem = QStringLiteral("Adicionar Item");
inline const QString TituloInserirItem = QStringLiteral("Inserir Item");
inline const QString TituloDuplicarItem = QStringLiteral("Duplicar Item");
bool CabemBandas(SessaoEdicao &s, qsizetype novas, const QString &titulo);
bool CabemItens(SessaoEdicao &s, int banda, qsizetype novos, const QString &titulo);

void mnuEditarBandaAdicionar(SessaoEdicao &s);
void mnuEditarBandaInserir(SessaoEdicao &s);
void mnuEditarBandaDuplicar(SessaoEdicao &s);
// Refused with MensagemUltimaBanda when the layout has one band.
bool mnuEditarBandaRemover(SessaoEdicao &s);
void mnuEditarBandaUp(SessaoEdicao &s);
void mnuEditarBandaDown(SessaoEdicao &s);
// The font dialog; every item of the selected band takes the chosen font.
// A band without items has no font to change: nothing happens.
void mnuEditarBandaFonte(SessaoEdicao &s);

// The selected band's height, or every band's of a range over several
// bands; a positive height ends automatic height. No repaint.
void AplicarAltura(SessaoEdicao &s, int32_t altura);

// `mnuEditarBandaAuto`: the bands of a range over several bands, or the
// selected band, switch mode: a fixed height becomes 0 (automatic, computed
// by the repaint), an automatic one the magnitude last computed.
void mnuEditarBandaAuto(SessaoEdicao &sessao);
// The caption of that menu entry for a band.
QString LegendaBandaAuto(const Banda &banda);
// Whether the height field takes a typed height (a fixed band); an automatic
// band shows `picAuto` over it instead.
inline bool AlturaManual(const Banda &banda) { return banda.Altura >= 1; }

// `mnuEditarBandaPagina`: adds the page break after the selected band, or
// removes it when there is one. The entry is enabled from band 2 on; on band
// 1 nothing happens. Returns whether the list changed (and repainted).
bool mnuEditarBandaPagina(SessaoEdicao &sessao);
inline bool BandaPaginaHabilitada(int banda) { return banda >= 2; }
// "Remover a &Quebra de Página" or "&Quebrar a Página".
QString LegendaBandaPagina(const LayoutDocumento &doc, int banda);

// `mnuConfigQuebraPagina` ("&Finalizar com quebra de página"): toggles the
// setting and marks the layout changed; switching it on while the layout has
// a footer is refused with MensagemQuebraFinalComRodape (information,
// "Rodapé") and the setting stays off. The message, also shown through
// `sessao.Ui` when one is set, is returned; empty when the toggle happened.
QString mnuConfigQuebraPagina(SessaoEdicao &sessao);

// What the footer check box runs after setting the footer start: with the
// final page break on, MensagemQuebraFinalRemovida (information, "Rodapé")
// and the setting goes off as the menu command turns it off. Returns the
// message (empty when nothing was due), shown through `sessao.Ui` too.
QString VerificarRodapeQuebraFinal(SessaoEdicao &sessao);

}  // namespace lumeta
