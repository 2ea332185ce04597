#include "ExampleMain.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char *programName = "";

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
    std::fprintf(stderr, "%s: cannot open a window on display \"%s\"; use --tour DIR instead\n", programName,
                 qgetenv("DISPLAY").constData());
    std::_Exit(EXIT_FAILURE);
}

// The offscreen platform remarks on each of the things that a window manager would do.
void dropPluginRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s: %s\n", programName, qPrintable(message));
}

int showUsage(const ExampleOption &option)
{
    QByteArray choices = "--tour DIR";
    if (option.name)
        choices.append(" | ").append(option.name).append(' ').append(option.argument);
    std::fprintf(stderr, "usage: %s [%s]\n", programName, choices.constData());
    return EXIT_FAILURE;
}

} // namespace

int runExample(int argc, char *argv[], const Example &example)
{
    programName = example.name;
    const ExampleOption &option = example.option;
    const auto isChosen = [&](const char *name) { return argc == 3 && std::strcmp(argv[1], name) == 0; };
    const bool wantsTour = isChosen("--tour");
    const bool wantsOption = option.name && isChosen(option.name);
    if (argc > 1 && !wantsTour && !wantsOption)
        return showUsage(option);

    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool unseen = platformShowsNothing(platform);
    if (unseen && platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool touring = wantsTour || unseen;
    if (touring && example.prepareTour && !example.prepareTour())
        return EXIT_FAILURE;

    qInstallMessageHandler(reportNoDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(touring ? dropPluginRemarks : nullptr);

    if (touring)
        return example.tour(wantsTour ? QString::fromLocal8Bit(argv[2])
                                      : QLatin1String(programName) + QStringLiteral("-tour"));
    if (wantsOption && !option.apply(QString::fromLocal8Bit(argv[2])))
        return EXIT_FAILURE;
    example.start();
    return EXIT_SUCCESS;
}
