#pragma once

#include <QString>

#include <functional>

/// An option with an argument that one example has of its own.
struct ExampleOption
{
    const char *name = nullptr;     ///< For example "--file", or null.
    const char *argument = nullptr; ///< What the usage line calls the argument.
    /// Called before the program starts, but not for a tour. It reports what is wrong and gives false to end
    /// the program.
    std::function<bool(const QString &argument)> apply = {};
};

/// What an example program runs.
struct Example
{
    const char *name;                               ///< The program's name, for its messages.
    std::function<void()> start;                    ///< Shows the program to a user.
    std::function<int(const QString &folder)> tour; ///< Runs the tour and gives the exit code.
    std::function<bool()> prepareTour = {};         ///< Called before the QApplication is made, or nothing.
    ExampleOption option = {};
};

/// Reads the command line, makes the QApplication and runs the program: its tour for `--tour DIR` and where
/// no window can be seen, else the program itself.
/// @return the exit code.
int runExample(int argc, char *argv[], const Example &example);
