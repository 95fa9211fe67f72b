#pragma once
// Code 39, with or without its modulo-43 check character.

#include <QImage>
#include <QString>
#include <string>

namespace lumeta {

// The 43 data characters in the order of their values 0..42; "*" (43) is the
// start and stop character and never data.
inline constexpr char kCaracteresCode39[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

// Asterisks removed, letters upper-cased, anything else outside the set
// becomes a space: "ab*c" gives "ABC", "a_b" gives "A B".
QString LimparValorCode39(const QString &valor);

// The check character of a cleaned value: the character whose value is the
// sum of all values mod 43.
QChar CaractereVerificadorCode39(const QString &limpo);

// The 16 modules of one character (its bars and spaces, wide = 3, followed
// by the one-module gap); index 0..43.
const std::string &ModulosCaractereCode39(int indice);

// The whole module string of a cleaned value: "*", the characters, the check
// character when asked, "*".
std::string ModulosCode39(const QString &limpo, bool comVerificador);

// Draws the symbol into `figura`: width (characters + 2, + 1 with the check
// character) x 16 + 1, height `alturaBarra` + 12 with the human-readable line
// (the cleaned value, centred below the bars), else `alturaBarra`.
void DesenharCode39(QImage &figura, int alturaBarra, const QString &valor, bool comVerificador,
                    bool mostrarTexto, int angulo);

}  // namespace lumeta
