#include <KxDialogs.h>

#include "ModalDriver.h"
#include "SilentOffscreen.h"
#include "WindowHandle.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>
#include <QWindow>

enum ControlID {
    IDC_NAME = 1001,
    IDC_COUNT,
    IDC_SCALE,
    IDC_ACTIVE,
    IDC_MODE,
    IDC_UNIT,
    IDC_LAYER,
    IDC_LEVEL
};

/// The window of the settings dialog, as an application lays it out.
class SettingsWindow : public QBaseDialog
{
public:
    explicit SettingsWindow(CDialog &dialog)
        : m_dialog(dialog)
    {
        auto *layout = new QVBoxLayout(this);
        const std::initializer_list<QWidget *> controls{&m_name,  &m_count,  &m_scale, &m_active,
                                                        &m_fine,  &m_coarse, &m_unit,  &m_layer,
                                                        &m_level, &m_ok,     &m_cancel};
        for (QWidget *control : controls)
            layout->addWidget(control);
        m_mode.setParent(this);
        m_mode.addButton(&m_fine, 1);
        m_mode.addButton(&m_coarse, 2);
        m_unit.addItems({QStringLiteral("mm"), QStringLiteral("cm"), QStringLiteral("inch")});
        m_layer.addItems({QStringLiteral("base"), QStringLiteral("text"), QStringLiteral("notes")});
        connect(&m_ok, &QPushButton::clicked, this, [this] { m_dialog.OnOK(); });
        connect(&m_cancel, &QPushButton::clicked, this, [this] { m_dialog.OnCancel(); });
        m_ok.setDefault(true);
        registerControls();
    }

    void OnCancel() override { m_dialog.OnCancel(); }

    CDialog &m_dialog;
    QLineEdit m_name;
    QLineEdit m_count;
    QLineEdit m_scale;
    QCheckBox m_active{QStringLiteral("active")};
    QRadioButton m_fine{QStringLiteral("fine")};
    QRadioButton m_coarse{QStringLiteral("coarse")};
    QButtonGroup m_mode;
    QComboBox m_unit;
    QListWidget m_layer;
    QSlider m_level{Qt::Horizontal};
    QPushButton m_ok{QStringLiteral("OK")};
    QPushButton m_cancel{QStringLiteral("Cancel")};

private:
    void registerControls()
    {
        m_dialog.Attach(handleOf(this));
        m_dialog.SetDlgItem(IDC_NAME, handleOf(&m_name));
        m_dialog.SetDlgItem(IDC_COUNT, handleOf(&m_count));
        m_dialog.SetDlgItem(IDC_SCALE, handleOf(&m_scale));
        m_dialog.SetDlgItem(IDC_ACTIVE, handleOf(&m_active));
        m_dialog.SetDlgItem(IDC_MODE, handleOf(&m_fine));
        m_dialog.SetDlgItem(IDC_UNIT, handleOf(&m_unit));
        m_dialog.SetDlgItem(IDC_LAYER, handleOf(&m_layer));
        m_dialog.SetDlgItem(IDC_LEVEL, handleOf(&m_level));
    }
};

/// The ported dialog: its members, its exchange and its validation.
class SettingsDialog : public CDialog
{
public:
    SettingsDialog()
        : CDialog(129u)
    {
    }

    void DoDataExchange(CDataExchange *pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_NAME, m_nameEdit);
        DDX_Text(pDX, IDC_NAME, m_strName);
        DDV_MaxChars(pDX, m_strName, 20);
        DDX_Text(pDX, IDC_COUNT, m_nCount);
        DDX_Text(pDX, IDC_SCALE, m_dScale);
        DDX_Check(pDX, IDC_ACTIVE, m_bActive);
        DDX_Radio(pDX, IDC_MODE, m_nMode);
        DDX_CBIndex(pDX, IDC_UNIT, m_nUnit);
        DDX_LBIndex(pDX, IDC_LAYER, m_nLayer);
        DDX_Slider(pDX, IDC_LEVEL, m_nLevel);
        if (pDX->m_bSaveAndValidate && m_nCount < 0)
            pDX->Fail();
    }

    CWnd m_nameEdit;
    CString m_strName = L"Plan";
    int m_nCount = 3;
    double m_dScale = 0.5;
    int m_bActive = 0;
    int m_nMode = 1;
    int m_nUnit = 1;
    int m_nLayer = 0;
    int m_nLevel = 40;
};

class tst_DialogEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_silent.reset(new SilentOffscreen); }
    void cleanupTestCase() { m_silent.reset(); }
    void cleanup();

    void membersAreShown();
    void okTakesTheEdits();
    void enterTakesTheEdits();
    void leavingKeepsTheMembers_data();
    void leavingKeepsTheMembers();
    void refusedUntilCorrected();
    void secondRunShowsTheMembers();

private:
    QScopedPointer<SilentOffscreen> m_silent;
};

void tst_DialogEndToEnd::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

/// A mouse click that the window system delivers to the window under the widget.
static void click(QWidget &widget, const QPoint &position)
{
    QWindow *window = widget.window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, widget.mapTo(widget.window(), position));
}

static void click(QWidget &widget)
{
    click(widget, widget.rect().center());
}

/// Keys that the window system delivers to the window, whose focus widget takes them.
static void type(QWidget &widget, const char *text)
{
    click(widget);
    QTRY_VERIFY(widget.hasFocus());
    QWindow *window = widget.window()->windowHandle();
    QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    for (; *text; ++text)
        QTest::keyClick(window, *text);
}

static void press(QWidget &widget, Qt::Key key)
{
    QTest::keyClick(widget.window()->windowHandle(), key);
}

static void editAll(SettingsWindow &window)
{
    QVERIFY(QTest::qWaitForWindowActive(&window));
    type(window.m_name, "New plan");
    type(window.m_count, "12abc");
    type(window.m_scale, "2.25");
    click(window.m_active, QPoint(8, window.m_active.height() / 2));
    click(window.m_coarse, QPoint(8, window.m_coarse.height() / 2));
    window.m_unit.setFocus();
    press(window, Qt::Key_Down);
    click(*window.m_layer.viewport(), window.m_layer.visualItemRect(window.m_layer.item(1)).center());
    window.m_level.setFocus();
    press(window, Qt::Key_Right);
}

void tst_DialogEndToEnd::membersAreShown()
{
    SettingsDialog dialog;
    SettingsWindow window(dialog);
    const ModalDriver driver([&](QWidget *) {
        QCOMPARE(window.m_name.text(), QStringLiteral("Plan"));
        QCOMPARE(window.m_count.text(), QStringLiteral("3"));
        QCOMPARE(window.m_scale.text(), QStringLiteral("0.500000"));
        QVERIFY(!window.m_active.isChecked());
        QVERIFY(window.m_fine.isChecked());
        QCOMPARE(window.m_unit.currentText(), QStringLiteral("cm"));
        QCOMPARE(window.m_layer.currentRow(), 0);
        QCOMPARE(window.m_level.value(), 40);
        QCOMPARE(HWND(dialog.m_nameEdit), handleOf(&window.m_name));
        window.reject();
    });
    QCOMPARE(dialog.DoModal(), INT_PTR(IDCANCEL));
}

void tst_DialogEndToEnd::okTakesTheEdits()
{
    SettingsDialog dialog;
    SettingsWindow window(dialog);
    const ModalDriver driver(
        [&](QWidget *) {
            editAll(window);
            click(window.m_ok);
        },
        30000);
    QCOMPARE(dialog.DoModal(), INT_PTR(IDOK));
    QVERIFY(dialog.m_strName == CString(L"New plan"));
    QCOMPARE(dialog.m_nCount, 12);
    QCOMPARE(dialog.m_dScale, 2.25);
    QCOMPARE(dialog.m_bActive, 1);
    QCOMPARE(dialog.m_nMode, 2);
    QCOMPARE(dialog.m_nUnit, 2);
    QCOMPARE(dialog.m_nLayer, 1);
    QCOMPARE(dialog.m_nLevel, 41);
}

void tst_DialogEndToEnd::enterTakesTheEdits()
{
    SettingsDialog dialog;
    SettingsWindow window(dialog);
    const ModalDriver driver(
        [&](QWidget *) {
            QVERIFY(QTest::qWaitForWindowActive(&window));
            type(window.m_count, "8");
            press(window, Qt::Key_Return);
        },
        30000);
    QCOMPARE(dialog.DoModal(), INT_PTR(IDOK));
    QCOMPARE(dialog.m_nCount, 8);
}

using Leave = std::function<void(SettingsWindow &)>;
Q_DECLARE_METATYPE(Leave)

void tst_DialogEndToEnd::leavingKeepsTheMembers_data()
{
    QTest::addColumn<Leave>("leave");

    QTest::newRow("Cancel clicked") << Leave([](SettingsWindow &window) { click(window.m_cancel); });
    QTest::newRow("Escape") << Leave([](SettingsWindow &window) { press(window, Qt::Key_Escape); });
    QTest::newRow("window closed") << Leave([](SettingsWindow &window) { window.close(); });
}

void tst_DialogEndToEnd::leavingKeepsTheMembers()
{
    QFETCH(Leave, leave);

    SettingsDialog dialog;
    SettingsWindow window(dialog);
    const ModalDriver driver(
        [&](QWidget *) {
            editAll(window);
            leave(window);
        },
        30000);
    QCOMPARE(dialog.DoModal(), INT_PTR(IDCANCEL));
    QVERIFY(dialog.m_strName == CString(L"Plan"));
    QCOMPARE(dialog.m_nCount, 3);
    QCOMPARE(dialog.m_dScale, 0.5);
    QCOMPARE(dialog.m_bActive, 0);
    QCOMPARE(dialog.m_nMode, 1);
    QCOMPARE(dialog.m_nUnit, 1);
    QCOMPARE(dialog.m_nLayer, 0);
    QCOMPARE(dialog.m_nLevel, 40);
}

void tst_DialogEndToEnd::refusedUntilCorrected()
{
    SettingsDialog dialog;
    SettingsWindow window(dialog);
    const ModalDriver driver(
        [&](QWidget *) {
            QVERIFY(QTest::qWaitForWindowActive(&window));
            type(window.m_count, "-4");
            click(window.m_ok);
            QVERIFY(window.isVisible());
            QCOMPARE(dialog.m_nCount, -4);
            type(window.m_count, "4");
            click(window.m_ok);
        },
        30000);
    QCOMPARE(dialog.DoModal(), INT_PTR(IDOK));
    QCOMPARE(dialog.m_nCount, 4);
}

void tst_DialogEndToEnd::secondRunShowsTheMembers()
{
    SettingsDialog dialog;
    SettingsWindow window(dialog);
    const ModalDriver driver(
        [&](QWidget *) {
            QVERIFY(QTest::qWaitForWindowActive(&window));
            type(window.m_count, "77");
            click(window.m_cancel);
        },
        30000);
    QCOMPARE(dialog.DoModal(), INT_PTR(IDCANCEL));
    QCOMPARE(window.m_count.text(), QStringLiteral("77"));
    QTimer::singleShot(0, &window, [&] {
        QCOMPARE(window.m_count.text(), QStringLiteral("3"));
        dialog.EndDialog(9);
    });
    QCOMPARE(dialog.DoModal(), INT_PTR(9));
}

QTEST_MAIN(tst_DialogEndToEnd)
#include "tst_DialogEndToEnd.moc"
