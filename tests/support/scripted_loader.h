// A loader without a network: answers by a script and keeps the addresses.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/http_loader.h"

namespace tarn::test {

class ScriptedLoader : public HttpLoader {
public:
    std::vector<std::string> addresses;  // every address asked for, in order

    // The next answers for addresses that contain `part`, one request each, the last
    // one for all further requests. Of several parts that fit the longest counts.
    ScriptedLoader& on(const std::string& part, const std::string& body) {
        return add(part, {true, body});
    }
    ScriptedLoader& failOn(const std::string& part) { return add(part, {false, ""}); }

    // An address that nothing fits is a failed load.
    HttpAnswer get(const std::string& address) override {
        addresses.push_back(address);
        std::deque<HttpAnswer>* best = nullptr;
        std::size_t bestLength = 0;
        for (auto& [part, queue] : script_) {
            const bool fits = address.find(part) != std::string::npos;
            if (fits && (best == nullptr || part.size() > bestLength)) {
                best = &queue;
                bestLength = part.size();
            }
        }
        if (best == nullptr) {
            return {};
        }
        HttpAnswer answer = best->front();
        if (best->size() > 1) {
            best->pop_front();
        }
        return answer;
    }

    // The addresses from the command key on: what follows the "?".
    std::vector<std::string> queries() const {
        std::vector<std::string> all;
        for (const std::string& address : addresses) {
            const std::size_t mark = address.find('?');
            all.push_back(mark == std::string::npos ? address : address.substr(mark + 1));
        }
        return all;
    }

private:
    ScriptedLoader& add(const std::string& part, HttpAnswer answer) {
        script_[part].push_back(std::move(answer));
        return *this;
    }

    std::map<std::string, std::deque<HttpAnswer>> script_;
};

}  // namespace tarn::test
