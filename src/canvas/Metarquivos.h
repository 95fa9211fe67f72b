#pragma once
// Windows metafiles (WMF, EMF) as pictures. Qt reads neither, so each one is
// turned into SVG by the format's own library (libwmf, libemf2svg) and drawn
// with Qt's SVG renderer at the size the file gives itself.

#include <QByteArray>
#include <QImage>

namespace lumeta {

enum class TipoMetarquivo { Nenhum, WMF, EMF };

// What the first bytes say: a placeable or plain WMF header, or an EMF
// header record with its " EMF" signature.
TipoMetarquivo TipoDeMetarquivo(const QByteArray &dados);

// The picture of a metafile on a white sheet, or a null image when the bytes
// are no metafile, the library refuses them or the size is absurd.
QImage LerMetarquivo(const QByteArray &dados);

}  // namespace lumeta
