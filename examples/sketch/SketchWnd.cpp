#include "SketchWnd.h"

#include "FloodFill.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>

static const COLORREF PAPER = RGB(255, 255, 255);
static const int BOX_ALPHA = 80;
static const COLORREF FRAME_COLOR = RGB(128, 128, 128);
static const int PDF_RESOLUTION = 96; // dots per inch

KxGrQtDoubleBufferImage *DeviceOf(CWnd *pWnd)
{
    HDC hDC = pWnd ? pWnd->GetSafeHdc() : nullptr;
    return static_cast<KxGrQtDoubleBufferImage *>(reinterpret_cast<KxQtPaintDeviceWrapper *>(hDC));
}

static HDC ToHDC(KxQtPainterWrapper *pPainter)
{
    return reinterpret_cast<HDC>(pPainter);
}

void CSketchWnd::PreSubclassWindow()
{
    _CreateDCforHwnd(m_hWnd);
    DeviceOf(this)->createImages(PAPER_WIDTH, PAPER_HEIGHT, 4);
    KxQtPainterWrapper *pPainter = BeginPaint();
    pPainter->fillRect(CRect(0, 0, PAPER_WIDTH, PAPER_HEIGHT), PAPER);
    EndPaint(pPainter);
}

KxQtPainterWrapper *CSketchWnd::BeginPaint()
{
    KxQtPainterWrapper *pPainter = DeviceOf(this)->memPainter();
    pPainter->beginDraw();
    return pPainter;
}

void CSketchWnd::EndPaint(KxQtPainterWrapper *pPainter)
{
    pPainter->endDraw();
    DeviceOf(this)->repairFrontBuffer();
}

void CSketchWnd::OnLButtonDown(CPoint point)
{
    SaveForUndo();
    m_start = m_last = point;
    m_nDragTool = m_nTool;
    if (m_nDragTool == TOOL_FILL)
        return Fill(point);

    m_bDragging = true;
    if (m_nDragTool == TOOL_FREEHAND)
        DrawLine(point, point);
    else
        DrawRubberBand();
}

void CSketchWnd::OnMouseMove(CPoint point)
{
    if (!m_bDragging)
        return;
    if (m_nDragTool == TOOL_FREEHAND) {
        DrawLine(m_last, point);
        m_last = point;
        return;
    }
    // Drawn a second time, the old rubber band is gone.
    DrawRubberBand();
    m_last = point;
    DrawRubberBand();
}

void CSketchWnd::OnLButtonUp(CPoint point)
{
    if (!m_bDragging)
        return;
    OnMouseMove(point);
    m_bDragging = false;
    if (m_nDragTool != TOOL_FREEHAND)
        DrawRubberBand();
    if (m_nDragTool == TOOL_LINE)
        DrawLine(m_start, point);
    if (m_nDragTool == TOOL_BOX)
        DrawBox(CRect(m_start.x, m_start.y, point.x, point.y));
    m_strStatus.Format(L"Drawn from %d, %d to %d, %d", m_start.x, m_start.y, point.x, point.y);
}

void CSketchWnd::DrawLine(CPoint from, CPoint to)
{
    const POINT points[] = {from, to};
    KxQtPainterWrapper *pPainter = BeginPaint();
    pPainter->setPen(m_pen.nStyle, m_pen.nWidth, m_pen.color);
    pPainter->drawPolyline(points, 2);
    EndPaint(pPainter);
}

void CSketchWnd::DrawBox(CRect rect)
{
    KxQtPainterWrapper *pPainter = BeginPaint();
    pPainter->setPen(m_pen.nStyle, m_pen.nWidth, m_pen.color);
    pPainter->drawAlphaRect(rect, m_pen.color, BOX_ALPHA);
    EndPaint(pPainter);
}

void CSketchWnd::DrawRubberBand()
{
    const POINT line[] = {m_start, m_last};
    const POINT box[] = {m_start, {m_last.x, m_start.y}, m_last, {m_start.x, m_last.y}, m_start};
    KxQtPainterWrapper *pPainter = BeginPaint();
    pPainter->setROP2(QPainter::RasterOp_SourceXorDestination);
    pPainter->setPen(PS_SOLID, 1, PAPER);
    if (m_nDragTool == TOOL_BOX)
        pPainter->drawPolyline(box, 5);
    else
        pPainter->drawPolyline(line, 2);
    EndPaint(pPainter);
}

void CSketchWnd::Fill(CPoint point)
{
    CDibData dib;
    HDC hDC = nullptr;
    HBITMAP hBitmap = nullptr;
    dib.makeBitmap(hDC, hBitmap, PAPER_WIDTH, PAPER_HEIGHT, nullptr);
    const QRect paper(0, 0, PAPER_WIDTH, PAPER_HEIGHT);
    auto *pDibPainter = reinterpret_cast<KxQtPainterWrapper *>(hDC);
    pDibPainter->beginDraw();
    pDibPainter->drawImage(paper, *DeviceOf(this)->memImage());
    pDibPainter->endDraw();

    const int nFilled = FloodFill(dib, point.x, point.y, m_pen.color);
    m_strStatus.Format(L"%d pixels filled", nFilled);
    if (nFilled == 0)
        return m_undo.pop_back();

    // DrawLineH() stores values as they are, thus with an alpha of 0. The conversion makes every pixel opaque.
    const auto *pImage = reinterpret_cast<const QImage *>(hBitmap);
    const QImage colors(pImage->constBits(), PAPER_WIDTH, PAPER_HEIGHT, QImage::Format_RGB32);
    KxQtPainterWrapper *pPainter = BeginPaint();
    pPainter->drawImage(paper, colors.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    EndPaint(pPainter);
}

void CSketchWnd::SaveForUndo()
{
    m_undo.push_back(std::make_unique<KxQtGrDCAutoSaver>(ToHDC(DeviceOf(this)->memPainter())));
}

BOOL CSketchWnd::CanUndo() const
{
    return !m_undo.empty();
}

void CSketchWnd::Undo()
{
    if (m_undo.empty() || m_bDragging)
        return;
    m_undo.pop_back();
    DeviceOf(this)->repairFrontBuffer();
    m_strStatus = L"Undone";
}

void CSketchWnd::Clear()
{
    if (m_bDragging)
        return;
    SaveForUndo();
    KxQtPainterWrapper *pPainter = BeginPaint();
    pPainter->fillRect(CRect(0, 0, PAPER_WIDTH, PAPER_HEIGHT), PAPER);
    EndPaint(pPainter);
    m_strStatus = L"Cleared";
}

BOOL CSketchWnd::Print(const CString &strFile)
{
    m_strStatus = L"Not printed";
    CFile file;
    if (!file.Open(strFile, CFile::modeCreate | CFile::modeWrite))
        return FALSE;
    file.Close();

    QPdfWriter pdf(QString::fromStdWString(strFile));
    pdf.setPageSize(QPageSize(QPageSize::A5));
    pdf.setPageOrientation(QPageLayout::Landscape);
    pdf.setResolution(PDF_RESOLUTION);
    DrawPage(pdf);
    m_strStatus.Format(L"Printed to %ls", strFile.c_str());
    return TRUE;
}

// As high as the page, in its middle, with a thin frame.
void CSketchWnd::DrawPage(QPdfWriter &pdf)
{
    const int nHeight = pdf.height() - 1;
    const int nWidth = nHeight * PAPER_WIDTH / PAPER_HEIGHT;
    const int nLeft = (pdf.width() - nWidth) / 2;
    const POINT frame[] = {{nLeft, 0}, {nLeft + nWidth, 0}, {nLeft + nWidth, nHeight}, {nLeft, nHeight}};

    KxQtPrinterPainter printer(&pdf);
    printer.beginDraw();
    printer.drawImage(QRect(nLeft, 0, nWidth, nHeight), *DeviceOf(this)->memImage());
    printer.setPen(PS_SOLID, 1, FRAME_COLOR);
    printer.setBrush(Qt::NoBrush);
    printer.drawPolygon(frame, 4);
    printer.endDraw();
}
