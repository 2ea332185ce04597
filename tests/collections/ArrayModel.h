#ifndef ARRAYMODEL_H
#define ARRAYMODEL_H

#include "AnyArray.h"
#include "InvalidArguments.h"

#include <algorithm>
#include <functional>
#include <string>

/// What an array is expected to hold: a std::string for the elements, and the capacity rules.
struct ArrayModel
{
    bool plain = true;
    std::string content;
    INT_PTR capacity = 0;
    INT_PTR growBy = 0;
    bool reported = false;

    INT_PTR size() const { return INT_PTR(content.size()); }

    void setSize(INT_PTR newSize, INT_PTR newGrowBy = -1)
    {
        reported |= newSize < 0;
        if (newSize < 0)
            return;
        if (newGrowBy >= 0)
            growBy = newGrowBy;
        if (newSize == 0 || capacity == 0)
            capacity = newSize;
        else if (newSize > capacity)
            capacity =
                std::max(newSize, capacity + (growBy ? growBy : std::clamp<INT_PTR>(size() / 8, 4, 1024)));
        content.resize(std::size_t(newSize), '.');
    }

    void setAtGrow(INT_PTR index, char value)
    {
        reported |= index < 0;
        if (index < 0)
            return;
        if (index >= size())
            setSize(index + 1);
        content[std::size_t(index)] = value;
    }

    void insertAt(INT_PTR index, const std::string &values)
    {
        const std::string before = content;
        const INT_PTR count = INT_PTR(values.size());
        setSize(std::max(index, size()) + count);
        if (index < INT_PTR(before.size()))
            content = before.substr(0, std::size_t(index)) + values + before.substr(std::size_t(index));
        else
            content.replace(std::size_t(index), values.size(), values);
    }

    void insertAt(INT_PTR index, char value, INT_PTR count)
    {
        reported |= index < 0 || count < 1;
        if (index < 0 || (count < 1 && index < size()))
            return;
        if (count < 1)
            setSize(index + count);
        else
            insertAt(index, std::string(std::size_t(count), value));
    }

    void removeAt(INT_PTR index, INT_PTR count)
    {
        if (index >= 0 && count >= 0 && index + count <= size()) {
            content.erase(std::size_t(index), std::size_t(count));
            return;
        }
        reported = true;
        if (plain && index >= 0 && count >= 0 && count <= size())
            content.resize(content.size() - std::size_t(count));
    }
};

/// Runs random operations on an array and its model.
class ArrayRun
{
public:
    /// @param choose  gives a number from 0 to below its argument.
    ArrayRun(const ArrayKind &kind, INT_PTR sizeLimit, std::function<INT_PTR(INT_PTR)> choose)
        : m_array(kind.make())
        , m_other(kind.make())
        , m_sizeLimit(sizeLimit)
        , m_choose(std::move(choose))
    {
        m_model.plain = kind.plain;
    }

    /// Makes one change.
    /// @return whether array and model still agree.
    bool step()
    {
        takeInvalidArguments();
        m_model.reported = false;
        change();
        const bool agrees = (takeInvalidArguments() > 0) == m_model.reported && agree();
        if (m_model.size() > m_sizeLimit)
            shrink();
        return agrees && agree();
    }

private:
    bool agree() const
    {
        return m_array->capacity() == m_model.capacity && m_array->growBy() == m_model.growBy &&
               m_array->content() == m_model.content &&
               (m_array->storage() != nullptr) == (m_model.capacity > 0);
    }

    void shrink()
    {
        const INT_PTR size = m_choose(m_sizeLimit / 2);
        m_array->setSize(size);
        m_model.setSize(size);
    }

    // A little below 0, within the array, or a little past its end.
    INT_PTR index() { return m_choose(m_model.size() + 6) - 2; }
    INT_PTR element() { return m_choose(m_model.size()); }
    INT_PTR count() { return m_choose(12) - 3; }
    char value() { return "abcXYZ."[m_choose(7)]; }

    std::string values()
    {
        std::string result;
        for (INT_PTR i = m_choose(9); i > 0; --i)
            result += value();
        return result;
    }

    const AnyArray &other(const std::string &content)
    {
        m_other = m_array->another(content);
        takeInvalidArguments();
        return *m_other;
    }

    void change()
    {
        switch (m_choose(12)) {
        case 0:
            return setSize();
        case 1:
        case 2:
            return add();
        case 3:
            return setAtGrow();
        case 4:
            return append();
        case 5:
            return copy();
        case 6:
            return insertAt();
        case 7:
            return insertArray();
        case 8:
            return removeAt();
        case 9:
            return freeExtra();
        case 10:
            return ownElement();
        default:
            return itself();
        }
    }

    void setSize()
    {
        const INT_PTR size = m_choose(8) ? m_model.size() + m_choose(20) - 10 : m_choose(m_sizeLimit);
        const INT_PTR growBy = m_choose(4) ? -1 : m_choose(40);
        m_array->setSize(size, growBy);
        m_model.setSize(size, growBy);
    }

    void add()
    {
        const char added = value();
        m_array->add(added);
        m_model.setAtGrow(m_model.size(), added);
    }

    void setAtGrow()
    {
        const INT_PTR at = index();
        const char set = value();
        m_array->setAtGrow(at, set);
        m_model.setAtGrow(at, set);
    }

    void append()
    {
        const std::string appended = values();
        m_array->append(other(appended));
        m_model.setSize(m_model.size() + INT_PTR(appended.size()));
        m_model.content.replace(m_model.content.size() - appended.size(), appended.size(), appended);
    }

    void copy()
    {
        const std::string copied = values();
        m_array->copy(other(copied));
        m_model.setSize(INT_PTR(copied.size()));
        m_model.content = copied;
    }

    void insertAt()
    {
        const INT_PTR at = index();
        const INT_PTR inserted = count();
        const char what = value();
        m_array->insertAt(at, what, inserted);
        m_model.insertAt(at, what, inserted);
    }

    void insertArray()
    {
        const INT_PTR at = index();
        const std::string inserted = values();
        other(inserted);
        m_array->insertAt(at, m_other.get());
        m_model.reported = at < 0;
        if (at >= 0 && !inserted.empty())
            m_model.insertAt(at, inserted);
    }

    void removeAt()
    {
        const INT_PTR at = index();
        const INT_PTR removed = count();
        m_array->removeAt(at, removed);
        m_model.removeAt(at, removed);
    }

    void freeExtra()
    {
        m_array->freeExtra();
        m_model.capacity = m_model.size();
    }

    void ownElement()
    {
        if (m_model.content.empty())
            return;
        const INT_PTR from = element();
        const INT_PTR at = index();
        const INT_PTR inserted = count();
        m_array->insertOwnAt(at, from, inserted);
        m_model.insertAt(at, m_model.content[std::size_t(from)], inserted);
    }

    void itself()
    {
        const INT_PTR at = m_choose(m_model.size() + 4);
        const std::string content = m_model.content;
        if (m_choose(2)) {
            m_array->append(*m_array);
            m_model.reported = true;
            m_model.setSize(2 * m_model.size());
            m_model.content = content + content;
        } else {
            m_array->insertAt(at, m_array.get());
            if (!content.empty())
                m_model.insertAt(at, content);
        }
    }

    std::unique_ptr<AnyArray> m_array;
    std::unique_ptr<AnyArray> m_other;
    ArrayModel m_model;
    INT_PTR m_sizeLimit;
    std::function<INT_PTR(INT_PTR)> m_choose;
};

#endif
