/// @file KxDeviceContext.h
/// @brief Device contexts and GDI objects.
///
/// A CDC draws on a CBitmap that is selected into it, or on the window whose CWnd::GetDC() gave it, once
/// _CreateDCforHwnd() made the window's device. CBrush and CBitmap hold handles of the platform's GDI
/// objects; CFont and the other tools of a context have no counterpart here: draw with the KxQtPainterWrapper
/// of the device.
#pragma once

#include "KxPainter.h"
#include "KxString.h"
#include "KxWinTypes.h"

class CDC;
class CPalette;
class CPen;
class CRgn;

/// Measures of a font, in pixels unless said otherwise. No function of this library fills one.
struct TEXTMETRICW
{
    LONG tmHeight;           ///< Height of a line: ascent and descent.
    LONG tmAscent;           ///< From the top of a line to its base line.
    LONG tmDescent;          ///< From the base line to the bottom of a line.
    LONG tmInternalLeading;  ///< The part of the height that accents take.
    LONG tmExternalLeading;  ///< Space between lines.
    LONG tmAveCharWidth;     ///< Average width of a character.
    LONG tmMaxCharWidth;     ///< Width of the widest character.
    LONG tmWeight;           ///< 400 is normal, 700 is bold.
    LONG tmOverhang;         ///< Width that emboldening or slanting adds.
    LONG tmDigitizedAspectX; ///< Horizontal aspect of the device.
    LONG tmDigitizedAspectY; ///< Vertical aspect of the device.
    wchar_t tmFirstChar;     ///< The first character that the font has.
    wchar_t tmLastChar;      ///< The last character that the font has.
    wchar_t tmDefaultChar;   ///< What stands for a character that it has not.
    wchar_t tmBreakChar;     ///< What parts words.
    BYTE tmItalic;           ///< Not 0: italic.
    BYTE tmUnderlined;       ///< Not 0: underlined.
    BYTE tmStruckOut;        ///< Not 0: struck out.
    BYTE tmPitchAndFamily;   ///< Pitch and family bits.
    BYTE tmCharSet;          ///< Number of the character set.
};

static_assert(offsetof(TEXTMETRICW, tmFirstChar) == 44 && offsetof(TEXTMETRICW, tmItalic) == 60);
static_assert(offsetof(TEXTMETRICW, tmCharSet) == 64 && sizeof(TEXTMETRICW) == 68);

/// A handle of the platform's GDI object service. Unlike MFC, no object of these classes deletes its handle,
/// neither when it is destroyed nor when it gets another one: call CBitmap::DeleteObject().
class KX_MFC_EXPORT CGdiObject
{
public:
    /// The handle; null when there is none.
    void *m_hObject = nullptr;

    /// Takes over a handle; the former one is forgotten, not deleted.
    /// @return true.
    bool Attach(void *handle);
    /// Gives the handle up.
    /// @return the handle that #m_hObject had.
    void *Detach();
    operator void *() const; ///< @return #m_hObject.
    /// @return #m_hObject; null for a null object.
    void *GetSafeHandle() const;

    /// @name Fixed results
    /// No counterpart on this platform.
    /// @{
    static CGdiObject *FromHandle(void *handle); ///< Null.
    bool DeleteObject();                         ///< true; nothing is deleted. See CBitmap::DeleteObject().
    int GetObjectW(int count, void *object);     ///< 0; nothing is written.
    /// @}
};

/// A bitmap: a picture that a CDC can draw on. A handle that is no longer of a live bitmap is one without a
/// device to draw on.
class KX_MFC_EXPORT CBitmap : public CGdiObject
{
public:
    /// Takes over a bitmap; the former one is forgotten, not deleted.
    /// @return true.
    bool Attach(HBITMAP handle);
    /// Gives the bitmap up.
    /// @return the handle that #m_hObject had.
    HBITMAP Detach();
    operator HBITMAP() const; ///< @return #m_hObject.

    /// Makes a bitmap of black 32-bit pixels.
    /// @param dc ignored.
    /// @param w width in pixels.
    /// @param h height in pixels.
    /// @return whether it was made; otherwise #m_hObject is null. A former handle is not deleted.
    bool CreateCompatibleBitmap(CDC *dc, int w, int h);
    /// Loads the bitmap resource @p id of the program. #m_hObject is null when there is no such resource. A
    /// former handle is not deleted.
    /// @return true, whatever was loaded: look at #m_hObject.
    bool LoadBitmapW(UINT id);
    /// Deletes the bitmap. #m_hObject keeps the handle, which is stale from now on.
    /// @return nonzero on success; 0 when there is no such bitmap or it is being painted on. While it is
    /// selected into a CDC that will draw again it must stay.
    int DeleteObject();

    int Add(CBitmap *image, UINT mask); ///< 0; no counterpart on this platform.
};

/// A brush of one colour.
class KX_MFC_EXPORT CBrush : public CGdiObject
{
public:
    /// Makes an object without a brush.
    CBrush();
    /// Makes a solid brush of the colour @p c.
    explicit CBrush(COLORREF c);
};

/// A font, which is none on this platform: KxQtPainterWrapper::setFontIndirect() sets that of a text.
class KX_MFC_EXPORT CFont : public CGdiObject
{
public:
    /// @name Fixed results
    /// No counterpart on this platform.
    /// @{
    static CFont *FromHandle(HFONT handle); ///< Null.
    /// true; no font is made.
    bool CreateFontW(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                     BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                     BYTE quality, BYTE pitchAndFamily, const wchar_t *faceName);
    /// @}
};

/// The device of a bitmap that is selected into a CDC.
class KX_MFC_EXPORT KxHDCWrapper : public KxQtPaintDeviceWrapper
{
public:
    /// The bitmap; not owned.
    CBitmap *m_pBitmap = nullptr;

    /// Makes a wrapper of @p device, which it does not own; null is allowed.
    explicit KxHDCWrapper(QPaintDevice *device);
};

/// A device context: a thin object around a paint device.
///
/// CWnd::GetDC() hands out the one of a window, which the window owns and which has no device until
/// _CreateDCforHwnd() makes one, unlike MFC. To draw on a bitmap, select it into a context of your own.
/// Drawing beyond FillRect() goes through the painter of the device that the HDC points to.
class KX_MFC_EXPORT CDC : public CObject
{
public:
    /// The device, a KxQtPaintDeviceWrapper that this object owns; null when there is none.
    HDC m_hDC = nullptr;

    /// Makes a context without a device.
    CDC();
    /// Destroys the device.
    ~CDC() override;

    /// @return #m_hDC.
    operator HDC() const;

    /// Makes a bitmap the device, unless there is a device already: unlike MFC, the first bitmap stays and a
    /// second one is not selected.
    /// @param bitmap the bitmap; null, and one without a handle, select nothing. It must outlive the context,
    /// and keep its handle.
    /// @return the bitmap that was selected before, which stays selected; null when there was none, or when
    /// the device is not that of a bitmap.
    CBitmap *SelectObject(CBitmap *bitmap);
    /// Fills a rectangle, whose right and bottom are exclusive.
    ///
    /// On the context of a window this paints on the widget itself, which Qt allows in its paint event only;
    /// drawing that is to last goes to KxGrQtDoubleBufferImage::memPainter(). The widget must live as long as
    /// its context is drawn on.
    /// @param rect the rectangle; nothing is filled for null or without a device.
    /// @param brush its colour; black for null and for one without a live handle.
    void FillRect(const RECT *rect, CBrush *brush);

    virtual CGdiObject *SelectStockObject(int index); ///< Null; fixed result.
    virtual CFont *SelectObject(CFont *font);         ///< Null; fixed result.
    virtual int SaveDC();                             ///< 0; fixed result.
    virtual bool RestoreDC(int savedDC);              ///< true; fixed result.

    /// @name Fixed results
    /// No counterpart on this platform; arguments are ignored.
    /// @{
    HDC GetSafeHdc() const;              ///< Null, also when there is a device: use the conversion to HDC.
    bool Attach(HDC hdc);                ///< false.
    HDC Detach();                        ///< Null; #m_hDC stays.
    CPen *SelectObject(CPen *pen);       ///< Null.
    CBrush *SelectObject(CBrush *brush); ///< Null.
    CGdiObject *SelectObject(CGdiObject *object);          ///< Null.
    int SelectObject(CRgn *region);                        ///< 0.
    CPalette *SelectPalette(CPalette *palette, bool back); ///< Null.
    bool CreateCompatibleDC(CDC *dc);                      ///< true; no device is made.
    bool DeleteDC();                                       ///< true; the device stays.
    int GetDeviceCaps(int index) const;                    ///< 0.
    bool GetTextMetricsW(TEXTMETRICW *metrics) const;      ///< true; nothing is written.
    CSize GetTextExtent(const CString &text) const;        ///< CSize(0, 0).
    /// true; nothing is copied.
    bool BitBlt(int x, int y, int width, int height, CDC *source, int xSource, int ySource, DWORD rop);
    void FrameRect(const RECT *rect, CBrush *brush);                  ///< Nothing.
    void FillSolidRect(const RECT *rect, COLORREF c);                 ///< Nothing; use FillRect().
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color); ///< Nothing; use FillRect().
    /// @}
};

/// Gives the context of a registered window a device: a new KxGrQtDoubleBufferImage whose destination is the
/// widget.
///
/// The device that the context had is overwritten and not freed, since ported code may still hold it: take
/// CDC::m_hDC before and delete it when nothing uses it any more. The device does not own the widget, which
/// must live as long as the context is used.
/// @return the window's context, owned by the window; null when no bound window object is registered for
/// @p hwnd.
KX_MFC_EXPORT CDC *_CreateDCforHwnd(HWND hwnd);
