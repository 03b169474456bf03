// The answer as a DOM: a thin view over libxml2's own tree, nothing is copied.
// White space between elements, comments and processing instructions are not
// nodes; child access by position costs O(1).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

class XmlDocument;
class XmlNode;

// An attribute: its name, base name (no prefix) and text. Null when absent;
// any read of a null one raises RuntimeError ObjectVariable.
class XmlAttribute {
public:
    XmlAttribute() = default;
    explicit operator bool() const { return attribute_ != nullptr; }
    std::string_view name() const;  // as written, prefix included
    std::string_view baseName() const;
    std::string_view text() const;  // UTF-8; lives as long as the document

private:
    friend class XmlAttributes;
    friend class RowReader;
    explicit XmlAttribute(const void* attribute) : attribute_(attribute) {}
    const void* attribute_ = nullptr;
};

// In document order. Namespace declarations are not among them.
class XmlAttributes {
public:
    std::size_t length() const;
    XmlAttribute item(std::size_t index) const;              // null past the end
    XmlAttribute getNamedItem(std::string_view name) const;  // as written, case-sensitive
    // First one whose base name is `name` whatever the case of its letters.
    XmlAttribute firstWithBaseName(std::string_view name) const;

private:
    friend class XmlNode;
    explicit XmlAttributes(const void* element) : element_(element) {}
    const void* element_;
};

class XmlNodeList {
public:
    XmlNodeList() = default;
    std::size_t length() const;
    XmlNode item(std::size_t index) const;  // null past the end

private:
    friend class XmlNode;
    friend class XmlDocument;
    explicit XmlNodeList(std::shared_ptr<const std::vector<const void*>> nodes)
        : nodes_(std::move(nodes)) {}
    std::shared_ptr<const std::vector<const void*>> nodes_;
};

// An element or the XML declaration. A null node answers false; any other use of
// it raises RuntimeError ObjectVariable.
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
    friend class RowReader;
    explicit XmlNode(const void* node) : node_(node) {}
    const void* node_ = nullptr;
};

// What a request gets its answer in. Empty until a load succeeded.
class XmlDocument {
public:
    XmlDocument();
    ~XmlDocument();
    XmlDocument(XmlDocument&&) noexcept;
    XmlDocument& operator=(XmlDocument&&) noexcept;

    // Parses in strict mode: no network, no external or internal subset, any
    // declared encoding, 64 MiB at most. False leaves the document empty.
    bool loadXML(std::string_view bytes);

    std::string xml() const;  // "" while empty
    bool empty() const;
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
    friend class XmlAttributes;
    friend class XmlNode;
    friend class RowReader;
    struct State;
    static bool undeclaredPrefixes(const void* node);
    static std::uint64_t serialOf(const void* node);  // another one for every load
    std::unique_ptr<State> state_;
};

}  // namespace tarn
