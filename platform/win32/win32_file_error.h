// The system's error codes of file operations, as the program knows them.
#pragma once

#include <windows.h>

#include "platform/result.h"

namespace zentar {

FileError FileErrorOf(DWORD systemError);

// What the system call that just failed on this thread says. Call it before anything else.
FileError LastFileError();

}  // namespace zentar
