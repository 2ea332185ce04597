#pragma once

#include "StockData.h"

struct CPlanDoor;

/// One drawing of the floor plan, in the pixels of one zoom.
class CPlanDrawing
{
public:
    CPlanDrawing(const CStock &stock, int nZoom);

    /// @return the size of the plan and the legend below it.
    CSize GetSize() const;
    CRect GetRoomRect(int nRoom) const;
    /// @param pPainter draws on an image of that size.
    void Draw(KxQtPainterWrapper *pPainter);
    /// Draws a frame around a room.
    void DrawSelection(KxQtPainterWrapper *pPainter, int nRoom) const;

private:
    int Scale(int n) const;
    CRect Scale(CRect rect) const;
    int GetFontPixels() const;
    int GetWall(int nRoom) const;
    COLORREF GetFloorColor(int nRoom) const;

    void DrawWalls(KxQtPainterWrapper *pPainter) const;
    void DrawWall(CDC &dc, int nRoom) const;
    void FillFloors(CDibData &dib) const;
    void DrawDoors(KxQtPainterWrapper *pPainter) const;
    void OpenWall(KxQtPainterWrapper *pPainter, const CPlanDoor &door, int nWall) const;
    void DrawLeaf(KxQtPainterWrapper *pPainter, const CPlanDoor &door, int nWall) const;
    void DrawLabels(KxQtPainterWrapper *pPainter) const;
    void DrawSigns(KxQtPainterWrapper *pPainter) const;
    void DrawLabel(KxQtPainterWrapper *pPainter, int nRoom) const;
    void DrawSign(KxQtPainterWrapper *pPainter, int nRoom) const;
    void DrawLegend(KxQtPainterWrapper *pPainter) const;

    const CStock &m_stock;
    const int m_nZoom;
    CWordArray m_counts;
    CByteArray m_usage;
};
