// What a program was called with, as UTF-8 on every system.
#pragma once

#include <string>
#include <vector>

namespace tarn::cli {

// What every program begins with. Windows hands `main` its words in its 8-bit page, where most
// letters are lost. As long as this lives, a console of Windows shows what is written to it as
// UTF-8. Qt's regular expressions are plain from here on.
class Arguments {
public:
    Arguments(int argc, const char* const* argv);
    ~Arguments();
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    int count() const { return static_cast<int>(pointers_.size()) - 1; }
    // As `main` takes them: the program first, null last.
    const char* const* values() const { return pointers_.data(); }

private:
    std::vector<std::string> texts_;
    std::vector<const char*> pointers_;
    unsigned int consolePage_ = 0;  // to be restored; 0 without a console
};

}  // namespace tarn::cli
