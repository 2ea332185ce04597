#pragma once

#include "ModalDriver.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

/// A folder of its own with some files, and Qt's own dialogs in it, whose settings go into another.
class FileDialogs
{
public:
    FileDialogs()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        for (const char *name : {"sub", "sub.d", "C:/dir"})
            QDir(m_files.path()).mkpath(QLatin1String(name));
        for (const char *name : {"a", "b", "c", "x.dat", "x.scr", "y.SCR"})
            QFile(path(name)).open(QIODevice::WriteOnly);
    }

    QString folder() const { return QDir(m_files.path()).canonicalPath(); }
    QString path(const char *name) const { return QDir(folder()).filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_settings;
    QTemporaryDir m_files;
};

inline QLineEdit *nameEditOf(QWidget *dialog)
{
    return dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

inline QComboBox *filterBoxOf(QWidget *dialog)
{
    return dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
}

inline QStringList filtersShownBy(QWidget *dialog)
{
    QStringList filters;
    for (int i = 0; i < filterBoxOf(dialog)->count(); ++i)
        filters << filterBoxOf(dialog)->itemText(i);
    return filters;
}

/// Waits until the list shows what the filter lets through: Qt reads the folder in a thread, and what is
/// typed before it has selects other files.
inline void waitForList(const QFileDialog &dialog)
{
    const QString filter = dialog.selectedNameFilter();
    const QString patterns = filter.section(u'(', -1).remove(u')');
    if (patterns.isEmpty() || dialog.fileMode() == QFileDialog::Directory)
        return;
    const QDir::Filters kinds = QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot;
    const int expected = dialog.directory().entryList(patterns.split(u' '), kinds).size();
    const auto *list = dialog.findChild<QAbstractItemView *>(QStringLiteral("listView"));
    QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), expected);
}

/// Gets ready for a name in place of the one that is there. No completions pop up: they grab the keyboard,
/// which the offscreen platform cannot give.
inline void startName(QWidget *dialog)
{
    QLineEdit *edit = nameEditOf(dialog);
    edit->setCompleter(nullptr);
    waitForList(*qobject_cast<QFileDialog *>(dialog));
    // A window that is shown again at once is not always made active.
    QApplication::setActiveWindow(dialog);
    edit->setFocus();
    QTRY_VERIFY(edit->hasFocus());
    edit->selectAll();
}

/// Types a name and presses Enter.
inline ModalDriver::Action chooseByName(const QString &name)
{
    return [name](QWidget *dialog) {
        startName(dialog);
        QTest::keyClicks(nameEditOf(dialog), name);
        QTest::keyClick(nameEditOf(dialog), Qt::Key_Return);
    };
}

/// Pastes names in quotes and presses Enter. While they are typed, Qt may lose one that it selected before.
inline ModalDriver::Action pasteNames(const QString &names)
{
    return [names](QWidget *dialog) {
        startName(dialog);
        nameEditOf(dialog)->insert(names);
        QTest::keyClick(nameEditOf(dialog), Qt::Key_Return);
    };
}

/// Picks the filter at an index, types a name and presses Enter.
inline ModalDriver::Action chooseByFilterAndName(int filter, const QString &name)
{
    return [filter, name](QWidget *dialog) {
        QTest::keyClick(filterBoxOf(dialog), Qt::Key_Home);
        for (int i = 0; i < filter; ++i)
            QTest::keyClick(filterBoxOf(dialog), Qt::Key_Down);
        chooseByName(name)(dialog);
    };
}

/// Clicks a button of the dialog.
inline ModalDriver::Action clickButton(QDialogButtonBox::StandardButton button)
{
    return [button](QWidget *dialog) {
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
    };
}

/// Does something with the dialog, then leaves it as Escape does.
inline ModalDriver::Action lookAndLeave(const std::function<void(QFileDialog &)> &look)
{
    return [look](QWidget *window) {
        auto *dialog = qobject_cast<QFileDialog *>(window);
        QVERIFY(dialog);
        look(*dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
}
