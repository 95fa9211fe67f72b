#pragma once
// Session commands of the page canvas: a band's height mode, the page break
// after a band, and the final page break against the footer. They change the
// model only; the caller repaints (ExibirBanda) and refreshes the panel.

#include "document/Sessao.h"

#include <QList>
#include <QString>

namespace lumeta {

inline const QString MensagemQuebraFinalComRodape =
    QStringLiteral("Não é possível finalizar com quebra de página um relatório com rodapé!");
inline const QString MensagemQuebraFinalRemovida = MensagemQuebraFinalComRodape
    + QStringLiteral("\n\nA quebra de página será removida do final da página.");
inline const QString TituloRodape = QStringLiteral("Rodapé");

// `mnuEditarBandaAuto`: the bands of `faixa` (a range over several bands),
// or the selected band when it is empty, switch mode: a fixed height becomes
// 0 (automatic, computed at the next repaint), an automatic one becomes the
// magnitude last computed.
void mnuEditarBandaAuto(SessaoEditor &sessao, const QList<int> &faixa = {});
// The caption of that menu entry for a band.
QString LegendaBandaAuto(const Banda &banda);
// Whether the height field takes a typed height (a fixed band); an automatic
// band shows `picAuto` over it instead.
inline bool AlturaManual(const Banda &banda) { return banda.Altura >= 1; }

// `mnuEditarBandaPagina`: adds the page break after the selected band, or
// removes it when there is one. The entry is enabled from band 2 on; on band
// 1 nothing happens. Returns whether the list changed.
bool mnuEditarBandaPagina(SessaoEditor &sessao);
inline bool BandaPaginaHabilitada(int banda) { return banda >= 2; }
// "Remover a &Quebra de Página" or "&Quebrar a Página".
QString LegendaBandaPagina(const LayoutDocumento &doc, int banda);

// `mnuConfigQuebraPagina` ("&Finalizar com quebra de página"): toggles the
// setting and marks the layout changed; switching it on while the layout has
// a footer is refused with MensagemQuebraFinalComRodape (information,
// "Rodapé") and the setting stays off. The message, also shown through
// `sessao.Ui` when one is set, is returned; empty when the toggle happened.
QString mnuConfigQuebraPagina(SessaoEditor &sessao);

// What the footer check box runs after setting the footer start: with the
// final page break on, MensagemQuebraFinalRemovida (information, "Rodapé")
// and the setting goes off as the menu command turns it off. Returns the
// message (empty when nothing was due), shown through `sessao.Ui` too.
QString VerificarRodapeQuebraFinal(SessaoEditor &sessao);

}  // namespace lumeta
