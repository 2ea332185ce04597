#pragma once

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

/// Drives a program as a user would, with key presses and mouse clicks, checks what it shows, and leaves a
/// screenshot of each step. The base of each example's tour.
class GuidedTour : public QObject
{
public:
    /// @param folder receives the screenshots.
    explicit GuidedTour(const QString &folder);

    /// Redirects the settings of this process to a temporary folder. Call it before the QApplication is made.
    static bool useOwnSettings();

    /// @return the exit code: 0 when every expectation held.
    int run();

protected:
    enum class Window { Form, Message };

    struct Step
    {
        const char *name;
        Window window;
        std::function<void()> act;   ///< Edits and checks; the screenshot follows.
        std::function<void()> leave; ///< The key press or click that opens or closes a window, or nothing.
    };

    /// Runs the program, thus runModal() once or more.
    virtual void walk() = 0;

    /// Plays the steps while @p show runs a modal window.
    /// @param show opens the window and gives its result when it is closed.
    void runModal(std::vector<Step> steps, const std::function<qintptr()> &show, qintptr expectedResult);

    void expect(bool holds, const QString &what);
    void expectText(const char *widget, const QString &shown, const QString &expected);
    /// Expects a line in the file that the program keeps its settings in, after useOwnSettings().
    void expectStored(const QByteArray &line);

    /// @return the control of that object name in the current modal window.
    template <typename Widget> static Widget *control(const char *name)
    {
        return QApplication::activeModalWidget()->findChild<Widget *>(QLatin1String(name));
    }
    static void click(QWidget *widget, const QPoint &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void click(const char *name);
    /// Presses a key where the focus is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Replaces the text of a QLineEdit.
    static void type(const char *name, const QString &text);

    /// Leaves a screenshot of this moment, for example while the program is busy.
    void shoot(const char *name);

    /// @return the absolute path of a file beside the screenshots.
    QString fileInFolder(const QString &name) const;

private:
    bool folderIsWritable();
    void playNextStep();
    bool windowIsReady(Window window) const;

    QDir m_folder;
    QTimer m_timer; ///< Calls playNextStep().
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    bool m_failed = false;
};
