#include "PlanCanvas.h"

#include "FloorPlanWnd.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

PlanCanvas::PlanCanvas(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::PointingHandCursor);
}

QScrollArea *PlanCanvas::scrollArea() const
{
    const QWidget *viewport = parentWidget();
    return viewport ? qobject_cast<QScrollArea *>(viewport->parentWidget()) : nullptr;
}

static int middleOf(const QScrollBar *bar)
{
    return bar->value() + bar->pageStep() / 2;
}

static void setMiddle(QScrollBar *bar, int middle)
{
    bar->setValue(middle - bar->pageStep() / 2);
}

void PlanCanvas::zoomTo(const QSize &newSize)
{
    const QScrollArea *area = scrollArea();
    if (!area)
        return setFixedSize(newSize);
    const int x = middleOf(area->horizontalScrollBar()) * newSize.width() / qMax(1, width());
    const int y = middleOf(area->verticalScrollBar()) * newSize.height() / qMax(1, height());
    setFixedSize(newSize);
    setMiddle(area->horizontalScrollBar(), x);
    setMiddle(area->verticalScrollBar(), y);
}

void PlanCanvas::scrollTo(const QRect &part)
{
    QScrollArea *area = scrollArea();
    if (area && !visibleRegion().intersects(part))
        area->ensureVisible(part.center().x(), part.center().y(), part.width() / 2, part.height() / 2);
}

void PlanCanvas::paintEvent(QPaintEvent *event)
{
    const HWND handle = reinterpret_cast<HWND>(static_cast<QWidget *>(this));
    const KxGrQtDoubleBufferImage *buffer = DeviceOf(CWnd::FromHandle(handle));
    QPainter painter(this);
    if (buffer && buffer->frontImage())
        painter.drawImage(event->rect(), *buffer->frontImage(), event->rect());
    else
        painter.fillRect(event->rect(), Qt::white);
}

void PlanCanvas::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT pressed(event->pos());
}

void PlanCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked(event->pos());
}
