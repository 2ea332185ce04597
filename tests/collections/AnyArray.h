#ifndef ANYARRAY_H
#define ANYARRAY_H

#include "KxArrays.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

/// One of the four arrays, with elements written as characters, so that one table serves all of them.
///
/// '.' stands for an empty, zero or null element. A capital letter stands for a string too long to be stored inside
/// its object.
class AnyArray
{
public:
    virtual ~AnyArray() = default;

    virtual INT_PTR size() const = 0;
    virtual INT_PTR capacity() const = 0;
    virtual INT_PTR growBy() const = 0;
    virtual const void *storage() const = 0;
    virtual std::string content() const = 0;
    virtual char at(INT_PTR index) const = 0;
    virtual bool isEmpty() const = 0;

    virtual void setSize(INT_PTR newSize, INT_PTR growBy = -1) = 0;
    virtual void removeAll() = 0;
    virtual void freeExtra() = 0;
    virtual void setAt(INT_PTR index, char value) = 0;
    virtual void setElementAt(INT_PTR index, char value) = 0;
    virtual void setAtGrow(INT_PTR index, char value) = 0;
    virtual INT_PTR add(char value) = 0;
    virtual INT_PTR append(const AnyArray &other) = 0;
    virtual void copy(const AnyArray &other) = 0;
    virtual void insertAt(INT_PTR index, char value, INT_PTR count) = 0;
    virtual void insertAt(INT_PTR index, AnyArray *other) = 0;
    virtual void removeAt(INT_PTR index, INT_PTR count) = 0;

    /// The value is a reference to the array's own element at @p from.
    virtual void addOwn(INT_PTR from) = 0;
    virtual void setOwnAtGrow(INT_PTR index, INT_PTR from) = 0;
    virtual void insertOwnAt(INT_PTR index, INT_PTR from, INT_PTR count) = 0;

    /// A new array of the same class.
    virtual std::unique_ptr<AnyArray> another() const = 0;
    /// A new array of the same class that holds @p content and has no spare slots.
    std::unique_ptr<AnyArray> another(const std::string &content) const
    {
        std::unique_ptr<AnyArray> array = another();
        array->setSize(INT_PTR(content.size()));
        for (std::size_t i = 0; i < content.size(); ++i)
            array->setAt(INT_PTR(i), content[i]);
        return array;
    }
};

template <typename Array> class ArrayOf : public AnyArray
{
public:
    INT_PTR size() const override { return array.GetSize(); }
    INT_PTR capacity() const override { return array.m_nMaxSize; }
    INT_PTR growBy() const override { return array.m_nGrowBy; }
    const void *storage() const override { return array.m_pData; }
    std::string content() const override
    {
        std::string result;
        for (INT_PTR i = 0; i < array.GetCount(); ++i)
            result += at(i);
        return result;
    }
    char at(INT_PTR index) const override { return character(array.GetAt(index)); }
    bool isEmpty() const override { return array.IsEmpty(); }

    void setSize(INT_PTR newSize, INT_PTR growBy) override { array.SetSize(newSize, growBy); }
    void removeAll() override { array.RemoveAll(); }
    void freeExtra() override { array.FreeExtra(); }
    void setAt(INT_PTR index, char value) override { array.SetAt(index, element(value)); }
    void setElementAt(INT_PTR index, char value) override { array.ElementAt(index) = element(value); }
    void setAtGrow(INT_PTR index, char value) override { array.SetAtGrow(index, element(value)); }
    INT_PTR add(char value) override { return array.Add(element(value)); }
    INT_PTR append(const AnyArray &other) override { return array.Append(same(other)); }
    void copy(const AnyArray &other) override { array.Copy(same(other)); }
    void insertAt(INT_PTR index, char value, INT_PTR count) override
    {
        array.InsertAt(index, element(value), count);
    }
    void insertAt(INT_PTR index, AnyArray *other) override
    {
        array.InsertAt(index, static_cast<Array *>(other ? &static_cast<ArrayOf *>(other)->array : nullptr));
    }
    void removeAt(INT_PTR index, INT_PTR count) override { array.RemoveAt(index, count); }

    void addOwn(INT_PTR from) override { array.Add(array[from]); }
    void setOwnAtGrow(INT_PTR index, INT_PTR from) override { array.SetAtGrow(index, array[from]); }
    void insertOwnAt(INT_PTR index, INT_PTR from, INT_PTR count) override
    {
        array.InsertAt(index, array[from], count);
    }

    std::unique_ptr<AnyArray> another() const override { return std::make_unique<ArrayOf>(); }

private:
    struct Opened : Array
    {
        using Array::m_nGrowBy;
        using Array::m_nMaxSize;
        using Array::m_pData;
    };
    using Element = std::remove_pointer_t<decltype(Opened::m_pData)>;

    static const Array &same(const AnyArray &other) { return static_cast<const ArrayOf &>(other).array; }

    static Element element(char value)
    {
        if (value == '.')
            return Element();
        if constexpr (std::is_same_v<Element, CString>)
            return CString(std::wstring(value < 'a' ? 40 : 2, wchar_t(value)));
        else if constexpr (std::is_pointer_v<Element>)
            return reinterpret_cast<Element>(std::uintptr_t(value) * 0x0101010101010101U);
        else
            return Element(unsigned(value) * 0x0101U);
    }

    // '?' when the element is none that element() gives.
    static char character(const Element &found)
    {
        if (found == Element())
            return '.';
        char value = 0;
        if constexpr (std::is_same_v<Element, CString>)
            value = char(found.front());
        else if constexpr (std::is_pointer_v<Element>)
            value = char(reinterpret_cast<std::uintptr_t>(found) & 0x7f);
        else
            value = char(found & 0x7f);
        return element(value) == found ? value : '?';
    }

    Opened array;
};

struct ArrayKind
{
    const char *name;
    bool plain;
    std::unique_ptr<AnyArray> (*make)();
};

template <typename Array> std::unique_ptr<AnyArray> makeArray()
{
    return std::make_unique<ArrayOf<Array>>();
}

inline const std::vector<ArrayKind> &arrayKinds()
{
    static const std::vector<ArrayKind> kinds{{"CStringArray", false, makeArray<CStringArray>},
                                              {"CWordArray", true, makeArray<CWordArray>},
                                              {"CByteArray", true, makeArray<CByteArray>},
                                              {"CPtrArray", true, makeArray<CPtrArray>}};
    return kinds;
}

#endif
