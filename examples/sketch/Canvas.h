#pragma once

#include <QWidget>

/// The paper: shows the front image of its window's device context and reports the mouse.
class Canvas : public QWidget
{
    Q_OBJECT
public:
    explicit Canvas(QWidget *parent = nullptr);

Q_SIGNALS:
    void pressed(const QPoint &at);
    void moved(const QPoint &to);
    void released(const QPoint &at);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};
