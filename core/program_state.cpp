#include "core/program_state.h"

namespace zentar {

const GameInfo* ProgramState::Info() const {
    const int index = GameIndex(settings.Game);
    return index < 0 ? nullptr : &AllGames()[static_cast<std::size_t>(index)];
}

GameState* ProgramState::Game() {
    const int index = GameIndex(settings.Game);
    return index < 0 ? nullptr : &games[static_cast<std::size_t>(index)];
}

}  // namespace zentar
