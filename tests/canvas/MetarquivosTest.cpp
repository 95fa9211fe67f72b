// WMF and EMF pictures, from metafiles written byte by byte here: a header and
// a filled rectangle, then the pixels the picture loader gives.
#include "canvas/Figuras.h"
#include "support/TestSupport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::Bytes;

namespace {

// A placeable WMF, 40 x 20 logical units at 96 per inch: the null pen, then
// a blue rectangle over the left half and a red one over the right half.
QByteArray Wmf(int direita = 40, int fundo = 20, int porPolegada = 96)
{
    Bytes r;
    auto registro = [&](int palavras, int funcao) -> Bytes & { return r.i32(palavras).i16(funcao); };
    registro(5, 0x020B).i16(0).i16(0);                    // SETWINDOWORG y, x
    registro(5, 0x020C).i16(20).i16(40);                  // SETWINDOWEXT y, x
    registro(8, 0x02FA).i16(5).i16(0).i16(0).i32(0);      // CREATEPENINDIRECT null
    registro(4, 0x012D).i16(0);                           // SELECTOBJECT
    registro(7, 0x02FC).i16(0).i32(0xFF0000).i16(0);      // CREATEBRUSHINDIRECT solid blue
    registro(4, 0x012D).i16(1);
    registro(7, 0x041B).i16(20).i16(20).i16(0).i16(0);    // RECTANGLE bottom, right, top, left
    registro(4, 0x01F0).i16(1);                           // DELETEOBJECT
    registro(7, 0x02FC).i16(0).i32(0x0000FF).i16(0);      // red
    registro(4, 0x012D).i16(1);
    registro(7, 0x041B).i16(20).i16(40).i16(0).i16(20);
    registro(3, 0x0000);                                  // EOF
    Bytes cab;
    cab.i16(1).i16(9).i16(0x0300).i32((18 + int(r.b.size())) / 2).i16(2).i32(8).i16(0);
    Bytes p;
    p.i32(int(0x9AC6CDD7)).i16(0).i16(0).i16(0).i16(direita).i16(fundo).i16(porPolegada).i32(0);
    quint16 soma = 0;
    for (int i = 0; i < 20; i += 2)
        soma ^= quint16(uchar(p.b[i]) | uchar(p.b[i + 1]) << 8);
    p.i16(soma);
    return p.b + cab.b + r.b;
}

// An EMF of 40 x 20 device pixels, green: a brush, the null stock pen, a
// rectangle over all of it.
QByteArray Emf()
{
    Bytes r;
    r.i32(39).i32(24).i32(1).i32(0).i32(0x00FF00).i32(0);  // CREATEBRUSHINDIRECT
    r.i32(37).i32(12).i32(1);                              // SELECTOBJECT brush
    r.i32(37).i32(12).i32(int(0x80000008));                // SELECTOBJECT NULL_PEN
    r.i32(43).i32(24).i32(0).i32(0).i32(40).i32(20);       // RECTANGLE
    r.i32(14).i32(20).i32(0).i32(16).i32(20);              // EOF
    Bytes h;
    h.i32(1).i32(88).i32(0).i32(0).i32(40).i32(20)          // bounds
        .i32(0).i32(0).i32(1058).i32(529)                   // frame, 0.01 mm
        .i32(0x464D4520).i32(0x10000).i32(88 + int(r.b.size())).i32(6).i16(2).i16(0)
        .i32(0).i32(0).i32(0).i32(1024).i32(768).i32(271).i32(203);
    return h.b + r.b;
}

const QImage &Carregar(CacheFiguras &cache, const QTemporaryDir &dir, const char *nome, const QByteArray &dados)
{
    const QString caminho = dir.filePath(QString::fromLatin1(nome));
    teste::GravarArquivoTeste(caminho, dados);
    cache.NovaPassagem();
    return cache.Figura(QLatin1Char('"') + caminho + QLatin1Char('"'));
}

}  // namespace

TEST(Metarquivos, WmfEEmfMostramOSeuDesenho)
{
    QTemporaryDir dir;
    CacheFiguras cache;
    const QImage &wmf = Carregar(cache, dir, "retangulo.wmf", Wmf());
    ASSERT_EQ(wmf.size(), QSize(40, 20));
    EXPECT_EQ(std::pair(wmf.pixel(30, 10), wmf.pixel(5, 10)), std::pair(qRgb(255, 0, 0), qRgb(0, 0, 255)));

    const QImage &emf = Carregar(cache, dir, "retangulo.emf", Emf());
    EXPECT_NEAR(emf.width(), 40, 1);
    EXPECT_EQ(emf.pixel(20, 10), qRgb(0, 255, 0));
}

TEST(Metarquivos, MetarquivoDanificadoMostraAFiguraDeErro)
{
    QTemporaryDir dir;
    CacheFiguras cache;
    // Headers whose records were cut off, and a header claiming a picture
    // far too large to allocate.
    EXPECT_EQ(&Carregar(cache, dir, "cortado.wmf", Wmf().left(40)), &ImagemErro());
    EXPECT_EQ(&Carregar(cache, dir, "cortado.emf", Emf().left(88)), &ImagemErro());
    EXPECT_EQ(&Carregar(cache, dir, "enorme.wmf", Wmf(32767, 32767, 1)), &ImagemErro());
}
