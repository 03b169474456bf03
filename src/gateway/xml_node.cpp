#include "gateway/xml_node.h"

#include "gateway/xml_tree.h"
#include "runtime/ascii.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

using NodeVector = std::vector<const xmlNode*>;

template <typename Object>
const Object& given(const Object* object) {
    if (object == nullptr) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable);
    }
    return *object;
}

// The declaration has no node in libxml2's tree: the document's own stands for it.
bool isDeclaration(const xmlNode& node) {
    return node.type == XML_DOCUMENT_NODE;
}

// A prefix that the document never declares stays part of the name.
std::string_view withoutPrefix(std::string_view name) {
    const auto colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string_view prefixOf(const xmlNode& element) {
    return element.ns == nullptr ? std::string_view{} : viewOf(element.ns->prefix);
}

// Prefix and name as one text that lives as long as the document.
std::string_view writtenName(const xmlNode& element) {
    return viewOf(prefixOf(element).empty()
                      ? element.name
                      : xmlDictQLookup(element.doc->dict, element.ns->prefix, element.name));
}

bool nameIs(const xmlNode& element, std::string_view wanted) {
    const std::string_view prefix = prefixOf(element);
    if (prefix.empty()) {
        return viewOf(element.name) == wanted;
    }
    return wanted.size() > prefix.size() && wanted.starts_with(prefix) &&
           wanted[prefix.size()] == ':' && wanted.substr(prefix.size() + 1) == viewOf(element.name);
}

// Next node of the tree in document order, never leaving what is below `top`.
const xmlNode* nextInTree(const xmlNode* node, const xmlNode* top) {
    if (isElement(*node) && node->children != nullptr) {
        return node->children;
    }
    while (node != top && node->next == nullptr) {
        node = node->parent;
    }
    return node == top ? nullptr : node->next;
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

void addMatching(NodeVector& found, const xmlNode& node, std::string_view name) {
    if (isElement(node) && nameIs(node, name)) {
        found.push_back(&node);
    }
}

NodeVector anywhere(const xmlDoc* doc, std::string_view name, bool firstOnly) {
    NodeVector found;
    const xmlNode* root = xmlDocGetRootElement(doc);
    for (const xmlNode* node = root; node != nullptr; node = nextInTree(node, root)) {
        addMatching(found, *node, name);
        if (firstOnly && !found.empty()) {
            break;
        }
    }
    return found;
}

NodeVector byPath(const xmlNode& from, std::string_view path, bool firstOnly) {
    if (path.starts_with("//")) {
        return anywhere(from.doc, path.substr(2), firstOnly);
    }
    NodeVector level{&from};
    while (!path.empty()) {
        const auto slash = path.find('/');
        const std::string_view name = path.substr(0, slash);
        path = slash == std::string_view::npos ? std::string_view{} : path.substr(slash + 1);
        NodeVector below;
        for (const xmlNode* parent : level) {
            for (const xmlNode* node = parent->children; node != nullptr; node = node->next) {
                addMatching(below, *node, name);
            }
        }
        level = std::move(below);
    }
    if (firstOnly && level.size() > 1) {
        level.erase(level.begin() + 1, level.end());
    }
    return level;
}

}  // namespace

std::string_view XmlAttribute::name() const {
    return viewOf(given(attribute_).written);
}

std::string_view XmlAttribute::baseName() const {
    return withoutPrefix(viewOf(given(attribute_).name));
}

std::string_view XmlAttribute::text() const {
    const XmlAttributeData& attribute = given(attribute_);
    return {attribute.text, attribute.length};
}

// The document's dictionary holds each name once.
const char* XmlAttribute::nameAddress() const {
    return reinterpret_cast<const char*>(given(attribute_).name);
}

bool XmlAttribute::hasPrefix() const {
    const XmlAttributeData& attribute = given(attribute_);
    return attribute.written != attribute.name;
}

XmlAttribute XmlAttribute::next() const {
    const XmlAttributeData* behind = &given(attribute_) + 1;
    return XmlAttribute(behind->name == nullptr ? nullptr : behind);
}

XmlAttribute XmlAttributes::first() const {
    const xmlNode& element = given(element_);
    return XmlAttribute(isElement(element) ? XmlTree::attributesOf(element) : nullptr);
}

std::size_t XmlAttributes::length() const {
    std::size_t count = 0;
    for (XmlAttribute attribute = first(); attribute; attribute = attribute.next()) {
        ++count;
    }
    return count;
}

XmlAttribute XmlAttributes::item(std::size_t index) const {
    XmlAttribute attribute = first();
    for (; attribute && index > 0; --index) {
        attribute = attribute.next();
    }
    return attribute;
}

XmlAttribute XmlAttributes::getNamedItem(std::string_view name) const {
    XmlAttribute attribute = first();
    while (attribute && attribute.name() != name) {
        attribute = attribute.next();
    }
    return attribute;
}

std::string_view XmlAttributes::textOf(std::string_view name) const {
    const XmlAttribute attribute = getNamedItem(name);
    return attribute ? attribute.text() : std::string_view();
}

XmlAttribute XmlAttributes::firstWithBaseName(std::string_view name) const {
    XmlAttribute attribute = first();
    while (attribute && !sameIgnoringCase(attribute.baseName(), name)) {
        attribute = attribute.next();
    }
    return attribute;
}

XmlNode XmlNodeList::Iterator::operator*() const {
    return list_->item(index_);
}

XmlNode XmlNodeList::item(std::size_t index) const {
    return index < length() ? XmlNode((*nodes_)[index]) : XmlNode();
}

std::string_view XmlNode::nodeName() const {
    const xmlNode& node = given(node_);
    return isDeclaration(node) ? "xml" : writtenName(node);
}

std::string_view XmlNode::baseName() const {
    return withoutPrefix(nodeName());
}

std::string XmlNode::text() const {
    const xmlNode& top = given(node_);
    std::string text;
    if (isDeclaration(top)) {
        return text;
    }
    for (const xmlNode* node = &top; node != nullptr; node = nextInTree(node, &top)) {
        const bool counts = node->type == XML_CDATA_SECTION_NODE ||
                            (node->type == XML_TEXT_NODE && !isBlank(viewOf(node->content)));
        if (counts) {
            text += viewOf(node->content);
        }
    }
    return text;
}

std::string XmlNode::xml() const {
    const xmlNode& node = given(node_);
    return isDeclaration(node) ? "<?xml version=\"1.0\"?>" : written(const_cast<xmlNode&>(node));
}

std::size_t XmlNode::childCount() const {
    return childNodes().length();
}

XmlNode XmlNode::child(std::size_t index) const {
    const xmlNode& node = given(node_);
    if (isDeclaration(node)) {
        return {};
    }
    const NodeVector& nodes = *XmlTree::of(node).childrenOf(node);
    return index < nodes.size() ? XmlNode(nodes[index]) : XmlNode();
}

XmlNodeList XmlNode::childNodes() const {
    const xmlNode& node = given(node_);
    return isDeclaration(node) ? XmlNodeList() : XmlNodeList(XmlTree::of(node).childrenOf(node));
}

XmlAttributes XmlNode::attributes() const {
    return XmlAttributes(&given(node_));
}

XmlNode XmlNode::selectSingleNode(std::string_view path) const {
    const NodeVector found = byPath(given(node_), path, true);
    return found.empty() ? XmlNode() : XmlNode(found.front());
}

XmlNodeList XmlNode::selectNodes(std::string_view path) const {
    return XmlNodeList(std::make_shared<NodeVector>(byPath(given(node_), path, false)));
}

}  // namespace tarn
