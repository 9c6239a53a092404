#include "core/file_name.h"

#include "core/messages.h"

namespace zentar {

bool ValidateFileName(WindowServices& windows, std::string_view name) {
    constexpr std::string_view kIllegal = R"("\/:?*<>|)";
    bool valid = true;
    for (const char character : name) {
        if (kIllegal.find(character) != std::string_view::npos) {
            valid = false;
            windows.Ask(messages::IllegalCharacters());
        }
    }
    return valid;
}

std::string_view FolderOf(std::string_view path) { return path.substr(0, path.rfind('\\') + 1); }

std::string_view FileNameOf(std::string_view path) { return path.substr(path.rfind('\\') + 1); }

}  // namespace zentar
