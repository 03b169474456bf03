// What a command answers, before it is written out: elements and attributes in
// the order in which they go out.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarn::practice {

struct Element {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<Element> children;

    // A null value gives no attribute at all.
    Element& set(std::string_view attribute, std::optional<std::string> value);
    Element& add(Element child);
};

// Rows under rs:data, their fields as attributes; a null field gives none.
struct Rowset {
    std::vector<std::string> columns;
    std::vector<std::vector<std::optional<std::string>>> rows;
};

// Why a command isn't carried out, in words for the clerk. Thrown where it is found; the
// server makes an answer of it.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

using Reply = std::variant<Element, Rowset>;

// The shape in which a command answers, and refuses.
enum class Shape {
    Status,    // root with the status as its second attribute
    Document,  // the same, the root named PRINCIPAL
    Rows,      // xml/rs:data; has no status, so that a refusal shows as no rows
    Version    // root, one child: status and date of the version
};

Element statusAnswer(std::string status = "OK");
Element documentAnswer(std::string status = "OK");
Element versionAnswer(std::string status, std::optional<std::string> date);
Element rowsetAnswer(const Rowset& rowset);
Element refusalAnswer(Shape shape, const std::string& text);

Element answerElement(Reply reply);

}  // namespace tarn::practice
