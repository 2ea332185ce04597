#include "KxApplication.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <type_traits>

namespace {
constexpr std::uintptr_t someAddress = 0x1000;

// An application object with a main window of its own choice.
class ChoosingApp : public CWinApp
{
public:
    CWnd *GetMainWnd() override { return m_choice; }
    CWnd *m_choice = nullptr;
};

// A main window that passes another window's handle off as its own.
class ForwardingWnd : public CWnd
{
public:
    HWND GetSafeHwnd() override { return reinterpret_cast<HWND>(someAddress); }
};

static_assert(!std::has_virtual_destructor_v<CWinApp>);
static_assert(sizeof(CWinApp) == 2 * sizeof(void *));
static_assert(std::has_virtual_destructor_v<CDocument>);
} // namespace

/// The application object, the main window, and the placeholders.
class tst_CWinApp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void noApplicationObject();
    void libraryDoesNotSetApplicationObject();
    void mainWindow();
    void mainWindowOfSubclass();
    void mainWindowAsksForSafeHandle();
    void unboundMainWindow();
    void destroyedMainWindow();
    void fixedResults();
    void document();
    void archive();
};

void tst_CWinApp::cleanup()
{
    g_pWinApp = nullptr;
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_CWinApp::noApplicationObject()
{
    QVERIFY(!g_pWinApp);
    QVERIFY(!AfxGetApp());
    QVERIFY(!AfxGetMainWnd());
    QCOMPARE(kdqt_velmoMainWnd(), HWND{nullptr});
}

void tst_CWinApp::libraryDoesNotSetApplicationObject()
{
    CWinApp application;
    CWnd window;
    QVERIFY(!application.m_pMainWnd);
    application.SetMainWnd(&window);
    QVERIFY(!g_pWinApp);
    QVERIFY(!AfxGetMainWnd());
}

void tst_CWinApp::mainWindow()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    CWinApp application;
    g_pWinApp = &application;

    QCOMPARE(AfxGetApp(), &application);
    QVERIFY(!AfxGetMainWnd());
    QCOMPARE(kdqt_velmoMainWnd(), HWND{nullptr});

    application.SetMainWnd(&window);
    QCOMPARE(application.m_pMainWnd, &window);
    QCOMPARE(application.GetMainWnd(), &window);
    QCOMPARE(AfxGetMainWnd(), &window);
    QCOMPARE(kdqt_velmoMainWnd(), handleOf(&widget));

    application.SetMainWnd(nullptr);
    QVERIFY(!AfxGetMainWnd());
    application.m_pMainWnd = &window;
    QCOMPARE(AfxGetMainWnd(), &window);
}

void tst_CWinApp::mainWindowOfSubclass()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    CWnd other;
    ChoosingApp application;
    g_pWinApp = &application;

    application.SetMainWnd(&other);
    QVERIFY(!AfxGetMainWnd());
    QCOMPARE(kdqt_velmoMainWnd(), HWND{nullptr});
    application.m_choice = &window;
    QCOMPARE(AfxGetMainWnd(), &window);
    QCOMPARE(kdqt_velmoMainWnd(), handleOf(&widget));
}

void tst_CWinApp::mainWindowAsksForSafeHandle()
{
    ForwardingWnd window;
    CWinApp application;
    application.SetMainWnd(&window);
    g_pWinApp = &application;
    QCOMPARE(kdqt_velmoMainWnd(), reinterpret_cast<HWND>(someAddress));
}

void tst_CWinApp::unboundMainWindow()
{
    CWnd window;
    CWinApp application;
    application.SetMainWnd(&window);
    g_pWinApp = &application;
    QCOMPARE(AfxGetMainWnd(), &window);
    QCOMPARE(kdqt_velmoMainWnd(), HWND{nullptr});
}

// A window object keeps the handle that it once had.
void tst_CWinApp::destroyedMainWindow()
{
    auto *widget = new QWidget;
    const HWND handle = handleOf(widget);
    CWnd window;
    window.SetHandle(handle);
    CWinApp application;
    application.SetMainWnd(&window);
    g_pWinApp = &application;

    delete widget;
    QCOMPARE(AfxGetMainWnd(), &window);
    QCOMPARE(kdqt_velmoMainWnd(), handle);
}

void tst_CWinApp::fixedResults()
{
    CWinApp application;
    auto position = reinterpret_cast<POSITION>(someAddress);

    QVERIFY(!application.LoadCursorW(1));
    QVERIFY(!application.LoadIconW(1));
    QVERIFY(!application.LoadStandardCursor(L"ARROW"));
    QVERIFY(!application.LoadStandardCursor(static_cast<const wchar_t *>(nullptr)));
    QVERIFY(!application.LoadStandardCursor(UINT{32512}));
    QVERIFY(!application.OpenDocumentFile(L"file"));
    QVERIFY(!application.OpenDocumentFile(nullptr));
    QVERIFY(!application.GetFirstDocTemplatePosition());
    QVERIFY(!application.GetNextDocTemplate(position));
    QCOMPARE(position, reinterpret_cast<POSITION>(someAddress));
}

void tst_CWinApp::document()
{
    class Document : public CDocument
    {
    public:
        explicit Document(bool &destroyed)
            : m_destroyed(destroyed)
        {
        }
        ~Document() override { m_destroyed = true; }

    private:
        bool &m_destroyed;
    };

    bool destroyed = false;
    CDocument *document = new Document(destroyed);
    delete document;
    QVERIFY(destroyed);
}

// The file and the buffer are not looked at.
void tst_CWinApp::archive()
{
    const QByteArray before(16, 'x');
    QByteArray buffer = before;
    {
        CArchive archive(reinterpret_cast<CFile *>(someAddress), 0, buffer.size(), buffer.data());
        archive.Close();
        archive.Close();
        CArchive noFile(nullptr, 1);
    }
    QCOMPARE(buffer, before);
}

QTEST_MAIN(tst_CWinApp)
#include "tst_CWinApp.moc"
