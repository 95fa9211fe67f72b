#pragma once
// Points the settings store and the user's data folder at a fresh temporary
// folder for the life of one test, so tests never read or write the real ones.

#include <QByteArray>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace lumeta::teste {

class ConfigTemporaria {
public:
    ConfigTemporaria()
        : m_xdgAnterior(qgetenv("XDG_DATA_HOME")), m_tinhaXdg(qEnvironmentVariableIsSet("XDG_DATA_HOME"))
    {
        QDir().mkpath(Config());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, Config());
        qputenv("XDG_DATA_HOME", Dados().toLocal8Bit());
    }
    ~ConfigTemporaria()
    {
        if (m_tinhaXdg)
            qputenv("XDG_DATA_HOME", m_xdgAnterior);
        else
            qunsetenv("XDG_DATA_HOME");
    }
    QString Pasta() const { return m_dir.path(); }
    QString Config() const { return m_dir.path() + QStringLiteral("/config"); }
    QString Dados() const { return m_dir.path() + QStringLiteral("/dados"); }
    // The settings file the editor writes.
    QString ArquivoIni() const { return Config() + QStringLiteral("/Tavrosk/LumetaEdit 2.0.ini"); }

private:
    QTemporaryDir m_dir;
    QByteArray m_xdgAnterior;
    bool m_tinhaXdg;
};

}  // namespace lumeta::teste
