// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/AllocationCount.h"

#include <atomic>
#include <cstddef>

// These definitions replace malloc() and its relatives of the C library, which are available under
// the names with the prefix __libc_.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
}

namespace {
std::atomic<long> allocations{0};
}

extern "C" {

void *malloc(size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void *calloc(size_t count, size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

void *realloc(void *memory, size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}
}

long allocationCount()
{
    return allocations.load(std::memory_order_relaxed);
}
