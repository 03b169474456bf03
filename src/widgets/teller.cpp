#include "widgets/teller.h"

#include <QTime>
#include <algorithm>
#include <ostream>
#include <utility>

#include "platform/clock.h"
#include "runtime/text.h"

namespace tarn {
namespace {

std::string sentence(const PaperAct& act, const PaperOutcome& paper) {
    if (!paper.obstacle.empty()) {
        return act.made + ", mas " + paper.obstacle + ": " + act.remedy;
    }
    if (!paper.asked) {
        return act.made + "; nada foi impresso";
    }
    return act.sent + (paper.printer.empty() ? " à impressora" : " a " + paper.printer);
}

}  // namespace

Teller::Teller(Clock& clock, std::ostream& errors, std::chrono::milliseconds second)
    : clock_(clock), errors_(errors), second_(second) {
    connect(&counting_, &QTimer::timeout, this, &Teller::count);
}

void Teller::done(const std::string& what) {
    paper_ = {};
    tell(what);
}

void Teller::printed(const PaperAct& act) {
    tell(sentence(act, std::exchange(paper_, {})));
}

// What is told holds data of the server.
void Teller::tell(const std::string& what) {
    const TimeOfDay now = clock_.timeOfDay();
    const std::string time =
        QTime(now.hour, now.minute).toString(QStringLiteral("HH:mm ")).toStdString();
    const std::string line = time + blankControls(what);
    told_ = QString::fromStdString(line);
    errors_ << forTerminal(line) << std::endl;
    emit lineChanged(this->line());
}

void Teller::waitBegins(const std::string& forWhat) {
    waitedFor_ = forWhat;
    seconds_ = 0;
    waiting_.start();
    counting_.start(second_);
}

void Teller::waitEnds() {
    counting_.stop();
    waiting_.invalidate();
    if (std::exchange(seconds_, 0) > 0) {
        emit lineChanged(line());
    }
}

void Teller::count() {
    const bool first = seconds_ == 0;
    seconds_ = std::max<qint64>(seconds_ + 1, waiting_.elapsed() / second_.count());
    if (first) {
        errors_ << "Aguardando " << waitedFor_ << std::endl;
    }
    emit lineChanged(line());
}

QString Teller::line() const {
    return seconds_ == 0 ? told_
                         : QStringLiteral("Aguardando %1 há %2 s")
                               .arg(QString::fromStdString(waitedFor_))
                               .arg(seconds_);
}

}  // namespace tarn
