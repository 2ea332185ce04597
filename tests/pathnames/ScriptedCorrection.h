#ifndef SCRIPTEDCORRECTION_H
#define SCRIPTEDCORRECTION_H

#include "KxPlatformServices.h"

/// Installed for its own life: answers path corrections as it is told; every other service is the former one.
class ScriptedCorrection : public KxPlatformServices
{
public:
    ScriptedCorrection() { setPlatformServices(this); }
    ~ScriptedCorrection() override { setPlatformServices(nullptr); }

    KxKeyboardService &keyboard() override { return m_former.keyboard(); }
    KxImageService &image() override { return m_former.image(); }
    KxGdiObjectService &gdiObjects() override { return m_former.gdiObjects(); }
    KxPathCorrectionService &pathCorrection() override { return m_correction; }

    void answer(bool succeeds, const std::wstring &path)
    {
        m_correction.m_succeeds = succeeds;
        m_correction.m_path = path;
    }
    std::wstring asked() const { return m_correction.m_asked; }

private:
    // Writes its answer also when it fails.
    class Correction : public KxPathCorrectionService
    {
    public:
        bool correct(const std::wstring &path, std::wstring &corrected) override
        {
            m_asked = path;
            corrected = m_path;
            return m_succeeds;
        }

        bool m_succeeds = false;
        std::wstring m_path = L"untouched";
        std::wstring m_asked;
    };

    KxPlatformServices &m_former = platformServices();
    Correction m_correction;
};

#endif
