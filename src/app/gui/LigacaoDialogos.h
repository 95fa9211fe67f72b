#pragma once
// The Edit menu entries that open the barcode, comment and languages dialogs.

namespace lumeta {

class frmLumetaEdit;

// Enables and connects mnuEditarItemCodigoBarras, mnuEditarBandaComentario
// and mnuEditarLinguagens of the window.
void LigarDialogosEditar(frmLumetaEdit &janela);

// The barcode dialog on the window's selection, with the canvas marks
// refreshed afterwards (also for the panel's font button and type menu).
bool AbrirCodigoBarrasJanela(frmLumetaEdit &janela);

}  // namespace lumeta
