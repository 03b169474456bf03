// A spooler whose jobs go nowhere, for a run that only looks at what a document does.
#pragma once

#include "platform/spooler.h"

namespace tarn {

class NoPaper : public Spooler {
public:
    std::string defaultPrinter() override { return "nenhuma"; }
    bool openPrinter(const std::string& /*name*/) override { return true; }
    bool startDocument(const JobDescription& /*job*/) override { return true; }
    bool startPage() override { return true; }
    std::size_t write(std::string_view bytes) override { return bytes.size(); }
    bool endPage() override { return true; }
    bool endDocument() override { return true; }
    bool closePrinter() override { return true; }
};

}  // namespace tarn
