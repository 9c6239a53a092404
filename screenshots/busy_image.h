// The picture that is shown while a screenshot is being loaded.
#pragma once

#include <string_view>

namespace zentar {

// The bytes of a GIF file.
std::string_view BusyImage();

}  // namespace zentar
