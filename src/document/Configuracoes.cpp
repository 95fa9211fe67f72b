#include "document/Configuracoes.h"

#include <algorithm>

#include <QSettings>
#include <memory>

namespace lumeta {

QSettings *AbrirConfig()
{
    return new QSettings(QSettings::IniFormat, QSettings::UserScope, OrganizacaoConfig, TituloAplicacao);
}

bool TextoParaBooleano(const QString &texto, bool padrao)
{
    const QString t = texto.trimmed();
    if (t.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (t.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const double v = t.toDouble(&ok);
    return ok ? v != 0 : padrao;
}

namespace {

QString lerTexto(QSettings &s, const char *chave, const QString &padrao)
{
    const QVariant v = s.value(QLatin1String(chave));
    return v.isValid() ? v.toString() : padrao;
}

bool lerBooleano(QSettings &s, const char *chave, bool padrao)
{
    const QVariant v = s.value(QLatin1String(chave));
    return v.isValid() ? TextoParaBooleano(v.toString(), padrao) : padrao;
}

int lerInteiro(QSettings &s, const char *chave, int padrao)
{
    bool ok = false;
    const int v = lerTexto(s, chave, QString()).trimmed().toInt(&ok);
    return ok ? v : padrao;
}

QString chaveRecente(int k)
{
    return QStringLiteral("Arquivo recente ") + QString::number(k);
}

}  // namespace

void Configuracoes::Ler()
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    ExibirResultado = lerBooleano(*s, "Exibir Resultado", true);
    FontesImpressora = lerBooleano(*s, "Fontes Impressora", false);
    UnidadeMedida = lerInteiro(*s, "Unidade de Medida", UnidadePixels);
    NoCobolUsarString = lerBooleano(*s, "No COBOL usar STRING", true);
    MagicItem = lerBooleano(*s, "MagicItem", true);
    Zoom = std::clamp(lerInteiro(*s, "Zoom", 100), 25, 400);
    Reguas = lerBooleano(*s, "Exibir Reguas", true);
    FontePadrao.Nome = lerTexto(*s, "FontName", QStringLiteral("Arial"));
    // The font dialog gives 1 to 99 points; the command text has two digits for it.
    FontePadrao.Tamanho = int16_t(std::clamp(lerInteiro(*s, "FontSize", 10), 1, 99));
    FontePadrao.Negrito = lerBooleano(*s, "FontBold", false);
    FontePadrao.Italico = lerBooleano(*s, "FontItalic", false);
    FontePadrao.Sublinhado = lerBooleano(*s, "FontUnderline", false);
    FontePadrao.Tachado = lerBooleano(*s, "FontStrikethrough", false);
    CPY = lerTexto(*s, "CPY", QString());
    s.reset();
    LerRecentes();
}

void Configuracoes::LerRecentes()
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    // The list stops at the first empty entry, whatever follows it.
    ArquivosRecentes.clear();
    for (int k = 1; k <= 4; ++k) {
        const QString c = lerTexto(*s, chaveRecente(k).toLatin1().constData(), QString());
        if (c.isEmpty())
            break;
        ArquivosRecentes.append(c);
    }
}

void Configuracoes::GravarAoSair() const
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    s->setValue(QStringLiteral("MagicItem"), BooleanoParaTexto(MagicItem));
    s->setValue(QStringLiteral("Exibir Resultado"), BooleanoParaTexto(ExibirResultado));
    s->setValue(QStringLiteral("Fontes Impressora"), BooleanoParaTexto(FontesImpressora));
    s->setValue(QStringLiteral("Unidade de Medida"), QString::number(UnidadeMedida));
    s->setValue(QStringLiteral("Zoom"), QString::number(Zoom));
    s->setValue(QStringLiteral("Exibir Reguas"), BooleanoParaTexto(Reguas));
    s->setValue(QStringLiteral("FontName"), FontePadrao.Nome);
    s->setValue(QStringLiteral("FontSize"), QString::number(FontePadrao.Tamanho));
    s->setValue(QStringLiteral("FontBold"), BooleanoParaTexto(FontePadrao.Negrito));
    s->setValue(QStringLiteral("FontItalic"), BooleanoParaTexto(FontePadrao.Italico));
    s->setValue(QStringLiteral("FontUnderline"), BooleanoParaTexto(FontePadrao.Sublinhado));
    s->setValue(QStringLiteral("FontStrikethrough"), BooleanoParaTexto(FontePadrao.Tachado));
}

void Configuracoes::GravarCPY() const
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    s->setValue(QStringLiteral("CPY"), CPY);
}

void Configuracoes::GravarNoCobolUsarString() const
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    s->setValue(QStringLiteral("No COBOL usar STRING"), BooleanoParaTexto(NoCobolUsarString));
}

void Configuracoes::GravarPasta(const QString &pasta) const
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    s->setValue(QStringLiteral("Pasta"), pasta);
}

QStringList ListaRecentes(const QStringList &atual, const QString &caminho)
{
    QStringList nova{caminho};
    for (const QString &c : atual)
        if (!c.isEmpty() && c.compare(caminho, Qt::CaseInsensitive) != 0 && nova.size() < 4)
            nova.append(c);
    return nova;
}

void Configuracoes::GravarRecentes(const QString &caminho)
{
    ArquivosRecentes = ListaRecentes(ArquivosRecentes, caminho);
    // A failed write of a recent-file entry is not worth bothering the user with.
    std::unique_ptr<QSettings> s(AbrirConfig());
    for (int k = 1; k <= 4; ++k)
        s->setValue(chaveRecente(k), k <= ArquivosRecentes.size() ? ArquivosRecentes[k - 1] : QString());
}

void Configuracoes::ExcluirRecentes()
{
    ArquivosRecentes.clear();
    std::unique_ptr<QSettings> s(AbrirConfig());
    for (int k = 1; k <= 4; ++k)
        s->setValue(chaveRecente(k), QString());
}

}  // namespace lumeta
