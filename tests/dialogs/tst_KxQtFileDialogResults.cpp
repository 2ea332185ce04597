#include "FileDialogs.h"
#include "KxDialogs.h"
#include "WindowHandle.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(ModalDriver::Action)

/// What KxQtFileDialog gives after a run.
class tst_KxQtFileDialogResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void beforeARun();
    void choices_data();
    void choices();
    void filterThatQtSimplified();
    void severalFiles();
    void severalFilesWithExtension();
    void positionsOfNoFile_data();
    void positionsOfNoFile();
    void missingFileIsNotOpened();

    void cancelled_data();
    void cancelled();
    void nextRunReplacesTheDialog();
    void runFromWithinARun();
    void parentDestroyedWhileRunning();
    void destroyedWhileRunning();

    void existingDirectory_data();
    void existingDirectory();
    void existingDirectoryLook();
    void existingDirectoryParentDestroyed();

private:
    std::unique_ptr<FileDialogs> m_dialogs;
};

namespace {
// A dialog in the folder, with the record's texts.
struct Chooser
{
    Chooser(const FileDialogs &dialogs, bool isOpen, const wchar_t *filter, CWnd *parent = nullptr)
        : directory(dialogs.folder().toStdWString())
        , dialog(isOpen, nullptr, nullptr, 0, nullptr, parent)
    {
        dialog.GetOFN().lpstrInitialDir = directory.c_str();
        dialog.GetOFN().lpstrFilter = filter;
    }

    INT_PTR run(const ModalDriver::Action &action)
    {
        const ModalDriver driver(action);
        return dialog.DoModal();
    }

    std::wstring directory;
    KxQtFileDialog dialog;
};

QStringList resultsOf(KxQtFileDialog &dialog)
{
    QStringList results{
        QString::fromStdWString(dialog.GetPathName()), QString::fromStdWString(dialog.GetFileName()),
        QString::fromStdWString(dialog.GetFileExt()), QString::number(dialog.GetOFN().nFilterIndex)};
    for (POSITION pos = dialog.GetStartPosition(); pos;)
        results << QString::fromStdWString(dialog.GetNextPathName(pos));
    return results;
}

POSITION position(std::intptr_t number)
{
    return reinterpret_cast<POSITION>(number);
}
} // namespace

void tst_KxQtFileDialogResults::initTestCase()
{
    m_dialogs = std::make_unique<FileDialogs>();
}

void tst_KxQtFileDialogResults::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_KxQtFileDialogResults::beforeARun()
{
    KxQtFileDialog dialog(false, L"dat", L"name");
    QCOMPARE(resultsOf(dialog), (QStringList{QString(), QString(), QString(), QStringLiteral("0")}));
    QVERIFY(!dialog.GetStartPosition());
    POSITION pos = position(1);
    QCOMPARE(dialog.GetNextPathName(pos), CString());
    QCOMPARE(pos, position(1));
}

void tst_KxQtFileDialogResults::choices_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("picked");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("extension");

    const auto row = [](const char *title, bool isOpen, const char *filter, int picked, const char *typed,
                        const char *name, const char *extension) {
        QTest::newRow(title) << isOpen << QString::fromLatin1(filter) << picked << QString::fromLatin1(typed)
                             << QString::fromLatin1(name) << QString::fromLatin1(extension);
    };
    const char *two = "Data (*.dat);;Script (*.scr)";
    row("open: data", true, two, 0, "x.dat", "x.dat", "dat");
    row("open: data gets no extension", true, two, 0, "a", "a", "");
    row("open: script gets its extension", true, two, 1, "a", "a.scr", "scr");
    row("open: script has its extension", true, two, 1, "x.scr", "x.scr", "scr");
    row("open: script with another extension", true, two, 1, "x.dat", "x.dat.scr", "scr");
    row("open: case counts in the name", true, two, 1, "y.SCR", "y.SCR.scr", "scr");
    row("open: case counts in the filter", true, "Script (*.SCR)", 0, "a", "a", "");
    row("open: svf gets its extension", true, "*.svf", 0, "a", "a.svf", "svf");
    row("open: the last pattern counts", true, "Both (*.scr *.svf)", 0, "a", "a.svf", "svf");
    row("open: the last pattern is another", true, "Both (*.scr *.dat)", 0, "a", "a", "");
    row("open: all", true, "All (*)", 0, "a", "a", "");
    row("open: the filter is the extension", true, "All (*);;scr", 1, "a", "a.scr", "scr");
    row("open: no filter", true, "", 0, "a", "a", "");
    row("save: new", false, two, 0, "new", "new", "");
    row("save: named script gets no extension", false, two, 1, "new", "new", "");
    row("save: bare script gets its extension", false, "*.dat;;*.scr", 1, "new", "new.scr", "scr");
    row("save: bare svf gets its extension", false, "*.svf", 0, "new.tar", "new.tar.svf", "svf");
    row("save: two dots", false, two, 0, "new.tar.gz", "new.tar.gz", "gz");
}

void tst_KxQtFileDialogResults::choices()
{
    QFETCH(bool, isOpen);
    QFETCH(QString, filter);
    QFETCH(int, picked);
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QFETCH(QString, extension);

    const std::wstring filterText = filter.toStdWString();
    Chooser chooser(*m_dialogs, isOpen, filterText.c_str());
    QCOMPARE(chooser.run(chooseByFilterAndName(picked, typed)), INT_PTR(IDOK));
    const QString path = QDir(m_dialogs->folder()).filePath(name);
    QCOMPARE(resultsOf(chooser.dialog),
             (QStringList{path, name, extension, QString::number(picked + 1), path}));
    QCOMPARE(chooser.dialog.GetStartPosition(), position(1));
    QVERIFY(!chooser.dialog.GetOFN().lpstrFile);
}

void tst_KxQtFileDialogResults::filterThatQtSimplified()
{
    Chooser chooser(*m_dialogs, false, L"All   (*)");
    chooser.dialog.GetOFN().nFilterIndex = 1;
    QCOMPARE(chooser.run(chooseByName(QStringLiteral("new"))), INT_PTR(IDOK));
    QCOMPARE(unsigned(chooser.dialog.GetOFN().nFilterIndex), 0u);
}

void tst_KxQtFileDialogResults::severalFiles()
{
    Chooser chooser(*m_dialogs, true, L"All (*)");
    QCOMPARE(chooser.run(pasteNames(QStringLiteral("\"b\" \"x.dat\" \"a\""))), INT_PTR(IDOK));
    const QStringList names{m_dialogs->path("b"), m_dialogs->path("x.dat"), m_dialogs->path("a")};
    QStringList given = resultsOf(chooser.dialog).mid(4);
    QCOMPARE(given.size(), 3);
    QCOMPARE(QString::fromStdWString(chooser.dialog.GetPathName()), given.first());
    QCOMPARE(QSet<QString>(given.cbegin(), given.cend()), QSet<QString>(names.cbegin(), names.cend()));

    POSITION pos = chooser.dialog.GetStartPosition();
    for (int left = 3; left > 0; --left) {
        QCOMPARE(pos, position(left));
        QCOMPARE(QString::fromStdWString(chooser.dialog.GetNextPathName(pos)), given[3 - left]);
    }
    QVERIFY(!pos);
}

void tst_KxQtFileDialogResults::severalFilesWithExtension()
{
    Chooser chooser(*m_dialogs, true, L"Script (*.scr)");
    QCOMPARE(chooser.run(chooseByName(QStringLiteral("\"a\" \"b\""))), INT_PTR(IDOK));
    const QStringList names{m_dialogs->path("a.scr"), m_dialogs->path("b.scr")};
    QCOMPARE(resultsOf(chooser.dialog).mid(4), names);
}

void tst_KxQtFileDialogResults::positionsOfNoFile_data()
{
    QTest::addColumn<qint64>("number");

    QTest::newRow("past the end") << qint64{0};
    QTest::newRow("before the start") << qint64{2};
    QTest::newRow("negative") << qint64{-1};
    QTest::newRow("largest") << std::numeric_limits<qint64>::max();
    QTest::newRow("smallest") << std::numeric_limits<qint64>::min();
    QTest::newRow("above 32 bits") << (qint64{1} << 32) + 1;
}

void tst_KxQtFileDialogResults::positionsOfNoFile()
{
    QFETCH(qint64, number);
    Chooser chooser(*m_dialogs, true, L"All (*)");
    QCOMPARE(chooser.run(chooseByName(QStringLiteral("a"))), INT_PTR(IDOK));
    POSITION pos = position(number);
    QCOMPARE(chooser.dialog.GetNextPathName(pos), CString());
    QCOMPARE(pos, position(number));
}

void tst_KxQtFileDialogResults::missingFileIsNotOpened()
{
    Chooser chooser(*m_dialogs, true, L"All (*)");
    const auto type = [](QWidget *window) {
        const ModalDriver message(ModalDriver::type(Qt::Key_Escape));
        chooseByName(QStringLiteral("missing"))(window);
        QVERIFY(window->isVisible());
        QTest::keyClick(window, Qt::Key_Escape);
    };
    QCOMPARE(chooser.run(type), INT_PTR(IDCANCEL));
}

void tst_KxQtFileDialogResults::cancelled_data()
{
    QTest::addColumn<ModalDriver::Action>("end");

    QTest::newRow("Escape") << ModalDriver::type(Qt::Key_Escape);
    QTest::newRow("closed") << ModalDriver::close();
    QTest::newRow("Cancel button") << ModalDriver::click(QStringLiteral("Cancel "));
}

void tst_KxQtFileDialogResults::cancelled()
{
    QFETCH(ModalDriver::Action, end);

    Chooser chooser(*m_dialogs, true, L"Data (*.dat);;Script (*.scr)");
    QCOMPARE(chooser.run(end), INT_PTR(IDCANCEL));
    QCOMPARE(resultsOf(chooser.dialog), (QStringList{QString(), QString(), QString(), QStringLiteral("0")}));

    QCOMPARE(chooser.run(chooseByFilterAndName(1, QStringLiteral("\"a\" \"b\""))), INT_PTR(IDOK));
    const QStringList results = resultsOf(chooser.dialog);
    QCOMPARE(results.size(), 6);
    const auto endWithOtherChoice = [&](QWidget *window) {
        QTest::keyClick(filterBoxOf(window), Qt::Key_Home);
        startName(window);
        QTest::keyClicks(nameEditOf(window), QStringLiteral("x.dat"));
        end(window);
    };
    QCOMPARE(chooser.run(endWithOtherChoice), INT_PTR(IDCANCEL));
    QCOMPARE(resultsOf(chooser.dialog), results);
}

void tst_KxQtFileDialogResults::nextRunReplacesTheDialog()
{
    Chooser chooser(*m_dialogs, true, L"All (*)");
    QPointer<QWidget> first;
    QCOMPARE(chooser.run([&](QWidget *window) {
        first = window;
        chooseByName(QStringLiteral("a"))(window);
    }),
             INT_PTR(IDOK));
    QVERIFY(first);
    QVERIFY(!first->isVisible());

    chooser.dialog.GetOFN().lpstrTitle = L"Second";
    QCOMPARE(chooser.run([&](QWidget *window) {
        QVERIFY(!first);
        QCOMPARE(window->windowTitle(), QStringLiteral("Second"));
        chooseByName(QStringLiteral("b"))(window);
    }),
             INT_PTR(IDOK));
    QCOMPARE(QString::fromStdWString(chooser.dialog.GetPathName()), m_dialogs->path("b"));
}

void tst_KxQtFileDialogResults::runFromWithinARun()
{
    Chooser chooser(*m_dialogs, true, L"All (*)");
    INT_PTR inner = 0;
    const auto runAgain = [&](QWidget *) { inner = chooser.run(chooseByName(QStringLiteral("a"))); };
    QCOMPARE(chooser.run(runAgain), INT_PTR(IDCANCEL));
    QCOMPARE(inner, INT_PTR(IDOK));
    QCOMPARE(QString::fromStdWString(chooser.dialog.GetPathName()), m_dialogs->path("a"));
}

void tst_KxQtFileDialogResults::parentDestroyedWhileRunning()
{
    auto widget = std::make_unique<QWidget>();
    CWnd window;
    window.SetHandle(handleOf(widget.get()));
    Chooser chooser(*m_dialogs, true, L"All (*)", &window);
    QCOMPARE(chooser.run([&](QWidget *) { widget.reset(); }), INT_PTR(IDCANCEL));
    QCOMPARE(chooser.dialog.GetPathName(), CString());
}

void tst_KxQtFileDialogResults::destroyedWhileRunning()
{
    auto chooser = std::make_unique<Chooser>(*m_dialogs, true, L"All (*)");
    KxQtFileDialog &dialog = chooser->dialog;
    const ModalDriver driver([&](QWidget *) { chooser.reset(); });
    QCOMPARE(dialog.DoModal(), INT_PTR(IDCANCEL));
}

void tst_KxQtFileDialogResults::existingDirectory_data()
{
    QTest::addColumn<ModalDriver::Action>("action");
    QTest::addColumn<QString>("result");

    QTest::newRow("chosen") << chooseByName(QStringLiteral("sub")) << m_dialogs->path("sub");
    QTest::newRow("cancelled") << ModalDriver::type(Qt::Key_Escape) << QString();
    QTest::newRow("Cancel button") << ModalDriver::click(QStringLiteral("Cancel")) << QString();
}

void tst_KxQtFileDialogResults::existingDirectory()
{
    QFETCH(ModalDriver::Action, action);
    QFETCH(QString, result);
    const ModalDriver driver(action);
    QCOMPARE(KxQtFileDialog::getExistingDirectory(nullptr, QString(), m_dialogs->folder(), {}), result);
}

void tst_KxQtFileDialogResults::existingDirectoryLook()
{
    QWidget parent;
    for (const auto options : {QFileDialog::Options(), QFileDialog::Options(QFileDialog::ReadOnly)}) {
        const ModalDriver driver(lookAndLeave([&](QFileDialog &shown) {
            QCOMPARE(shown.parentWidget(), &parent);
            QCOMPARE(shown.windowTitle(), QStringLiteral("Choose a folder"));
            QCOMPARE(shown.directory().path(), m_dialogs->folder());
            QCOMPARE(shown.fileMode(), QFileDialog::Directory);
            QCOMPARE(shown.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(shown.labelText(QFileDialog::Reject), QStringLiteral("Cancel"));
            QCOMPARE(shown.options(), QFileDialog().options() | QFileDialog::ShowDirsOnly);
        }));
        const QString title = QStringLiteral("Choose a folder");
        QCOMPARE(KxQtFileDialog::getExistingDirectory(&parent, title, m_dialogs->folder(), options),
                 QString());
    }
    QVERIFY(parent.children().isEmpty());
}

void tst_KxQtFileDialogResults::existingDirectoryParentDestroyed()
{
    auto parent = std::make_unique<QWidget>();
    const ModalDriver driver([&](QWidget *) { parent.reset(); });
    QCOMPARE(KxQtFileDialog::getExistingDirectory(parent.get(), QString(), m_dialogs->folder(), {}),
             QString());
}

QTEST_MAIN(tst_KxQtFileDialogResults)
#include "tst_KxQtFileDialogResults.moc"
