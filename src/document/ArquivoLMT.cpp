#include "document/ArquivoLMT.h"

#include "document/ArquivoDisco.h"
#include "document/Texto1252.h"

#include <algorithm>
#include <cstring>

namespace lumeta {

namespace {

const QByteArray kCabecalho = QByteArrayLiteral("LumetaEdit 1.0");
constexpr int kTamanhoCabecalho = 32;

// Smallest records a count in the file can stand for; a count that could not
// fit in the bytes left is refused before anything is allocated.
constexpr qsizetype kMinItemAntigo = 2 + 2 + 2 + 8 + 4 + 4 + 10 + 10 + 2 + 1;
constexpr qsizetype kMinItem = kMinItemAntigo + 2;
constexpr qsizetype kMinBanda = 4 + 4 + 4 + 2 + 2;

struct FimInesperado {};
struct Corrompido {};
struct FalhaLeitura {
    ErroArquivo erro;
};

// Bytes of a layout, from memory or from a file read in blocks: a file is
// never held whole, so what lies past the last field is never loaded and
// the memory of a read follows the layout, not the file's size.
class Leitor {
public:
    explicit Leitor(const QByteArray &d) : p_(d.constData()), fim_(d.constData() + d.size()) {}
    explicit Leitor(ArquivoLeitura &arquivo) : p_(nullptr), fim_(nullptr), arquivo_(&arquivo) {}

    qsizetype restante() const { return (fim_ - p_) + (arquivo_ ? arquivo_->Restante() : 0); }

    const char *bytes(qsizetype n)
    {
        if (n < 0 || n > restante())
            throw FimInesperado{};
        if (n > fim_ - p_)
            encher(n);
        const char *r = p_;
        p_ += n;
        return r;
    }
    uint8_t u8() { return uint8_t(*bytes(1)); }
    int16_t i16()
    {
        const auto *b = reinterpret_cast<const unsigned char *>(bytes(2));
        return int16_t(uint16_t(b[0] | (b[1] << 8)));
    }
    int32_t i32()
    {
        const auto *b = reinterpret_cast<const unsigned char *>(bytes(4));
        return int32_t(uint32_t(b[0]) | (uint32_t(b[1]) << 8) | (uint32_t(b[2]) << 16) | (uint32_t(b[3]) << 24));
    }
    bool booleano() { return i16() != 0; }
    QString texto()
    {
        const qsizetype n = uint16_t(i16());
        return De1252(bytes(n), n);
    }
    // Font names and flag strings repeat from item to item: equal bytes share
    // one string, which saves an allocation per field and memory per item.
    QString textoRepetido(QString &anterior, QByteArray &bytesAnteriores)
    {
        const qsizetype n = uint16_t(i16());
        return repetido(bytes(n), n, anterior, bytesAnteriores);
    }
    QString fixo10(QString &anterior, QByteArray &bytesAnteriores)
    {
        return repetido(bytes(10), 10, anterior, bytesAnteriores);
    }

    // Array header of a record field: returns the element count.
    qsizetype contagemArray(qsizetype minimoElemento)
    {
        const int16_t dims = i16();
        if (dims == 0)
            return 0;
        if (dims != 1)
            throw Corrompido{};
        const int32_t n = i32();
        (void)i32();  // lower bound, always 1
        if (n < 0 || n > 32767 || n > restante() / minimoElemento)
            throw Corrompido{};
        return n;
    }

private:
    static QString repetido(const char *d, qsizetype n, QString &anterior, QByteArray &bytesAnteriores)
    {
        if (bytesAnteriores.size() != n || std::memcmp(bytesAnteriores.constData(), d, size_t(n)) != 0) {
            bytesAnteriores = QByteArray(d, n);
            anterior = De1252(d, n);
        }
        return anterior;
    }

    // Keeps what is left of the block and reads on until `n` bytes are at
    // hand (a text is at most 65,535 bytes, so blocks stay small).
    void encher(qsizetype n)
    {
        constexpr qint64 kBloco = 64 * 1024;
        QByteArray novo;
        novo.reserve(std::max<qsizetype>(n, kBloco));
        novo.append(p_, fim_ - p_);
        const qint64 falta = std::max<qint64>(n - novo.size(), std::min(kBloco, arquivo_->Restante()));
        if (const ErroArquivo e = arquivo_->Ler(falta, novo))
            throw FalhaLeitura{e};
        if (novo.size() < n)
            throw FimInesperado{};  // the file shrank while it was read
        bloco_ = std::move(novo);
        p_ = bloco_.constData();
        fim_ = p_ + bloco_.size();
    }

    const char *p_;
    const char *fim_;
    ArquivoLeitura *arquivo_ = nullptr;
    QByteArray bloco_;
};

// The last text of each repeated field, for sharing.
struct Repetidos {
    QString nome, linhas, atributos;
    QByteArray bNome, bLinhas, bAtributos;
};

// Writes into one buffer grown by doubling; the final size is set once at the end.
class Escritor {
public:
    explicit Escritor(qsizetype estimativa) { b_.resize(estimativa); }

    QByteArray terminar()
    {
        b_.truncate(n_);
        return std::move(b_);
    }
    char *reservar(qsizetype k)
    {
        if (n_ + k > b_.size())
            b_.resize(std::max(b_.size() * 2, n_ + k));
        char *p = b_.data() + n_;
        n_ += k;
        return p;
    }
    void i16(int16_t v)
    {
        char *p = reservar(2);
        p[0] = char(v & 0xFF);
        p[1] = char((uint16_t(v) >> 8) & 0xFF);
    }
    void i32(int32_t v)
    {
        const uint32_t u = uint32_t(v);
        char *p = reservar(4);
        p[0] = char(u & 0xFF);
        p[1] = char((u >> 8) & 0xFF);
        p[2] = char((u >> 16) & 0xFF);
        p[3] = char(u >> 24);
    }
    void u8(uint8_t v) { *reservar(1) = char(v); }
    void booleano(bool v) { i16(v ? -1 : 0); }
    void bytes(const char *d, qsizetype k) { std::memcpy(reservar(k), d, size_t(k)); }
    void texto(const QString &s)
    {
        // The count is 16 bits: a longer text is cut rather than corrupting
        // every field after it.
        const QString t = s.size() > 0xFFFF ? s.left(0xFFFF) : s;
        i16(int16_t(uint16_t(t.size())));
        EscreverEm1252(reservar(t.size()), t);
    }
    // Fixed 10-character flags: padded or cut so the record keeps its width.
    void fixo10(const QString &s)
    {
        char *p = reservar(10);
        const QString t = s.size() == 10 ? s : s.left(10).leftJustified(10, QLatin1Char('0'));
        EscreverEm1252(p, t);
    }
    void cabecalhoArray(qsizetype n)
    {
        if (n == 0) {
            i16(0);
            return;
        }
        i16(1);
        i32(int32_t(n));
        i32(1);
    }

private:
    QByteArray b_;
    qsizetype n_ = 0;
};

Item lerItem(Leitor &l, char rev, Repetidos &r)
{
    Item it;
    it.Texto = l.texto();
    it.Fonte.Nome = l.textoRepetido(r.nome, r.bNome);
    it.Fonte.Tamanho = l.i16();
    it.Fonte.Negrito = l.booleano();
    it.Fonte.Italico = l.booleano();
    it.Fonte.Sublinhado = l.booleano();
    it.Fonte.Tachado = l.booleano();
    it.Esquerda = l.i32();
    it.Largura = l.i32();
    it.Linhas = l.fixo10(r.linhas, r.bLinhas);
    it.Atributos = l.fixo10(r.atributos, r.bAtributos);
    it.CorTexto = l.u8();
    it.CorFundo = l.u8();
    if (rev >= 'd') {
        it.CorLinha = l.u8();
        it.Espessura = l.u8();
    } else {
        it.CorLinha = 0;
        it.Espessura = 1;
    }
    it.Tipo = l.u8();
    return it;
}

Banda lerBanda(Leitor &l, char rev, Repetidos &r)
{
    Banda b;
    b.Topo = l.i32();
    b.Altura = l.i32();
    b.Deslocamento = l.i32();
    if (rev >= 'e')
        b.Comentario = l.texto();
    const int16_t numItens = l.i16();
    if (numItens < 0)
        throw Corrompido{};
    const qsizetype n = l.contagemArray(rev >= 'd' ? kMinItem : kMinItemAntigo);
    b.Itens.reserve(n);
    for (qsizetype i = 0; i < n; ++i)
        b.Itens.append(lerItem(l, rev, r));
    return b;
}

void escreverItem(Escritor &e, const Item &it)
{
    e.texto(it.Texto);
    e.texto(it.Fonte.Nome);
    e.i16(it.Fonte.Tamanho);
    e.booleano(it.Fonte.Negrito);
    e.booleano(it.Fonte.Italico);
    e.booleano(it.Fonte.Sublinhado);
    e.booleano(it.Fonte.Tachado);
    e.i32(it.Esquerda);
    e.i32(it.Largura);
    e.fixo10(it.Linhas);
    e.fixo10(it.Atributos);
    e.u8(it.CorTexto);
    e.u8(it.CorFundo);
    e.u8(it.CorLinha);
    e.u8(it.Espessura);
    e.u8(it.Tipo);
}

void escreverBanda(Escritor &e, const Banda &b)
{
    e.i32(b.Topo);
    e.i32(b.Altura);
    e.i32(b.Deslocamento);
    e.texto(b.Comentario);
    e.i16(int16_t(b.Itens.size()));
    e.cabecalhoArray(b.Itens.size());
    for (const Item &it : b.Itens)
        escreverItem(e, it);
}

// The revision letter of a valid header, or 0. Only blanks may surround the
// header text (not tabs or line ends).
char revisaoDoCabecalho(const QByteArray &dados)
{
    if (dados.size() < kTamanhoCabecalho)
        return 0;
    const char *c = dados.constData();
    qsizetype i = 0, j = kTamanhoCabecalho;
    while (i < j && c[i] == ' ')
        ++i;
    while (j > i && c[j - 1] == ' ')
        --j;
    const QByteArrayView texto(c + i, j - i);
    const qsizetype n = kCabecalho.size();
    if (texto.size() != n + 3 || !texto.startsWith(kCabecalho) || texto[n] != '(' || texto[n + 2] != ')'
        || texto[n + 1] < 'a' || texto[n + 1] > 't')
        return 0;
    return texto[n + 1];
}

}  // namespace

namespace {

// Everything after the header, in the order of the file. On failure the
// document is left untouched; an error of the disk itself comes out as
// FalhaLeitura.
LeituraLMT lerCampos(Leitor &l, char rev, LayoutDocumento &destino)
{
    LeituraLMT r;
    r.revisao = rev;
    LayoutDocumento doc;
    try {
        // An open layout always has a band: one without any is damaged.
        const int16_t numBandas = l.i16();
        if (numBandas < 1 || numBandas > l.restante() / kMinBanda)
            throw Corrompido{};
        doc.Bandas.reserve(numBandas);
        Repetidos repetidos;
        for (int i = 0; i < numBandas; ++i)
            doc.Bandas.append(lerBanda(l, rev, repetidos));
        doc.Paisagem = l.booleano();
        doc.Imprimir = l.booleano();
        doc.Visivel = l.booleano();
        if (rev >= 'b') {
            doc.NomeImpressora = l.texto();
            doc.QuebraPaginaFinal = l.booleano();
        }
        doc.QualidadeJPG = rev >= 'c' ? l.i16() : int16_t(90);
        doc.TipoEmail = rev >= 'f' ? l.i16() : int16_t(1);
        if (rev >= 'g')
            doc.TextoEmail = l.texto();
        if (rev >= 'h')
            doc.BandaCabecalho = l.i32();
        if (rev >= 'j') {
            doc.MargemEsquerda = l.texto();
            doc.MargemSuperior = l.texto();
        }
        if (rev >= 'l')
            doc.BandaRodape = l.i32();
        if (rev >= 'n') {
            const int16_t numQuebras = l.i16();
            if (numQuebras < 0)
                throw Corrompido{};
            const qsizetype n = l.contagemArray(2);
            doc.Quebras.reserve(n);
            for (qsizetype i = 0; i < n; ++i)
                doc.Quebras.append(l.i16());
        }
        if (rev >= 'o')
            doc.TemCapa = l.booleano();
        if (rev >= 'q')
            doc.EnviarEmail = l.booleano();
        if (rev >= 'r')
            doc.MargemInferior = l.texto();
    } catch (const FimInesperado &) {
        r.resultado = ResultadoLeitura::ErroLeitura;
        r.erro = QStringLiteral("O arquivo terminou antes do fim dos dados (arquivo truncado).");
        return r;
    } catch (const Corrompido &) {
        r.resultado = ResultadoLeitura::ErroLeitura;
        r.erro = QStringLiteral("O arquivo contém dados inválidos (arquivo corrompido).");
        return r;
    }

    // Until revision s a picture item held a bare file name; it is now an expression.
    if (rev <= 'r') {
        for (Banda &b : doc.Bandas)
            for (Item &it : b.Itens)
                if (it.Tipo == TipoFigura)
                    it.Texto = QLatin1Char('"') + it.Texto + QLatin1Char('"');
    }
    destino = std::move(doc);
    return r;
}

}  // namespace

LeituraLMT LerLMT(const QByteArray &dados, LayoutDocumento &destino)
{
    // A file too short to hold a header holds no layout of any revision.
    const char rev = revisaoDoCabecalho(dados);
    if (!rev) {
        LeituraLMT r;
        r.resultado = ResultadoLeitura::FormatoInvalido;
        return r;
    }
    Leitor l(dados);
    l.bytes(kTamanhoCabecalho);
    return lerCampos(l, rev, destino);
}

QByteArray GravarLMT(const LayoutDocumento &doc)
{
    qsizetype estimativa = 256;
    for (const Banda &b : doc.Bandas)
        estimativa += 32 + b.Comentario.size() + b.Itens.size() * 80;
    Escritor e(estimativa);

    QByteArray cab = kCabecalho + "(" + RevisaoAtual + ")";
    cab.append(QByteArray(kTamanhoCabecalho - cab.size(), ' '));
    e.bytes(cab.constData(), cab.size());
    e.i16(int16_t(doc.Bandas.size()));
    for (const Banda &b : doc.Bandas)
        escreverBanda(e, b);
    e.booleano(doc.Paisagem);
    e.booleano(doc.Imprimir);
    e.booleano(doc.Visivel);
    e.texto(doc.NomeImpressora);
    e.booleano(doc.QuebraPaginaFinal);
    e.i16(doc.QualidadeJPG);
    e.i16(doc.TipoEmail);
    e.texto(doc.TextoEmail);
    e.i32(doc.BandaCabecalho);
    e.texto(doc.MargemEsquerda);
    e.texto(doc.MargemSuperior);
    e.i32(doc.BandaRodape);
    e.i16(int16_t(doc.Quebras.size()));
    e.cabecalhoArray(doc.Quebras.size());
    for (int16_t q : doc.Quebras)
        e.i16(q);
    e.booleano(doc.TemCapa);
    e.booleano(doc.EnviarEmail);
    e.texto(doc.MargemInferior);
    return e.terminar();
}

QString MensagemFormatoInvalido(const QString &caminho)
{
    return QStringLiteral("Formato inválido!\n\nO arquivo '") + caminho + QStringLiteral("' não foi salvo pelo ")
        + VersaoCompleta()
        + QStringLiteral(".\n\nProvavelmente foi salvo por uma versão mais recente, tente fazer a atualização.");
}

QString MensagemErroAbrir(const QString &caminho, const QString &erro)
{
    return QStringLiteral("Ocorreu um erro ao abrir o arquivo '") + caminho + QStringLiteral("!\n\n") + erro;
}

QString MensagemErroGravar(const QString &caminho, int numero, const QString &descricao)
{
    return QStringLiteral("Ocorreu um erro ao gravar o arquivo '") + caminho + QStringLiteral("!\n\n")
        + QString::number(numero) + QStringLiteral(" - ") + descricao;
}

ResultadoArquivo AbrirArquivoLMT(const QString &caminho, LayoutDocumento &doc)
{
    ResultadoArquivo r;
    auto falhou = [&](const ErroArquivo &e) {
        r.ok = false;
        r.leitura = ResultadoLeitura::ErroLeitura;
        r.mensagem = MensagemErroAbrir(caminho, e.descricao);
        return r;
    };
    auto formatoInvalido = [&] {
        r.ok = false;
        r.leitura = ResultadoLeitura::FormatoInvalido;
        r.mensagem = MensagemFormatoInvalido(caminho);
        r.titulo = TituloFormatoInvalido;
        return r;
    };
    ArquivoLeitura f;
    QByteArray dados;
    if (const ErroArquivo e = f.Abrir(caminho))
        return falhou(e);
    // The header decides before anything else is read, so a huge file of
    // another kind costs 32 bytes.
    if (const ErroArquivo e = f.Ler(kTamanhoCabecalho, dados))
        return falhou(e);
    const char rev = revisaoDoCabecalho(dados);
    if (!rev)
        return formatoInvalido();
    // The rest is read as the fields ask for it.
    Leitor leitor(f);
    LeituraLMT l;
    try {
        l = lerCampos(leitor, rev, doc);
    } catch (const FalhaLeitura &falha) {
        return falhou(falha.erro);
    }
    r.leitura = l.resultado;
    if (l.resultado == ResultadoLeitura::ErroLeitura) {
        r.ok = false;
        r.mensagem = MensagemErroAbrir(caminho, l.erro);
    }
    return r;
}

ResultadoArquivo GravarArquivo(const QString &caminho, const QByteArray &dados)
{
    ResultadoArquivo r;
    const ErroArquivo e = GravarArquivoAtomico(caminho, dados);
    if (!e)
        return r;
    r.ok = false;
    r.numeroErro = e.numero;
    r.descricaoErro = e.descricao;
    r.mensagem = MensagemErroGravar(caminho, e.numero, e.descricao);
    return r;
}

ResultadoArquivo GravarArquivoTemporario(const QString &caminho, const QByteArray &dados)
{
    ResultadoArquivo r;
    if (const ErroArquivo e = GravarArquivoPrivado(caminho, dados)) {
        r.ok = false;
        r.numeroErro = e.numero;
        r.descricaoErro = e.descricao;
        r.mensagem = MensagemErroGravar(caminho, e.numero, e.descricao);
    }
    return r;
}

namespace {

QString estouro(const QString &oque)
{
    return QStringLiteral("Estouro de capacidade (") + oque + QLatin1Char(')');
}

QString textoLongo(const QString &qual)
{
    return estouro(qual + QStringLiteral(" passa de %1 bytes").arg(MaximoTexto));
}

ResultadoArquivo recusaLimites(const QString &caminho, const QString &excesso)
{
    ResultadoArquivo r;
    if (excesso.isEmpty())
        return r;
    r.ok = false;
    r.numeroErro = ErroEstouro;
    r.descricaoErro = excesso;
    r.mensagem = MensagemErroGravar(caminho, ErroEstouro, excesso);
    return r;
}

}  // namespace

QString ExcessoLimites(const QList<Banda> &bandas)
{
    if (bandas.size() > MaximoBandas)
        return estouro(QStringLiteral("mais de %1 bandas").arg(MaximoBandas));
    for (qsizetype b = 0; b < bandas.size(); ++b) {
        const Banda &banda = bandas[b];
        if (banda.Itens.size() > MaximoItens)
            return estouro(QStringLiteral("a banda %1 tem mais de %2 itens").arg(b + 1).arg(MaximoItens));
        if (banda.Comentario.size() > MaximoTexto)
            return textoLongo(QStringLiteral("o comentário da banda %1").arg(b + 1));
        for (qsizetype i = 0; i < banda.Itens.size(); ++i) {
            const Item &it = banda.Itens[i];
            if (it.Texto.size() > MaximoTexto || it.Fonte.Nome.size() > MaximoTexto)
                return textoLongo(QStringLiteral("o item %1 da banda %2").arg(i + 1).arg(b + 1));
        }
    }
    return QString();
}

QString ExcessoLimites(const LayoutDocumento &doc)
{
    const QString bandas = ExcessoLimites(doc.Bandas);
    if (!bandas.isEmpty())
        return bandas;
    if (doc.Quebras.size() > MaximoBandas)
        return estouro(QStringLiteral("mais de %1 quebras de página").arg(MaximoBandas));
    for (const QString *t : {&doc.NomeImpressora, &doc.TextoEmail, &doc.MargemEsquerda, &doc.MargemSuperior,
                             &doc.MargemInferior})
        if (t->size() > MaximoTexto)
            return textoLongo(QStringLiteral("um texto das opções do layout"));
    return QString();
}

ResultadoArquivo VerificarLimites(const QString &caminho, const QList<Banda> &bandas)
{
    return recusaLimites(caminho, ExcessoLimites(bandas));
}

ResultadoArquivo VerificarLimites(const QString &caminho, const LayoutDocumento &doc)
{
    return recusaLimites(caminho, ExcessoLimites(doc));
}

ResultadoArquivo GravarArquivoLMT(const QString &caminho, const LayoutDocumento &doc)
{
    const ResultadoArquivo r = VerificarLimites(caminho, doc);
    return r.ok ? GravarArquivo(caminho, GravarLMT(doc)) : r;
}

QByteArray GravarBandas(const QByteArray &marcador, const QList<Banda> &bandas)
{
    qsizetype estimativa = marcador.size() + 2;
    for (const Banda &b : bandas)
        estimativa += 32 + b.Comentario.size() + b.Itens.size() * 80;
    Escritor e(estimativa);
    e.bytes(marcador.constData(), marcador.size());
    e.i16(int16_t(bandas.size()));
    for (const Banda &b : bandas)
        escreverBanda(e, b);
    return e.terminar();
}

bool LerBandas(const QByteArray &dados, qsizetype inicio, QList<Banda> &bandas)
{
    if (inicio < 0 || inicio > dados.size())
        return false;
    Leitor l(dados);
    try {
        l.bytes(inicio);
        const int16_t n = l.i16();
        if (n < 0 || n > l.restante() / kMinBanda)
            return false;
        QList<Banda> lidas;
        lidas.reserve(n);
        Repetidos repetidos;
        for (int i = 0; i < n; ++i)
            lidas.append(lerBanda(l, RevisaoAtual, repetidos));
        bandas = std::move(lidas);
        return true;
    } catch (const FimInesperado &) {
    } catch (const Corrompido &) {
    }
    return false;
}

}  // namespace lumeta
