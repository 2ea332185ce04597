#pragma once

#include <QWidget>

class QScrollArea;

/// The widget of a CFloorPlanWnd: shows the front image of its device context and reports the mouse.
class PlanCanvas : public QWidget
{
    Q_OBJECT
public:
    explicit PlanCanvas(QWidget *parent = nullptr);

    /// Changes the size; what is in the middle of the view stays there.
    void zoomTo(const QSize &newSize);
    /// Scrolls to a part of the plan, unless some of it is in view.
    void scrollTo(const QRect &part);

Q_SIGNALS:
    void pressed(const QPoint &at);
    void doubleClicked(const QPoint &at);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QScrollArea *scrollArea() const;
};
