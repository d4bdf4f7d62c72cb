#include "platform/linux/ProcessMemory.h"

#include <malloc.h>

namespace quillon {

namespace {

constexpr int mostArenas = 2;
constexpr int largestKept = 128 * 1024; // bytes

} // namespace

void giveMemoryBack() {
    // Left to itself, each thread gets a heap of its own, and the first big state file that is let
    // go raises what is kept for the next one: the holes in between add up to megabytes.
    (void)::mallopt(M_ARENA_MAX, mostArenas);
    (void)::mallopt(M_MMAP_THRESHOLD, largestKept);
    (void)::mallopt(M_TRIM_THRESHOLD, largestKept);
}

} // namespace quillon
