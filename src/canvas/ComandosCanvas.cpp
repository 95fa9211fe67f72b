#include "canvas/ComandosCanvas.h"

#include <cstdlib>

namespace lumeta {

namespace {

QString Informar(SessaoEditor &s, const QString &texto)
{
    if (s.Ui)
        s.Ui->Mensagem(texto, TituloRodape, Icone::Informacao);
    return texto;
}

}  // namespace

void mnuEditarBandaAuto(SessaoEditor &sessao, const QList<int> &faixa)
{
    LayoutDocumento &doc = sessao.Documento;
    const QList<int> bandas = faixa.isEmpty() ? QList<int>{sessao.BandaSelecionada} : faixa;
    for (int n : bandas) {
        if (n < 1 || n > doc.NumBandas())
            continue;
        Banda &b = doc.banda(n);
        b.Altura = b.Altura >= 1 ? 0 : Magnitude(b.Altura);
    }
}

QString LegendaBandaAuto(const Banda &banda)
{
    return banda.Altura >= 1 ? QStringLiteral("Alt&ura automática") : QStringLiteral("Alt&ura manual");
}

bool mnuEditarBandaPagina(SessaoEditor &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    const int n = sessao.BandaSelecionada;
    if (!BandaPaginaHabilitada(n) || n > doc.NumBandas())
        return false;
    if (doc.QuebraPaginaSeek(n))
        doc.QuebraPaginaRemove(n);
    else
        doc.QuebraPaginaAdd(n);
    return true;
}

QString LegendaBandaPagina(const LayoutDocumento &doc, int banda)
{
    return doc.QuebraPaginaSeek(banda) ? QStringLiteral("Remover a &Quebra de Página")
                                       : QStringLiteral("&Quebrar a Página");
}

QString mnuConfigQuebraPagina(SessaoEditor &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    if (!doc.QuebraPaginaFinal && doc.BandaRodape != 0)
        return Informar(sessao, MensagemQuebraFinalComRodape);
    doc.QuebraPaginaFinal = !doc.QuebraPaginaFinal;
    sessao.Alterado = true;
    return QString();
}

QString VerificarRodapeQuebraFinal(SessaoEditor &sessao)
{
    LayoutDocumento &doc = sessao.Documento;
    if (!doc.QuebraPaginaFinal || doc.BandaRodape == 0)
        return QString();
    const QString texto = Informar(sessao, MensagemQuebraFinalRemovida);
    doc.QuebraPaginaFinal = false;
    sessao.Alterado = true;
    return texto;
}

}  // namespace lumeta
