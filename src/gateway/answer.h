// One request as every routine makes it, the checks on its answer, and its rows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// CarregaXML of BaseUrl and `query`, without a copy.
bool requestAnswer(Environment& environment, const std::string& query, XmlDocument& document,
                   std::string_view failureMessage);

// Text of the second attribute of the document's second child; RuntimeError
// ObjectVariable when there is none (no declaration, one attribute only).
std::string statusOf(const XmlDocument& document);
// The same; nothing when there is none.
std::optional<std::string> statusIfAny(const XmlDocument& document);

// False, with the user told, when the answer is empty (`emptyMessage`) or its status
// isn't exactly "OK" (the server's own text). ObjectVariable when it has no status.
bool answerAccepted(Environment& environment, const XmlDocument& document,
                    const std::string& emptyMessage);

// Of a rowset answer the element whose children are the rows; null for any other answer.
XmlNode rowsetOf(const XmlDocument& answer);
// Its rows; none for any other answer.
XmlNodeList rowsOf(const XmlDocument& answer);

}  // namespace tarn
