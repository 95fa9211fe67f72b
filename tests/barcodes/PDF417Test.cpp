// PDF417: our matrix layer over the encoder library, the drawing of a
// matrix, and whole symbols read back by an independent decoder.

#include "barcodes/CodigoBarras.h"
#include "barcodes/DesenhoBarras.h"
#include "barcodes/LeitorCodigoBarras.h"
#include "barcodes/ModPDF417.h"
#include "canvas/ApoioCanvas.h"
#include "document/Texto1252.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::LerCodigoBarras;
using ZXing::BarcodeFormat;

namespace {

bool Preto(const QImage &img, int x, int y) { return img.pixel(x, y) == qRgb(0, 0, 0); }

}  // namespace

// The bits of the matrix, most significant first, are proven by the symbols
// read back below; here, its size and what a failure leaves.
TEST(PDF417, MatrizEmBytesInteirosEFalhaQueLimpaASaida)
{
    QByteArray m;
    int numBytes = -1, largura = -1;
    ASSERT_NE(GetPDF417(QByteArray("LumetaEdit"), m, numBytes, largura), 0);
    EXPECT_EQ(numBytes, m.size());
    EXPECT_EQ((std::array{BytesPorLinhaPDF417(17), BytesPorLinhaPDF417(16), BytesPorLinhaPDF417(1)}), (std::array{3, 2, 1}));
    // Nothing to encode; a value too long for one symbol is refused by the CLI's test.
    EXPECT_EQ(GetPDF417(QByteArray(), m, numBytes, largura), 0);
    EXPECT_TRUE(m.isEmpty() && numBytes == 0 && largura == 0);
}

TEST(PDF417, DesenhoDaMatrizTresPixelsPorModulo)
{
    // 17 modules: 3 bytes per row; 30 bytes: 10 rows, 30 pixels high. Row r
    // sets module r, module 16 and a padding bit (module 17) that must be
    // dropped. Bytes past the count are ignored.
    QByteArray fixa(30, '\0');
    for (int r = 0; r < 10; ++r) {
        fixa[r * 3 + r / 8] = char(fixa[r * 3 + r / 8] | (0x80 >> (r % 8)));
        fixa[r * 3 + 2] = char(0x80 | 0x40);
    }
    int chamadas = 0;
    QString pastaDuranteAChamada;
    QByteArray recebido;
    const FuncaoGetPDF417 falso = [&](const QByteArray &v, QByteArray &m, int &n, int &w) {
        ++chamadas;
        pastaDuranteAChamada = QDir::currentPath();
        recebido = v;
        m = fixa + QByteArray(12, '\xFF');
        n = 30;
        w = 17;
        return 1;
    };

    const QString pastaAntes = QDir::currentPath();
    QImage img;
    DesenharPDF417(img, QStringLiteral("Ação €"), 0, falso);
    EXPECT_EQ(std::pair(chamadas, recebido), std::pair(1, QByteArray("A\xE7\xE3o \x80")));
    EXPECT_EQ(QDir(pastaDuranteAChamada).canonicalPath(), QDir(QDir::tempPath()).canonicalPath());
    EXPECT_EQ(QDir::currentPath(), pastaAntes);
    ASSERT_EQ(img.size(), QSize(17, 30));
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 17; ++x)
            EXPECT_EQ(Preto(img, x, y), x == y / 3 || x == 16) << x << "," << y;
}

TEST(PDF417, VazioOuFalhaDeixaFigura8x8EmBranco)
{
    int chamadas = 0;
    const FuncaoGetPDF417 falha = [&](const QByteArray &, QByteArray &, int &, int &) {
        ++chamadas;
        return 0;
    };
    // A reported success with no width is a failure too.
    const FuncaoGetPDF417 semLargura = [](const QByteArray &, QByteArray &m, int &n, int &w) {
        m = QByteArray(6, '\xFF');
        n = 6, w = 0;
        return 1;
    };
    const std::pair<QString, FuncaoGetPDF417> casos[] = {{QString(), falha}, {QStringLiteral("abc"), falha},
                                                         {QStringLiteral("abc"), semLargura}};
    for (const auto &[valor, codificador] : casos) {
        QImage img(50, 50, QImage::Format_RGB32);
        img.fill(Qt::black);
        DesenharPDF417(img, valor, 90, codificador);
        EXPECT_TRUE(img.size() == QSize(8, 8) && teste::Todos(img, img.rect(), qRgb(255, 255, 255))) << valor.toStdString();
    }
    EXPECT_EQ(chamadas, 1);  // an empty value never reaches the encoder
}

TEST(PDF417, SimbolosLidosDeVoltaComAcentosETextosLongos)
{
    QString longo;
    for (int i = 0; longo.size() < 320; ++i)
        longo += QStringLiteral("Linha %1: pão, maçã, café — preço R$ %2,50; ").arg(i).arg(i * 3);
    const QString valores[] = {
        QStringLiteral("123.456/Abc"),
        QStringLiteral("Ação: çãéíóúÂÊÔàü ñ ß € “aspas”"),
        longo,
    };
    for (const QString &v : valores)
        for (const int angulo : {0, 90, 180, 270}) {
            const QImage img = DesenharCodigoBarras(80, v, 40, true, angulo);
            QByteArray m;
            int n = 0, w = 0;
            ASSERT_NE(GetPDF417(Para1252(v), m, n, w), 0);
            const int linhas = n / BytesPorLinhaPDF417(w);
            const QSize esperado = AnguloDeitado(angulo) ? QSize(linhas * 3, w) : QSize(w, linhas * 3);
            EXPECT_EQ(img.size(), esperado) << angulo;
            const auto l = LerCodigoBarras(img, BarcodeFormat::PDF417, 2);
            ASSERT_TRUE(l.ok) << v.size() << " chars at " << angulo;
            EXPECT_EQ(l.bytes, Para1252(v)) << angulo;
        }
}
