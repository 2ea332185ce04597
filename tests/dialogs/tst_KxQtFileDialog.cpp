#include "FileDialogs.h"
#include "HiddenAddress.h"
#include "KxDialogs.h"
#include "WindowHandle.h"

#include <QtTest>

#include <climits>
#include <cstring>
#include <memory>
#include <type_traits>

static_assert(!std::is_polymorphic_v<KxQtFileDialog>);

/// What KxQtFileDialog shows; what it gives is tested in tst_KxQtFileDialogResults.
class tst_KxQtFileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void recordLayout();
    void recordAtFirst();
    void defaultsOfTheRecords();

    void kinds_data();
    void kinds();
    void look();
    void titles_data();
    void titles();
    void directories_data();
    void directories();
    void filters_data();
    void filters();
    void selectedFilter_data();
    void selectedFilter();
    void constructorTextsAreNotShown();
    void fileToSelect_data();
    void fileToSelect();
    void nullTexts();

    void parent();
    void parentIsTheOneOfTheRun();
    void parentIsBlocked();

private:
    std::unique_ptr<FileDialogs> m_dialogs;
};

// Runs a dialog, looks at it and cancels it.
static void lookAt(KxQtFileDialog &dialog, const std::function<void(QFileDialog &)> &look)
{
    const ModalDriver driver(lookAndLeave(look));
    QCOMPARE(dialog.DoModal(), INT_PTR(IDCANCEL));
    QVERIFY(driver.done());
}

void tst_KxQtFileDialog::initTestCase()
{
    m_dialogs = std::make_unique<FileDialogs>();
    QDir::setCurrent(m_dialogs->folder());
}

void tst_KxQtFileDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

// As code compiled against the packed record reads and writes it.
void tst_KxQtFileDialog::recordLayout()
{
    OPENFILENAMEW record = {};
    char *bytes = reinterpret_cast<char *>(&record);
    const auto put = [bytes](int offset, auto value) { std::memcpy(bytes + offset, &value, sizeof value); };
    wchar_t text[2] = L"x";
    put(20, text);
    put(40, DWORD(7));
    put(44, text + 1);
    put(68, text);
    put(76, text + 1);
    put(84, DWORD(8));
    put(136, DWORD(9));
    QCOMPARE(sizeof record, std::size_t{140});
    QVERIFY(record.lpstrFilter == text && record.lpstrFile == text + 1);
    QVERIFY(record.lpstrInitialDir == text && record.lpstrTitle == text + 1);
    QVERIFY(record.nFilterIndex == 7 && record.Flags == 8 && record.FlagsEx == 9);
}

void tst_KxQtFileDialog::recordAtFirst()
{
    KxQtFileDialog dialog(true, L"dat", L"name", ~0u, L"All (*)", nullptr, 7);
    const OPENFILENAMEW &record = dialog.GetOFN();
    const wchar_t *empty = record.lpstrFilter;
    QVERIFY(empty && !*empty);
    QVERIFY(record.lpstrInitialDir == empty && record.lpstrTitle == empty);
    QVERIFY(record.lpstrDefExt == empty && record.lpTemplateName == empty);
    QVERIFY(KxQtFileDialog(false).GetOFN().lpstrFilter == empty);

    OPENFILENAMEW rest = record;
    rest.lpstrFilter = rest.lpstrInitialDir = rest.lpstrTitle = nullptr;
    rest.lpstrDefExt = rest.lpTemplateName = nullptr;
    const OPENFILENAMEW zero = {};
    QCOMPARE(std::memcmp(&rest, &zero, sizeof rest), 0);
}

void tst_KxQtFileDialog::defaultsOfTheRecords()
{
    const KxQFileDialogArgs args;
    QVERIFY(!args.parent);
    QVERIFY(args.caption.isEmpty() && args.directory.isEmpty() && args.filter.isEmpty());
    const KxQFileDialgAttri attributes;
    QCOMPARE(int(attributes.options), 0);
    static_assert(sizeof attributes.acceptMode == 4 && sizeof attributes.fileMode == 4);
}

void tst_KxQtFileDialog::kinds_data()
{
    QTest::addColumn<bool>("openDialog");
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<unsigned>("size");
    QTest::addColumn<bool>("vistaStyle");

    QTest::newRow("open") << true << 0u << 0u << true;
    QTest::newRow("save") << false << 0u << 0u << true;
    QTest::newRow("open with every flag") << true << ~0u << 0u << true;
    QTest::newRow("save with every flag") << false << ~0u << 0u << true;
    QTest::newRow("of a size and the old style") << true << 0u << 152u << false;
}

void tst_KxQtFileDialog::kinds()
{
    QFETCH(bool, openDialog);
    QFETCH(unsigned, flags);
    QFETCH(unsigned, size);
    QFETCH(bool, vistaStyle);

    KxQtFileDialog dialog(openDialog, nullptr, nullptr, flags, nullptr, nullptr, size, vistaStyle);
    dialog.GetOFN().Flags = flags;
    lookAt(dialog, [openDialog](QFileDialog &shown) {
        QCOMPARE(shown.acceptMode(), openDialog ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
        QCOMPARE(shown.fileMode(), openDialog ? QFileDialog::ExistingFiles : QFileDialog::AnyFile);
        QCOMPARE(shown.options(), QFileDialog().options());
    });
}

void tst_KxQtFileDialog::look()
{
    KxQtFileDialog dialog(true);
    lookAt(dialog, [](QFileDialog &shown) {
        QCOMPARE(shown.minimumSize(), QSize(600, 400));
        QCOMPARE(shown.maximumSize(), QSize(600, 400));
        QCOMPARE(shown.size(), QSize(600, 400));
        QCOMPARE(shown.labelText(QFileDialog::FileType), QStringLiteral("File Format:"));
        QCOMPARE(shown.labelText(QFileDialog::Reject), QStringLiteral("Cancel "));
        QCOMPARE(shown.labelText(QFileDialog::Accept), QFileDialog().labelText(QFileDialog::Accept));
        QCOMPARE(shown.windowFlags(), QFileDialog().windowFlags());
    });
}

void tst_KxQtFileDialog::titles_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("caption");

    QTest::newRow("given") << QStringLiteral("Choose a file") << QStringLiteral("Choose a file");
    QTest::newRow("other characters") << QStringLiteral(u"\u00D6ffnen") << QStringLiteral(u"\u00D6ffnen");
    QTest::newRow("empty") << QString() << QFileDialog().windowTitle();
}

void tst_KxQtFileDialog::titles()
{
    QFETCH(QString, given);
    QFETCH(QString, caption);

    KxQtFileDialog dialog(true);
    const std::wstring title = given.toStdWString();
    dialog.GetOFN().lpstrTitle = title.c_str();
    lookAt(dialog, [&](QFileDialog &shown) { QCOMPARE(shown.windowTitle(), caption); });
}

// "." stands for the folder, which is the current one.
void tst_KxQtFileDialog::directories_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");

    const QString folder = m_dialogs->folder();
    QTest::newRow("folder") << folder << folder;
    QTest::newRow("folder below") << m_dialogs->path("sub") << m_dialogs->path("sub");
    QTest::newRow("ends in a slash") << folder + u'/' << folder;
    QTest::newRow("existing file") << m_dialogs->path("x.dat") << folder;
    QTest::newRow("file that does not exist") << m_dialogs->path("sub/y.z") << m_dialogs->path("sub");
    QTest::newRow("folder with a dot counts as a file") << m_dialogs->path("sub.d") << folder;
    QTest::newRow("the same with a slash at its end")
        << m_dialogs->path("sub.d/") << m_dialogs->path("sub.d");
    QTest::newRow("dot before the last slash") << m_dialogs->path("sub.d/../sub") << m_dialogs->path("sub");
    QTest::newRow("backslashes") << QString(m_dialogs->path("sub")).replace(u'/', u'\\')
                                 << m_dialogs->path("sub");
    QTest::newRow("backslashes and a file") << QStringLiteral("C:\\dir\\x.dat") << m_dialogs->path("C:/dir");
    QTest::newRow("without a slash") << QStringLiteral("sub") << m_dialogs->path("sub");
    QTest::newRow("with a dot, without a slash") << QStringLiteral("sub.d") << m_dialogs->path("sub.d");
    QTest::newRow("file in the root leaves nothing") << QStringLiteral("/x.dat") << QString();
    QTest::newRow("empty") << QString() << QString();
}

void tst_KxQtFileDialog::directories()
{
    QFETCH(QString, given);
    QFETCH(QString, shown);

    KxQtFileDialog dialog(true);
    const std::wstring directory = given.toStdWString();
    dialog.GetOFN().lpstrInitialDir = directory.c_str();
    lookAt(dialog, [&](QFileDialog &qtDialog) {
        if (shown.isEmpty())
            QCOMPARE(qtDialog.findChild<QComboBox *>(QStringLiteral("lookInCombo"))->currentText(),
                     QStringLiteral("Computer"));
        else
            QCOMPARE(qtDialog.directory().absolutePath(), shown);
    });
}

void tst_KxQtFileDialog::filters_data()
{
    QTest::addColumn<bool>("openDialog");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown");

    const auto row = [](const char *name, bool openDialog, const char *text, const QByteArray &shown) {
        QStringList filters;
        const QList<QByteArray> parts = shown.split('|');
        for (const QByteArray &part : parts)
            filters << QString::fromLatin1(part);
        QTest::newRow(name) << openDialog << QString::fromLatin1(text) << filters;
    };
    row("open: patterns", true, "Data (*.dat);;Script (*.scr)", "*.dat|*.scr");
    row("open: several patterns", true, "Images (*.png *.bmp)", "*.png *.bmp");
    row("open: no parentheses", true, "*.dat;;*", "*.dat|*");
    row("open: ( at the start", true, "(*.dat) of data", "(*.dat) of data");
    row("open: ) at the start", true, ")Data (*.dat)", ")Data (*.dat)");
    row("open: ) before (", true, "Data )*.dat(", "Data )*.dat(");
    row("open: ( alone", true, "Data (*.dat", "Data (*.dat");
    row("open: ) alone is cut off", true, "*.dat) and more", "*.dat");
    row("open: the first pair counts", true, "Data (old) (*.dat)", "old");
    row("open: empty pair", true, "Data ()", "");
    row("open: MFC's bars are not parted", true, "Data (*.dat)|*.dat||", "*.dat");
    row("open: empty part", true, "Data (*.dat);;;;All (*)", "*.dat||*");
    row("open: empty", true, "", "");
    row("save: as given", false, "Data (*.dat);;Script (*.scr)", "Data (*.dat)|Script (*.scr)");
    row("save: empty part", false, "Data (*.dat);;", "Data (*.dat)|");
    row("save: empty", false, "", "");
}

void tst_KxQtFileDialog::filters()
{
    QFETCH(bool, openDialog);
    QFETCH(QString, text);
    QFETCH(QStringList, shown);

    KxQtFileDialog dialog(openDialog);
    const std::wstring filter = text.toStdWString();
    dialog.GetOFN().lpstrFilter = filter.c_str();
    lookAt(dialog, [&](QFileDialog &qtDialog) {
        QCOMPARE(qtDialog.nameFilters(), shown);
        QCOMPARE(filtersShownBy(&qtDialog), shown);
    });
}

void tst_KxQtFileDialog::selectedFilter_data()
{
    QTest::addColumn<unsigned>("index");
    QTest::addColumn<QString>("ofOpen");
    QTest::addColumn<QString>("ofSave");

    const QString first = QStringLiteral("*.dat");
    const QString second = QStringLiteral("*.scr");
    const QString firstNamed = QStringLiteral("Data (*.dat)");
    const QString secondNamed = QStringLiteral("Script (*.scr)");
    QTest::newRow("none given") << 0u << first << firstNamed;
    QTest::newRow("first") << 1u << first << firstNamed;
    QTest::newRow("last") << 2u << second << secondNamed;
    QTest::newRow("past the last") << 3u << first << firstNamed;
    QTest::newRow("largest signed") << unsigned(INT_MAX) << first << firstNamed;
    QTest::newRow("smallest signed") << unsigned(INT_MIN) << first << firstNamed;
    QTest::newRow("largest") << UINT_MAX << first << firstNamed;
}

void tst_KxQtFileDialog::selectedFilter()
{
    QFETCH(unsigned, index);
    QFETCH(QString, ofOpen);
    QFETCH(QString, ofSave);

    for (const bool isOpen : {true, false}) {
        KxQtFileDialog dialog(isOpen);
        dialog.GetOFN().lpstrFilter = L"Data (*.dat);;Script (*.scr)";
        dialog.GetOFN().nFilterIndex = index;
        lookAt(dialog,
               [&](QFileDialog &shown) { QCOMPARE(shown.selectedNameFilter(), isOpen ? ofOpen : ofSave); });
        QCOMPARE(unsigned(dialog.GetOFN().nFilterIndex), index);
    }
}

void tst_KxQtFileDialog::constructorTextsAreNotShown()
{
    KxQtFileDialog dialog(false, L"dat", L"name", 0, L"Data (*.dat)");
    lookAt(dialog, [](QFileDialog &shown) {
        QCOMPARE(shown.defaultSuffix(), QString());
        QCOMPARE(nameEditOf(&shown)->text(), QString());
        QCOMPARE(shown.nameFilters(), QStringList{QString()});
    });
}

void tst_KxQtFileDialog::fileToSelect_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");

    QTest::newRow("none") << QString() << QString();
    QTest::newRow("existing") << QStringLiteral("x.dat") << QStringLiteral("x.dat");
    QTest::newRow("not existing") << QStringLiteral("new.dat") << QStringLiteral("new.dat");
    QTest::newRow("path") << m_dialogs->path("x.dat") << QStringLiteral("x.dat");
}

void tst_KxQtFileDialog::fileToSelect()
{
    QFETCH(QString, given);
    QFETCH(QString, shown);

    for (const bool isOpen : {true, false}) {
        KxQtFileDialog dialog(isOpen);
        std::wstring file = given.toStdWString();
        const std::wstring directory = m_dialogs->folder().toStdWString();
        dialog.GetOFN().lpstrFile = file.data();
        dialog.GetOFN().lpstrInitialDir = directory.c_str();
        lookAt(dialog, [&](QFileDialog &qtDialog) { QCOMPARE(nameEditOf(&qtDialog)->text(), shown); });
        QCOMPARE(QString::fromStdWString(file), given);
    }
}

void tst_KxQtFileDialog::nullTexts()
{
    for (const bool isOpen : {true, false}) {
        KxQtFileDialog dialog(isOpen);
        dialog.GetOFN() = {};
        lookAt(dialog, [=](QFileDialog &shown) {
            QCOMPARE(shown.windowTitle(), isOpen ? QStringLiteral("Open") : QStringLiteral("Save As"));
            QCOMPARE(shown.nameFilters(), QStringList{QString()});
            QCOMPARE(nameEditOf(&shown)->text(), QString());
        });
    }
}

void tst_KxQtFileDialog::parent()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    {
        KxQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &window);
        QVERIFY(widget.children().isEmpty());
        lookAt(dialog, [&](QFileDialog &shown) { QCOMPARE(shown.parentWidget(), &widget); });
    }
    QVERIFY(widget.children().isEmpty());

    for (CWnd *none : {objectAt<CWnd>(0), objectAt<CWnd>(4095)}) {
        KxQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, none);
        lookAt(dialog, [](QFileDialog &shown) { QVERIFY(!shown.parentWidget()); });
    }
}

void tst_KxQtFileDialog::parentIsTheOneOfTheRun()
{
    CWnd window;
    KxQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &window);
    lookAt(dialog, [](QFileDialog &shown) { QVERIFY(!shown.parentWidget()); });

    auto widget = std::make_unique<QWidget>();
    window.SetHandle(handleOf(widget.get()));
    lookAt(dialog, [&](QFileDialog &shown) { QCOMPARE(shown.parentWidget(), widget.get()); });
    widget.reset();
    lookAt(dialog, [](QFileDialog &shown) { QVERIFY(!shown.parentWidget()); });
}

void tst_KxQtFileDialog::parentIsBlocked()
{
    QPushButton button;
    button.show();
    CWnd window;
    window.SetHandle(handleOf(&button));
    KxQtFileDialog dialog(true, nullptr, nullptr, 0, nullptr, &window);
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    lookAt(dialog, [&](QFileDialog &shown) {
        QCOMPARE(shown.windowModality(), Qt::ApplicationModal);
        QTest::mouseClick(button.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(clicked.count(), 0);
    });
    QTest::mouseClick(button.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_KxQtFileDialog)
#include "tst_KxQtFileDialog.moc"
