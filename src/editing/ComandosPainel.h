#pragma once
// The property panel's commands: what a commit of each field, a flag box,
// the angle and zoom lists, the header/footer boxes, the font and picture
// buttons and the macro menu do to the selected item or to every item of
// the range. Values of the size fields come in the current unit.
#include "editing/SessaoEdicao.h"

namespace lumeta {

inline const QString MensagemFonteInvalida = QStringLiteral("O nome da fonte não foi informado ou é inválido!");
inline const QString TituloAbrirFigura = QStringLiteral("Abrir Figura...");
QString FiltroFiguras();

// `txtTexto`'s commit.
void ConfirmarTexto(SessaoEdicao &s, const QString &texto);
// `chkAlinhamento(n)` clicked by the user; position 7 keeps its angle bits.
void MarcarAtributo(SessaoEdicao &s, int n, bool marcada);
// `cmbAngulo`: pictures keep 0°.
void DefinirAngulo(SessaoEdicao &s, int indice);
// `cmbTamanho`: barcodes only.
void DefinirZoom(SessaoEdicao &s, int indice);
// `numThickness`: kept within 1..64.
void DefinirEspessura(SessaoEdicao &s, double valor);
// `numWidth`: a value below 1 counts as 1.
void ConfirmarLargura(SessaoEdicao &s, double valor);
// `numHeight`: a fixed height (leaves automatic height).
void ConfirmarAltura(SessaoEdicao &s, double valor);
// `numDeslocamento`: false when the band already had that displacement.
bool ConfirmarDeslocamento(SessaoEdicao &s, double valor);
// `chkCabecalho` and `chkRodape` clicked by the user. The footer returns
// the message shown when it switched the final page break off.
void MarcarCabecalho(SessaoEdicao &s, bool marcada);
QString MarcarRodape(SessaoEdicao &s, bool marcada);
// `AlterarFonte`: false when cancelled or refused.
bool AlterarFonte(SessaoEdicao &s);
// `AbrirFigura`: the chosen path between double quotes becomes the text;
// returns that text, empty when cancelled.
QString AbrirFigura(SessaoEdicao &s);
// What `btnFonte` opens.
enum class AcaoBotaoFonte { Fonte, Figura, CodigoBarras, Nada };
AcaoBotaoFonte AcaoFonte(const SessaoEdicao &s);
// `mnuEditarMacroItem(indice)`: the text to insert, asking for the variable
// number for the last entry; empty when nothing is to be inserted.
QString TextoMacro(SessaoEdicao &s, int indice);

}  // namespace lumeta
