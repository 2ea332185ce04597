#include "ExchangeForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QDial>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include <climits>

static constexpr int controlID = ExchangeForm::controlID;

class tst_DdxControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void checkSave_data();
    void checkSave();
    void checkLoad_data();
    void checkLoad();
    void checkTriState();
    void checkTellsTheApplication();
    void checkNeedsCheckable_data();
    void checkNeedsCheckable();

    void sliderSave_data();
    void sliderSave();
    void sliderLoad_data();
    void sliderLoad();
    void sliderKeepsBlockedSignals();
    void sliderOnly_data();
    void sliderOnly();
};

void tst_DdxControls::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_DdxControls::checkSave_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<int>("before");

    QTest::newRow("checked") << true << 0;
    QTest::newRow("unchecked") << false << 1;
    QTest::newRow("checked, another number before") << true << 5;
    QTest::newRow("unchecked, another number before") << false << -5;
}

void tst_DdxControls::checkSave()
{
    QFETCH(bool, checked);
    QFETCH(int, before);

    ExchangeForm form;
    form.add<QCheckBox>()->setChecked(checked);
    bool flag = before != 0;
    int number = before;
    form.save([&](CDataExchange *pDX) {
        DDX_Check(pDX, controlID, flag);
        DDX_Check(pDX, controlID, number);
    });
    QCOMPARE(flag, checked);
    QCOMPARE(number, checked ? 1 : 0);
}

void tst_DdxControls::checkLoad_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("checked");

    QTest::newRow("zero") << 0 << false;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("two checks as well") << 2 << true;
    QTest::newRow("negative") << -1 << true;
    QTest::newRow("low byte zero") << 256 << true;
}

void tst_DdxControls::checkLoad()
{
    QFETCH(int, value);
    QFETCH(bool, checked);

    ExchangeForm form;
    auto *box = form.add<QCheckBox>();
    box->setChecked(!checked);
    int number = value;
    form.load([&](CDataExchange *pDX) { DDX_Check(pDX, controlID, number); });
    QCOMPARE(box->isChecked(), checked);
    QCOMPARE(number, value);

    box->setChecked(!checked);
    bool flag = value != 0;
    form.load([&](CDataExchange *pDX) { DDX_Check(pDX, controlID, flag); });
    QCOMPARE(box->isChecked(), checked);
}

void tst_DdxControls::checkTriState()
{
    ExchangeForm form;
    auto *box = form.add<QCheckBox>();
    box->setTristate();
    box->setCheckState(Qt::PartiallyChecked);
    int number = 9;
    form.save([&](CDataExchange *pDX) { DDX_Check(pDX, controlID, number); });
    QCOMPARE(number, 1);

    number = 2;
    form.load([&](CDataExchange *pDX) { DDX_Check(pDX, controlID, number); });
    QCOMPARE(box->checkState(), Qt::Checked);
}

void tst_DdxControls::checkTellsTheApplication()
{
    ExchangeForm form;
    auto *box = form.add<QCheckBox>();
    const QSignalSpy toggles(box, &QCheckBox::toggled);
    const QSignalSpy clicks(box, &QCheckBox::clicked);
    bool flag = true;
    form.load([&](CDataExchange *pDX) { DDX_Check(pDX, controlID, flag); });
    QCOMPARE(toggles.size(), 1);
    QCOMPARE(clicks.size(), 0);
}

void tst_DdxControls::checkNeedsCheckable_data()
{
    QTest::addColumn<int>("kind");

    QTest::newRow("plain push button") << 0;
    QTest::newRow("checkable group box") << 1;
}

void tst_DdxControls::checkNeedsCheckable()
{
    QFETCH(int, kind);

    ExchangeForm form;
    auto *group = new QGroupBox;
    group->setCheckable(true);
    group->setChecked(false);
    auto *button = new QPushButton(group);
    form.add(group, controlID + 1);
    form.SetDlgItem(controlID, handleOf(button));
    const int nID = controlID + kind;

    int number = 5;
    form.save([&](CDataExchange *pDX) { DDX_Check(pDX, nID, number); });
    QCOMPARE(number, 5);
    form.load([&](CDataExchange *pDX) { DDX_Check(pDX, nID, number); });
    QVERIFY(!group->isChecked());
    QVERIFY(!button->isChecked());

    button->setCheckable(true);
    form.load([&](CDataExchange *pDX) { DDX_Check(pDX, controlID, number); });
    QVERIFY(button->isChecked());
}

void tst_DdxControls::sliderSave_data()
{
    QTest::addColumn<int>("value");

    QTest::newRow("minimum") << -20;
    QTest::newRow("zero") << 0;
    QTest::newRow("maximum") << 100;
}

void tst_DdxControls::sliderSave()
{
    QFETCH(int, value);

    ExchangeForm form;
    auto *slider = form.add<QSlider>();
    slider->setRange(-20, 100);
    slider->setValue(value);
    int member = 77;
    form.save([&](CDataExchange *pDX) { DDX_Slider(pDX, controlID, member); });
    QCOMPARE(member, value);
}

void tst_DdxControls::sliderLoad_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("valueAfter");

    QTest::newRow("inside") << 50 << 50;
    QTest::newRow("minimum") << -20 << -20;
    QTest::newRow("maximum") << 100 << 100;
    QTest::newRow("one below the minimum") << -21 << 10;
    QTest::newRow("one above the maximum") << 101 << 10;
    QTest::newRow("far above") << 150 << 10;
    QTest::newRow("smallest int") << INT_MIN << 10;
    QTest::newRow("largest int") << INT_MAX << 10;
}

void tst_DdxControls::sliderLoad()
{
    QFETCH(int, value);
    QFETCH(int, valueAfter);

    ExchangeForm form;
    auto *slider = form.add<QSlider>();
    slider->setRange(-20, 100);
    slider->setValue(10);
    const QSignalSpy changes(slider, &QSlider::valueChanged);
    const QSignalSpy moves(slider, &QSlider::sliderMoved);
    int member = value;
    form.load([&](CDataExchange *pDX) { DDX_Slider(pDX, controlID, member); });
    QCOMPARE(slider->value(), valueAfter);
    QCOMPARE(member, value);
    QCOMPARE(changes.size() + moves.size(), 0);
    QVERIFY(!slider->signalsBlocked());
}

void tst_DdxControls::sliderKeepsBlockedSignals()
{
    ExchangeForm form;
    auto *slider = form.add<QSlider>();
    slider->blockSignals(true);
    int member = 50;
    form.load([&](CDataExchange *pDX) { DDX_Slider(pDX, controlID, member); });
    QCOMPARE(slider->value(), 50);
    QVERIFY(slider->signalsBlocked());
}

void tst_DdxControls::sliderOnly_data()
{
    QTest::addColumn<bool>("dial");

    QTest::newRow("dial") << true;
    QTest::newRow("scroll bar") << false;
}

void tst_DdxControls::sliderOnly()
{
    QFETCH(bool, dial);

    ExchangeForm form;
    QAbstractSlider *control = dial ? static_cast<QAbstractSlider *>(new QDial) : new QScrollBar;
    form.add(control);
    control->setValue(10);
    int member = 50;
    form.save([&](CDataExchange *pDX) { DDX_Slider(pDX, controlID, member); });
    QCOMPARE(member, 50);
    form.load([&](CDataExchange *pDX) { DDX_Slider(pDX, controlID, member); });
    QCOMPARE(control->value(), 10);
}

QTEST_MAIN(tst_DdxControls)
#include "tst_DdxControls.moc"
