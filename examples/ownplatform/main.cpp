#include "ControlPanel.h"

#include <KxMFCWrapper.h>

#include <QApplication>
#include <QPushButton>

#include <cstdio>

// Asks the library for what it in turn asks the platform library for.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    setPanelKey(VK_RETURN, true);
    std::printf("Enter on the panel: %s\n", GetKeyState(VK_RETURN) < 0 ? "down" : "up");
    setPanelKey(VK_RETURN, false);
    std::printf("Enter on the panel: %s\n", GetKeyState(VK_RETURN) < 0 ? "down" : "up");

    QPushButton button;
    CBitmap picture;
    picture.CreateCompatibleBitmap(nullptr, 24, 16);
    SendMessageW(reinterpret_cast<HWND>(&button), BM_SETIMAGE, IMAGE_BITMAP, LPARAM(picture.m_hObject));
    const QSize size = button.icon().availableSizes().value(0);
    std::printf("picture on the button: %d x %d\n", size.width(), size.height());
    std::printf("deleted: %s\n", picture.DeleteObject() ? "yes" : "no");

    CKdUiPathname path;
    path.Parse(L"/Jobs/Panel 7.DAT");
    CString strPath;
    path.GetFullPath(strPath);
    std::printf("path: %ls\n", strPath.c_str());

    CString strTitle;
    strTitle.LoadStringW(1);
    std::printf("text: %ls\n", strTitle.c_str());
}
