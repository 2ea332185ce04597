#include "stdafx.h"
#include "Converter.h"
#include "ExampleMain.h"
#include "Tour.h"

int main(int argc, char *argv[])
{
    g_pWinApp = &theApp;
    return runExample(argc, argv,
                      {"converter", [] { theApp.InitInstance(); },
                       [](const QString &folder) { return Tour(folder).run(); }, Tour::useOwnSettings});
}
