#include "ExchangeForm.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <climits>

static constexpr int controlID = ExchangeForm::controlID;

/// Three radio buttons on a panel, the first of them registered; in a group with the IDs 10, 20 and 30.
class RadioForm : public ExchangeForm
{
public:
    RadioForm()
    {
        for (QRadioButton *&button : m_buttons)
            button = new QRadioButton(m_panel);
        SetDlgItem(controlID, handleOf(m_buttons[0]));
    }

    void fill(QButtonGroup *group, int firstID = 10)
    {
        for (int index = 0; index < 3; ++index)
            group->addButton(m_buttons[index], firstID * (index + 1));
    }

    int saved(int value)
    {
        save([&](CDataExchange *pDX) { DDX_Radio(pDX, controlID, value); });
        return value;
    }
    void loadValue(int value)
    {
        const int before = value;
        load([&](CDataExchange *pDX) { DDX_Radio(pDX, controlID, value); });
        QCOMPARE(value, before);
    }

    QWidget *m_panel = new QWidget(form());
    QRadioButton *m_buttons[3] = {};
};

class tst_DdxRadio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void save_data();
    void save();
    void load_data();
    void load();
    void loadWithNoneChecked();
    void loadTellsTheApplication();
    void negativeIDs();
    void groupIsNoDirectChild_data();
    void groupIsNoDirectChild();
    void firstOfTwoGroups();
    void groupOfOtherButtons();
    void emptyGroup();
    void withoutParentWidget();
    void notARadioButton();
};

void tst_DdxRadio::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_DdxRadio::save_data()
{
    QTest::addColumn<int>("checked");
    QTest::addColumn<int>("value");

    QTest::newRow("none") << -1 << -1;
    QTest::newRow("the registered button") << 0 << 10;
    QTest::newRow("another button") << 1 << 20;
    QTest::newRow("last") << 2 << 30;
}

void tst_DdxRadio::save()
{
    QFETCH(int, checked);
    QFETCH(int, value);

    RadioForm form;
    form.fill(new QButtonGroup(form.m_panel));
    if (checked >= 0)
        form.m_buttons[checked]->setChecked(true);
    QCOMPARE(form.saved(77), value);
}

void tst_DdxRadio::load_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("checkedAfter");

    QTest::newRow("first") << 10 << 10;
    QTest::newRow("last") << 30 << 30;
    QTest::newRow("position is no ID") << 0 << 20;
    QTest::newRow("no button's ID") << 15 << 20;
    QTest::newRow("none unchecks nothing") << -1 << 20;
    QTest::newRow("smallest int") << INT_MIN << 20;
    QTest::newRow("largest int") << INT_MAX << 20;
}

void tst_DdxRadio::load()
{
    QFETCH(int, value);
    QFETCH(int, checkedAfter);

    RadioForm form;
    auto *group = new QButtonGroup(form.m_panel);
    form.fill(group);
    form.m_buttons[1]->setChecked(true);
    form.loadValue(value);
    QCOMPARE(group->checkedId(), checkedAfter);
}

void tst_DdxRadio::loadWithNoneChecked()
{
    RadioForm form;
    auto *group = new QButtonGroup(form.m_panel);
    form.fill(group);
    form.loadValue(-1);
    QCOMPARE(group->checkedId(), -1);
    form.loadValue(20);
    QVERIFY(form.m_buttons[1]->isChecked());
}

void tst_DdxRadio::loadTellsTheApplication()
{
    RadioForm form;
    auto *group = new QButtonGroup(form.m_panel);
    form.fill(group);
    const QSignalSpy toggles(group, &QButtonGroup::idToggled);
    form.loadValue(20);
    QCOMPARE(toggles.size(), 1);
}

void tst_DdxRadio::negativeIDs()
{
    RadioForm form;
    auto *group = new QButtonGroup(form.m_panel);
    // Qt gives the IDs -2, -3 and -4.
    for (QRadioButton *button : form.m_buttons)
        group->addButton(button);
    form.loadValue(-3);
    QVERIFY(form.m_buttons[1]->isChecked());
    form.m_buttons[2]->setChecked(true);
    QCOMPARE(form.saved(77), -4);
}

void tst_DdxRadio::groupIsNoDirectChild_data()
{
    QTest::addColumn<int>("level");

    QTest::newRow("no group at all") << 0;
    QTest::newRow("group of the form") << 1;
    QTest::newRow("group of a button") << 2;
}

void tst_DdxRadio::groupIsNoDirectChild()
{
    QFETCH(int, level);

    RadioForm form;
    form.m_buttons[1]->setChecked(true);
    if (level > 0)
        form.fill(new QButtonGroup(level == 1 ? form.form() : form.m_buttons[0]));
    QCOMPARE(form.saved(77), 77);
    form.loadValue(30);
    QVERIFY(form.m_buttons[1]->isChecked());
}

void tst_DdxRadio::firstOfTwoGroups()
{
    RadioForm form;
    auto *empty = new QButtonGroup(form.m_panel);
    auto *group = new QButtonGroup(form.m_panel);
    form.fill(group);
    form.m_buttons[1]->setChecked(true);
    // The first group counts, although the radio button belongs to the second.
    QCOMPARE(form.saved(77), -1);
    form.loadValue(30);
    QVERIFY(form.m_buttons[1]->isChecked());

    delete empty;
    QCOMPARE(form.saved(77), 20);
}

void tst_DdxRadio::groupOfOtherButtons()
{
    RadioForm form;
    auto *group = new QButtonGroup(form.m_panel);
    auto *box = new QCheckBox(form.m_panel);
    group->addButton(box, 5);
    form.loadValue(5);
    QVERIFY(box->isChecked());
    QCOMPARE(form.saved(77), 5);
}

void tst_DdxRadio::emptyGroup()
{
    RadioForm form;
    new QButtonGroup(form.m_panel);
    form.m_buttons[0]->setChecked(true);
    QCOMPARE(form.saved(77), -1);
}

void tst_DdxRadio::withoutParentWidget()
{
    ExchangeForm form;
    QRadioButton radio;
    auto *group = new QButtonGroup(&radio);
    group->addButton(&radio, 10);
    form.SetDlgItem(controlID, handleOf(&radio));
    int value = 77;
    form.save([&](CDataExchange *pDX) { DDX_Radio(pDX, controlID, value); });
    QCOMPARE(value, 77);
    value = 10;
    form.load([&](CDataExchange *pDX) { DDX_Radio(pDX, controlID, value); });
    QVERIFY(!radio.isChecked());
}

void tst_DdxRadio::notARadioButton()
{
    ExchangeForm form;
    auto *box = form.add<QCheckBox>();
    auto *group = new QButtonGroup(form.form());
    group->addButton(box, 10);
    int value = 77;
    form.save([&](CDataExchange *pDX) { DDX_Radio(pDX, controlID, value); });
    QCOMPARE(value, 77);
    value = 10;
    form.load([&](CDataExchange *pDX) { DDX_Radio(pDX, controlID, value); });
    QVERIFY(!box->isChecked());
}

QTEST_MAIN(tst_DdxRadio)
#include "tst_DdxRadio.moc"
