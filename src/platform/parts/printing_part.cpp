#include "platform/parts/printing_part.h"

#include <utility>

#ifndef TARN_ONE_PIECE
#include "platform/parts/part.h"
#endif

namespace tarn {
namespace {

#ifdef TARN_ONE_PIECE
struct PrintingPart {
    static Spooler* newSpooler() { return tarnNewSystemSpooler(); }
    static Printer* newPrinter(std::shared_ptr<JobFiles>* files) {
        return tarnNewPagePrinter(files);
    }
};
#else
class PrintingPart {
public:
    Spooler* newSpooler() const {
        return reinterpret_cast<decltype(&tarnNewSystemSpooler)>(
            part_.function("tarnNewSystemSpooler"))();
    }
    Printer* newPrinter(std::shared_ptr<JobFiles>* files) const {
        return reinterpret_cast<decltype(&tarnNewPagePrinter)>(
            part_.function("tarnNewPagePrinter"))(files);
    }

private:
    Part part_{fileOfPart("tarn_printing")};
};
#endif

class LateSpooler : public Spooler {
public:
    std::string defaultPrinter() override { return real().defaultPrinter(); }
    bool openPrinter(const std::string& name) override { return real().openPrinter(name); }
    bool startDocument(const JobDescription& job) override { return real().startDocument(job); }
    bool startPage() override { return real().startPage(); }
    std::size_t write(std::string_view bytes) override { return real().write(bytes); }
    bool endPage() override { return real().endPage(); }
    bool endDocument() override { return real().endDocument(); }
    bool closePrinter() override { return real().closePrinter(); }
    int documentNumber() const override { return real_ ? real_->documentNumber() : 0; }
    JobFate fateOf(int documentNumber) override { return real().fateOf(documentNumber); }
    bool answers() const override { return !real_ || real_->answers(); }

private:
    Spooler& real() {
        if (!real_) {
            real_.reset(part_.newSpooler());
        }
        return *real_;
    }

    PrintingPart part_;
    std::unique_ptr<Spooler> real_;
};

class LatePrinter : public Printer {
public:
    explicit LatePrinter(std::shared_ptr<JobFiles> files) : files_(std::move(files)) {}

    std::string name() override { return real().name(); }
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override {
        real().progress = progress;
        return real().perform(operation);
    }

private:
    Printer& real() {
        if (!real_) {
            real_.reset(part_.newPrinter(&files_));
        }
        return *real_;
    }

    PrintingPart part_;
    std::shared_ptr<JobFiles> files_;
    std::unique_ptr<Printer> real_;
};

}  // namespace

std::unique_ptr<Spooler> newLateSpooler() {
#if defined(TARN_WITH_WINSPOOL) || defined(TARN_WITH_CUPS)
    return std::make_unique<LateSpooler>();
#else
    return nullptr;
#endif
}

std::unique_ptr<Printer> newLatePrinter(std::shared_ptr<JobFiles> files) {
    return std::make_unique<LatePrinter>(std::move(files));
}

}  // namespace tarn
