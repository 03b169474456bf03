#include "cheques/quebra_texto.h"

#include <utility>

#include "runtime/text.h"

namespace tarn {
namespace {

constexpr char lineEnd = 13;

class Lines {
public:
    explicit Lines(std::size_t width) : width_(width) {}

    void join(std::string_view piece) {
        if (lengthOf(piece) + lengthOf(line_) > width_) {
            closeLine();
        } else if (!line_.empty()) {
            line_ += ' ';
        }
        line_ += piece;
    }
    std::string finish() {
        closeLine();
        return std::move(result_);
    }

private:
    void closeLine() {
        if (!result_.empty()) {
            result_ += lineEnd;
        }
        result_ += line_;
        line_.clear();
    }

    std::size_t width_;
    std::string line_;
    std::string result_;
};

}  // namespace

std::string QuebraTexto(std::string_view text, std::size_t width) {
    Lines lines(width);
    for (const std::string_view piece : split(text, ' ')) {
        lines.join(piece);
    }
    return lines.finish();
}

}  // namespace tarn
