// What the designer of coloured texts says to the user.
#pragma once

#include <string>
#include <string_view>

#include "platform/window_services.h"

namespace zentar::messages {

// `folder` is shown at first.
FileQuestion ColouredTextToSave(const std::string& folder, const std::string& name);
FileQuestion ColouredTextToOpen(const std::string& folder);

// `name` is that of the file, without folder and extension.
Message ReallyOverwriteColouredText(std::string_view name);
Message OverwriteReadOnlyColouredText();
Message ColouredTextNotSaved();
Message ColouredTextNotOpened();

Message ReallyCopyCode();
Message CodeNotCopied();

Message ReallyAddCode();
Message AddToReadOnlyConfig();
Message CodeNotAdded();

}  // namespace zentar::messages
