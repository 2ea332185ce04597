#pragma once

#include "GuidedTour.h"

/// Converts lengths and temperatures, has a bad amount refused, clears the history, and looks at what was stored.
class Tour : public GuidedTour
{
public:
    using GuidedTour::GuidedTour;

protected:
    void walk() override;

private:
    void converts();
    void remembersTheUnits();

    void showsDefaults();
    void convertInches();
    void showsRefusal();
    void correctAmount();
    void convertTemperature();
    void showsQuestion();
    void keepsHistory();
    void clearsHistory();
    void showsStoredUnits();
    void showsFirstUnit();

    void expectUnits(const QString &quantity, const QString &from, const QString &to);
    void expectHistory(const QStringList &lines);
};
