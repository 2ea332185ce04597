#include "Tour.h"

#include "SettingsApp.h"
#include "resource.h"

#include <KxPlatform.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QRadioButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

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
    writeError("settings: the tour hangs at ");
    writeError(currentStep);
    writeError("\n");
    _exit(EXIT_FAILURE);
}

QTemporaryDir &settingsFolder()
{
    static QTemporaryDir folder;
    return folder;
}

template <typename Widget> Widget *control(const char *name)
{
    return QApplication::activeModalWidget()->findChild<Widget *>(QLatin1String(name));
}

void type(const char *name, const char *text)
{
    auto *edit = control<QLineEdit>(name);
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keySequence(edit, QKeySequence::SelectAll);
    QTest::keyClicks(edit, QString::fromUtf8(text));
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

QString textOf(UINT id)
{
    CString text;
    text.LoadStringW(id);
    return QString::fromWCharArray(text);
}

void click(const char *button)
{
    QTest::mouseClick(control<QWidget>(button), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
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

bool Tour::useOwnSettings()
{
    if (!settingsFolder().isValid()) {
        std::fprintf(stderr, "settings: cannot make a temporary settings folder\n");
        return false;
    }
    return qputenv("XDG_CONFIG_HOME", QFile::encodeName(settingsFolder().path()));
}

Tour::Tour(const QString &folder)
    : m_folder(folder)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Tour::waitForWindow);
}

int Tour::run()
{
    if (!folderIsWritable()) {
        std::fprintf(stderr, "settings: cannot write to %s\n", qPrintable(m_folder.path()));
        return EXIT_FAILURE;
    }
    std::signal(SIGALRM, endHungTour);
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    alarm(watchdogSeconds);

    runDialog({{"01-defaults", Window::Form, [this] { showsDefaults(); }, {}},
               {"02-edited", Window::Form, [this] { edit(); }, {}},
               {"03-bad-port", Window::Form, [] { type("port", "70000"); }, [] { click("ok"); }},
               {"04-refused", Window::MessageBox, [this] { showsRefusal(); }, [] { press(Qt::Key_Return); }},
               {"05-corrected", Window::Form, [this] { correctPort(); }, [] { press(Qt::Key_Return); }}},
              IDOK);
    expectStored("Port=9100");
    expectStored("Name=North ridge");
    expectStored("IntervalMs=2500");

    runDialog(
        {{"06-stored-values", Window::Form, [this] { showsStoredValues(); }, {}},
         {"07-cancelled", Window::Form, [] { type("name", "Never stored"); }, [] { press(Qt::Key_Escape); }}},
        IDCANCEL);
    expectStored("Name=North ridge");

    followsTheLocale();
    const QString german = QCoreApplication::applicationDirPath() + QStringLiteral("/settings_de.so");
    expect(theApp.UseTextsOf(german.toStdWString().c_str()),
           QStringLiteral("cannot load the texts in %1").arg(german));
    runDialog({{"08-german", Window::Form, [this] { showsGermanTexts(); }, [] { press(Qt::Key_Escape); }}},
              IDCANCEL);
    theApp.UseTextsOf(nullptr);
    expectText("title", textOf(IDS_TITLE), "Station Settings");
    alarm(0);

    if (m_failures > 0)
        return EXIT_FAILURE;
    std::printf("settings: every step of the tour held\n");
    return EXIT_SUCCESS;
}

bool Tour::folderIsWritable()
{
    QFile probe(m_folder.filePath(QStringLiteral(".probe")));
    return m_folder.mkpath(QStringLiteral(".")) && probe.open(QIODevice::WriteOnly) && probe.remove();
}

void Tour::runDialog(std::vector<Step> steps, int expectedResult)
{
    m_steps = std::move(steps);
    m_next = 0;
    m_timer.start(0);
    const auto result = theApp.ShowSettings();
    expect(result == expectedResult,
           QStringLiteral("DoModal gave %1, not %2").arg(result).arg(expectedResult));
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
    // Offscreen there is no window manager to activate the dialog when the message box is gone.
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        modal->activateWindow();
    return modal->isActiveWindow();
}

void Tour::showsDefaults()
{
    expectText("name", control<QLineEdit>("name")->text(), "Weather station");
    expectText("speed", control<QComboBox>("speed")->currentText(), "9600");
    expectText("format", control<QComboBox>("format")->currentText(), "CSV");
    expect(control<QRadioButton>("metric")->isChecked(), QStringLiteral("metric is not checked"));
    expectFields("8080", "1.500000", "50 %");
}

void Tour::edit()
{
    type("name", "North ridge");
    type("interval", "2.5");
    press(Qt::Key_Tab); // to the speed
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Tab); // to the format
    press(Qt::Key_End);
    click("imperial");
    auto *channels = control<QListWidget>("channel");
    QTest::mouseClick(channels->viewport(), Qt::LeftButton, Qt::NoModifier,
                      channels->visualItemRect(channels->item(2)).center());
    press(Qt::Key_Tab); // to the volume
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    click("autoStart");
    expectText("speed", control<QComboBox>("speed")->currentText(), "38400");
    expectFields("8080", "2.5", "70 %");
}

void Tour::showsRefusal()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    expectText("message", box->text(), "The port must be a number from 1 to 65535.");
}

void Tour::correctPort()
{
    const auto *field = QApplication::focusWidget();
    expect(field == control<QLineEdit>("port"), QStringLiteral("the focus is not on the port"));
    type("port", "9100");
}

void Tour::showsStoredValues()
{
    expectText("name", control<QLineEdit>("name")->text(), "North ridge");
    expectText("speed", control<QComboBox>("speed")->currentText(), "38400");
    expectText("format", control<QComboBox>("format")->currentText(), "XML");
    expectText("channel", control<QListWidget>("channel")->currentItem()->text(), "Humidity");
    expect(control<QRadioButton>("imperial")->isChecked(), QStringLiteral("imperial is not checked"));
    expect(control<QAbstractButton>("autoStart")->isChecked(), QStringLiteral("autoStart is not checked"));
    expectFields("9100", "2.500000", "70 %");
}

void Tour::followsTheLocale()
{
    const QLocale english;
    QLocale::setDefault(QLocale(QStringLiteral("de_AT")));
    SetThreadUILanguage(0);
    expectText("title", textOf(IDS_TITLE), "Station einrichten");
    expectText("message", textOf(IDS_BAD_PORT), "Der Port muss eine Zahl von 1 bis 65535 sein.");
    QLocale::setDefault(english);
    SetThreadUILanguage(0);
    expectText("title", textOf(IDS_TITLE), "Station Settings");
}

void Tour::showsGermanTexts()
{
    expectText("title", QApplication::activeModalWidget()->windowTitle(), "Station einrichten");
    expectText("speed", control<QLabel>("speedLabel")->text(), "Ü&bertragungsrate:");
    expectText("channel", control<QListWidget>("channel")->currentItem()->text(), "Luftfeuchte");
    expectText("cancel", control<QAbstractButton>("cancel")->text(), "Abbrechen");
    expectText("format", control<QComboBox>("format")->currentText(), "XML");
}

void Tour::expectFields(const char *port, const char *interval, const char *volumeText)
{
    expectText("port", control<QLineEdit>("port")->text(), port);
    expectText("interval", control<QLineEdit>("interval")->text(), interval);
    expectText("volume", control<QLabel>("volumeText")->text(), volumeText);
}

void Tour::expectText(const char *what, const QString &shown, const char *expected)
{
    expect(shown == QString::fromUtf8(expected),
           QStringLiteral("%1 shows \"%2\", not \"%3\"")
               .arg(QLatin1String(what), shown, QString::fromUtf8(expected)));
}

void Tour::expect(bool holds, const QString &what)
{
    if (holds)
        return;
    ++m_failures;
    std::fprintf(stderr, "settings: %s: %s\n", currentStep, qPrintable(what));
}

// Looks at the file itself, so that nothing cached in this process can stand in for it.
void Tour::expectStored(const QByteArray &line)
{
    QFile store(settingsFolder().filePath(QStringLiteral("Orvane/Velmo.conf")));
    expect(store.open(QIODevice::ReadOnly) && store.readAll().split('\n').contains(line),
           QStringLiteral("the settings file has no line %1").arg(QLatin1String(line)));
}

void Tour::shoot()
{
    QTest::qWait(50); // lets the windows be painted
    const QString file = m_folder.filePath(QLatin1String(currentStep) + QStringLiteral(".png"));
    expect(visibleWindows().save(file), QStringLiteral("cannot write %1").arg(file));
}
