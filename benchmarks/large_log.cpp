#include "benchmarks/large_log.h"

#include <filesystem>
#include <fstream>
#include <random>

namespace zentar::benchmarks {

namespace {

constexpr std::array<std::string_view, 8> kItems = {
    "item_armor_shard", "ammo_rockets",     "item_health_small", "weapon_rocketlauncher",
    "item_armor_body",  "weapon_lightning", "ammo_slugs",        "item_quad"};

constexpr std::array<std::string_view, 6> kWeapons = {
    "MOD_RAILGUN", "MOD_ROCKET", "MOD_LIGHTNING", "MOD_ROCKET_SPLASH", "MOD_PLASMA", "MOD_SHOTGUN"};

constexpr std::array<std::string_view, 6> kEnds = {"'s railgun",  "'s rocket",  "'s shaft",
                                                   "'s gauntlet", "'s grenade", "'s shotgun"};

constexpr std::array<std::string_view, 8> kSpeech = {
    "gg",
    "^1LOL^7 that was close",
    "quad in 10",
    "who has the flag?",
    "nice shot <3",
    "^3w00t ^2w00t ^5w00t",
    "need backup in their base, red armor is gone",
    "you are lagging, what is your ping & where are you from?"};

// One after the other, of different lengths, always the same.
class LogMaker {
  public:
    std::string Line() {
        ++line_;
        const std::uint64_t kind = random_() % 100;
        if (kind < 45) {
            return Time() + " Item: " + Number() + " " + Any(kItems);
        }
        if (kind < 57) {
            return Time() + " Kill: " + Number() + " " + Number() + " 10: " + Name() + " killed " +
                   Name() + " by " + Any(kWeapons);
        }
        if (kind < 84) {
            return Coloured() + " was shot down by " + Coloured() + Any(kEnds);
        }
        if (kind < 87) {
            return Time() + " ClientUserinfoChanged: " + Number() + " n\\" + Coloured() +
                   "\\t\\0\\model\\visor/red\\hmodel\\visor/red\\c1\\4\\c2\\5\\hc\\100\\w\\0\\l\\0";
        }
        return Speech(kind);
    }

  private:
    std::string Speech(std::uint64_t kind) {
        if (kind < 93) {
            return Time() + " say: " + Coloured() + ": " + Any(kSpeech);
        }
        if (kind < 96) {
            return Time() + " sayteam: " + Coloured() + ": " + Any(kSpeech);
        }
        if (kind < 98) {
            return "(" + Coloured() + ") (Red Base): ^5" + Any(kSpeech);
        }
        return Coloured() + ": ^2" + Any(kSpeech);
    }
    std::string Time() const {
        const std::uint64_t seconds = line_ / 20 % 60'000;
        const std::string minutes = std::to_string(seconds / 60);
        const std::uint64_t rest = seconds % 60;
        return std::string(minutes.size() < 3 ? 3 - minutes.size() : 0, ' ') + minutes +
               (rest < 10 ? ":0" : ":") + std::to_string(rest);
    }
    std::string Number() { return std::to_string(random_() % kSpeakers.size()); }
    std::string Name() { return Any(kSpeakers); }
    std::string Coloured() { return "^" + std::to_string(random_() % 7 + 1) + Name() + "^7"; }
    template <typename Texts>
    std::string Any(const Texts& texts) {
        return std::string(texts[random_() % texts.size()]);
    }

    std::mt19937 random_{1};
    std::uint64_t line_ = 0;
};

}  // namespace

std::string LargeLog(const std::string& base, std::uint64_t bytes) {
    namespace fs = std::filesystem;
    const fs::path path = fs::path(base) / "large_games.log";
    std::error_code missing;
    if (fs::file_size(path, missing) >= bytes && !missing) {
        return path.string();
    }
    fs::create_directories(base);
    std::ofstream log(path, std::ios::binary);
    LogMaker maker;
    for (std::uint64_t length = 0; length < bytes;) {
        const std::string line = maker.Line() + "\r\n";
        log << line;
        length += line.size();
    }
    return path.string();
}

}  // namespace zentar::benchmarks
