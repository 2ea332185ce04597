#pragma once

#include <KxDialogs.h>

#include "WindowHandle.h"

#include <QWidget>

#include <functional>

/// A bound dialog for data exchange, with controls made on demand. It is never shown.
class ExchangeForm : public CDialog
{
public:
    static constexpr int controlID = 100;

    ExchangeForm() { Attach(handleOf(&m_form)); }

    /// Makes a control of the form and registers it.
    template <typename Widget> Widget *add(int nID = controlID)
    {
        return static_cast<Widget *>(add(new Widget, nID));
    }
    QWidget *add(QWidget *control, int nID = controlID)
    {
        control->setParent(&m_form);
        SetDlgItem(nID, handleOf(control));
        return control;
    }

    QWidget *form() { return &m_form; }

    void save(const std::function<void(CDataExchange *)> &exchange) { run(exchange, true); }
    void load(const std::function<void(CDataExchange *)> &exchange) { run(exchange, false); }

private:
    void run(const std::function<void(CDataExchange *)> &exchange, bool bSave)
    {
        CDataExchange dataExchange(this, bSave);
        exchange(&dataExchange);
    }

    QWidget m_form;
};
