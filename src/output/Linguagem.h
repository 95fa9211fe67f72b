#pragma once
// Language definitions: small ".lin" files of eight code templates that turn
// the command text into source code of the host program's language. The file
// is a 32-bit version (always 1) and eight texts, each a 16-bit byte count and
// that many Windows-1252 bytes.

#include "document/InterfaceUsuario.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace lumeta {

struct LinguagemDef {
    // The eight templates, in file order.
    QString DefVariaveis;
    QString ComentarioInicial;
    QString ComandoF;
    QString ComandoL;
    QString ComandoT;
    QString ComandoRH;
    QString ComandosSimples;
    QString ChamadaViewer;
    // Outside the file: set from the name on every read, and the user's
    // choice of the STRING form for long COBOL literals.
    bool EhCobol = false;
    bool CobolString = true;

    bool operator==(const LinguagemDef &) const = default;
};

inline constexpr int32_t VersaoLinguagem = 1;
inline constexpr int NumModelosLinguagem = 8;
inline const QString ExtensaoLinguagem = QStringLiteral(".lin");
// Overrides the folder of the language files (default: the program's folder,
// which may be read-only once installed).
inline constexpr const char *VariavelPastaLinguagens = "LUMETAEDIT_LINGUAGENS";

// The eight templates as a list, in file order, for reading and writing.
QStringList ModelosLinguagem(const LinguagemDef &def);
void DefinirModelos(LinguagemDef &def, const QStringList &modelos);

// The templates of a new language: empty, the opening comment, and a legend
// of the placeholders of each kind of line.
LinguagemDef LinguagemPadrao();

// A language whose name holds "Cobol" in any letter case gets the COBOL step.
bool NomeEhCobol(const QString &nome);
// The name as the languages dialog stores it: characters a file name cannot
// hold become "_".
QString LimparNomeLinguagem(const QString &nome);

QString PastaLinguagens();
QString CaminhoLinguagem(const QString &nome);
bool LinguagemExiste(const QString &nome);
// The names of the "*.lin" files of the languages folder, without the
// extension; with `ordenar` ascending and ignoring letter case (the menus),
// otherwise by file name.
QStringList ListarLinguagens(bool ordenar = true);

// File contents. Decoding fails on a version other than 1 (also a file too
// short to hold one) and on strings cut short.
QByteArray CodificarLin(const LinguagemDef &def, bool *cabe = nullptr);
enum class ResultadoLin { Ok, NaoEncontrado, Invalido, ErroLeitura, ErroGravacao };
struct LeituraLin {
    ResultadoLin resultado = ResultadoLin::Ok;
    int numeroErro = 0;       // ErroLeitura / ErroGravacao
    QString descricaoErro;
    QString mensagem;         // ready to show when not Ok
    QString titulo;
    Icone icone = Icone::Nenhum;
};
LeituraLin DecodificarLin(const QByteArray &dados, LinguagemDef &def);

// Reads the file at a path into `def` (templates replaced only on success);
// EhCobol follows the file's name without its extension.
LeituraLin LerArquivoLinguagem(const QString &caminho, LinguagemDef &def);
LeituraLin GravarArquivoLinguagem(const QString &caminho, const LinguagemDef &def);

// The editor's operations on the languages folder. Failures are shown through
// `ui` (may be null) and give false.
bool LerLinguagem(const QString &nome, LinguagemDef &def, InterfaceUsuario *ui);
bool SalvarLin(const QString &nome, const LinguagemDef &def, InterfaceUsuario *ui);
// Fills `def` with the defaults of a new language and writes it.
bool NovaLin(const QString &nome, LinguagemDef &def, InterfaceUsuario *ui);

// The languages dialog's option `indice` (0..7: variables, F, L, T, RH,
// simple commands, viewer call, opening comment) and its template.
inline constexpr int NumOpcoesLinguagem = 8;
QString &ModeloDaOpcao(LinguagemDef &def, int indice);
QString LegendaOpcaoLinguagem(int indice);

// Leaving the template editor: when `texto` (line feeds or CR LF) differs from
// the option's template, the template takes it and the language is written at
// once. True when the file was written; a failed write keeps the old file and
// the old template.
bool AtualizarModelo(const QString &nome, LinguagemDef &def, int indice, const QString &texto, InterfaceUsuario *ui);

// "Nova Linguagem": the typed name cleaned; an empty answer does nothing, an
// existing language is refused with its message. The name of the language
// created (and now in `def`), or nothing.
std::optional<QString> AdicionarLinguagem(const QString &resposta, LinguagemDef &def, InterfaceUsuario *ui);
// "Excluir Linguagem": asks, and on yes deletes the file. True when deleted.
bool RemoverLinguagem(const QString &nome, InterfaceUsuario *ui);
QString PerguntaRemoverLinguagem(const QString &nome);
inline const QString TituloRemoverLinguagem = QStringLiteral("Excluir Linguagem");

QString MensagemLinguagemNaoEncontrada(const QString &caminho);
QString MensagemLinguagemInvalida(const QString &caminho);
QString MensagemErroLerLinguagem(int numero, const QString &descricao);
QString MensagemErroSalvarLinguagem(int numero, const QString &descricao);
QString MensagemLinguagemExiste(const QString &nome);
inline const QString TituloLerLinguagem = QStringLiteral("Ler Linguagem");
inline const QString TituloSalvarLinguagem = QStringLiteral("Salvar Linguagem");
inline const QString TituloNovaLinguagem = QStringLiteral("Nova Linguagem");

}  // namespace lumeta
