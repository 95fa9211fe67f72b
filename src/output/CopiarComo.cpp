#include "output/CopiarComo.h"

#include "controls/clsConcatenarString.h"
#include "document/ArquivoLMT.h"
#include "document/Configuracoes.h"
#include "document/Texto1252.h"
#include "output/TextoComandos.h"

#include <QFileInfo>
#include <QSettings>
#include <memory>

namespace lumeta {

namespace {

const QString kC = QStringLiteral("§c");
const QString kT = QStringLiteral("§t");
const QString kN = QStringLiteral("§n");
const QString kI = QStringLiteral("§i");
const QString kS = QStringLiteral("§s");
const QString kR = QStringLiteral("§r");
const QString kF = QStringLiteral("§f");
const QString kCL = QStringLiteral("§cl");
const QString kCF = QStringLiteral("§cf");
const QString kEI = QStringLiteral("§ei");
const QString kCI = QStringLiteral("§ci");
const QString kAI = QStringLiteral("§ai");
const QString kEL = QStringLiteral("§el");
const QString kRH = QStringLiteral("§rh");
const QString kZero = QStringLiteral("\"0\"");

// Limits of a COBOL line in fixed format: the text area ends at column 72; the
// STRING form keeps column 72 for the quote that closes each piece.
constexpr qsizetype kLimiteCobol = 72;
constexpr qsizetype kLimiteCobolString = 71;
const QString kRecuoLiteral = QString(11, QLatin1Char(' '));
const QString kRecuoCauda = QString(14, QLatin1Char(' '));
const QString kContinuacao = QStringLiteral("      -    ");

// Templates typed in a plain editor may come with bare line feeds; the code is
// written with CR LF throughout, which the COBOL splitter relies on.
QString comCRLF(const QString &t)
{
    if (!t.contains(QLatin1Char('\n')) && !t.contains(QLatin1Char('\r')))
        return t;
    QString r;
    r.reserve(t.size() + 16);
    for (qsizetype i = 0; i < t.size(); ++i) {
        const QChar c = t[i];
        if (c == QLatin1Char('\r')) {
            r += FimLinha;
            if (i + 1 < t.size() && t[i + 1] == QLatin1Char('\n'))
                ++i;
        } else if (c == QLatin1Char('\n')) {
            r += FimLinha;
        } else {
            r += c;
        }
    }
    return r;
}

bool soParDeAspas(const QString &linha)
{
    qsizetype i = 0, j = linha.size();
    while (i < j && linha[i] == QLatin1Char(' '))
        ++i;
    while (j > i && linha[j - 1] == QLatin1Char(' '))
        --j;
    return j - i == 2 && linha[i] == QLatin1Char('"') && linha[i + 1] == QLatin1Char('"');
}

// A host variable stands where the template quotes the placeholder, so the
// quotes go away with it.
void trocarEntreAspas(QString &t, const QString &marcador, const QString &valor)
{
    t.replace(QLatin1Char('\'') + marcador + QLatin1Char('\''), valor);
    t.replace(QLatin1Char('"') + marcador + QLatin1Char('"'), valor);
}

struct Modelos {
    QString inicial, f, l, t, rh, simples;
    explicit Modelos(const LinguagemDef &d)
        : inicial(comCRLF(d.ComentarioInicial)), f(comCRLF(d.ComandoF)), l(comCRLF(d.ComandoL)),
          t(comCRLF(d.ComandoT)), rh(comCRLF(d.ComandoRH)), simples(comCRLF(d.ComandosSimples))
    {
    }
};

class Gerador {
public:
    Gerador(const LayoutDocumento &doc, const LinguagemDef &ling) : doc_(doc), ling_(ling), m_(ling) {}

    QString gerar();

private:
    void add(const QString &t) { s_.Add(t); }
    void addLinha(const QString &t)
    {
        s_.Add(t);
        s_.Add(FimLinha);
    }
    // A filled template and its line end, through the splitter for COBOL.
    void addCobol(const QString &t)
    {
        add(ling_.EhCobol ? QuebrarLinhasCobol(t + FimLinha, ling_.CobolString) : t + FimLinha);
    }
    void simples(const QString &codigo)
    {
        QString t = m_.simples;
        t.replace(kC, codigo);
        addLinha(t);
    }
    void rh(const QString &codigo, const QString &valor)
    {
        QString t = m_.rh;
        t.replace(kC, codigo);
        t.replace(kRH, valor);
        addLinha(t);
    }
    void margem(const char *codigo, const QString &margem);
    void fonte(const FonteItem &f);
    void linhas(const Item &it);
    void texto(const Item &it);

    const LayoutDocumento &doc_;
    const LinguagemDef &ling_;
    const Modelos m_;
    clsConcatenarString s_;
};

void Gerador::margem(const char *codigo, const QString &margem)
{
    if (margem == kZero)
        return;
    QString t = m_.rh;
    t.replace(kC, QLatin1String(codigo));
    if (margem.startsWith(QLatin1Char('"'))) {
        // Unlike the command text, the number is left as the user typed it.
        QString numero = margem;
        t.replace(kRH, numero.remove(QLatin1Char('"')));
    } else {
        trocarEntreAspas(t, kRH, margem);
    }
    addLinha(t);
}

void Gerador::fonte(const FonteItem &f)
{
    QString t = m_.f;
    t.replace(kC, QStringLiteral("F "));
    t.replace(kT, Numero(f.Tamanho, 2));
    t.replace(kN, Booleano(f.Negrito));
    t.replace(kI, Booleano(f.Italico));
    t.replace(kS, Booleano(f.Sublinhado));
    t.replace(kR, Booleano(f.Tachado));
    t.replace(kF, f.Nome);
    addCobol(t);
}

void Gerador::linhas(const Item &it)
{
    // "§c" last: it is the start of "§cl", "§cf" and "§ci".
    QString t = m_.l;
    t.replace(kCL, Numero(it.CorLinha, 2));
    t.replace(kCF, Numero(it.CorFundo, 2));
    t.replace(kEI, Numero(it.Esquerda, 5));
    t.replace(kCI, Numero(it.Largura, 5));
    t.replace(kAI, it.Linhas);
    t.replace(kEL, Numero(it.Espessura, 2));
    t.replace(kC, QStringLiteral("L "));
    addLinha(t);
}

void Gerador::texto(const Item &it)
{
    const bool barra = it.Tipo == TipoBarraGrafico;
    QString t = m_.t;
    t.replace(kCL, Numero(it.CorTexto, 2));
    if (barra) {
        t.replace(kCF, Numero(it.CorFundo, 2));
        t.replace(kEI, Numero(it.Esquerda, 5));
        t.replace(kCI, Numero(it.Largura, 5));
    } else {
        // The text sits 2 pixels inside the cell on each side, for every type.
        t.replace(kCF, QStringLiteral("99"));
        t.replace(kEI, Numero(qint64(it.Esquerda) + 2, 5));
        t.replace(kCI, Numero(qint64(it.Largura) - 4, 5));
    }
    t.replace(kAI, it.Atributos);

    QString codigo;
    if (it.Tipo == TipoFigura || barra || EhCodigoBarras(it.Tipo)) {
        if (it.Texto.startsWith(QLatin1Char('"')))
            t.replace(kT, ValorItem(it));
        else
            trocarEntreAspas(t, kT, it.Texto);
        if (it.Tipo == TipoFigura)
            codigo = QStringLiteral("G ");
        else if (barra)
            codigo = QStringLiteral("LG");
        else
            codigo = QLatin1Char('B') + LetraCodigoBarras(it.Tipo);
    } else if (it.Tipo == TipoComando) {
        // The command's text names a host variable; a bare "§t" stays for the
        // programmer to see.
        trocarEntreAspas(t, kT, it.Texto);
        codigo = QStringLiteral("T ");
    } else {
        t.replace(kT, it.Texto);
        codigo = QStringLiteral("T ");
    }
    t.replace(kC, codigo);
    addCobol(t);
}

QString Gerador::gerar()
{
    s_.Clear();
    if (!m_.inicial.isEmpty()) {
        // Given a line end of its own like every template, so that its last
        // line is neither glued to the next one nor dropped by the splitter.
        QString c = m_.inicial;
        if (!c.endsWith(FimLinha))
            c += FimLinha;
        add(ling_.EhCobol ? QuebrarLinhasCobol(c, ling_.CobolString) : c);
    }

    if (!doc_.NomeImpressora.isEmpty())
        simples(QStringLiteral("I ") + doc_.NomeImpressora);
    margem("MS", doc_.MargemSuperior);
    margem("ME", doc_.MargemEsquerda);
    margem("MI", doc_.MargemInferior);
    switch (doc_.TipoEmail) {
    case 2:
        simples(QStringLiteral("EE"));
        break;
    case 3:
        simples(QStringLiteral("EG"));
        break;
    case 4:
        simples(QStringLiteral("EP ") + Numero(doc_.QualidadeJPG, 0));
        break;
    case 5:
        simples(QStringLiteral("EW"));
        break;
    default:
        simples(QStringLiteral("QJ ") + Numero(doc_.QualidadeJPG, 0));
        break;
    }
    if (!doc_.TextoEmail.isEmpty()) {
        QString t = m_.simples;
        t.replace(kC, QStringLiteral("ET ") + doc_.TextoEmail);
        addCobol(t);
    }
    if (doc_.Paisagem)
        simples(QStringLiteral("IP"));
    if (doc_.Imprimir)
        simples(QStringLiteral("IR"));
    if (doc_.Visivel)
        simples(QStringLiteral("SV"));
    if (doc_.TemCapa)
        simples(QStringLiteral("TC"));
    if (doc_.EnviarEmail)
        simples(QStringLiteral("E "));
    add(FimLinha);

    FonteItem corrente{QString(), 0, false, false, false, false};
    for (int b = 1; b <= doc_.NumBandas(); ++b) {
        const Banda &banda = doc_.banda(b);
        const QString comentario = comCRLF(banda.Comentario);
        const qsizetype separador = comentario.indexOf(QChar(0xFF));
        const QString antes = separador < 0 ? comentario : comentario.left(separador);
        const QString depois = separador < 0 ? QString() : comentario.mid(separador + 1);
        if (!antes.isEmpty())
            addLinha(antes);
        if (doc_.QuebraPaginaSeek(b))
            simples(QStringLiteral("QP"));
        for (const Item &it : banda.Itens) {
            if (FonteDiferente(it.Fonte, corrente)) {
                fonte(it.Fonte);
                corrente = it.Fonte;
            }
            if (TemLinhaL(it))
                linhas(it);
            if (!it.Texto.isEmpty() && it.Largura > 4)
                texto(it);
        }
        if (b >= 2 && banda.Deslocamento != 0)
            rh(QStringLiteral("RT"), Numero(banda.Deslocamento, banda.Deslocamento < 0 ? 4 : 5));
        rh(QStringLiteral("RH"), Numero(banda.Altura < 1 ? 0 : banda.Altura, 5));
        if (b == doc_.BandaCabecalho)
            simples(QStringLiteral("FC"));
        else if (b == doc_.BandaRodape)
            simples(QStringLiteral("RO"));
        else
            simples(QStringLiteral("QL"));
        if (!depois.isEmpty())
            addLinha(depois);
        add(FimLinha);
    }
    if (doc_.QuebraPaginaFinal)
        simples(QStringLiteral("QP"));
    const QString r = s_.ResultString();
    s_.Clear();
    return r;
}

}  // namespace

QString QuebrarLinhasCobol(const QString &texto, bool cobolString)
{
    const qsizetype limite = cobolString ? kLimiteCobolString : kLimiteCobol;
    const QString aspa(QLatin1Char('"'));
    QStringList pecas;
    qsizetype inicio = 0;
    for (;;) {
        const qsizetype fim = texto.indexOf(FimLinha, inicio);
        if (fim < 0)
            break;
        QString linha = texto.mid(inicio, fim - inicio);
        inicio = fim + FimLinha.size();
        if (linha.size() <= limite) {
            pecas.append(linha);
            continue;
        }
        // Without a literal there is nothing to cut: the line stays as written,
        // "move" included.
        if (!linha.contains(QLatin1Char('"'))) {
            pecas.append(linha);
            continue;
        }
        if (cobolString) {
            const qsizetype mv = linha.indexOf(QLatin1String("move "), 0, Qt::CaseInsensitive);
            if (mv >= 0)
                linha.replace(mv, 5, QStringLiteral("string "));
        }
        const qsizetype ultima = linha.lastIndexOf(QLatin1Char('"'));
        QString cauda = linha.mid(ultima + 1);
        linha.truncate(ultima + 1);
        if (cobolString) {
            // STRING leaves the rest of the target as it was, so it is cleared first.
            pecas.append(kRecuoLiteral + QStringLiteral("move spaces") + cauda);
            const qsizetype to = cauda.indexOf(QLatin1String("to "), 0, Qt::CaseInsensitive);
            if (to >= 0)
                cauda.replace(to, 3, QStringLiteral("delimited by size into "));
        }
        while (linha.size() > limite) {
            pecas.append(cobolString ? linha.left(limite) + aspa : linha.left(limite));
            linha = (cobolString ? kRecuoLiteral : kContinuacao) + aspa + linha.mid(limite);
        }
        if (!soParDeAspas(linha))
            pecas.append(linha);
        if (!cauda.isEmpty())
            pecas.append(kRecuoCauda + cauda);
    }
    if (pecas.isEmpty())
        return QString();
    return pecas.join(FimLinha) + FimLinha;
}

QString GerarCopiarComo(const LayoutDocumento &doc, const LinguagemDef &ling)
{
    return Gerador(doc, ling).gerar();
}

QString PerguntaSubstituirArquivo(const QString &caminho)
{
    return caminho + QStringLiteral("\n\nO arquivo acima já existe!\n\nDeseja substituí-lo?");
}

ResultadoCopiarComo CopiarComo(const LayoutDocumento &doc, const LinguagemDef &ling, const QString &arquivo,
                               InterfaceUsuario *ui, QString *codigo)
{
    const QString texto = GerarCopiarComo(doc, ling);
    if (codigo)
        *codigo = texto;
    if (arquivo.isEmpty())
        return ResultadoCopiarComo::Texto;
    if (QFileInfo::exists(arquivo)) {
        const Resposta r = ui ? ui->Perguntar(PerguntaSubstituirArquivo(arquivo), TituloSubstituirArquivo,
                                              Botoes::SimNao, Icone::Pergunta)
                              : Resposta::Nao;
        if (r != Resposta::Sim)
            return ResultadoCopiarComo::Recusado;
    }
    // Windows-1252, one byte a character, so that COBOL columns are bytes.
    const ResultadoArquivo g = GravarArquivo(arquivo, Para1252(texto));
    if (!g.ok) {
        if (ui)
            ui->Mensagem(g.mensagem, TituloSubstituirArquivo, Icone::Exclamacao);
        return ResultadoCopiarComo::Erro;
    }
    return ResultadoCopiarComo::Gravado;
}

QString CaminhoCopybook(const QString &caminhoLayout)
{
    return caminhoLayout.left(std::max<qsizetype>(0, caminhoLayout.size() - 4)) + QStringLiteral(".cpy");
}

QString LerConfigCPY()
{
    std::unique_ptr<QSettings> s(AbrirConfig());
    return s->value(QStringLiteral("CPY")).toString();
}

ResultadoCopybook GravarCopybookAoSalvar(const LayoutDocumento &doc, const QString &caminhoLayout, bool cobolString,
                                         InterfaceUsuario *ui)
{
    const QString nome = LerConfigCPY();
    if (nome.isEmpty())
        return ResultadoCopybook::SemLinguagem;
    LinguagemDef ling;
    ling.CobolString = cobolString;
    if (!LerLinguagem(nome, ling, ui))
        return ResultadoCopybook::LinguagemIlegivel;
    switch (CopiarComo(doc, ling, CaminhoCopybook(caminhoLayout), ui)) {
    case ResultadoCopiarComo::Gravado:
        return ResultadoCopybook::Gravado;
    case ResultadoCopiarComo::Recusado:
        return ResultadoCopybook::Recusado;
    default:
        return ResultadoCopybook::Erro;
    }
}

}  // namespace lumeta
