#include <KxPlatform.h>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>
#include <dlfcn.h>

namespace {
std::wstring modulePath()
{
    return QStringLiteral(KX_MODULE_FILE).toStdWString();
}

int (*answerOf(HINSTANCE module))()
{
    return reinterpret_cast<int (*)()>(dlsym(module, "kxModuleAnswer"));
}
} // namespace

class tst_PlatformModules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void load();
    void loadTwice();
    void symbolsStayLocal();
    void loadByNameInAnyScript();
    void loadByNameOnTheSearchPath();
    void refusesToLoad_data();
    void refusesToLoad();
    void refusesToRelease();
    void missingString_data();
    void missingString();
    void missingStringWithoutBuffer();
    void missingImage_data();
    void missingImage();
};

void tst_PlatformModules::initTestCase()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void tst_PlatformModules::load()
{
    HINSTANCE module = LoadLibraryW(modulePath().c_str());
    QVERIFY(module);
    QVERIFY(answerOf(module));
    QCOMPARE(answerOf(module)(), 42);
    QVERIFY(FreeLibrary(module));
    QVERIFY(!dlopen(KX_MODULE_FILE, RTLD_NOW | RTLD_NOLOAD));
}

void tst_PlatformModules::loadTwice()
{
    HINSTANCE module = LoadLibraryW(modulePath().c_str());
    QVERIFY(module);
    QCOMPARE(LoadLibraryW(modulePath().c_str()), module);
    QVERIFY(FreeLibrary(module));
    QCOMPARE(answerOf(module)(), 42);
    QVERIFY(FreeLibrary(module));
    QCOMPARE(FreeLibrary(module), FALSE);
}

void tst_PlatformModules::symbolsStayLocal()
{
    HINSTANCE module = LoadLibraryW(modulePath().c_str());
    QVERIFY(module);
    QVERIFY(!dlsym(RTLD_DEFAULT, "kxModuleAnswer"));
    QVERIFY(FreeLibrary(module));
}

void tst_PlatformModules::loadByNameInAnyScript()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QString::fromUtf8("M\u00F6dul \u65E5\u672C \U0001F600.so"));
    QVERIFY(QFile::copy(QStringLiteral(KX_MODULE_FILE), path));
    HINSTANCE module = LoadLibraryW(path.toStdWString().c_str());
    QVERIFY(module);
    QCOMPARE(answerOf(module)(), 42);
    QVERIFY(FreeLibrary(module));
}

void tst_PlatformModules::loadByNameOnTheSearchPath()
{
    HINSTANCE module = LoadLibraryW(L"libc.so.6");
    QVERIFY(module);
    QVERIFY(FreeLibrary(module));
}

void tst_PlatformModules::refusesToLoad_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("/nowhere/missing.so");
    QTest::newRow("missing on the search path") << QStringLiteral("kx-missing-module.so");
    QTest::newRow("empty is not the program") << QString();
    QTest::newRow("directory") << QStringLiteral("/");
    QTest::newRow("not a module") << QStringLiteral(__FILE__);
}

void tst_PlatformModules::refusesToLoad()
{
    QFETCH(QString, name);
    QVERIFY(!LoadLibraryW(name.toStdWString().c_str()));
    QVERIFY(!LoadLibraryW(nullptr));
}

void tst_PlatformModules::refusesToRelease()
{
    QCOMPARE(FreeLibrary(nullptr), FALSE);
    int foreign = 0;
    QCOMPARE(FreeLibrary(reinterpret_cast<HINSTANCE>(&foreign)), FALSE);
}

void tst_PlatformModules::missingString_data()
{
    QTest::addColumn<uint>("id");
    QTest::addColumn<int>("bufferMax");
    QTest::addColumn<bool>("terminated");

    QTest::newRow("room for the text") << 100U << 8 << true;
    QTest::newRow("room for the terminator") << 100U << 1 << true;
    QTest::newRow("no room") << 100U << 0 << false;
    QTest::newRow("negative room") << 100U << -1 << false;
    QTest::newRow("identifier 0") << 0U << 8 << true;
    QTest::newRow("largest identifier") << 0xFFFFFFFFU << 8 << true;
}

void tst_PlatformModules::missingString()
{
    QFETCH(uint, id);
    QFETCH(int, bufferMax);
    QFETCH(bool, terminated);

    wchar_t buffer[8] = L"before";
    QCOMPARE(LoadStringW(nullptr, id, buffer, bufferMax), 0);
    QCOMPARE(std::wstring(buffer), std::wstring(terminated ? L"" : L"before"));
}

void tst_PlatformModules::missingStringWithoutBuffer()
{
    QCOMPARE(LoadStringW(nullptr, 100, nullptr, 8), 0);
    QCOMPARE(LoadStringW(nullptr, 100, nullptr, 0), 0);
}

void tst_PlatformModules::missingImage_data()
{
    QTest::addColumn<quintptr>("name");
    static const wchar_t text[] = L"BITMAP";
    QTest::newRow("null") << quintptr(0);
    QTest::newRow("identifier") << quintptr(101);
    QTest::newRow("largest identifier") << quintptr(0xFFFF);
    QTest::newRow("text") << quintptr(text);
}

void tst_PlatformModules::missingImage()
{
    QFETCH(quintptr, name);
    QVERIFY(!LoadImageW(nullptr, reinterpret_cast<const wchar_t *>(name), 0, 0, 0, 0));
    QVERIFY(!LoadImageW(nullptr, reinterpret_cast<const wchar_t *>(name), 0, -1, 16, 0xFFFFFFFF));
}

QTEST_MAIN(tst_PlatformModules)
#include "tst_PlatformModules.moc"
