// What the remedies say to the user.
#pragma once

#include <string>

#include "core/game_info.h"
#include "platform/window_services.h"

namespace zentar::messages {

// `base` is the base mod in double quotes with one blank before it.
Message AutoexecExists(const GameId& game, const std::string& base);
Message AutoexecNotCreated();

TextQuestion ChangeLogitechSetting(const std::string& current);
Message LogitechSettingChanged();

Message ExecutableNotChanged();
Message DriverNotRenamed();

}  // namespace zentar::messages
