#include "FloodFill.h"

#include <vector>

namespace {

class CFloodFill
{
public:
    CFloodFill(CDibData &dib, unsigned nOld, unsigned nNew)
        : m_dib(dib)
        , m_nOld(nOld)
        , m_nNew(nNew)
    {
    }

    int Run(CPoint point)
    {
        int nFilled = 0;
        m_seeds.push_back(point);
        while (!m_seeds.empty()) {
            point = m_seeds.back();
            m_seeds.pop_back();
            if (m_dib.GetPixelValue(point.x, point.y) == m_nOld)
                nFilled += FillRun(point);
        }
        return nFilled;
    }

private:
    int FillRun(CPoint point)
    {
        const int nLeft = m_dib.ScanLeft(point.x, point.y, 0, m_nOld) + 1;
        const int nRight = m_dib.ScanRight(point.x, point.y, m_dib.GetWidth() - 1, m_nOld) - 1;
        m_dib.DrawLineH(nLeft, nRight, point.y, m_nNew);
        FindSeeds(nLeft, nRight, point.y - 1);
        FindSeeds(nLeft, nRight, point.y + 1);
        return nRight - nLeft + 1;
    }

    // One seed for each run of the old colour; a row outside of the bitmap has none.
    void FindSeeds(int nLeft, int nRight, int y)
    {
        int x = m_dib.SearchRight(nLeft, y, nRight, m_nOld);
        while (x <= nRight) {
            m_seeds.push_back(CPoint(x, y));
            x = m_dib.ScanRight(x, y, nRight, m_nOld);
            x = m_dib.SearchRight(x, y, nRight, m_nOld);
        }
    }

    CDibData &m_dib;
    unsigned m_nOld;
    unsigned m_nNew;
    std::vector<CPoint> m_seeds;
};

} // namespace

int FloodFill(CDibData &dib, int x, int y, COLORREF color)
{
    const unsigned nOld = dib.GetPixelValue(x, y);
    const unsigned nNew = dib.RGBtoValue(color);
    if (nOld == dib.RGBtoValue(CLR_INVALID) || nOld == nNew)
        return 0;
    return CFloodFill(dib, nOld, nNew).Run(CPoint(x, y));
}
