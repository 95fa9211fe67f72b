#include "impressao/LeitorComandos.h"

#include "document/Texto1252.h"

#include <QIODevice>

namespace lumeta {

namespace {

constexpr qint64 TamanhoBloco = 64 * 1024;

bool Digito(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// A whole number in s (a "-" and digits), nothing else.
bool Inteiro(QStringView s, qint64 &valor)
{
    qsizetype i = 0;
    const bool negativo = !s.isEmpty() && s[0] == QLatin1Char('-');
    if (negativo)
        i = 1;
    if (i >= s.size() || s.size() - i > 12)
        return false;
    qint64 v = 0;
    for (; i < s.size(); ++i) {
        if (!Digito(s[i]))
            return false;
        v = v * 10 + (s[i].unicode() - '0');
    }
    valor = negativo ? -v : v;
    return true;
}

// Reads fixed-width fields one after the other.
class Campos {
public:
    explicit Campos(QStringView linha, qsizetype inicio) : m_linha(linha), m_pos(inicio) {}
    bool Numero(int largura, qint64 &valor)
    {
        if (m_pos + largura > m_linha.size())
            return m_ok = false;
        m_ok = m_ok && Inteiro(m_linha.mid(m_pos, largura), valor);
        m_pos += largura;
        return m_ok;
    }
    bool Texto(int largura, QString &valor)
    {
        if (m_pos + largura > m_linha.size())
            return m_ok = false;
        valor = m_linha.mid(m_pos, largura).toString();
        m_pos += largura;
        return m_ok;
    }
    QString Resto() const { return m_linha.mid(std::min(m_pos, m_linha.size())).toString(); }
    bool Ok() const { return m_ok; }
    bool Completa() const { return m_linha.size() >= m_pos; }

private:
    QStringView m_linha;
    qsizetype m_pos;
    bool m_ok = true;
};

QStringView SemBrancosFinais(QStringView s)
{
    qsizetype n = s.size();
    while (n > 0 && (s[n - 1] == QLatin1Char(' ') || s[n - 1] == QLatin1Char('\t')))
        --n;
    return s.left(n);
}

int TipoDaLetra(QChar letra)
{
    if (letra >= QLatin1Char('a') && letra <= QLatin1Char('i'))
        return 30 + (letra.unicode() - 'a' + 1);
    if (letra == QLatin1Char('0'))
        return TipoPDF417;
    return -1;
}

// The value as the painter reads a fixed one: between double quotes.
QString Citado(const QString &valor)
{
    return QLatin1Char('"') + valor + QLatin1Char('"');
}

}  // namespace

QString MensagemErroComandos(const QString &nome, qint64 linha, const QString &texto, const QString &motivo)
{
    QString mostrada = texto.left(120);
    for (QChar &c : mostrada)
        if (c.unicode() < 32)
            c = QLatin1Char('?');
    if (texto.size() > 120)
        mostrada += QStringLiteral("...");
    return QStringLiteral("O arquivo de comandos '%1' não pode ser impresso: %2 na linha %3.\n\n%4")
        .arg(nome, motivo, QString::number(linha), mostrada);
}

LeitorComandos::LeitorComandos(QIODevice &entrada, const QString &nome) : m_entrada(entrada), m_nome(nome)
{
    m_deslocamento = entrada.isSequential() ? 0 : entrada.pos();
}

LeitorComandos::Lida LeitorComandos::lerLinha(QString &linha)
{
    for (;;) {
        const qsizetype fim = m_buffer.indexOf('\n', m_inicioBuffer);
        if (fim >= 0 || (m_fimArquivo && m_inicioBuffer < m_buffer.size())) {
            const qsizetype ate = fim >= 0 ? fim : m_buffer.size();
            qsizetype n = ate - m_inicioBuffer;
            if (n > MaximoLinha) {
                ++m_linha;
                falhar(De1252(m_buffer.constData() + m_inicioBuffer, 120), "linha longa demais");
                return Lida::Erro;
            }
            if (n > 0 && m_buffer[m_inicioBuffer + n - 1] == '\r')
                --n;
            linha = De1252(m_buffer.constData() + m_inicioBuffer, n);
            const qsizetype consumidos = (fim >= 0 ? fim + 1 : m_buffer.size()) - m_inicioBuffer;
            m_inicioBuffer += consumidos;
            m_deslocamento += consumidos;
            ++m_linha;
            return Lida::Linha;
        }
        if (m_fimArquivo)
            return Lida::Fim;
        if (m_buffer.size() - m_inicioBuffer > MaximoLinha) {
            ++m_linha;
            falhar(De1252(m_buffer.constData() + m_inicioBuffer, 120), "linha longa demais");
            return Lida::Erro;
        }
        m_buffer.remove(0, m_inicioBuffer);
        m_inicioBuffer = 0;
        const qsizetype antes = m_buffer.size();
        m_buffer.resize(antes + TamanhoBloco);
        const qint64 lidos = m_entrada.read(m_buffer.data() + antes, TamanhoBloco);
        m_buffer.resize(antes + std::max<qint64>(lidos, 0));
        if (lidos <= 0)
            m_fimArquivo = true;
    }
}

bool LeitorComandos::falhar(const QString &linha, const char *motivo)
{
    m_erro = MensagemErroComandos(m_nome, m_linha, linha, QString::fromUtf8(motivo));
    return false;
}

PosicaoLeitura LeitorComandos::Posicao() const
{
    return {m_deslocamento, m_linha, m_fonte, m_fonteDefinida, m_quebraPendente};
}

bool LeitorComandos::Retomar(const PosicaoLeitura &p)
{
    if (!m_entrada.seek(p.deslocamento)) {
        m_erro = QStringLiteral("O arquivo de comandos '%1' não pode ser relido.").arg(m_nome);
        return false;
    }
    m_buffer.clear();
    m_inicioBuffer = 0;
    m_fimArquivo = false;
    m_deslocamento = p.deslocamento;
    m_linha = p.linha;
    m_fonte = p.fonte;
    m_fonteDefinida = p.fonteDefinida;
    m_quebraPendente = p.quebraPendente;
    m_erro.clear();
    return true;
}

bool LeitorComandos::ProximaBanda(BandaLida &saida)
{
    BandaLida b;
    bool emBloco = false;
    bool temAltura = false;
    Item pendente;  // an "L " line waits for the content line of its cell
    bool temPendente = false;
    auto soltarPendente = [&] {
        if (temPendente)
            b.banda.Itens.append(pendente);
        temPendente = false;
    };
    auto novoItem = [&](int tipo, qint64 esquerda, qint64 largura) {
        Item it;
        if (temPendente && pendente.Esquerda == esquerda && pendente.Largura == largura)
            it = pendente, temPendente = false;
        else
            soltarPendente(), it.CorFundo = CorTransparente, it.Linhas = QStringLiteral("0000000000");
        it.Tipo = uint8_t(tipo);
        it.Esquerda = int32_t(esquerda);
        it.Largura = int32_t(largura);
        if (m_fonteDefinida)
            it.Fonte = m_fonte;
        else
            it.Fonte = FonteItem{QString(), 0, false, false, false, false};
        return it;
    };

    QString linha;
    for (;;) {
        if (!emBloco && m_limite >= 0 && m_deslocamento >= m_limite)
            return false;
        switch (lerLinha(linha)) {
        case Lida::Erro:
            return false;
        case Lida::Fim:
            if (emBloco)
                return falhar(linha, "o arquivo termina dentro de uma banda");
            return false;
        case Lida::Linha:
            break;
        }
        const QStringView l = linha;
        const QStringView t = SemBrancosFinais(l);
        if (t.isEmpty())
            continue;
        const QStringView c2 = t.left(2);
        const auto opcaoSo = [&](const char *codigo) { return t == QLatin1String(codigo); };
        const auto inicio = [&](const char *codigo) { return l.startsWith(QLatin1String(codigo)); };

        // Header and footer variables: two digits, a blank and the value.
        if (t.size() >= 2 && Digito(t[0]) && Digito(t[1]) && (t.size() == 2 || l[2] == QLatin1Char(' '))) {
            Variaveis.insert((t[0].unicode() - '0') * 10 + (t[1].unicode() - '0'), l.mid(3).toString());
            continue;
        }
        // Report options.
        if (inicio("I ")) {
            Opcoes.impressora = SemBrancosFinais(l.mid(2)).toString();
            continue;
        }
        if (inicio("MS ") || inicio("ME ") || inicio("MI ")) {
            qint64 v = 0;
            if (!Inteiro(t.mid(3), v) || v < 0 || v > 1000)
                return falhar(linha, "número inválido");
            (l[1] == QLatin1Char('S') ? Opcoes.margemSuperior
                                      : l[1] == QLatin1Char('E') ? Opcoes.margemEsquerda : Opcoes.margemInferior) =
                int(v);
            continue;
        }
        if (inicio("EP ") || inicio("QJ ")) {
            qint64 v = 0;
            if (!Inteiro(t.mid(3), v))
                return falhar(linha, "número inválido");
            continue;
        }
        if (opcaoSo("EE") || opcaoSo("EG") || opcaoSo("EW") || inicio("ET ") || opcaoSo("SV") || opcaoSo("E")
            || inicio("E ")) {
            // E-mail and "keep visible": accepted, no effect on paper.
            if (inicio("E ") && t.size() > 1)
                return falhar(linha, "comando desconhecido");
            continue;
        }
        if (opcaoSo("IP")) {
            Opcoes.paisagem = true;
            continue;
        }
        if (opcaoSo("IR")) {
            Opcoes.semVisualizar = true;
            continue;
        }
        if (opcaoSo("TC")) {
            Opcoes.temCapa = true;
            continue;
        }
        if (opcaoSo("QP")) {
            if (emBloco)
                b.quebraAntes = true;
            else
                m_quebraPendente = true;
            continue;
        }

        // Band lines from here on.
        if (!emBloco) {
            emBloco = true;
            b.linha = m_linha;
            b.quebraAntes = m_quebraPendente;
            m_quebraPendente = false;
            b.banda.Altura = 0;
        }
        if (opcaoSo("QL") || opcaoSo("FC") || opcaoSo("RO")) {
            soltarPendente();
            b.fim = t == QLatin1String("FC") ? FimBanda::Cabecalho
                : t == QLatin1String("RO")   ? FimBanda::Rodape
                                             : FimBanda::Linha;
            if (!temAltura)
                b.banda.Altura = 0;
            saida = std::move(b);
            return true;
        }
        if (inicio("RH ") || inicio("RT ")) {
            qint64 v = 0;
            if (!Inteiro(t.mid(3), v) || v < -99999999 || v > 99999999)
                return falhar(linha, "número inválido");
            if (l[1] == QLatin1Char('H'))
                b.banda.Altura = int32_t(std::max<qint64>(v, 0)), temAltura = true;
            else
                b.banda.Deslocamento = int32_t(v);
            continue;
        }
        if (inicio("F ")) {
            qint64 tamanho = 0;
            Campos f(t, 2);
            QString estilos;
            if (!f.Numero(2, tamanho) || !f.Texto(4, estilos))
                return falhar(linha, t.size() < 8 ? "linha incompleta" : "número inválido");
            for (QChar e : estilos)
                if (e != QLatin1Char('0') && e != QLatin1Char('1'))
                    return falhar(linha, "estilo inválido");
            m_fonte = FonteItem{f.Resto(), int16_t(tamanho), estilos[0] == QLatin1Char('1'),
                                estilos[1] == QLatin1Char('1'), estilos[2] == QLatin1Char('1'),
                                estilos[3] == QLatin1Char('1')};
            m_fonteDefinida = true;
            continue;
        }
        if (inicio("L ")) {
            qint64 corLinha = 0, corFundo = 0, esquerda = 0, largura = 0, espessura = 0;
            QString linhas;
            Campos f(t, 2);
            f.Numero(2, corLinha), f.Numero(2, corFundo), f.Numero(5, esquerda), f.Numero(5, largura);
            f.Texto(10, linhas), f.Numero(2, espessura);
            if (!f.Ok() || t.size() != 28)
                return falhar(linha, t.size() < 28 ? "linha incompleta" : "número inválido");
            if (corLinha > 255 || corFundo > 255 || espessura > 255 || corLinha < 0 || corFundo < 0 || espessura < 0)
                return falhar(linha, "número inválido");
            soltarPendente();
            pendente = Item{};
            pendente.Esquerda = int32_t(esquerda);
            pendente.Largura = int32_t(largura);
            pendente.CorLinha = uint8_t(corLinha);
            pendente.CorFundo = uint8_t(corFundo);
            pendente.Linhas = linhas;
            pendente.Espessura = uint8_t(espessura);
            pendente.Texto.clear();
            if (m_fonteDefinida)
                pendente.Fonte = m_fonte;
            temPendente = true;
            continue;
        }
        if (inicio("T ") || inicio("LG")) {
            const bool barra = inicio("LG");
            qint64 cor = 0, fundo = 0, esquerda = 0, largura = 0;
            QString atributos;
            Campos f(l, 2);
            f.Numero(2, cor), f.Numero(2, fundo), f.Numero(5, esquerda), f.Numero(5, largura), f.Texto(10, atributos);
            if (!f.Ok())
                return falhar(linha, l.size() < 26 ? "linha incompleta" : "número inválido");
            if (cor < 0 || cor > 255 || fundo < 0 || fundo > 255 || largura < 0)
                return falhar(linha, "número inválido");
            Item it = barra ? novoItem(TipoBarraGrafico, esquerda, largura)
                            : novoItem(TipoTexto, esquerda - 2, largura + 4);
            it.CorTexto = uint8_t(cor);
            if (barra) {
                it.CorFundo = uint8_t(fundo);
                it.Texto = Citado(SemBrancosFinais(f.Resto()).toString());
            } else {
                it.Texto = f.Resto();
            }
            it.Atributos = atributos;
            b.banda.Itens.append(it);
            continue;
        }
        if (inicio("G ") || (c2.size() == 2 && c2[0] == QLatin1Char('B') && TipoDaLetra(c2[1]) > 0)) {
            const bool figura = inicio("G ");
            qint64 fixo = 0, esquerda = 0, largura = 0;
            QString atributos;
            Campos f(l, 2);
            f.Numero(4, fixo), f.Numero(5, esquerda), f.Numero(5, largura), f.Texto(10, atributos);
            if (!f.Ok())
                return falhar(linha, l.size() < 26 ? "linha incompleta" : "número inválido");
            if (largura < 0)
                return falhar(linha, "número inválido");
            Item it = novoItem(figura ? TipoFigura : TipoDaLetra(c2[1]), esquerda, largura);
            const QString valor = SemBrancosFinais(f.Resto()).toString();
            it.Texto = figura ? valor : Citado(valor);
            it.Atributos = atributos;
            b.banda.Itens.append(it);
            continue;
        }
        return falhar(linha, "comando desconhecido");
    }
}

}  // namespace lumeta
