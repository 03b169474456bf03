#include "gateway/xml_tree.h"

#include <libxml/parser.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlsave.h>

namespace tarn {
namespace {

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

// Hands out the text piece by piece: of one that it holds whole the parser refuses
// some that are larger than 10 MB.
int readPiece(void* context, char* buffer, int length) {
    auto& rest = *static_cast<std::string_view*>(context);
    const std::size_t count = rest.copy(buffer, static_cast<std::size_t>(length));
    rest.remove_prefix(count);
    return static_cast<int>(count);
}

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

std::unique_ptr<XmlTree> parseXml(std::string_view bytes) {
    const SilentXml silent;
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt*)> parser(xmlNewParserCtxt(),
                                                                          xmlFreeParserCtxt);
    if (parser == nullptr) {
        return nullptr;
    }
    bool doctypeMet = false;
    parser->_private = &doctypeMet;
    parser->sax->internalSubset = refuseDoctype;
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    auto tree = std::make_unique<XmlTree>();
    tree->doc.reset(
        xmlCtxtReadIO(parser.get(), readPiece, nullptr, &bytes, nullptr, nullptr, options));
    if (doctypeMet || parser->wellFormed == 0 || tree->doc == nullptr ||
        xmlDocGetRootElement(tree->doc.get()) == nullptr) {
        return nullptr;
    }
    if (tree->doc->encoding == nullptr) {  // so that it writes its letters as such
        tree->doc->encoding = xmlStrdup(BAD_CAST "UTF-8");
    }
    tree->doc->_private = tree.get();
    return tree;
}

std::string written(xmlNode& node) {
    const SilentXml silent;
    const std::unique_ptr<xmlBuffer, void (*)(xmlBuffer*)> buffer(xmlBufferCreate(), xmlBufferFree);
    xmlSaveCtxt* writer = xmlSaveToBuffer(buffer.get(), "UTF-8", XML_SAVE_NO_DECL);
    xmlSaveTree(writer, &node);
    xmlSaveClose(writer);
    return std::string(viewOf(xmlBufferContent(buffer.get())));
}

bool saveXml(xmlDoc& doc, const std::string& fileName) {
    const SilentXml silent;
    return xmlSaveFile(fileName.c_str(), &doc) >= 0;
}

}  // namespace tarn
