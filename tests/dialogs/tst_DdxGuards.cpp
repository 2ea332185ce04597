#include "ExchangeForm.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

static constexpr int controlID = ExchangeForm::controlID;
static constexpr int unknownID = 999;

/// One exchange function: the control it works on, in a state that differs from its member in both
/// directions.
struct Exchange
{
    std::function<QWidget *(QWidget *parent)> m_make;
    /// Runs the exchange and tells whether its member kept its value.
    std::function<bool(CDataExchange *, int)> m_keepsMember;
};
Q_DECLARE_METATYPE(Exchange)

enum class State {
    NullExchange,
    NullDialog,
    UnboundDialog,
    DetachedDialog,
    UnknownID,
    NullHandle,
    DestroyedControl,
    DetachedControl,
    WrongKind
};
Q_DECLARE_METATYPE(State)

template <typename Value, typename Function> static auto keeps(Function function, Value value)
{
    return [=](CDataExchange *exchange, int nID) {
        Value member = value;
        function(exchange, nID, member);
        return member == value;
    };
}

static QWidget *makeEdit(QWidget *parent)
{
    return new QLineEdit(QStringLiteral("7"), parent);
}

template <typename Value> static Exchange textExchange(Value value)
{

    const auto exchange = [](CDataExchange *pDX, int nID, Value &member) { DDX_Text(pDX, nID, member); };
    return {makeEdit, keeps(exchange, value)};
}

static Exchange bufferExchange()
{

    const auto exchange = [](CDataExchange *pDX, int nID) {
        wchar_t buffer[] = L"text";
        DDX_Text(pDX, nID, buffer, 5);
        return std::wstring(buffer) == L"text";
    };
    return {makeEdit, exchange};
}

static QWidget *makeCheckBox(QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setChecked(true);
    return box;
}

template <typename Value> static Exchange checkExchange()
{
    const auto exchange = [](CDataExchange *pDX, int nID) {
        // One member for each state of the button.
        Value on = 1;
        Value off = 0;
        DDX_Check(pDX, nID, on);
        DDX_Check(pDX, nID, off);
        return on == Value(1) && off == Value(0);
    };
    return {makeCheckBox, exchange};
}

static QWidget *makeRadioButton(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *group = new QButtonGroup(panel);
    group->addButton(new QRadioButton(panel), 3);
    group->addButton(new QRadioButton(panel), 4);
    group->button(3)->setChecked(true);
    return group->button(3);
}

static QWidget *makeCombo(QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    combo->addItems({QStringLiteral("first"), QStringLiteral("second")});
    combo->setCurrentIndex(1);
    return combo;
}

static QWidget *makeList(QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->addItems({QStringLiteral("first"), QStringLiteral("second")});
    list->setCurrentRow(1);
    return list;
}

static QWidget *makeSlider(QWidget *parent)
{
    auto *slider = new QSlider(parent);
    slider->setValue(10);
    return slider;
}

static Exchange controlExchange()
{
    const auto exchange = [](CDataExchange *pDX, int nID) {
        CWnd control;
        DDX_Control(pDX, nID, control);
        return !control.m_hWnd;
    };
    return {makeEdit, exchange};
}

/// What the exchanges could change in a widget.
static QVariantList stateOf(const QWidget *widget)
{
    QVariantList state;
    for (const char *name :
         {"text", "checked", "currentText", "currentIndex", "currentRow", "value", "windowTitle"})
        state << widget->property(name);
    return state;
}

class tst_DdxGuards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void withAllInPlace_data();
    void withAllInPlace();
    void nothingHappens_data();
    void nothingHappens();
};

void tst_DdxGuards::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

static QVector<QPair<QByteArray, Exchange>> exchanges()
{
    return {{"DDX_Text unsigned char", textExchange<unsigned char>(5)},
            {"DDX_Text short", textExchange<short>(5)},
            {"DDX_Text int", textExchange<int>(5)},
            {"DDX_Text unsigned int", textExchange<unsigned int>(5)},
            {"DDX_Text long", textExchange<long>(5)},
            {"DDX_Text unsigned long", textExchange<unsigned long>(5)},
            {"DDX_Text float", textExchange<float>(5)},
            {"DDX_Text double", textExchange<double>(5)},
            {"DDX_Text CString", textExchange<CString>(L"text")},
            {"DDX_Text buffer", bufferExchange()},
            {"DDX_Check bool", checkExchange<bool>()},
            {"DDX_Check int", checkExchange<int>()},
            {"DDX_Radio", {makeRadioButton, keeps(DDX_Radio, 4)}},
            {"DDX_CBString", {makeCombo, keeps(DDX_CBString, CString(L"first"))}},
            {"DDX_CBIndex", {makeCombo, keeps(DDX_CBIndex, 5)}},
            {"DDX_LBIndex", {makeList, keeps(DDX_LBIndex, 5)}},
            {"DDX_Slider", {makeSlider, keeps(DDX_Slider, 50)}},
            {"DDX_Control", controlExchange()}};
}

static bool takesAnyKind(const QByteArray &name)
{
    return name.startsWith("DDX_Text") || name == "DDX_Control";
}

void tst_DdxGuards::withAllInPlace_data()
{
    QTest::addColumn<Exchange>("exchange");
    for (const auto &[name, exchange] : exchanges())
        QTest::newRow(name.constData()) << exchange;
}

// The counterpart of nothingHappens(): shows that each table row would tell if its exchange took place.
void tst_DdxGuards::withAllInPlace()
{
    QFETCH(Exchange, exchange);

    ExchangeForm form;
    QWidget *control = exchange.m_make(form.form());
    form.SetDlgItem(controlID, handleOf(control));
    const QVariantList before = stateOf(control);
    form.save([&](CDataExchange *pDX) { QVERIFY(!exchange.m_keepsMember(pDX, controlID)); });
    QCOMPARE(stateOf(control), before);
    bool kept = true;
    form.load([&](CDataExchange *pDX) { kept = exchange.m_keepsMember(pDX, controlID); });
    QVERIFY(!kept || stateOf(control) != before);
}

void tst_DdxGuards::nothingHappens_data()
{
    QTest::addColumn<Exchange>("exchange");
    QTest::addColumn<State>("state");
    QTest::addColumn<bool>("save");

    const QVector<QPair<QByteArray, State>> states{
        {"null exchange", State::NullExchange},         {"null dialog", State::NullDialog},
        {"unbound dialog", State::UnboundDialog},       {"detached dialog", State::DetachedDialog},
        {"unknown control", State::UnknownID},          {"null handle", State::NullHandle},
        {"destroyed control", State::DestroyedControl}, {"detached control", State::DetachedControl},
        {"wrong kind of control", State::WrongKind}};
    for (const auto &[name, exchange] : exchanges()) {
        for (const auto &[stateName, state] : states) {
            if (state == State::WrongKind && takesAnyKind(name))
                continue;
            QTest::newRow((name + " save, " + stateName).constData()) << exchange << state << true;
            QTest::newRow((name + " load, " + stateName).constData()) << exchange << state << false;
        }
    }
}

static void prepare(State state, ExchangeForm &form, CWnd &controlObject, QPointer<QWidget> &control)
{
    if (state == State::DetachedDialog)
        form.Detach();
    if (state == State::DestroyedControl)
        delete control;
    if (state != State::DetachedControl)
        return;
    controlObject.Attach(handleOf(control));
    controlObject.Detach();
}

void tst_DdxGuards::nothingHappens()
{
    QFETCH(Exchange, exchange);
    QFETCH(State, state);
    QFETCH(bool, save);

    ExchangeForm form;
    CDialog unbound;
    CWnd controlObject;
    QPointer<QWidget> control =
        state == State::WrongKind ? new QWidget(form.form()) : exchange.m_make(form.form());
    if (state == State::NullHandle)
        form.SetDlgItem(controlID, nullptr);
    form.SetDlgItem(controlID, handleOf(control));
    prepare(state, form, controlObject, control);
    const QVariantList before = control ? stateOf(control) : QVariantList();

    CWnd *dialog = state == State::UnboundDialog ? &unbound : &form;
    CDataExchange dataExchange(state == State::NullDialog ? nullptr : dialog, save);
    CDataExchange *pDX = state == State::NullExchange ? nullptr : &dataExchange;
    QVERIFY(exchange.m_keepsMember(pDX, state == State::UnknownID ? unknownID : controlID));
    QVERIFY(!dataExchange.m_bFail);
    QCOMPARE(control ? stateOf(control) : QVariantList(), before);
}

QTEST_MAIN(tst_DdxGuards)
#include "tst_DdxGuards.moc"
