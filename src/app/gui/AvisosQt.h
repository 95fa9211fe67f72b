#pragma once
// Qt's own diagnostics on standard error, kept to a trickle: a warning that
// repeats (the same text but for its numbers) is written a few times, then
// once more to say the rest are left out, then no more. Whatever goes wrong,
// standard error never fills a disk.

#include <QHash>
#include <QMutex>
#include <QString>

namespace lumeta {

class LimiteAvisos {
public:
    static constexpr int RepeticoesMostradas = 5;
    static constexpr int TotalMostrado = 500;

    // What to write for a message: itself, the note that its repeats are
    // left out, or nothing (an empty text).
    QString Filtrar(const QString &mensagem);

private:
    QMutex m_trava;
    QHash<QString, int> m_vistas;
    int m_total = 0;
};

// Installs the filter above for the whole program (fatal messages still end it).
void InstalarLimiteAvisos();

}  // namespace lumeta
