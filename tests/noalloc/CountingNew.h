// The heap allocations of this binary so far: its global operator new counts
// every call, so that a test can prove that a piece of code allocates nothing.
#pragma once

extern long allocations;
