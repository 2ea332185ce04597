#ifndef MAPMODEL_H
#define MAPMODEL_H

#include "HandOutOrder.h"
#include "KxMaps.h"

#include <algorithm>
#include <cstdint>
#include <list>
#include <string>
#include <vector>

/// A CMapStringToPtr beside plain buckets. Each step does one operation to both; after it they must agree in
/// content, in the order of iteration, and in which association a new key got.
class MapModel
{
public:
    explicit MapModel(std::size_t blockSize)
        : m_map(INT_PTR(blockSize))
        , m_order(blockSize, sizeof(CMapStringToPtr::CAssoc))
        , m_buckets(17)
    {
    }

    /// Does the operation that the three numbers choose.
    /// @return what is wrong after it; null when all agrees.
    const char *step(unsigned operation, unsigned keyNumber, unsigned value)
    {
        m_fault = nullptr;
        const std::wstring key = keyOf(keyNumber);
        operate(operation % operations, key, reinterpret_cast<void *>(std::uintptr_t(value)));
        compareContent();
        return m_fault;
    }

private:
    struct Entry
    {
        std::wstring key;
        void *value;
        const CMapStringToPtr::CAssoc *association;
    };
    using Bucket = std::list<Entry>;

    enum {
        setAt,
        setAtToo,
        write,
        read,
        lookup,
        lookupKey,
        assocAt,
        removeKey,
        removeKeyToo,
        removeAll,
        resize,
        spare,
        nullKey,
        operations
    };

    // Keys of 510 to 513 elements among short ones, which are many enough to share buckets.
    static std::wstring keyOf(unsigned number)
    {
        if (number % 16 == 0)
            return std::wstring(510 + number / 16 % 4, L'k');
        return std::wstring(number % 2 ? L"Key" : L"key") + std::to_wstring(number % 101);
    }

    static bool storable(const std::wstring &key) { return key.size() < 512; }

    static std::uint32_t hashOf(const std::wstring &key)
    {
        std::uint32_t hash = 0;
        for (const wchar_t ch : key)
            hash = hash * 33 + std::uint32_t(ch);
        return hash;
    }

    void expect(bool condition, const char *what)
    {
        if (!condition && !m_fault)
            m_fault = what;
    }

    Bucket &bucketOf(const std::wstring &key) { return m_buckets[hashOf(key) % m_buckets.size()]; }

    Entry *entryOf(const std::wstring &key)
    {
        Bucket &bucket = bucketOf(key);
        const auto found =
            std::find_if(bucket.begin(), bucket.end(), [&](const Entry &entry) { return entry.key == key; });
        return found == bucket.end() ? nullptr : &*found;
    }

    void operate(unsigned operation, const std::wstring &key, void *value)
    {
        const wchar_t *chars = key.c_str();
        switch (operation) {
        case setAt:
        case setAtToo:
            m_map.SetAt(chars, value);
            return stored(key, value);
        case write:
            m_map[chars] = value;
            return stored(key, value);
        case read:
            return readSlot(key);
        case lookup:
            return lookUp(key, value);
        case lookupKey:
            return lookUpKey(key);
        case assocAt:
            return associationAt(key);
        case removeKey:
        case removeKeyToo:
            return remove(key);
        case removeAll:
            return m_count > 60 ? clear() : readSlot(key);
        case resize:
            return setTableSize(key.size(), std::uintptr_t(value) % 2 == 0);
        case spare:
            return takeSpare();
        default:
            return useNullKey(value);
        }
    }

    void stored(const std::wstring &key, void *value)
    {
        if (!storable(key))
            return;
        if (Entry *entry = entryOf(key)) {
            entry->value = value;
            return;
        }
        UINT bucket = 0;
        UINT hash = 0;
        const CMapStringToPtr::CAssoc *association = m_map.GetAssocAt(key.c_str(), bucket, hash);
        expect(association, "a stored key has no association");
        expect(m_order.handedOut(association), "another association was due for the new key");
        bucketOf(key).push_front(Entry{key, value, association});
        ++m_count;
    }

    void readSlot(const std::wstring &key)
    {
        const Entry *entry = entryOf(key);
        void *const due = entry ? entry->value : nullptr;
        expect(m_map[key.c_str()] == due, "operator[] gave another value");
        stored(key, due);
    }

    void lookUp(const std::wstring &key, void *untouched)
    {
        const Entry *entry = entryOf(key);
        void *value = untouched;
        expect(m_map.Lookup(key.c_str(), value) == bool(entry), "Lookup is wrong");
        expect(value == (entry ? entry->value : untouched), "Lookup gave another value");
    }

    void lookUpKey(const std::wstring &key)
    {
        const Entry *entry = entryOf(key);
        const wchar_t *storedKey = nullptr;
        expect(m_map.LookupKey(key.c_str(), storedKey) == bool(entry), "LookupKey is wrong");
        expect(storedKey == (entry ? entry->association->key : nullptr), "LookupKey gave another key");
    }

    void associationAt(const std::wstring &key)
    {
        const Entry *entry = entryOf(key);
        UINT bucket = 0;
        UINT hash = 77;
        expect(m_map.GetAssocAt(key.c_str(), bucket, hash) == (entry ? entry->association : nullptr),
               "GetAssocAt gave another association");
        expect(bucket == hashOf(key) % m_buckets.size(), "GetAssocAt gave another bucket");
        expect(hash == 77, "GetAssocAt wrote the hash");
    }

    void remove(const std::wstring &key)
    {
        const Entry *entry = entryOf(key);
        expect(m_map.RemoveKey(key.c_str()) == bool(entry), "RemoveKey is wrong");
        if (!entry)
            return;
        m_order.givenBack(entry->association);
        bucketOf(key).remove_if([&](const Entry &each) { return &each == entry; });
        if (--m_count == 0)
            m_order.blocksFreed();
    }

    void clear()
    {
        m_map.RemoveAll();
        m_buckets.assign(m_buckets.size(), Bucket());
        m_count = 0;
        m_order.blocksFreed();
    }

    void setTableSize(std::size_t size, bool allocate)
    {
        if (m_count > 0)
            return;
        m_map.InitHashTable(UINT(size), allocate);
        m_buckets.assign(size, Bucket());
    }

    void takeSpare()
    {
        CMapStringToPtr::CAssoc *association = m_map.NewAssoc();
        expect(m_order.handedOut(association), "another spare association was due");
        expect(!association->value, "a spare association has a value");
        expect(std::all_of(std::begin(association->key), std::end(association->key),
                           [](wchar_t ch) { return ch == L'\0'; }),
               "a spare association has a key");
        expect(m_map.GetCount() == INT_PTR(m_count + 1), "a spare association is not counted");
        m_map.FreeAssoc(association);
        m_order.givenBack(association);
        if (m_count == 0)
            m_order.blocksFreed();
    }

    void useNullKey(void *value)
    {
        m_map.SetAt(nullptr, value);
        expect(!m_map[nullptr], "a null key has a value");
        expect(!m_map.RemoveKey(nullptr), "a null key was removed");
        expect(!m_map.Lookup(nullptr, value), "a null key was found");
    }

    void compareContent()
    {
        expect(m_map.GetCount() == INT_PTR(m_count) && m_map.GetSize() == INT_PTR(m_count),
               "the counts differ");
        expect(m_map.IsEmpty() == (m_count == 0), "IsEmpty is wrong");
        expect(m_map.GetHashTableSize() == m_buckets.size(), "the table has another size");
        POSITION position = m_map.GetStartPosition();
        for (const Bucket &bucket : m_buckets) {
            for (const Entry &entry : bucket)
                compareNext(position, entry);
        }
        expect(!position, "the iteration does not end");
    }

    void compareNext(POSITION &position, const Entry &entry)
    {
        expect(position, "the iteration ends early");
        CString key;
        void *value = nullptr;
        m_map.GetNextAssoc(position, key, value);
        expect(key == entry.key, "another key is next");
        expect(value == entry.value, "the values differ");
    }

    CMapStringToPtr m_map;
    HandOutOrder m_order;
    std::vector<Bucket> m_buckets;
    std::size_t m_count = 0;
    const char *m_fault = nullptr;
};

#endif
