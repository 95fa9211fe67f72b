// Every symbology, painted at every rotation, read back by an independent
// decoder. Between them the values below use every table entry.

#include "barcodes/CodigoBarras.h"
#include "barcodes/LeitorCodigoBarras.h"

#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::Leitura;
using lumeta::teste::LerCodigoBarras;
using ZXing::BarcodeFormat;

namespace {

struct Caso {
    int tipo;
    QString valor;
    std::string lido;
    BarcodeFormat formato;
};

void ConferirLeitura(const Caso &c, int escala = 3)
{
    for (const int angulo : {0, 90, 180, 270})
        for (const bool texto : {true, false}) {
            const QImage img = DesenharCodigoBarras(c.tipo, c.valor, 40, texto, angulo);
            const Leitura l = LerCodigoBarras(img, c.formato, escala);
            EXPECT_TRUE(l.ok) << c.tipo << " '" << c.valor.toStdString() << "' at " << angulo << " text " << texto;
            EXPECT_EQ(l.formato, c.formato) << c.tipo << " at " << angulo;
            EXPECT_EQ(l.texto, c.lido) << c.tipo << " at " << angulo << " text " << texto;
        }
}

QString TodosOsPares()
{
    QString s;
    for (int p = 0; p < 100; ++p)
        s += QString::asprintf("%02d", p);
    return s;
}

}  // namespace

TEST(Decodificacao, Code39ComESemVerificador)
{
    ConferirLeitura({36, QStringLiteral("ab*c"), "ABC", BarcodeFormat::Code39});
    ConferirLeitura({36, QStringLiteral("a_b"), "A B", BarcodeFormat::Code39});
    ConferirLeitura({36, QStringLiteral("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%"),
                     "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", BarcodeFormat::Code39});
    // The check character is part of the symbol; a reader that knows about it
    // validates it and drops it.
    ConferirLeitura({33, QStringLiteral("ab*c"), "ABCX", BarcodeFormat::Code39});
    ConferirLeitura({33, QStringLiteral("A"), "AA", BarcodeFormat::Code39});
    for (const int angulo : {0, 90, 180, 270}) {
        const QImage img = DesenharCodigoBarras(33, QStringLiteral("lumeta-2.0"), 40, true, angulo);
        const Leitura l = LerCodigoBarras(img, BarcodeFormat::Code39, 3, true);
        EXPECT_TRUE(l.ok) << angulo;
        EXPECT_EQ(l.texto, "LUMETA-2.0") << angulo;
    }
}

TEST(Decodificacao, Code128ConjuntoC)
{
    ConferirLeitura({34, QStringLiteral("123"), "0123", BarcodeFormat::Code128});
    ConferirLeitura({34, QStringLiteral("12a4"), "1204", BarcodeFormat::Code128});
    ConferirLeitura({34, TodosOsPares(), TodosOsPares().toStdString(), BarcodeFormat::Code128}, 2);
    // Values 100 to 102 only ever appear as check symbols:
    // 105 + 98 = 203 -> 100; 105 + 99 = 204 -> 101; 105 + 0 + 2 x 50 = 205 -> 102.
    ConferirLeitura({34, QStringLiteral("98"), "98", BarcodeFormat::Code128});
    ConferirLeitura({34, QStringLiteral("99"), "99", BarcodeFormat::Code128});
    ConferirLeitura({34, QStringLiteral("0050"), "0050", BarcodeFormat::Code128});
}

TEST(Decodificacao, Code128ConjuntoB)
{
    QString todos;
    for (char16_t c = u' '; c <= u'~'; ++c)
        todos += QChar(c);
    ConferirLeitura({39, todos, todos.toStdString(), BarcodeFormat::Code128}, 2);
    ConferirLeitura({39, QStringLiteral("Olá, Mundo!"), "Ol0, Mundo!", BarcodeFormat::Code128});
}

TEST(Decodificacao, EAN13EAN8)
{
    ConferirLeitura({31, QStringLiteral("590123412345"), "5901234123457", BarcodeFormat::EAN13});
    ConferirLeitura({31, QStringLiteral("123"), "0000000001236", BarcodeFormat::EAN13});
    ConferirLeitura({31, QStringLiteral("7891234567899"), "7891234567895", BarcodeFormat::EAN13});
    ConferirLeitura({32, QStringLiteral("1234567"), "12345670", BarcodeFormat::EAN8});
    ConferirLeitura({32, QStringLiteral("9876543"), "98765430", BarcodeFormat::EAN8});
    // Every first digit selects another parity row; the decoder checks the
    // check digit, so a read of the data digits plus one more is enough.
    for (int primeiro = 0; primeiro <= 9; ++primeiro) {
        const QString dados = QString::number(primeiro) + QStringLiteral("47382910564").left(11);
        for (const int angulo : {0, 90, 180, 270}) {
            const Leitura l = LerCodigoBarras(DesenharCodigoBarras(31, dados, 40, true, angulo),
                                              BarcodeFormat::EAN13);
            ASSERT_TRUE(l.ok) << primeiro << " at " << angulo;
            EXPECT_EQ(l.texto.size(), 13u);
            EXPECT_EQ(QString::fromStdString(l.texto).left(12), dados);
        }
    }
}

TEST(Decodificacao, Intercalado25NasTresVariantes)
{
    for (const int tipo : {35, 37, 38}) {
        ConferirLeitura({tipo, QStringLiteral("12345"), "012345", BarcodeFormat::ITF});
        ConferirLeitura({tipo, QStringLiteral("12a4-678"), "12040678", BarcodeFormat::ITF});
    }
    ConferirLeitura({35, TodosOsPares(), TodosOsPares().toStdString(), BarcodeFormat::ITF}, 2);
}
