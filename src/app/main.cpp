// The editor: one main window on the document named on the command line, or
// on a new one.
#include "app/gui/AvisosQt.h"
#include "app/gui/frmLumetaEdit.h"
#include "controls/ui/InterfaceUsuarioQt.h"
#include "document/ArquivoDisco.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

int main(int argc, char **argv)
{
    lumeta::InstalarLimiteAvisos();
    QApplication app(argc, argv);
    QApplication::setApplicationName(lumeta::TituloAplicacao);
    QApplication::setOrganizationName(lumeta::OrganizacaoConfig);
    QApplication::setDesktopFileName(QStringLiteral("lumetaedit"));
    // Without the translations Qt's dialogs speak English; the editor still works.
    lumeta::CarregarTraducoesQt(app);
    lumeta::frmLumetaEdit janela;
    // The arguments as the system gave them: a file name need not be UTF-8.
    QStringList argumentos;
    for (int i = 1; i < argc; ++i)
        argumentos << lumeta::NomeDoSistema(argv[i]);
    if (!janela.Iniciar(argumentos))
        return 1;
    // A window as large as a laptop screen allows, centred on larger ones.
    if (const QScreen *tela = janela.screen()) {
        const QRect area = tela->availableGeometry();
        const QSize tamanho = area.size().boundedTo(QSize(1280, 860));
        janela.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, tamanho, area));
    }
    janela.show();
    return QApplication::exec();
}
