#include "practice/commands/answer_writer.h"

#include <libxml/xmlwriter.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "gateway/windows_1252.h"

namespace tarn::practice {
namespace {

const xmlChar* xmlText(const std::string& text) {
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

void require(int result) {
    if (result < 0) {
        throw std::runtime_error("Não foi possível montar a resposta em XML.");
    }
}

bool isForbidden(char c) {
    return static_cast<unsigned char>(c) < 32 && c != '\n' && c != '\r' && c != '\t';
}

void writeElement(xmlTextWriter* writer, const Element& element) {
    require(xmlTextWriterStartElement(writer, xmlText(element.name)));
    for (const auto& [name, value] : element.attributes) {
        std::string text = value;
        std::replace_if(text.begin(), text.end(), isForbidden, ' ');
        require(xmlTextWriterWriteAttribute(writer, xmlText(name), xmlText(text)));
    }
    for (const Element& child : element.children) {
        writeElement(writer, child);
    }
    require(xmlTextWriterEndElement(writer));
}

// libxml2's own has its converter's spelling, which is another one where a client in the same
// program has taught it the page.
std::string declarationOf(Encoding encoding) {
    std::string_view name = "windows-1252";
    if (encoding != Encoding::Windows1252) {
        name = encoding == Encoding::Utf8 ? "UTF-8" : "ISO-8859-1";
    }
    return "<?xml version=\"1.0\" encoding=\"" + std::string(name) + "\"?>\n";
}

}  // namespace

std::optional<Encoding> encodingByName(std::string_view name) {
    for (const Encoding encoding : {Encoding::Windows1252, Encoding::Iso8859, Encoding::Utf8}) {
        if (name == encodingName(encoding)) {
            return encoding;
        }
    }
    return std::nullopt;
}

std::string_view encodingName(Encoding encoding) {
    switch (encoding) {
        case Encoding::Iso8859:
            return "iso-8859-1";
        case Encoding::Utf8:
            return "utf-8";
        case Encoding::Windows1252:
            break;
    }
    return "windows-1252";
}

std::string writeAnswer(const Element& root, Encoding encoding) {
    const std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(xmlBufferCreate(),
                                                                      &xmlBufferFree);
    const std::unique_ptr<xmlTextWriter, decltype(&xmlFreeTextWriter)> writer(
        xmlNewTextWriterMemory(buffer.get(), 0), &xmlFreeTextWriter);
    if (!buffer || !writer) {
        throw std::bad_alloc();
    }
    teachWindows1252();
    const std::string name(encodingName(encoding));
    require(xmlTextWriterStartDocument(writer.get(), nullptr, name.c_str(), nullptr));
    writeElement(writer.get(), root);
    require(xmlTextWriterEndDocument(writer.get()));
    require(xmlTextWriterFlush(writer.get()));
    const std::string_view document(reinterpret_cast<const char*>(xmlBufferContent(buffer.get())),
                                    static_cast<std::size_t>(xmlBufferLength(buffer.get())));
    return declarationOf(encoding).append(document.substr(document.find('\n') + 1));
}

}  // namespace tarn::practice
