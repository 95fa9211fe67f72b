#pragma once
// The rules of the numeric field, kept apart from the widget: which keys a
// number of a given shape takes, how the text is re-checked after a change
// and how the number is shown once the field loses the focus. The widget
// only mirrors the text and the selection held here.
#include <QLocale>
#include <QString>

namespace lumeta {

enum class EfeitoTecla {
    Consumida,   // the rules changed the text or the selection themselves
    Recusada,    // refused: the widget beeps
    Passa,       // the text box's own behaviour (Enter, Tab)
};

class RegrasNumero {
public:
    RegrasNumero();

    // The shape n.m: n integer digits, m decimals. Rounded to one decimal;
    // values outside 1.0 .. 12.9 are ignored (returns false).
    bool DefinirFormato(double formato);
    double Formato() const { return m_maxInteiros + m_maxDecimais / 10.0; }
    int MaxInteiros() const { return m_maxInteiros; }
    int MaxDecimais() const { return m_maxDecimais; }

    bool ManterDecimais = false;   // HoldDecimal
    bool SeparadorMilhar = true;
    bool PermitirSinal = false;    // AllowSignal
    bool PermitirVazio = false;    // AllowEmpty
    bool Travado = false;          // Locked

    // The text as it is edited, and the selection in it (the caret is the
    // selection's start when its length is 0).
    QString Texto;
    int InicioSelecao = 0;
    int TamanhoSelecao = 0;

    double Valor() const { return m_valor; }
    bool Vazio() const { return m_vazio; }
    double ValorAoFocar() const { return m_valorAoFocar; }
    int DigitosInteiros() const { return m_inteiros; }
    int DigitosDecimais() const { return m_decimais; }
    QChar Separador() const { return m_separador; }

    // The host writes the number: the text shows it in the display format.
    void DefinirValor(double v);
    void DefinirVazio();

    // A character typed in the field (Backspace is '\b', Escape '\x1b').
    EfeitoTecla Tecla(QChar k);
    // The text changed behind the keys (Delete, undo): sign, counts, value.
    // Returns whether `Change` is due.
    bool TextoAlterado();
    // Pasted text over the selection: each character as if typed, so only
    // what the keys would take arrives; the rest is dropped without a beep.
    void Colar(const QString &texto);
    void GanharFoco();
    void PerderFoco();

    // The display form of a number under the current shape and options.
    QString Exibicao(double v) const;
    // The form the text takes while it is edited: no grouping.
    QString Edicao(double v) const;

private:
    void contar();
    void selecionarDecimais();
    void separadorNoCursor();
    void substituirSelecao(const QString &por);

    int m_maxInteiros = 6;
    int m_maxDecimais = 6;
    int m_inteiros = 0;
    int m_decimais = 0;
    double m_valor = 0;
    double m_valorAoFocar = 0;
    bool m_vazio = false;
    QChar m_separador;
    QChar m_grupo;
};

}  // namespace lumeta
