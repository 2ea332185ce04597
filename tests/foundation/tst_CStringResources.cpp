#include "KxPlatform.h"
#include "KxString.h"
#include "KxUser32.h"

#include <QtTest>

#include <cstdint>
#include <cwchar>

// What the string class asked the platform for, and what the platform answers.
static HINSTANCE g_askedModule = nullptr;
static UINT g_askedId = 0;
static int g_askedRoom = 0;
static std::wstring g_answer;

// Takes the place of the platform library's function in this program.
int LoadStringW(HINSTANCE module, UINT id, wchar_t *buffer, int bufferMax)
{
    g_askedModule = module;
    g_askedId = id;
    g_askedRoom = bufferMax;
    const std::size_t count = qMin(g_answer.size(), std::size_t(bufferMax) - 1);
    std::wmemcpy(buffer, g_answer.c_str(), count);
    if (count > 0)
        buffer[count] = L'\0';
    return int(count);
}

static HINSTANCE moduleNumber(std::uintptr_t number)
{
    return reinterpret_cast<HINSTANCE>(number);
}

class tst_CStringResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void resourceHandleIsNullAtFirst();
    void asksForTheGivenModule();
    void asksForTheResourceModule();
    void loads_data();
    void loads();
};

void tst_CStringResources::cleanup()
{
    AfxSetResourceHandle(nullptr);
    g_answer.clear();
}

void tst_CStringResources::resourceHandleIsNullAtFirst()
{
    QVERIFY(!AfxGetResourceHandle());
    AfxSetResourceHandle(moduleNumber(7));
    QCOMPARE(AfxGetResourceHandle(), moduleNumber(7));
}

void tst_CStringResources::asksForTheGivenModule()
{
    AfxSetResourceHandle(moduleNumber(7));
    g_answer = L"text";
    CString string;
    QVERIFY(string.LoadStringW(moduleNumber(9), 42));
    QCOMPARE(g_askedModule, moduleNumber(9));
    QCOMPARE(g_askedId, UINT(42));
    QCOMPARE(g_askedRoom, 1024);
}

void tst_CStringResources::asksForTheResourceModule()
{
    AfxSetResourceHandle(moduleNumber(7));
    CString string;
    string.LoadStringW(nullptr, 1);
    QCOMPARE(g_askedModule, moduleNumber(7));

    AfxSetResourceHandle(moduleNumber(8));
    string.LoadStringW(43);
    QCOMPARE(g_askedModule, moduleNumber(8));
    QCOMPARE(g_askedId, UINT(43));
}

void tst_CStringResources::loads_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("length");

    QTest::newRow("missing") << QString() << 0;
    QTest::newRow("short") << QStringLiteral("text") << 4;
    QTest::newRow("longest") << QString(1023, QLatin1Char('x')) << 1023;
    QTest::newRow("cut") << QString(1024, QLatin1Char('x')) << 1023;
}

void tst_CStringResources::loads()
{
    QFETCH(QString, answer);
    QFETCH(int, length);

    g_answer = answer.toStdWString();
    for (const CString &former : {CString(), CString(L"former"), CString(std::wstring(3000, L'f'))}) {
        CString string(former);
        QCOMPARE(string.LoadStringW(1), length > 0);
        QCOMPARE(int(string.size()), length);
        QCOMPARE(QString::fromStdWString(string), answer.left(1023));
    }
}

QTEST_MAIN(tst_CStringResources)
#include "tst_CStringResources.moc"
