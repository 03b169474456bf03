// Tells the clerk what was done last, what the program waits for and what is known to have
// failed: one line for the status bar, and each also for the error output. Decision D123.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <iosfwd>
#include <string>

#include "platform/act_log.h"

namespace tarn {

class Clock;

class Teller : public QObject, public ActLog {
    Q_OBJECT

public:
    // `second` is how often the count of a wait moves on, and how long a wait is not
    // worth a word.
    Teller(Clock& clock, std::ostream& errors,
           std::chrono::milliseconds second = std::chrono::seconds(1));

    void done(const std::string& what) override;
    void printed(const PaperAct& act) override;

    // To be noted by those who print.
    PaperOutcome& paper() { return paper_; }

    // `forWhat` with its article, Portuguese: "o servidor".
    void waitBegins(const std::string& forWhat);
    void waitEnds();

    QString line() const;

signals:
    void lineChanged(const QString& line);

private:
    void tell(const std::string& what);
    void count();

    Clock& clock_;
    std::ostream& errors_;
    std::chrono::milliseconds second_;
    PaperOutcome paper_;
    QString told_;
    QTimer counting_;
    QElapsedTimer waiting_;  // invalid: nothing is waited for
    std::string waitedFor_;
    qint64 seconds_ = 0;
};

// Something, waited for while this lives.
class Waiting {
public:
    Waiting(Teller& teller, const std::string& forWhat) : teller_(teller) {
        teller_.waitBegins(forWhat);
    }
    ~Waiting() { teller_.waitEnds(); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    Teller& teller_;
};

}  // namespace tarn
