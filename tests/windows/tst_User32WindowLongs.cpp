#include "KxUser32.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

/// GetWindowLongPtrW() and SetWindowLongW().
class tst_User32WindowLongs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void keepsFirstValue();
    void otherIndexes_data();
    void otherIndexes();
    void values();
    void erasesNullKey();
    void outlivesWidget();
    void controlId();
};

void tst_User32WindowLongs::cleanup()
{
    g_hwndMap.clear();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_User32WindowLongs::keepsFirstValue()
{
    QWidget widget;
    QWidget other;
    QCOMPARE(SetWindowLongW(handleOf(&widget), 1, 5), 0L);
    QCOMPARE(SetWindowLongW(handleOf(&widget), 1, 9), 5L);
    QCOMPARE(SetWindowLongW(handleOf(&widget), 1, 11), 5L);
    QCOMPARE(GetWindowLongPtrW(handleOf(&widget), 1), LONG_PTR{5});

    QCOMPARE(GetWindowLongPtrW(handleOf(&other), 1), LONG_PTR{0});
    QCOMPARE(SetWindowLongW(handleOf(&other), 1, 6), 0L);
    QCOMPARE(GetWindowLongPtrW(handleOf(&widget), 1), LONG_PTR{5});
    QCOMPARE(GetWindowLongPtrW(handleOf(&other), 1), LONG_PTR{6});
}

void tst_User32WindowLongs::otherIndexes_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("GWL_ID") << GWL_ID;
    QTest::newRow("style") << -16;
    QTest::newRow("user data") << -21;
    QTest::newRow("0") << 0;
    QTest::newRow("2") << 2;
    QTest::newRow("-1") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_User32WindowLongs::otherIndexes()
{
    QFETCH(int, index);

    QWidget widget;
    QCOMPARE(SetWindowLongW(handleOf(&widget), index, 5), 0L);
    QVERIFY(g_hwndMap.empty());
    SetWindowLongW(handleOf(&widget), 1, 7);
    QCOMPARE(SetWindowLongW(handleOf(&widget), index, 5), 0L);
    QCOMPARE(GetWindowLongPtrW(handleOf(&widget), index), LONG_PTR{0});
    QCOMPARE(GetWindowLongPtrW(nullptr, index), LONG_PTR{0});
    QCOMPARE(SetWindowLongW(nullptr, index, 5), 0L);
}

void tst_User32WindowLongs::values()
{
    // The handle is not looked at, so that it need not be one of a widget.
    std::uintptr_t address = 0x10000;
    for (long value : {0L, -1L, std::numeric_limits<long>::min(), std::numeric_limits<long>::max()}) {
        const auto handle = reinterpret_cast<HWND>(++address);
        QCOMPARE(SetWindowLongW(handle, 1, value), 0L);
        QCOMPARE(GetWindowLongPtrW(handle, 1), LONG_PTR{value});
        QCOMPARE(SetWindowLongW(handle, 1, 5), value);
        QCOMPARE(g_hwndMap.at(handle), value);
    }
    QCOMPARE(SetWindowLongW(nullptr, 1, 5), 0L);
    QVERIFY(g_hwndMap.find(nullptr) == g_hwndMap.end());
}

void tst_User32WindowLongs::erasesNullKey()
{
    QWidget widget;
    g_hwndMap[nullptr] = 3;

    QCOMPARE(GetWindowLongPtrW(nullptr, 1), LONG_PTR{0});
    SetWindowLongW(nullptr, 1, 5);
    SetWindowLongW(handleOf(&widget), 2, 5);
    QCOMPARE(g_hwndMap.at(nullptr), 3L);

    SetWindowLongW(handleOf(&widget), 1, 5);
    QVERIFY(g_hwndMap.find(nullptr) == g_hwndMap.end());
    QCOMPARE(GetWindowLongPtrW(handleOf(&widget), 1), LONG_PTR{5});
}

void tst_User32WindowLongs::outlivesWidget()
{
    alignas(QWidget) unsigned char place[sizeof(QWidget)];
    auto *first = new (place) QWidget;
    SetWindowLongW(handleOf(first), 1, 5);
    first->~QWidget();

    auto *second = new (place) QWidget;
    QCOMPARE(GetWindowLongPtrW(handleOf(second), 1), LONG_PTR{5});
    QCOMPARE(SetWindowLongW(handleOf(second), 1, 9), 5L);
    QCOMPARE(GetWindowLongPtrW(handleOf(second), 1), LONG_PTR{5});
    second->~QWidget();
}

void tst_User32WindowLongs::controlId()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));

    QCOMPARE(GetWindowLongPtrW(handleOf(&widget), GWL_ID), LONG_PTR{-1});
    for (int id : {1001, 0, -5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        window.SetCtrlID(id);
        QCOMPARE(GetWindowLongPtrW(handleOf(&widget), GWL_ID), LONG_PTR{id});
    }
}

QTEST_MAIN(tst_User32WindowLongs)
#include "tst_User32WindowLongs.moc"
