#include "gateway/xml_document.h"

#include "gateway/xml_tree.h"
#include "platform/http_loader.h"

namespace tarn {

XmlDocument::XmlDocument() = default;
XmlDocument::~XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;

bool XmlDocument::loadXML(std::string_view bytes) {
    tree_.reset();
    if (!bytes.empty() && bytes.size() <= largestAnswer) {
        tree_ = parseXml(bytes);
    }
    return !empty();
}

// The document's own node, which stands for the declaration too: libxml2's tree has none.
XmlNode XmlDocument::top() const {
    return XmlNode(reinterpret_cast<const xmlNode*>(tree_->doc.get()));
}

std::string XmlDocument::xml() const {
    std::string all;
    for (std::size_t i = 0; i < childCount(); ++i) {
        all += child(i).xml();
        all += "\r\n";
    }
    return all;
}

std::size_t XmlDocument::childCount() const {
    if (empty()) {
        return 0;
    }
    // libxml2: -1 says that the text has no declaration at all.
    return tree_->doc->standalone == -1 ? 1 : 2;
}

XmlNode XmlDocument::child(std::size_t index) const {
    const std::size_t count = childCount();
    if (index >= count) {
        return {};
    }
    return index + 1 == count ? documentElement() : top();
}

XmlNode XmlDocument::documentElement() const {
    return empty() ? XmlNode() : XmlNode(xmlDocGetRootElement(tree_->doc.get()));
}

XmlNode XmlDocument::selectSingleNode(std::string_view path) const {
    return empty() ? XmlNode() : top().selectSingleNode(path);
}

XmlNodeList XmlDocument::selectNodes(std::string_view path) const {
    return empty() ? XmlNodeList() : top().selectNodes(path);
}

bool XmlDocument::save(const std::string& fileName) const {
    return !empty() && saveXml(*tree_->doc, fileName);
}

}  // namespace tarn
