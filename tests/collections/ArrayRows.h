#ifndef ARRAYROWS_H
#define ARRAYROWS_H

#include "AnyArray.h"
#include "InvalidArguments.h"

#include <QtTest>

#include <functional>

using Change = std::function<void(AnyArray &)>;

Q_DECLARE_METATYPE(ArrayKind)
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(std::string)

/// One change of an array that holds @c before and has no spare slots.
struct Row
{
    const char *name;
    const char *before;
    Change change;
    const char *after;
    INT_PTR capacityAfter;
    bool reported = false;
};

/// Adds every row once for each of the four arrays.
inline void addRows(const std::vector<Row> &rows)
{
    QTest::addColumn<ArrayKind>("kind");
    QTest::addColumn<std::string>("before");
    QTest::addColumn<Change>("change");
    QTest::addColumn<std::string>("after");
    QTest::addColumn<qint64>("capacityAfter");
    QTest::addColumn<bool>("reported");
    for (const ArrayKind &kind : arrayKinds()) {
        for (const Row &row : rows) {
            QTest::addRow("%s: %s", kind.name, row.name)
                << kind << std::string(row.before) << row.change << std::string(row.after)
                << qint64(row.capacityAfter) << row.reported;
        }
    }
}

/// Makes the change of the current row and compares all that can be seen.
inline void compareRow()
{
    QFETCH(ArrayKind, kind);
    QFETCH(std::string, before);
    QFETCH(Change, change);
    QFETCH(std::string, after);
    QFETCH(qint64, capacityAfter);
    QFETCH(bool, reported);

    const std::unique_ptr<AnyArray> array = kind.make()->another(before);
    takeInvalidArguments();
    change(*array);
    QCOMPARE(takeInvalidArguments() > 0, reported);
    QCOMPARE(QString::fromStdString(array->content()), QString::fromStdString(after));
    QCOMPARE(qint64(array->size()), qint64(after.size()));
    QCOMPARE(qint64(array->capacity()), capacityAfter);
    QCOMPARE(array->isEmpty(), after.empty());
    QCOMPARE(array->storage() == nullptr, capacityAfter == 0);
}

/// Leaves slots that are not in use.
inline void makeSpare(AnyArray &array)
{
    array.setSize(array.size() + 1);
    array.setSize(array.size() - 1);
}

#endif
