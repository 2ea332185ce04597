#include "ExampleMain.h"
#include "Stockroom.h"
#include "Tour.h"

int main(int argc, char *argv[])
{
    return runExample(argc, argv,
                      {"stockroom", [] { theApp.InitInstance(); },
                       [](const QString &folder) { return Tour(folder).run(); }, Tour::useOwnSettings});
}
