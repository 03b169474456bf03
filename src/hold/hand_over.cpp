#include "hold/hand_over.h"

#include <fstream>

namespace tarn::hold {

namespace {

constexpr std::size_t pieceBytes = std::size_t{64} * 1024;
constexpr int withoutNumber = -1;  // of a queue that numbers no jobs

// As the queue's list shows it.
JobDescription describe(const Job& job) {
    return {.docName = "tarnimpressora " + std::to_string(job.number) +
                       (job.name.empty() ? "" : " " + job.name),
            .outputFile = std::nullopt,
            .dataType = "RAW"};
}

}  // namespace

void HandOver::stay(Job& job, const std::string& why) {
    job.remark = why;
    folder_.move(job, State::Held);
}

void HandOver::pass(Job& job) {
    job.remark.clear();
    if (!folder_.move(job, State::HandingOver)) {
        job.remark = "o disco não aceita gravação na pasta dos retidos";
        return;
    }
    if (!spooler_.openPrinter(queue_)) {
        return stay(job, spooler_.answers() ? "não há fila \"" + queue_ + "\" nesta máquina"
                                            : std::string(spoolerIsSilent));
    }
    if (!spooler_.startDocument(describe(job))) {
        spooler_.closePrinter();
        return stay(job, spooler_.answers() ? "a fila \"" + queue_ + "\" não aceitou o trabalho"
                                            : std::string(spoolerIsSilent));
    }
    // From the first byte on the queue may have it.
    const int number = spooler_.documentNumber();
    if (!folder_.tellQueueJob(job, queue_, number == 0 ? withoutNumber : number)) {
        spooler_.closePrinter();
        return stay(job, "o disco não aceita gravação na pasta dos retidos");
    }
    if (send(job)) {
        folder_.move(job, State::PassedOn);
    } else if (settle(job); job.state == State::Held) {
        job.remark = "a fila \"" + queue_ + "\" interrompeu o trabalho";
    }
}

bool HandOver::send(Job& job) {
    const bool sent =
        spooler_.startPage() && sendBytes(job) && spooler_.endPage() && spooler_.endDocument();
    spooler_.closePrinter();
    return sent;
}

bool HandOver::sendBytes(const Job& job) {
    std::ifstream in(folder_.bytesOf(job), std::ios::binary);
    std::string piece(pieceBytes, '\0');
    std::uintmax_t sent = 0;
    while (in.read(piece.data(), static_cast<std::streamsize>(piece.size())) || in.gcount() > 0) {
        const std::string_view bytes(piece.data(), static_cast<std::size_t>(in.gcount()));
        if (spooler_.write(bytes) != bytes.size()) {
            return false;
        }
        sent += bytes.size();
    }
    return sent == job.size;
}

bool HandOver::settle(Job& job) {
    JobFate fate = JobFate::NeverArrived;
    if (job.queueJob == withoutNumber) {
        fate = JobFate::Doubtful;
    } else if (job.queueJob != 0) {
        fate = spooler_.openPrinter(job.queue) ? spooler_.fateOf(job.queueJob) : JobFate::Unknown;
        spooler_.closePrinter();
    }
    switch (fate) {
        case JobFate::Arrived:
            job.remark.clear();
            return folder_.move(job, State::PassedOn);
        case JobFate::NeverArrived:
            job.remark.clear();
            return folder_.move(job, State::Held);
        case JobFate::Doubtful:
            job.remark = "a fila não sabe dizer se imprimiu: confira o papel";
            return false;
        case JobFate::Unknown:
            job.remark = std::string(spoolerIsSilent);
            return false;
    }
    return false;
}

}  // namespace tarn::hold
