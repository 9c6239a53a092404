#include "fuzz/plain_demo_reader.h"

#include <cctype>

#include "demos/demo_bytes.h"
#include "fuzz/require.h"

namespace zentar::fuzz {

namespace {

using namespace std::string_view_literals;

// Positions are counted from 1; 0 stands for "not found".
class PlainFile {
  public:
    explicit PlainFile(std::string_view bytes) : bytes_(bytes) {}

    bool Has(long long position) const {
        return position >= 1 && position <= static_cast<long long>(bytes_.size());
    }
    char Byte(long long position) const { return bytes_[static_cast<std::size_t>(position - 1)]; }
    long long InStr(std::string_view marker) const {
        const std::size_t at = bytes_.substr(0, 5120).find(marker);
        return at == std::string_view::npos ? 0 : static_cast<long long>(at) + 1;
    }
    // Up to the terminator, the end of the file, or the longest text that is kept.
    std::string Until(long long position, char terminator) const {
        std::string text;
        for (;
             Has(position) && Byte(position) != terminator && text.size() < DemoBytes::kLongestText;
             ++position) {
            text += Byte(position);
        }
        return text;
    }
    std::string Backward(long long position) const {
        std::string text;
        for (; Has(position) && Byte(position) != 0 && Byte(position) != 1; --position) {
            text += Byte(position);
        }
        return {text.rbegin(), text.rend()};
    }

  private:
    std::string_view bytes_;
};

std::string Lower(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(std::tolower(c));
        }
    }
    return text;
}

std::string MapOf(const PlainFile& file) {
    std::string map = file.Until(file.InStr("maps/") + 5, '\0');
    for (int dropped = 0; dropped < 4 && !map.empty(); ++dropped) {
        map.pop_back();
    }
    return Lower(map);
}

}  // namespace

PlainHeader PlainQuake1(std::string_view bytes) {
    const PlainFile file(bytes);
    if (file.InStr("progs/player.mdl") == 0) {
        return {};
    }
    return {.isDemo = true, .map = MapOf(file), .name = file.Backward(file.InStr("maps/") - 2)};
}

PlainHeader PlainQuake2(std::string_view bytes) {
    const PlainFile file(bytes);
    if (file.InStr("models/weapons/v_blast/tris.md2") == 0) {
        return {};
    }
    long long nul = 15;
    for (std::size_t passed = 0;
         file.Has(nul) && file.Byte(nul) != 0 && passed < DemoBytes::kLongestText; ++passed) {
        ++nul;
    }
    return {.isDemo = true, .map = MapOf(file), .name = file.Until(nul + 3, '\0')};
}

PlainHeader PlainQuake3(std::string_view bytes, bool neverRejected) {
    const PlainFile file(bytes);
    const long long map = file.InStr("\\mapname\\");
    if (map == 0 && !neverRejected) {
        return {};
    }
    PlainHeader header{.isDemo = true};
    if (file.InStr("\\g_syncronousClients\\") > 0) {
        header.generation = Q3Generation::V117;
    } else if (file.InStr("\\g_synchronousClients\\") > 0) {
        header.generation = Q3Generation::V127h;
    } else {
        header.generation = Q3Generation::V129f;
        header.map = header.name = "(n/a for v1.29f and higher)";
        return header;
    }
    header.map = Lower(file.Until(map + 9, '\\'));
    header.name = file.Until(file.InStr("\0\3\3\0"sv) + 4, '\0');
    return header;
}

void Compare(const PlainHeader& plain, const HeaderResult& result, const FuzzFile& file) {
    // At most three texts of a demo run on behind the block.
    constexpr std::size_t kMost =
        DemoBytes::kBlockSize + 3 * (DemoBytes::kLongestText + DemoBytes::kChunkSize);
    Require(file.BytesRead() <= kMost, "bytes read");
    Require(result.Ok(), "readable");
    Require(result.Value().has_value() == plain.isDemo, "verdict");
    if (!plain.isDemo) {
        Require(file.Reads() == 1, "one read for a file that is no demo");
        return;
    }
    Require(result.Value()->Map == plain.map, "map");
    Require(result.Value()->Name == plain.name, "name");
    Require(result.Value()->Generation == plain.generation, "generation");
}

}  // namespace zentar::fuzz
