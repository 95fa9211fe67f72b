#include "document/Desfazer.h"

namespace lumeta {

namespace {

int proxima(int n) { return n >= AnelDesfazer::NumPosicoes ? 1 : n + 1; }
int anterior(int n) { return n <= 1 ? AnelDesfazer::NumPosicoes : n - 1; }

}  // namespace

void AnelDesfazer::Gravar(const LayoutDocumento &doc, int bandaSelecionada, int itemSelecionado)
{
    PosicaoDesfazer = proxima(PosicaoDesfazer);
    if (PosicaoDesfazer == InicioDesfazer)
        InicioDesfazer = proxima(InicioDesfazer);
    FimRefazer = PosicaoDesfazer;
    InstantaneoDesfazer &s = m_slots[size_t(PosicaoDesfazer - 1)];
    s.NumBandas = int16_t(doc.NumBandas());
    s.BandaSelecionada = int16_t(bandaSelecionada);
    s.ItemSelecionado = int16_t(itemSelecionado);
    s.BandaCabecalho = doc.BandaCabecalho;
    s.BandaRodape = doc.BandaRodape;
    s.Bandas = doc.Bandas;
    s.Quebras = doc.Quebras;
}

namespace {

void Restaurar(const InstantaneoDesfazer &s, LayoutDocumento &doc, int &bandaSelecionada, int &itemSelecionado)
{
    doc.Bandas = s.Bandas;
    doc.BandaCabecalho = s.BandaCabecalho;
    doc.BandaRodape = s.BandaRodape;
    doc.Quebras = s.Quebras;
    bandaSelecionada = s.BandaSelecionada;
    itemSelecionado = s.ItemSelecionado;
}

}  // namespace

void AnelDesfazer::Voltar(LayoutDocumento &doc, int &bandaSelecionada, int &itemSelecionado)
{
    PosicaoDesfazer = anterior(PosicaoDesfazer);
    Restaurar(m_slots[size_t(PosicaoDesfazer - 1)], doc, bandaSelecionada, itemSelecionado);
}

void AnelDesfazer::Avancar(LayoutDocumento &doc, int &bandaSelecionada, int &itemSelecionado)
{
    PosicaoDesfazer = proxima(PosicaoDesfazer);
    Restaurar(m_slots[size_t(PosicaoDesfazer - 1)], doc, bandaSelecionada, itemSelecionado);
}

}  // namespace lumeta
