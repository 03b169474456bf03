// A desk that works without pause: makes notes and cancels them, maintains orders,
// records cheques and numbers slips, over the network.
#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "platform/http_loader.h"

namespace tarn::practice::test {

constexpr int busyDesks = 10;
constexpr const char* busySeries = "1";

// What all desks together were told that they had done.
struct DoneAtOnce {
    std::mutex mutex;
    std::multiset<std::string> notes;
    std::multiset<std::string> cheques;
    std::map<std::string, std::string> observations;  // the last of each order
    std::map<std::string, std::string> slips;         // the last of each document
    int cancelled = 0;
    int requests = 0;
    int refusals = 0;
    std::vector<std::string> failures;

    // Each number comes up twice, so that two desks write the same cheque.
    std::atomic<std::int64_t> nextCheque = 2000;
};

class BusyDesk {
public:
    // `place` tells the desks apart: of orders and documents that only one desk writes
    // it takes those whose own number leaves this remainder.
    BusyDesk(std::string baseUrl, int place, DoneAtOnce& done);

    void workOnce();
    // A request had no answer: nothing is known of it, and no other is made.
    bool cutOff() const { return cutOff_; }

private:
    XmlDocument ask(const std::string& query);
    bool accepted(const std::string& query);  // false: refused
    bool isOwn(const std::string& number) const;
    std::size_t below(std::size_t count);
    std::vector<std::string> column(const std::string& query, const char* name);
    void makeNote();
    void keepOrCancel(const std::string& note);
    void maintainOrder();
    void recordCheque();
    void numberSlip();

    std::unique_ptr<HttpLoader> loader_;
    std::string baseUrl_;
    int place_;
    DoneAtOnce& done_;
    Sessao clerk_;
    std::mt19937_64 random_;
    int turns_ = 0;
    bool cutOff_ = false;
};

}  // namespace tarn::practice::test
