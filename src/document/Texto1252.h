#pragma once
// Windows-1252, the code page of every text the editor writes for the viewer
// and of the texts inside .lmt and .lin files. Undefined bytes (81, 8D, 8F,
// 90, 9D) map to the C1 controls of the same value so that any file round-trips.

#include <QByteArray>
#include <QString>

namespace lumeta {

QString De1252(const char *dados, qsizetype n);
inline QString De1252(const QByteArray &b) { return De1252(b.constData(), b.size()); }

// Characters outside the code page become '?'.
QByteArray Para1252(const QString &texto);
void AcrescentarEm1252(QByteArray &destino, const QString &texto);
// Writes texto.size() bytes at destino.
void EscreverEm1252(char *destino, const QString &texto);

}  // namespace lumeta
