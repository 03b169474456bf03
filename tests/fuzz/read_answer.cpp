#include <array>
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
    std::string xml;
    while (!source.empty()) {
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

void checkRows(const XmlNode& node) {
    RowReader reader{rowNames};
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

// Paths search the whole tree: asked of a few nodes alone, or a run costs the tree's square.
struct Budget {
    int nodesAskedForPaths = 4;
    int nodes = 64;
};

void checkNode(const XmlNode& node, int depth, Budget& budget) {
    if (--budget.nodes < 0) {
        return;
    }
    const XmlAttributes attributes = node.attributes();
    for (std::size_t i = 0; i < attributes.length(); ++i) {
        const XmlAttribute attribute = attributes.item(i);
        const XmlAttribute found = attributes.getNamedItem(attribute.name());
        if (!found || found.text() != attribute.text()) {
            broken("an attribute isn't found by its own name");
        }
        if (!attribute.name().ends_with(attribute.baseName())) {
            broken("a base name isn't the end of the name");
        }
    }
    if (attributes.item(attributes.length())) {
        broken("an attribute past the end");
    }
    const std::size_t count = node.childCount();
    for (const std::string_view name : names) {
        for (std::size_t i = 0; i <= count && i < 4; ++i) {
            attempt([&] { PegaValor(node, i, name); });
            attempt([&] { PegaValor(node, i, name, 0); });
        }
    }
    checkRows(node);
    if (--budget.nodesAskedForPaths >= 0) {
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
        checkNode(child, depth + 1, budget);
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
    Budget budget;
    checkNode(root, 0, budget);
    XmlDocument again;
    if (!again.loadXML(document.xml())) {
        broken("an answer written out can't be read");
    }
}

}  // namespace tarn::fuzz
