#pragma once
// The layout model: one document of page options and an ordered list of bands,
// each band an ordered row of items. Field order and widths are those of the
// .lmt file, which is a dump of these records.

#include <QList>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <limits>

namespace lumeta {

// Positions are sums of stored widths, heights and displacements, any of
// which a hand-made or damaged file may set near the ends of the 32-bit
// range: such sums stop at those ends instead of wrapping round.
inline int32_t Limitar32(int64_t v)
{
    return int32_t(std::clamp<int64_t>(v, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()));
}
// The extent of a height that may be stored negated (automatic), |INT32_MIN| included.
inline int32_t Magnitude(int32_t v) { return Limitar32(v < 0 ? -int64_t(v) : int64_t(v)); }

// What the file can hold: its counts are 16-bit signed and a text's length
// is 16-bit unsigned, in bytes of Windows-1252 (one per character).
inline constexpr int MaximoBandas = 32767;
inline constexpr int MaximoItens = 32767;
inline constexpr qsizetype MaximoTexto = 65535;

// Item type codes as stored in Item::Tipo.
enum TipoItem : uint8_t {
    TipoTexto = 0,
    TipoFigura = 1,
    TipoComando = 2,
    TipoEAN13 = 31,
    TipoEAN8 = 32,
    TipoCode39Check = 33,
    TipoCode128C = 34,
    TipoInterlace25 = 35,
    TipoCode39 = 36,
    TipoInterlace25SemNumeros = 37,
    TipoInterlace25NumerosTopo = 38,
    TipoCode128B = 39,
    TipoBarraGrafico = 60,
    TipoPDF417 = 80,
};

inline bool EhCodigoBarras(int tipo) { return (tipo >= 31 && tipo <= 39) || tipo == TipoPDF417; }

// Transparent background.
constexpr uint8_t CorTransparente = 99;

struct FonteItem {
    QString Nome = QStringLiteral("Arial");
    int16_t Tamanho = 10;
    bool Negrito = false;
    bool Italico = false;
    bool Sublinhado = false;
    bool Tachado = false;

    bool operator==(const FonteItem &) const = default;
};

struct Item {
    QString Texto;
    FonteItem Fonte;
    int32_t Esquerda = 0;
    int32_t Largura = 64;
    QString Linhas = QStringLiteral("0000000000");     // always 10 characters
    QString Atributos = QStringLiteral("0000100010");  // always 10 characters
    uint8_t CorTexto = 0;
    uint8_t CorFundo = CorTransparente;
    uint8_t CorLinha = 0;
    uint8_t Espessura = 1;
    uint8_t Tipo = TipoTexto;

    bool operator==(const Item &) const = default;
};

struct Banda {
    int32_t Topo = 0;
    int32_t Altura = 18;        // below 1: automatic height; the magnitude is what is laid out
    int32_t Deslocamento = 0;
    QString Comentario;          // code before and after the band, split by U+00FF
    QList<Item> Itens;           // NumItens is Itens.size()

    int NumItens() const { return int(Itens.size()); }
    bool operator==(const Banda &) const = default;
};

struct LayoutDocumento {
    QList<Banda> Bandas;         // NumBandas is Bandas.size()
    bool Paisagem = false;
    bool Imprimir = false;
    bool Visivel = false;
    QString NomeImpressora;
    bool QuebraPaginaFinal = false;
    int16_t QualidadeJPG = 92;
    int16_t TipoEmail = 1;
    QString TextoEmail;
    int32_t BandaCabecalho = 0;
    QString MargemEsquerda = QStringLiteral("\"0\"");
    QString MargemSuperior = QStringLiteral("\"0\"");
    int32_t BandaRodape = 0;
    QList<int16_t> Quebras;      // NumQuebras is Quebras.size(); order carries no meaning
    bool TemCapa = false;
    bool EnviarEmail = false;
    QString MargemInferior = QStringLiteral("\"0\"");

    int NumBandas() const { return int(Bandas.size()); }
    bool operator==(const LayoutDocumento &) const = default;

    // Band numbers are 1-based, as everywhere in the editor.
    Banda &banda(int n) { return Bandas[n - 1]; }
    const Banda &banda(int n) const { return Bandas[n - 1]; }

    bool QuebraPaginaSeek(int banda) const;
    void QuebraPaginaAdd(int banda);
    void QuebraPaginaRemove(int banda);

    void ReposicionarItem(int banda);
    void ReposicionarBanda();
    // Every band's items and then the bands: what stored positions mean once
    // a file is read, since the file's own may be stale.
    void ReposicionarTudo();
};

// Window and product names shared by the captions, messages and file header.
inline const QString TituloAplicacao = QStringLiteral("LumetaEdit 2.0");
inline const QString NomeProduto = QStringLiteral("LumetaEdit 2.0 - Editor de Layout do Lumeta");

// "2.0.<minor digit>.<revision>" as the refusal of a newer file shows it.
QString VersaoCompleta();

}  // namespace lumeta
