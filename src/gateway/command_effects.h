// What the 39 commands do to the server's data.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarn::commands {

enum class Effect { Reads, Writes };

struct CommandEffect {
    std::string_view command;
    Effect effect;
};

std::span<const CommandEffect> commandEffects();

// Whether the request of `address`, a whole URL, only reads. What isn't in the table is taken
// for a write.
bool onlyReads(const std::string& address);

}  // namespace tarn::commands
