// How fast a user types, and how late the answers come meanwhile.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace tarn::test {

struct Pace {
    int answer;  // milliseconds, as the next
    int key;
};

inline void PrintTo(const Pace& pace, std::ostream* out) {
    *out << "answers after " << pace.answer << " ms, a key each " << pace.key << " ms";
}

inline std::vector<Pace> paces() {
    std::vector<Pace> all;
    for (const int answer : {50, 150, 300, 2000}) {
        for (const int key : {60, 90, 120, 150}) {
            all.push_back({answer, key});
        }
    }
    return all;
}

inline std::string paceName(const testing::TestParamInfo<Pace>& each) {
    return "AnswerAfter" + std::to_string(each.param.answer) + "KeyEach" +
           std::to_string(each.param.key);
}

}  // namespace tarn::test
