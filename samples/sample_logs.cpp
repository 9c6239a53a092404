#include "samples/sample_logs.h"

namespace zentar::samples {

std::string_view Quake1Log() {
    return "Playing registered version.\r\n"
           "PackFile: c:/games/quake/id1/pak0.pak : gfx.wad\r\n"
           "Server using protocol 15\r\n"
           "\xC5\xED\xE2\xE5\xF2 entered the game\r\n"
           "\1\xC5\xED\xE2\xE5\xF2: hello there\r\n"
           "\1Bob [\x90\x91]: hi \xC5\xED\xE2\xE5\xF2\r\n"
           "Bob [\x90\x91] rides \xC5\xED\xE2\xE5\xF2's rocket\r\n"
           "\1\xC5\xED\xE2\xE5\xF2: nice: one\r\n";
}

std::string_view Quake2Condump() {
    return "==== InitGame ====\r\n"
           "server: loading q2dm1\r\n"
           "Fred entered the game\r\n"
           "Bob <3 entered the game\r\n"
           "Fred: gl & hf\r\n"
           "Bob <3: you too <b>Fred</b>\r\n"
           "Bob <3 was railed by Fred\r\n"
           "(Fred): the armour is gone\r\n"
           "Mapper: nobody ever finds me\r\n"
           "Fragger: \"gg\"\r\n"
           "fraglimit hit.\r\n"
           "Fred: gg";
}

std::string_view Quake3Log() {
    return "logfile opened on Sat Nov 21 20:15:00 2026\n"
           "InitGame: \\mapname\\q3dm17\n"
           "ClientBegin: 0\n"
           "^1Em^3ber^7Fox entered the game\n"
           "  0:12 say: ^1Em^3ber^7Fox: ^2hello\n"
           "  0:15 sayteam: ^4Ice^7 (Rail): take the rail\n"
           "  0:20 tell: ^4Ice^7 to ^1Em^3ber^7Fox: psst\n"
           "^1Em^3ber^7Fox: ^3typed in the console\n"
           "^4Ice^7 was railgunned by ^1Em^3ber^7Fox\n"
           "Hitch: ping time 999\n"
           "Item: 0 weapon_railgun\n"
           "ShutdownGame:\n";
}

}  // namespace zentar::samples
