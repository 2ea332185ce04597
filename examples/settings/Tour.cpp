#include "Tour.h"

#include "SettingsApp.h"
#include "resource.h"

#include <KxPlatform.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QRadioButton>

namespace {

qintptr showSettings()
{
    return theApp.ShowSettings();
}

QString textOf(UINT id)
{
    CString text;
    text.LoadStringW(id);
    return QString::fromWCharArray(text);
}

} // namespace

void Tour::walk()
{
    QLocale::setDefault(QLocale(QStringLiteral("en_US")));
    storesSettings();
    readsSettings();
    followsTheLocale();
    takesTextsOfLibrary();
}

void Tour::storesSettings()
{
    runModal(
        {{"01-defaults", Window::Form, [this] { showsDefaults(); }, {}},
         {"02-edited", Window::Form, [this] { edit(); }, {}},
         {"03-bad-port", Window::Form, [] { type("port", QStringLiteral("70000")); }, [] { click("ok"); }},
         {"04-refused", Window::Message, [this] { showsRefusal(); }, [] { press(Qt::Key_Return); }},
         {"05-corrected", Window::Form, [this] { correctPort(); }, [] { press(Qt::Key_Return); }}},
        showSettings, IDOK);
    expectStored("Port=9100");
    expectStored("Name=North ridge");
    expectStored("IntervalMs=2500");
}

void Tour::readsSettings()
{
    runModal({{"06-stored-values", Window::Form, [this] { showsStoredValues(); }, {}},
              {"07-cancelled", Window::Form, [] { type("name", QStringLiteral("Never stored")); },
               [] { press(Qt::Key_Escape); }}},
             showSettings, IDCANCEL);
    expectStored("Name=North ridge");
}

void Tour::followsTheLocale()
{
    const QLocale english;
    QLocale::setDefault(QLocale(QStringLiteral("de_AT")));
    SetThreadUILanguage(0);
    expectText("title", textOf(IDS_TITLE), QStringLiteral("Station einrichten"));
    expectText("message", textOf(IDS_BAD_PORT),
               QStringLiteral("Der Port muss eine Zahl von 1 bis 65535 sein."));
    QLocale::setDefault(english);
    SetThreadUILanguage(0);
    expectText("title", textOf(IDS_TITLE), QStringLiteral("Station Settings"));
}

void Tour::takesTextsOfLibrary()
{
    const QString german = QCoreApplication::applicationDirPath() + QStringLiteral("/settings_de.so");
    expect(theApp.UseTextsOf(german.toStdWString().c_str()),
           QStringLiteral("cannot load the texts in %1").arg(german));
    runModal({{"08-german", Window::Form, [this] { showsGermanTexts(); }, [] { press(Qt::Key_Escape); }}},
             showSettings, IDCANCEL);
    theApp.UseTextsOf(nullptr);
    expectText("title", textOf(IDS_TITLE), QStringLiteral("Station Settings"));
}

void Tour::showsDefaults()
{
    expectText("name", control<QLineEdit>("name")->text(), QStringLiteral("Weather station"));
    expectText("speed", control<QComboBox>("speed")->currentText(), QStringLiteral("9600"));
    expectText("format", control<QComboBox>("format")->currentText(), QStringLiteral("CSV"));
    expect(control<QRadioButton>("metric")->isChecked(), QStringLiteral("metric is not checked"));
    expectFields(QStringLiteral("8080"), QStringLiteral("1.500000"), QStringLiteral("50 %"));
}

void Tour::edit()
{
    type("name", QStringLiteral("North ridge"));
    type("interval", QStringLiteral("2.5"));
    press(Qt::Key_Tab); // to the speed
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Tab); // to the format
    press(Qt::Key_End);
    click("imperial");
    auto *channels = control<QListWidget>("channel");
    click(channels->viewport(), channels->visualItemRect(channels->item(2)).center());
    press(Qt::Key_Tab); // to the volume
    press(Qt::Key_PageUp);
    press(Qt::Key_PageUp);
    click("autoStart");
    expectText("speed", control<QComboBox>("speed")->currentText(), QStringLiteral("38400"));
    expectFields(QStringLiteral("8080"), QStringLiteral("2.5"), QStringLiteral("70 %"));
}

void Tour::showsRefusal()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    expectText("message", box->text(), QStringLiteral("The port must be a number from 1 to 65535."));
}

void Tour::correctPort()
{
    const auto *field = QApplication::focusWidget();
    expect(field == control<QLineEdit>("port"), QStringLiteral("the focus is not on the port"));
    type("port", QStringLiteral("9100"));
}

void Tour::showsStoredValues()
{
    expectText("name", control<QLineEdit>("name")->text(), QStringLiteral("North ridge"));
    expectText("speed", control<QComboBox>("speed")->currentText(), QStringLiteral("38400"));
    expectText("format", control<QComboBox>("format")->currentText(), QStringLiteral("XML"));
    expectText("channel", control<QListWidget>("channel")->currentItem()->text(), QStringLiteral("Humidity"));
    expect(control<QRadioButton>("imperial")->isChecked(), QStringLiteral("imperial is not checked"));
    expect(control<QAbstractButton>("autoStart")->isChecked(), QStringLiteral("autoStart is not checked"));
    expectFields(QStringLiteral("9100"), QStringLiteral("2.500000"), QStringLiteral("70 %"));
}

void Tour::showsGermanTexts()
{
    expectText("title", QApplication::activeModalWidget()->windowTitle(),
               QStringLiteral("Station einrichten"));
    expectText("speed", control<QLabel>("speedLabel")->text(), QStringLiteral("Ü&bertragungsrate:"));
    expectText("channel", control<QListWidget>("channel")->currentItem()->text(),
               QStringLiteral("Luftfeuchte"));
    expectText("cancel", control<QAbstractButton>("cancel")->text(), QStringLiteral("Abbrechen"));
    expectText("format", control<QComboBox>("format")->currentText(), QStringLiteral("XML"));
}

void Tour::expectFields(const QString &port, const QString &interval, const QString &volumeText)
{
    expectText("port", control<QLineEdit>("port")->text(), port);
    expectText("interval", control<QLineEdit>("interval")->text(), interval);
    expectText("volume", control<QLabel>("volumeText")->text(), volumeText);
}
