// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "creationorder.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <new>

// Replaces the program's allocation, as the order in which objects were created before main() is
// nowhere else to be seen. An address that is given out again counts from its last use.

namespace {

constinit std::array<const void *, 65536> creations{};
constinit std::size_t creationCount = 0;
constinit bool recording = true;

} // namespace

int creationPlace(const void *object)
{
    for (std::size_t i = creationCount; i-- > 0;) {
        if (creations[i] == object)
            return static_cast<int>(i);
    }
    return -1;
}

void stopRecordingCreations()
{
    recording = false;
}

void *operator new(std::size_t size)
{
    void *memory = std::malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    if (recording && creationCount < creations.size())
        creations[creationCount++] = memory;
    return memory;
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
