#include "app/gui/LigacaoDialogos.h"

#include "app/gui/CanvasJanela.h"
#include "app/gui/PainelJanela.h"
#include "app/gui/frmLumetaEdit.h"
#include "dialogs/frmCodigoBarras.h"
#include "dialogs/frmComentario.h"
#include "dialogs/frmLinguagens.h"

#include <QAction>

namespace lumeta {

bool AbrirCodigoBarrasJanela(frmLumetaEdit &janela)
{
    const bool aplicado = AbrirCodigoBarras(janela.Sessao(), &janela);
    if (aplicado && janela.picPagina)
        janela.picPagina->AtualizarMarcas();
    return aplicado;
}

void LigarDialogosEditar(frmLumetaEdit &janela)
{
    frmLumetaEdit *j = &janela;
    if (QAction *a = janela.Acao(QStringLiteral("mnuEditarItemCodigoBarras")))
        QObject::connect(a, &QAction::triggered, j, [j] { AbrirCodigoBarrasJanela(*j); });
    QObject::connect(janela.painel, &PainelJanela::CodigoBarrasPedido, j, [j] { AbrirCodigoBarrasJanela(*j); });
    if (QAction *a = janela.Acao(QStringLiteral("mnuEditarBandaComentario"))) {
        a->setEnabled(true);
        QObject::connect(a, &QAction::triggered, j, [j] {
            if (AbrirComentario(j->Sessao(), j) && j->picPagina)
                j->picPagina->AtualizarMarcas();
        });
    }
    if (QAction *a = janela.Acao(QStringLiteral("mnuEditarLinguagens"))) {
        a->setEnabled(true);
        QObject::connect(a, &QAction::triggered, j, [j] {
            frmLinguagens dlg(j->Sessao().Config, j->Sessao().Ui, j);
            dlg.exec();
        });
    }
}

}  // namespace lumeta
