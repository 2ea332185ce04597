#include "HiddenAddress.h"
#include "KxDeviceContext.h"

#include <KxPlatformServices.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <climits>
#include <optional>
#include <type_traits>

namespace {
KxGdiObjectService &gdi()
{
    return platformServices().gdiObjects();
}

// Notes what the classes ask of the GDI object service.
class RecordingService : public KxPlatformServices, public KxGdiObjectService
{
public:
    RecordingService() { setPlatformServices(this); }
    ~RecordingService() override { setPlatformServices(nullptr); }

    KxKeyboardService &keyboard() override { return m_builtIn.keyboard(); }
    KxImageService &image() override { return m_builtIn.image(); }
    KxGdiObjectService &gdiObjects() override { return *this; }
    KxPathCorrectionService &pathCorrection() override { return m_builtIn.pathCorrection(); }

    QPaintDevice *bitmapDevice(HANDLE) override { return nullptr; }
    QImage bitmapImage(HANDLE) override { return QImage(); }
    std::optional<COLORREF> brushColor(HANDLE) override { return std::nullopt; }
    HANDLE createBitmap(UINT flags, int width, int height) override
    {
        calls << QStringLiteral("bitmap %1 %2 %3").arg(flags).arg(width).arg(height);
        return objectAt<void>(0x6000);
    }
    HANDLE createSolidBrush(COLORREF color) override
    {
        calls << QStringLiteral("brush %1").arg(color);
        return objectAt<void>(0x7000);
    }
    int deleteObject(HANDLE handle) override
    {
        calls << QStringLiteral("delete %1").arg(quintptr(handle));
        return 77;
    }

    QStringList calls;

private:
    KxPlatformServices &m_builtIn = platformServices();
};
} // namespace

static_assert(sizeof(CGdiObject) == sizeof(void *));
static_assert(sizeof(CBitmap) == sizeof(void *) && std::is_base_of_v<CGdiObject, CBitmap>);
static_assert(sizeof(CBrush) == sizeof(void *) && std::is_base_of_v<CGdiObject, CBrush>);
static_assert(sizeof(CFont) == sizeof(void *) && std::is_base_of_v<CGdiObject, CFont>);

class tst_GdiObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attachAndDetach();
    void attachAndDetachBitmap();
    void handleOfANullObject();
    void compatibleBitmap();
    void compatibleBitmapOfBadSize_data();
    void compatibleBitmapOfBadSize();
    void compatibleBitmapLeavesTheFormer();
    void loadBitmap();
    void deleteBitmap();
    void deleteBitmapInUse();
    void brushes();
    void asksTheService();
    void fixedResults();
};

void tst_GdiObjects::attachAndDetach()
{
    CGdiObject object;
    QVERIFY(!object.m_hObject);
    QVERIFY(!object.GetSafeHandle());
    void *handle = objectAt<void>(0x5000);
    QCOMPARE(object.Attach(handle), true);
    QCOMPARE(object.m_hObject, handle);
    QCOMPARE(static_cast<void *>(object), handle);
    QCOMPARE(object.GetSafeHandle(), handle);
    QCOMPARE(object.Detach(), handle);
    QVERIFY(!object.m_hObject);
    QVERIFY(!object.Detach());
    QCOMPARE(object.Attach(nullptr), true);
}

void tst_GdiObjects::attachAndDetachBitmap()
{
    CBitmap bitmap;
    QVERIFY(!HBITMAP(bitmap));
    auto *handle = objectAt<HBITMAP__>(0x5000);
    QCOMPARE(bitmap.Attach(handle), true);
    QCOMPARE(HBITMAP(bitmap), handle);
    QCOMPARE(bitmap.m_hObject, static_cast<void *>(handle));
    QCOMPARE(bitmap.Detach(), handle);
    QVERIFY(!bitmap.m_hObject);
}

void tst_GdiObjects::handleOfANullObject()
{
    QVERIFY(!objectAt<CGdiObject>(0)->GetSafeHandle());
    QVERIFY(!objectAt<CBitmap>(0)->GetSafeHandle());
}

void tst_GdiObjects::compatibleBitmap()
{
    CBitmap bitmap;
    QCOMPARE(bitmap.CreateCompatibleBitmap(nullptr, 30, 20), true);
    QVERIFY(bitmap.m_hObject);
    QCOMPARE(gdi().bitmapImage(bitmap).size(), QSize(30, 20));
    QVERIFY(bitmap.DeleteObject());
}

void tst_GdiObjects::compatibleBitmapOfBadSize_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("no width") << 0 << 5;
    QTest::newRow("no height") << 5 << 0;
    QTest::newRow("negative") << -1 << -1;
    QTest::newRow("too large") << INT_MAX << INT_MAX;
}

void tst_GdiObjects::compatibleBitmapOfBadSize()
{
    QFETCH(int, width);
    QFETCH(int, height);
    CBitmap bitmap;
    bitmap.m_hObject = objectAt<void>(0x5000);
    CDC dc;
    QCOMPARE(bitmap.CreateCompatibleBitmap(&dc, width, height), false);
    QVERIFY(!bitmap.m_hObject);
}

void tst_GdiObjects::compatibleBitmapLeavesTheFormer()
{
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 3, 3);
    const HBITMAP former = bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 4, 4);
    QCOMPARE(gdi().bitmapImage(former).size(), QSize(3, 3));
    QVERIFY(gdi().deleteObject(former));
    QVERIFY(bitmap.DeleteObject());
}

void tst_GdiObjects::loadBitmap()
{
    CBitmap bitmap;
    bitmap.m_hObject = objectAt<void>(0x5000);
    QCOMPARE(bitmap.LoadBitmapW(4711), true);
    QVERIFY(!bitmap.m_hObject);
    QCOMPARE(bitmap.LoadBitmapW(0), true);
}

void tst_GdiObjects::deleteBitmap()
{
    CBitmap bitmap;
    QCOMPARE(bitmap.DeleteObject(), 0);
    bitmap.CreateCompatibleBitmap(nullptr, 3, 3);
    const HBITMAP handle = bitmap;
    QVERIFY(bitmap.DeleteObject() != 0);
    QCOMPARE(HBITMAP(bitmap), handle);
    QVERIFY(gdi().bitmapImage(handle).isNull());
    QCOMPARE(bitmap.DeleteObject(), 0);
    for (const UINT beyond : {0x10000U, 0xFFFFFFFFU}) {
        QCOMPARE(bitmap.LoadBitmapW(beyond), true);
        QCOMPARE(HBITMAP(bitmap), nullptr);
    }
}

void tst_GdiObjects::deleteBitmapInUse()
{
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 3, 3);
    CDC dc;
    dc.SelectObject(&bitmap);
    KxQtPainterWrapper *painter = reinterpret_cast<KxQtPaintDeviceWrapper *>(HDC(dc))->painter();
    painter->beginDraw();
    QCOMPARE(bitmap.DeleteObject(), 0);
    QVERIFY(!gdi().bitmapImage(bitmap).isNull());
    painter->endDraw();
    QVERIFY(bitmap.DeleteObject() != 0);
}

void tst_GdiObjects::brushes()
{
    QVERIFY(!CBrush().m_hObject);
    const CBrush brush(0x12345678);
    QVERIFY(brush.m_hObject);
    QCOMPARE(gdi().brushColor(brush).value(), 0x12345678U);
    gdi().deleteObject(brush);
}

void tst_GdiObjects::asksTheService()
{
    RecordingService service;
    CDC dc;
    CBitmap bitmap;
    QCOMPARE(bitmap.CreateCompatibleBitmap(&dc, 7, -8), true);
    QCOMPARE(bitmap.m_hObject, objectAt<void>(0x6000));
    QCOMPARE(CBrush(99).m_hObject, objectAt<void>(0x7000));
    QCOMPARE(bitmap.DeleteObject(), 77);
    QCOMPARE(bitmap.m_hObject, objectAt<void>(0x6000));
    QCOMPARE(service.calls, (QStringList{QStringLiteral("bitmap 0 7 -8"), QStringLiteral("brush 99"),
                                         QStringLiteral("delete %1").arg(0x6000)}));
}

void tst_GdiObjects::fixedResults()
{
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(nullptr, 3, 3);
    CGdiObject &object = bitmap;
    unsigned char record[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    QCOMPARE(object.DeleteObject(), true);
    QCOMPARE(object.GetObjectW(sizeof record, record), 0);
    QCOMPARE(bitmap.GetObjectW(0, nullptr), 0);
    QVERIFY(record[0] == 1 && record[7] == 8);
    QVERIFY(!CGdiObject::FromHandle(bitmap.m_hObject));
    QCOMPARE(bitmap.Add(&bitmap, 1), 0);
    QVERIFY(!gdi().bitmapImage(bitmap).isNull());
    QVERIFY(bitmap.DeleteObject());

    CFont font;
    QVERIFY(!CFont::FromHandle(objectAt<HFONT__>(0x5000)));
    QCOMPARE(font.CreateFontW(-12, 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 0, 0, L"DejaVu Sans"), true);
    QVERIFY(!font.m_hObject);
    QCOMPARE(font.DeleteObject(), true);
}

QTEST_GUILESS_MAIN(tst_GdiObjects)
#include "tst_GdiObjects.moc"
