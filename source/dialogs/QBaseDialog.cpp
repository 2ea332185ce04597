#include "KxApplication.h"
#include "KxDialogs.h"
#include "windows/KxGuard.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

static constexpr int noEndID = -1;

static QWidget *mainWidget()
{
    CWnd *window = AfxGetMainWnd();
    return isNullObject(window) ? nullptr : handleWidget(window);
}

QBaseDialog::QBaseDialog(QWidget *parent)
    : QDialog(parent ? parent : mainWidget(), Qt::Tool)
{
}

int QBaseDialog::exec()
{
    // Applications delete their dialogs from within: WA_DeleteOnClose, or an overridden call-back.
    const QPointer<QBaseDialog> self(this);
    m_nEndID = noEndID;
    const int result = QDialog::exec();
    if (self)
        execCallBack(m_nEndID);
    if (self)
        m_nEndID = noEndID;
    return result;
}

void QBaseDialog::OnOK()
{
    accept();
}

void QBaseDialog::OnCancel()
{
    reject();
}

void QBaseDialog::endById(int nID)
{
    const QPointer<QBaseDialog> self(this);
    accept();
    if (self)
        m_nEndID = nID;
}

void QBaseDialog::execCallBack(int) {}

void QBaseDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        OnCancel();
    else
        QDialog::keyPressEvent(event);
}

void QBaseDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    move(available.center() - rect().center());
}
