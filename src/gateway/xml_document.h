// The answer as a DOM.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "gateway/xml_node.h"

namespace tarn {

struct XmlTree;

// What a request gets its answer in. Empty until a load succeeded.
class XmlDocument {
public:
    XmlDocument();
    ~XmlDocument();
    XmlDocument(XmlDocument&&) noexcept;
    XmlDocument& operator=(XmlDocument&&) noexcept;

    // Parses in strict mode: no network, no external or internal subset, an encoding
    // and a size within answer_limits.h. False leaves the document empty.
    bool loadXML(std::string_view bytes);

    std::string xml() const;  // "" while empty
    bool empty() const { return tree_ == nullptr; }
    std::size_t childCount() const;  // the declaration, if there is one, and the root
    XmlNode child(std::size_t index) const;
    XmlNode documentElement() const;  // null while empty
    // Paths as the answers need them, names and steps only: "xml/rs:data",
    // "PRINCIPAL", "//ITEM" (anywhere in the document, from whichever node). A name
    // is compared with prefix and all, as the document writes it.
    XmlNode selectSingleNode(std::string_view path) const;
    XmlNodeList selectNodes(std::string_view path) const;
    bool save(const std::string& fileName) const;

private:
    XmlNode top() const;
    std::unique_ptr<XmlTree> tree_;
};

}  // namespace tarn
