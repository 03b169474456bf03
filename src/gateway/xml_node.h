// The nodes of an answer: thin handles over the tree, nothing is copied. They
// live as long as their document. White space between elements, comments and processing
// instructions are not nodes; child access by position costs O(1).
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// libxml2's own tag, so that its headers stay out of this one.
struct _xmlNode;  // NOLINT(bugprone-reserved-identifier)

namespace tarn {

struct XmlAttributeData;

// An attribute: its name, base name (no prefix) and text. Null when absent; any read of a
// null one raises RuntimeError ObjectVariable.
class XmlAttribute {
public:
    XmlAttribute() = default;
    explicit operator bool() const { return attribute_ != nullptr; }
    std::string_view name() const;  // as written, prefix included
    std::string_view baseName() const;
    std::string_view text() const;  // UTF-8; lives as long as the document
    // The name without its prefix, at one address for all attributes of the document that
    // are named so.
    const char* nameAddress() const;
    bool hasPrefix() const;     // one that the document declares
    XmlAttribute next() const;  // null behind the last one

private:
    friend class XmlAttributes;
    explicit XmlAttribute(const XmlAttributeData* attribute) : attribute_(attribute) {}
    const XmlAttributeData* attribute_ = nullptr;
};

// In document order. Namespace declarations are not among them.
class XmlAttributes {
public:
    std::size_t length() const;
    XmlAttribute first() const;                              // null of none
    XmlAttribute item(std::size_t index) const;              // null past the end
    XmlAttribute getNamedItem(std::string_view name) const;  // as written, case-sensitive
    std::string_view textOf(std::string_view name) const;    // of that one; "" when absent
    // First one whose base name is `name` whatever the case of its letters.
    XmlAttribute firstWithBaseName(std::string_view name) const;

private:
    friend class XmlNode;
    explicit XmlAttributes(const _xmlNode* element) : element_(element) {}
    const _xmlNode* element_;
};

class XmlNode;

class XmlNodeList {
public:
    using Nodes = std::shared_ptr<const std::vector<const _xmlNode*>>;

    class Iterator {
    public:
        XmlNode operator*() const;
        Iterator& operator++() {
            ++index_;
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        friend class XmlNodeList;
        Iterator(const XmlNodeList* list, std::size_t index) : list_(list), index_(index) {}
        const XmlNodeList* list_;
        std::size_t index_;
    };

    XmlNodeList() = default;
    std::size_t length() const { return nodes_ == nullptr ? 0 : nodes_->size(); }
    XmlNode item(std::size_t index) const;  // null past the end
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, length()}; }

private:
    friend class XmlNode;
    explicit XmlNodeList(Nodes nodes) : nodes_(std::move(nodes)) {}
    Nodes nodes_;
};

// An element or the XML declaration. A null node answers false; any other use of it
// raises RuntimeError ObjectVariable.
class XmlNode {
public:
    XmlNode() = default;
    explicit operator bool() const { return node_ != nullptr; }
    std::string_view nodeName() const;  // as written, prefix included
    std::string_view baseName() const;
    std::string text() const;  // of the element and all below
    std::string xml() const;   // the node written out
    std::size_t childCount() const;
    XmlNode child(std::size_t index) const;  // null past the end
    XmlNodeList childNodes() const;
    XmlAttributes attributes() const;
    XmlNode selectSingleNode(std::string_view path) const;  // null when nothing fits
    XmlNodeList selectNodes(std::string_view path) const;

private:
    friend class XmlDocument;
    friend class XmlNodeList;
    explicit XmlNode(const _xmlNode* node) : node_(node) {}
    const _xmlNode* node_ = nullptr;
};

}  // namespace tarn
