// The two questions before something is done to a user's files.
#pragma once

#include <string>

#include "core/program_state.h"
#include "platform/platform.h"
#include "platform/window_services.h"

namespace zentar {

// Whether the user wants it; in Expert Mode without being asked.
[[nodiscard]] bool Confirmed(const ProgramState& state, WindowServices& windows,
                             const Message& question);

// Whether a file may be deleted or overwritten. The question comes, in Expert Mode too, only when
// the file is read-only; on Yes its attributes are cleared.
[[nodiscard]] bool MayChangeFile(const Platform& platform, const std::string& path,
                                 const Message& readOnlyQuestion);

// Both for a file that is about to be replaced. One that is not there may be.
[[nodiscard]] bool MayReplaceFile(const ProgramState& state, const Platform& platform,
                                  const std::string& path, const Message& question,
                                  const Message& readOnlyQuestion);

}  // namespace zentar
