// The pages of a report sent to one of the system's printers. Kept apart
// from the other commands because the system's print support brings the
// widget library with it, which the core builds do without.

#include "impressao/MotorImpressao.h"

#include <QPrinter>
#include <QPrinterInfo>

namespace lumeta::cli {

bool EnviarParaImpressora(MotorImpressao &motor, const QString &impressora, QString &erro,
                          const ProgressoImpressao &progresso)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(impressora);
    if (info.isNull()) {
        erro = QStringLiteral("A impressora '%1' não foi encontrada!").arg(impressora);
        return false;
    }
    QPrinter saida(info, QPrinter::HighResolution);
    saida.setFullPage(true);
    saida.setPageSize(QPageSize(QPageSize::A4));
    saida.setPageOrientation(motor.Opcoes().paisagem ? QPageLayout::Landscape : QPageLayout::Portrait);
    saida.setDocName(QStringLiteral("LumetaEdit"));
    return ImprimirPaginas(motor, saida, erro, progresso);
}

}  // namespace lumeta::cli
