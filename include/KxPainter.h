/// @file KxPainter.h
/// @brief Drawing in Win32's vocabulary on a Qt paint device.
///
/// Nothing here owns the paint device that it draws on: its owner keeps it alive as long as the wrapper.
#pragma once

#include "KxGeometry.h"
#include "KxWinTypes.h"

#include <Qt>

#include <memory>

class QBrush;
class QImage;
class QPaintDevice;
class QPainter;
class QPainterPath;
class QRect;
class QRegion;

/// @name Pen styles
/// As KxQtPainterWrapper::setPen() draws them; LsToQPenStyle() converts them.
/// @{
constexpr int PS_SOLID = 0;           ///< A solid line.
constexpr int PS_DASH = 1;            ///< Dashes of 12 and gaps of 4 pen widths.
constexpr int PS_DOT = 2;             ///< Dots.
constexpr int PS_DASHDOT = 3;         ///< Dashes and dots in turn.
constexpr int PS_DASHDOTDOT = 4;      ///< A dash and two dots in turn.
constexpr int PS_NULL = 5;            ///< No line.
constexpr int PS_INSIDEFRAME = 6;     ///< Dashes as those of PS_DASH, unlike Win32.
constexpr int PS_USERSTYLE = 7;       ///< Dashes as those of PS_DASH, unlike Win32.
constexpr int PS_ENDCAP_FLAT = 0x200; ///< Ignored, as all bits above the low four.
/// @}

/// @name Background modes
/// For KxQtPainterWrapper::setBkMode().
/// @{
constexpr int TRANSPARENT = 1; ///< Gaps show what is below.
constexpr int OPAQUE = 2;      ///< Gaps are filled with the background.
/// @}

/// Length of a face name, with its terminator.
constexpr int LF_FACESIZE = 32;

/// A font to look for; see KxQtPainterWrapper::setFontIndirect().
struct LOGFONTW
{
    LONG lfHeight;                   ///< Size; 0 and below: #lfWeight stands in for it.
    LONG lfWidth;                    ///< Ignored.
    LONG lfEscapement;               ///< Ignored.
    LONG lfOrientation;              ///< Ignored.
    LONG lfWeight;                   ///< Ten times Qt's weight; 0 is the normal one.
    BYTE lfItalic;                   ///< Not 0: italic.
    BYTE lfUnderline;                ///< Ignored.
    BYTE lfStrikeOut;                ///< Ignored.
    BYTE lfCharSet;                  ///< Ignored.
    BYTE lfOutPrecision;             ///< Ignored.
    BYTE lfClipPrecision;            ///< Ignored.
    BYTE lfQuality;                  ///< Ignored.
    BYTE lfPitchAndFamily;           ///< 1: fixed pitch; anything else: variable pitch.
    wchar_t lfFaceName[LF_FACESIZE]; ///< Name of the family; a full array needs no terminator.
};

static_assert(offsetof(LOGFONTW, lfItalic) == 20 && offsetof(LOGFONTW, lfPitchAndFamily) == 27);
static_assert(offsetof(LOGFONTW, lfFaceName) == 28 && sizeof(LOGFONTW) == 156);

/// Converts a pen style.
///
/// PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT and PS_NULL give the Qt style of that name;
/// PS_USERSTYLE gives Qt::CustomDashLine, and PS_INSIDEFRAME too, because its number is that of
/// Qt::CustomDashLine: unlike Win32, it does not draw a solid line.
/// @param style a style without its end cap and join bits.
/// @return the Qt style; for any other value, negative ones included, that value unchanged.
KX_MFC_EXPORT Qt::PenStyle LsToQPenStyle(int style);

/// Draws on a paint device.
///
/// beginDraw() makes the painter active and endDraw() ends it; drawing, pens, brushes, fonts, modes and
/// transformations have an effect only in between, and end with it. Outside, those functions do nothing and
/// the queries give what a new painter has. The clip region and the current path belong to the wrapper and
/// last.
///
/// Colours are opaque unless an alpha is given. A rectangle's right and bottom are exclusive: what is filled
/// has the size CRect::Width() by CRect::Height(). Only the outline of drawAlphaRect() lies on them. A null
/// pointer or a count below 1 draws nothing.
class KX_MFC_EXPORT KxQtPainterWrapper
{
public:
    /// @name Construction
    /// @{

    /// Makes a wrapper without a device.
    KxQtPainterWrapper();
    /// Makes a wrapper of @p device, which it does not own; null is allowed.
    explicit KxQtPainterWrapper(QPaintDevice *device);
    KxQtPainterWrapper(const KxQtPainterWrapper &) = delete;
    KxQtPainterWrapper &operator=(const KxQtPainterWrapper &) = delete;
    /// Ends drawing. Not virtual: a KxQtPrinterPainter must be deleted as such.
    ~KxQtPainterWrapper();
    /// @}

    /// @name Device and painter
    /// @{

    /// Sets the device that the next beginDraw() takes; null is allowed. Drawing that has begun stays where
    /// it is.
    void setWrappedDevice(QPaintDevice *device);
    QPaintDevice *wrappedDevice() const; ///< @return the device; null when there is none.
    QPainter *wrappedPainter() const;    ///< @return the painter, which the wrapper owns; never null.
    /// @}

    /// @name Drawing state
    /// @{

    /// Starts to draw, with a solid black pen of width 0 (one pixel on any scale), a solid black brush and
    /// the clip region. When drawing has begun already, that state is set anew on the painter as it is.
    /// @return whether there is a device; true also when Qt refuses to paint on it, as on a widget outside
    /// its paint event.
    bool beginDraw();
    /// Goes back to the state before beginDraw() and ends the painter.
    /// @return whether drawing was active and has ended; false without a device, and nothing is ended.
    bool endDraw();
    void save();    ///< Keeps the painter's state on a stack.
    void restore(); ///< Takes the last state from the stack; each one pairs with a save().
    /// @}

    /// @name Paths
    /// While path mode is on, drawPolyline() adds to the current path in place of drawing. strokePath(),
    /// fillPath() and strokeAndFillPath() empty the path, also when nothing can be drawn.
    /// @{

    void beginPath();  ///< Turns path mode on. The current path is kept, unlike Win32.
    void endPath();    ///< Turns path mode off.
    void strokePath(); ///< Draws the outline of the path with the pen.
    /// Fills the path, odd-even, with the brush. Antialiasing is turned on and stays on until endDraw().
    void fillPath();
    /// Draws the outline with the pen, then fills with the brush. Antialiasing is turned on and stays on.
    void strokeAndFillPath();
    /// @}

    /// @name Pen, brush, background, mode and font
    /// @{

    /// Sets the pen.
    /// @param style a PS_ style; only its low four bits count. PS_DASH, PS_INSIDEFRAME and PS_USERSTYLE draw
    /// dashes of 12 and gaps of 4 pen widths.
    /// @param width in pixels; 0 is one pixel on any scale; a negative or too large one becomes 1.
    /// @param c the colour.
    void setPen(int style, int width, COLORREF c);
    void setPenColor(COLORREF c);       ///< Changes the pen's colour alone.
    void setBrush(const QBrush &brush); ///< Sets the brush.
    /// Sets a black brush.
    /// @param style a Qt::BrushStyle, not a Win32 hatch style. Those of gradients and textures, and unknown
    /// ones, give no brush.
    void setBrush(int style);
    void setBrush(COLORREF c); ///< Sets a solid brush.
    /// Tells whether the gaps of dashed lines, hatch patterns and texts are filled with the background.
    /// @param mode OPAQUE: they are; TRANSPARENT and anything else: they are not.
    void setBkMode(int mode);
    void setBackground(COLORREF c); ///< Sets the background colour.
    /// @return the QPainter::CompositionMode that is set; this is not a Win32 raster operation.
    int getROP2() const;
    /// Sets how what is drawn is combined with what is there.
    /// @param mode a QPainter::CompositionMode, not a Win32 raster operation; an unknown one is ignored.
    void setROP2(int mode);
    /// Sets the font: face name, italic, weight (a tenth of lfWeight as Qt counts weights, unless lfWeight is
    /// 0), fixed pitch (when lfPitchAndFamily is 1) and size.
    ///
    /// The size in pixels is the device's colour depth in bits times lfHeight, divided by 36 and cut to a
    /// whole number; lfWeight stands in for an lfHeight below 1, unlike Win32. What is not told,
    /// a size that is not positive included, comes from the device: a widget's font, or the application's.
    /// @param lf the font; null keeps the font as it is.
    void setFontIndirect(const LOGFONTW *lf);
    /// @}

    /// @name Clipping and transformation
    /// @{

    /// Sets the clip region, now and for every later beginDraw(): the odd-even area of polygons, in logical
    /// coordinates. They are cut where they are beyond 8192 and 4096 off what the device shows, and beyond
    /// 32768, so that huge ones cost no more than others.
    /// @param pts the points of all polygons, one after the other.
    /// @param counts the number of points of each polygon.
    /// @param n number of polygons. When it is 0, or an array is null, clipping is removed; so it is when the
    /// polygons have no area.
    void setClipRegion(POINT *pts, UINT *counts, UINT n);
    /// Moves the origin to (@p cx, @p cy) and turns the axes there by @p angle degrees, clockwise. The
    /// origin stays moved: later coordinates count from it.
    void Rotate(double angle, int cx, int cy);
    /// @}

    /// @name Drawing
    /// @{

    void drawPoint(int x, int y);                  ///< Draws a point with the pen.
    void drawLine(int x1, int y1, int x2, int y2); ///< Draws a line with the pen, both ends included.
    /// Draws lines from point to point with the pen, or adds them to the current path in path mode.
    ///
    /// While the mode is QPainter::RasterOp_SourceXorDestination, a figure whose last point is its first is
    /// drawn with that point once, so that drawing it twice leaves nothing.
    void drawPolyline(const POINT *pts, int n);
    void drawPolygon(const POINT *pts, int n); ///< Draws a polygon with pen and brush, odd-even.
    /// Draws text with the pen.
    /// @param x left end of the text.
    /// @param y its base line.
    /// @param s the text.
    /// @param len its length in characters; below 0 it goes to the terminator.
    void drawText(int x, int y, const wchar_t *s, int len);
    /// Draws a rectangle with the pen and a translucent filling, which becomes the brush. The outline goes
    /// along the right and bottom lines themselves, one pixel beyond the filling, unlike Win32.
    /// @param rect the rectangle; when its left is not below its right, the two corners are exchanged.
    /// @param c colour of the filling.
    /// @param alpha its opacity; 255 and above is opaque; below 1 there is no filling.
    void drawAlphaRect(const CRect &rect, COLORREF c, int alpha);
    /// Draws a polygon, odd-even, with the pen and a translucent filling, which becomes the brush. @p c and
    /// @p alpha are as in drawAlphaRect().
    void drawAlphaArea(const CPoint *pts, int n, COLORREF c, int alpha);
    /// Draws @p bits as an image of @p a by @p b pixels whose top left corner is at (@p a, @p b) too. The
    /// fourth and fifth argument are ignored.
    /// @param a width and x.
    /// @param b height and y.
    /// @param bits the pixels, in lines of a multiple of 4 bytes; only read.
    /// @param format a QImage::Format; nothing is drawn for an unknown one, or for one with a colour table.
    void drawImage(int a, int b, unsigned char *bits, int, int, int format);
    void drawImage(const QRect &target, const QImage &image); ///< Draws an image, scaled to a rectangle.
    void fillRect(const CRect &r, COLORREF c); ///< Fills a rectangle; pen and brush do not count.
    /// @}

protected:
    /// Sets the pen and brush that drawing starts with.
    void setDefaultPenAndBrush();

private:
    bool isDrawing() const;
    void applyClipRegion();

    QPaintDevice *m_pDevice = nullptr;
    const std::unique_ptr<QPainter> m_pPainter;
    const std::unique_ptr<QPainterPath> m_pPath;
    const std::unique_ptr<QRegion> m_pClipRegion;
    bool m_bPathMode = false;
};

/// Draws on a printer, or on another device of pages.
///
/// The painter is active as long as the object, so that one document is one object; beginDraw() and endDraw()
/// bracket a drawing in it and replace those of the base for callers that know this class.
class KX_MFC_EXPORT KxQtPrinterPainter : public KxQtPainterWrapper
{
public:
    /// Starts to draw on @p device, which it does not own; null is allowed. @p device must outlive it.
    explicit KxQtPrinterPainter(QPaintDevice *device);
    KxQtPrinterPainter(const KxQtPrinterPainter &) = delete;
    KxQtPrinterPainter &operator=(const KxQtPrinterPainter &) = delete;
    /// Ends the painter, which completes the document.
    ~KxQtPrinterPainter();

    /// Saves the painter's state and sets the pen and brush of KxQtPainterWrapper::beginDraw(), but no clip
    /// region.
    /// @return whether there is a device.
    bool beginDraw();
    /// Goes back to the state before beginDraw(); the painter stays active.
    /// @return whether there is a device.
    bool endDraw();
};

/// The object that an HDC points to: a destination device and one painter wrapper for it. It is no
/// QPaintDevice itself.
class KX_MFC_EXPORT KxQtPaintDeviceWrapper
{
public:
    /// Makes a wrapper without a destination.
    KxQtPaintDeviceWrapper();
    /// Makes a wrapper of @p device, which it does not own; null is allowed.
    explicit KxQtPaintDeviceWrapper(QPaintDevice *device);
    KxQtPaintDeviceWrapper(const KxQtPaintDeviceWrapper &) = delete;
    KxQtPaintDeviceWrapper &operator=(const KxQtPaintDeviceWrapper &) = delete;
    /// Deletes the painter wrapper.
    virtual ~KxQtPaintDeviceWrapper();

    /// Sets the destination. A painter wrapper that painter() made already stays on the former one.
    void setDestinationDevice(QPaintDevice *device);
    QPaintDevice *destinationDevice() const; ///< @return the destination; null when there is none.

    int width() const;  ///< @return the destination's width in pixels; 0 without one.
    int height() const; ///< @return the destination's height in pixels; 0 without one.
    int depth() const;  ///< @return the destination's colour depth in bits; 0 without one.

    bool beginDraw(); ///< Does nothing. @return true.
    bool endDraw();   ///< Does nothing. @return true.

    /// @return the painter wrapper, owned by this object and made by the first call on the destination of
    /// that moment.
    KxQtPainterWrapper *painter();

private:
    QPaintDevice *m_pDestinationDevice = nullptr;
    std::unique_ptr<KxQtPainterWrapper> m_pPainter;
};
