#include "gateway/xml_tree.h"

#include <libxml/xmlsave.h>

#include "gateway/silent_xml.h"

namespace tarn {
namespace {

void onEachElement(xmlNode& node, void (*work)(xmlNode&)) {
    if (isElement(node)) {
        work(node);
    } else if (node.type != XML_DOCUMENT_NODE) {
        return;
    }
    for (xmlNode* child = node.children; child != nullptr; child = child->next) {
        onEachElement(*child, work);
    }
}

void lendAttributes(xmlNode& element) {
    const XmlAttributeData* data = XmlTree::attributesOf(element);
    for (; data != nullptr && data->name != nullptr; ++data) {
        const std::string_view written = viewOf(data->written);
        const std::string prefix(written, 0, data->written == data->name ? 0 : written.find(':'));
        xmlNs* ns =
            prefix.empty() ? nullptr : xmlSearchNs(element.doc, &element, BAD_CAST prefix.c_str());
        xmlNewNsProp(&element, ns, data->name, BAD_CAST data->text);
    }
}

void takeBackAttributes(xmlNode& element) {
    xmlFreePropList(element.properties);
    element.properties = nullptr;
}

// Attributes of libxml2's own, as long as it writes this element or document.
class LentAttributes {
public:
    explicit LentAttributes(xmlNode& top) : top_(top) { onEachElement(top_, lendAttributes); }
    ~LentAttributes() { onEachElement(top_, takeBackAttributes); }
    LentAttributes(const LentAttributes&) = delete;
    LentAttributes& operator=(const LentAttributes&) = delete;

private:
    xmlNode& top_;
};

}  // namespace

const XmlNodeList::Nodes& XmlTree::childrenOf(const xmlNode& element) {
    if (element._private != nullptr) {
        return *static_cast<const XmlNodeList::Nodes*>(element._private);
    }
    auto nodes = std::make_shared<std::vector<const xmlNode*>>();
    for (const xmlNode* child = element.children; child != nullptr; child = child->next) {
        if (isElement(*child)) {
            nodes->push_back(child);
        }
    }
    children.push_back(std::move(nodes));
    const_cast<xmlNode&>(element)._private = &children.back();
    return children.back();
}

std::string written(xmlNode& node) {
    const SilentXml silent;
    const LentAttributes attributes(node);
    const std::unique_ptr<xmlBuffer, void (*)(xmlBuffer*)> buffer(xmlBufferCreate(), xmlBufferFree);
    xmlSaveCtxt* writer = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL);
    xmlSaveTree(writer, &node);
    xmlSaveClose(writer);
    return std::string(viewOf(xmlBufferContent(buffer.get())));
}

bool saveXml(xmlDoc& doc, const std::string& fileName) {
    const SilentXml silent;
    const LentAttributes attributes(reinterpret_cast<xmlNode&>(doc));
    return xmlSaveFile(fileName.c_str(), &doc) >= 0;
}

}  // namespace tarn
