#include "ExampleMain.h"
#include "SettingsApp.h"
#include "Tour.h"

#include <cstdio>

static bool useTextsOf(const QString &library)
{
    if (theApp.UseTextsOf(library.toStdWString().c_str()))
        return true;
    std::fprintf(stderr, "settings: cannot load the texts in %s\n", qPrintable(library));
    return false;
}

int main(int argc, char *argv[])
{
    return runExample(argc, argv,
                      {"settings",
                       [] { theApp.InitInstance(); },
                       [](const QString &folder) { return Tour(folder).run(); },
                       Tour::useOwnSettings,
                       {"--texts", "LIBRARY", useTextsOf}});
}
