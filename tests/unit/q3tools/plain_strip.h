// Quake 3's colour codes taken out of a text, as one would write it first.
#pragma once

#include <string>

namespace zentar {

// Place by place. What is left may look like a code anew: "^^11" leaves "^1".
inline std::string PlainStrip(const std::string& text) {
    std::string plain;
    std::size_t i = 0;
    while (i < text.size()) {
        const std::string two = text.substr(i, 2);
        if (text.substr(i, 3) == "^^0") {
            i += 3;
        } else if (two.size() == 2 && two[0] == '^' && two[1] >= '0' && two[1] <= '7') {
            i += 2;
        } else {
            plain += text[i];
            ++i;
        }
    }
    return plain;
}

}  // namespace zentar
