// Reading a file of outside bytes whatever the path names: a folder, a FIFO,
// a device, an unreadable or a huge file never blocks, throws or reads on
// without end.
#pragma once

#include <cstddef>
#include <string>

// The first bytes of the regular file at path, at most limit of them. False,
// with bytes empty, when the path is no regular file or cannot be opened or
// read; a file that grows or shrinks while it is read gives what was there.
bool File_ReadPrefix(const std::string& path, std::size_t limit, std::string& bytes);

// True when the path names a regular file that can be opened for reading.
bool File_Readable(const std::string& path);

// A descriptor open for reading on the regular file at path, or -1. The open
// never waits (a FIFO is refused, not waited on); the caller closes it.
int File_OpenRegular(const std::string& path);
