// The user's drives, and everything that happens on them while the program does something else:
// games, browsers and friends put files there, take them away, lock and protect them, and fill the
// disk.
#pragma once

#include <string>
#include <vector>

#include "tests/doubles/memory_file_system.h"
#include "tests/doubles/memory_pictures.h"
#include "tests/monkey/dice.h"
#include "tests/monkey/ledger.h"

namespace zentar::monkey {

inline const std::string kProgramFolder = "C:\\Program Files\\Zentar\\";
inline const std::string kWindowsFolder = "C:\\Windows\\";
inline const std::string kTemporaryFolder = "C:\\Temp\\";
inline const std::string kRemoteFolder = "C:\\Remote\\";
inline const std::string kOtherRemoteFolder = "D:\\Remote\\";
inline const std::string kDownloads = "D:\\Demos\\";
// Nothing of the program's business.
inline const std::string kPrivateFolder = "C:\\Private\\";

inline const std::vector<std::string> kGameFolders = {"C:\\Games\\Quake\\", "C:\\Games\\Quake2\\",
                                                      "C:\\Games\\Quake3\\", "D:\\Quake2\\"};

class World {
  public:
    World(MemoryFileSystem& files, MemoryPictures& pictures, MemoryImageLibrary& images,
          Ledger& ledger, Dice& dice);

    // Three games, settings, folders.
    void Make();
    // Something happens, or nothing.
    void Happen();
    // Everything works again: attributes, locks, rights, room on the disks.
    void Heal();

    // A file that is there, outside the private folder; empty when there is none.
    std::string SomeFile();
    // One that is a text file by its name.
    std::string SomeLog();
    // A path for a file of the user's, with this extension.
    std::string NewPath(const std::string& extension);

  private:
    void MakeGames();
    void Write(const std::string& path, const std::string& bytes);
    void Remove(const std::string& path);
    std::string PathFor(const std::string& name);
    std::string BytesFor(const std::string& name);
    std::string Unique();
    void Appear();
    void Vanish();
    void Protect();
    void FillDisk();
    void Sabotage();

    MemoryFileSystem& files_;
    MemoryPictures& pictures_;
    MemoryImageLibrary& images_;
    Ledger& ledger_;
    Dice& dice_;
    int made_ = 0;
};

}  // namespace zentar::monkey
