#include "ArrayRows.h"

// What the four arrays have in common: every row runs once for each of them.

class tst_ArraysInsert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertAt_data();
    void insertAt() { compareRow(); }
    void insertArray_data();
    void insertArray() { compareRow(); }
    void removeAt_data();
    void removeAt() { compareRow(); }
    void ownElements_data();
    void ownElements() { compareRow(); }
};

void tst_ArraysInsert::insertAt_data()
{
    addRows({
        {"two in the middle", "aBc", [](AnyArray &a) { a.insertAt(1, 'X', 2); }, "aXXBc", 7},
        {"in front", "aBc", [](AnyArray &a) { a.insertAt(0, 'x', 1); }, "xaBc", 7},
        {"more than follow", "aBc", [](AnyArray &a) { a.insertAt(2, 'X', 3); }, "aBXXXc", 7},
        {"more than the step", "abc", [](AnyArray &a) { a.insertAt(1, 'x', 9); }, "axxxxxxxxxbc", 12},
        {"as many as follow", "abCD", [](AnyArray &a) { a.insertAt(2, 'X', 2); }, "abXXCD", 8},
        {"fewer than follow", "aBCDe", [](AnyArray &a) { a.insertAt(1, 'X', 1); }, "aXBCDe", 9},
        {"within the capacity", "aBcd",
         [](AnyArray &a) {
             a.removeAt(3, 1);
             a.insertAt(1, 'x', 1);
         },
         "axBc", 4},
        {"at the end", "abc", [](AnyArray &a) { a.insertAt(3, 'X', 1); }, "abcX", 7},
        {"past the end", "abc", [](AnyArray &a) { a.insertAt(5, 'Y', 1); }, "abc..Y", 7},
        {"several past the end", "abc", [](AnyArray &a) { a.insertAt(4, 'Y', 3); }, "abc.YYY", 7},
        {"into an empty array", "", [](AnyArray &a) { a.insertAt(0, 'X', 2); }, "XX", 2},
        {"past the end of an empty array", "", [](AnyArray &a) { a.insertAt(2, 'X', 2); }, "..XX", 4},
        {"negative index", "aB", [](AnyArray &a) { a.insertAt(-1, 'x', 1); }, "aB", 2, true},
        {"least index", "aB", [](AnyArray &a) { a.insertAt(INTPTR_MIN, 'x', 1); }, "aB", 2, true},
        {"none within", "aB", [](AnyArray &a) { a.insertAt(1, 'x', 0); }, "aB", 2, true},
        {"none at the end", "aB", [](AnyArray &a) { a.insertAt(2, 'x', 0); }, "aB", 2, true},
        {"none past the end grows to the index", "aB", [](AnyArray &a) { a.insertAt(4, 'x', 0); }, "aB..", 6,
         true},
        {"none into an emptied array frees", "aB",
         [](AnyArray &a) {
             a.removeAt(0, 2);
             a.insertAt(0, 'x', 0);
         },
         "", 0, true},
        {"negative count within", "aBc", [](AnyArray &a) { a.insertAt(2, 'x', -1); }, "aBc", 3, true},
        {"negative count at the end cuts", "aBc", [](AnyArray &a) { a.insertAt(3, 'x', -1); }, "aB", 3, true},
        {"negative count past the end", "aBc", [](AnyArray &a) { a.insertAt(6, 'x', -2); }, "aBc.", 7, true},
        {"negative count at the end to 0", "aBc", [](AnyArray &a) { a.insertAt(3, 'x', -3); }, "", 0, true},
        {"negative count below 0", "aBc", [](AnyArray &a) { a.insertAt(3, 'x', -4); }, "aBc", 3, true},
        {"negative index and count", "aBc", [](AnyArray &a) { a.insertAt(-1, 'x', -1); }, "aBc", 3, true},
    });
}

void tst_ArraysInsert::insertArray_data()
{
    addRows({
        {"in the middle", "aBc", [](AnyArray &a) { a.insertAt(1, a.another("XyZ").get()); }, "aXyZBc", 7},
        {"in front", "aB", [](AnyArray &a) { a.insertAt(0, a.another("Xy").get()); }, "XyaB", 6},
        {"past the end", "aB", [](AnyArray &a) { a.insertAt(3, a.another("Xy").get()); }, "aB.Xy", 6},
        {"into an empty array", "", [](AnyArray &a) { a.insertAt(0, a.another("Xy").get()); }, "Xy", 2},
        {"an empty one", "aB", [](AnyArray &a) { a.insertAt(1, a.another().get()); }, "aB", 2},
        {"an empty one past the end", "aB", [](AnyArray &a) { a.insertAt(5, a.another().get()); }, "aB", 2},
        {"an empty one, negative index", "aB", [](AnyArray &a) { a.insertAt(-1, a.another().get()); }, "aB",
         2, true},
        {"negative index", "aB", [](AnyArray &a) { a.insertAt(-1, a.another("Xy").get()); }, "aB", 2, true},
        {"null", "aB", [](AnyArray &a) { a.insertAt(1, nullptr); }, "aB", 2, true},
        {"itself in the middle", "aBc", [](AnyArray &a) { a.insertAt(1, &a); }, "aaBcBc", 7},
        {"itself in front", "aBc", [](AnyArray &a) { a.insertAt(0, &a); }, "aBcaBc", 7},
        {"itself at the end", "aBc", [](AnyArray &a) { a.insertAt(3, &a); }, "aBcaBc", 7},
        {"itself past the end", "aBc", [](AnyArray &a) { a.insertAt(5, &a); }, "aBc..aBc", 8},
        {"itself, empty", "", [](AnyArray &a) { a.insertAt(3, &a); }, "", 0},
    });
}

void tst_ArraysInsert::removeAt_data()
{
    addRows({
        {"two in the middle", "aBCd", [](AnyArray &a) { a.removeAt(1, 2); }, "ad", 4},
        {"first", "aBCd", [](AnyArray &a) { a.removeAt(0, 1); }, "BCd", 4},
        {"last", "abCD", [](AnyArray &a) { a.removeAt(3, 1); }, "abC", 4},
        {"all keep the storage", "abCD", [](AnyArray &a) { a.removeAt(0, 4); }, "", 4},
        {"none", "ab", [](AnyArray &a) { a.removeAt(1, 0); }, "ab", 2},
        {"none at the end", "ab", [](AnyArray &a) { a.removeAt(2, 0); }, "ab", 2},
        {"none past the end", "ab", [](AnyArray &a) { a.removeAt(3, 0); }, "ab", 2, true},
        {"none of an empty array", "", [](AnyArray &a) { a.removeAt(0, 0); }, "", 0},
        {"one of an empty array", "", [](AnyArray &a) { a.removeAt(0, 1); }, "", 0, true},
        {"negative index", "aBc", [](AnyArray &a) { a.removeAt(-1, 1); }, "aBc", 3, true},
        {"negative count", "aBc", [](AnyArray &a) { a.removeAt(1, -1); }, "aBc", 3, true},
        {"least count", "aBc", [](AnyArray &a) { a.removeAt(1, INTPTR_MIN); }, "aBc", 3, true},
        {"more than the size", "aBc", [](AnyArray &a) { a.removeAt(1, 4); }, "aBc", 3, true},
        {"sum overflows", "aBc", [](AnyArray &a) { a.removeAt(1, INTPTR_MAX); }, "aBc", 3, true},
        {"negative index, all", "aBc", [](AnyArray &a) { a.removeAt(-1, 3); }, "aBc", 3, true},
    });
}

void tst_ArraysInsert::ownElements_data()
{
    addRows({
        {"added, array grows", "Ab", [](AnyArray &a) { a.addOwn(0); }, "AbA", 6},
        {"added within the capacity", "Ab",
         [](AnyArray &a) {
             makeSpare(a);
             a.addOwn(0);
         },
         "AbA", 6},
        {"set, array grows", "Ab", [](AnyArray &a) { a.setOwnAtGrow(3, 0); }, "Ab.A", 6},
        {"set to itself", "Ab", [](AnyArray &a) { a.setOwnAtGrow(0, 0); }, "Ab", 2},
        {"inserted in front of itself", "abC", [](AnyArray &a) { a.insertOwnAt(0, 2, 3); }, "CCCabC", 7},
        {"inserted behind itself", "Abc", [](AnyArray &a) { a.insertOwnAt(1, 0, 2); }, "AAAbc", 7},
        {"inserted within the capacity", "abC",
         [](AnyArray &a) {
             makeSpare(a);
             a.insertOwnAt(1, 2, 2);
         },
         "aCCbC", 7},
    });
}

QTEST_MAIN(tst_ArraysInsert)
#include "tst_ArraysInsert.moc"
