// The operating system, as handed to the program.
#pragma once

namespace zentar {

class FileSystem;
class FormFactory;
class ImageLibrary;
class Locale;
class Pictures;
class Registry;
class Shell;
class WindowServices;

struct Platform {
    FileSystem& files;
    Shell& shell;
    WindowServices& windows;
    Locale& locale;
    ImageLibrary& images;
    Pictures& pictures;
    Registry& registry;
    FormFactory& forms;
};

}  // namespace zentar
