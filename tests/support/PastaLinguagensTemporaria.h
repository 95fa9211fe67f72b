#pragma once
// Points the languages folder at a fresh temporary folder for the life of one
// test and puts the previous setting back afterwards.

#include "output/Linguagem.h"

#include <QByteArray>
#include <QTemporaryDir>

namespace lumeta::teste {

class PastaLinguagensTemporaria {
public:
    PastaLinguagensTemporaria()
        : m_anterior(qgetenv(VariavelPastaLinguagens)), m_tinha(qEnvironmentVariableIsSet(VariavelPastaLinguagens))
    {
        qputenv(VariavelPastaLinguagens, m_dir.path().toLocal8Bit());
    }
    ~PastaLinguagensTemporaria()
    {
        if (m_tinha)
            qputenv(VariavelPastaLinguagens, m_anterior);
        else
            qunsetenv(VariavelPastaLinguagens);
    }
    PastaLinguagensTemporaria(const PastaLinguagensTemporaria &) = delete;
    PastaLinguagensTemporaria &operator=(const PastaLinguagensTemporaria &) = delete;

    bool Valida() const { return m_dir.isValid(); }
    QString Pasta() const { return m_dir.path(); }
    QString Caminho(const QString &nome) const { return m_dir.filePath(nome); }

private:
    QTemporaryDir m_dir;
    QByteArray m_anterior;
    bool m_tinha;
};

}  // namespace lumeta::teste
