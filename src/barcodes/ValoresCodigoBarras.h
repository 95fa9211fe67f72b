#pragma once
// The barcode dialog's values: the type, the content (a fixed value kept in
// double quotes, or a field name as typed), "use the band height" (flag
// position 10) and the graph-bar layout; and the samples its preview draws
// for each type. Reading them from the items and writing them back is an
// editing command (editing/ComandosDialogos.h).

#include "document/Layout.h"

#include <QImage>
#include <QString>

namespace lumeta {

struct ValoresCodigoBarras {
    uint8_t Tipo = TipoEAN13;
    QString Conteudo;           // a quoted fixed value or a field name
    bool AlturaBanda = false;   // flag position 10
    bool BarraGrafico = false;

    bool operator==(const ValoresCodigoBarras &) const = default;
};

// The eleven types the dialog offers, in the order of its options.
inline constexpr uint8_t TiposDialogoCodigoBarras[] = {
    TipoEAN13, TipoEAN8, TipoCode39Check, TipoCode128C, TipoInterlace25, TipoCode39,
    TipoInterlace25SemNumeros, TipoInterlace25NumerosTopo, TipoCode128B, TipoBarraGrafico, TipoPDF417,
};
// The option's caption ("EAN-13", "Barra de gráfico"...); empty for any other code.
QString LegendaTipoCodigoBarras(int tipo);

// The two fields of the dialog: a content beginning with a double quote is a
// fixed value (shown with every double quote removed), anything else a field.
struct CamposCodigoBarras {
    QString texto;
    QString comando;
};
CamposCodigoBarras SepararConteudo(const QString &conteudo);

// The content the dialog returns: the field when one was typed, else the fixed
// value in double quotes (two quotes when both are empty). For a graph bar
// without a field the height is first taken as a whole number, and `texto`
// is rewritten with it.
QString ConteudoDosCampos(int tipo, QString &texto, const QString &comando);

// The graph bar's height as typed: the leading number (sign, digits, a "."
// or "," fraction) truncated to a whole number; 0 when there is none.
int AlturaBarraGrafico(const QString &texto);

// The preview of a type: the sample value, the valid-characters text (lines
// separated by "\n"; empty for the graph bar, whose info is hidden) and the
// picture (bar height 40, digits shown, no rotation; the three sample bars
// for the graph bar).
QString AmostraCodigoBarras(int tipo);
QString CaracteresValidos(int tipo);
QImage PreviaCodigoBarras(int tipo);

}  // namespace lumeta
