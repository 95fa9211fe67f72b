#include "canvas/Geometria.h"

#include <gtest/gtest.h>

using namespace lumeta;

TEST(Geometria, MarcadorDaPaginaNasDuasOrientacoes)
{
    const MarcadorPagina r = MarcadorDaPagina(false);
    EXPECT_EQ(r.x, 776);
    EXPECT_EQ(r.y, 1043);
    EXPECT_EQ(r.cor, 11);
    EXPECT_EQ(r.rotulo, QStringLiteral("A4 (Retrato)"));
    const MarcadorPagina p = MarcadorDaPagina(true);
    EXPECT_EQ(p.x, 1035);
    EXPECT_EQ(p.y, 784);
    EXPECT_EQ(p.cor, 10);
    EXPECT_EQ(p.rotulo, QStringLiteral("A4 (Paisagem)"));
}

TEST(Geometria, TamanhoInicialECrescimento)
{
    CanvasPagina c;
    c.TamanhoInicial(800);
    EXPECT_TRUE(c.TamanhoTotal);
    EXPECT_EQ(c.Tamanho, QSize(1120, 1120));  // a narrow screen still gives 1120
    c.TamanhoInicial(1920);
    EXPECT_EQ(c.Tamanho, QSize(1920, 1120));

    c.TamanhoInicial(1000);
    LayoutDocumento doc;
    Banda b;
    b.Itens = {Item{}, Item{}};
    b.Itens[1].Esquerda = 64;
    b.Itens[1].Largura = 1000;  // right edge 1064
    doc.Bandas = {b};
    EXPECT_TRUE(c.CrescerLargura(doc));
    EXPECT_EQ(c.Tamanho.width(), 1192);   // 1064 + 128
    EXPECT_FALSE(c.CrescerLargura(doc));  // never shrinks, never grows twice
    doc.Bandas[0].Itens[1].Largura = 900;
    EXPECT_FALSE(c.CrescerLargura(doc));
    EXPECT_EQ(c.Tamanho.width(), 1192);

    EXPECT_FALSE(c.CrescerAltura(1056));  // 1120 - 64 is still inside
    EXPECT_TRUE(c.CrescerAltura(1057));
    EXPECT_EQ(c.Tamanho.height(), 1057 + 384);

    c.TamanhoTotal = false;
    EXPECT_FALSE(c.CrescerAltura(5000));
    doc.Bandas[0].Itens[1].Largura = 5000;
    EXPECT_FALSE(c.CrescerLargura(doc));
}

TEST(Geometria, VerificacaoDeMemoriaCaiPara2016)
{
    CanvasPagina c;
    c.TamanhoInicial(1120);
    EXPECT_TRUE(c.VerificarMemoria());
    c.LimiteMemoria = 3000LL * 3000 * 4;
    c.Tamanho = QSize(1120, 9000);
    EXPECT_FALSE(c.VerificarMemoria());
    EXPECT_FALSE(c.TamanhoTotal);
    EXPECT_EQ(c.Tamanho, QSize(2016, 2016));
    EXPECT_TRUE(c.VerificarMemoria());

    CanvasPagina d;
    d.TamanhoInicial(1120);
    d.Tamanho = QSize(1120, 9000);
    d.LimiteMemoria = 1000LL * 1000 * 4;
    EXPECT_FALSE(d.GarantirImagem());
    EXPECT_EQ(d.Imagem.size(), QSize(2016, 2016));
    d.Tamanho = QSize(1200, 700);
    EXPECT_TRUE(d.GarantirImagem());
    EXPECT_EQ(d.Imagem.size(), QSize(1200, 700));
}

TEST(Geometria, RolarParaMostrarOItemSelecionado)
{
    LayoutDocumento doc;
    for (int i = 0; i < 100; ++i) {
        Banda b;
        b.Itens = {Item{}, Item{}};
        b.Itens[1].Largura = 600;
        doc.Bandas.append(b);
    }
    for (int i = 1; i <= 100; ++i)
        doc.ReposicionarItem(i);
    doc.ReposicionarBanda();
    const QSize vp(400, 300);
    const QPoint max(1000, 1500);
    // Band 50 runs from 16 + 49 * 18 = 898 to 916.
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(0, 0), vp, max), QPoint(0, 916 - 300 + 8));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(0, 1000), vp, max), QPoint(0, 898 - 8));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(0, 700), vp, max), QPoint(0, 700));
    // Item 2 runs from 64 to 664.
    EXPECT_EQ(RolarParaSelecao(doc, 50, 2, QPoint(0, 700), vp, max), QPoint(664 - 400 + 16, 700));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 1, QPoint(100, 700), vp, max), QPoint(0, 700));
    // Limited to the scroll bars' range; nothing without a selected item.
    EXPECT_EQ(RolarParaSelecao(doc, 100, 1, QPoint(0, 0), vp, QPoint(0, 200)), QPoint(0, 200));
    EXPECT_EQ(RolarParaSelecao(doc, 1, 1, QPoint(0, 50), vp, max), QPoint(0, 8));
    EXPECT_EQ(RolarParaSelecao(doc, 1, 1, QPoint(0, 5), vp, max), QPoint(0, 5));
    EXPECT_EQ(RolarParaSelecao(doc, 50, 0, QPoint(3, 4), vp, max), QPoint(3, 4));
    EXPECT_EQ(MaximoRolagem(QSize(1120, 2000), QSize(1200, 900)), QPoint(0, 1100));
}
