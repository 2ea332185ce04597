#pragma once

#include "resource.h"

class CConverterApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
};

extern CConverterApp theApp;
