// A whole Zentar in memory, on a machine with the three games.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "samples/demo_maker.h"
#include "tests/doubles/memory_platform.h"
#include "ui/resource.h"
#include "ui/zentar_program.h"

namespace zentar {

inline const std::string kProgramFolder = "c:\\program files\\zentar\\";
inline const std::string kIni = "C:\\Program Files\\Zentar\\zentar.ini";
inline const std::string kQuake1Folder = "C:\\Games\\Quake\\";
inline const std::string kQuake2Folder = "C:\\Games\\Quake2\\";
inline const std::string kQuake3Folder = "C:\\Games\\Quake3\\";

class ProgramTest : public ::testing::Test {
  protected:
    ProgramTest() {
        os.files.AddFolder("C:\\Program Files\\Zentar\\");
        os.files.AddFolder("C:\\Windows\\");
        os.shell.programFolder = "C:\\Program Files\\Zentar";
    }

    // Three games with two mods each and a demo of each kind.
    void InstallGames() {
        using samples::DemoKind;
        os.files.AddFile(kQuake1Folder + "glquake.exe", "game");
        os.files.AddFile(kQuake1Folder + "id1\\pak0.pak", "");
        os.files.AddFile(kQuake1Folder + "CTF\\capture.dem", Demo(DemoKind::Dem, "ctf1"));
        os.files.AddFile(kQuake1Folder + "id1\\bravado.dem", Demo(DemoKind::Dem, "dm4"));
        os.files.AddFile(kQuake2Folder + "quake2.exe", "game");
        os.files.AddFile(kQuake2Folder + "baseq2\\demos\\edge.dm2", Demo(DemoKind::Dm2, "q2dm1"));
        os.files.AddFile(kQuake2Folder + "baseq2\\demos\\Duel.dm2", Demo(DemoKind::Dm2, "q2dm2"));
        os.files.AddFolder(kQuake2Folder + "rocket\\");
        os.files.AddFile(kQuake3Folder + "quake3.exe", "game");
        os.files.AddFile(kQuake3Folder + "baseq3\\demos\\old.dm3", Demo(DemoKind::Dm3, "q3dm6"));
        os.files.AddFile(kQuake3Folder + "baseq3\\demos\\mid.dm_48", Demo(DemoKind::Dm48, "q3dm7"));
        os.files.AddFile(kQuake3Folder + "baseq3\\demos\\new.dm_66", Demo(DemoKind::Dm66, ""));
        os.files.AddFolder(kQuake3Folder + "osp\\demos\\");
    }

    // Settings of somebody who has used the program before, with further lines.
    void WriteSettings(const std::vector<std::string>& lines = {}) {
        std::string text = "Virgin=0\r\nQ1Folder=" + kQuake1Folder +
                           "\r\nQ2Folder=" + kQuake2Folder + "\r\nQ3Folder=" + kQuake3Folder +
                           "\r\n";
        for (const std::string& line : lines) {
            text += line + "\r\n";
        }
        os.files.AddFile(kIni, text);
    }

    // Starts the program and brings its window to the front.
    MemoryForm& Start() {
        program.emplace(os.Services());
        program->Start();
        Window().Activate();
        return Window();
    }

    MemoryForm& StartWithoutWelcome() {
        WriteSettings();
        return Start();
    }

    void Quit() {
        Window().UserClose();
        EXPECT_TRUE(Window().Closed());
        program.reset();
    }

    MemoryForm& Window() { return os.forms.Get(IDW_Form2); }
    std::string Text(int id) { return Window().AnyControl(id).Text(); }
    std::vector<std::string> Mods() { return Window().Items(IDC_lstMods); }
    std::vector<std::string> Demos() { return Window().Items(IDC_lstDemos); }
    ProgramState& State() { return program->State(); }

    static std::string Demo(samples::DemoKind kind, const std::string& map) {
        samples::DemoContents contents;
        contents.map = map;
        contents.levelName = "Level of " + map;
        return samples::MakeDemo(kind, contents);
    }

    MemoryPlatform os;
    std::optional<ZentarProgram> program;
};

}  // namespace zentar
