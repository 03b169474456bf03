// A printer that keeps nothing and watches what it gets.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/spooler.h"

namespace tarn::fuzz {

[[noreturn]] inline void broken(const std::string& what) {
    std::fprintf(stderr, "broken: %s\n", what.c_str());
    std::abort();
}

class CheckingSpooler : public Spooler {
public:
    std::size_t bytes = 0;
    std::size_t jobs = 0;
    std::size_t lineEnds = 0;

    std::string defaultPrinter() override { return "P"; }
    bool openPrinter(const std::string&) override { return step(Closed, Open); }
    bool startDocument(const JobDescription&) override {
        ++jobs;
        return step(Open, Document);
    }
    bool startPage() override { return step(Document, Page); }
    std::size_t write(std::string_view text) override;
    bool endPage() override { return step(Page, PageEnded); }
    bool endDocument() override { return step(PageEnded, DocumentEnded); }
    bool closePrinter() override { return step(DocumentEnded, Closed); }

    bool closed() const { return state_ == Closed; }

    // Loose: opening lets go of the job before, and what closes may close nothing.
    enum class Order { Strict, Loose };
    void setOrder(Order order) { order_ = order; }

private:
    enum State { Closed, Open, Document, Page, PageEnded, DocumentEnded };
    bool step(State from, State to) {
        if (order_ == Order::Loose) {
            if (state_ != from && to != Open) {
                return false;
            }
        } else if (state_ != from) {
            broken("a job's calls are out of order");
        }
        state_ = to;
        return true;
    }
    State state_ = Closed;
    Order order_ = Order::Strict;
};

}  // namespace tarn::fuzz
