#pragma once

#include "pvloading_export.h"

#include <cstddef>

/*!
 * Memory for the small records that loading keeps for good: the shared data of surroundings,
 * jig abilities and the like. Taken from the general heap one by one, thousands of them
 * would sit between the blocks that parsing the next file frees and takes again, and every
 * later parse would pay for the scattered heap. Here blocks of one size are carved from
 * larger chunks of their own; a freed block is reused for the next one of its size, and
 * chunks are never given back.
 *
 * Classes take their memory from here by deriving from PvBlockPoolAllocated. Under
 * AddressSanitizer every block comes from the general heap, so that its checks still see
 * each one.
 */
class PVLOADING_EXPORT PvBlockPool
{
public:
    //! A block of at least \a size bytes, aligned for any type.
    [[nodiscard]] static void* allocate(std::size_t size);
    //! Gives back \a block, allocated with the same \a size.
    static void deallocate(void* block, std::size_t size) noexcept;
    //! Bytes held in chunks but in no block in use: freed blocks and chunk room not yet used.
    [[nodiscard]] static std::size_t idleBytes();
};

//! A standard allocator over PvBlockPool, for std::allocate_shared and the like.
template <typename T>
struct PvBlockPoolAllocator
{
    using value_type = T; //!< What it allocates.
    PvBlockPoolAllocator() = default;
    //! Allocators of all types draw from the one pool.
    template <typename Other>
    PvBlockPoolAllocator(const PvBlockPoolAllocator<Other>&) noexcept { }
    //! Room for \a count objects.
    [[nodiscard]] T* allocate(std::size_t count) { return static_cast<T*>(PvBlockPool::allocate(count * sizeof(T))); }
    //! Gives back the room for \a count objects at \a block.
    void deallocate(T* block, std::size_t count) noexcept { PvBlockPool::deallocate(block, count * sizeof(T)); }
    //! Any two free each other's blocks.
    template <typename Other>
    bool operator==(const PvBlockPoolAllocator<Other>&) const noexcept { return true; }
    //! Never unequal.
    template <typename Other>
    bool operator!=(const PvBlockPoolAllocator<Other>&) const noexcept { return false; }
};

//! Base of classes whose objects take their memory from PvBlockPool.
class PvBlockPoolAllocated
{
public:
    //! Takes the object's memory from the pool.
    static void* operator new(std::size_t size) { return PvBlockPool::allocate(size); }
    //! Gives it back.
    static void operator delete(void* block, std::size_t size) noexcept { PvBlockPool::deallocate(block, size); }
};
