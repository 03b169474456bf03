// Passes held jobs on to a queue of the machine, the bytes as they came, each one once: what
// is under way is told on the disk first, and after a crash the queue is asked what became of
// it.
#pragma once

#include <string>

#include "hold/hold_folder.h"
#include "platform/spooler.h"

namespace tarn::hold {

class HandOver {
public:
    // Both must outlive this.
    HandOver(const HoldFolder& folder, Spooler& spooler, std::string queue)
        : folder_(folder), spooler_(spooler), queue_(std::move(queue)) {}

    // Of a job that is held or refused. It is passed on afterwards, or held, or, where the
    // queue can't say whether it has it, still being handed over; the remark says why.
    void pass(Job& job);
    // Of a job that is being handed over and that nobody works at: its state as the queue
    // tells it. True where it is passed on or held afterwards.
    bool settle(Job& job);

private:
    bool send(Job& job);
    bool sendBytes(const Job& job);
    void stay(Job& job, const std::string& why);

    const HoldFolder& folder_;
    Spooler& spooler_;
    std::string queue_;
};

}  // namespace tarn::hold
