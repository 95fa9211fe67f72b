#include "canvas/AlturaBanda.h"
#include "canvas/Pintor.h"
#include "support/TestSupport.h"

#include <QHash>
#include <gtest/gtest.h>

using namespace lumeta;

namespace {

// Heights by text, and a record of what the band calculation asked for.
class MedidorFixo : public MedidorAltura {
public:
    QHash<QString, int> alturas;
    struct Pedido { QString fonte, texto; int largura; OpcoesTexto op; };
    QList<Pedido> pedidos;
    int Medir(const FonteItem &f, const QString &texto, int largura, int, const OpcoesTexto &op) override
    {
        pedidos.append({f.Nome, texto, largura, op});
        return alturas.value(texto, 15);
    }
};

Item ItemTexto(const char *texto, int largura = 64, uint8_t tipo = TipoTexto)
{
    return teste::NovoItem(tipo, QString::fromUtf8(texto), 0, largura);
}

}  // namespace

TEST(AlturaBanda, CasosDaAlturaAutomatica)
{
    MedidorFixo m;
    m.alturas = {{QStringLiteral("vinte"), 20}, {QStringLiteral("vinte e dois"), 22}};
    const auto altura = [&](QList<Item> itens) {
        Banda b;
        b.Itens = std::move(itens);
        return CalcularAlturaBanda(b, m);
    };
    // Pictures, barcodes and graph bars are never measured (any text measures 15 at least).
    EXPECT_EQ(altura({ItemTexto("\"a.bmp\"", 64, TipoFigura), ItemTexto("\"123\"", 64, TipoEAN13),
                      ItemTexto("\"5\"", 64, TipoBarraGrafico), ItemTexto("\"x\"", 64, TipoPDF417)}), 8);

    // A text item of 4 pixels or an empty one is skipped; 5 pixels counts.
    EXPECT_EQ(altura({ItemTexto("vinte", 4), ItemTexto("", 64)}), 8);
    EXPECT_EQ(altura({ItemTexto("vinte", 5)}), 24);

    // The running maximum already holds the 4 of the earlier item.
    EXPECT_EQ(altura({ItemTexto("vinte"), ItemTexto("vinte e dois")}), 24);
    EXPECT_EQ(altura({ItemTexto("vinte e dois"), ItemTexto("vinte")}), 26);
    // Commands are measured like text.
    EXPECT_EQ(altura({ItemTexto("vinte e dois", 64, TipoComando)}), 26);
}

TEST(AlturaBanda, OQueAMedicaoRecebe)
{
    MedidorFixo m;
    Banda b;
    Item it = ItemTexto("Pág. (%_pag_%)/(%_PGS_%) (%_07_%)", 100);
    it.Atributos = QStringLiteral("1111101110");  // centre, right, vcentre, bottom, single line, justify, no clip
    it.Fonte.Nome = QStringLiteral("Courier New");
    Item girado = ItemTexto("x", 80);
    girado.Atributos = QStringLiteral("0000018000");  // 270 degrees
    girado.Fonte.Tamanho = 0;                          // cannot be set: the previous font stays
    b.Itens = {it, girado};
    CalcularAlturaBanda(b, m);
    ASSERT_EQ(m.pedidos.size(), 2);
    EXPECT_EQ(m.pedidos[0].texto, QStringLiteral("Pág. 1/10 (%_07_%)"));
    EXPECT_EQ(m.pedidos[0].largura, 96);
    // Justify wins over centre and right; vertical placement is not measured,
    // nor is a turned text clipped.
    EXPECT_EQ(m.pedidos[0].op, (OpcoesTexto{.umaLinha = true, .recortar = false, .justificar = true}));
    EXPECT_EQ(m.pedidos[1].op, (OpcoesTexto{.recortar = false, .angulo = 270}));
    EXPECT_EQ(m.pedidos[0].fonte + m.pedidos[1].fonte, QStringLiteral("Courier NewCourier New"));
}

TEST(AlturaBanda, FontesReaisEORepintarGuardaAAlturaNegada)
{
    FontesCanvas fontes;
    MedidorFontes medidor(fontes);
    Banda banda;
    banda.Itens = {ItemTexto("Texto 1")};
    LayoutDocumento doc;
    doc.Bandas = QList<Banda>(4, banda);
    doc.banda(1).Altura = 0;                // automatic, never computed
    doc.banda(2).Altura = 30;
    doc.banda(3).Altura = -100;             // automatic, computed before with another text
    doc.banda(3).Itens[0].Texto = QStringLiteral("Texto Texto Texto");  // three lines in 60 pixels
    doc.banda(3).Itens[0].Atributos = QStringLiteral("0000010000");      // several lines
    doc.banda(4).Deslocamento = -9999;
    doc.banda(4).Altura = -1;
    doc.banda(4).Itens[0].Fonte.Tamanho = 12;

    const ResultadoAlturas r = AtualizarAlturas(doc, 3, medidor);
    EXPECT_TRUE(r.alturaMudou && r.selecionadaAutomatica);
    // Arial 10: one line of 15, plus 4; Arial 12: 17 + 4. Each band below the
    // height just computed; -9999: level with the band before.
    QList<int> alturasETopos;
    for (int b = 1; b <= 4; ++b)
        alturasETopos << doc.banda(b).Altura << doc.banda(b).Topo;
    EXPECT_EQ(alturasETopos, (QList<int>{-19, 16, 30, 35, -49, 65, -21, 65}));

    // Nothing changes on the next repaint.
    const LayoutDocumento antes = doc;
    const ResultadoAlturas r2 = AtualizarAlturas(doc, 2, medidor);
    EXPECT_FALSE(r2.alturaMudou || r2.selecionadaAutomatica);
    EXPECT_EQ(doc, antes);

    // Rotated text does not feed on the band's previous height: one word per
    // line against a zero height, however often it is repainted.
    doc.banda(1).Itens[0].Atributos = QStringLiteral("0000012000");
    doc.banda(1).Itens[0].Texto = QStringLiteral("Texto vertical");
    for (int i = 0; i < 4; ++i) {
        AtualizarAlturas(doc, 0, medidor);
        EXPECT_EQ(doc.banda(1).Altura, -34) << i;
    }

    // The items of the selected band are laid out again, the others are not.
    for (int b : {2, 3}) {
        doc.banda(b).Itens.append(ItemTexto("b", 10));
        doc.banda(b).Itens[1].Esquerda = 999;
    }
    AtualizarAlturas(doc, 2, medidor);
    EXPECT_EQ(doc.banda(2).Itens[1].Esquerda, 64);
    EXPECT_EQ(doc.banda(3).Itens[1].Esquerda, 999);
}
