// The operating system, as handed to the program.
#pragma once

namespace zentar {

class FileSystem;
class FormFactory;
class Locale;
class Shell;
class WindowServices;

struct Platform {
    FileSystem& files;
    Shell& shell;
    WindowServices& windows;
    Locale& locale;
    FormFactory& forms;
};

}  // namespace zentar
