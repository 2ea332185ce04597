#include "ArrayModel.h"

#include <QtTest>

#include <random>

Q_DECLARE_METATYPE(ArrayKind)

// Long random sequences, the same in every run.
class tst_ArraysModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithModel_data();
    void agreesWithModel();
};

void tst_ArraysModel::agreesWithModel_data()
{
    QTest::addColumn<ArrayKind>("kind");
    QTest::addColumn<int>("sizeLimit");
    QTest::addColumn<int>("steps");

    for (const ArrayKind &kind : arrayKinds()) {
        QTest::addRow("%s, small", kind.name) << kind << 60 << 40000;
        QTest::addRow("%s, middle", kind.name) << kind << 500 << 5000;
        QTest::addRow("%s, large", kind.name) << kind << 20000 << 300;
    }
}

void tst_ArraysModel::agreesWithModel()
{
    QFETCH(ArrayKind, kind);
    QFETCH(int, sizeLimit);
    QFETCH(int, steps);

    std::mt19937 generator(4711);
    ArrayRun run(kind, sizeLimit, [&generator](INT_PTR below) {
        return below > 0 ? INT_PTR(generator() % std::uint32_t(below)) : 0;
    });
    for (int i = 0; i < steps; ++i)
        QVERIFY2(run.step(), qPrintable(QStringLiteral("step %1").arg(i)));
}

QTEST_MAIN(tst_ArraysModel)
#include "tst_ArraysModel.moc"
