#pragma once

#include <KxPlatformServices.h>

#include <QImage>

#include <map>
#include <set>

/// The keys of the control panel.
class PanelKeyboard final : public KxKeyboardService
{
public:
    int keyState(int virtualKey) override { return m_down.count(virtualKey) ? 0x8000 : 0; }
    void setKey(int virtualKey, bool down);

private:
    std::set<int> m_down;
};

/// Bitmaps and brushes.
class OwnObjects final : public KxGdiObjectService
{
public:
    QPaintDevice *bitmapDevice(HANDLE handle) override;
    QImage bitmapImage(HANDLE handle) override;
    std::optional<COLORREF> brushColor(HANDLE handle) override;
    HANDLE createBitmap(UINT flags, int width, int height) override;
    HANDLE createSolidBrush(COLORREF color) override;
    int deleteObject(HANDLE handle) override;

private:
    HANDLE nextHandle() { return reinterpret_cast<HANDLE>(++m_lastHandle); }

    std::uintptr_t m_lastHandle = 0x10000;
    std::map<HANDLE, QImage> m_bitmaps;
    std::map<HANDLE, COLORREF> m_brushes;
};

/// The images behind handles, which are all bitmaps.
class OwnImages final : public KxImageService
{
public:
    explicit OwnImages(OwnObjects &objects)
        : m_objects(objects)
    {
    }
    QImage image(HANDLE handle) override { return m_objects.bitmapImage(handle); }

private:
    OwnObjects &m_objects;
};

/// The machine's file server has all its names in small letters.
class ServerPaths final : public KxPathCorrectionService
{
public:
    bool correct(const std::wstring &path, std::wstring &corrected) override;
};

class OwnServices final : public KxPlatformServices
{
public:
    PanelKeyboard &keyboard() override { return m_keyboard; }
    KxImageService &image() override { return m_images; }
    KxGdiObjectService &gdiObjects() override { return m_objects; }
    KxPathCorrectionService &pathCorrection() override { return m_paths; }

private:
    PanelKeyboard m_keyboard;
    OwnObjects m_objects;
    OwnImages m_images{m_objects};
    ServerPaths m_paths;
};

/// @return the services of this library, whichever are installed.
OwnServices &ownServices();
