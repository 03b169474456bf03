// An answer as libxml2 holds it; the facade's own view of it. Attributes are the tree's
// own: libxml2's take two nodes each.
#pragma once

#include <libxml/tree.h>

#include <cstdint>
#include <list>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>

#include "gateway/xml_node.h"

namespace tarn {

inline std::string_view viewOf(const xmlChar* text) {
    return text == nullptr ? std::string_view{} : reinterpret_cast<const char*>(text);
}

inline bool isElement(const xmlNode& node) {
    return node.type == XML_ELEMENT_NODE;
}

// Its names lie in the document's dictionary, each once. Those of an element lie side by
// side; behind the last one stands one without a name.
struct XmlAttributeData {
    const xmlChar* name = nullptr;     // without a prefix that the document declares
    const xmlChar* written = nullptr;  // with it
    const char* text = nullptr;
    std::size_t length = 0;
};

struct XmlTree {
    struct DocDeleter {
        void operator()(xmlDoc* tree) const { xmlFreeDoc(tree); }
    };
    std::pmr::monotonic_buffer_resource attributes;
    std::unique_ptr<xmlDoc, DocDeleter> doc;
    std::list<XmlNodeList::Nodes> children;  // of the elements asked so far

    static XmlTree& of(const xmlNode& node) { return *static_cast<XmlTree*>(node.doc->_private); }
    // The element children; gathered once, then at hand in the element's _private.
    const XmlNodeList::Nodes& childrenOf(const xmlNode& element);
    // Null of none.
    static const XmlAttributeData* attributesOf(const xmlNode& element) {
        return static_cast<const XmlAttributeData*>(element.psvi);
    }
};

// Null for what isn't an answer.
std::unique_ptr<XmlTree> parseXml(std::string_view bytes);

std::string written(xmlNode& node);
bool saveXml(xmlDoc& doc, const std::string& fileName);

}  // namespace tarn
