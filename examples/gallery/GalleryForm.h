#pragma once

#include "KxDialogs.h"
#include "PictureBitmap.h"

class CGalleryDlg;

/// The window of a CGalleryDlg: a Qt Designer form whose tabs hold the pages' forms.
class GalleryForm : public QBaseDialog
{
    Q_OBJECT
public:
    explicit GalleryForm(CGalleryDlg &dlg);

    void OnCancel() override;

private:
    CGalleryDlg &m_dlg;
    PictureBitmap m_picture;
};
