#include "FileDialogs.h"
#include "HiddenAddress.h"
#include "KxDialogs.h"
#include "WindowHandle.h"

#include <QtTest>

#include <cstring>
#include <memory>
#include <type_traits>

static_assert(std::has_virtual_destructor_v<CFileDialog>);
static_assert(std::is_base_of_v<QFileDialog, CFileDialogImpl>);

Q_DECLARE_METATYPE(ModalDriver::Action)

class tst_CFileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void setUp_data();
    void setUp();
    void nullTexts();
    void defaultSuffix_data();
    void defaultSuffix();
    void filters_data();
    void filters();
    void initialName();

    void parent();
    void noParent();
    void parentDestroyed();
    void parentDestroyedWhileRunning();

    void accepted();
    void rejected_data();
    void rejected();
    void savedWithSuffix();
    void namesAnyFile();
    void runsAgain();
    void derived();
    void virtualOrder();

private:
    std::unique_ptr<FileDialogs> m_dialogs;
};

// The Qt dialog of the one file dialog there is.
static QFileDialog *qtDialog()
{
    const QWidgetList windows = QApplication::allWidgets();
    for (QWidget *window : windows) {
        if (auto *dialog = qobject_cast<QFileDialog *>(window))
            return dialog;
    }
    return nullptr;
}

void tst_CFileDialog::initTestCase()
{
    m_dialogs = std::make_unique<FileDialogs>();
}

void tst_CFileDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_CFileDialog::setUp_data()
{
    QTest::addColumn<bool>("openDialog");
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<unsigned>("size");
    QTest::addColumn<bool>("vistaStyle");

    QTest::newRow("open") << true << 0u << 0u << true;
    QTest::newRow("save") << false << 0u << 0u << true;
    QTest::newRow("open with every flag") << true << ~0u << 0u << true;
    QTest::newRow("save with every flag") << false << ~0u << 0u << true;
    QTest::newRow("of a size") << true << 0u << 152u << true;
    QTest::newRow("of the old style") << true << 0u << 0u << false;
}

void tst_CFileDialog::setUp()
{
    QFETCH(bool, openDialog);
    QFETCH(unsigned, flags);
    QFETCH(unsigned, size);
    QFETCH(bool, vistaStyle);

    const CFileDialog dialog(openDialog, L"dat", L"name", flags, L"All (*)|*||", nullptr, size, vistaStyle);
    QCOMPARE(qtDialog()->acceptMode(), openDialog ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    QCOMPARE(qtDialog()->fileMode(), QFileDialog::AnyFile);
    QCOMPARE(qtDialog()->options(), QFileDialog().options());
    QCOMPARE(qtDialog()->windowFlags(), QFileDialog().windowFlags());
    QVERIFY(!qtDialog()->isVisible());
}

void tst_CFileDialog::nullTexts()
{
    const CFileDialog dialog(true);
    QCOMPARE(qtDialog()->defaultSuffix(), QString());
    QCOMPARE(qtDialog()->nameFilters(), QStringList());
    QCOMPARE(nameEditOf(qtDialog())->text(), QString());
    QCOMPARE(QString::fromStdWString(dialog.GetPathName()), QDir::currentPath());
}

void tst_CFileDialog::defaultSuffix_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("suffix");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("one character") << QStringLiteral("c") << QStringLiteral("c");
    QTest::newRow("three characters") << QStringLiteral("dat") << QStringLiteral("dat");
    QTest::newRow("with a dot") << QStringLiteral(".dat") << QStringLiteral("dat");
    QTest::newRow("two with a dot") << QStringLiteral(".gz") << QStringLiteral("gz");
    QTest::newRow("four characters") << QStringLiteral("jpeg") << QStringLiteral("peg");
}

void tst_CFileDialog::defaultSuffix()
{
    QFETCH(QString, given);
    QFETCH(QString, suffix);
    const CFileDialog dialog(false, given.toStdWString().c_str());
    QCOMPARE(qtDialog()->defaultSuffix(), suffix);
}

void tst_CFileDialog::filters_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QStringList>("filters");

    const QString text = QStringLiteral("Text (*.txt)");
    const QString all = QStringLiteral("All (*.*)");
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("bars alone") << QStringLiteral("|||") << QStringList();
    QTest::newRow("two") << QStringLiteral("Text (*.txt)|*.txt|All (*.*)|*.*||") << QStringList{text, all};
    QTest::newRow("without the end") << QStringLiteral("Text (*.txt)|*.txt|All (*.*)|*.*")
                                     << QStringList{text, all};
    QTest::newRow("name alone") << text << QStringList{text};
    QTest::newRow("without a pattern")
        << QStringLiteral("Text (*.txt)||All (*.*)||||") << QStringList{text, all};
    QTest::newRow("without a name") << QStringLiteral("|*.txt|All (*.*)|*.*||") << QStringList{all};
}

void tst_CFileDialog::filters()
{
    QFETCH(QString, given);
    QFETCH(QStringList, filters);
    const CFileDialog dialog(true, nullptr, nullptr, 0, given.toStdWString().c_str());
    QCOMPARE(qtDialog()->nameFilters(), filters);
    QCOMPARE(filtersShownBy(qtDialog()), filters);
}

void tst_CFileDialog::initialName()
{
    const QString path = m_dialogs->path("x.dat");
    const CFileDialog dialog(true, nullptr, path.toStdWString().c_str());
    QCOMPARE(nameEditOf(qtDialog())->text(), QStringLiteral("x.dat"));
    QCOMPARE(qtDialog()->directory().path(), m_dialogs->folder());
    QCOMPARE(QString::fromStdWString(dialog.GetPathName()), path);
    QCOMPARE(dialog.GetFileName(), CString());
}

void tst_CFileDialog::parent()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    {
        const CFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &window);
        QCOMPARE(qtDialog()->parentWidget(), &widget);
        QCOMPARE(qtDialog()->windowFlags(), QFileDialog().windowFlags());
        QVERIFY(qtDialog()->isWindow());
    }
    QVERIFY(widget.children().isEmpty());
}

static bool hasParentBy(CWnd *window)
{
    const CFileDialog dialog(true, nullptr, nullptr, 0, nullptr, window);
    return qtDialog()->parentWidget();
}

void tst_CFileDialog::noParent()
{
    CWnd window;
    QVERIFY(!hasParentBy(nullptr));
    QVERIFY(!hasParentBy(objectAt<CWnd>(4095)));
    QVERIFY(!hasParentBy(&window));

    auto widget = std::make_unique<QWidget>();
    window.SetHandle(handleOf(widget.get()));
    QVERIFY(hasParentBy(&window));
    widget.reset();
    QVERIFY(!hasParentBy(&window));
}

void tst_CFileDialog::parentDestroyed()
{
    auto widget = std::make_unique<QWidget>();
    CWnd window;
    window.SetHandle(handleOf(widget.get()));
    CFileDialog dialog(true, nullptr, L"name", 0, nullptr, &window);
    widget.reset();
    QCOMPARE(dialog.DoModal(), INT_PTR(0));
    QCOMPARE(dialog.GetPathName(), CString());
    QCOMPARE(dialog.GetFileName(), CString());
}

void tst_CFileDialog::parentDestroyedWhileRunning()
{
    auto widget = std::make_unique<QWidget>();
    CWnd window;
    window.SetHandle(handleOf(widget.get()));
    CFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &window);
    const ModalDriver driver([&](QWidget *) { widget.reset(); });
    QCOMPARE(dialog.DoModal(), INT_PTR(0));
    QCOMPARE(dialog.GetPathName(), CString());
}

void tst_CFileDialog::accepted()
{
    CFileDialog dialog(true);
    qtDialog()->setDirectory(m_dialogs->folder());
    const ModalDriver driver(chooseByName(QStringLiteral("x.dat")));
    QCOMPARE(dialog.DoModal(), INT_PTR(1));
    QCOMPARE(QString::fromStdWString(dialog.GetPathName()), m_dialogs->path("x.dat"));
    QCOMPARE(dialog.GetFileName(), CString());
}

void tst_CFileDialog::rejected_data()
{
    QTest::addColumn<ModalDriver::Action>("end");

    QTest::newRow("Escape") << ModalDriver::type(Qt::Key_Escape);
    QTest::newRow("closed") << ModalDriver::close();
    QTest::newRow("Cancel button") << clickButton(QDialogButtonBox::Cancel);
}

void tst_CFileDialog::rejected()
{
    QFETCH(ModalDriver::Action, end);
    CFileDialog dialog(true);
    const ModalDriver driver(end);
    QCOMPARE(dialog.DoModal(), INT_PTR(0));
    QCOMPARE(dialog.GetFileName(), CString());
}

void tst_CFileDialog::savedWithSuffix()
{
    CFileDialog dialog(false, L".dat", nullptr, 0, L"Data (*.dat)|*.dat||");
    qtDialog()->setDirectory(m_dialogs->folder());
    {
        const ModalDriver driver(chooseByName(QStringLiteral("report")));
        QCOMPARE(dialog.DoModal(), INT_PTR(1));
        QCOMPARE(QString::fromStdWString(dialog.GetPathName()), m_dialogs->path("report.dat"));
    }
    const ModalDriver driver(chooseByName(QStringLiteral("report.txt")));
    QCOMPARE(dialog.DoModal(), INT_PTR(1));
    QCOMPARE(QString::fromStdWString(dialog.GetPathName()), m_dialogs->path("report.txt"));
}

// Whether the file exists is left to the application.
void tst_CFileDialog::namesAnyFile()
{
    CFileDialog dialog(true);
    qtDialog()->setDirectory(m_dialogs->folder());
    const ModalDriver driver(chooseByName(QStringLiteral("missing")));
    QCOMPARE(dialog.DoModal(), INT_PTR(1));
    QCOMPARE(QString::fromStdWString(dialog.GetPathName()), m_dialogs->path("missing"));
}

void tst_CFileDialog::runsAgain()
{
    CFileDialog dialog(true);
    QFileDialog *first = qtDialog();
    first->setDirectory(m_dialogs->folder());
    {
        const ModalDriver driver([&](QWidget *window) {
            QCOMPARE(window, first);
            QCOMPARE(window->windowModality(), Qt::ApplicationModal);
            chooseByName(QStringLiteral("a"))(window);
        });
        QCOMPARE(dialog.DoModal(), INT_PTR(1));
    }
    const ModalDriver driver([&](QWidget *window) {
        QCOMPARE(window, first);
        chooseByName(QStringLiteral("b"))(window);
    });
    QCOMPARE(dialog.DoModal(), INT_PTR(1));
    QCOMPARE(QString::fromStdWString(dialog.GetPathName()), m_dialogs->path("b"));
}

namespace {
class DerivedDialog : public CFileDialog
{
public:
    explicit DerivedDialog(bool &destroyed)
        : CFileDialog(true)
        , m_destroyed(destroyed)
    {
    }
    ~DerivedDialog() override { m_destroyed = true; }

    INT_PTR DoModal() override { return 42; }

private:
    bool &m_destroyed;
};
} // namespace

void tst_CFileDialog::derived()
{
    bool destroyed = false;
    std::unique_ptr<CFileDialog> dialog = std::make_unique<DerivedDialog>(destroyed);
    QCOMPARE(dialog->DoModal(), INT_PTR(42));
    dialog.reset();
    QVERIFY(destroyed);
}

// Both destructors' places, then DoModal's.
void tst_CFileDialog::virtualOrder()
{
    const auto member = &CFileDialog::DoModal;
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    QCOMPARE((words[0] - 1) / std::ptrdiff_t{sizeof(void *)}, std::ptrdiff_t{2});
}

QTEST_MAIN(tst_CFileDialog)
#include "tst_CFileDialog.moc"
