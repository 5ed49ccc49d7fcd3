// Counts what is allocated with operator new, by the library and the XML parser too, and lets a
// test step in at one of these moments. The programs of these tests have an operator new of their
// own: see Allocations.cpp.
#ifndef TESTS_LIFECYCLE_ALLOCATIONS_H_
#define TESTS_LIFECYCLE_ALLOCATIONS_H_

namespace lifecycle {

// How many blocks are held.
long held();
// How many there have been, since the program began.
long made();

// Calls `step` once, in the allocation number `n` from now on, counted from 1.
void atAllocation(long n, void (*step)());

}  // namespace lifecycle

#endif  // TESTS_LIFECYCLE_ALLOCATIONS_H_
