#include "GuidedTour.h"

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

constexpr unsigned watchdogSeconds = 90;
const char *volatile currentStep = "start";
QByteArray programName;

void writeError(const char *text)
{
    [[maybe_unused]] const auto written = write(STDERR_FILENO, text, std::strlen(text));
}

void endHungTour(int)
{
    writeError(programName.constData());
    writeError(": the tour hangs at ");
    writeError(currentStep);
    writeError("\n");
    _exit(EXIT_FAILURE);
}

int depthOf(const QWidget *window)
{
    const QWidget *parent = window->parentWidget();
    return parent ? depthOf(parent) + 1 : 0;
}

// A window stands in front of those that it belongs to, and the modal one in front of all.
QWidgetList windowsFromBehind()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.erase(std::remove_if(windows.begin(), windows.end(),
                                 [](const QWidget *window) { return !window->isVisible(); }),
                  windows.end());
    std::sort(windows.begin(), windows.end(),
              [](const QWidget *left, const QWidget *right) { return depthOf(left) < depthOf(right); });
    windows.removeOne(QApplication::activeModalWidget());
    return windows << QApplication::activeModalWidget();
}

QPixmap visibleWindows()
{
    const QWidgetList windows = windowsFromBehind();
    QRect area;
    for (const QWidget *window : windows)
        area |= window->frameGeometry();
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        return QGuiApplication::primaryScreen()->grabWindow(0, area.x(), area.y(), area.width(),
                                                            area.height());

    QPixmap picture(area.size());
    picture.fill(Qt::darkGray);
    QPainter painter(&picture);
    for (QWidget *window : windows) {
        const QRect place = window->geometry().translated(-area.topLeft());
        painter.drawPixmap(place.topLeft(), window->grab());
        painter.drawRect(place.adjusted(-1, -1, 0, 0));
    }
    return picture;
}

QTemporaryDir &settingsFolder()
{
    static QTemporaryDir folder;
    return folder;
}

} // namespace

GuidedTour::GuidedTour(const QString &folder)
    : m_folder(folder)
{
    programName = QCoreApplication::applicationName().toLocal8Bit();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &GuidedTour::playNextStep);
}

bool GuidedTour::useOwnSettings()
{
    if (settingsFolder().isValid())
        return qputenv("XDG_CONFIG_HOME", QFile::encodeName(settingsFolder().path()));
    std::fprintf(stderr, "%s: cannot make a temporary settings folder\n", program_invocation_short_name);
    return false;
}

int GuidedTour::run()
{
    if (!folderIsWritable()) {
        std::fprintf(stderr, "%s: cannot write to %s\n", programName.constData(),
                     qPrintable(m_folder.path()));
        return EXIT_FAILURE;
    }
    std::signal(SIGALRM, endHungTour);
    alarm(watchdogSeconds);
    walk();
    alarm(0);

    if (m_failed)
        return EXIT_FAILURE;
    std::printf("%s: every step of the tour held\n", programName.constData());
    return EXIT_SUCCESS;
}

bool GuidedTour::folderIsWritable()
{
    QFile probe(m_folder.filePath(QStringLiteral(".probe")));
    return m_folder.mkpath(QStringLiteral(".")) && probe.open(QIODevice::WriteOnly) && probe.remove();
}

void GuidedTour::runModal(std::vector<Step> steps, const std::function<qintptr()> &show,
                          qintptr expectedResult)
{
    m_steps = std::move(steps);
    m_next = 0;
    m_timer.start(0);
    const auto result = show();
    expect(result == expectedResult,
           QStringLiteral("DoModal gave %1, not %2").arg(result).arg(expectedResult));
    expect(m_next == m_steps.size(), QStringLiteral("the dialog closed after step %1").arg(m_next));
    m_next = m_steps.size();
}

void GuidedTour::playNextStep()
{
    if (m_next == m_steps.size())
        return;
    const Step &step = m_steps[m_next];
    currentStep = step.name;
    if (!windowIsReady(step.window)) {
        m_timer.start(20);
        return;
    }

    ++m_next;
    step.act();
    QTest::qWait(50); // lets the windows be painted
    shoot(step.name);
    // Before leaving: a key press that opens a modal window returns only when that window is closed.
    m_timer.start(0);
    if (step.leave)
        step.leave();
}

bool GuidedTour::windowIsReady(Window window) const
{
    QWidget *modal = QApplication::activeModalWidget();
    const bool wanted =
        modal && (qobject_cast<QMessageBox *>(modal) != nullptr) == (window == Window::Message);
    if (!wanted || !modal->windowHandle()->isExposed())
        return false;
    // Offscreen there is no window manager to activate the dialog, and elsewhere one may have come too late.
    if (!modal->isActiveWindow())
        modal->activateWindow();
    return modal->isActiveWindow();
}

void GuidedTour::click(QWidget *widget, const QPoint &point, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(widget, Qt::LeftButton, modifiers, point);
}

void GuidedTour::click(const char *name)
{
    click(control<QWidget>(name), QPoint(8, 8));
}

void GuidedTour::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void GuidedTour::type(const char *name, const QString &text)
{
    auto *edit = control<QLineEdit>(name);
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keySequence(edit, QKeySequence::SelectAll);
    QTest::keyClicks(edit, text);
}

QString GuidedTour::fileInFolder(const QString &name) const
{
    return m_folder.absoluteFilePath(name);
}

void GuidedTour::expectText(const char *widget, const QString &shown, const QString &expected)
{
    expect(shown == expected,
           QStringLiteral("%1 shows \"%2\", not \"%3\"").arg(QLatin1String(widget), shown, expected));
}

// Looks at the file itself, so that nothing cached in this process can stand in for it.
void GuidedTour::expectStored(const QByteArray &line)
{
    QFile store(settingsFolder().filePath(QStringLiteral("Orvane/Velmo.conf")));
    expect(store.open(QIODevice::ReadOnly) && store.readAll().split('\n').contains(line),
           QStringLiteral("the settings file has no line %1").arg(QLatin1String(line)));
}

void GuidedTour::expect(bool holds, const QString &what)
{
    // Only the first failure is told: the others mostly follow from it.
    if (holds || m_failed)
        return;
    m_failed = true;
    std::fprintf(stderr, "%s: %s: %s\n", programName.constData(), currentStep, qPrintable(what));
}

void GuidedTour::shoot(const char *name)
{
    const QString file = fileInFolder(QLatin1String(name) + QStringLiteral(".png"));
    expect(visibleWindows().save(file), QStringLiteral("cannot write %1").arg(file));
}
