#pragma once

#include <sys/types.h>

// Calls that the C library has under several names. In a library that is put between, each of those
// names leads to one of these (Aliases.cpp), which are the library's own.
namespace tarvelo::torture {

// Relative to `folder`, a descriptor of one or AT_FDCWD.
int openAt(int folder, const char *path, int flags, mode_t mode);
ssize_t writeAt(int file, const void *data, size_t size, off64_t offset);
ssize_t copyTo(int to, int from, off64_t *offset, size_t size);
int truncateTo(int file, off64_t size);
// Gives an error number, or 0.
int allocateAt(int file, off64_t offset, off64_t size);

} // namespace tarvelo::torture
