// Replaces the global operator new of the binary with one that counts.
#include "tests/noalloc/CountingNew.h"

#include <cstdlib>
#include <new>

long allocations = 0;

void* operator new(std::size_t size) {
    ++allocations;
    if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
