#include "core/file_deletion.h"

namespace zentar {

Status ForceDelete(FileSystem& files, const std::string& path) {
    // What refuses this refuses the deletion, too.
    IgnoreFailure(files.ClearAttributes(path));
    return files.Delete(path);
}

}  // namespace zentar
