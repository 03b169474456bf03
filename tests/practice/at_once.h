// Eight desks that make notes of one list at the same moment.
#pragma once

#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "practice/server/practice_server.h"

namespace tarn::practice::test {

struct Outcome {
    std::mutex mutex;
    std::multiset<std::string> notes;  // series and number
    int refused = 0;
};

// The desks share the servers evenly; each goes through the whole list of
// establishment 1361.
void generateAtOnce(const std::vector<PracticeServer*>& servers,
                    const std::vector<std::string>& orders, Outcome& outcome);

// Every order that can be billed became one note, and no number was given twice.
void expectEachOnce(const Outcome& outcome);

}  // namespace tarn::practice::test
