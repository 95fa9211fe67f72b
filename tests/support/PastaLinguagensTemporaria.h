#pragma once
// Points the languages folder at a fresh temporary folder for the life of one
// test and puts the previous setting back afterwards.

#include "output/Linguagem.h"
#include "support/VariavelTemporaria.h"

#include <QTemporaryDir>

namespace lumeta::teste {

class PastaLinguagensTemporaria {
public:
    bool Valida() const { return m_dir.isValid(); }
    QString Pasta() const { return m_dir.path(); }
    QString Caminho(const QString &nome) const { return m_dir.filePath(nome); }

private:
    QTemporaryDir m_dir;
    VariavelTemporaria m_variavel{VariavelPastaLinguagens, m_dir.path()};
};

}  // namespace lumeta::teste
