#include "ExampleMain.h"
#include "GalleryApp.h"
#include "Tour.h"

int main(int argc, char *argv[])
{
    return runExample(
        argc, argv,
        {"gallery", [] { theApp.InitInstance(); }, [](const QString &folder) { return Tour(folder).run(); }});
}
