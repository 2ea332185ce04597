#include "BoundControl.h"
#include "KxCommonControls.h"
#include "LeftBehind.h"
#include "WidgetWatch.h"

#include <QDial>
#include <QScrollBar>
#include <QSlider>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
using Slider = BoundControl<CSliderCtrl, QSlider>;
using ScrollBar = BoundControl<CScrollBar, QScrollBar>;

const QString valueChanged = QStringLiteral("valueChanged(int)");
const QString rangeChanged = QStringLiteral("rangeChanged(int,int)");
} // namespace

class tst_CommonControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sliderPosition_data();
    void sliderPosition();
    void positionIsNotValue();
    void range_data();
    void range();
    void pageSize_data();
    void pageSize();
    void ticFreq_data();
    void ticFreq();
    void scrollPos_data();
    void scrollPos();
    void everyKindOfSlider();
    void toolTips();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CommonControls::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CommonControls::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CommonControls::sliderPosition_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("after");

    QTest::newRow("smallest") << INT_MIN << -10;
    QTest::newRow("below") << -11 << -10;
    QTest::newRow("minimum") << -10 << -10;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("same") << 3 << 3;
    QTest::newRow("maximum") << 20 << 20;
    QTest::newRow("above") << 21 << 20;
    QTest::newRow("largest") << INT_MAX << 20;
}

void tst_CommonControls::sliderPosition()
{
    QFETCH(int, position);
    QFETCH(int, after);
    Slider slider;
    slider.widget.setRange(-10, 20);
    slider.widget.setValue(3);
    const WidgetWatch watch(&slider.widget);
    slider.control.SetPos(position);
    QCOMPARE(slider.control.GetPos(), after);
    QCOMPARE(slider.widget.value(), after);
    // As when the user moves the handle, unlike with the value of a scroll bar.
    const QStringList moved{QStringLiteral("actionTriggered(int)"), valueChanged};
    QCOMPARE(watch.emitted(), after == 3 ? QStringList() : moved);
    QCOMPARE(watch.isUntouched(), after == 3);
}

void tst_CommonControls::positionIsNotValue()
{
    Slider slider;
    slider.widget.setTracking(false);
    slider.widget.setSliderDown(true);
    const WidgetWatch watch(&slider.widget);
    slider.control.SetPos(7);
    QCOMPARE(slider.control.GetPos(), 7);
    QCOMPARE(slider.widget.value(), 0);
    QCOMPARE(watch.emitted(), QStringList{QStringLiteral("sliderMoved(int)")});

    // A scroll bar sets and reports the value.
    ScrollBar bar;
    bar.widget.setTracking(false);
    bar.widget.setValue(3);
    bar.widget.setSliderDown(true);
    bar.widget.setSliderPosition(9);
    QCOMPARE(bar.control.SetScrollPos(5), 3);
    QCOMPARE(bar.widget.value(), 5);
}

void tst_CommonControls::range_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("maxAfter");
    QTest::addColumn<int>("valueAfter");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("same") << 0 << 99 << 99 << 50 << QStringList();
    QTest::newRow("wider") << -5 << 200 << 200 << 50 << QStringList{rangeChanged};
    QTest::newRow("bounds the value") << 60 << 70 << 70 << 60 << QStringList{rangeChanged, valueChanged};
    QTest::newRow("one value") << 50 << 50 << 50 << 50 << QStringList{rangeChanged};
    QTest::newRow("reversed") << 80 << 10 << 80 << 80 << QStringList{rangeChanged, valueChanged};
    QTest::newRow("everything") << INT_MIN << INT_MAX << INT_MAX << 50 << QStringList{rangeChanged};
}

// What is checked of SetRange() and SetScrollRange() alike.
#define VERIFY_RANGE(bound, call)                                                                            \
    do {                                                                                                     \
        (bound).widget.setRange(0, 99);                                                                      \
        (bound).widget.setValue(50);                                                                         \
        const WidgetWatch watch(&(bound).widget);                                                            \
        (bound).control.call;                                                                                \
        QCOMPARE((bound).widget.minimum(), min);                                                             \
        QTEST((bound).widget.maximum(), "maxAfter");                                                         \
        QTEST((bound).widget.value(), "valueAfter");                                                         \
        QTEST(watch.emitted(), "emitted");                                                                   \
    } while (false)

void tst_CommonControls::range()
{
    QFETCH(int, min);
    QFETCH(int, max);
    Slider slider;
    VERIFY_RANGE(slider, SetRange(min, max, false));
    VERIFY_RANGE(slider, SetRange(min, max, true));
    VERIFY_RANGE(slider, SetRange(min, max));
    ScrollBar bar;
    VERIFY_RANGE(bar, SetScrollRange(min, max, false));
    VERIFY_RANGE(bar, SetScrollRange(min, max, true));
    VERIFY_RANGE(bar, SetScrollRange(min, max));
}

void tst_CommonControls::pageSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("after");

    QTest::newRow("larger") << 30 << 30;
    QTest::newRow("same") << 10 << 10;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("negative counts without its sign") << -4 << 4;
    QTest::newRow("largest") << INT_MAX << INT_MAX;
}

void tst_CommonControls::pageSize()
{
    QFETCH(int, size);
    Slider slider;
    slider.widget.setPageStep(10);
    const WidgetWatch watch(&slider.widget);
    QCOMPARE(slider.control.SetPageSize(size), 10);
    QTEST(slider.widget.pageStep(), "after");
    QTEST(slider.control.SetPageSize(10), "after");
    QCOMPARE(slider.control.GetPageSize(), 0);
    QCOMPARE(slider.control.GetLineSize(), 0);
    QVERIFY(watch.isUntouched());
}

void tst_CommonControls::ticFreq_data()
{
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("after");

    QTest::newRow("larger") << 5 << 5;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("negative counts without its sign") << -4 << 4;
    QTest::newRow("largest") << INT_MAX << INT_MAX;
}

void tst_CommonControls::ticFreq()
{
    QFETCH(int, frequency);
    Slider slider;
    slider.widget.setTickInterval(7);
    slider.widget.setTickPosition(QSlider::TicksBelow);
    const WidgetWatch watch(&slider.widget);
    slider.control.SetTicFreq(frequency);
    QTEST(slider.widget.singleStep(), "after");
    QCOMPARE(watch.changed(), QStringList{QStringLiteral("singleStep")});
    QVERIFY(watch.emitted().isEmpty());
}

void tst_CommonControls::scrollPos_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("after");

    QTest::newRow("smallest") << INT_MIN << 0;
    QTest::newRow("below") << -1 << 0;
    QTest::newRow("minimum") << 0 << 0;
    QTest::newRow("same") << 3 << 3;
    QTest::newRow("inside") << 5 << 5;
    QTest::newRow("maximum") << 99 << 99;
    QTest::newRow("above") << 100 << 99;
    QTest::newRow("largest") << INT_MAX << 99;
}

void tst_CommonControls::scrollPos()
{
    QFETCH(int, position);
    QFETCH(int, after);
    for (const bool redraw : {false, true}) {
        ScrollBar bar;
        bar.widget.setValue(3);
        const WidgetWatch watch(&bar.widget);
        QCOMPARE(bar.control.SetScrollPos(position, redraw), 3);
        QCOMPARE(bar.widget.value(), after);
        QCOMPARE(watch.emitted(), after == 3 ? QStringList() : QStringList{valueChanged});
        QCOMPARE(watch.isUntouched(), after == 3);
        QCOMPARE(bar.control.GetScrollPos(), 0);
        QCOMPARE(bar.control.SetScrollPos(3), after);
    }
}

void tst_CommonControls::everyKindOfSlider()
{
    QSlider slider;
    QDial dial;
    QScrollBar bar;
    for (QAbstractSlider *widget : std::initializer_list<QAbstractSlider *>{&slider, &dial, &bar}) {
        CSliderCtrl control;
        control.SetHandle(handleOf(widget));
        control.SetPos(5);
        QCOMPARE(control.GetPos(), 5);
        control.Detach();
        CScrollBar scroll;
        scroll.SetHandle(handleOf(widget));
        QCOMPARE(scroll.SetScrollPos(6), 5);
        QCOMPARE(widget->value(), 6);
    }
}

void tst_CommonControls::toolTips()
{
    BoundControl<CToolTipCtrl, QWidget> tip;
    CWnd parent;
    const WidgetWatch watch(&tip.widget);
    CToolTipCtrl *control = &tip.control;
    QCOMPARE(control->Create(&parent, 5), TRUE);
    QCOMPARE(control->Create(&parent), TRUE);
    QVERIFY(!control->GetParent());
    QCOMPARE(control->AddTool(&parent, L"text"), FALSE);
    QCOMPARE(control->AddTool(&parent, 101u), TRUE);
    QVERIFY(watch.isUntouched());
}

QTEST_MAIN(tst_CommonControls)
#include "tst_CommonControls.moc"
