// A barcode as the canvas draws it, written to a PNG file.

#include "app/cli/Comandos.h"
#include "barcodes/CodigoBarras.h"
#include "barcodes/ModPDF417.h"
#include "document/Texto1252.h"

#include <QImage>

namespace lumeta::cli {

namespace {

constexpr const char *kUso = "codigo-barras TIPO VALOR SAIDA.png [--angulo 0|90|180|270]";

int usoErrado(Saidas &io)
{
    io.err(QStringLiteral("Uso: lumetaedit-cli ") + QString::fromUtf8(kUso));
    return 2;
}

const ComandoCli codigoBarras(60, "codigo-barras", kUso,
    "Grava em PNG o código de barras do TIPO (31 a 39, ou 80 para PDF417) com o VALOR,\n"
    "um pixel por módulo, como o editor o desenha: barras de 40 pixels e os números legíveis.",
    [](const QStringList &args, Saidas &io) {
        QStringList posicionais;
        int angulo = 0;
        for (qsizetype i = 0; i < args.size(); ++i) {
            QString a = args[i];
            if (a == QLatin1String("--angulo") || a.startsWith(QLatin1String("--angulo="))) {
                QString n;
                if (a.contains(QLatin1Char('=')))
                    n = a.section(QLatin1Char('='), 1);
                else if (i + 1 < args.size())
                    n = args[++i];
                else
                    return usoErrado(io);
                bool ok = false;
                angulo = n.toInt(&ok);
                if (!ok || (angulo != 0 && angulo != 90 && angulo != 180 && angulo != 270)) {
                    io.err(QStringLiteral("Ângulo inválido: ") + n + QStringLiteral(" (use 0, 90, 180 ou 270)"));
                    return 2;
                }
            } else {
                posicionais.append(a);
            }
        }
        // The value may start with "-" (Code 39 has it); the file name may not.
        if (posicionais.size() != 3 || TemOpcao({posicionais[2]}))
            return usoErrado(io);
        bool ok = false;
        const int tipo = posicionais[0].toInt(&ok);
        if (!ok || !EhCodigoBarras(tipo)) {
            io.err(QStringLiteral("Tipo de código de barras inválido: ") + posicionais[0]
                   + QStringLiteral(" (use 31 a 39, ou 80 para PDF417)"));
            return 2;
        }
        const QString &valor = posicionais[1];
        if (tipo == 80) {
            // The canvas just leaves the cell blank; a script wants to know.
            QByteArray matriz;
            int numBytes = 0, largura = 0;
            if (!GetPDF417(Para1252(valor), matriz, numBytes, largura)) {
                io.err(valor.isEmpty() ? QStringLiteral("O valor do PDF417 está vazio.")
                                       : QStringLiteral("O valor não cabe em um símbolo PDF417."));
                return 1;
            }
        }
        const QImage figura = DesenharCodigoBarras(tipo, valor, 40, true, angulo);
        return GravarPNG(figura, posicionais[2], QStringLiteral("Não foi possível gravar o arquivo ") + posicionais[2],
                         io)
            ? 0
            : 1;
    });

}  // namespace
}  // namespace lumeta::cli
