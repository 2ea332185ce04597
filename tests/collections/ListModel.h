#ifndef LISTMODEL_H
#define LISTMODEL_H

#include "HandOutOrder.h"
#include "KxLists.h"

#include <iterator>
#include <list>
#include <string>

/// A CStringList beside a plain list. Each step does one operation to both; after it they must agree in content,
/// in positions, and in which node a new string got.
class ListModel
{
public:
    explicit ListModel(std::size_t blockSize)
        : m_list(INT_PTR(blockSize))
        , m_order(blockSize, 2 * sizeof(void *) + sizeof(CString))
    {
    }

    /// Does the operation that the three numbers choose.
    /// @return what is wrong after it; null when all agrees.
    const char *step(unsigned operation, unsigned place, unsigned text)
    {
        m_fault = nullptr;
        operate(m_plain.size() > 150 ? unsigned(removeAll) : operation % operations, place, textOf(text));
        compareContent();
        return m_fault;
    }

private:
    struct Entry
    {
        std::wstring text;
        POSITION position;
    };
    using Plain = std::list<Entry>;

    enum {
        addHead,
        addHeadString,
        addTail,
        addTailString,
        insertBefore,
        insertAfter,
        insertAtNull,
        removeHead,
        removeTail,
        removeAt,
        removeAtToo,
        setAt,
        addListHead,
        addListTail,
        addSelf,
        find,
        findIndex,
        removeAll,
        operations
    };

    static std::wstring textOf(unsigned number)
    {
        std::wstring text(number % 7, L'x');
        return text.append(std::to_wstring(number % 5));
    }

    void expect(bool condition, const char *what)
    {
        if (!condition && !m_fault)
            m_fault = what;
    }

    Plain::iterator at(unsigned place) { return std::next(m_plain.begin(), place % m_plain.size()); }

    void operate(unsigned operation, unsigned place, const std::wstring &text)
    {
        const wchar_t *chars = text.c_str();
        switch (operation) {
        case addHead:
            return added(m_plain.begin(), text, m_list.AddHead(chars));
        case addHeadString:
            return added(m_plain.begin(), text, m_list.AddHead(CString(text)));
        case addTail:
            return added(m_plain.end(), text, m_list.AddTail(chars));
        case addTailString:
            return added(m_plain.end(), text, m_list.AddTail(CString(text)));
        case addListHead:
            return addOtherHead(place % 4, text);
        case addListTail:
            return addOtherTail(place % 4, text);
        case addSelf:
            return addItself(place % 2 == 0);
        case find:
            return search(place, chars);
        case findIndex:
            return index(place);
        case removeAll:
            return clear();
        case insertAtNull:
            return insertAtNullPosition(place % 2 == 0, text);
        default:
            break;
        }
        if (!m_plain.empty())
            operateAt(operation, at(place), text);
    }

    void operateAt(unsigned operation, Plain::iterator entry, const std::wstring &text)
    {
        const wchar_t *chars = text.c_str();
        switch (operation) {
        case insertBefore:
            return added(entry, text, m_list.InsertBefore(entry->position, chars));
        case insertAfter:
            return added(std::next(entry), text, m_list.InsertAfter(entry->position, CString(text)));
        case removeHead:
            expect(m_list.RemoveHead() == m_plain.front().text, "RemoveHead gave another string");
            return removed(m_plain.begin());
        case removeTail:
            expect(m_list.RemoveTail() == m_plain.back().text, "RemoveTail gave another string");
            return removed(std::prev(m_plain.end()));
        case setAt:
            m_list.SetAt(entry->position, chars);
            entry->text = text;
            return;
        default:
            m_list.RemoveAt(entry->position);
            return removed(entry);
        }
    }

    void added(Plain::iterator before, const std::wstring &text, POSITION position)
    {
        expect(position, "a new string has no position");
        expect(m_order.handedOut(position), "another node was due for the new string");
        m_plain.insert(before, Entry{text, position});
    }

    void removed(Plain::iterator entry)
    {
        m_order.givenBack(entry->position);
        m_plain.erase(entry);
        if (m_plain.empty())
            m_order.blocksFreed();
    }

    void clear()
    {
        m_list.RemoveAll();
        m_plain.clear();
        m_order.blocksFreed();
    }

    void insertAtNullPosition(bool before, const std::wstring &text)
    {
        if (before)
            added(m_plain.begin(), text, m_list.InsertBefore(nullptr, CString(text)));
        else
            added(m_plain.end(), text, m_list.InsertAfter(nullptr, text.c_str()));
    }

    void fillOther(CStringList &other, unsigned count, const std::wstring &text)
    {
        for (unsigned i = 0; i < count; ++i)
            other.AddTail(CString(text + std::to_wstring(i)));
    }

    void addOtherHead(unsigned count, const std::wstring &text)
    {
        CStringList other;
        fillOther(other, count, text);
        expect(!m_list.AddHead(&other), "AddHead of a list gave a position");
        for (unsigned i = count; i > 0; --i)
            added(m_plain.begin(), text + std::to_wstring(i - 1), m_list.FindIndex(INT_PTR(i) - 1));
    }

    void addOtherTail(unsigned count, const std::wstring &text)
    {
        CStringList other;
        fillOther(other, count, text);
        expect(!m_list.AddTail(&other), "AddTail of a list gave a position");
        for (unsigned i = 0; i < count; ++i)
            added(m_plain.end(), text + std::to_wstring(i), m_list.FindIndex(INT_PTR(m_plain.size())));
    }

    void addItself(bool atHead)
    {
        const Plain copy = m_plain;
        atHead ? m_list.AddHead(&m_list) : m_list.AddTail(&m_list);
        if (!atHead) {
            for (const Entry &entry : copy)
                added(m_plain.end(), entry.text, m_list.FindIndex(INT_PTR(m_plain.size())));
            return;
        }
        INT_PTR index = INT_PTR(copy.size());
        for (auto entry = copy.rbegin(); entry != copy.rend(); ++entry)
            added(m_plain.begin(), entry->text, m_list.FindIndex(--index));
    }

    void search(unsigned place, const wchar_t *chars)
    {
        auto entry = m_plain.begin();
        POSITION startAfter = nullptr;
        if (!m_plain.empty() && place % 3 != 0) {
            entry = at(place);
            startAfter = entry->position;
            ++entry;
        }
        while (entry != m_plain.end() && entry->text != chars)
            ++entry;
        const POSITION due = entry == m_plain.end() ? nullptr : entry->position;
        expect(m_list.Find(chars, startAfter) == due, "Find gave another position");
    }

    void index(unsigned place)
    {
        const INT_PTR n = INT_PTR(place % (m_plain.size() + 3)) - 1;
        const bool present = n >= 0 && n < INT_PTR(m_plain.size());
        const POSITION due = present ? std::next(m_plain.begin(), n)->position : nullptr;
        expect(m_list.FindIndex(n) == due, "FindIndex gave another position");
    }

    void compareContent()
    {
        expect(m_list.GetCount() == INT_PTR(m_plain.size()), "the counts differ");
        expect(m_list.IsEmpty() == m_plain.empty(), "IsEmpty is wrong");
        POSITION position = m_list.GetHeadPosition();
        for (auto entry = m_plain.begin(); entry != m_plain.end() && !m_fault; ++entry) {
            expect(position == entry->position, "another node is next");
            expect(!m_fault && m_list.GetNext(position) == entry->text, "the strings differ");
        }
        expect(!position, "the list does not end");
        position = m_list.GetTailPosition();
        for (auto entry = m_plain.rbegin(); entry != m_plain.rend() && !m_fault; ++entry) {
            expect(position == entry->position, "another node is previous");
            expect(!m_fault && m_list.GetPrev(position) == entry->text, "the strings differ backwards");
        }
        expect(!position, "the list does not end backwards");
    }

    CStringList m_list;
    Plain m_plain;
    HandOutOrder m_order;
    const char *m_fault = nullptr;
};

#endif
