#include <array>
#include <memory>
#include <optional>
#include <string>

#include "gateway/answer.h"
#include "gateway/pega_valor.h"
#include "gateway/row_reader.h"
#include "gateway/xml_document.h"
#include "runtime/runtime_error.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/fuzz/fuzz_entries.h"

namespace tarn::fuzz {

namespace {

using namespace std::string_view_literals;

constexpr std::array tokens{"<?xml version=\"1.0\"?>"sv,
                            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"sv,
                            "<?xml version=\"1.0\" encoding=\"windows-1252\"?>"sv,
                            "<?xml version=\"1.0\" encoding=\"UTF-16\"?>"sv,
                            "<PRINCIPAL A=\"1\" STATUS=\"OK\">"sv,
                            "</PRINCIPAL>"sv,
                            "<PRINCIPAL>"sv,
                            "<ITEM"sv,
                            "/>"sv,
                            ">"sv,
                            "</ITEM>"sv,
                            "<ITEM VL=\"1.5\" Nome=\"x\"/>"sv,
                            "<PARCELA vl=\"2\"/>"sv,
                            "<xml xmlns:rs='urn:x' xmlns:z='#R'>"sv,
                            "</xml>"sv,
                            "<rs:data>"sv,
                            "</rs:data>"sv,
                            "<z:row VL=\"1\" z:VL=\"2\"/>"sv,
                            " VL=\"1.2.3\""sv,
                            " vl='&amp;'"sv,
                            "<!-- c -->"sv,
                            "<![CDATA[d]]>"sv,
                            "<?pi x?>"sv,
                            "<!DOCTYPE a [<!ENTITY e 'x'>]>"sv,
                            "<!DOCTYPE a SYSTEM 'f'>"sv,
                            "&e;"sv,
                            "&#10;"sv,
                            "&#x85;"sv,
                            "\xE9"sv,
                            "\xC3\xA9"sv,
                            "\n  "sv,
                            "text"sv,
                            "\0"sv,
                            "\xEF\xBB\xBF"sv};

constexpr std::array paths{"xml/rs:data"sv, "//ITEM"sv,  "PRINCIPAL"sv, "//PARCELA"sv,     ""sv,
                           "/"sv,           "//"sv,      "a//b"sv,      "rs:data"sv,       ":"sv,
                           "//rs:"sv,       "x/y/z/w"sv, "*"sv,         "PRINCIPAL/ITEM"sv};

constexpr std::array names{"VL"sv, "vl"sv, "Nome"sv, "NOME"sv, "STATUS"sv, ""sv, "z:VL"sv};

std::string assembled(ByteSource& source) {
    constexpr std::size_t mostTokens = 96;  // more of them show nothing that fewer don't
    std::string xml;
    for (std::size_t count = 0; count < mostTokens && !source.empty(); ++count) {
        xml += source.of(tokens);
    }
    return xml;
}

// A read may raise the run-time error and nothing else.
template <typename Read>
void attempt(const Read& read) {
    try {
        read();
    } catch (const RuntimeError&) {
        return;
    }
}

// What a read gives, or nothing when it raises the run-time error.
template <typename Read>
std::optional<std::string> resultOf(const Read& read) {
    try {
        return std::string(read());
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

constexpr std::array rowNames{"VL"sv, "Nome"sv, "STATUS"sv, "a"sv};

// Searching a path takes the whole tree, and a raised error as long as hundreds of reads:
// asked of a few nodes alone, or a run costs the tree's square.
struct Asking {
    RowReader reader{namesOfRows()};
    int nodesInFull = 2;
    int nodes = 32;

    static std::shared_ptr<const RowNames> namesOfRows() {
        static const auto shared = std::make_shared<const RowNames>(rowNames);
        return shared;
    }
};

void checkRows(const XmlNode& node, RowReader& reader) {
    for (std::size_t i = 0; i < node.childCount() && i < 8; ++i) {
        reader.read(node, i);
        for (std::size_t field = 0; field < rowNames.size(); ++field) {
            const std::string_view name = rowNames.at(field);
            if (resultOf([&] { return reader.text(field); }) !=
                    resultOf([&] { return PegaValor(node, i, name); }) ||
                resultOf([&] { return reader.number(field); }) !=
                    resultOf([&] { return PegaValor(node, i, name, 0); })) {
                broken("the reading of rows and that of one attribute differ");
            }
        }
    }
}

void checkPaths(const XmlNode& node) {
    for (const std::string_view path : paths) {
        const XmlNodeList all = node.selectNodes(path);
        if (static_cast<bool>(node.selectSingleNode(path)) != (all.length() > 0)) {
            broken("one node and all nodes of a path differ");
        }
        if (all.item(all.length())) {
            broken("a node past the end of a list");
        }
    }
}

void checkAttributes(const XmlAttributes& attributes) {
    const std::size_t count = attributes.length();
    for (std::size_t i = 0; i < count; ++i) {
        const XmlAttribute attribute = attributes.item(i);
        const XmlAttribute found = attributes.getNamedItem(attribute.name());
        if (!found || found.text() != attribute.text()) {
            broken("an attribute isn't found by its own name");
        }
        if (!attribute.name().ends_with(attribute.baseName())) {
            broken("a base name isn't the end of the name");
        }
    }
    if (attributes.item(count)) {
        broken("an attribute past the end");
    }
}

void checkValues(const XmlNode& node, std::size_t children) {
    for (const std::string_view name : names) {
        for (std::size_t i = 0; i < children && i < 3; ++i) {
            attempt([&] { PegaValor(node, i, name); });
            attempt([&] { PegaValor(node, i, name, 0); });
        }
    }
}

void checkPastTheEnd(const XmlNode& node, std::size_t children) {
    for (const std::string_view name : names) {
        if (resultOf([&] { return PegaValor(node, children, name); }) ||
            resultOf([&] { return PegaValor(node, children, name, 0); })) {
            broken("a value past the last child");
        }
    }
}

void checkNode(const XmlNode& node, int depth, Asking& asking) {
    if (--asking.nodes < 0) {
        return;
    }
    checkAttributes(node.attributes());
    const std::size_t count = node.childCount();
    checkValues(node, count);
    checkRows(node, asking.reader);
    if (--asking.nodesInFull >= 0) {
        checkPastTheEnd(node, count);
        checkPaths(node);
    }
    if (node.childNodes().length() != count || node.child(count)) {
        broken("children counted in two ways differ");
    }
    for (std::size_t i = 0; i < count && depth < 6; ++i) {
        const XmlNode child = node.child(i);
        if (!child) {
            broken("a counted child is missing");
        }
        checkNode(child, depth + 1, asking);
    }
}

}  // namespace

void readAnswer(std::span<const std::uint8_t> bytes) {
    ByteSource source(bytes);
    const bool raw = source.oneIn(2);
    const std::string path = raw ? std::string() : std::string(source.of(paths));
    const std::string answer = raw ? std::string(source.rest()) : assembled(source);
    XmlDocument document;
    const bool loaded = document.loadXML(answer);
    if (loaded == document.empty()) {
        broken("a load's result and its document differ");
    }
    attempt([&] { statusOf(document); });
    document.selectNodes(path);
    if (!loaded) {
        if (document.documentElement() || !document.xml().empty() || document.childCount() != 0) {
            broken("something is left of a failed load");
        }
        return;
    }
    const XmlNode root = document.documentElement();
    if (!root) {
        broken("a loaded answer without a root");
    }
    Asking asking;
    checkNode(root, 0, asking);
    XmlDocument again;
    if (!again.loadXML(document.xml())) {
        broken("an answer written out can't be read");
    }
}

}  // namespace tarn::fuzz
