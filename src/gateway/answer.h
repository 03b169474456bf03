// One request as every routine makes it, and the checks on its answer.
#pragma once

#include <string>
#include <string_view>

#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// CarregaXML of BaseUrl and `query`, without a copy.
bool requestAnswer(Environment& environment, const std::string& query, XmlDocument& document,
                   std::string_view failureMessage);

// False, with the user told, when the answer is empty (`emptyMessage`) or its status
// isn't exactly "OK" (the server's own text). ObjectVariable when it has no status.
bool answerAccepted(Environment& environment, const XmlDocument& document,
                    const std::string& emptyMessage);

// A box with the exclamation icon, by default without a title of its own.
void warn(Environment& environment, const std::string& text);
void warn(Environment& environment, const std::string& text, const std::string& title);

}  // namespace tarn
