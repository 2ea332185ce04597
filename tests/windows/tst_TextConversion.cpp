#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>

Q_DECLARE_METATYPE(std::wstring)

/// Texts go to Qt as QString::fromWCharArray() converts them, whatever way they take.
class tst_TextConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCodePoint_data();
    void everyCodePoint();
    void everyCodePointAlone();
};

static QString titleOf(const std::wstring &text)
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    window.SetWindowTextW(text.c_str());
    return widget.windowTitle();
}

static QString qtTitleOf(const std::wstring &text)
{
    QWidget widget;
    widget.setWindowTitle(QString::fromWCharArray(text.c_str()));
    return widget.windowTitle();
}

void tst_TextConversion::everyCodePoint_data()
{
    QTest::addColumn<std::wstring>("text");

    constexpr wchar_t chunk = 0x1000;
    for (wchar_t first = 0; first <= 0x110000; first += chunk) {
        std::wstring text(L"a");
        for (wchar_t ch = std::max(first, wchar_t(1)); ch < first + chunk; ++ch)
            text += ch;
        QTest::addRow("from U+%04X", unsigned(first)) << text;
    }
    QTest::newRow("byte order mark") << std::wstring(L"\uFEFFtext");
    QTest::newRow("swapped byte order mark") << std::wstring{wchar_t(0xFFFE0000), L't'};
    QTest::newRow("byte order mark alone") << std::wstring(L"\uFEFF");
    QTest::newRow("negative character") << std::wstring{L'a', wchar_t(-1), L'b'};
    QTest::newRow("empty") << std::wstring();
}

void tst_TextConversion::everyCodePoint()
{
    QFETCH(std::wstring, text);
    QCOMPARE(titleOf(text), qtTitleOf(text));
}

void tst_TextConversion::everyCodePointAlone()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    for (wchar_t ch = 1; ch <= 0xFFFF; ++ch) {
        const wchar_t text[] = {ch, 0};
        window.SetWindowTextW(text);
        if (widget.windowTitle() != QString::fromWCharArray(text))
            QFAIL(qPrintable(QStringLiteral("U+%1").arg(uint(ch), 4, 16)));
    }
}

QTEST_MAIN(tst_TextConversion)
#include "tst_TextConversion.moc"
