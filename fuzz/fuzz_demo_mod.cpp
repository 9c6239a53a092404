// The mod that a demo names, which decides where an installed demo is written.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/game_text.h"
#include "demos/demo_mod.h"
#include "fuzz/fuzz_file.h"
#include "fuzz/require.h"

namespace {

using zentar::fuzz::Require;

// Joined to the game's folder, a name must not lead out of it.
void CheckFolderName(const std::string& mod) {
    const std::string name = zentar::GameTextToUtf8(mod);
    Require(!zentar::IsFolderName(name) ||
            (name.find_first_of("\\/:") == std::string::npos &&
             name.find('\0') == std::string::npos && name != "." && name != ".."));
}

// What stands between a place and the next terminator, or the end, in as plain a way as can be.
std::string_view TextFrom(std::string_view bytes, std::size_t at, char terminator) {
    const std::string_view rest = at < bytes.size() ? bytes.substr(at) : std::string_view();
    return rest.substr(0, rest.find(terminator));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    zentar::fuzz::FuzzFile file(bytes);
    const std::string mod2 = zentar::ReadQuake2Mod(file).ValueOr("");
    std::string_view plain2 = TextFrom(bytes, 14, '\0');
    if (plain2.ends_with('\\')) {
        plain2.remove_suffix(1);
    }
    Require(mod2 == plain2, "mod of Quake 2");
    CheckFolderName(mod2);
    constexpr std::string_view kKey = "\\gamename\\";
    const std::size_t key = bytes.find(kKey);
    const std::string mod3 = zentar::ReadQuake3Mod(file).ValueOr("");
    const std::string_view plain3 = key == std::string_view::npos
                                        ? std::string_view()
                                        : TextFrom(bytes, key + kKey.size(), '\\');
    Require(mod3 == plain3.substr(0, plain3.find('\0')), "mod of Quake 3");
    CheckFolderName(mod3);
    return 0;
}
