#include <KxPlatformServices.h>
#include <QImage>
#include <QtTest>

namespace {
class FixedKeyboard final : public KxKeyboardService
{
public:
    int keyState(int virtualKey) override { return virtualKey + 1; }
};

// Other services that keep the rest of the built-in ones.
class OtherServices final : public KxPlatformServices
{
public:
    explicit OtherServices(KxPlatformServices &builtIn)
        : m_builtIn(builtIn)
    {
    }
    KxKeyboardService &keyboard() override { return m_keyboard; }
    KxImageService &image() override { return m_builtIn.image(); }
    KxGdiObjectService &gdiObjects() override { return m_builtIn.gdiObjects(); }
    KxPathCorrectionService &pathCorrection() override { return m_builtIn.pathCorrection(); }

private:
    KxPlatformServices &m_builtIn;
    FixedKeyboard m_keyboard;
};
} // namespace

class tst_PlatformServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setPlatformServices(nullptr); }
    void builtInServicesAreTheSameEachTime();
    void installsOtherServices();
    void restoresBuiltInServicesWithTheirObjects();
};

void tst_PlatformServices::builtInServicesAreTheSameEachTime()
{
    KxPlatformServices &services = platformServices();
    QCOMPARE(&platformServices(), &services);
    QCOMPARE(&services.keyboard(), &services.keyboard());
    QCOMPARE(&services.image(), &services.image());
    QCOMPARE(&services.gdiObjects(), &services.gdiObjects());
    QCOMPARE(&services.pathCorrection(), &services.pathCorrection());
}

void tst_PlatformServices::installsOtherServices()
{
    OtherServices other(platformServices());
    setPlatformServices(&other);
    QCOMPARE(&platformServices(), &other);
    QCOMPARE(platformServices().keyboard().keyState(0x41), 0x42);
}

void tst_PlatformServices::restoresBuiltInServicesWithTheirObjects()
{
    KxPlatformServices &builtIn = platformServices();
    HANDLE brush = builtIn.gdiObjects().createSolidBrush(0x123456);
    OtherServices other(builtIn);
    setPlatformServices(&other);
    setPlatformServices(nullptr);
    QCOMPARE(&platformServices(), &builtIn);
    QCOMPARE(platformServices().gdiObjects().brushColor(brush), std::optional<COLORREF>(0x123456));
    QVERIFY(platformServices().gdiObjects().deleteObject(brush));
}

QTEST_MAIN(tst_PlatformServices)
#include "tst_PlatformServices.moc"
