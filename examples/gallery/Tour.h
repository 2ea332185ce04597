#pragma once

#include "GuidedTour.h"

class QTableWidget;

/// The tour through all pages of the gallery.
class Tour : public GuidedTour
{
public:
    using GuidedTour::GuidedTour;

protected:
    void walk() override;

private:
    void editPage();
    void listBoxPage();
    void listPage();
    void treePage();
    void commonPage();
    void deletesItems();

    /// Turns to a page by a click on its tab.
    static void turnTo(int page);
    /// @return the list of results of the current page.
    static QTableWidget *results();

    /// Expects that the list of results shows a call with this result.
    void expectResult(const char *call, const char *result);
    /// Expects the signals listed for the current page to be these, each as "name(value)".
    void expectSignals(const QStringList &expected);
    /// Expects the rows that are selected in an item view.
    void expectSelectedRows(const char *view, const QList<int> &expected);
};
