#pragma once
// The main window holding the 2,000 bands x 10 items layout, band 1,000
// selected, offscreen; shared by the window's benchmarks.
#include "Amostras.h"
#include "app/gui/frmLumetaEdit.h"

#include <QApplication>
#include <algorithm>
#include <vector>

namespace lumeta::bench {

struct JanelaGrande {
    frmLumetaEdit janela;

    JanelaGrande()
    {
        janela.resize(1280, 860);
        janela.show();
        janela.Sessao().Canvas.TamanhoInicial(1120);
        janela.Sessao().Documento = LayoutGrande(2000, 10);
        janela.Sessao().BandaSelecionada = 1000;
        janela.Sessao().ItemSelecionado = 1;
        janela.Sessao().ConcluirEdicao();
        QApplication::processEvents();
    }
};

// A stray slow cycle (a font cache filling, the machine busy) moves the mean;
// the median is what a user feels on every click.
inline double Mediana(std::vector<double> v)
{
    std::nth_element(v.begin(), v.begin() + v.size() / 2, v.end());
    return v[v.size() / 2];
}

}  // namespace lumeta::bench
