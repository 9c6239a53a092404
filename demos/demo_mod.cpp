#include "demos/demo_mod.h"

#include "demos/demo_bytes.h"

namespace zentar {
namespace {

// Behind the message's length (4 bytes), its code, the protocol, the server's count (4 each) and
// the byte that tells a demo from a game.
constexpr std::size_t kQuake2Mod = 14;
constexpr std::string_view kQuake3Key = "\\gamename\\";
constexpr std::size_t kLongestFolderName = 255;

}  // namespace

Result<std::string> ReadQuake2Mod(ReadableFile& file) {
    const Result<DemoBytes> bytes = DemoBytes::Load(file);
    if (!bytes.Ok()) {
        return bytes.Error();
    }
    Result<std::string> mod = bytes.Value().TextAt(kQuake2Mod, '\0');
    if (mod.Ok() && mod.Value().ends_with('\\')) {
        mod.Value().pop_back();
    }
    return mod;
}

Result<std::string> ReadQuake3Mod(ReadableFile& file) {
    const Result<DemoBytes> bytes = DemoBytes::Load(file);
    if (!bytes.Ok()) {
        return bytes.Error();
    }
    const std::int64_t key = bytes.Value().Find(kQuake3Key);
    if (key < 0) {
        return std::string();
    }
    return bytes.Value().TextAt(key + static_cast<std::int64_t>(kQuake3Key.size()), '\\');
}

bool IsFolderName(std::string_view name) {
    constexpr std::string_view kNever = R"(\/:*?"<>|)";
    if (name.empty() || name.size() > kLongestFolderName || name.ends_with('.') ||
        name.ends_with(' ')) {
        return false;
    }
    for (const char c : name) {
        if (static_cast<unsigned char>(c) < ' ' || kNever.find(c) != std::string_view::npos) {
            return false;
        }
    }
    return true;
}

}  // namespace zentar
