#include "Canvas.h"

#include "SketchWnd.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>

Canvas::Canvas(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(PAPER_WIDTH, PAPER_HEIGHT);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::CrossCursor);
}

void Canvas::paintEvent(QPaintEvent *)
{
    const HWND handle = reinterpret_cast<HWND>(static_cast<QWidget *>(this));
    const KxGrQtDoubleBufferImage *buffer = DeviceOf(CWnd::FromHandle(handle));
    QPainter painter(this);
    if (buffer)
        painter.drawImage(0, 0, *buffer->frontImage());
    else
        painter.fillRect(rect(), Qt::white);
}

void Canvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT pressed(event->pos());
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT moved(event->pos());
}

void Canvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT released(event->pos());
}
