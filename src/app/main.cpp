// Until the main window lands the editor's start shows the command-line tool's help.
#include <QApplication>
#include <QMessageBox>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMessageBox::information(nullptr, QStringLiteral("LumetaEdit 2.0"),
                             QStringLiteral("A janela do editor ainda não existe; use lumetaedit-cli."));
    return 0;
}
