#include "common/acts.h"

#include <algorithm>

#include "platform/environment.h"
#include "runtime/text.h"

namespace tarn {

void tellDone(const Environment& environment, const std::string& what) {
    if (environment.acts != nullptr) {
        environment.acts->done(what);
    }
}

void tellPrinted(const Environment& environment, const PaperAct& act) {
    if (environment.acts != nullptr) {
        environment.acts->printed(act);
    }
}

// As the forms print it.
std::string noteName(std::string_view number) {
    constexpr std::size_t places = 6;
    std::string name("NF ");
    name.append(places - std::min(places, lengthOf(number)), '0');
    return name.append(number);
}

std::string counted(std::size_t count, const Noun& noun) {
    std::string text = std::to_string(count) + " ";
    return text.append(count == 1 ? noun.one : noun.many);
}

PaperAct piecesSent(const std::string& what, std::size_t count, bool feminine,
                    const std::string& remedy) {
    const std::string ending = std::string(feminine ? "a" : "o") + (count == 1 ? "" : "s");
    return {
        .sent = what + " enviad" + ending, .made = what + " preparad" + ending, .remedy = remedy};
}

}  // namespace tarn
