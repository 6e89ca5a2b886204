#include "PvBlockPool.h"

#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <array>
#include <new>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define PV_BLOCK_POOL_BYPASSED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PV_BLOCK_POOL_BYPASSED 1
#endif
#endif

namespace {
constexpr std::size_t granule = alignof(std::max_align_t);
// Larger records are few; they come from the general heap.
constexpr std::size_t largestPooled = 1024;
constexpr std::size_t classCount = largestPooled / granule;
// Chunks start small, so that a few records cost little, and double up to this size.
constexpr std::size_t firstChunk = 4096;
constexpr std::size_t largestChunk = 65536;

struct SizeClass
{
    // Freed blocks, the last freed taken first. Kept apart from the blocks themselves: a
    // list threaded through them would read each block's memory, long out of the cache, to
    // find the next.
    std::vector<void*> freeBlocks;
    char* room = nullptr; // the part of the newest chunk not carved yet
    std::size_t roomLeft = 0;
    std::size_t nextChunk = firstChunk;
};

struct Pool
{
    QMutex mutex;
    std::array<SizeClass, classCount> classes;
    std::size_t chunkBytes = 0;
    std::size_t blockBytes = 0;
};

Pool& pool()
{
    // Never destroyed: records may be freed by static destructors after this file's.
    static Pool* const instance = new Pool;
    return *instance;
}

std::size_t classIndex(std::size_t size)
{
    return (std::max<std::size_t>(size, 1) + granule - 1) / granule - 1;
}

[[maybe_unused]] bool bypassed(std::size_t size)
{
#ifdef PV_BLOCK_POOL_BYPASSED
    Q_UNUSED(size);
    return true;
#else
    return size > largestPooled;
#endif
}
}

void* PvBlockPool::allocate(std::size_t size)
{
    if (bypassed(size))
        return ::operator new(size);
    Pool& all = pool();
    const std::size_t blockSize = (classIndex(size) + 1) * granule;
    const QMutexLocker lock(&all.mutex);
    SizeClass& sizeClass = all.classes[classIndex(size)];
    all.blockBytes += blockSize;
    if (!sizeClass.freeBlocks.empty()) {
        void* block = sizeClass.freeBlocks.back();
        sizeClass.freeBlocks.pop_back();
        return block;
    }
    if (sizeClass.roomLeft < blockSize) {
        const std::size_t chunk = std::max(sizeClass.nextChunk, blockSize);
        sizeClass.room = static_cast<char*>(::operator new(chunk));
        sizeClass.roomLeft = chunk;
        sizeClass.nextChunk = std::min(chunk * 2, largestChunk);
        all.chunkBytes += chunk;
    }
    void* block = sizeClass.room;
    sizeClass.room += blockSize;
    sizeClass.roomLeft -= blockSize;
    return block;
}

void PvBlockPool::deallocate(void* block, std::size_t size) noexcept
{
    if (!block)
        return;
    if (bypassed(size)) {
        ::operator delete(block);
        return;
    }
    Pool& all = pool();
    const QMutexLocker lock(&all.mutex);
    SizeClass& sizeClass = all.classes[classIndex(size)];
    try {
        sizeClass.freeBlocks.push_back(block);
    } catch (const std::bad_alloc&) {
        return; // out of memory: the block is lost to the pool, nothing worse
    }
    all.blockBytes -= (classIndex(size) + 1) * granule;
}

std::size_t PvBlockPool::idleBytes()
{
    Pool& all = pool();
    const QMutexLocker lock(&all.mutex);
    return all.chunkBytes - all.blockBytes;
}
