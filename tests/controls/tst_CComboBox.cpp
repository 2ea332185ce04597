#include "BoundControl.h"
#include "ItemStates.h"
#include "KxListBoxes.h"
#include "LeftBehind.h"

#include <QtTest>

#include <climits>
#include <functional>
#include <memory>
#include <vector>

namespace {
// Notes what arrives at the window procedure, and how the widget stands then.
class ProcedureCombo : public CComboBox
{
public:
    struct Call
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        int current;
        bool blocked;
    };

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto *widget = reinterpret_cast<QComboBox *>(m_hWnd);
        calls.push_back({message, wParam, lParam, widget->currentIndex(), widget->signalsBlocked()});
        if (action)
            action();
        return 99;
    }

    std::vector<Call> calls;
    std::function<void()> action;
};

// "one", "two", "three", of which "two" is current.
struct Scene : BoundControl<ProcedureCombo, QComboBox>
{
    Scene()
    {
        widget.addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
        widget.setCurrentIndex(1);
    }
};

QStringList currentChange()
{
    return {QStringLiteral("currentIndexChanged(int)"), QStringLiteral("currentIndexChanged(QString)"),
            QStringLiteral("currentTextChanged(QString)")};
}
} // namespace

class tst_CComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void getCurSel();
    void setCurSel_data();
    void setCurSel();
    void setCurSelOfTheCurrentItem();
    void setCurSelInEmpty();
    void windowProcDeletesTheWidget();
    void windowProcDeletesTheObject();
    void blockedWidgetStaysBlocked();

    void addString_data();
    void addString();
    void addStringWithSignalsBlocked();
    void insertString_data();
    void insertString();
    void fullComboBox();
    void deleteString_data();
    void deleteString();
    void deleteStringOfEmpty_data();
    void deleteStringOfEmpty();
    void removeAll();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CComboBox::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CComboBox::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CComboBox::getCurSel()
{
    Scene scene;
    QCOMPARE(scene.control.GetCount(), 3);
    QCOMPARE(scene.control.GetCurSel(), 1);
    scene.widget.setCurrentIndex(-1);
    QCOMPARE(scene.control.GetCurSel(), -1);
    scene.widget.clear();
    QCOMPARE(scene.control.GetCount(), 0);
}

void tst_CComboBox::setCurSel_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("first") << 0 << true;
    QTest::newRow("last") << 2 << true;
    QTest::newRow("-1 clears") << -1 << true;
    QTest::newRow("below -1 refused") << -2 << false;
    QTest::newRow("count refused") << 3 << false;
    QTest::newRow("largest refused") << INT_MAX << false;
    QTest::newRow("smallest refused") << INT_MIN << false;
}

void tst_CComboBox::setCurSel()
{
    QFETCH(int, index);
    QFETCH(bool, accepted);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetCurSel(index), accepted ? index : -1);
    QCOMPARE(watch.isUntouched(), !accepted);
    QCOMPARE(watch.emitted(), QStringList());
    QCOMPARE(scene.widget.currentIndex(), accepted ? index : 1);
    QVERIFY(!scene.widget.signalsBlocked());

    QCOMPARE(scene.control.calls.size(), std::size_t(accepted));
    for (const auto &call : scene.control.calls) {
        QCOMPARE(call.message, 0x014Eu);
        QCOMPARE(call.wParam, WPARAM(qint64(index)));
        QCOMPARE(call.lParam, LPARAM(0));
        QCOMPARE(call.current, index);
        QVERIFY(call.blocked);
    }
}

void tst_CComboBox::setCurSelOfTheCurrentItem()
{
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetCurSel(1), 1);
    QVERIFY(watch.isUntouched());
    QCOMPARE(scene.control.calls.size(), std::size_t(1));
}

void tst_CComboBox::setCurSelInEmpty()
{
    BoundControl<ProcedureCombo, QComboBox> empty;
    QCOMPARE(empty.control.SetCurSel(0), -1);
    QVERIFY(empty.control.calls.empty());
    QCOMPARE(empty.control.SetCurSel(-1), -1);
    QCOMPARE(empty.control.calls.size(), std::size_t(1));
}

void tst_CComboBox::windowProcDeletesTheWidget()
{
    auto *widget = new QComboBox;
    widget->addItem(QStringLiteral("one"));
    widget->setCurrentIndex(-1);
    ProcedureCombo control;
    control.SetHandle(handleOf(widget));
    control.action = [widget] { delete widget; };
    QCOMPARE(control.SetCurSel(0), 0);
    QCOMPARE(control.GetCount(), 0);
}

void tst_CComboBox::windowProcDeletesTheObject()
{
    QComboBox widget;
    widget.addItem(QStringLiteral("one"));
    auto control = std::make_unique<ProcedureCombo>();
    control->SetHandle(handleOf(&widget));
    CComboBox *object = control.get();
    control->action = [&control] { control.reset(); };
    QCOMPARE(object->SetCurSel(0), 0);
    QVERIFY(!widget.signalsBlocked());
}

void tst_CComboBox::blockedWidgetStaysBlocked()
{
    Scene scene;
    scene.widget.blockSignals(true);
    scene.control.SetCurSel(0);
    QVERIFY(scene.widget.signalsBlocked());
    scene.control.AddString(L"four");
    QVERIFY(scene.widget.signalsBlocked());
    scene.control.InsertString(0, L"five");
    QVERIFY(scene.widget.signalsBlocked());
    scene.control.InsertString(-1, L"six");
    QVERIFY(scene.widget.signalsBlocked());
    scene.control.ResetContent();
    QVERIFY(scene.widget.signalsBlocked());
}

void tst_CComboBox::addString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("added");

    QTest::newRow("new") << QStringLiteral("four") << 4 << true;
    QTest::newRow("first again") << QStringLiteral("one") << 0 << false;
    QTest::newRow("last again") << QStringLiteral("three") << 3 << false;
    QTest::newRow("other case") << QStringLiteral("One") << 4 << true;
    QTest::newRow("prefix") << QStringLiteral("on") << 4 << true;
    QTest::newRow("longer") << QStringLiteral("ones") << 4 << true;
    QTest::newRow("blanks count") << QStringLiteral(" one ") << 4 << true;
    QTest::newRow("wildcards are plain") << QStringLiteral("*") << 4 << true;
    QTest::newRow("empty although there is one") << QStringLiteral("") << 4 << true;
    QTest::newRow("null is empty") << QString() << 4 << true;
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("\xF0\x9F\x98\x80") << 4 << true;
}

void tst_CComboBox::addString()
{
    QFETCH(QString, text);
    QFETCH(int, result);
    QFETCH(bool, added);
    Scene scene;
    scene.widget.insertItem(2, QString());
    scene.widget.setItemData(0, 7);
    const ItemsWatch watch(scene.widget);
    QStringList expected = itemsOf(scene.widget);
    if (added)
        expected << text + QStringLiteral(" | -");

    const std::wstring wide = text.toStdWString();
    QCOMPARE(scene.control.AddString(text.isNull() ? nullptr : wide.c_str()), result);
    QCOMPARE(itemsOf(scene.widget), expected);
    QCOMPARE(watch.emitted(), QStringList());
    QCOMPARE(watch.isUntouched(), !added);
    QVERIFY(!scene.widget.signalsBlocked());
    QVERIFY(scene.control.calls.empty());
}

void tst_CComboBox::addStringWithSignalsBlocked()
{
    BoundControl<CComboBox, QComboBox> empty;
    const ItemsWatch watch(empty.widget);
    QCOMPARE(empty.control.AddString(L""), 0);
    QCOMPARE(empty.control.AddString(L""), 1);
    QCOMPARE(empty.widget.count(), 2);
    // Qt makes the first item current, which nobody hears.
    QCOMPARE(empty.widget.currentIndex(), 0);
    QCOMPARE(watch.emitted(), QStringList());
}

void tst_CComboBox::insertString_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("place");

    const QString added = QStringLiteral("new");
    QTest::newRow("front") << 0 << added << 0 << 0;
    QTest::newRow("middle") << 2 << added << 2 << 2;
    QTest::newRow("count") << 4 << added << 4 << 4;
    QTest::newRow("past the end, index as it is") << 9 << added << 9 << 4;
    QTest::newRow("largest") << INT_MAX << added << INT_MAX << 4;
    QTest::newRow("-1 appends") << -1 << added << 4 << 4;
    QTest::newRow("below -1, nothing") << -5 << added << -5 << -1;
    QTest::newRow("smallest, nothing") << INT_MIN << added << INT_MIN << -1;
    QTest::newRow("duplicate") << 0 << QStringLiteral("three") << 3 << -1;
    QTest::newRow("duplicate at -1") << -1 << QStringLiteral("one") << 0 << -1;
    QTest::newRow("duplicate below -1") << -5 << QStringLiteral("two") << 1 << -1;
    QTest::newRow("other case") << 1 << QStringLiteral("TWO") << 1 << 1;
    QTest::newRow("empty although there is one") << 0 << QStringLiteral("") << 0 << 0;
    QTest::newRow("null is empty") << -1 << QString() << 4 << 4;
    QTest::newRow("empty below -1") << -2 << QStringLiteral("") << -2 << -1;
}

void tst_CComboBox::insertString()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(int, place);
    Scene scene;
    scene.widget.insertItem(2, QString());
    const ItemsWatch watch(scene.widget);
    QStringList expected = itemsOf(scene.widget);
    if (place >= 0)
        expected.insert(place, text + QStringLiteral(" | -"));

    const std::wstring wide = text.toStdWString();
    QTEST(scene.control.InsertString(index, text.isNull() ? nullptr : wide.c_str()), "result");
    QCOMPARE(itemsOf(scene.widget), expected);
    QCOMPARE(scene.widget.currentText(), QStringLiteral("two"));
    QCOMPARE(watch.emitted(), QStringList());
    QCOMPARE(watch.isUntouched(), place < 0);
    QVERIFY(!scene.widget.signalsBlocked());
}

void tst_CComboBox::fullComboBox()
{
    Scene scene;
    scene.widget.setMaxCount(3);
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.AddString(L"four"), 3);
    QCOMPARE(scene.control.InsertString(-1, L"four"), 2);
    QVERIFY(watch.isUntouched());
}

void tst_CComboBox::deleteString_data()
{
    QTest::addColumn<uint>("index");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("emitted");

    const QStringList all{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    QTest::newRow("first") << 0u << 0 << QStringList(all.mid(1)) << currentChange();
    QTest::newRow("current") << 1u << 1 << QStringList{all[0], all[2]} << currentChange();
    QTest::newRow("last") << 2u << 2 << QStringList(all.mid(0, 2)) << QStringList();
    QTest::newRow("count refused") << 3u << -1 << all << QStringList();
    QTest::newRow("negative as unsigned refused") << unsigned(INT_MIN) << -1 << all << QStringList();
    QTest::newRow("largest refused") << UINT_MAX << -1 << all << QStringList();
}

void tst_CComboBox::deleteString()
{
    QFETCH(uint, index);
    QFETCH(int, result);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.DeleteString(index), result);
    QTEST(textsOf(scene.widget), "texts");
    QTEST(watch.emitted(), "emitted");
    QCOMPARE(watch.isUntouched(), result == -1);
}

void tst_CComboBox::deleteStringOfEmpty_data()
{
    QTest::addColumn<uint>("index");

    QTest::newRow("0") << 0u;
    QTest::newRow("7") << 7u;
    QTest::newRow("largest") << UINT_MAX;
}

void tst_CComboBox::deleteStringOfEmpty()
{
    QFETCH(uint, index);
    BoundControl<CComboBox, QComboBox> empty;
    const ItemsWatch watch(empty.widget);
    QCOMPARE(empty.control.DeleteString(index), int(index));
    QVERIFY(watch.isUntouched());
}

void tst_CComboBox::removeAll()
{
    Scene reset;
    const ItemsWatch quiet(reset.widget);
    reset.control.ResetContent();
    QCOMPARE(reset.widget.count(), 0);
    QCOMPARE(quiet.emitted(), QStringList());
    QVERIFY(!reset.widget.signalsBlocked());

    // Its look-alike is heard.
    Scene cleared;
    const ItemsWatch loud(cleared.widget);
    cleared.control.Clear();
    QCOMPARE(cleared.widget.count(), 0);
    QCOMPARE(loud.emitted(), currentChange());
}

QTEST_MAIN(tst_CComboBox)
#include "tst_CComboBox.moc"
