#pragma once
// Copy, cut, paste and delete of bands and items. Copies travel through a
// private exchange file in the temporary folder, not through the system
// clipboard's formats: a 32-byte marker carrying this build's exact version,
// then the band records, so only the same build reads them back.

#include "editing/SessaoEdicao.h"

#include <optional>

namespace lumeta {

inline const QString MensagemTransferenciaVazia = QStringLiteral("Os dados da área de transferência estão vazios!");
inline const QString MensagemTransferenciaInvalida =
    QStringLiteral("Os dados da área de transferência são inválidos!");
inline const QString MensagemSubstituirTransferencia = QStringLiteral("Não foi possível substituir o arquivo acima!");
inline const QString MensagemExcluirTodas = QStringLiteral("Não é possível excluir todas as bandas!");
inline const QString TituloColar = QStringLiteral("Colar");

// "LumetaEdit (<major>.<minor tens>.<minor units>.<revision>) clpbrd" CR LF,
// padded with blanks to 32 bytes.
QByteArray MarcadorTransferencia(int maior, int menor, int revisao);
// The marker of this build.
QByteArray MarcadorTransferencia();

// The bands the exchange file holds, or nullopt after telling the user why
// (missing, foreign or damaged file).
std::optional<QList<Banda>> LerAreaTransferencia(SessaoEdicao &s);

// Copies the range, or the selected item, or the selected band's items.
bool mnuEditarCopiar(SessaoEdicao &s);
void mnuEditarRecortar(SessaoEdicao &s);
void mnuEditarColarBanda(SessaoEdicao &s);
void mnuEditarColarItem(SessaoEdicao &s);
// Removes the range's items or bands, or the selected item, or the band.
void mnuEditarExcluir(SessaoEdicao &s);

}  // namespace lumeta
