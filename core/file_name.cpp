#include "core/file_name.h"

#include "core/messages.h"
#include "core/text.h"

namespace zentar {
namespace {

constexpr std::string_view kIllegal = R"("\/:?*<>|)";
constexpr std::string_view kSeparators = R"(\/)";

}  // namespace

bool HoldsIllegalCharacter(std::string_view name) {
    return name.find_first_of(kIllegal) != std::string_view::npos;
}

bool ValidateFileName(WindowServices& windows, std::string_view name) {
    for (const char character : name) {
        if (kIllegal.find(character) != std::string_view::npos) {
            windows.Ask(messages::IllegalCharacters());
        }
    }
    return !HoldsIllegalCharacter(name);
}

std::string_view FolderOf(std::string_view path) {
    return path.substr(0, path.find_last_of(kSeparators) + 1);
}

std::string_view FileNameOf(std::string_view path) {
    return path.substr(path.find_last_of(kSeparators) + 1);
}

std::string_view StemOf(std::string_view path) {
    std::string_view name = FileNameOf(path);
    for (int characters = 0; characters < 4 && !name.empty();) {
        characters += (static_cast<unsigned char>(name.back()) & 0xC0U) == 0x80U ? 0 : 1;
        name.remove_suffix(1);
    }
    return name;
}

std::string DriveOf(std::string_view path) {
    constexpr std::size_t kLetter = 2;
    if (!path.starts_with(R"(\\)")) {
        return LowerAscii(path.substr(0, kLetter));
    }
    const std::size_t server = path.find('\\', kLetter);
    return LowerCase(
        path.substr(0, server == std::string_view::npos ? server : path.find('\\', server + 1)));
}

}  // namespace zentar
