#include "ArrayRows.h"

// What the four arrays have in common: every row runs once for each of them.

class tst_Arrays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMadeEmpty();
    void setSize_data();
    void setSize() { compareRow(); }
    void growBy_data();
    void growBy();
    void automaticStep_data();
    void automaticStep();
    void changesElements_data();
    void changesElements() { compareRow(); }
    void add();
    void append_data();
    void append() { compareRow(); }
    void appendGivesTheOldSize();
    void copy_data();
    void copy() { compareRow(); }
    void freeExtra_data();
    void freeExtra() { compareRow(); }
    void arraysDoNotShareElements();
};

void tst_Arrays::isMadeEmpty()
{
    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make();
        QVERIFY(array->isEmpty());
        QCOMPARE(array->size(), INT_PTR(0));
        QCOMPARE(array->capacity(), INT_PTR(0));
        QCOMPARE(array->growBy(), INT_PTR(0));
        QVERIFY(!array->storage());
    }
}

void tst_Arrays::setSize_data()
{
    addRows({
        {"first allocation is exact", "", [](AnyArray &a) { a.setSize(1); }, ".", 1},
        {"larger first allocation is exact", "", [](AnyArray &a) { a.setSize(7, 100); }, ".......", 7},
        {"first allocation by adding", "", [](AnyArray &a) { a.add('a'); }, "a", 1},
        {"second element adds the least step", "a", [](AnyArray &a) { a.add('b'); }, "ab", 5},
        {"grows by the step", "aB", [](AnyArray &a) { a.setSize(3); }, "aB.", 6},
        {"fills the step", "ab", [](AnyArray &a) { a.setSize(6); }, "ab....", 6},
        {"needs more than the step", "ab", [](AnyArray &a) { a.setSize(7); }, "ab.....", 7},
        {"same size", "ab", [](AnyArray &a) { a.setSize(2); }, "ab", 2},
        {"shrinking keeps the capacity", "Abcd", [](AnyArray &a) { a.setSize(1); }, "A", 4},
        {"growing again within it empties", "aBcD",
         [](AnyArray &a) {
             a.setSize(1);
             a.setSize(4);
         },
         "a...", 4},
        {"zero frees", "aB", [](AnyArray &a) { a.setSize(0); }, "", 0},
        {"zero of an empty array", "", [](AnyArray &a) { a.setSize(0); }, "", 0},
        {"removing all frees", "aB", [](AnyArray &a) { a.removeAll(); }, "", 0},
        {"allocates exactly after removing all", "abcd",
         [](AnyArray &a) {
             a.removeAll();
             a.setSize(2);
         },
         "..", 2},
        {"negative changes nothing", "ab", [](AnyArray &a) { a.setSize(-1); }, "ab", 2, true},
        {"least value changes nothing", "ab", [](AnyArray &a) { a.setSize(INTPTR_MIN); }, "ab", 2, true},
        {"negative of an empty array", "", [](AnyArray &a) { a.setSize(-1); }, "", 0, true},
    });
}

void tst_Arrays::growBy_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<qint64>("growBy");
    QTest::addColumn<qint64>("capacity");

    const auto row = [](const char *name, Change change, qint64 growBy, qint64 capacity) {
        QTest::newRow(name) << change << growBy << capacity;
    };
    row(
        "stored", [](AnyArray &a) { a.setSize(3, 10); }, 10, 3);
    row(
        "used later",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.add('x');
        },
        10, 13);
    row(
        "used at once",
        [](AnyArray &a) {
            a.setSize(3);
            a.setSize(4, 10);
        },
        10, 13);
    row(
        "one",
        [](AnyArray &a) {
            a.setSize(3, 1);
            a.add('x');
        },
        1, 4);
    row(
        "kept by -1",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.setSize(14, -1);
        },
        10, 14);
    row(
        "kept by any negative value",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.setSize(4, -7);
        },
        10, 13);
    row(
        "kept by size 0",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.setSize(0);
        },
        10, 0);
    row(
        "stored with size 0", [](AnyArray &a) { a.setSize(0, 10); }, 10, 0);
    row(
        "kept by removing all",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.removeAll();
        },
        10, 0);
    row(
        "kept by freeing",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.add('x');
            a.freeExtra();
        },
        10, 4);
    row(
        "0 computes again",
        [](AnyArray &a) {
            a.setSize(3, 10);
            a.setSize(4, 0);
        },
        0, 7);
    row(
        "stored without a growth",
        [](AnyArray &a) {
            a.setSize(3);
            a.setSize(2, 10);
        },
        10, 3);
    row(
        "not stored with a negative size",
        [](AnyArray &a) {
            a.setSize(3);
            a.setSize(-1, 10);
        },
        0, 3);
}

void tst_Arrays::growBy()
{
    QFETCH(Change, change);
    QFETCH(qint64, growBy);
    QFETCH(qint64, capacity);

    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make();
        change(*array);
        QCOMPARE(qint64(array->growBy()), growBy);
        QCOMPARE(qint64(array->capacity()), capacity);
    }
}

void tst_Arrays::automaticStep_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("step");

    QTest::newRow("1") << 1 << 4;
    QTest::newRow("32") << 32 << 4;
    QTest::newRow("39") << 39 << 4;
    QTest::newRow("40") << 40 << 5;
    QTest::newRow("47") << 47 << 5;
    QTest::newRow("8191") << 8191 << 1023;
    QTest::newRow("8192") << 8192 << 1024;
    QTest::newRow("8200") << 8200 << 1024;
    QTest::newRow("9000") << 9000 << 1024;
    QTest::newRow("100000") << 100000 << 1024;
}

void tst_Arrays::automaticStep()
{
    QFETCH(int, size);
    QFETCH(int, step);

    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make();
        array->setSize(size);
        array->add('x');
        QCOMPARE(array->capacity(), INT_PTR(size + step));
    }
}

void tst_Arrays::changesElements_data()
{
    addRows({
        {"SetAt", "abc", [](AnyArray &a) { a.setAt(1, 'X'); }, "aXc", 3},
        {"ElementAt", "abc", [](AnyArray &a) { a.setElementAt(2, 'X'); }, "abX", 3},
        {"SetAtGrow of an element", "aBc", [](AnyArray &a) { a.setAtGrow(1, 'x'); }, "axc", 3},
        {"SetAtGrow at the end", "abc", [](AnyArray &a) { a.setAtGrow(3, 'X'); }, "abcX", 7},
        {"SetAtGrow past the end", "abc", [](AnyArray &a) { a.setAtGrow(5, 'X'); }, "abc..X", 7},
        {"SetAtGrow of an empty array", "", [](AnyArray &a) { a.setAtGrow(2, 'X'); }, "..X", 3},
        {"SetAtGrow of a negative index", "aBc", [](AnyArray &a) { a.setAtGrow(-1, 'X'); }, "aBc", 3, true},
        {"SetAtGrow of a negative index without storage", "", [](AnyArray &a) { a.setAtGrow(-1, 'X'); }, "",
         0, true},
        {"Add within the capacity", "abcd",
         [](AnyArray &a) {
             a.setSize(2);
             a.add('X');
         },
         "abX", 4},
    });
}

void tst_Arrays::add()
{
    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make();
        for (int i = 0; i < 100; ++i)
            QCOMPARE(array->add(char('a' + i % 26)), INT_PTR(i));
        QCOMPARE(array->size(), INT_PTR(100));
        QCOMPARE(array->at(99), 'v');
    }
}

void tst_Arrays::append_data()
{
    addRows({
        {"another", "aB", [](AnyArray &a) { a.append(*a.another("xY")); }, "aBxY", 6},
        {"another, more than the step", "a", [](AnyArray &a) { a.append(*a.another("uvwxyz")); }, "auvwxyz",
         7},
        {"to an empty one", "", [](AnyArray &a) { a.append(*a.another("xY")); }, "xY", 2},
        {"an empty one", "ab", [](AnyArray &a) { a.append(*a.another()); }, "ab", 2},
        {"an empty one to an emptied one", "ab",
         [](AnyArray &a) {
             a.removeAt(0, 2);
             a.append(*a.another());
         },
         "", 0},
        {"itself", "aB", [](AnyArray &a) { a.append(a); }, "aBaB", 6, true},
        {"itself within the capacity", "abcd",
         [](AnyArray &a) {
             makeSpare(a);
             a.append(a);
         },
         "abcdabcd", 8, true},
        {"itself, large", "abcdefgh",
         [](AnyArray &a) {
             a.append(a);
             a.append(a);
         },
         "abcdefghabcdefghabcdefghabcdefgh", 32, true},
        {"itself, empty", "", [](AnyArray &a) { a.append(a); }, "", 0, true},
        {"itself, emptied: storage goes", "ab",
         [](AnyArray &a) {
             a.removeAt(0, 2);
             a.append(a);
         },
         "", 0, true},
    });
}

void tst_Arrays::appendGivesTheOldSize()
{
    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make()->another("ab");
        const std::unique_ptr<AnyArray> other = kind.make()->another("xYz");
        const std::unique_ptr<AnyArray> none = kind.make();
        takeInvalidArguments();
        QCOMPARE(none->append(*array), INT_PTR(0));
        QCOMPARE(none->capacity(), INT_PTR(2));
        QCOMPARE(array->append(*other), INT_PTR(2));
        QCOMPARE(array->content(), std::string("abxYz"));
        QCOMPARE(array->capacity(), INT_PTR(6));
        QCOMPARE(array->append(*array), INT_PTR(5));
        QCOMPARE(other->content(), std::string("xYz"));
        QCOMPARE(takeInvalidArguments(), 1);
        QCOMPARE(array->append(*kind.make()), INT_PTR(10));
        QCOMPARE(array->content(), std::string("abxYzabxYz"));
    }
}

void tst_Arrays::copy_data()
{
    addRows({
        {"another", "ab", [](AnyArray &a) { a.copy(*a.another("xYz")); }, "xYz", 6},
        {"a shorter one keeps the capacity", "aBc", [](AnyArray &a) { a.copy(*a.another("X")); }, "X", 3},
        {"to an empty one", "", [](AnyArray &a) { a.copy(*a.another("xYz")); }, "xYz", 3},
        {"an empty one frees", "aBc", [](AnyArray &a) { a.copy(*a.another()); }, "", 0},
        {"itself", "aB", [](AnyArray &a) { a.copy(a); }, "aB", 2},
        {"itself keeps spare slots", "abcd",
         [](AnyArray &a) {
             makeSpare(a);
             a.copy(a);
         },
         "abcd", 8},
    });
}

void tst_Arrays::freeExtra_data()
{
    addRows({
        {"gives back spare slots", "aBcd",
         [](AnyArray &a) {
             a.removeAt(0, 1);
             a.freeExtra();
         },
         "Bcd", 3},
        {"after a growth", "aB",
         [](AnyArray &a) {
             a.add('X');
             a.freeExtra();
         },
         "aBX", 3},
        {"of an emptied array frees", "aB",
         [](AnyArray &a) {
             a.removeAt(0, 2);
             a.freeExtra();
         },
         "", 0},
        {"of a full array", "aB", [](AnyArray &a) { a.freeExtra(); }, "aB", 2},
        {"of a new array", "", [](AnyArray &a) { a.freeExtra(); }, "", 0},
        {"grows again", "aBcd",
         [](AnyArray &a) {
             a.removeAt(0, 1);
             a.freeExtra();
             a.add('X');
         },
         "BcdX", 7},
    });
}

void tst_Arrays::arraysDoNotShareElements()
{
    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make()->another("aB");
        const std::unique_ptr<AnyArray> other = kind.make();
        other->copy(*array);
        array->setAt(1, 'x');
        QCOMPARE(other->content(), std::string("aB"));
    }
}

QTEST_MAIN(tst_Arrays)
#include "tst_Arrays.moc"
