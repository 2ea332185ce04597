#include "KxFiles.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

CMemFile::CMemFile(unsigned char *buffer, unsigned size)
    : m_lpBuffer(buffer)
    , m_nBufferSize(size)
{
}

CMemFile::~CMemFile() = default;

unsigned char *CMemFile::Read(unsigned char *dst, unsigned count)
{
    if (dst && m_lpBuffer)
        std::memmove(dst, m_lpBuffer, std::min(m_nBufferSize, count));
    return dst;
}

unsigned char *CMemFile::Detach()
{
    return nullptr;
}

CSharedFile::CSharedFile(int)
    : CMemFile(nullptr, 0)
{
}

CSharedFile::~CSharedFile()
{
    std::free(m_lpBuffer);
}

void CSharedFile::Write(unsigned char *src, unsigned count)
{
    if (!src && count > 0)
        return;
    auto *block = static_cast<unsigned char *>(std::malloc(std::max(count, 1U)));
    if (!block)
        return;

    if (count > 0)
        std::memcpy(block, src, count);
    // The former block stays allocated: ported code that kept its address frees it.
    m_lpBuffer = block;
    m_nBufferSize = count;
}

HGLOBAL CSharedFile::Detach()
{
    auto *memory = static_cast<KxGlobalMemory *>(std::malloc(sizeof(KxGlobalMemory)));
    if (!memory)
        return nullptr;

    *memory = {m_lpBuffer, m_nBufferSize, 0};
    // The size stays: ported code reads it for the next block it allocates.
    m_lpBuffer = nullptr;
    return memory;
}
