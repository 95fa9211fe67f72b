#pragma once
// An environment variable set (or, with a null value, removed) for the life
// of one test, and put back as it was afterwards.

#include <QByteArray>
#include <QFile>
#include <QString>
#include <optional>

namespace lumeta::teste {

class VariavelTemporaria {
public:
    VariavelTemporaria(const char *nome, const QString &valor)
        : m_nome(nome), m_anterior(qEnvironmentVariableIsSet(nome) ? std::optional(qgetenv(nome)) : std::nullopt)
    {
        definir(valor.isNull() ? std::nullopt : std::optional(QFile::encodeName(valor)));
    }
    ~VariavelTemporaria() { definir(m_anterior); }
    VariavelTemporaria(const VariavelTemporaria &) = delete;
    VariavelTemporaria &operator=(const VariavelTemporaria &) = delete;

private:
    void definir(const std::optional<QByteArray> &valor) { valor ? qputenv(m_nome, *valor) : qunsetenv(m_nome); }
    const char *m_nome;
    std::optional<QByteArray> m_anterior;
};

}  // namespace lumeta::teste
