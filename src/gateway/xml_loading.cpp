#include <libxml/SAX2.h>
#include <libxml/parser.h>

#include <new>

#include "gateway/answer_limits.h"
#include "gateway/silent_xml.h"
#include "gateway/windows_1252.h"
#include "gateway/xml_tree.h"

namespace tarn {
namespace {

const xmlChar* declaredEncoding(const xmlParserCtxt& parser) {
#if LIBXML_VERSION >= 21400
    return xmlCtxtGetDeclaredEncoding(const_cast<xmlParserCtxt*>(&parser));
#else
    return parser.encoding != nullptr ? parser.encoding : parser.input->encoding;
#endif
}

// The parser's own list of an element's attributes, five pointers each: name, prefix, what
// the prefix stands for, begin and end of the value.
class GivenAttributes {
public:
    GivenAttributes(const xmlChar** first, int count)
        : first_(first), count_(static_cast<std::size_t>(count)) {}
    std::size_t count() const { return count_; }
    const xmlChar* name(std::size_t i) const { return first_[5 * i]; }
    const xmlChar* prefix(std::size_t i) const { return first_[5 * i + 1]; }
    bool isDeclared(std::size_t i) const { return first_[5 * i + 2] != nullptr; }
    std::string_view value(std::size_t i) const {
        const xmlChar* begin = first_[5 * i + 3];
        return {reinterpret_cast<const char*>(begin),
                static_cast<std::size_t>(first_[5 * i + 4] - begin)};
    }

private:
    const xmlChar** first_;
    std::size_t count_;
};

// An answer on its way into its tree.
class Loading {
public:
    explicit Loading(std::string_view bytes) : bytes_(bytes), rest_(bytes) {
        if (parser_ == nullptr) {
            throw std::bad_alloc();
        }
        parser_->_private = this;
        xmlSAXHandler& sax = *parser_->sax;
        sax.internalSubset = [](void* parser, const xmlChar*, const xmlChar*, const xmlChar*) {
            of(parser).refuse();
        };
        sax.startDocument = [](void* parser) { of(parser).begin(); };
        sax.startElementNs = takeElement;
        sax.comment = [](void* parser, const xmlChar* text) {
            if (of(parser).takesNode()) {
                xmlSAX2Comment(parser, text);
            }
        };
        sax.processingInstruction = [](void* parser, const xmlChar* target, const xmlChar* text) {
            if (of(parser).takesNode()) {
                xmlSAX2ProcessingInstruction(parser, target, text);
            }
        };
        sax.cdataBlock = [](void* parser, const xmlChar* text, int length) {
            if (of(parser).takesNode()) {
                xmlSAX2CDataBlock(parser, text, length);
            }
        };
    }

    std::unique_ptr<XmlTree> tree() {
        constexpr int options =
            XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
        tree_->doc.reset(
            xmlCtxtReadIO(parser_.get(), readPiece, nullptr, this, nullptr, nullptr, options));
        const bool sound = !refused_ && parser_->wellFormed != 0 && tree_->doc != nullptr &&
                           xmlDocGetRootElement(tree_->doc.get()) != nullptr;
        return sound ? std::move(tree_) : nullptr;
    }

private:
    static Loading& of(void* parser) {
        return *static_cast<Loading*>(static_cast<xmlParserCtxt*>(parser)->_private);
    }

    // Hands out the text piece by piece: of one that it holds whole the parser refuses
    // some that are larger than 10 MB. Behind an error it would read on.
    static int readPiece(void* context, char* buffer, int length) {
        auto& loading = *static_cast<Loading*>(context);
        if (loading.refused_ || loading.parser_->wellFormed == 0) {
            return 0;
        }
        std::string_view& rest = loading.rest_;
        const std::size_t count = rest.copy(buffer, static_cast<std::size_t>(length));
        rest.remove_prefix(count);
        return static_cast<int>(count);
    }

    static void takeElement(void* parser, const xmlChar* name, const xmlChar* prefix,
                            const xmlChar* uri, int prefixCount, const xmlChar** prefixes,
                            int attributeCount, int, const xmlChar** attributes) {
        Loading& loading = of(parser);
        const GivenAttributes given(attributes, attributeCount);
        loading.attributes_ += given.count();
        loading.prefixes_ += static_cast<std::size_t>(prefixCount);
        if (!loading.takesNode()) {
            return;
        }
        const xmlNode* before = loading.parser_->node;
        xmlSAX2StartElementNs(parser, name, prefix, uri, prefixCount, prefixes, 0, 0, nullptr);
        xmlNode* element = loading.parser_->node;
        if (given.count() > 0 && element != before) {
            loading.attach(*element, given);
        }
    }

    void refuse() {
        refused_ = true;
        xmlStopParser(parser_.get());
    }

    void begin() {
        xmlSAX2StartDocument(parser_.get());
        if (!mayBeIn(viewOf(declaredEncoding(*parser_)), bytes_)) {
            refuse();
        }
    }

    bool takesNode() {
        const bool takes = !refused_ && ++nodes_ <= mostNodes && attributes_ <= mostAttributes &&
                           prefixes_ <= mostPrefixes &&
                           xmlDictSize(parser_->dict) <= static_cast<int>(mostNames);
        if (!takes) {
            refuse();
        }
        return takes;
    }

    // Nothing may be thrown through the parser.
    void attach(xmlNode& element, const GivenAttributes& given) noexcept {
        try {
            auto* data = static_cast<XmlAttributeData*>(tree_->attributes.allocate(
                (given.count() + 1) * sizeof(XmlAttributeData), alignof(XmlAttributeData)));
            auto* place = data;
            for (std::size_t i = 0; i < given.count(); ++i) {
                new (place++) XmlAttributeData(dataOf(given, i));
            }
            new (place) XmlAttributeData;
            element.psvi = data;
        } catch (const std::bad_alloc&) {
            refuse();
        }
    }

    XmlAttributeData dataOf(const GivenAttributes& given, std::size_t i) {
        XmlAttributeData data{.name = given.name(i), .written = given.name(i)};
        if (given.prefix(i) != nullptr) {
            data.written = xmlDictQLookup(parser_->dict, given.prefix(i), given.name(i));
            data.name = given.isDeclared(i) ? data.name : data.written;
        }
        keep(given.value(i), data);
        return data;
    }

    // The only reference that the parser leaves in a value is that to "&".
    void keep(std::string_view value, XmlAttributeData& data) {
        constexpr std::string_view ampersand = "&#38;";
        char* text = static_cast<char*>(tree_->attributes.allocate(value.size() + 1, 1));
        data.text = text;
        for (std::size_t i = 0; i < value.size(); ++i) {
            *text++ = value[i];
            if (value[i] == '&' && value.substr(i).starts_with(ampersand)) {
                i += ampersand.size() - 1;
            }
        }
        *text = '\0';
        data.length = static_cast<std::size_t>(text - data.text);
    }

    std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt*)> parser_{xmlNewParserCtxt(),
                                                                     xmlFreeParserCtxt};
    std::string_view bytes_;
    std::string_view rest_;
    std::unique_ptr<XmlTree> tree_ = std::make_unique<XmlTree>();
    bool refused_ = false;
    std::size_t nodes_ = 0;
    std::size_t attributes_ = 0;
    std::size_t prefixes_ = 0;
};

}  // namespace

std::unique_ptr<XmlTree> parseXml(std::string_view bytes) {
    const SilentXml silent;
    teachWindows1252();
    if (hasCrowdedElement(bytes)) {
        return nullptr;
    }
    std::unique_ptr<XmlTree> tree = Loading(bytes).tree();
    if (tree != nullptr) {
        if (tree->doc->encoding == nullptr) {  // so that it writes its letters as such
            tree->doc->encoding = xmlStrdup(BAD_CAST "UTF-8");
        }
        tree->doc->_private = tree.get();
    }
    return tree;
}

}  // namespace tarn
