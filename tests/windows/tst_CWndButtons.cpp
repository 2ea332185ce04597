#include "KxWindowPrivate.h"
#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <climits>
#include <map>
#include <memory>

namespace {
// A dialog of check boxes, which do not exclude each other in Qt.
struct Dialog
{
    explicit Dialog(std::initializer_list<int> ids)
    {
        window.SetHandle(handleOf(&widget));
        for (const int id : ids)
            window.SetDlgItem(id, handleOf(boxes[id] = new QCheckBox(&widget)));
    }

    void check(const QList<int> &ids)
    {
        for (const int id : ids)
            boxes.at(id)->setChecked(true);
    }

    QList<int> checked() const
    {
        QList<int> ids;
        for (const auto &[id, box] : boxes) {
            if (box->isChecked())
                ids << id;
        }
        return ids;
    }

    QWidget widget;
    std::map<int, QCheckBox *> boxes;
    CWnd window;
};

class RedirectedWnd : public CWnd
{
public:
    HWND GetSafeHwnd() override { return redirected; }

    HWND redirected = nullptr;
};
} // namespace

Q_DECLARE_METATYPE(QList<int>)

class tst_CWndButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void isDlgButtonChecked_data();
    void isDlgButtonChecked();
    void checkDlgButton_data();
    void checkDlgButton();
    void uncheckableButton();
    void checkRadioButton_data();
    void checkRadioButton();
    void checkRadioButtonSkipsOthers();
    void checkRadioButtonInExclusiveGroup();
    void slotDestroysTheWindowOfTheRadioButtons();
    void slotDestroysTheNextRadioButton();
    void getCheckedRadioButton_data();
    void getCheckedRadioButton();

    void detachedButton();
    void handleOfTheChildDecides();
    void destroyedButton();
    void unboundDialog();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndButtons::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndButtons::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndButtons::isDlgButtonChecked_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<uint>("result");

    QTest::newRow("checked") << 1 << 1u;
    QTest::newRow("not checked") << 2 << 0u;
    QTest::newRow("partially checked counts") << 3 << 1u;
    QTest::newRow("negative identifier") << -4 << 1u;
    QTest::newRow("not a button") << 5 << 0u;
    QTest::newRow("null handle") << 6 << 0u;
    QTest::newRow("unknown") << 7 << 0u;
}

void tst_CWndButtons::isDlgButtonChecked()
{
    QFETCH(int, id);
    Dialog dialog({1, 2, 3, -4});
    dialog.check({1, -4});
    dialog.boxes[3]->setTristate();
    dialog.boxes[3]->setCheckState(Qt::PartiallyChecked);
    // A partially checked box is not unchecked: QAbstractButton::isChecked() decides.
    QVERIFY(dialog.boxes[3]->isChecked());
    dialog.window.SetDlgItem(5, handleOf(new QLabel(&dialog.widget)));
    dialog.window.SetDlgItem(6, nullptr);
    QTEST(dialog.window.IsDlgButtonChecked(id), "result");
}

void tst_CWndButtons::checkDlgButton_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<uint>("check");
    QTest::addColumn<bool>("after");

    QTest::newRow("BST_UNCHECKED") << true << 0u << false;
    QTest::newRow("BST_CHECKED") << false << 1u << true;
    QTest::newRow("BST_INDETERMINATE checks") << false << 2u << true;
    QTest::newRow("any other value checks") << false << 256u << true;
    QTest::newRow("largest value checks") << false << UINT_MAX << true;
    QTest::newRow("stays checked") << true << 1u << true;
    QTest::newRow("stays unchecked") << false << 0u << false;
}

void tst_CWndButtons::checkDlgButton()
{
    QFETCH(bool, before);
    QFETCH(uint, check);
    QFETCH(bool, after);
    Dialog dialog({-3, 1, 2});
    dialog.boxes[-3]->setChecked(before);
    dialog.boxes[1]->setChecked(before);
    QSignalSpy toggled(dialog.boxes[1], &QCheckBox::toggled);
    dialog.window.CheckDlgButton(1, check);
    dialog.window.CheckDlgButton(-3, check);
    QCOMPARE(dialog.boxes[1]->checkState(), after ? Qt::Checked : Qt::Unchecked);
    QCOMPARE(dialog.boxes[-3]->isChecked(), after);
    QVERIFY(!dialog.boxes[2]->isChecked());
    QCOMPARE(toggled.size(), before == after ? 0 : 1);
    dialog.window.CheckDlgButton(99, check);
}

void tst_CWndButtons::uncheckableButton()
{
    QPushButton button;
    Dialog dialog({});
    dialog.window.SetDlgItem(1, handleOf(&button));
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    QCOMPARE(dialog.window.IsDlgButtonChecked(1), 0u);
    button.setCheckable(true);
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    QCOMPARE(dialog.window.IsDlgButtonChecked(1), 1u);
}

void tst_CWndButtons::checkRadioButton_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("check");
    QTest::addColumn<QList<int>>("checked");

    // All of -7, 99, 100, 101, 102, 110 and INT_MAX are checked before.
    const int end = INT_MAX;
    QTest::newRow("middle") << 100 << 102 << 101 << QList<int>{-7, 99, 101, 110, end};
    QTest::newRow("first") << 100 << 102 << 100 << QList<int>{-7, 99, 100, 110, end};
    QTest::newRow("last") << 100 << 102 << 102 << QList<int>{-7, 99, 102, 110, end};
    QTest::newRow("outside the range") << 100 << 102 << 110 << QList<int>{-7, 99, 110, end};
    QTest::newRow("none of them") << 100 << 102 << 0 << QList<int>{-7, 99, 110, end};
    QTest::newRow("range with a hole") << 101 << 115 << 110 << QList<int>{-7, 99, 100, 110, end};
    QTest::newRow("in the hole") << 101 << 115 << 105 << QList<int>{-7, 99, 100, end};
    QTest::newRow("one button") << 101 << 101 << 101 << QList<int>{-7, 99, 100, 101, 102, 110, end};
    QTest::newRow("reversed, nothing") << 102 << 100 << 101 << QList<int>{-7, 99, 100, 101, 102, 110, end};
    QTest::newRow("negative to positive") << -10 << 100 << -7 << QList<int>{-7, 101, 102, 110, end};
    QTest::newRow("up to the largest") << 102 << end << end << QList<int>{-7, 99, 100, 101, end};
    QTest::newRow("everything") << INT_MIN << end << 99 << QList<int>{99};
    QTest::newRow("empty range") << 103 << 109 << 105 << QList<int>{-7, 99, 100, 101, 102, 110, end};
}

void tst_CWndButtons::checkRadioButton()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, check);
    Dialog dialog({-7, 99, 100, 101, 102, 110, INT_MAX});
    dialog.check({-7, 99, 100, 101, 102, 110, INT_MAX});
    dialog.window.CheckRadioButton(first, last, check);
    QTEST(dialog.checked(), "checked");
}

void tst_CWndButtons::checkRadioButtonSkipsOthers()
{
    Dialog dialog({100, 104});
    auto *label = new QLabel(QStringLiteral("text"), &dialog.widget);
    dialog.window.SetDlgItem(101, handleOf(label));
    dialog.window.SetDlgItem(102, nullptr);
    auto *destroyed = new QCheckBox;
    dialog.window.SetDlgItem(103, handleOf(destroyed));
    delete destroyed;
    dialog.check({100});
    dialog.window.CheckRadioButton(100, 104, 104);
    QCOMPARE(dialog.checked(), QList<int>{104});
    QCOMPARE(dialog.window.GetCheckedRadioButton(100, 104), 104);
}

void tst_CWndButtons::checkRadioButtonInExclusiveGroup()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    for (int id = 1; id <= 3; ++id)
        window.SetDlgItem(id, handleOf(new QRadioButton(&widget)));
    window.CheckRadioButton(1, 3, 2);
    QCOMPARE(window.GetCheckedRadioButton(1, 3), 2);
    window.CheckRadioButton(1, 3, 3);
    QCOMPARE(window.GetCheckedRadioButton(1, 3), 3);
    QCOMPARE(window.IsDlgButtonChecked(2), 0u);
}

void tst_CWndButtons::slotDestroysTheWindowOfTheRadioButtons()
{
    auto window = std::make_unique<CWnd>();
    QCheckBox boxes[3];
    QWidget widget;
    window->SetHandle(handleOf(&widget));
    for (int i = 0; i < 3; ++i)
        window->SetDlgItem(i, handleOf(&boxes[i]));
    boxes[0].setChecked(true);
    connect(&boxes[0], &QCheckBox::toggled, this, [&] { window.reset(); });

    window->CheckRadioButton(0, 2, 2);
    QVERIFY(!window);
    QVERIFY(!boxes[0].isChecked());
    QVERIFY(boxes[2].isChecked());
}

void tst_CWndButtons::slotDestroysTheNextRadioButton()
{
    Dialog dialog({1, 2, 3});
    dialog.check({1, 2});
    connect(dialog.boxes.at(1), &QCheckBox::toggled, this, [&] {
        delete dialog.boxes.at(2);
        dialog.boxes.erase(2);
    });
    dialog.window.CheckRadioButton(1, 3, 3);
    QCOMPARE(dialog.checked(), QList<int>{3});
}

void tst_CWndButtons::getCheckedRadioButton_data()
{
    QTest::addColumn<QList<int>>("checked");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("result");

    QTest::newRow("first of two") << QList<int>{101, 110} << 100 << 110 << 101;
    QTest::newRow("at the start") << QList<int>{100} << 100 << 110 << 100;
    QTest::newRow("at the end, behind a hole") << QList<int>{110} << 100 << 110 << 110;
    QTest::newRow("none") << QList<int>{} << 100 << 110 << 0;
    QTest::newRow("outside") << QList<int>{-7, 110} << 100 << 109 << 0;
    QTest::newRow("reversed") << QList<int>{100, 101} << 101 << 100 << 0;
    QTest::newRow("negative") << QList<int>{-7, 100} << -10 << 110 << -7;
    QTest::newRow("the largest") << QList<int>{INT_MAX} << 100 << INT_MAX << INT_MAX;
    QTest::newRow("everything, none") << QList<int>{} << INT_MIN << INT_MAX << 0;
}

void tst_CWndButtons::getCheckedRadioButton()
{
    QFETCH(QList<int>, checked);
    QFETCH(int, first);
    QFETCH(int, last);
    Dialog dialog({-7, 100, 101, 110, INT_MAX});
    dialog.check(checked);
    QTEST(dialog.window.GetCheckedRadioButton(first, last), "result");
    QCOMPARE(dialog.checked(), checked);
}

void tst_CWndButtons::detachedButton()
{
    Dialog dialog({1});
    CWnd button;
    button.SetHandle(handleOf(dialog.boxes[1]));
    button.Detach();

    // The handle is what counts: the object is unbound but still stands for it.
    QVERIFY(!HWND(button));
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    QVERIFY(dialog.boxes[1]->isChecked());
    QCOMPARE(dialog.window.IsDlgButtonChecked(1), 1u);
    QCOMPARE(dialog.window.GetCheckedRadioButton(1, 1), 1);
    dialog.window.CheckRadioButton(1, 1, 0);
    QVERIFY(!dialog.boxes[1]->isChecked());
}

void tst_CWndButtons::handleOfTheChildDecides()
{
    Dialog dialog({1, 2});
    RedirectedWnd child;
    child.SetHandle(handleOf(dialog.boxes[1]));
    child.redirected = handleOf(dialog.boxes[2]);
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    QCOMPARE(dialog.checked(), QList<int>{2});
    child.redirected = nullptr;
    QCOMPARE(dialog.window.IsDlgButtonChecked(1), 0u);
}

void tst_CWndButtons::destroyedButton()
{
    auto *box = new QCheckBox;
    auto *detachedBox = new QCheckBox;
    Dialog dialog({});
    dialog.window.SetDlgItem(1, handleOf(box));
    dialog.window.SetDlgItem(2, handleOf(detachedBox));
    CWnd detached;
    detached.SetHandle(handleOf(detachedBox));
    detached.Detach();
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    dialog.window.CheckDlgButton(2, BST_CHECKED);
    delete box;
    delete detachedBox;

    QCOMPARE(dialog.window.IsDlgButtonChecked(1), 0u);
    QCOMPARE(dialog.window.IsDlgButtonChecked(2), 0u);
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    dialog.window.CheckRadioButton(1, 2, 2);
    QCOMPARE(dialog.window.GetCheckedRadioButton(1, 2), 0);
}

void tst_CWndButtons::unboundDialog()
{
    Dialog dialog({1});
    dialog.window.Detach();
    dialog.window.CheckDlgButton(1, BST_CHECKED);
    dialog.window.CheckRadioButton(1, 1, 1);
    QVERIFY(!dialog.boxes[1]->isChecked());
    dialog.check({1});
    QCOMPARE(dialog.window.IsDlgButtonChecked(1), 0u);
    QCOMPARE(dialog.window.GetCheckedRadioButton(1, 1), 0);
}

QTEST_MAIN(tst_CWndButtons)
#include "tst_CWndButtons.moc"
