// Drawing through the wrappers beside a bare QPainter.

#include "KxDrawing.h"

#include <KxPlatformServices.h>

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include <vector>

namespace {

constexpr auto format = QImage::Format_ARGB32_Premultiplied;
constexpr int lineCount = 10000;
constexpr COLORREF color = 0x002080FF;
const QColor qtColor(255, 128, 32);

struct SelectedBitmap
{
    explicit SelectedBitmap(int size)
        : brush(color)
    {
        bitmap.CreateCompatibleBitmap(nullptr, size, size);
        dc.SelectObject(&bitmap);
    }
    SelectedBitmap(const SelectedBitmap &) = delete;
    SelectedBitmap &operator=(const SelectedBitmap &) = delete;
    ~SelectedBitmap()
    {
        bitmap.DeleteObject();
        platformServices().gdiObjects().deleteObject(brush.m_hObject);
    }

    CBitmap bitmap;
    CBrush brush;
    CDC dc;
};

void fillRectKx(benchmark::State &state)
{
    const int size = int(state.range(0));
    SelectedBitmap target(size);
    const RECT rect = {0, 0, size, size};
    for (auto _ : state)
        target.dc.FillRect(&rect, &target.brush);
}
BENCHMARK(fillRectKx)->Name("FillRect of a square/Kx")->Arg(8)->Arg(128)->Arg(1024);

void fillRectPlain(benchmark::State &state)
{
    const int size = int(state.range(0));
    QImage image(size, size, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(0, 0, size, size, qtColor);
    }
}
BENCHMARK(fillRectPlain)->Name("FillRect of a square/plain")->Arg(8)->Arg(128)->Arg(1024);

// Lines of one length in all directions.
QPoint endOf(int line)
{
    return QPoint(line * 37 % 800, line * 61 % 600);
}

void linesKx(benchmark::State &state)
{
    QImage image(800, 600, format);
    KxQtPainterWrapper painter(&image);
    for (auto _ : state) {
        painter.beginDraw();
        painter.setPen(PS_SOLID, 1, color);
        for (int i = 0; i < lineCount; ++i)
            painter.drawLine(400, 300, endOf(i).x(), endOf(i).y());
        painter.endDraw();
    }
}
BENCHMARK(linesKx)->Name("10,000 lines/Kx");

void linesPlain(benchmark::State &state)
{
    QImage image(800, 600, format);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setPen(QPen(qtColor, 1));
        for (int i = 0; i < lineCount; ++i)
            painter.drawLine(400, 300, endOf(i).x(), endOf(i).y());
    }
}
BENCHMARK(linesPlain)->Name("10,000 lines/plain");

void polylineKx(benchmark::State &state)
{
    std::vector<CPoint> points;
    for (int i = 0; i < lineCount; ++i)
        points.emplace_back(endOf(i).x(), endOf(i).y());
    QImage image(800, 600, format);
    KxQtPainterWrapper painter(&image);
    for (auto _ : state) {
        painter.beginDraw();
        painter.setPen(PS_SOLID, 1, color);
        painter.drawPolyline(points.data(), lineCount);
        painter.endDraw();
    }
}
BENCHMARK(polylineKx)->Name("Polyline of 10,000/Kx");

void polylinePlain(benchmark::State &state)
{
    QPolygon points;
    for (int i = 0; i < lineCount; ++i)
        points << endOf(i);
    QImage image(800, 600, format);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setPen(QPen(qtColor, 1));
        painter.drawPolyline(points);
    }
}
BENCHMARK(polylinePlain)->Name("Polyline of 10,000/plain");

void shortPolylinesKx(benchmark::State &state)
{
    const CPoint points[] = {{10, 10}, {30, 12}, {28, 30}, {9, 31}};
    QImage image(800, 600, format);
    KxQtPainterWrapper painter(&image);
    painter.beginDraw();
    for (auto _ : state)
        painter.drawPolyline(points, 4);
    painter.endDraw();
}
BENCHMARK(shortPolylinesKx)->Name("Polyline of 4/Kx");

void shortPolylinesPlain(benchmark::State &state)
{
    const QPoint points[] = {{10, 10}, {30, 12}, {28, 30}, {9, 31}};
    QImage image(800, 600, format);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 0));
    for (auto _ : state)
        painter.drawPolyline(points, 4);
}
BENCHMARK(shortPolylinesPlain)->Name("Polyline of 4/plain");

constexpr int screenWidth = 1920;
constexpr int screenHeight = 1080;

void repairFrontBufferKx(benchmark::State &state)
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(screenWidth, screenHeight, 4);
    buffer.memImage()->fill(qtColor);
    for (auto _ : state)
        buffer.repairFrontBuffer();
}
BENCHMARK(repairFrontBufferKx)->Name("repairFrontBuffer of 1920x1080/Kx");

void repairFrontBufferPlain(benchmark::State &state)
{
    QImage memory(screenWidth, screenHeight, format);
    QImage front(screenWidth, screenHeight, format);
    memory.fill(qtColor);
    for (auto _ : state)
        QPainter(&front).drawImage(0, 0, memory);
}
BENCHMARK(repairFrontBufferPlain)->Name("repairFrontBuffer of 1920x1080/plain");

} // namespace
