#include "document/ArquivoLMT.h"
#include "document/Sessao.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace lumeta;
using lumeta::teste::Bytes;

TEST(ArquivoLMT, NovoLayoutTemExatamente166Bytes)
{
    SessaoEditor s;
    const QByteArray b = GravarLMT(s.Documento);
    Bytes e;
    e.cab("t").i16(1).i32(16).i32(18).i32(0).str("").i16(1).i16(1).i32(1).i32(1);
    e.str("Texto 1").str("Arial").i16(10).i16(0).i16(0).i16(0).i16(0).i32(0).i32(64);
    e.raw("0000000000").raw("0000100010").u8(0).u8(99).u8(0).u8(1).u8(0);
    e.i16(0).i16(0).i16(0).str("").i16(0).i16(92).i16(1).str("").i32(0).str("\"0\"").str("\"0\"").i32(0);
    e.i16(0).i16(0).i16(0).i16(0).str("\"0\"");
    EXPECT_EQ(b.size(), 166);
    EXPECT_EQ(b.toHex(' '), e.b.toHex(' '));
    EXPECT_EQ(b.left(32), QByteArray("LumetaEdit 1.0(t)               "));
    LayoutDocumento lido;
    ASSERT_EQ(LerLMT(b, lido).resultado, ResultadoLeitura::Ok);
    EXPECT_EQ(lido, s.Documento);
}
