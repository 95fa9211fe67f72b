#include "output/Linguagem.h"

#include "document/ArquivoDisco.h"
#include "document/ArquivoLMT.h"
#include "document/Texto1252.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace lumeta {

namespace {

const QString kFimLinha = QStringLiteral("\r\n");

// The largest file the reader can need: the version and eight full strings.
constexpr qint64 kMaiorArquivo = 4 + NumModelosLinguagem * (2 + 65535);

// Error numbers and texts of the editor's file errors.
constexpr int kErroFimArquivo = 62;
constexpr int kErroEstouro = 6;

QString juntar(std::initializer_list<const char *> linhas)
{
    QStringList l;
    for (const char *t : linhas)
        l.append(QString::fromUtf8(t));
    return l.join(kFimLinha);
}

LeituraLin erroLeitura(int numero, const QString &descricao)
{
    LeituraLin r;
    r.resultado = ResultadoLin::ErroLeitura;
    r.numeroErro = numero;
    r.descricaoErro = descricao;
    r.mensagem = MensagemErroLerLinguagem(numero, descricao);
    r.titulo = TituloLerLinguagem;
    r.icone = Icone::Critico;
    return r;
}

LeituraLin erroGravacao(int numero, const QString &descricao)
{
    LeituraLin r;
    r.resultado = ResultadoLin::ErroGravacao;
    r.numeroErro = numero;
    r.descricaoErro = descricao;
    r.mensagem = MensagemErroSalvarLinguagem(numero, descricao);
    r.titulo = TituloSalvarLinguagem;
    r.icone = Icone::Critico;
    return r;
}

// A file too short to hold a version holds no version 1 either.
bool versaoValida(const QByteArray &dados)
{
    if (dados.size() < 4)
        return false;
    const auto *p = reinterpret_cast<const unsigned char *>(dados.constData());
    return int32_t(uint32_t(p[0]) | (uint32_t(p[1]) << 8) | (uint32_t(p[2]) << 16) | (uint32_t(p[3]) << 24))
        == VersaoLinguagem;
}

QString nomeDoArquivo(const QString &caminho)
{
    QString n = QFileInfo(caminho).fileName();
    if (n.endsWith(ExtensaoLinguagem, Qt::CaseInsensitive))
        n.chop(ExtensaoLinguagem.size());
    return n;
}

void mostrar(InterfaceUsuario *ui, const LeituraLin &r)
{
    if (ui && r.resultado != ResultadoLin::Ok)
        ui->Mensagem(r.mensagem, r.titulo, r.icone);
}

}  // namespace

QStringList ModelosLinguagem(const LinguagemDef &d)
{
    return {d.DefVariaveis, d.ComentarioInicial, d.ComandoF,        d.ComandoL,
            d.ComandoT,     d.ComandoRH,         d.ComandosSimples, d.ChamadaViewer};
}

void DefinirModelos(LinguagemDef &d, const QStringList &m)
{
    QString *campos[] = {&d.DefVariaveis, &d.ComentarioInicial, &d.ComandoF,        &d.ComandoL,
                         &d.ComandoT,     &d.ComandoRH,         &d.ComandosSimples, &d.ChamadaViewer};
    for (int i = 0; i < NumModelosLinguagem; ++i)
        *campos[i] = i < m.size() ? m[i] : QString();
}

LinguagemDef LinguagemPadrao()
{
    LinguagemDef d;
    d.ComentarioInicial = QStringLiteral("*** Aqui podem ser inseridos comandos ou comentários iniciais ***");
    d.ComandoF = juntar({"§c = Comando", "§t = Tamanho 9(2)", "§n = Negrito 9(1)", "§i = Itálico 9(1)",
                         "§s = Sublinhado 9(1)", "§r = Riscado 9(1)", "§f = Nome da Fonte x(n)"});
    d.ComandoL = juntar({"§c = Comando", "§cl = Cor da Linha 9(2)", "§cf = Cor do fundo 9(2)",
                         "§ei = Esquerda do item 9(5)", "§ci = Comprimento do item 9(5)",
                         "§ai = Alinhamento do item 9(10)", "§el = Espessura da linha 9(2)"});
    d.ComandoT = juntar({"§c = Comando", "§cl = Cor do texto 9(2)", "§cf = Cor do fundo 9(2)",
                         "§ei = Esquerda do item 9(5)", "§ci = Comprimento do item 9(5)",
                         "§ai = Alinhamento do item 9(10)", "§t = Texto x(n)"});
    d.ComandoRH = juntar({"§c = Comando", "§rh = Row Height"});
    d.ComandosSimples = QStringLiteral("§c = Comando");
    return d;
}

bool NomeEhCobol(const QString &nome)
{
    return nome.contains(QLatin1String("cobol"), Qt::CaseInsensitive);
}

QString LimparNomeLinguagem(const QString &nome)
{
    QString r = nome;
    for (QChar &c : r)
        if (QStringView(u"\\/:*?\"<>|").contains(c))
            c = QLatin1Char('_');
    // Leading dots would give a hidden file that the languages list never
    // shows, and "." and ".." name folders.
    for (QChar &c : r) {
        if (c != QLatin1Char('.'))
            break;
        c = QLatin1Char('_');
    }
    return r;
}

QString PastaLinguagens()
{
    const QString env = qEnvironmentVariable(VariavelPastaLinguagens);
    if (!env.isEmpty())
        return env;
    return QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
}

QString CaminhoLinguagem(const QString &nome)
{
    const QDir pasta(PastaLinguagens());
    const QString proprio = pasta.filePath(nome + ExtensaoLinguagem);
    if (QFileInfo::exists(proprio))
        return proprio;
    // A file copied from a system that ignores letter case may be "NOME.LIN":
    // the list shows it, so reading, saving and removing find it too. The
    // name itself keeps its case, as the list gives it.
    for (const QString &a : pasta.entryList({QStringLiteral("*") + ExtensaoLinguagem}, QDir::Files))
        if (a.size() == nome.size() + ExtensaoLinguagem.size() && a.startsWith(nome, Qt::CaseSensitive)
            && a.endsWith(ExtensaoLinguagem, Qt::CaseInsensitive))
            return pasta.filePath(a);
    return proprio;
}

bool LinguagemExiste(const QString &nome)
{
    return QFileInfo::exists(CaminhoLinguagem(nome));
}

QStringList ListarLinguagens(bool ordenar)
{
    QDir pasta(PastaLinguagens());
    // Name filters ignore letter case, as the file system the files come from does.
    const QStringList arquivos =
        pasta.entryList({QStringLiteral("*") + ExtensaoLinguagem}, QDir::Files, QDir::Name);
    QStringList nomes;
    nomes.reserve(arquivos.size());
    for (const QString &a : arquivos)
        nomes.append(a.left(a.size() - 4));
    if (ordenar)
        std::stable_sort(nomes.begin(), nomes.end(),
                         [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    return nomes;
}

QByteArray CodificarLin(const LinguagemDef &def, bool *cabe)
{
    QByteArray b;
    const char v[4] = {char(VersaoLinguagem & 0xFF), char((VersaoLinguagem >> 8) & 0xFF),
                       char((VersaoLinguagem >> 16) & 0xFF), char((VersaoLinguagem >> 24) & 0xFF)};
    b.append(v, 4);
    bool ok = true;
    for (const QString &m : ModelosLinguagem(def)) {
        const QByteArray t = Para1252(m);
        if (t.size() > 0xFFFF)
            ok = false;
        const auto n = uint16_t(std::min<qsizetype>(t.size(), 0xFFFF));
        b.append(char(n & 0xFF)).append(char(n >> 8));
        b.append(t.constData(), n);
    }
    if (cabe)
        *cabe = ok;
    return b;
}

LeituraLin DecodificarLin(const QByteArray &dados, LinguagemDef &def)
{
    LeituraLin r;
    const auto *p = reinterpret_cast<const unsigned char *>(dados.constData());
    const qsizetype tamanho = dados.size();
    if (!versaoValida(dados)) {
        r.resultado = ResultadoLin::Invalido;
        return r;
    }
    qsizetype pos = 4;
    QStringList modelos;
    for (int i = 0; i < NumModelosLinguagem; ++i) {
        if (tamanho - pos < 2)
            return erroLeitura(kErroFimArquivo, QStringLiteral("Entrada além do fim do arquivo"));
        const qsizetype n = p[pos] | (p[pos + 1] << 8);
        pos += 2;
        if (tamanho - pos < n)
            return erroLeitura(kErroFimArquivo, QStringLiteral("Entrada além do fim do arquivo"));
        modelos.append(De1252(dados.constData() + pos, n));
        pos += n;
    }
    const bool cobol = def.EhCobol;
    const bool cobolString = def.CobolString;
    DefinirModelos(def, modelos);
    def.EhCobol = cobol;
    def.CobolString = cobolString;
    return r;
}

LeituraLin LerArquivoLinguagem(const QString &caminho, LinguagemDef &def)
{
    def.EhCobol = NomeEhCobol(nomeDoArquivo(caminho));
    LeituraLin r;
    if (!QFileInfo::exists(caminho)) {
        r.resultado = ResultadoLin::NaoEncontrado;
        r.mensagem = MensagemLinguagemNaoEncontrada(caminho);
        r.titulo = TituloLerLinguagem;
        r.icone = Icone::Exclamacao;
        return r;
    }
    // The version decides before the templates are read; nothing past the
    // eighth string is read, so a huge file costs no more.
    ArquivoLeitura f;
    QByteArray dados;
    ErroArquivo e = f.Abrir(caminho);
    if (!e)
        e = f.Ler(4, dados);
    if (!e && versaoValida(dados))
        e = f.Ler(kMaiorArquivo - 4, dados);
    if (e)
        return erroLeitura(e.numero, e.descricao);
    r = DecodificarLin(dados, def);
    if (r.resultado == ResultadoLin::Invalido) {
        r.mensagem = MensagemLinguagemInvalida(caminho);
        r.titulo = TituloLerLinguagem;
        r.icone = Icone::Exclamacao;
    }
    return r;
}

LeituraLin GravarArquivoLinguagem(const QString &caminho, const LinguagemDef &def)
{
    bool cabe = true;
    const QByteArray dados = CodificarLin(def, &cabe);
    if (!cabe)
        return erroGravacao(kErroEstouro, QStringLiteral("Estouro de capacidade (um modelo passa de 65535 bytes)"));
    // The new file is complete before it replaces the old one.
    const ResultadoArquivo g = GravarArquivo(caminho, dados);
    if (!g.ok)
        return erroGravacao(g.numeroErro, g.descricaoErro);
    return {};
}

bool LerLinguagem(const QString &nome, LinguagemDef &def, InterfaceUsuario *ui)
{
    const LeituraLin r = LerArquivoLinguagem(CaminhoLinguagem(nome), def);
    // The flag follows the name as given, also when the file name differs in case.
    def.EhCobol = NomeEhCobol(nome);
    mostrar(ui, r);
    return r.resultado == ResultadoLin::Ok;
}

bool SalvarLin(const QString &nome, const LinguagemDef &def, InterfaceUsuario *ui)
{
    const LeituraLin r = GravarArquivoLinguagem(CaminhoLinguagem(nome), def);
    mostrar(ui, r);
    return r.resultado == ResultadoLin::Ok;
}

bool NovaLin(const QString &nome, LinguagemDef &def, InterfaceUsuario *ui)
{
    const bool cobolString = def.CobolString;
    def = LinguagemPadrao();
    def.EhCobol = NomeEhCobol(nome);
    def.CobolString = cobolString;
    return SalvarLin(nome, def, ui);
}

QString &ModeloDaOpcao(LinguagemDef &def, int indice)
{
    switch (indice) {
    case 1: return def.ComandoF;
    case 2: return def.ComandoL;
    case 3: return def.ComandoT;
    case 4: return def.ComandoRH;
    case 5: return def.ComandosSimples;
    case 6: return def.ChamadaViewer;
    case 7: return def.ComentarioInicial;
    default: return def.DefVariaveis;
    }
}

QString LegendaOpcaoLinguagem(int indice)
{
    static const char *const legendas[NumOpcoesLinguagem] = {
        "&Definição das variáveis", "Comando F - &Fontes", "Comando L - &Linhas", "Comando T - &Textos",
        "Comando RH - &Row Height", "Comandos &Simples", "Chamada do &Lumeta", "Comentário inicial",
    };
    return indice >= 0 && indice < NumOpcoesLinguagem ? QString::fromUtf8(legendas[indice]) : QString();
}

bool AtualizarModelo(const QString &nome, LinguagemDef &def, int indice, const QString &texto, InterfaceUsuario *ui)
{
    // The editor shows line feeds; the file keeps its own line ends: CR LF as
    // the defaults have, or bare line feeds in a template written that way.
    const QString &atual = ModeloDaOpcao(def, indice);
    const auto soLF = [](QString t) { return t.replace(QStringLiteral("\r\n"), QStringLiteral("\n")); };
    QString novo = soLF(texto);
    if (novo == soLF(atual))
        return false;
    if (atual.contains(QStringLiteral("\r\n")) || !atual.contains(u'\n'))
        novo.replace(u'\n', QStringLiteral("\r\n"));
    LinguagemDef alterada = def;
    ModeloDaOpcao(alterada, indice) = novo;
    if (!SalvarLin(nome, alterada, ui))
        return false;
    def = alterada;
    return true;
}

std::optional<QString> AdicionarLinguagem(const QString &resposta, LinguagemDef &def, InterfaceUsuario *ui)
{
    if (resposta.isEmpty())
        return std::nullopt;
    const QString nome = LimparNomeLinguagem(resposta);
    if (LinguagemExiste(nome)) {
        if (ui)
            ui->Mensagem(MensagemLinguagemExiste(nome), TituloNovaLinguagem, Icone::Informacao);
        return std::nullopt;
    }
    if (!NovaLin(nome, def, ui))
        return std::nullopt;
    return nome;
}

QString PerguntaRemoverLinguagem(const QString &nome)
{
    return QStringLiteral("Confirma a exclusão da linguagem '") + nome + QStringLiteral("'?");
}

bool RemoverLinguagem(const QString &nome, InterfaceUsuario *ui)
{
    if (!ui || ui->Perguntar(PerguntaRemoverLinguagem(nome), TituloRemoverLinguagem, Botoes::SimNao, Icone::Pergunta)
                   != Resposta::Sim)
        return false;
    QFile arquivo(CaminhoLinguagem(nome));
    if (!arquivo.remove()) {
        ui->Mensagem(arquivo.errorString(), TituloRemoverLinguagem, Icone::Critico);
        return false;
    }
    return true;
}

QString MensagemLinguagemNaoEncontrada(const QString &caminho)
{
    return QStringLiteral("O Arquivo '") + caminho + QStringLiteral("' não foi encontrado!");
}

QString MensagemLinguagemInvalida(const QString &caminho)
{
    return QStringLiteral("O arquivo '") + caminho + QStringLiteral("' é inválido!");
}

QString MensagemErroLerLinguagem(int numero, const QString &descricao)
{
    return QStringLiteral("Ocorreu o erro ") + QString::number(numero) + QStringLiteral(" ao ler a linguagem!\n\n")
        + descricao;
}

QString MensagemErroSalvarLinguagem(int numero, const QString &descricao)
{
    return QStringLiteral("Ocorreu o erro ") + QString::number(numero)
        + QStringLiteral(" ao salvar a linguagem!\n\n") + descricao;
}

QString MensagemLinguagemExiste(const QString &nome)
{
    return QStringLiteral("A linguagem '") + nome + QStringLiteral("' já existe!");
}

}  // namespace lumeta
