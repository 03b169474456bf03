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
    ScriptedLoader();
    ~ScriptedLoader() override;

    std::vector<std::string> addresses;  // every address asked for, in order

    // The next answers for addresses that contain `part`, one request each, the last
    // one for all further requests. Of several parts that fit the longest counts.
    ScriptedLoader& on(const std::string& part, const std::string& body);
    ScriptedLoader& failOn(const std::string& part) { return add(part, {false, ""}); }

    // An address that nothing fits is a failed load.
    HttpAnswer get(const std::string& address) override;

    // The addresses from the command key on: what follows the "?".
    std::vector<std::string> queries() const;

private:
    ScriptedLoader& add(const std::string& part, HttpAnswer answer);

    std::map<std::string, std::deque<HttpAnswer>> script_;
};

}  // namespace tarn::test
