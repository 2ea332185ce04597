#pragma once

#include "GuidedTour.h"

/// Edits the settings, has a bad value refused, looks at what was stored, and changes the language.
class Tour : public GuidedTour
{
public:
    using GuidedTour::GuidedTour;

protected:
    void walk() override;

private:
    void storesSettings();
    void readsSettings();
    void followsTheLocale();
    void takesTextsOfLibrary();

    void showsDefaults();
    void edit();
    void showsRefusal();
    void correctPort();
    void showsStoredValues();
    void showsGermanTexts();

    void expectFields(const QString &port, const QString &interval, const QString &volumeText);
};
