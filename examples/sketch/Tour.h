#pragma once

#include <QDir>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

/// Draws as a user would, with key presses and mouse clicks, checks every pixel of what it shows, and leaves
/// a screenshot of each step.
class Tour : public QObject
{
    Q_OBJECT
public:
    explicit Tour(const QString &folder);

    /// @return the exit code: 0 when every expectation held.
    int run();

private:
    enum class Window { Form, MessageBox };

    struct Step
    {
        const char *name;
        Window window;
        std::function<void()> act;   ///< Draws and checks; the screenshot follows.
        std::function<void()> leave; ///< The key press or click that opens or closes a window, or nothing.
    };

    bool folderIsWritable();
    void runSteps(std::vector<Step> steps);
    void waitForWindow();
    bool windowIsReady(Window window) const;

    void startsEmpty();
    void drawGround();
    void stretchRubberBand();
    void undoRubberBand();
    void drawHouse();
    void fillHouse();
    void drawFence();
    void undoAndFillAgain();
    void clearAndUndo();
    void print();
    void typeBadFile();
    void showsRefusal();

    void undo();
    void drawBox(const QRect &box, const QColor &shade);
    void drawCircle(QPoint center, int radius);
    void fill(QPoint at, int color);
    void expectPixel(QPoint at, QRgb expected);
    void expectStatus(const QString &text);
    void expect(bool holds, const QString &what);
    QString pdfFile() const;
    void shoot();

    QDir m_folder;
    QTimer m_timer; ///< Calls waitForWindow().
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    QImage m_before; ///< What one step shows and a later one brings back.
    int m_failures = 0;
};
