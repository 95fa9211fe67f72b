#pragma once
// The real main window on a configuration of its own, shown and active, with
// the scripted user interface in place of message boxes and file dialogs.

#include "app/gui/frmLumetaEdit.h"
#include "support/ConfigTemporaria.h"
#include "support/InterfaceRoteirizada.h"

#include <QAction>
#include <QTest>
#include <gtest/gtest.h>

namespace lumeta::teste {

struct JanelaTeste {
    ConfigTemporaria cfg;
    InterfaceRoteirizada ui;
    frmLumetaEdit janela{&ui};
    SessaoEdicao &s = janela.Sessao();
    bool iniciado;

    explicit JanelaTeste(QSize tamanho = {1000, 700}, const QStringList &argumentos = {})
        : iniciado(janela.Iniciar(argumentos))
    {
        janela.resize(tamanho);
        janela.show();
        janela.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
    }
    QAction *acao(const char *nome) const { return janela.Acao(QString::fromLatin1(nome)); }
};

}  // namespace lumeta::teste
