#include "SettingsApp.h"
#include "Tour.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

bool platformShowsNothing(const QByteArray &platform)
{
    if (platform.isEmpty())
        return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return platform.startsWith("offscreen") || platform.startsWith("minimal");
}

// Qt aborts with several lines when it cannot reach the display; a user needs one.
void reportNoDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtFatalMsg)
        return;
    std::fprintf(stderr, "settings: cannot open a window on display \"%s\"; use --tour DIR instead\n",
                 qgetenv("DISPLAY").constData());
    std::_Exit(EXIT_FAILURE);
}

// The offscreen platform remarks on each of the things that a window manager would do.
void dropPluginRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "settings: %s\n", qPrintable(message));
}

} // namespace

int main(int argc, char *argv[])
{
    const bool wantsTour = argc == 3 && std::strcmp(argv[1], "--tour") == 0;
    const bool wantsTexts = argc == 3 && std::strcmp(argv[1], "--texts") == 0;
    if (argc > 1 && !wantsTour && !wantsTexts) {
        std::fprintf(stderr, "usage: settings [--tour DIR | --texts LIBRARY]\n");
        return EXIT_FAILURE;
    }

    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool unseen = platformShowsNothing(platform);
    if (unseen && platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool touring = wantsTour || unseen;
    if (touring && !Tour::useOwnSettings())
        return EXIT_FAILURE;

    qInstallMessageHandler(reportNoDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(touring ? dropPluginRemarks : nullptr);

    if (touring)
        return Tour(wantsTour ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("settings-tour")).run();
    if (wantsTexts && !theApp.UseTextsOf(QString::fromLocal8Bit(argv[2]).toStdWString().c_str())) {
        std::fprintf(stderr, "settings: cannot load the texts in %s\n", argv[2]);
        return EXIT_FAILURE;
    }
    theApp.InitInstance();
    return EXIT_SUCCESS;
}
