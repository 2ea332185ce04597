/// @file KxClipboard.h
/// @brief Clipboard formats and the data objects that copy and paste under them.
///
/// Data is copied with COleDataSource::CacheGlobalData() under a number that RegisterClipboardFormatW() gave,
/// as a block of memory from CSharedFile::Detach(), and pasted with COleDataObject::GetGlobalData().
///
/// The clipboard is a store of this process. Unlike in Win32 the desktop's clipboard is neither read nor
/// written, and nothing empties the store.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

#include <map>

class QMimeData;
class KxPlatformClipboard;

/// The number of a clipboard format.
using CLIPFORMAT = WORD;

/// @name Built-in formats
/// None of them ever has data: register a format of your own with RegisterClipboardFormatW(). Each
/// enumeration reports CF_UNICODETEXT and CF_BITMAP first all the same.
/// @{
constexpr CLIPFORMAT CF_TEXT = 1;
constexpr CLIPFORMAT CF_BITMAP = 2;
constexpr CLIPFORMAT CF_METAFILEPICT = 3;
constexpr CLIPFORMAT CF_SYLK = 4;
constexpr CLIPFORMAT CF_DIF = 5;
constexpr CLIPFORMAT CF_TIFF = 6;
constexpr CLIPFORMAT CF_OEMTEXT = 7;
constexpr CLIPFORMAT CF_DIB = 8;
constexpr CLIPFORMAT CF_PALETTE = 9;
constexpr CLIPFORMAT CF_PENDATA = 10;
constexpr CLIPFORMAT CF_RIFF = 11;
constexpr CLIPFORMAT CF_WAVE = 12;
constexpr CLIPFORMAT CF_UNICODETEXT = 13;
constexpr CLIPFORMAT CF_ENHMETAFILE = 14;
constexpr CLIPFORMAT CF_HDROP = 15;
constexpr CLIPFORMAT CF_LOCALE = 16;
constexpr CLIPFORMAT CF_DIBV5 = 17;
/// @}

/// A format of a data object. Only #cfFormat is ever written, and nothing is read.
struct FORMATETC
{
    CLIPFORMAT cfFormat;        ///< Number of the format.
    struct DVTARGETDEVICE *ptd; ///< Not used.
    DWORD dwAspect;             ///< Not used.
    LONG lindex;                ///< Not used.
    DWORD tymed;                ///< Not used.
};

static_assert(offsetof(FORMATETC, cfFormat) == 0 && offsetof(FORMATETC, ptd) == 8);
static_assert(offsetof(FORMATETC, dwAspect) == 16 && offsetof(FORMATETC, lindex) == 20);
static_assert(offsetof(FORMATETC, tymed) == 24 && sizeof(FORMATETC) == 32);

/// @name Process-wide state
/// Made when the library is loaded, destroyed when it is unloaded; no QApplication is needed. Only the
/// functions of this header change it.
/// @{

/// The store. A format's name is its MIME type, and the bytes under it are the KxGlobalMemory that an HGLOBAL
/// points to, not a copy. A registered format without data has no bytes. Only the name "text/uri-list", which
/// Qt keeps for itself, has a null character added.
extern KX_MFC_EXPORT QMimeData g_clipboardData;
/// The formats' names by number.
extern KX_MFC_EXPORT std::map<int, CString> g_mapCF;
/// The one clipboard, which all data objects share.
extern KX_MFC_EXPORT KxPlatformClipboard g_platformClipboard;
/// The number that the next registered format gets; first 3456.
extern KX_MFC_EXPORT int g_iCFIndex;
/// @}

/// Registers a clipboard format for the life of the process.
/// @param name the format's name; case counts, unlike in Win32. The empty name gets a number, but no data.
/// @return the format's number, the same for each call with this name; 0 when @p name is null or has the same
/// UTF-16 form as another registered name.
KX_MFC_EXPORT UINT RegisterClipboardFormatW(const wchar_t *name);

/// Gives the built-in format at a position of an enumeration.
/// @param i the position, from 0.
/// @return CF_UNICODETEXT for 0, CF_BITMAP for 1, CF_TEXT for any other number.
KX_MFC_EXPORT CLIPFORMAT TOCLIPFORMAT(int i);

/// Access to the store, and the position of the one enumeration of its formats.
class KX_MFC_EXPORT KxPlatformClipboard
{
public:
    /// An object that is not attached and therefore has no data.
    KxPlatformClipboard();
    KxPlatformClipboard(const KxPlatformClipboard &) = delete;
    KxPlatformClipboard &operator=(const KxPlatformClipboard &) = delete;
    /// Frees the data of all formats, if attached; the formats stay registered.
    ~KxPlatformClipboard();

    /// Tells whether there is data under a format.
    /// @param format the format's number.
    /// @param fe ignored.
    /// @return whether @p format is registered and has data; false when not attached.
    bool isDataAvailable(unsigned short format, FORMATETC *fe) const;
    /// Gives the data under a format.
    /// @param format the format's number.
    /// @param fe ignored.
    /// @return the handle cached for @p format, which the store keeps; null when there is none or when not
    /// attached. Its memory is that of the application's last CacheGlobalData().
    HGLOBAL getGlobalData(unsigned short format, FORMATETC *fe) const;

    /// Attaches the object to #g_clipboardData.
    /// @return true.
    bool attachClipboard();
    /// Steps to the next format: CF_UNICODETEXT, CF_BITMAP, then one step for each entry of #g_mapCF. The
    /// built-in formats are reported whether or not there is data.
    /// @param fe receives the number in FORMATETC::cfFormat: 0 when the step's number is not registered.
    /// @return false at the end, and when @p fe is null, where the step is not taken.
    bool getNextFormat(FORMATETC *fe);

private:
    friend class COleDataObject;

    int m_nEnumStep = -1;
    int m_nEnumFormat = 3455;
    QMimeData *m_pData = nullptr;
};

/// Puts data on the clipboard. Has no state: what it cached stays when it is destroyed.
class KX_MFC_EXPORT COleDataSource
{
public:
    /// Hands a block of memory over to the clipboard and frees the one that @p format had, handle and block.
    ///
    /// The handle stays the caller's when the number was not registered or its name is empty; a number that
    /// was not registered takes a step in later enumerations all the same. Nothing else happens when the
    /// clipboard holds the handle already, whether for this format or another, and when the handle is null.
    /// @param format a number from RegisterClipboardFormatW().
    /// @param hGlobal a KxGlobalMemory as made by CSharedFile::Detach(); owned by the clipboard from now on.
    void CacheGlobalData(unsigned format, HGLOBAL hGlobal);
};

/// Reads data from the clipboard. All objects share one enumeration and one attachment.
class KX_MFC_EXPORT COleDataObject
{
public:
    /// An object on #g_platformClipboard.
    COleDataObject();
    /// Leaves the data alone.
    ~COleDataObject();

    /// Tells whether there is data under a format.
    /// @param format the format's number.
    /// @param fe ignored.
    /// @return whether @p format has data; false before the first AttachClipboard() of any object.
    bool IsDataAvailable(unsigned short format, FORMATETC *fe = nullptr) const;
    /// Gives the data under a format.
    /// @param format the format's number.
    /// @param fe ignored.
    /// @return the handle that was cached for @p format; null when there is none and before the first
    /// AttachClipboard() of any object. Unlike in MFC it is no copy: it stays the clipboard's and is valid
    /// until other data is cached for the format. Do not free it.
    HGLOBAL GetGlobalData(unsigned short format, FORMATETC *fe = nullptr) const;

    /// Gives all data objects access to the clipboard, for good.
    /// @return true.
    bool AttachClipboard();
    /// Starts the enumeration anew.
    void BeginEnumFormats();
    /// Steps to the next format, as KxPlatformClipboard::getNextFormat() does.
    /// @param fe receives the number in FORMATETC::cfFormat.
    /// @return false at the end, and when @p fe is null, where the step is not taken.
    bool GetNextFormat(FORMATETC *fe);

private:
    KxPlatformClipboard *m_pClipboard;
};
