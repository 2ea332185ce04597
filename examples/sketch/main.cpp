#include "ExampleMain.h"
#include "SketchApp.h"
#include "Tour.h"

int main(int argc, char *argv[])
{
    return runExample(
        argc, argv,
        {"sketch", [] { theApp.InitInstance(); }, [](const QString &folder) { return Tour(folder).run(); }});
}
