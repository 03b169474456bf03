#include "gateway/xml_document.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlsave.h>

#include <atomic>
#include <list>

#include "runtime/runtime_error.h"

namespace tarn {
namespace {

constexpr std::size_t largestAnswer = std::size_t{64} * 1024 * 1024;

using NodeVector = std::vector<const void*>;
using SharedNodes = std::shared_ptr<const NodeVector>;

const void* given(const void* object) {
    if (object == nullptr) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable);
    }
    return object;
}

const xmlNode* asNode(const void* node) {
    return static_cast<const xmlNode*>(given(node));
}
const xmlAttr* asAttribute(const void* attribute) {
    return static_cast<const xmlAttr*>(given(attribute));
}

std::string_view view(const xmlChar* text) {
    return text == nullptr ? std::string_view{} : reinterpret_cast<const char*>(text);
}

bool isElement(const xmlNode* node) {
    return node->type == XML_ELEMENT_NODE;
}
// The declaration has no node in libxml2's tree: the document's own stands for it.
bool isDeclaration(const xmlNode* node) {
    return node->type == XML_DOCUMENT_NODE;
}

// A prefix that the document never declares stays part of the name.
std::string_view withoutPrefix(std::string_view name) {
    const auto colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string_view prefixOf(const xmlNs* ns) {
    return ns == nullptr ? std::string_view{} : view(ns->prefix);
}

// Prefix and name as one text that lives as long as the document.
std::string_view qualifiedName(xmlDoc* doc, const xmlNs* ns, const xmlChar* name) {
    if (prefixOf(ns).empty()) {
        return view(name);
    }
    return view(xmlDictQLookup(doc->dict, ns->prefix, name));
}

bool nameIs(const xmlNs* ns, const xmlChar* name, std::string_view wanted) {
    const std::string_view prefix = prefixOf(ns);
    if (prefix.empty()) {
        return view(name) == wanted;
    }
    return wanted.size() > prefix.size() && wanted.starts_with(prefix) &&
           wanted[prefix.size()] == ':' && wanted.substr(prefix.size() + 1) == view(name);
}

char foldCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool equalIgnoringCase(const char* name, std::string_view wanted) {
    for (const char c : wanted) {
        if (foldCase(*name) != foldCase(c) || *name == '\0') {
            return false;
        }
        ++name;
    }
    return *name == '\0';
}

// libxml2 writes what it can't report elsewhere to stderr; nothing may land there.
class SilentXml {
public:
    SilentXml() : handler_(xmlStructuredError), context_(xmlStructuredErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    }
    ~SilentXml() { xmlSetStructuredErrorFunc(context_, handler_); }
    SilentXml(const SilentXml&) = delete;
    SilentXml& operator=(const SilentXml&) = delete;

private:
    xmlStructuredErrorFunc handler_;
    void* context_;
};

void refuseDoctype(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    auto* parser = static_cast<xmlParserCtxt*>(context);
    *static_cast<bool*>(parser->_private) = true;
    xmlStopParser(parser);
}

struct DocDeleter {
    void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
};
using DocPointer = std::unique_ptr<xmlDoc, DocDeleter>;

struct Parsed {
    DocPointer doc;
    bool undeclaredPrefixes = false;
};

// Hands out the text piece by piece: of one that it holds whole the parser refuses
// some that are larger than 10 MB.
int readPiece(void* context, char* buffer, int length) {
    auto& rest = *static_cast<std::string_view*>(context);
    const std::size_t count = rest.copy(buffer, static_cast<std::size_t>(length));
    rest.remove_prefix(count);
    return static_cast<int>(count);
}

Parsed parse(std::string_view bytes) {
    const SilentXml silent;
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt*)> parser(xmlNewParserCtxt(),
                                                                          xmlFreeParserCtxt);
    if (parser == nullptr) {
        return {};
    }
    bool doctypeMet = false;
    parser->_private = &doctypeMet;
    parser->sax->internalSubset = refuseDoctype;
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    Parsed parsed;
    parsed.doc.reset(
        xmlCtxtReadIO(parser.get(), readPiece, nullptr, &bytes, nullptr, nullptr, options));
    if (doctypeMet || parser->wellFormed == 0 || parsed.doc == nullptr ||
        xmlDocGetRootElement(parsed.doc.get()) == nullptr) {
        parsed.doc.reset();
    }
    if (parsed.doc != nullptr && parsed.doc->encoding == nullptr) {
        parsed.doc->encoding =
            xmlStrdup(BAD_CAST "UTF-8");  // so that it writes its letters as such
    }
    parsed.undeclaredPrefixes = parser->nsWellFormed == 0;
    return parsed;
}

std::string dumped(xmlNode* node) {
    const SilentXml silent;
    const std::unique_ptr<xmlBuffer, void (*)(xmlBuffer*)> buffer(xmlBufferCreate(), xmlBufferFree);
    xmlSaveCtxt* writer = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL);
    xmlSaveTree(writer, node);
    xmlSaveClose(writer);
    return std::string(view(xmlBufferContent(buffer.get())));
}

// Next node of the tree in document order, never leaving what is below `top`.
const xmlNode* nextInTree(const xmlNode* node, const xmlNode* top) {
    if (isElement(node) && node->children != nullptr) {
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

void addMatching(NodeVector& found, const xmlNode* node, std::string_view name) {
    if (isElement(node) && nameIs(node->ns, node->name, name)) {
        found.push_back(node);
    }
}

NodeVector anywhere(const xmlDoc* doc, std::string_view name, bool firstOnly) {
    NodeVector found;
    const xmlNode* root = xmlDocGetRootElement(doc);
    for (const xmlNode* node = root; node != nullptr; node = nextInTree(node, root)) {
        addMatching(found, node, name);
        if (firstOnly && !found.empty()) {
            break;
        }
    }
    return found;
}

NodeVector byPath(const xmlNode* from, std::string_view path, bool firstOnly) {
    if (path.starts_with("//")) {
        return anywhere(from->doc, path.substr(2), firstOnly);
    }
    NodeVector level{from};
    while (!path.empty()) {
        const auto slash = path.find('/');
        const std::string_view name = path.substr(0, slash);
        path = slash == std::string_view::npos ? std::string_view{} : path.substr(slash + 1);
        NodeVector below;
        for (const void* parent : level) {
            for (const xmlNode* node = asNode(parent)->children; node != nullptr;
                 node = node->next) {
                addMatching(below, node, name);
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

namespace {
std::uint64_t nextSerial() {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}
}  // namespace

struct XmlDocument::State {
    DocPointer doc;
    bool undeclaredPrefixes = false;
    std::uint64_t serial = nextSerial();
    std::list<SharedNodes> children;  // of the elements asked so far; _private points here

    static State& of(const xmlNode* node) { return *static_cast<State*>(node->doc->_private); }

    const SharedNodes& childrenOf(const xmlNode* element) {
        if (element->_private != nullptr) {
            return *static_cast<const SharedNodes*>(element->_private);
        }
        auto nodes = std::make_shared<NodeVector>();
        for (const xmlNode* child = element->children; child != nullptr; child = child->next) {
            if (isElement(child)) {
                nodes->push_back(child);
            }
        }
        children.push_back(std::move(nodes));
        const_cast<xmlNode*>(element)->_private = &children.back();
        return children.back();
    }
};

std::string_view XmlAttribute::name() const {
    const xmlAttr* attribute = asAttribute(attribute_);
    return qualifiedName(attribute->doc, attribute->ns, attribute->name);
}

std::string_view XmlAttribute::baseName() const {
    return withoutPrefix(view(asAttribute(attribute_)->name));
}

std::string_view XmlAttribute::text() const {
    // Without a document type every reference is resolved while parsing: the
    // value is one text node.
    const xmlNode* value = asAttribute(attribute_)->children;
    return value == nullptr ? std::string_view{} : view(value->content);
}

std::size_t XmlAttributes::length() const {
    const xmlNode* element = asNode(element_);
    std::size_t count = 0;
    if (isElement(element)) {
        for (const xmlAttr* a = element->properties; a != nullptr; a = a->next) {
            ++count;
        }
    }
    return count;
}

XmlAttribute XmlAttributes::item(std::size_t index) const {
    const xmlNode* element = asNode(element_);
    const xmlAttr* attribute = isElement(element) ? element->properties : nullptr;
    while (attribute != nullptr && index > 0) {
        attribute = attribute->next;
        --index;
    }
    return XmlAttribute(attribute);
}

XmlAttribute XmlAttributes::getNamedItem(std::string_view name) const {
    const xmlNode* element = asNode(element_);
    const xmlAttr* attribute = isElement(element) ? element->properties : nullptr;
    while (attribute != nullptr && !nameIs(attribute->ns, attribute->name, name)) {
        attribute = attribute->next;
    }
    return XmlAttribute(attribute);
}

XmlAttribute XmlAttributes::firstWithBaseName(std::string_view name) const {
    const xmlNode* element = asNode(element_);
    if (!isElement(element)) {
        return {};
    }
    const bool prefixesInNames = XmlDocument::undeclaredPrefixes(element_);
    for (const xmlAttr* a = element->properties; a != nullptr; a = a->next) {
        const auto* written = reinterpret_cast<const char*>(a->name);
        if (prefixesInNames) {
            written = withoutPrefix(written).data();
        }
        if (equalIgnoringCase(written, name)) {
            return XmlAttribute(a);
        }
    }
    return {};
}

std::size_t XmlNodeList::length() const {
    return nodes_ == nullptr ? 0 : nodes_->size();
}

XmlNode XmlNodeList::item(std::size_t index) const {
    return index < length() ? XmlNode((*nodes_)[index]) : XmlNode();
}

std::string_view XmlNode::nodeName() const {
    const xmlNode* node = asNode(node_);
    return isDeclaration(node) ? "xml" : qualifiedName(node->doc, node->ns, node->name);
}

std::string_view XmlNode::baseName() const {
    return withoutPrefix(nodeName());
}

std::string XmlNode::text() const {
    const xmlNode* top = asNode(node_);
    std::string text;
    if (isDeclaration(top)) {
        return text;
    }
    for (const xmlNode* node = top; node != nullptr; node = nextInTree(node, top)) {
        const bool written = node->type == XML_CDATA_SECTION_NODE ||
                             (node->type == XML_TEXT_NODE && !isBlank(view(node->content)));
        if (written) {
            text += view(node->content);
        }
    }
    return text;
}

std::string XmlNode::xml() const {
    auto* node = const_cast<xmlNode*>(asNode(node_));
    return isDeclaration(node) ? "<?xml version=\"1.0\"?>" : dumped(node);
}

std::size_t XmlNode::childCount() const {
    return childNodes().length();
}

XmlNode XmlNode::child(std::size_t index) const {
    const xmlNode* node = asNode(node_);
    if (isDeclaration(node)) {
        return {};
    }
    const NodeVector& nodes = *XmlDocument::State::of(node).childrenOf(node);
    return index < nodes.size() ? XmlNode(nodes[index]) : XmlNode();
}

XmlNodeList XmlNode::childNodes() const {
    const xmlNode* node = asNode(node_);
    return isDeclaration(node) ? XmlNodeList()
                               : XmlNodeList(XmlDocument::State::of(node).childrenOf(node));
}

XmlAttributes XmlNode::attributes() const {
    return XmlAttributes(given(node_));
}

XmlNode XmlNode::selectSingleNode(std::string_view path) const {
    const NodeVector found = byPath(asNode(node_), path, true);
    return found.empty() ? XmlNode() : XmlNode(found.front());
}

XmlNodeList XmlNode::selectNodes(std::string_view path) const {
    return XmlNodeList(std::make_shared<NodeVector>(byPath(asNode(node_), path, false)));
}

XmlDocument::XmlDocument() : state_(std::make_unique<State>()) {}
XmlDocument::~XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;

bool XmlDocument::undeclaredPrefixes(const void* node) {
    return State::of(asNode(node)).undeclaredPrefixes;
}

std::uint64_t XmlDocument::serialOf(const void* node) {
    return State::of(asNode(node)).serial;
}

bool XmlDocument::loadXML(std::string_view bytes) {
    state_ = std::make_unique<State>();
    if (bytes.empty() || bytes.size() > largestAnswer) {
        return false;
    }
    Parsed parsed = parse(bytes);
    if (parsed.doc == nullptr) {
        return false;
    }
    state_->doc = std::move(parsed.doc);
    state_->undeclaredPrefixes = parsed.undeclaredPrefixes;
    state_->doc->_private = state_.get();
    return true;
}

bool XmlDocument::empty() const {
    return state_ == nullptr || state_->doc == nullptr;
}

std::string XmlDocument::xml() const {
    std::string written;
    for (std::size_t i = 0; i < childCount(); ++i) {
        written += child(i).xml();
        written += "\r\n";
    }
    return written;
}

std::size_t XmlDocument::childCount() const {
    if (empty()) {
        return 0;
    }
    // libxml2: -1 says that the text has no declaration at all.
    return state_->doc->standalone == -1 ? 1 : 2;
}

XmlNode XmlDocument::child(std::size_t index) const {
    const std::size_t count = childCount();
    if (index >= count) {
        return {};
    }
    return index + 1 == count ? documentElement() : XmlNode(state_->doc.get());
}

XmlNode XmlDocument::documentElement() const {
    return empty() ? XmlNode() : XmlNode(xmlDocGetRootElement(state_->doc.get()));
}

XmlNode XmlDocument::selectSingleNode(std::string_view path) const {
    return empty() ? XmlNode() : XmlNode(state_->doc.get()).selectSingleNode(path);
}

XmlNodeList XmlDocument::selectNodes(std::string_view path) const {
    return empty() ? XmlNodeList() : XmlNode(state_->doc.get()).selectNodes(path);
}

bool XmlDocument::save(const std::string& fileName) const {
    const SilentXml silent;
    return !empty() && xmlSaveFile(fileName.c_str(), state_->doc.get()) >= 0;
}

}  // namespace tarn
