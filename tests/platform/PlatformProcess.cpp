// Uses the platform library in the way that the argument names; the exit status tells whether it answered.
#include <KxPlatform.h>
#include <KxPlatformServices.h>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <cstring>
#include <string>

namespace {
// Destroyed after main(), as an application's static objects are.
struct LateBitmap
{
    HANDLE handle = nullptr;
    ~LateBitmap()
    {
        if (handle && !platformServices().gdiObjects().deleteObject(handle))
            std::_Exit(3);
    }
} g_lateBitmap;

bool useServices()
{
    KxPlatformServices &services = platformServices();
    std::wstring corrected;
    return services.gdiObjects().bitmapDevice(g_lateBitmap.handle) &&
           !services.image().image(g_lateBitmap.handle).isNull() &&
           services.pathCorrection().correct(L"/", corrected);
}

bool isDown(int virtualKey)
{
    return platformServices().keyboard().keyState(virtualKey) & 0x8000;
}

void sendKey(QEvent::Type type)
{
    QKeyEvent event(type, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
}

// One application: its keys are followed, and forgotten with it.
template <class Application> bool runApplication(int argc, char **argv)
{
    {
        Application application(argc, argv);
        if (isDown('A'))
            return false;
        sendKey(QEvent::KeyPress);
        if (!isDown('A') || !useServices())
            return false;
    }
    return !isDown('A');
}
} // namespace

int main(int argc, char **argv)
{
    const std::string way = argc > 1 ? argv[1] : "";
    g_lateBitmap.handle = platformServices().gdiObjects().createBitmap(0, 4, 4);
    if (way == "core")
        return runApplication<QCoreApplication>(argc, argv) ? 0 : 1;
    if (way == "gui")
        return runApplication<QGuiApplication>(argc, argv) ? 0 : 1;
    if (way == "widgets")
        return runApplication<QApplication>(argc, argv) ? 0 : 1;
    if (way == "one after the other")
        return runApplication<QApplication>(argc, argv) && runApplication<QApplication>(argc, argv) ? 0 : 1;
    if (way == "exit inside") {
        QApplication application(argc, argv);
        std::exit(useServices() ? 0 : 1);
    }
    if (way == "none")
        return useServices() && !isDown('A') && !isDown(VK_SHIFT) && !isDown(VK_LBUTTON) ? 0 : 1;
    return 2;
}
