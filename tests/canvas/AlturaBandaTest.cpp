#include "canvas/AlturaBanda.h"
#include "canvas/Pintor.h"

#include <QHash>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// Heights by text, and a record of what the band calculation asked for.
class MedidorFixo : public MedidorAltura {
public:
    QHash<QString, int> alturas;
    struct Pedido {
        QString fonte;
        QString texto;
        int largura;
        OpcoesTexto op;
    };
    QList<Pedido> pedidos;
    int Medir(const FonteItem &f, const QString &texto, int largura, int, const OpcoesTexto &op) override
    {
        pedidos.append({f.Nome, texto, largura, op});
        return alturas.value(texto, 15);
    }
};

Item ItemTexto(const QString &texto, int largura = 64, uint8_t tipo = TipoTexto)
{
    Item it;
    it.Texto = texto;
    it.Largura = largura;
    it.Tipo = tipo;
    return it;
}

}  // namespace

TEST(AlturaBanda, CasosDaAlturaAutomatica)
{
    MedidorFixo m;
    m.alturas = {{QStringLiteral("vinte"), 20}, {QStringLiteral("vinte e dois"), 22}};

    Banda b;
    // Pictures, barcodes and graph bars are never measured.
    b.Itens = {ItemTexto(QStringLiteral("\"a.bmp\""), 64, TipoFigura), ItemTexto(QStringLiteral("\"123\""), 64, TipoEAN13),
               ItemTexto(QStringLiteral("\"5\""), 64, TipoBarraGrafico), ItemTexto(QStringLiteral("\"x\""), 64, TipoPDF417)};
    EXPECT_EQ(CalcularAlturaBanda(b, m), 8);
    EXPECT_TRUE(m.pedidos.isEmpty());

    // A text item of 4 pixels or an empty one is skipped; 5 pixels counts.
    b.Itens = {ItemTexto(QStringLiteral("vinte"), 4), ItemTexto(QString(), 64)};
    EXPECT_EQ(CalcularAlturaBanda(b, m), 8);
    b.Itens = {ItemTexto(QStringLiteral("vinte"), 5)};
    EXPECT_EQ(CalcularAlturaBanda(b, m), 24);
    EXPECT_EQ(m.pedidos.last().largura, 1);  // Esquerda + 10 .. Esquerda + Largura + 6

    // The running maximum already holds the 4 of the earlier item.
    b.Itens = {ItemTexto(QStringLiteral("vinte")), ItemTexto(QStringLiteral("vinte e dois"))};
    EXPECT_EQ(CalcularAlturaBanda(b, m), 24);
    b.Itens = {ItemTexto(QStringLiteral("vinte e dois")), ItemTexto(QStringLiteral("vinte"))};
    EXPECT_EQ(CalcularAlturaBanda(b, m), 26);
    // Commands are measured like text.
    b.Itens = {ItemTexto(QStringLiteral("vinte e dois"), 64, TipoComando)};
    EXPECT_EQ(CalcularAlturaBanda(b, m), 26);
}

TEST(AlturaBanda, OQueAMedicaoRecebe)
{
    MedidorFixo m;
    Banda b;
    Item it = ItemTexto(QStringLiteral("Pág. (%_pag_%)/(%_PGS_%) (%_07_%)"), 100);
    it.Atributos = QStringLiteral("1111101110");  // centre, right, vcentre, bottom, single line, justify, no clip
    Item girado = ItemTexto(QStringLiteral("x"), 80);
    girado.Atributos = QStringLiteral("0000018000");  // 270 degrees
    girado.Fonte.Tamanho = 0;                          // cannot be set: the previous font stays
    it.Fonte.Nome = QStringLiteral("Courier New");
    b.Itens = {it, girado};
    CalcularAlturaBanda(b, m);
    ASSERT_EQ(m.pedidos.size(), 2);
    const auto &p = m.pedidos[0];
    EXPECT_EQ(p.texto, QStringLiteral("Pág. 1/10 (%_07_%)"));
    EXPECT_EQ(p.largura, 96);
    EXPECT_EQ(p.fonte, QStringLiteral("Courier New"));
    EXPECT_TRUE(p.op.umaLinha);
    EXPECT_TRUE(p.op.justificar);
    EXPECT_FALSE(p.op.centralizar);  // justify wins over centre and right
    EXPECT_FALSE(p.op.direita);
    EXPECT_FALSE(p.op.centroVertical);
    EXPECT_FALSE(p.op.base);
    EXPECT_FALSE(p.op.recortar);
    EXPECT_EQ(p.op.angulo, 0);
    EXPECT_EQ(m.pedidos[1].op.angulo, 270);
    EXPECT_EQ(m.pedidos[1].fonte, QStringLiteral("Courier New"));
    EXPECT_FALSE(m.pedidos[1].op.umaLinha);
}

TEST(AlturaBanda, FontesReaisEORepintarGuardaAAlturaNegada)
{
    FontesCanvas fontes;
    MedidorFontes medidor(fontes);
    LayoutDocumento doc;
    for (int i = 0; i < 4; ++i) {
        Banda b;
        b.Itens = {ItemTexto(QStringLiteral("Texto 1"))};
        doc.Bandas.append(b);
    }
    doc.banda(1).Altura = 0;                // automatic, never computed
    doc.banda(2).Altura = 30;
    doc.banda(3).Altura = -100;             // automatic, computed before with another text
    doc.banda(3).Itens[0].Texto = QStringLiteral("Texto Texto Texto");  // three lines in 60 pixels
    doc.banda(3).Itens[0].Atributos = QStringLiteral("0000010000");      // several lines
    doc.banda(4).Deslocamento = -9999;
    doc.banda(4).Altura = -1;
    doc.banda(4).Itens[0].Fonte.Tamanho = 12;

    const ResultadoAlturas r = AtualizarAlturas(doc, 3, medidor);
    EXPECT_TRUE(r.alturaMudou);
    EXPECT_TRUE(r.selecionadaAutomatica);
    EXPECT_EQ(doc.banda(1).Altura, -19);    // Arial 10: one line of 15, plus 4
    EXPECT_EQ(doc.banda(2).Altura, 30);
    EXPECT_EQ(doc.banda(3).Altura, -49);
    EXPECT_EQ(doc.banda(4).Altura, -21);    // Arial 12: 17 + 4
    EXPECT_EQ(doc.banda(1).Topo, 16);
    EXPECT_EQ(doc.banda(2).Topo, 35);       // below the height just computed
    EXPECT_EQ(doc.banda(3).Topo, 65);
    EXPECT_EQ(doc.banda(4).Topo, 65);       // -9999: level with the band before

    // Nothing changes on the next repaint.
    const LayoutDocumento antes = doc;
    const ResultadoAlturas r2 = AtualizarAlturas(doc, 2, medidor);
    EXPECT_FALSE(r2.alturaMudou);
    EXPECT_FALSE(r2.selecionadaAutomatica);
    EXPECT_EQ(doc, antes);

    // Rotated text does not feed on the band's previous height.
    doc.banda(1).Itens[0].Atributos = QStringLiteral("0000012000");
    doc.banda(1).Itens[0].Texto = QStringLiteral("Texto vertical");
    AtualizarAlturas(doc, 0, medidor);
    const int32_t primeira = doc.banda(1).Altura;
    EXPECT_EQ(primeira, -34);               // one word per line against a zero height
    for (int i = 0; i < 3; ++i)
        AtualizarAlturas(doc, 0, medidor);
    EXPECT_EQ(doc.banda(1).Altura, primeira);

    // The items of the selected band are laid out again, the others are not.
    doc.banda(2).Itens.append(ItemTexto(QStringLiteral("b"), 10));
    doc.banda(2).Itens[1].Esquerda = 999;
    doc.banda(3).Itens.append(ItemTexto(QStringLiteral("c"), 10));
    doc.banda(3).Itens[1].Esquerda = 999;
    AtualizarAlturas(doc, 2, medidor);
    EXPECT_EQ(doc.banda(2).Itens[1].Esquerda, 64);
    EXPECT_EQ(doc.banda(3).Itens[1].Esquerda, 999);
}
