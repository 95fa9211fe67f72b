#include "controls/RegrasNumero.h"

#include <cmath>

namespace lumeta {

RegrasNumero::RegrasNumero()
{
    const QLocale local;
    m_separador = local.decimalPoint().at(0);
    const QString grupo = local.groupSeparator();
    m_grupo = grupo.isEmpty() ? QChar() : grupo.at(0);
    Texto = QStringLiteral("0");
    contar();
}

bool RegrasNumero::DefinirFormato(double formato)
{
    const int decimos = int(std::lround(formato * 10));
    if (decimos < 10 || decimos > 129)
        return false;
    m_maxInteiros = decimos / 10;
    m_maxDecimais = decimos % 10;
    contar();
    return true;
}

QString RegrasNumero::Exibicao(double v) const
{
    QLocale local;
    local.setNumberOptions(SeparadorMilhar ? QLocale::NumberOptions() : QLocale::OmitGroupSeparator);
    if (ManterDecimais && m_maxDecimais > 0)
        return local.toString(v, 'f', m_maxDecimais);
    QString t = local.toString(v, 'f', 9);
    const QChar sep = local.decimalPoint().at(0);
    if (t.contains(sep)) {
        while (t.endsWith(u'0'))
            t.chop(1);
        if (t.endsWith(sep))
            t.chop(1);
    }
    return t;
}

QString RegrasNumero::Edicao(double v) const
{
    QString t = Exibicao(v);
    if (!m_grupo.isNull())
        t.remove(m_grupo);
    return t;
}

void RegrasNumero::DefinirValor(double v)
{
    m_valor = v;
    m_vazio = false;
    Texto = Exibicao(v);
    InicioSelecao = TamanhoSelecao = 0;
    contar();
}

void RegrasNumero::DefinirVazio()
{
    m_valor = 0;
    m_vazio = true;
    Texto.clear();
    InicioSelecao = TamanhoSelecao = 0;
    contar();
}

void RegrasNumero::contar()
{
    m_inteiros = m_decimais = 0;
    const qsizetype sep = Texto.indexOf(m_separador);
    for (qsizetype i = 0; i < Texto.size(); ++i)
        if (Texto.at(i).isDigit())
            ++((sep >= 0 && i > sep) ? m_decimais : m_inteiros);
}

void RegrasNumero::selecionarDecimais()
{
    const qsizetype sep = Texto.indexOf(m_separador);
    if (sep < 0)
        return;
    InicioSelecao = int(sep + 1);
    TamanhoSelecao = int(Texto.size() - sep - 1);
}

void RegrasNumero::substituirSelecao(const QString &por)
{
    Texto.replace(InicioSelecao, TamanhoSelecao, por);
    InicioSelecao += int(por.size());
    TamanhoSelecao = 0;
}

bool RegrasNumero::TextoAlterado()
{
    if (Texto.contains(u'-')) {
        const int antes = int(Texto.size());
        Texto.remove(u'-');
        if (PermitirSinal)
            Texto.prepend(u'-');
        InicioSelecao = qBound(0, InicioSelecao + int(Texto.size()) - antes, int(Texto.size()));
    }
    contar();
    QString corpo = Texto;
    corpo.remove(u'-');
    if (corpo.isEmpty()) {
        m_valor = 0;
        if (PermitirVazio) {
            m_vazio = true;
            return true;
        }
        Texto = QStringLiteral("0");
        InicioSelecao = 1;
        TamanhoSelecao = 0;
        contar();
        m_vazio = false;
        return true;
    }
    m_vazio = false;
    if (!m_grupo.isNull() && m_grupo != m_separador)
        corpo.remove(m_grupo);
    corpo.replace(m_separador, u'.');
    if (corpo.startsWith(u'.'))
        corpo.prepend(u'0');
    if (corpo.endsWith(u'.'))
        corpo.append(u'0');
    bool ok = false;
    const double v = QLocale::c().toDouble(corpo, &ok);
    if (ok)
        m_valor = Texto.startsWith(u'-') ? -v : v;
    return true;
}

void RegrasNumero::separadorNoCursor()
{
    int pos = InicioSelecao;
    if (TamanhoSelecao > 0 && Texto.mid(InicioSelecao, TamanhoSelecao).contains(m_separador)) {
        Texto.remove(InicioSelecao, TamanhoSelecao);
        TamanhoSelecao = 0;
        if (Texto.isEmpty() || Texto == QLatin1String("-")) {
            Texto += u'0';
            pos = int(Texto.size());
        }
    }
    const qsizetype sep = Texto.indexOf(m_separador);
    if (sep >= 0) {
        Texto.remove(sep, 1);
        if (sep < pos)
            --pos;
    }
    const int inicio = Texto.startsWith(u'-') ? 1 : 0;
    pos = qBound(inicio, pos, int(Texto.size()));
    if (pos == inicio)
        Texto.insert(inicio, QString(u'0') + m_separador);
    else if (pos == Texto.size())
        Texto += m_separador + QStringLiteral("0");
    else
        Texto.insert(pos, m_separador);
}

EfeitoTecla RegrasNumero::Tecla(QChar k)
{
    if (k == u'\r' || k == u'\n' || k == u'\t')
        return EfeitoTecla::Passa;
    if (Travado)
        return EfeitoTecla::Recusada;
    if (k == u'\x1b') {
        Texto = m_vazio && PermitirVazio && m_valorAoFocar == 0 ? QString() : Edicao(m_valorAoFocar);
        TextoAlterado();
        InicioSelecao = 0;
        TamanhoSelecao = int(Texto.size());
        return EfeitoTecla::Consumida;
    }
    if (k == u'-' || k == u'+') {
        if (!PermitirSinal)
            return EfeitoTecla::Recusada;
        if (k == u'-') {
            if (!Texto.startsWith(u'-'))
                Texto.prepend(u'-');
            TextoAlterado();
            InicioSelecao = 1;
            TamanhoSelecao = int(Texto.size()) - 1;
        } else {
            Texto.remove(u'-');
            TextoAlterado();
            InicioSelecao = 0;
            TamanhoSelecao = int(Texto.size());
        }
        return EfeitoTecla::Consumida;
    }
    if (k == u',' || k == u'.' || k == m_separador) {
        if (m_maxDecimais == 0)
            return EfeitoTecla::Consumida;
        if (TamanhoSelecao > 0 && TamanhoSelecao >= Texto.size())
            Texto = QString(u'0') + m_separador + u'0';
        else
            separadorNoCursor();
        TextoAlterado();
        selecionarDecimais();
        return EfeitoTecla::Consumida;
    }
    if (k.isDigit() && k.unicode() < 128) {
        if (TamanhoSelecao == 0) {
            if (InicioSelecao == 0 && Texto.startsWith(u'-'))
                InicioSelecao = 1;
            const qsizetype sep = Texto.indexOf(m_separador);
            const bool noInteiro = sep < 0 || InicioSelecao <= sep;
            if (noInteiro ? m_inteiros >= m_maxInteiros : m_decimais >= m_maxDecimais)
                return EfeitoTecla::Recusada;
        }
        substituirSelecao(QString(k));
        TextoAlterado();
        return EfeitoTecla::Consumida;
    }
    if (k == u'\b') {
        if (TamanhoSelecao > 0) {
            substituirSelecao(QString());
        } else if (InicioSelecao > 0) {
            Texto.remove(--InicioSelecao, 1);
        }
        TextoAlterado();
        return EfeitoTecla::Consumida;
    }
    return EfeitoTecla::Recusada;
}

void RegrasNumero::Colar(const QString &texto)
{
    if (Travado)
        return;
    for (QChar k : texto)
        if (k.isPrint())
            Tecla(k);
}

void RegrasNumero::GanharFoco()
{
    m_valorAoFocar = m_valor;
    if (!m_grupo.isNull() && m_grupo != m_separador)
        Texto.remove(m_grupo);
    TextoAlterado();
    InicioSelecao = 0;
    TamanhoSelecao = int(Texto.size());
}

void RegrasNumero::PerderFoco()
{
    QString corpo = Texto;
    corpo.remove(u'-');
    if (corpo.isEmpty())
        Texto = PermitirVazio ? QString() : QStringLiteral("0");
    else
        Texto = Exibicao(m_valor);
    InicioSelecao = TamanhoSelecao = 0;
    contar();
}

}  // namespace lumeta
