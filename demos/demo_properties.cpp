#include "demos/demo_properties.h"

#include <array>

#include "core/game_text.h"
#include "core/text.h"

namespace zentar {

namespace {

constexpr const char* kNoVersion = "Q3 Version: (n/a)";
constexpr const char* kNoName = "Name: (n/a)";
constexpr const char* kNoMap = "Map: (n/a)";
constexpr const char* kNoDate = "Created: (n/a)";
// The designed captions say "File size:"; with no demo selected the label says "Demo size:".
constexpr const char* kNoFile = "File size: (n/a)";
constexpr const char* kNoSelection = "Demo size: (n/a)";

const char* VersionText(Q3Generation generation) {
    switch (generation) {
        case Q3Generation::V117:
            return "Q3 Version: 1.17 compatible";
        case Q3Generation::V127h:
            return "Q3 Version: 1.27h compatible";
        case Q3Generation::V129f:
            return "Q3 Version: 1.29f or higher";
        case Q3Generation::None:
            break;
    }
    return kNoVersion;
}

}  // namespace

void DemoProperties::Arrange(bool quake3) {
    const std::array<int, 4> tops =
        quake3 ? std::array{480, 705, 930, 1155} : std::array{300, 565, 845, 1095};
    controls_.labDemoVersion.SetVisible(quake3);
    controls_.labDemoSize.SetTop(tops[0]);
    controls_.labDemoDate.SetTop(tops[1]);
    controls_.labDemoName.SetTop(tops[2]);
    controls_.labDemoMap.SetTop(tops[3]);
}

void DemoProperties::EnableAll(bool enabled) {
    controls_.fraDemoProperties.SetEnabled(enabled);
    controls_.labDemoVersion.SetEnabled(enabled);
    controls_.labDemoName.SetEnabled(enabled);
    controls_.labDemoMap.SetEnabled(enabled);
    controls_.labDemoSize.SetEnabled(enabled);
    controls_.labDemoDate.SetEnabled(enabled);
}

void DemoProperties::Reset() {
    EnableAll(false);
    controls_.labDemoVersion.SetText(kNoVersion);
    controls_.labDemoName.SetText(kNoName);
    controls_.labDemoMap.SetText(kNoMap);
    controls_.labDemoSize.SetText(kNoSelection);
    controls_.labDemoDate.SetText(kNoDate);
}

void DemoProperties::ShowFile(const DemoInfo& demo, bool isThere) {
    EnableAll(true);
    controls_.labDemoVersion.SetText(kNoVersion);
    if (isThere) {
        controls_.labDemoSize.SetText(
            "File size: " + GroupDigits(demo.SizeBytes, locale_.ThousandsSeparator()) + " bytes");
        controls_.labDemoDate.SetText("Created: " + locale_.GeneralDate(demo.Stamp));
    } else {
        controls_.labDemoSize.SetText(kNoFile);
        controls_.labDemoDate.SetText(kNoDate);
    }
    controls_.labDemoMap.SetText(kNoMap);
    controls_.labDemoName.SetText(kNoName);
}

void DemoProperties::ShowHeader(const DemoInfo& demo) {
    controls_.labDemoVersion.SetText(VersionText(demo.Generation));
    controls_.labDemoMap.SetText("Map: " + GameTextOnOneLine(demo.Map));
    controls_.labDemoName.SetText(
        "Name: " + (demo.Name.empty() ? std::string("(None)") : GameTextOnOneLine(demo.Name)));
}

}  // namespace zentar
