// Platform code: memory that is not needed any more.
#pragma once

// Gives back to the system what was freed: the allocator of glibc keeps it otherwise. Called after
// something large went, as it looks at the whole heap. Nothing elsewhere.
void giveBackMemory();
