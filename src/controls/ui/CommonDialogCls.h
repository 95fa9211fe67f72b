#pragma once
// The one place where the editor opens the standard file, colour and font
// choosers. Filters come as "Description|pattern|Description|pattern"; a
// cancelled dialog gives an empty path, -1 for a colour, or the font
// unchanged.

#include "document/InterfaceUsuario.h"

#include <QColor>
#include <QString>
#include <QStringList>

class QWidget;

namespace lumeta {

// The font the font dialog starts from and returns.
using FonteDialogo = FonteEscolhida;

class CommonDialogCls {
public:
    // The filter list in the form the Qt file dialog reads, first entry first:
    // "Lumeta Layout (*.lmt)|*.lmt" gives "Lumeta Layout (*.lmt) (*.lmt)"; the
    // dialog hides the trailing pattern list, so the description reads as given.
    static QStringList FiltrosQt(const QString &filtro);

    // Save: the read-only box is not offered, an existing file is confirmed
    // before it is overwritten; a name that RecusaSalvar refuses keeps the
    // dialog open with the reason.
    static QString GetSaveName(const QString &titulo, const QString &filtro, const QString &nomeInicial,
                               const QString &extensaoPadrao, QWidget *dono);
    // Why `caminho` cannot be chosen in the save dialog (its folder does not
    // exist, or it is a read-only file), or empty. A writable file in a
    // read-only folder is accepted.
    static QString RecusaSalvar(const QString &caminho);
    // Open: the file must exist.
    static QString GetOpenName(const QString &titulo, const QString &filtro, const QString &nomeInicial,
                               QWidget *dono);
    // 0x00BBGGRR, or -1 when cancelled. The full dialog with the 16 custom
    // colour slots is shown, starting from `corInicial` (same encoding).
    static int PickColor(int corInicial, QWidget *dono);
    // False when cancelled (`fonte` then unchanged). A name the system lacks
    // comes back unchanged unless another family is picked; "Arial", "Times
    // New Roman" and "Courier New" are offered with the styles of the family
    // that draws them. `soImpressao`: only scalable fonts, the ones a
    // printer draws.
    static bool GetFont(FonteDialogo &fonte, QWidget *dono, bool soImpressao = false);

    static int CorParaBGR(const QColor &c) { return c.red() | (c.green() << 8) | (c.blue() << 16); }
    static QColor BGRParaCor(int bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }
};

}  // namespace lumeta
