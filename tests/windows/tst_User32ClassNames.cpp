#include "KxUser32.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <functional>
#include <memory>

using MakeWidget = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeWidget)

namespace {
class SpecialEdit : public QLineEdit
{
    Q_OBJECT
};

template <class Widget> MakeWidget make()
{
    return [] { return new Widget; };
}

// Zeros are written as '_'.
QString shown(std::wstring buffer)
{
    std::replace(buffer.begin(), buffer.end(), L'\0', L'_');
    return QString::fromStdWString(buffer);
}
} // namespace

/// GetClassNameW() over kinds of widgets and sizes of buffers.
class tst_User32ClassNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void kinds_data();
    void kinds();
    void buffers_data();
    void buffers();
    void nullHandle();
    void nullBuffer();
};

void tst_User32ClassNames::kinds_data()
{
    QTest::addColumn<MakeWidget>("makeWidget");
    QTest::addColumn<QString>("name");

    QTest::newRow("QLineEdit") << make<QLineEdit>() << QStringLiteral("Edit");
    QTest::newRow("subclass of QLineEdit") << make<SpecialEdit>() << QStringLiteral("Edit");
    QTest::newRow("QDoubleSpinBox") << make<QDoubleSpinBox>() << QStringLiteral("Edit");
    QTest::newRow("QSpinBox") << make<QSpinBox>() << QStringLiteral("Edit");
    QTest::newRow("QPushButton") << make<QPushButton>() << QStringLiteral("Button");
    QTest::newRow("QCheckBox") << make<QCheckBox>() << QStringLiteral("Button");
    QTest::newRow("QRadioButton") << make<QRadioButton>() << QStringLiteral("Button");
    QTest::newRow("QToolButton") << make<QToolButton>() << QStringLiteral("Button");
    QTest::newRow("QComboBox") << make<QComboBox>() << QStringLiteral("ComboBox");
    QTest::newRow("QFontComboBox") << make<QFontComboBox>() << QStringLiteral("ComboBox");
    QTest::newRow("QLabel") << make<QLabel>() << QStringLiteral("Static");
    QTest::newRow("QDateTimeEdit") << make<QDateTimeEdit>() << QString();
    QTest::newRow("QAbstractSpinBox") << make<QAbstractSpinBox>() << QString();
    QTest::newRow("QTextEdit") << make<QTextEdit>() << QString();
    QTest::newRow("QPlainTextEdit") << make<QPlainTextEdit>() << QString();
    QTest::newRow("QGroupBox") << make<QGroupBox>() << QString();
    QTest::newRow("QListWidget") << make<QListWidget>() << QString();
    QTest::newRow("QFrame") << make<QFrame>() << QString();
    QTest::newRow("QDialog") << make<QDialog>() << QString();
    QTest::newRow("QWidget") << make<QWidget>() << QString();
}

void tst_User32ClassNames::kinds()
{
    QFETCH(MakeWidget, makeWidget);
    QFETCH(QString, name);

    const std::unique_ptr<QWidget> widget(makeWidget());
    std::wstring buffer(12, L'#');

    QCOMPARE(GetClassNameW(handleOf(widget.get()), buffer.data(), 11), name.size());
    QCOMPARE(shown(buffer), name.leftJustified(11, QLatin1Char('_')) + QLatin1Char('#'));
}

void tst_User32ClassNames::buffers_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("buffer");

    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 0 << QStringLiteral("#########");
    QTest::newRow("negative") << -1 << 0 << QStringLiteral("#########");
    QTest::newRow("none") << 0 << 0 << QStringLiteral("#########");
    QTest::newRow("terminator only") << 1 << 0 << QStringLiteral("_########");
    QTest::newRow("one character") << 2 << 1 << QStringLiteral("B_#######");
    QTest::newRow("cut") << 4 << 3 << QStringLiteral("But_#####");
    QTest::newRow("one short") << 6 << 5 << QStringLiteral("Butto_###");
    QTest::newRow("exact") << 7 << 6 << QStringLiteral("Button_##");
    QTest::newRow("padded") << 9 << 6 << QStringLiteral("Button___");
}

void tst_User32ClassNames::buffers()
{
    QFETCH(int, size);

    QPushButton button;
    std::wstring buffer(9, L'#');

    QTEST(GetClassNameW(handleOf(&button), buffer.data(), size), "result");
    QTEST(shown(buffer), "buffer");
}

void tst_User32ClassNames::nullHandle()
{
    std::wstring buffer(4, L'#');
    QCOMPARE(GetClassNameW(nullptr, buffer.data(), 3), 0);
    QCOMPARE(shown(buffer), QStringLiteral("___#"));
    QCOMPARE(GetClassNameW(nullptr, buffer.data(), 0), 0);
}

void tst_User32ClassNames::nullBuffer()
{
    QPushButton button;
    QCOMPARE(GetClassNameW(handleOf(&button), nullptr, 5), 0);
}

QTEST_MAIN(tst_User32ClassNames)
#include "tst_User32ClassNames.moc"
