// A whole operating system in memory, for a program under test.
#pragma once

#include "platform/platform.h"
#include "tests/doubles/event_log.h"
#include "tests/doubles/memory_file_system.h"
#include "tests/doubles/memory_form.h"
#include "tests/doubles/memory_pictures.h"
#include "tests/doubles/memory_registry.h"
#include "tests/doubles/scripted_services.h"

namespace zentar {

struct MemoryPlatform {
    EventLog log;
    MemoryFileSystem files{&log};
    ScriptedShell shell{&log};
    ScriptedWindows windows{&log};
    FixedLocale locale;
    MemoryImageLibrary images{files, &log};
    MemoryPictures pictures;
    MemoryRegistry registry{&log};
    MemoryFormFactory forms{&log};

    Platform Services() { return Services(files); }
    // The same, with another file system before or instead of the one in memory.
    Platform Services(FileSystem& otherFiles) {
        images.UseFiles(otherFiles);
        return {otherFiles, shell, windows, locale, images, pictures, registry, forms};
    }
};

}  // namespace zentar
