/// @file FreeList.h
/// @brief The nodes of a block, linked for handing out.
#pragma once

#include "KxLists.h"

#include <cstddef>

/// The number of nodes per block for what a constructor was given.
inline INT_PTR blockSizeOf(INT_PTR requested)
{
    constexpr INT_PTR usual = 10;
    return requested > 0 ? requested : usual;
}

/// Adds a block to @p blocks and puts its nodes on the empty free list @p head, the first node of the block
/// first.
template <typename Node> void addBlock(CPlex *&blocks, INT_PTR blockSize, Node *&head)
{
    const auto count = static_cast<std::size_t>(blockSize);
    auto *first = static_cast<Node *>(CPlex::Create(blocks, count, sizeof(Node))->data());
    for (Node *node = first + count; node != first;) {
        --node;
        node->pNext = head;
        head = node;
    }
}
