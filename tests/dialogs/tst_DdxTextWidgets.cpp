#include "ExchangeForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTextEdit>

using Maker = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Maker)

static constexpr int controlID = ExchangeForm::controlID;

template <typename Widget, typename... Setup> static Maker make(Setup... setup)
{
    return [=] {
        auto *widget = new Widget;
        (setup(widget), ...);
        return widget;
    };
}

/// A control object with a text of its own.
class OwnText : public CWnd
{
public:
    using CWnd::GetWindowTextW;

    void SetWindowTextW(const wchar_t *text) override { m_text = text; }
    void GetWindowTextW(CString &text) override { text = m_text; }
    int GetWindowTextW(wchar_t *buffer, int nMaxCount) override
    {
        m_askedCount = nMaxCount;
        buffer[0] = L'!';
        return 1;
    }

    CString m_text;
    int m_askedCount = -1;
};

class tst_DdxTextWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void load_data();
    void load();
    void loadOfUneditableComboDoesNothing();
    void loadIntoSpinBox_data();
    void loadIntoSpinBox();
    void loadIntoDoubleSpinBoxIsSilent();
    void loadIntoLineEditTellsTheApplication();
    void save_data();
    void save();
    void saveBuffer_data();
    void saveBuffer();
    void saveBufferOfNothing();
    void bufferCountsCodePoints();
    void loadBuffer_data();
    void loadBuffer();
    void loadNullBuffer();
    void virtualTextOfTheControl();
};

void tst_DdxTextWidgets::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_DdxTextWidgets::load_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QByteArray>("property");

    QTest::newRow("line edit") << make<QLineEdit>() << QByteArray("text");
    QTest::newRow("spin box") << make<QSpinBox>() << QByteArray("value");
    QTest::newRow("double spin box") << make<QDoubleSpinBox>() << QByteArray("value");
    QTest::newRow("label") << make<QLabel>() << QByteArray("text");
    QTest::newRow("group box") << make<QGroupBox>() << QByteArray("title");
    QTest::newRow("push button") << make<QPushButton>() << QByteArray("text");
    QTest::newRow("check box") << make<QCheckBox>() << QByteArray("text");
    QTest::newRow("editable combo box")
        << make<QComboBox>([](QComboBox *combo) { combo->setEditable(true); }) << QByteArray("currentText");
    QTest::newRow("text edit") << make<QTextEdit>() << QByteArray("plainText");
    QTest::newRow("plain text edit is none of them") << make<QPlainTextEdit>() << QByteArray("windowTitle");
    QTest::newRow("date edit is none of them") << make<QDateEdit>() << QByteArray("windowTitle");
    QTest::newRow("plain widget") << make<QWidget>() << QByteArray("windowTitle");
}

void tst_DdxTextWidgets::load()
{
    QFETCH(Maker, maker);
    QFETCH(QByteArray, property);

    ExchangeForm form;
    QWidget *control = form.add(maker());
    int value = 42;
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, value); });
    QCOMPARE(control->property(property.constData()).toString(), QStringLiteral("42"));
}

void tst_DdxTextWidgets::loadOfUneditableComboDoesNothing()
{
    ExchangeForm form;
    auto *combo = form.add<QComboBox>();
    combo->addItems({QStringLiteral("7"), QStringLiteral("42")});
    int value = 42;
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, value); });
    QCOMPARE(combo->currentIndex(), 0);
}

void tst_DdxTextWidgets::loadIntoSpinBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("number") << QStringLiteral("42") << 42;
    QTest::newRow("no number") << QStringLiteral("abc") << 0;
    QTest::newRow("leading digits only") << QStringLiteral("12abc") << 0;
    QTest::newRow("fraction") << QStringLiteral("0.500000") << 0;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("above the range") << QStringLiteral("150") << 99;
    QTest::newRow("below the range") << QStringLiteral("-3") << 0;
}

void tst_DdxTextWidgets::loadIntoSpinBox()
{
    QFETCH(QString, text);
    QFETCH(int, value);

    ExchangeForm form;
    auto *box = form.add<QSpinBox>();
    box->setValue(5);
    const QSignalSpy numbers(box, qOverload<int>(&QSpinBox::valueChanged));
    const QSignalSpy texts(box, &QSpinBox::textChanged);
    CString member = text.toStdWString();
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, member); });
    QCOMPARE(box->value(), value);
    QCOMPARE(numbers.size(), 0);
    QCOMPARE(texts.size(), 0);
    QVERIFY(!box->signalsBlocked());
}

void tst_DdxTextWidgets::loadIntoDoubleSpinBoxIsSilent()
{
    ExchangeForm form;
    auto *box = form.add<QDoubleSpinBox>();
    const QSignalSpy numbers(box, qOverload<double>(&QDoubleSpinBox::valueChanged));
    double member = 0.5;
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, member); });
    QCOMPARE(box->value(), 0.5);
    QCOMPARE(numbers.size(), 0);
    QVERIFY(!box->signalsBlocked());
}

void tst_DdxTextWidgets::loadIntoLineEditTellsTheApplication()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    const QSignalSpy changes(edit, &QLineEdit::textChanged);
    int member = 8;
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, member); });
    QCOMPARE(changes.size(), 1);
}

void tst_DdxTextWidgets::save_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<int>("value");

    const QString number = QStringLiteral("42");
    QTest::newRow("line edit") << make<QLineEdit>([=](auto *edit) { edit->setText(number); }) << 42;
    QTest::newRow("spin box") << make<QSpinBox>([](auto *box) { box->setValue(42); }) << 42;
    QTest::newRow("spin box with suffix") << make<QSpinBox>([](auto *box) {
        box->setSuffix(QStringLiteral(" mm"));
        box->setValue(42);
    }) << 42;
    QTest::newRow("spin box with prefix") << make<QSpinBox>([](auto *box) {
        box->setPrefix(QStringLiteral("R"));
        box->setValue(42);
    }) << 0;
    QTest::newRow("double spin box") << make<QDoubleSpinBox>([](auto *box) { box->setValue(42.9); }) << 42;
    QTest::newRow("date edit shows text") << make<QDateEdit>([](auto *edit) {
        edit->setDisplayFormat(QStringLiteral("yyyy"));
        edit->setDate(QDate(2020, 1, 2));
    }) << 2020;
    QTest::newRow("label") << make<QLabel>([=](auto *label) { label->setText(number); }) << 42;
    QTest::newRow("group box") << make<QGroupBox>([=](auto *box) { box->setTitle(number); }) << 42;
    QTest::newRow("button") << make<QPushButton>([=](auto *button) { button->setText(number); }) << 42;
    QTest::newRow("combo box") << make<QComboBox>([=](auto *combo) { combo->addItem(number); }) << 42;
    QTest::newRow("edit text of a combo box") << make<QComboBox>([=](auto *combo) {
        combo->setEditable(true);
        combo->addItem(QStringLiteral("7"));
        combo->setEditText(number);
    }) << 42;
    QTest::newRow("empty combo box keeps the member") << make<QComboBox>() << 77;
    QTest::newRow("text edit") << make<QTextEdit>([](auto *edit) {
        edit->setPlainText(QStringLiteral("42\n7"));
    }) << 42;
    QTest::newRow("plain text edit has a title")
        << make<QPlainTextEdit>([=](auto *edit) { edit->setPlainText(number); }) << 77;
    QTest::newRow("plain widget") << make<QWidget>([=](auto *widget) { widget->setWindowTitle(number); })
                                  << 42;
}

void tst_DdxTextWidgets::save()
{
    QFETCH(Maker, maker);
    QFETCH(int, value);

    ExchangeForm form;
    form.add(maker());
    int member = 77;
    form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, member); });
    QCOMPARE(member, value);
}

void tst_DdxTextWidgets::saveBuffer_data()
{
    QTest::addColumn<int>("nMaxLen");
    QTest::addColumn<QString>("start");

    const QString untouched = QString(10, QLatin1Char('x'));
    const auto row = [&](const char *name, int nMaxLen, const char *text) {
        const QString written = QString::fromLatin1(text).leftJustified(nMaxLen, QChar());
        QTest::newRow(name) << nMaxLen << written + untouched.mid(nMaxLen);
    };
    QTest::newRow("negative") << -1 << untouched;
    QTest::newRow("zero") << 0 << untouched;
    row("terminator only", 1, "");
    row("one character", 2, "H");
    row("one short", 5, "Hell");
    row("exact", 6, "Hello");
    row("room to spare", 10, "Hello");
}

void tst_DdxTextWidgets::saveBuffer()
{
    QFETCH(int, nMaxLen);
    QFETCH(QString, start);

    ExchangeForm form;
    form.add<QLineEdit>()->setText(QStringLiteral("Hello"));
    std::wstring buffer(10, L'x');
    form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, buffer.data(), nMaxLen); });
    QVERIFY(nMaxLen < 1 || buffer[std::size_t(nMaxLen) - 1] == L'\0');
    QCOMPARE(QString::fromStdWString(buffer), start);
}

void tst_DdxTextWidgets::saveBufferOfNothing()
{
    ExchangeForm form;
    form.add<QLineEdit>();
    wchar_t buffer[] = L"before";
    form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, buffer, 7); });
    QCOMPARE(buffer[0], L'\0');
    form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, nullptr, 7); });
}

void tst_DdxTextWidgets::bufferCountsCodePoints()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    edit->setText(QString::fromUtf8("\xF0\x9F\x98\x80z"));
    wchar_t buffer[4] = L"xxx";
    form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, buffer, 2); });
    QVERIFY(std::wstring(buffer) == L"\U0001F600");

    edit->clear();
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, buffer, 2); });
    QCOMPARE(edit->text(), QString::fromUtf8("\xF0\x9F\x98\x80"));
}

void tst_DdxTextWidgets::loadBuffer_data()
{
    QTest::addColumn<int>("nMaxLen");

    QTest::newRow("negative") << -1;
    QTest::newRow("zero") << 0;
    QTest::newRow("shorter than the text") << 3;
    QTest::newRow("exact") << 6;
}

void tst_DdxTextWidgets::loadBuffer()
{
    QFETCH(int, nMaxLen);

    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    wchar_t buffer[] = L"Hello";
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, buffer, nMaxLen); });
    // The length limits what is read into the buffer only.
    QCOMPARE(edit->text(), QStringLiteral("Hello"));
}

void tst_DdxTextWidgets::loadNullBuffer()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    edit->setText(QStringLiteral("stays"));
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, nullptr, 7); });
    QCOMPARE(edit->text(), QStringLiteral("stays"));
}

void tst_DdxTextWidgets::virtualTextOfTheControl()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    OwnText control;
    control.SubclassDlgItem(controlID, &form);

    int number = 42;
    form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, number); });
    QVERIFY(control.m_text == CString(L"42"));
    QCOMPARE(edit->text(), QString());

    control.m_text = L"7";
    CString text;
    wchar_t buffer[3] = {};
    form.save([&](CDataExchange *exchange) {
        DDX_Text(exchange, controlID, number);
        DDX_Text(exchange, controlID, text);
        DDX_Text(exchange, controlID, buffer, 3);
    });
    QCOMPARE(number, 7);
    QVERIFY(text == CString(L"7"));
    QVERIFY(std::wstring(buffer) == L"!");
    QCOMPARE(control.m_askedCount, 3);
}

QTEST_MAIN(tst_DdxTextWidgets)
#include "tst_DdxTextWidgets.moc"
