// Every symbology, painted at every rotation, read back by an independent
// decoder. Between them the values below use every table entry.

#include "barcodes/CodigoBarras.h"
#include "barcodes/LeitorCodigoBarras.h"

#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::Leitura;
using lumeta::teste::LerCodigoBarras;
using ZXing::BarcodeFormat;

TEST(Decodificacao, CadaSimbologiaLidaEmCadaGiroComESemDigitos)
{
    QString pares, ascii;
    for (int p = 0; p < 100; ++p)
        pares += QString::asprintf("%02d", p);
    for (char16_t c = u' '; c <= u'~'; ++c)
        ascii += QChar(c);
    const QString code39 = QStringLiteral("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%");
    struct Caso { int tipo; QString valor; std::string lido; BarcodeFormat formato; int escala = 3; };
    // Letters to capitals, "*" dropped, type 33's check character and EAN-8
    // show in the painted modules of the drawing tests; an odd count of
    // digits gets its leading zero in the interleaved cases at the end.
    const Caso casos[] = {
        {36, QStringLiteral("a_b"), "A B", BarcodeFormat::Code39},
        {36, code39, code39.toStdString(), BarcodeFormat::Code39},
        {34, QStringLiteral("12a4"), "1204", BarcodeFormat::Code128},
        {34, pares, pares.toStdString(), BarcodeFormat::Code128, 2},
        // Values 100 to 102 only ever appear as check symbols:
        // 105 + 98 = 203 -> 100; 105 + 99 = 204 -> 101; 105 + 0 + 2 x 50 = 205 -> 102.
        {34, QStringLiteral("98"), "98", BarcodeFormat::Code128},
        {34, QStringLiteral("99"), "99", BarcodeFormat::Code128},
        {34, QStringLiteral("0050"), "0050", BarcodeFormat::Code128},
        {39, ascii, ascii.toStdString(), BarcodeFormat::Code128, 2},
        {39, QStringLiteral("Olá, Mundo!"), "Ol0, Mundo!", BarcodeFormat::Code128},
        {31, QStringLiteral("123"), "0000000001236", BarcodeFormat::EAN13},
        {31, QStringLiteral("7891234567899"), "7891234567895", BarcodeFormat::EAN13},
        {32, QStringLiteral("9876543"), "98765430", BarcodeFormat::EAN8},
        {35, pares, pares.toStdString(), BarcodeFormat::ITF, 2},
    };
    std::vector<Caso> todos(std::begin(casos), std::end(casos));
    for (const int tipo : {35, 37, 38}) {
        todos.push_back({tipo, QStringLiteral("12345"), "012345", BarcodeFormat::ITF});
        todos.push_back({tipo, QStringLiteral("12a4-678"), "12040678", BarcodeFormat::ITF});
    }
    for (const Caso &c : todos)
        for (const int angulo : {0, 90, 180, 270})
            for (const bool texto : {true, false}) {
                const Leitura l = LerCodigoBarras(DesenharCodigoBarras(c.tipo, c.valor, 40, texto, angulo), c.formato, c.escala);
                EXPECT_TRUE(l.ok && l.formato == c.formato && l.texto == c.lido)
                    << c.tipo << " '" << c.valor.left(20).toStdString() << "' at " << angulo << " text " << texto << ": " << l.texto;
            }

    // A reader that knows the Code 39 check character validates and drops it.
    const Leitura l = LerCodigoBarras(DesenharCodigoBarras(33, QStringLiteral("lumeta-2.0"), 40, true, 90), BarcodeFormat::Code39, 3, true);
    EXPECT_EQ(l.texto, "LUMETA-2.0");
    // Every first digit selects another parity row; the decoder checks the
    // check digit, so a read of the data digits plus one more is enough.
    for (int primeiro = 0; primeiro <= 9; ++primeiro) {
        const QString dados = QString::number(primeiro) + QStringLiteral("47382910564");
        const Leitura e = LerCodigoBarras(DesenharCodigoBarras(31, dados, 40, true, 0), BarcodeFormat::EAN13);
        EXPECT_TRUE(e.ok && e.texto.size() == 13u && QString::fromStdString(e.texto).left(12) == dados) << primeiro;
    }
}
