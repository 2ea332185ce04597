#pragma once

#include <QPushButton>
#include <QWidget>

#include <initializer_list>

class CGalleryPage;
class CWnd;

/// A control of a form and the identifier that the dialog object knows it by.
struct FormControl
{
    int id;
    QWidget *widget;
};

/// Binds a dialog object to its window and registers its controls.
void bindForm(CWnd &dlg, QWidget *window, std::initializer_list<FormControl> controls);

/// The window of a page: room for the controls at the left, the list of results at the right.
class PageFrame : public QWidget
{
public:
    /// Leaves the page unbound until bind().
    PageFrame();

    /// @return where the page's own form goes.
    QWidget *controls() const { return m_controls; }

    /// Binds the page and registers its controls, the list of results included.
    void bind(CGalleryPage &page, std::initializer_list<FormControl> controls);

    /// Routes a button to the page. The list of results starts anew with each click.
    template <typename Page> void onClick(QPushButton *button, Page &page, void (Page::*handler)())
    {
        connect(button, &QPushButton::clicked, this, [&page, handler] {
            page.ClearResults();
            (page.*handler)();
        });
    }

private:
    QWidget *m_controls;
    QWidget *m_results;
};
