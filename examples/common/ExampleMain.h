#pragma once

#include <QString>

#include <functional>

/// What an example program runs.
struct Example
{
    const char *name;                               ///< The program's name, for its messages.
    std::function<void()> start;                    ///< Shows the program to a user.
    std::function<int(const QString &folder)> tour; ///< Runs the tour and gives the exit code.
    std::function<bool()> prepareTour;              ///< Called before the QApplication is made, or nothing.
};

/// Reads the command line, makes the QApplication and runs the program: its tour for `--tour DIR` and where
/// no window can be seen, else the program itself.
/// @return the exit code.
int runExample(int argc, char *argv[], const Example &example);
