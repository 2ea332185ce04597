#pragma once

#include <QDir>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

class QMessageBox;
class QWidget;

/// Drives the program as a user would, with key presses and mouse clicks, checks what it shows and stores,
/// and leaves a screenshot of each step.
class Tour : public QObject
{
    Q_OBJECT
public:
    /// Redirects the settings of this process to a temporary folder. Call it before the QApplication is made.
    static bool useOwnSettings();

    explicit Tour(const QString &folder);

    /// @return the exit code: 0 when every expectation held.
    int run();

private:
    enum class Window { Form, MessageBox };

    struct Step
    {
        const char *name;
        Window window;
        std::function<void()> act;   ///< Edits and checks; the screenshot follows.
        std::function<void()> leave; ///< The key press or click that opens or closes a window, or nothing.
    };

    bool folderIsWritable();
    void runDialog(std::vector<Step> steps, int expectedResult);
    void waitForWindow();
    bool windowIsReady(Window window) const;

    void showsDefaults();
    void edit();
    void showsRefusal();
    void correctPort();
    void showsStoredValues();
    void followsTheLocale();
    void showsGermanTexts();

    void expectFields(const char *port, const char *interval, const char *volumeText);
    void expectText(const char *what, const QString &shown, const char *expected);
    void expect(bool holds, const QString &what);
    void expectStored(const QByteArray &line);
    void shoot();

    QDir m_folder;
    QTimer m_timer; ///< Calls waitForWindow().
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    int m_failures = 0;
};
