#ifndef HANDOUTORDER_H
#define HANDOUTORDER_H

#include <cstddef>
#include <cstdint>
#include <vector>

/// The order in which a collection hands out its nodes: a block from its first node to its last, and a node that
/// was given back before all others.
class HandOutOrder
{
public:
    HandOutOrder(std::size_t blockSize, std::size_t nodeBytes)
        : m_blockSize(blockSize)
        , m_nodeBytes(nodeBytes)
    {
    }

    /// @return false when another node than @p node was due.
    bool handedOut(const void *node)
    {
        const auto address = reinterpret_cast<std::uintptr_t>(node);
        if (m_free.empty()) {
            for (std::size_t i = m_blockSize - 1; i > 0; --i)
                m_free.push_back(address + i * m_nodeBytes);
            return true;
        }
        const bool due = m_free.back() == address;
        m_free.pop_back();
        return due;
    }

    void givenBack(const void *node) { m_free.push_back(reinterpret_cast<std::uintptr_t>(node)); }
    void blocksFreed() { m_free.clear(); }

private:
    std::size_t m_blockSize;
    std::size_t m_nodeBytes;
    std::vector<std::uintptr_t> m_free;
};

#endif
