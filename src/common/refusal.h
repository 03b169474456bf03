// Why an action isn't begun.
#pragma once

#include <string>

namespace tarn {

template <class Field>
struct Refusal {
    Field field;       // where the focus goes
    std::string text;  // of the box
    bool operator==(const Refusal&) const = default;
};

}  // namespace tarn
