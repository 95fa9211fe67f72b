#pragma once
// A session on a layout built by hand for the editing tests: a scripted
// user, the exchange file in a temporary folder, and counters of the
// window hooks that the commands call.

#include "editing/Selecao.h"
#include "editing/SessaoEdicao.h"
#include "support/InterfaceRoteirizada.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <initializer_list>

namespace lumeta::teste {

class SessaoMontada : public ::testing::Test {
protected:
    SessaoMontada()
    {
        s.Ui = &ui;
        s.ArquivoTransferencia = pasta.filePath(QStringLiteral("~TMP_LumetaEdit.clp"));
        s.Ganchos.Pintar = [this](const ResultadoRepintura &) { ++pinturas; };
        s.Ganchos.DigitarTexto = [this](const QString &t) { digitado += t; };
    }

    // One band per list, each item of the given width; bands 18 high, items
    // named "b.i"; laid out, repainted and the undo ring restarted.
    void Montar(std::initializer_list<std::initializer_list<int>> bandas)
    {
        LayoutDocumento &d = s.Documento;
        d.Bandas.clear();
        for (const auto &larguras : bandas) {
            Banda banda;
            banda.Altura = 18;
            for (int w : larguras) {
                Item it;
                it.Largura = w;
                it.Texto = QStringLiteral("%1.%2").arg(d.Bandas.size() + 1).arg(banda.Itens.size() + 1);
                banda.Itens.append(it);
            }
            d.Bandas.append(banda);
        }
        Reposicionar();
        Selecionar(1, 0);
        s.Faixa = FaixaSelecao();
        s.Desfazer.PosicaoDesfazer = AnelDesfazer::NumPosicoes;
        s.ExibirBanda();
        s.Desfazer.InicioDesfazer = 1;
        pinturas = 0;
    }
    void Reposicionar()
    {
        for (int b = 1; b <= s.Documento.NumBandas(); ++b)
            s.Documento.ReposicionarItem(b);
        s.Documento.ReposicionarBanda();
    }
    void Selecionar(int banda, int item)
    {
        s.BandaSelecionada = banda;
        s.ItemSelecionado = item;
    }
    std::pair<int, int> Selecionado() const { return {s.BandaSelecionada, s.ItemSelecionado}; }
    // A click on one point, then a Shift+click on another: the range between.
    void CliqueEShiftClique(int x1, int y1, int x2, int y2)
    {
        MouseDownCanvas(s, x1, y1, BotaoMouse::Esquerdo, false);
        MouseDownCanvas(s, x2, y2, BotaoMouse::Esquerdo, true);
    }
    const Banda &B(int n) const { return s.Documento.banda(n); }
    const Item &I(int banda, int item) const { return s.Documento.banda(banda).Itens[item - 1]; }
    // A band's items or the bands, one field each, to read a layout at a glance.
    template <typename F> auto DosItens(int banda, F campo) const
    {
        QList<decltype(campo(B(banda).Itens[0]))> r;
        for (const Item &it : B(banda).Itens)
            r << campo(it);
        return r;
    }
    template <typename F> auto DasBandas(F campo) const
    {
        QList<decltype(campo(B(1)))> r;
        for (const Banda &b : s.Documento.Bandas)
            r << campo(b);
        return r;
    }
    QStringList Textos(int banda) const { return DosItens(banda, [](const Item &i) { return i.Texto; }); }
    QList<int32_t> Larguras(int banda) const { return DosItens(banda, [](const Item &i) { return i.Largura; }); }
    QList<int32_t> Alturas() const { return DasBandas([](const Banda &b) { return b.Altura; }); }
    QList<int32_t> Topos() const { return DasBandas([](const Banda &b) { return b.Topo; }); }
    QStringList PrimeirosTextos() const { return DasBandas([](const Banda &b) { return b.Itens.first().Texto; }); }

    QTemporaryDir pasta;
    InterfaceRoteirizada ui;
    SessaoEdicao s;
    int pinturas = 0;
    QString digitado;
};

}  // namespace lumeta::teste
