#pragma once

#include "core/DefaultStaticMemAllocator.h"
#include "core/NoSizeMemAllocator.h"

#include <cstddef>

/// What a class with a memory account has in common with the others: the account's name, which is the class's, and
/// the allocation operators. The account is looked up once.
#define QUORVEX_MEM_ACCOUNT_COMMON(Class)                                                                              \
    static const char* getMemAccountName()                                                                             \
    {                                                                                                                  \
        return #Class;                                                                                                 \
    }                                                                                                                  \
    static void* operator new[](std::size_t size)                                                                      \
    {                                                                                                                  \
        return Quorvex::NoSizeMemAllocator::allocate(size, memAccount());                                              \
    }                                                                                                                  \
    static void operator delete[](void* block)                                                                         \
    {                                                                                                                  \
        Quorvex::NoSizeMemAllocator::deallocate(block, memAccount());                                                  \
    }                                                                                                                  \
    static void* operator new(std::size_t, void* place) noexcept                                                       \
    {                                                                                                                  \
        return place;                                                                                                  \
    }                                                                                                                  \
    static void operator delete(void*, void*) noexcept {}                                                              \
    static Quorvex::MemAccount& memAccount()                                                                           \
    {                                                                                                                  \
        static Quorvex::MemAccountByName s_Account(#Class);                                                            \
        return s_Account.get();                                                                                        \
    }

/// For a class whose objects are given back without their size. An object of the class itself is aligned as its members
/// need it, which are pointers; a class derived from it may need more.
#define QUORVEX_MEM_ACCOUNT(Class)                                                                                     \
    QUORVEX_MEM_ACCOUNT_COMMON(Class)                                                                                  \
    static constexpr std::size_t sizeOfPointers()                                                                      \
    {                                                                                                                  \
        return alignof(Class) <= alignof(void*) ? sizeof(Class) : 0;                                                   \
    }                                                                                                                  \
    static void* operator new(std::size_t size)                                                                        \
    {                                                                                                                  \
        return Quorvex::NoSizeMemAllocator::allocate(size, memAccount(), sizeOfPointers());                            \
    }                                                                                                                  \
    static void operator delete(void* block)                                                                           \
    {                                                                                                                  \
        Quorvex::NoSizeMemAllocator::deallocate(block, memAccount(), sizeOfPointers());                                \
    }

/// For a class whose objects are given back together with their size.
#define QUORVEX_MEM_ACCOUNT_WITH_SIZE(Class)                                                                           \
    QUORVEX_MEM_ACCOUNT_COMMON(Class)                                                                                  \
    static void* operator new(std::size_t size)                                                                        \
    {                                                                                                                  \
        return Quorvex::DefaultStaticMemAllocator::allocate(size, memAccount());                                       \
    }                                                                                                                  \
    static void operator delete(void* block, std::size_t size)                                                         \
    {                                                                                                                  \
        Quorvex::DefaultStaticMemAllocator::deallocate(block, size, memAccount());                                     \
    }
