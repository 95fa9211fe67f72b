#pragma once
// The undo ring: thirteen snapshots of the band structure, filled by the
// repaint that ends every editing command. Page options are not part of a
// snapshot, so undo never takes back a landscape or e-mail change.

#include "document/Layout.h"

#include <array>

namespace lumeta {

struct InstantaneoDesfazer {
    int16_t NumBandas = 0;
    int16_t BandaSelecionada = 0;
    int16_t ItemSelecionado = 0;
    int32_t BandaCabecalho = 0;
    int32_t BandaRodape = 0;
    QList<Banda> Bandas;
    QList<int16_t> Quebras;
};

class AnelDesfazer {
public:
    static constexpr int NumPosicoes = 13;

    int PosicaoDesfazer = 1;   // slot of the current state
    int InicioDesfazer = 1;    // oldest slot still held
    int FimRefazer = 1;        // newest slot an undo stepped back from
    bool SemInstantaneo = false;

    // Advances the current slot (dropping the oldest when the ring is full)
    // and copies the state into it; what undo had stepped back from is gone.
    void Gravar(const LayoutDocumento &doc, int bandaSelecionada, int itemSelecionado);
    // Whether there is a state before the current one.
    bool PodeDesfazer() const { return PosicaoDesfazer != InicioDesfazer; }
    // Steps back one slot and copies that state into the document and the
    // selection. The caller repaints without a snapshot.
    void Voltar(LayoutDocumento &doc, int &bandaSelecionada, int &itemSelecionado);

    // Whether an undo can be taken back: no edit came after it.
    bool PodeRefazer() const { return PosicaoDesfazer != FimRefazer; }
    // Steps forward one slot and copies that state, like Voltar.
    void Avancar(LayoutDocumento &doc, int &bandaSelecionada, int &itemSelecionado);
    const InstantaneoDesfazer &Posicao(int n) const { return m_slots[size_t(n - 1)]; }

private:
    std::array<InstantaneoDesfazer, NumPosicoes> m_slots;
};

}  // namespace lumeta
