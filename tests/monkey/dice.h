// Chance that can be repeated: the same seed throws the same numbers on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zentar::monkey {

class Dice {
  public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}

    // 0 … count - 1; 0 when there is nothing to choose from.
    std::size_t Below(std::size_t count) {
        return count == 0 ? 0 : static_cast<std::size_t>(Next() % count);
    }
    int Between(int least, int most) {
        return least + static_cast<int>(Below(static_cast<std::size_t>(most - least + 1)));
    }
    bool OneIn(std::size_t count) { return Below(count) == 0; }
    // Of a list that is not empty.
    template <typename List>
    const auto& Of(const List& list) {
        return *(std::begin(list) + static_cast<std::ptrdiff_t>(Below(std::size(list))));
    }

  private:
    // SplitMix64.
    std::uint64_t Next() {
        std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15u;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state_;
};

}  // namespace zentar::monkey
