#pragma once
// What the painting fuzz targets share: an offscreen application and a count
// of Qt's messages, which a flood of (more than a few per input) is a finding.
#include <QGuiApplication>
#include <cstdlib>

namespace lumeta::fuzz {

inline int g_mensagens = 0;

inline void ConferirMensagens()
{
    if (g_mensagens > 16)
        std::abort();
}

}  // namespace lumeta::fuzz

// Each target is its own program and includes this once.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++lumeta::fuzz::g_mensagens; });
    return 0;
}
