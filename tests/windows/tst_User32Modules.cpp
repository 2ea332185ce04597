#include "KxUser32.h"

#include <QtTest>

#include <dlfcn.h>

/// Shared libraries and the resource module.
class tst_User32Modules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resourceHandle();
    void loadedLibrary();
    void libraryIsReleased();
    void missingLibrary_data();
    void missingLibrary();
    void freeNothing();
};

void tst_User32Modules::resourceHandle()
{
    QCOMPARE(AfxGetResourceHandle(), HINSTANCE{nullptr});

    const auto module = reinterpret_cast<HINSTANCE>(std::uintptr_t{0x1234});
    AfxSetResourceHandle(module);
    QCOMPARE(AfxGetResourceHandle(), module);
    AfxSetResourceHandle(nullptr);
    QCOMPARE(AfxGetResourceHandle(), HINSTANCE{nullptr});
}

void tst_User32Modules::loadedLibrary()
{
    const HINSTANCE module = AfxLoadLibrary(L"libKxPlatform.so.0");
    QVERIFY(module);
    QCOMPARE(AfxLoadLibrary(L"libKxPlatform.so.0"), module);
    QVERIFY(dlsym(module, "KxPlatformNoSuchSymbol") == nullptr);
    QVERIFY(AfxFreeLibrary(module));
    QVERIFY(AfxFreeLibrary(module));
}

void tst_User32Modules::libraryIsReleased()
{
    // A library that neither Qt nor the C library needs.
    const char *name = "libanl.so.1";
    QVERIFY(!dlopen(name, RTLD_NOW | RTLD_NOLOAD));

    const HINSTANCE module = AfxLoadLibrary(L"libanl.so.1");
    QVERIFY(module);
    void *loaded = dlopen(name, RTLD_NOW | RTLD_NOLOAD);
    QCOMPARE(static_cast<void *>(module), loaded);
    dlclose(loaded);

    QVERIFY(AfxFreeLibrary(module));
    QVERIFY(!dlopen(name, RTLD_NOW | RTLD_NOLOAD));
}

void tst_User32Modules::missingLibrary_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no such name") << QStringLiteral("libNoSuchLibrary.so");
    QTest::newRow("no such path") << QStringLiteral("/no/such/folder/lib.so");
    QTest::newRow("folder") << QStringLiteral("/");
    QTest::newRow("no library") << QStringLiteral("/etc/passwd");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("null") << QString();
}

void tst_User32Modules::missingLibrary()
{
    QFETCH(QString, name);

    const std::wstring text = name.toStdWString();
    QCOMPARE(AfxLoadLibrary(name.isNull() ? nullptr : text.c_str()), HINSTANCE{nullptr});
}

void tst_User32Modules::freeNothing()
{
    QCOMPARE(AfxFreeLibrary(nullptr), false);
}

QTEST_GUILESS_MAIN(tst_User32Modules)
#include "tst_User32Modules.moc"
