#include "canvas/Metarquivos.h"

#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>
#include <memory>

extern "C" {
#include <libwmf/api.h>
#include <libwmf/svg.h>
}
#include <emf2svg.h>

namespace lumeta {

namespace {

// A picture larger than this is taken for a damaged size, not allocated.
constexpr qint64 MaximoPixels = qint64(8192) * 8192;

quint16 Le16(const QByteArray &d, int pos) { return quint16(uchar(d.at(pos)) | uchar(d.at(pos + 1)) << 8); }
quint32 Le32(const QByteArray &d, int pos) { return Le16(d, pos) | quint32(Le16(d, pos + 2)) << 16; }

QByteArray SvgDeWmf(const QByteArray &dados)
{
    wmfAPI *api = nullptr;
    wmfAPI_Options opcoes{};
    opcoes.function = wmf_svg_function;
    // The library's own complaints would reach the CLI's standard error.
    const unsigned long flags = WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;
    if (wmf_api_create(&api, flags, &opcoes) != wmf_E_None) {
        if (api)
            wmf_api_destroy(api);
        return {};
    }
    QByteArray copia = dados;  // the reader wants writable bytes
    QByteArray svg;
    wmfD_Rect caixa{};
    if (wmf_mem_open(api, reinterpret_cast<unsigned char *>(copia.data()), long(copia.size())) == wmf_E_None) {
        if (wmf_scan(api, 0, &caixa) == wmf_E_None) {
            wmf_svg_t *svgDados = WMF_SVG_GetData(api);
            svgDados->out = wmf_stream_create(api, nullptr);
            svgDados->Description = const_cast<char *>("LumetaEdit");
            svgDados->bbox = caixa;
            unsigned int largura = 0, altura = 0;
            wmf_display_size(api, &largura, &altura, 96, 96);
            svgDados->width = largura;
            svgDados->height = altura;
            const bool ok = svgDados->out && wmf_play(api, 0, &caixa) == wmf_E_None;
            char *texto = nullptr;
            unsigned long tamanho = 0;
            if (svgDados->out)
                wmf_stream_destroy(api, svgDados->out, &texto, &tamanho);
            // The text stays the library's: wmf_api_destroy frees it.
            if (ok && texto)
                svg = QByteArray(texto, qsizetype(tamanho));
        }
        wmf_mem_close(api);
    }
    wmf_api_destroy(api);
    return svg;
}

QByteArray SvgDeEmf(const QByteArray &dados)
{
    generatorOptions opcoes{};
    opcoes.nameSpace = const_cast<char *>("");
    opcoes.svgDelimiter = true;
    opcoes.emfplus = true;
    char *texto = nullptr;
    size_t tamanho = 0;
    QByteArray copia = dados;
    const int ok = emf2svg(copia.data(), size_t(copia.size()), &texto, &tamanho, &opcoes);
    QByteArray svg = ok && texto ? QByteArray(texto, qsizetype(tamanho)) : QByteArray();
    std::free(texto);
    return svg;
}

}  // namespace

TipoMetarquivo TipoDeMetarquivo(const QByteArray &dados)
{
    if (dados.size() >= 22 && Le32(dados, 0) == 0x9AC6CDD7u)
        return TipoMetarquivo::WMF;
    // A plain WMF: memory or disk type, a 9-word header, version 1 or 3.
    if (dados.size() >= 18 && (Le16(dados, 0) == 1 || Le16(dados, 0) == 2) && Le16(dados, 2) == 9
        && (Le16(dados, 4) == 0x0100 || Le16(dados, 4) == 0x0300))
        return TipoMetarquivo::WMF;
    if (dados.size() >= 88 && Le32(dados, 0) == 1 && Le32(dados, 40) == 0x464D4520u)
        return TipoMetarquivo::EMF;
    return TipoMetarquivo::Nenhum;
}

QImage LerMetarquivo(const QByteArray &dados)
{
    const TipoMetarquivo tipo = TipoDeMetarquivo(dados);
    if (tipo == TipoMetarquivo::Nenhum)
        return {};
    const QByteArray svg = tipo == TipoMetarquivo::WMF ? SvgDeWmf(dados) : SvgDeEmf(dados);
    if (svg.isEmpty())
        return {};
    QSvgRenderer desenho(svg);
    const QSize tamanho = desenho.defaultSize();
    if (!desenho.isValid() || tamanho.isEmpty() || qint64(tamanho.width()) * tamanho.height() > MaximoPixels)
        return {};
    QImage figura(tamanho, QImage::Format_RGB32);
    if (figura.isNull())
        return {};
    figura.fill(Qt::white);
    QPainter p(&figura);
    desenho.render(&p);
    return figura;
}

}  // namespace lumeta
