#pragma once

#include "KxMFCWrapper.h"

class CGalleryApp : public CWinApp
{
public:
    CGalleryApp();

    BOOL InitInstance();
    INT_PTR ShowGallery();
};

extern CGalleryApp theApp;
