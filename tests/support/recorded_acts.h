// What was told to have been done, as lines; of paper "sent | made | remedy".
#pragma once

#include <string>
#include <vector>

#include "platform/act_log.h"

namespace tarn::test {

class RecordedActs : public ActLog {
public:
    std::vector<std::string> told;

    void done(const std::string& what) override { told.push_back(what); }
    void printed(const PaperAct& act) override {
        told.push_back(act.sent + " | " + act.made + " | " + act.remedy);
    }
};

}  // namespace tarn::test
