#pragma once
// What the painting fuzz targets share: an offscreen application and a count
// of Qt's messages, which a flood of (more than a few per input) is a finding.
#include <QGuiApplication>

namespace lumeta::fuzz {

inline int g_mensagens = 0;

inline void Iniciar(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++g_mensagens; });
}

}  // namespace lumeta::fuzz
