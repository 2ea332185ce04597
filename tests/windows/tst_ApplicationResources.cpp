#include "KxMFCWrapper.h"
#include "OpenBox.h"
#include "WindowHandle.h"
#include "resource.h"

#include <KxPlatform.h>
#include <KxPlatformServices.h>
#include <QtTest>
#include <QtWidgets>

/// What a ported program does with the resources of its own .rc file and of a satellite library.
class tst_ApplicationResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void stringOfProgram();
    void longStringIsCut();
    void stringOfSatellite();
    void releasedSatellite();
    void messageBox_data();
    void messageBox();
    void buttonImage();
    void tabText();
    void bitmapOfProgram();
};

static HINSTANCE loadSatellite()
{
    return AfxLoadLibrary(QStringLiteral(KX_SATELLITE).toStdWString().c_str());
}

static QString load(UINT id)
{
    CString text(L"former");
    const bool loaded = text.LoadStringW(id);
    return loaded ? QString::fromStdWString(text) : QStringLiteral("none, ") + QString::fromStdWString(text);
}

void tst_ApplicationResources::initTestCase()
{
    SetThreadUILanguage(0x0409);
}

void tst_ApplicationResources::cleanup()
{
    AfxSetResourceHandle(nullptr);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ApplicationResources::stringOfProgram()
{
    QCOMPARE(load(IDS_GREETING), QStringLiteral("Hello"));
    QCOMPARE(load(9999), QStringLiteral("none, "));
    CString text;
    QVERIFY(text.LoadStringW(IDS_NUL));
    QCOMPARE(QString::fromStdWString(text), QStringLiteral("a"));
}

void tst_ApplicationResources::longStringIsCut()
{
    CString text;
    QVERIFY(text.LoadStringW(IDS_LONG));
    QCOMPARE(text.GetLength(), 1023);
}

void tst_ApplicationResources::stringOfSatellite()
{
    const HINSTANCE satellite = loadSatellite();
    QVERIFY(satellite);
    CString text;
    QVERIFY(text.LoadStringW(satellite, IDS_GREETING));
    QCOMPARE(QString::fromStdWString(text), QStringLiteral("from the satellite"));
    QCOMPARE(load(IDS_GREETING), QStringLiteral("Hello"));

    AfxSetResourceHandle(satellite);
    QCOMPARE(load(IDS_GREETING), QStringLiteral("from the satellite"));
    QCOMPARE(load(IDS_QUOTED), QStringLiteral("none, "));
    AfxSetResourceHandle(nullptr);
    QCOMPARE(load(IDS_QUOTED), QStringLiteral("say \"hi\" twice"));
    QVERIFY(AfxFreeLibrary(satellite));
}

void tst_ApplicationResources::releasedSatellite()
{
    const HINSTANCE satellite = loadSatellite();
    AfxSetResourceHandle(satellite);
    QCOMPARE(load(IDS_GREETING), QStringLiteral("from the satellite"));
    QVERIFY(AfxFreeLibrary(satellite));
    QCOMPARE(load(IDS_GREETING), QStringLiteral("none, "));
    QVERIFY(!AfxFreeLibrary(satellite));
    AfxSetResourceHandle(nullptr);
    QCOMPARE(load(IDS_GREETING), QStringLiteral("Hello"));
}

void tst_ApplicationResources::messageBox_data()
{
    QTest::addColumn<UINT>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("known") << UINT(IDS_GREETING) << QStringLiteral("Hello");
    QTest::newRow("unknown") << UINT(9999) << QString();
}

void tst_ApplicationResources::messageBox()
{
    QFETCH(UINT, id);
    QFETCH(QString, text);

    Seen seen;
    const ModalDriver driver(lookAndLeave(seen));
    QCOMPARE(AfxMessageBox(id, MB_YESNO | MB_ICONWARNING), IDOK);
    QCOMPARE(seen.text, text);
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
}

void tst_ApplicationResources::buttonImage()
{
    QPushButton button;
    const HANDLE bitmap = LoadImageW(nullptr, MAKEINTRESOURCEW(IDB_ARROW), IMAGE_BITMAP, 0, 0, 0);
    SendMessageW(handleOf(&button), BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap));
    QCOMPARE(button.icon().availableSizes(), QList<QSize>{QSize(3, 2)});
    QCOMPARE(button.icon().pixmap(3, 2).toImage().pixelColor(2, 1), QColor(200, 200, 50));

    const HANDLE icon = LoadImageW(nullptr, MAKEINTRESOURCEW(IDI_STAR), IMAGE_ICON, 4, 4, 0);
    SendMessageW(handleOf(&button), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
    QCOMPARE(button.icon().availableSizes(), QList<QSize>{QSize(4, 4)});
    QCOMPARE(button.icon().pixmap(4, 4).toImage().pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(button.icon().pixmap(4, 4).toImage().pixelColor(3, 0).alpha(), 0);

    QVERIFY(platformServices().gdiObjects().deleteObject(bitmap));
    QVERIFY(platformServices().gdiObjects().deleteObject(icon));
}

void tst_ApplicationResources::tabText()
{
    QTabWidget tabs;
    CTabCtrl control;
    control.SetHandle(handleOf(&tabs));
    CWnd known;
    known.SetHandle(handleOf(new QWidget(&tabs)));
    CWnd unknown;
    unknown.SetHandle(handleOf(new QWidget(&tabs)));
    control.AddTab(0, IDS_GREETING, 0, &known);
    control.AddTab(1, 9999, 0, &unknown);
    QCOMPARE(tabs.tabText(0), QStringLiteral("Hello"));
    QCOMPARE(tabs.tabText(1), QString());
}

void tst_ApplicationResources::bitmapOfProgram()
{
    CBitmap bitmap;
    QVERIFY(bitmap.LoadBitmapW(IDB_ARROW));
    QLabel label;
    CStatic picture;
    picture.SetHandle(handleOf(&label));
    picture.SetBitmap(bitmap);
    QCOMPARE(label.pixmap(Qt::ReturnByValue).size(), QSize(3, 2));
    {
        CDC context;
        context.SelectObject(&bitmap);
        CBrush brush(0x00FF00);
        context.FillRect(CRect(0, 0, 1, 1), &brush);
        QVERIFY(platformServices().gdiObjects().deleteObject(brush.GetSafeHandle()));
    }
    const QImage image = platformServices().gdiObjects().bitmapImage(bitmap.GetSafeHandle());
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(image.pixelColor(2, 1), QColor(200, 200, 50));
    QVERIFY(bitmap.DeleteObject());

    CBitmap unknown;
    QVERIFY(unknown.LoadBitmapW(9999));
    QVERIFY(!unknown.GetSafeHandle());
}

QTEST_MAIN(tst_ApplicationResources)
#include "tst_ApplicationResources.moc"
