/// @file KxMaps.h
/// @brief The maps with text keys: CMapStringToPtr and CMapStringToString.
#pragma once

#include "KxLists.h"
#include "KxString.h"
#include "KxWinTypes.h"

/// A hash table from texts to pointers.
///
/// Keys are compared with regard to case and have at most 511 elements. A key that is longer, or null, is not
/// in any map: it is not found, and storing a value under it stores nothing. The table has a fixed size, 17
/// unless InitHashTable() sets another one; it never grows, so size it for its load. Iteration goes through
/// the buckets in their order, and through each bucket from its newest key to its oldest. A POSITION is the
/// address of an association and stays valid until its key is removed. The map that becomes empty frees all
/// its memory. It owns its copies of the keys, not what the values point to. Not synchronised.
class KX_MFC_EXPORT CMapStringToPtr
{
public:
    /// One key with its value.
    struct CAssoc
    {
        CAssoc *pNext;    ///< The next one in the bucket or in the free list.
        UINT nBucket;     ///< The number of the bucket; not the full hash.
        wchar_t key[512]; ///< The key, terminated.
        void *value;      ///< The value.
    };

    /// An empty map, whose table is allocated when the first key is stored.
    /// @param nBlockSize associations per block. A value below 1 counts as 10.
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10);
    CMapStringToPtr(const CMapStringToPtr &) = delete;
    CMapStringToPtr &operator=(const CMapStringToPtr &) = delete;
    ~CMapStringToPtr();

    /// @name Size
    /// @{

    /// @return the number of keys.
    INT_PTR GetCount() const { return m_nCount; }
    /// @return the number of keys.
    INT_PTR GetSize() const { return m_nCount; }
    /// @return true when there are no keys.
    bool IsEmpty() const { return m_nCount == 0; }
    /// @return the number of buckets, whether or not the table is allocated yet.
    UINT GetHashTableSize() const { return m_nHashTableSize; }
    /// @}

    /// @name Looking up
    /// @{

    /// Finds a value.
    /// @param key the key.
    /// @param value receives the value of @p key; untouched when there is none.
    /// @return true when @p key was found.
    bool Lookup(const wchar_t *key, void *&value) const;
    /// Finds the stored key.
    /// @param key the key.
    /// @param storedKey receives the map's own copy of @p key, valid until the key is removed; untouched when
    /// there is none.
    /// @return true when @p key was found.
    bool LookupKey(const wchar_t *key, const wchar_t *&storedKey) const;
    /// @return the hash of @p key, from which its bucket follows; 0 for a null key.
    UINT HashKey(const wchar_t *key) const;
    /// Finds an association.
    /// @param key the key.
    /// @param bucket receives the number of the bucket where @p key belongs.
    /// @param hash untouched.
    /// @return the association of @p key, owned by the map; null when there is none.
    CAssoc *GetAssocAt(const wchar_t *key, UINT &bucket, UINT &hash) const;
    /// @}

    /// @name Iteration
    /// @{

    /// @return a position before the first key; null when the map is empty.
    POSITION GetStartPosition() const;
    /// Gives the next key and moves @p position behind it, or to null when it was the last one.
    ///
    /// A null @p position, and a table that was replaced by an empty one, leave @p key and @p value untouched
    /// and @p position null.
    void GetNextAssoc(POSITION &position, CString &key, void *&value) const;
    /// @}

    /// @name Changes
    /// @{

    /// Gives the value of @p key, which is added with a null value when it is new.
    /// @return the value, valid until the key is removed. For a key that cannot be stored (null, longer than
    /// 511 elements, or no memory for the table) a null value outside the map, to be read or written at once.
    void *&operator[](const wchar_t *key);
    /// Stores a value, in place of the former one. A key that cannot be stored changes nothing.
    void SetAt(const wchar_t *key, void *value);
    /// Removes a key.
    /// @return true when it was there.
    bool RemoveKey(const wchar_t *key);
    /// Removes all keys and frees the table and all blocks. The size of the table stays.
    void RemoveAll();
    /// Sets the number of buckets and empties the table. For use before the first key is stored: keys that
    /// are in the map stay counted and cannot be reached any more.
    /// @param size buckets; best a prime number, about as many as keys are expected. 0 changes nothing.
    /// @param allocNow false to allocate the table when the next key is stored. When there is no memory now,
    /// the map is left without a table and its size is as it was.
    void InitHashTable(UINT size, bool allocNow = true);
    /// @}

    /// @name Associations outside the table
    /// @{

    /// @return a new association, counted but in no bucket, whose key is empty and whose value is null; owned
    /// by the map.
    CAssoc *NewAssoc();
    /// Takes back an association that is in no bucket; null does nothing. The last one frees all memory, as
    /// RemoveAll() does.
    void FreeAssoc(CAssoc *association);
    /// @}

protected:
    CAssoc **m_pHashTable = nullptr; ///< The buckets; null until first needed.
    UINT m_nHashTableSize = 17;      ///< Number of buckets.
    INT_PTR m_nCount = 0;            ///< Associations in use.
    CAssoc *m_pFreeList = nullptr;   ///< Associations to hand out.
    CPlex *m_pBlocks = nullptr;      ///< The blocks that hold all associations.
    INT_PTR m_nBlockSize;            ///< Associations per block.

private:
    inline UINT bucketOf(const wchar_t *key) const;
    inline CAssoc *find(const wchar_t *key, UINT bucket) const;
    inline CAssoc *firstFrom(UINT bucket) const;
    inline bool makeTable();

    void *m_refused = nullptr;
};

/// Inert: it has the members of the MFC class and stores nothing, so that code that declares one compiles.
///
/// Every member gives a fixed result. Use a standard map instead.
class KX_MFC_EXPORT CMapStringToString
{
public:
    /// A key with its value. None is ever made.
    struct CPair
    {
        CString key;   ///< The key.
        CString value; ///< The value.
    };
    /// An association. None is ever made.
    struct CAssoc : CPair
    {
        CAssoc *pNext;   ///< The next one.
        UINT nHashValue; ///< The hash of the key.
    };

    /// @name No counterpart on this platform
    /// @{

    /// Does nothing.
    explicit CMapStringToString(INT_PTR nBlockSize = 10);
    CMapStringToString(const CMapStringToString &) = delete;
    CMapStringToString &operator=(const CMapStringToString &) = delete;
    /// Does nothing.
    ~CMapStringToString();

    /// @return 0.
    INT_PTR GetCount() const;
    /// @return 0.
    INT_PTR GetSize() const;
    /// @return false, although GetCount() is 0.
    bool IsEmpty() const;
    /// @return 0.
    UINT GetHashTableSize() const;

    /// @return false; @p value is untouched.
    bool Lookup(const wchar_t *key, CString &value) const;
    /// @return false; @p storedKey is untouched.
    bool LookupKey(const wchar_t *key, const wchar_t *&storedKey) const;
    /// @return null.
    CPair *PLookup(const wchar_t *key);
    /// @return null.
    const CPair *PLookup(const wchar_t *key) const;
    /// @return 0.
    UINT HashKey(const wchar_t *key) const;
    /// @return null; @p bucket and @p hash are untouched.
    CAssoc *GetAssocAt(const wchar_t *key, UINT &bucket, UINT &hash) const;

    /// @return null.
    POSITION GetStartPosition() const;
    /// Does nothing.
    void GetNextAssoc(POSITION &position, CString &key, CString &value) const;
    /// @return null.
    CPair *PGetFirstAssoc();
    /// @return null.
    const CPair *PGetFirstAssoc() const;
    /// @return null.
    CPair *PGetNextAssoc(const CPair *pair);
    /// @return null.
    const CPair *PGetNextAssoc(const CPair *pair) const;

    /// @return a null reference, which must not be used: not read, not assigned, not copied.
    CString &operator[](const wchar_t *key);
    /// Stores nothing.
    void SetAt(const wchar_t *key, const wchar_t *value);
    /// @return true, although nothing is removed.
    bool RemoveKey(const wchar_t *key);
    /// Does nothing.
    void RemoveAll();
    /// Does nothing.
    void InitHashTable(UINT size, bool allocNow = true);
    /// @return null.
    CAssoc *NewAssoc(const wchar_t *key = nullptr);
    /// Does nothing.
    void FreeAssoc(CAssoc *association);
    /// @}
};
