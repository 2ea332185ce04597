#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class tst_PlatformProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesCleanly_data();
    void leavesCleanly();
};

void tst_PlatformProcess::leavesCleanly_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");

    const QString process = QStringLiteral(KX_PROCESS_FILE);
    for (const char *way : {"none", "core", "gui", "widgets", "one after the other", "exit inside"})
        QTest::addRow("linked, application: %s", way) << process << QStringList{QLatin1String(way)};

    const QString loader = QStringLiteral(KX_LOADER_FILE);
    for (const char *way : {"without", "before", "after"}) {
        QTest::addRow("loaded, application: %s", way)
            << loader << QStringList{QStringLiteral(KX_LIBRARY_FILE), QLatin1String(way)};
    }
}

void tst_PlatformProcess::leavesCleanly()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);

    // Qt warns when there is none.
    const QTemporaryDir runtimeDirectory;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDirectory.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

QTEST_MAIN(tst_PlatformProcess)
#include "tst_PlatformProcess.moc"
