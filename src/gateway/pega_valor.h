// Reading one attribute of one row.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "gateway/xml_node.h"

namespace tarn {

// `index` counts the element children of `node` from 0. A text read: the attribute's text
// unchanged, `fallback` when it is absent. Present is one whose base name is `name` in any
// case of letters; the text is that of the one spelled as `name`. RuntimeError
// ObjectVariable where it is present in another spelling only, and for a row that isn't there.
std::string PegaValor(const XmlNode& node, std::size_t index, std::string_view name,
                      std::string_view fallback = {});

// With the number 0 for a fallback a numeric read: the attribute spelled in capitals, every
// "." turned into ","; "0" when absent. Any other number is a text read's fallback.
std::string PegaValor(const XmlNode& node, std::size_t index, std::string_view name, int fallback);

// The lookup behind the presence test, for whoever has found the first attribute that is
// called `name` in any case of letters: the one spelled so, prefix and all.
XmlAttribute spelledAs(std::string_view name, const XmlAttribute& present,
                       const XmlAttributes& row);

}  // namespace tarn
