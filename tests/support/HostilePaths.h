// Paths that name no plain file, as a user may hand them to any reader: a
// folder, a FIFO without a writer, a device that never ends, a file whose
// read fails, and a file far larger than any of the program's formats.
#pragma once

#include <string>

// Each makes the thing at path (a symbolic link where the system has it)
// and returns path.
std::string Path_Folder(const std::string& path);
std::string Path_Fifo(const std::string& path);
std::string Path_EndlessDevice(const std::string& path);  // /dev/zero
std::string Path_ReadFails(const std::string& path);      // a read gives EIO
// The bytes, then a hole up to 8 GiB: huge, yet nothing on the disk.
std::string Path_Huge(const std::string& path, const std::string& head);
