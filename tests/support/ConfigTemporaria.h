#pragma once
// Points the settings store and the user's data folder at a fresh temporary
// folder for the life of one test, so tests never read or write the real ones.

#include "support/VariavelTemporaria.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace lumeta::teste {

class ConfigTemporaria {
public:
    ConfigTemporaria()
    {
        QDir().mkpath(Config());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Config());
    }
    QString Pasta() const { return m_dir.path(); }
    QString Config() const { return m_dir.path() + QStringLiteral("/config"); }
    QString Dados() const { return m_dir.path() + QStringLiteral("/dados"); }
    // The settings file the editor writes.
    QString ArquivoIni() const { return Config() + QStringLiteral("/Tavrosk/LumetaEdit 2.0.ini"); }

private:
    QTemporaryDir m_dir;
    VariavelTemporaria m_xdg{"XDG_DATA_HOME", Dados()};
};

}  // namespace lumeta::teste
