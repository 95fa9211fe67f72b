#pragma once
// An environment variable set (or, with a null value, removed) for the life
// of one test, and put back as it was afterwards.

#include <QByteArray>
#include <QFile>
#include <QString>

namespace lumeta::teste {

class VariavelTemporaria {
public:
    VariavelTemporaria(const char *nome, const QString &valor)
        : m_nome(nome), m_anterior(qgetenv(nome)), m_tinha(qEnvironmentVariableIsSet(nome))
    {
        if (valor.isNull())
            qunsetenv(nome);
        else
            qputenv(nome, QFile::encodeName(valor));
    }
    ~VariavelTemporaria()
    {
        if (m_tinha)
            qputenv(m_nome, m_anterior);
        else
            qunsetenv(m_nome);
    }
    VariavelTemporaria(const VariavelTemporaria &) = delete;
    VariavelTemporaria &operator=(const VariavelTemporaria &) = delete;

private:
    const char *m_nome;
    QByteArray m_anterior;
    bool m_tinha;
};

}  // namespace lumeta::teste
