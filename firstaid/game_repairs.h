// Repairs of the games' folders and files. None of them overwrites or loses a user's file.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace zentar {

// An empty configuration for the user's own settings. Fails with AlreadyExists when there is one.
Status CreateAutoexec(FileSystem& files, const std::string& path, const std::string& game);

// Moves the files, but no folders, out of Quake 2's folder of player models, where only folders may
// be, to "Zentar Strays" in the game's folder, with a note there that says why. One whose name is
// taken there by another file gets a number. What cannot be moved stays. Folders end in a
// backslash.
void MoveStrays(FileSystem& files, const std::string& gameFolder, const std::string& playersFolder);

// Gives every folder of Quake 2 that may be a mod the folder for screenshots without which the game
// crashes. The game's folder ends in a backslash.
void CreateScreenshotFolders(FileSystem& files, const std::string& gameFolder);

}  // namespace zentar
