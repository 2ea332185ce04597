#ifndef OPENBOX_H
#define OPENBOX_H

#include "ModalDriver.h"

#include <QMessageBox>

using Buttons = QMessageBox::StandardButtons;

inline const Buttons okOnly = QMessageBox::Ok;
inline const Buttons okCancel = QMessageBox::Ok | QMessageBox::Cancel;
inline const Buttons yesNo = QMessageBox::Yes | QMessageBox::No;
inline const Buttons yesNoCancel = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;

/// What a box looked like while it was open.
struct Seen
{
    Buttons buttons = QMessageBox::NoButton;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QWidget *parent = nullptr;
    Qt::WindowFlags flags;
    bool isModal = false;
};

inline Seen look(const QWidget *window)
{
    const auto *box = qobject_cast<const QMessageBox *>(window);
    if (!box)
        return {};
    return {box->standardButtons(), box->icon(),        box->windowTitle(), box->text(),
            box->parentWidget(),    box->windowFlags(), box->isModal()};
}

/// Notes what is seen, then ends the box as Escape does.
inline ModalDriver::Action lookAndLeave(Seen &seen)
{
    return [&seen](QWidget *window) {
        seen = look(window);
        QTest::keyClick(window, Qt::Key_Escape);
    };
}

#endif
