#pragma once
// Per-user settings, kept in the platform's settings store under
// "Tavrosk" / "LumetaEdit 2.0" as texts ("True"/"False" for booleans).

#include "document/Layout.h"

#include <QStringList>

class QSettings;

namespace lumeta {

inline const QString OrganizacaoConfig = QStringLiteral("Tavrosk");

// Unit of measure codes (the screen scale-mode numbers).
enum UnidadeMedida { UnidadePixels = 3, UnidadePolegadas = 5, UnidadeMilimetros = 6, UnidadeCentimetros = 7 };

struct Configuracoes {
    bool ExibirResultado = true;
    bool FontesImpressora = false;
    int UnidadeMedida = UnidadePixels;
    bool NoCobolUsarString = true;
    bool MagicItem = true;
    int Zoom = 100;                 // the canvas's zoom, percent (a view setting, like the unit)
    bool Reguas = true;             // rulers shown beside the canvas
    FonteItem FontePadrao;
    QString CPY;
    QStringList ArquivosRecentes;   // at most 4, most recent first

    // Reads every key with its default.
    void Ler();
    // Reads only the recent-file list, which stops at the first empty entry.
    void LerRecentes();
    // The keys written at shut-down from the current view state.
    void GravarAoSair() const;
    void GravarCPY() const;
    void GravarNoCobolUsarString() const;
    void GravarPasta(const QString &pasta) const;
    // Puts `caminho` first, drops any case-insensitive duplicate, keeps 4, and
    // writes the four keys.
    void GravarRecentes(const QString &caminho);
    void ExcluirRecentes();
};

// The settings store of the editor (tests point QSettings at a temporary folder).
QSettings *AbrirConfig();
// The usual text-to-boolean conversion: "True"/"False" in any case, or a number.
bool TextoParaBooleano(const QString &texto, bool padrao);
inline QString BooleanoParaTexto(bool v) { return v ? QStringLiteral("True") : QStringLiteral("False"); }
// The new recent-file list after saving or opening `caminho`.
QStringList ListaRecentes(const QStringList &atual, const QString &caminho);

}  // namespace lumeta
