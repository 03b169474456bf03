// Seam: message boxes. Texts are data: never rich text.
#pragma once

#include <string>

namespace tarn {

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
enum class BoxButtons { Ok, YesNo };
enum class BoxAnswer { Ok, Yes, No };

struct Box {
    std::string text;  // UTF-8; a line ends with CR, LF or CR LF
    BoxIcon icon = BoxIcon::None;
    std::string title = "TarnEmissao";    // the default title
    BoxButtons buttons = BoxButtons::Ok;  // Yes is the default of YesNo
    bool operator==(const Box&) const = default;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual BoxAnswer show(const Box& box) = 0;
};

}  // namespace tarn
