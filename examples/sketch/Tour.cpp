#include "Tour.h"

#include "SketchApp.h"
#include "UserInput.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

constexpr unsigned watchdogSeconds = 90;
const char *volatile currentStep = "start";

void writeError(const char *text)
{
    [[maybe_unused]] const auto written = write(STDERR_FILENO, text, std::strlen(text));
}

void endHungTour(int)
{
    writeError("sketch: the tour hangs at ");
    writeError(currentStep);
    writeError("\n");
    _exit(EXIT_FAILURE);
}

QRect visibleArea()
{
    QRect area;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window->isVisible())
            area |= window->frameGeometry();
    }
    return area;
}

QPixmap visibleWindows()
{
    const QRect area = visibleArea();
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        return QGuiApplication::primaryScreen()->grabWindow(0, area.x(), area.y(), area.width(),
                                                            area.height());

    QPixmap picture(area.size());
    picture.fill(Qt::darkGray);
    QPainter painter(&picture);
    const auto draw = [&](QWidget *window) {
        const QRect place = window->geometry().translated(-area.topLeft());
        painter.drawPixmap(place.topLeft(), window->grab());
        painter.drawRect(place.adjusted(-1, -1, 0, 0));
    };
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window != QApplication::activeModalWidget())
            draw(window);
    }
    draw(QApplication::activeModalWidget());
    return picture;
}

} // namespace

Tour::Tour(const QString &folder)
    : m_folder(folder)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Tour::waitForWindow);
}

int Tour::run()
{
    if (!folderIsWritable()) {
        std::fprintf(stderr, "sketch: cannot write to %s\n", qPrintable(m_folder.path()));
        return EXIT_FAILURE;
    }
    std::signal(SIGALRM, endHungTour);
    alarm(watchdogSeconds);

    runSteps({{"01-empty", Window::Form, [this] { startsEmpty(); }, {}},
              {"02-ground", Window::Form, [this] { drawGround(); }, {}},
              {"03-rubber-band", Window::Form, [this] { stretchRubberBand(); }, {}},
              {"04-undone", Window::Form, [this] { undoRubberBand(); }, {}},
              {"05-house", Window::Form, [this] { drawHouse(); }, {}},
              {"06-filled", Window::Form, [this] { fillHouse(); }, {}},
              {"07-fence", Window::Form, [this] { drawFence(); }, {}},
              {"08-filled-again", Window::Form, [this] { undoAndFillAgain(); }, {}},
              {"09-cleared", Window::Form, [this] { clearAndUndo(); }, {}},
              {"10-printed", Window::Form, [this] { print(); }, {}},
              {"11-bad-file", Window::Form, [this] { typeBadFile(); }, [] { click("print"); }},
              {"12-refused", Window::MessageBox, [this] { showsRefusal(); }, [] { press(Qt::Key_Return); }},
              {"13-closed", Window::Form, [this] { expectStatus(QStringLiteral("Not printed")); },
               [] { press(Qt::Key_Escape); }}});
    alarm(0);

    if (m_failures > 0)
        return EXIT_FAILURE;
    std::printf("sketch: every step of the tour held\n");
    return EXIT_SUCCESS;
}

bool Tour::folderIsWritable()
{
    QFile probe(m_folder.filePath(QStringLiteral(".probe")));
    return m_folder.mkpath(QStringLiteral(".")) && probe.open(QIODevice::WriteOnly) && probe.remove();
}

void Tour::runSteps(std::vector<Step> steps)
{
    m_steps = std::move(steps);
    m_timer.start(0);
    const auto result = theApp.ShowSketch();
    expect(result == IDCANCEL, QStringLiteral("DoModal gave %1").arg(result));
    expect(m_next == m_steps.size(), QStringLiteral("the dialog closed after step %1").arg(m_next));
    m_next = m_steps.size();
}

void Tour::waitForWindow()
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
    shoot();
    // Before leaving: a key press that opens a modal window returns only when that window is closed.
    m_timer.start(0);
    if (step.leave)
        step.leave();
}

bool Tour::windowIsReady(Window window) const
{
    QWidget *modal = QApplication::activeModalWidget();
    const bool wanted =
        modal && (qobject_cast<QMessageBox *>(modal) != nullptr) == (window == Window::MessageBox);
    if (!wanted || !modal->windowHandle()->isExposed())
        return false;
    // Offscreen there is no window manager to activate the dialog, and elsewhere one may have come too late.
    if (!modal->isActiveWindow())
        modal->activateWindow();
    return modal->isActiveWindow();
}

void Tour::expect(bool holds, const QString &what)
{
    if (holds)
        return;
    ++m_failures;
    std::fprintf(stderr, "sketch: %s: %s\n", currentStep, qPrintable(what));
}

void Tour::shoot()
{
    QTest::qWait(50); // lets the windows be painted
    const QString file = m_folder.filePath(QLatin1String(currentStep) + QStringLiteral(".png"));
    expect(visibleWindows().save(file), QStringLiteral("cannot write %1").arg(file));
}
