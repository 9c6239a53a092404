#include "samples/demo_maker.h"

#include <array>
#include <bit>
#include <string_view>

namespace zentar::samples {

namespace {

using namespace std::string_view_literals;

// Little-endian values and NUL-terminated strings, as the games write messages.
class MessageWriter {
  public:
    MessageWriter& Byte(unsigned value) {
        bytes_ += static_cast<char>(value);
        return *this;
    }
    MessageWriter& Short(unsigned value) { return Byte(value & 0xFFU).Byte(value >> 8U); }
    MessageWriter& Long(std::uint32_t value) { return Short(value & 0xFFFFU).Short(value >> 16U); }
    MessageWriter& Float(float value) { return Long(std::bit_cast<std::uint32_t>(value)); }
    MessageWriter& Raw(std::string_view bytes) {
        bytes_ += bytes;
        return *this;
    }
    MessageWriter& String(std::string_view text) { return Raw(text).Byte(0); }

    std::size_t Size() const { return bytes_.size(); }
    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

// As many letters as bring `size` up to `offset`.
std::string Padding(std::size_t size, std::size_t offset) {
    return std::string(offset > size ? offset - size : 0, 'x');
}

class Random {
  public:
    explicit Random(std::uint32_t seed) : state_(seed * 2654435761U + 1) {}
    unsigned Byte() {
        state_ = state_ * 1664525U + 1013904223U;
        return state_ >> 24U;
    }

  private:
    std::uint32_t state_;
};

// Compressed data: all bytes are as frequent. The same seed gives the same bytes.
std::string Noise(std::size_t size, std::uint32_t seed) {
    Random random(seed);
    std::string noise(size, '\0');
    for (char& byte : noise) {
        byte = static_cast<char>(random.Byte());
    }
    return noise;
}

// Positions and numbers of things: many zeros and small values, few high ones.
std::string Movement(std::size_t size, std::uint32_t seed) {
    Random random(seed);
    std::string bytes(size, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random.Byte() & random.Byte());
    }
    return bytes;
}

constexpr std::size_t kPlaySize = 1000;  // of a message during play

// ---- Quake 1: blocks of length, view angles and message ----

namespace quake1 {

constexpr std::size_t kBlockHeader = 16;
constexpr unsigned kPrint = 8;
constexpr unsigned kServerInfo = 11;
constexpr unsigned kTime = 7;
constexpr unsigned kDisconnect = 2;

void AddBlock(MessageWriter& demo, const std::string& message) {
    demo.Long(static_cast<std::uint32_t>(message.size()));
    demo.Float(0).Float(90).Float(0).Raw(message);
}

std::string FirstMessage(std::size_t start, const DemoContents& contents) {
    MessageWriter message;
    message.Byte(kPrint).Raw("\2\nVERSION 1.09 SERVER (50146 CRC)\n").Raw(contents.earlyText);
    // Behind the padding come the print's end, the server info up to the name, and the name's end.
    const std::size_t between = 1 + 7 + contents.levelName.size() + 1;
    message.String(Padding(start + message.Size() + between, contents.mapAt));
    message.Byte(kServerInfo).Long(15).Byte(8).Byte(1).String(contents.levelName);
    message.String("maps/" + contents.map + ".bsp").String("*1").String("*2");
    for (const char* model : {"progs/player.mdl", "progs/eyes.mdl", "progs/v_axe.mdl"}) {
        message.String(model);
    }
    message.Byte(0).String("weapons/ric1.wav").String("misc/menu1.wav").Byte(0);
    return message.Bytes();
}

std::string Make(const DemoContents& contents) {
    MessageWriter demo;
    demo.Raw("-1\n");
    AddBlock(demo, FirstMessage(demo.Size() + kBlockHeader, contents));
    for (const std::string& line : contents.chat) {
        AddBlock(demo, MessageWriter().Byte(kPrint).Raw("\1").String(line).Bytes());
    }
    for (std::uint32_t i = 1; demo.Size() < contents.size; ++i) {
        AddBlock(demo, MessageWriter().Byte(kTime).Raw(Movement(kPlaySize, i)).Bytes());
    }
    AddBlock(demo, MessageWriter().Byte(kDisconnect).Bytes());
    return demo.Bytes();
}

}  // namespace quake1

// ---- Quake 2: blocks of length and message ----

namespace quake2 {

constexpr unsigned kPrint = 10;
constexpr unsigned kServerData = 12;
constexpr unsigned kConfigString = 13;
constexpr unsigned kFrame = 20;
constexpr unsigned kSky = 2;
constexpr unsigned kModels = 32;
constexpr std::uint32_t kEnd = 0xFFFFFFFFU;

void AddBlock(MessageWriter& demo, const std::string& message) {
    demo.Long(static_cast<std::uint32_t>(message.size())).Raw(message);
}

void AddConfigString(MessageWriter& message, unsigned index, std::string_view text) {
    message.Byte(kConfigString).Short(index).String(text);
}

std::string FirstMessage(std::size_t start, const DemoContents& contents) {
    MessageWriter message;
    message.Byte(kServerData).Long(34).Long(1).Byte(1);
    message.String(contents.mod).Short(0).String(contents.levelName);
    AddConfigString(message, 0, contents.levelName);
    // Around the padding stand a configuration string's code and number, and its end.
    const std::size_t around = 3 + contents.earlyText.size() + 1 + 3;
    AddConfigString(message, kSky,
                    contents.earlyText + Padding(start + message.Size() + around, contents.mapAt));
    AddConfigString(message, kModels + 1, "maps/" + contents.map + ".bsp");
    AddConfigString(message, kModels + 2, "*1");
    AddConfigString(message, kModels + 3, "models/weapons/v_blast/tris.md2");
    AddConfigString(message, kModels + 4, "#w_blaster.md2");
    return message.Bytes();
}

std::string Make(const DemoContents& contents) {
    MessageWriter demo;
    AddBlock(demo, FirstMessage(demo.Size() + 4, contents));
    for (const std::string& line : contents.chat) {
        AddBlock(demo, MessageWriter().Byte(kPrint).Byte(3).String(line).Bytes());
    }
    for (std::uint32_t i = 1; demo.Size() < contents.size; ++i) {
        AddBlock(demo, MessageWriter().Byte(kFrame).Raw(Movement(kPlaySize, i)).Bytes());
    }
    return demo.Long(kEnd).Bytes();
}

}  // namespace quake2

// ---- Quake 3: blocks of sequence number, length and message ----

namespace quake3 {

constexpr unsigned kGameState = 2;
constexpr unsigned kConfigString = 3;
constexpr unsigned kServerCommand = 5;
constexpr unsigned kSnapshot = 7;
constexpr std::size_t kBlockHeader = 8;
constexpr std::uint32_t kEnd = 0xFFFFFFFFU;

void AddBlock(MessageWriter& demo, std::uint32_t sequence, const std::string& message) {
    demo.Long(sequence).Long(static_cast<std::uint32_t>(message.size())).Raw(message);
}

void AddConfigString(MessageWriter& message, unsigned index, std::string_view text) {
    message.Byte(kConfigString).Short(index).String(text);
}

std::string FirstMessage(DemoKind kind, std::size_t start, const DemoContents& contents) {
    const bool old = kind == DemoKind::Dm3;
    const std::string mod = contents.mod.empty() ? "baseq3" : contents.mod;
    const std::string clientsKey = old ? "\\g_syncronousClients\\0" : "\\g_synchronousClients\\0";
    MessageWriter message;
    message.Byte(kGameState).Long(1);
    std::string serverInfo = "\\sv_hostname\\noname\\gamename\\" + mod + contents.earlyText;
    constexpr std::size_t kCodeAndNumber = 3;
    serverInfo +=
        Padding(start + message.Size() + kCodeAndNumber + serverInfo.size(), contents.mapAt);
    AddConfigString(message, 0,
                    serverInfo + "\\mapname\\" + contents.map + "\\protocol\\" +
                        (old ? "43" : "48") + "\\g_gametype\\0");
    const std::string systemInfo = "\\sv_serverid\\88" + clientsKey;
    AddConfigString(
        message, 1,
        systemInfo + Padding(start + message.Size() + kCodeAndNumber + systemInfo.size(),
                             contents.levelNameAt));
    AddConfigString(message, 3, contents.levelName);
    AddConfigString(message, 20, "baseq3-1");
    return message.Bytes();
}

std::string Make(DemoKind kind, const DemoContents& contents) {
    MessageWriter demo;
    std::uint32_t sequence = 1;
    AddBlock(demo, sequence, FirstMessage(kind, demo.Size() + kBlockHeader, contents));
    for (const std::string& line : contents.chat) {
        ++sequence;
        AddBlock(demo, sequence,
                 MessageWriter()
                     .Byte(kServerCommand)
                     .Long(sequence)
                     .String("chat \"" + line + "\"")
                     .Bytes());
    }
    while (demo.Size() < contents.size) {
        ++sequence;
        AddBlock(demo, sequence,
                 MessageWriter().Byte(kSnapshot).Raw(Movement(kPlaySize, sequence)).Bytes());
    }
    return demo.Long(kEnd).Long(kEnd).Bytes();
}

// Every message is compressed; what was said in it cannot be seen.
std::string MakeCompressed(const DemoContents& contents) {
    MessageWriter demo;
    std::uint32_t sequence = 1;
    AddBlock(demo, sequence, Noise(4 * kPlaySize, sequence));
    while (demo.Size() < contents.size) {
        ++sequence;
        AddBlock(demo, sequence, Noise(kPlaySize, sequence));
    }
    return demo.Long(kEnd).Long(kEnd).Bytes();
}

}  // namespace quake3

}  // namespace

std::string MakeDemo(DemoKind kind, const DemoContents& contents) {
    switch (kind) {
        case DemoKind::Dem:
            return quake1::Make(contents);
        case DemoKind::Dm2:
            return quake2::Make(contents);
        case DemoKind::Dm66:
            return quake3::MakeCompressed(contents);
        case DemoKind::Dm3:
        case DemoKind::Dm48:
            break;
    }
    return quake3::Make(kind, contents);
}

std::string ExtensionOf(DemoKind kind) {
    constexpr std::array kExtensions = {".dem", ".dm2", ".dm3", ".dm_48", ".dm_66"};
    return kExtensions[static_cast<std::size_t>(kind)];
}

std::string MakeTextFile(std::size_t size) {
    std::string text;
    while (text.size() < size) {
        text += "This is a text file, renamed by accident.\r\n";
    }
    text.resize(size);
    return text;
}

}  // namespace zentar::samples
