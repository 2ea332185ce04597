#include "stdafx.h"
#include "Tour.h"
#include "Converter.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

namespace {

qintptr showConverter()
{
    return theApp.InitInstance();
}

} // namespace

void Tour::walk()
{
    converts();
    remembersTheUnits();
}

void Tour::converts()
{
    const auto convert = [] { click("convert"); };
    const auto clear = [] { click("clear"); };
    runModal({{"01-start", Window::Form, [this] { showsDefaults(); }, {}},
              {"02-inches", Window::Form, [this] { convertInches(); }, {}},
              {"03-bad-amount", Window::Form, [] { type("amount", QStringLiteral("12,5 or so")); }, convert},
              {"04-refused", Window::Message, [this] { showsRefusal(); }, [] { press(Qt::Key_Return); }},
              {"05-corrected", Window::Form, [this] { correctAmount(); }, {}},
              {"06-temperature", Window::Form, [this] { convertTemperature(); }, clear},
              {"07-question", Window::Message, [this] { showsQuestion(); }, [] { press(Qt::Key_N); }},
              {"08-kept", Window::Form, [this] { keepsHistory(); }, clear},
              {"09-question", Window::Message, [this] { showsQuestion(); }, [] { press(Qt::Key_Y); }},
              {"10-cleared", Window::Form, [this] { clearsHistory(); }, [] { press(Qt::Key_Escape); }}},
             showConverter, FALSE);
}

void Tour::remembersTheUnits()
{
    runModal(
        {{"11-stored-units", Window::Form, [this] { showsStoredUnits(); }, [] { click("closeButton"); }}},
        showConverter, FALSE);

    theApp.WriteProfileInt(_T("Converter"), _T("To"), 99);
    runModal({{"12-no-such-unit", Window::Form, [this] { showsFirstUnit(); }, [] { press(Qt::Key_Escape); }}},
             showConverter, FALSE);
}

void Tour::showsDefaults()
{
    expectText("amount", control<QLineEdit>("amount")->text(), QStringLiteral("1"));
    expectUnits(QStringLiteral("Length"), QStringLiteral("m"), QStringLiteral("km"));
    expect(!control<QLabel>("icon")->pixmap(Qt::ReturnByValue).isNull(), QStringLiteral("there is no icon"));
    type("amount", QString());
    press(Qt::Key_Delete);
    expect(!control<QPushButton>("convert")->isEnabled(), QStringLiteral("no amount can be converted"));
}

void Tour::convertInches()
{
    type("amount", QStringLiteral("12"));
    press(Qt::Key_Tab); // to the unit
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Tab); // to the other unit
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    expectUnits(QStringLiteral("Length"), QStringLiteral("in"), QStringLiteral("m"));
    expectText("result", control<QLabel>("result")->text(), QStringLiteral("12 in = 0.30 m"));
}

void Tour::showsRefusal()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    expectText("message", box->text(),
               QStringLiteral("Please give the amount as a number, for example 12.5."));
}

void Tour::correctAmount()
{
    expect(QApplication::focusWidget() == control<QLineEdit>("amount"),
           QStringLiteral("the focus is not on the amount"));
    type("amount", QStringLiteral("12.5"));
    control<QSpinBox>("decimals")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    expectText("result", control<QLabel>("result")->text(), QStringLiteral("12.5 in = 0.3175 m"));
}

void Tour::convertTemperature()
{
    control<QComboBox>("quantity")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    expectUnits(QStringLiteral("Temperature"), QStringLiteral("°C"), QStringLiteral("°F"));
    click("swap");
    expectUnits(QStringLiteral("Temperature"), QStringLiteral("°F"), QStringLiteral("°C"));
    control<QComboBox>("to")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_End);
    type("amount", QStringLiteral("50"));
    click("convert");
    expectHistory({QStringLiteral("50 °F = 283.1500 K"), QStringLiteral("12.5 in = 0.3175 m"),
                   QStringLiteral("12 in = 0.30 m")});
}

void Tour::showsQuestion()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    expectText("message", box->text(), QStringLiteral("Clear the history?"));
}

void Tour::keepsHistory()
{
    expect(control<QListWidget>("history")->count() == 3, QStringLiteral("the history is not kept"));
}

void Tour::clearsHistory()
{
    expectHistory({});
}

void Tour::showsStoredUnits()
{
    expectUnits(QStringLiteral("Temperature"), QStringLiteral("°F"), QStringLiteral("K"));
}

void Tour::showsFirstUnit()
{
    expectUnits(QStringLiteral("Temperature"), QStringLiteral("°F"), QStringLiteral("°C"));
}

void Tour::expectUnits(const QString &quantity, const QString &from, const QString &to)
{
    expectText("quantity", control<QComboBox>("quantity")->currentText(), quantity);
    expectText("from", control<QComboBox>("from")->currentText(), from);
    expectText("to", control<QComboBox>("to")->currentText(), to);
}

void Tour::expectHistory(const QStringList &lines)
{
    const auto *history = control<QListWidget>("history");
    QStringList shown;
    for (int row = 0; row < history->count(); ++row)
        shown << history->item(row)->text();
    expectText("history", shown.join(QLatin1Char('\n')), lines.join(QLatin1Char('\n')));
}
