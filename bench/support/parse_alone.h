// The peer of everything that reads an answer: libxml2 parsing the same bytes into a
// tree, and no more.
#pragma once

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include <memory>
#include <string>

namespace tarn::bench {

inline void parseAlone(const std::string& xml) {
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr, nullptr, options),
        xmlFreeDoc);
    benchmark::DoNotOptimize(document.get());
}

}  // namespace tarn::bench
