#include "demos/demo_header.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "demos/demo_bytes.h"
#include "demos/demo_name.h"

namespace zentar {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPlayerModel = "progs/player.mdl";
constexpr std::string_view kBlasterModel = "models/weapons/v_blast/tris.md2";
constexpr std::string_view kMapFolder = "maps/";
constexpr std::string_view kMapExtension = ".bsp";

constexpr std::string_view kMapNameKey = "\\mapname\\";
// 1.17 and its like write this key without its h.
constexpr std::string_view kMisspelledKey = "\\g_syncronousClients\\";
constexpr std::string_view kKey = "\\g_synchronousClients\\";
// End of the string before, message code of a configuration string, and its number: 3 is the
// level's name.
constexpr std::string_view kLevelName = "\0\3\3\0"sv;

constexpr std::int64_t kPlayerNumberSize = 2;

HeaderResult NotADemo() { return std::optional<DemoHeader>(); }

// A marker that is missing counts as standing just before the file: the text is then read from
// where it would stand, and may be anything.
std::int64_t Behind(std::int64_t marker, std::string_view text) {
    return marker + static_cast<std::int64_t>(text.size());
}

// The first model of Quake 1 and Quake 2 is the map itself.
Result<std::string> MapOfModelList(const DemoBytes& bytes) {
    Result<std::string> map = bytes.TextAt(Behind(bytes.Find(kMapFolder), kMapFolder), '\0');
    if (!map.Ok()) {
        return map;
    }
    std::string& text = map.Value();
    text.resize(text.size() - std::min(text.size(), kMapExtension.size()));
    return LowerAscii(text);
}

Q3Generation GenerationOf(const DemoBytes& bytes) {
    if (bytes.Contains(kMisspelledKey)) {
        return Q3Generation::V117;
    }
    return bytes.Contains(kKey) ? Q3Generation::V127h : Q3Generation::V129f;
}

HeaderResult Header(Result<std::string> map, Result<std::string> name,
                    Q3Generation generation = Q3Generation::None) {
    if (!map.Ok()) {
        return map.Error();
    }
    if (!name.Ok()) {
        return name.Error();
    }
    return std::optional(DemoHeader{std::move(map.Value()), std::move(name.Value()), generation});
}

Result<std::string> Quake2LevelName(const DemoBytes& bytes) {
    Result<std::string> gameFolder = bytes.TextAt(kQuake2GameFolder, '\0');
    if (!gameFolder.Ok()) {
        return gameFolder;
    }
    const auto folderEnd = Behind(kQuake2GameFolder, gameFolder.Value());
    return bytes.TextAt(folderEnd + 1 + kPlayerNumberSize, '\0');
}

}  // namespace

HeaderResult ReadQuake1Header(ReadableFile& file) {
    const Result<DemoBytes> loaded = DemoBytes::Load(file);
    if (!loaded.Ok()) {
        return loaded.Error();
    }
    const DemoBytes& bytes = loaded.Value();
    if (!bytes.Contains(kPlayerModel)) {
        return NotADemo();
    }
    // The level's name ends with a NUL right before the model list; before the name stands the game
    // type (0 or 1).
    return Header(MapOfModelList(bytes), bytes.TextEndingAt(bytes.Find(kMapFolder) - 2));
}

HeaderResult ReadQuake2Header(ReadableFile& file) {
    const Result<DemoBytes> loaded = DemoBytes::Load(file);
    if (!loaded.Ok()) {
        return loaded.Error();
    }
    const DemoBytes& bytes = loaded.Value();
    if (!bytes.Contains(kBlasterModel)) {
        return NotADemo();
    }
    return Header(MapOfModelList(bytes), Quake2LevelName(bytes));
}

HeaderResult ReadQuake3Header(ReadableFile& file, bool neverRejected) {
    const Result<DemoBytes> loaded = DemoBytes::Load(file);
    if (!loaded.Ok()) {
        return loaded.Error();
    }
    const DemoBytes& bytes = loaded.Value();
    if (!neverRejected && !bytes.Contains(kMapNameKey)) {
        return NotADemo();
    }
    const Q3Generation generation = GenerationOf(bytes);
    if (generation == Q3Generation::V129f) {
        return Header(std::string(kNotAvailable), std::string(kNotAvailable), generation);
    }
    Result<std::string> map = bytes.TextAt(Behind(bytes.Find(kMapNameKey), kMapNameKey), '\\');
    if (map.Ok()) {
        map = LowerAscii(map.Value());
    }
    return Header(std::move(map), bytes.TextAt(Behind(bytes.Find(kLevelName), kLevelName), '\0'),
                  generation);
}

HeaderResult ReadDemoHeader(FileSystem& files, const std::string& path, std::string_view game) {
    const Result<std::unique_ptr<ReadableFile>> opened = files.OpenForReading(path);
    if (!opened.Ok()) {
        return opened.Error();
    }
    ReadableFile& file = *opened.Value();
    if (game == kQuake1) {
        return ReadQuake1Header(file);
    }
    return game == kQuake2 ? ReadQuake2Header(file) : ReadQuake3Header(file, path.ends_with(kDm66));
}

}  // namespace zentar
