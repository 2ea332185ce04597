// Loads the library named by the first argument, before or after it makes the application, and releases it
// again.
#include <QApplication>
#include <dlfcn.h>
#include <memory>
#include <string>

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    const std::string way = argv[2];
    std::unique_ptr<QApplication> application;
    if (way == "after")
        application = std::make_unique<QApplication>(argc, argv);
    void *library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    if (!library)
        return 1;
    if (way == "before")
        application = std::make_unique<QApplication>(argc, argv);
    // The library stays in memory, since the application still sends it events.
    if (dlclose(library) != 0 || !dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD))
        return 3;
    if (application)
        QCoreApplication::processEvents();
    return 0;
}
