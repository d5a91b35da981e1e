// Only one copy of the window program runs per user.
#pragma once

#include <QLockFile>
#include <memory>

// Takes the per-user lock; an empty pointer when another copy holds it.
std::unique_ptr<QLockFile> SingleInstance_Lock();
