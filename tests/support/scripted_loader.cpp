#include "tests/support/scripted_loader.h"

#include <utility>

namespace tarn::test {

ScriptedLoader::ScriptedLoader() = default;
ScriptedLoader::~ScriptedLoader() = default;

ScriptedLoader& ScriptedLoader::on(const std::string& part, const std::string& body) {
    return add(part, {true, body});
}

HttpAnswer ScriptedLoader::get(const std::string& address) {
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

std::vector<std::string> ScriptedLoader::queries() const {
    std::vector<std::string> all;
    for (const std::string& address : addresses) {
        const std::size_t mark = address.find('?');
        all.push_back(mark == std::string::npos ? address : address.substr(mark + 1));
    }
    return all;
}

ScriptedLoader& ScriptedLoader::add(const std::string& part, HttpAnswer answer) {
    script_[part].push_back(std::move(answer));
    return *this;
}

}  // namespace tarn::test
