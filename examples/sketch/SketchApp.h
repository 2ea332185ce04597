#pragma once

#include "KxMFCWrapper.h"

class CSketchApp : public CWinApp
{
public:
    CSketchApp();

    BOOL InitInstance();
    INT_PTR ShowSketch();
};

extern CSketchApp theApp;
