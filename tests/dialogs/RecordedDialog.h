#pragma once

#include <KxDialogs.h>

#include "WindowHandle.h"

#include <QStringList>

#include <functional>

/// A Qt dialog that writes its virtual calls into a log.
template <typename Base> class RecordedWindow : public Base
{
public:
    explicit RecordedWindow(QStringList &log)
        : m_log(log)
    {
    }

    int exec() override
    {
        m_log << QStringLiteral("exec");
        return Base::exec();
    }
    void accept() override
    {
        m_log << QStringLiteral("accept");
        Base::accept();
    }
    void reject() override
    {
        m_log << QStringLiteral("reject");
        Base::reject();
    }

private:
    QStringList &m_log;
};

/// A dialog that writes its virtual calls into a log and fails its validation on demand.
class RecordedDialog : public CDialog
{
public:
    using CDialog::CDialog;

    BOOL OnInitDialog() override
    {
        m_log << QStringLiteral("init %1").arg(m_nModalResult);
        const BOOL result = CDialog::OnInitDialog();
        if (m_inInit)
            m_inInit();
        return result;
    }
    void DoDataExchange(CDataExchange *pDX) override
    {
        m_log << (pDX->m_bSaveAndValidate ? QStringLiteral("save") : QStringLiteral("load"));
        if (m_fail)
            pDX->Fail();
    }

    QStringList m_log;
    bool m_fail = false;
    std::function<void()> m_inInit;
};
