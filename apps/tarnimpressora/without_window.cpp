#include "apps/tarnimpressora/without_window.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>

#include "apps/tarnimpressora/files.h"
#include "apps/tarnimpressora/reception.h"

namespace tarn::printer {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds untilQuiet(100);
constexpr milliseconds longestQuietAwaited(300);
constexpr int shareOfWriting = 5;  // a fifth of the time at the most

// Writes the files when jobs have ended and no other follows at once. The whole paper is
// written each time, so a long paper is written less often: jobs go before it.
class PaperWriting : public QObject {
public:
    PaperWriting(const Options& options, const dotmatrix::PaintOptions& looks,
                 dotmatrix::PaperRoll& roll, dotmatrix::JobIntake& intake, std::size_t notices)
        : options_(options), looks_(looks), roll_(roll), intake_(intake), notices_(notices) {
        quiet_.setSingleShot(true);
        connect(&quiet_, &QTimer::timeout, this, &PaperWriting::writeWhenQuiet);
        connect(&intake_, &dotmatrix::JobIntake::jobEnded, this, &PaperWriting::note);
        sinceWritten_.start();
    }

private:
    bool enough() const { return options_.endAfter > 0 && intake_.ended() >= options_.endAfter; }

    void note(const QString& name, const QString& remark) {
        if (!remark.isEmpty()) {
            complain(name + QStringLiteral(": ") + remark);
        }
        if (!waiting_) {
            waiting_ = true;
            sinceFirst_.start();
        }
        // Jobs without a pause would keep it from ever being written. A job has just ended:
        // the paper shows none by half.
        if (milliseconds(sinceFirst_.elapsed()) >= longestQuietAwaited && hasRested()) {
            return write();
        }
        quiet_.start(untilQuiet);
    }

    bool hasRested() const {
        return milliseconds(sinceWritten_.elapsed()) >= (shareOfWriting - 1) * lastTook_;
    }

    void writeWhenQuiet() {
        if (intake_.busy() || !(enough() || hasRested())) {
            return quiet_.start(untilQuiet);
        }
        write();
    }

    void write() {
        quiet_.stop();
        waiting_ = false;
        notices_ = showNotices(roll_.notices(), notices_);
        QElapsedTimer writing;
        writing.start();
        const bool written = writeFiles(options_, looks_, roll_);
        lastTook_ = milliseconds(writing.elapsed());
        sinceWritten_.start();
        if (!written) {
            QCoreApplication::exit(1);
        } else if (enough()) {
            QCoreApplication::quit();
        }
    }

    const Options& options_;
    const dotmatrix::PaintOptions& looks_;
    dotmatrix::PaperRoll& roll_;
    dotmatrix::JobIntake& intake_;
    std::size_t notices_;
    QTimer quiet_;
    QElapsedTimer sinceFirst_;  // job that isn't written yet
    QElapsedTimer sinceWritten_;
    bool waiting_ = false;
    milliseconds lastTook_{0};
};

int wait(const Options& options, const dotmatrix::PaintOptions& looks, dotmatrix::PaperRoll& roll,
         std::size_t notices) {
    dotmatrix::JobIntake intake(roll);
    Reception reception(intake);
    if (const QString wrong = reception.open(options); !wrong.isEmpty()) {
        complain(wrong);
        return 1;
    }
    const PaperWriting writing(options, looks, roll, intake, notices);
    std::puts(reception.places().toUtf8().constData());
    std::fflush(stdout);
    return QGuiApplication::exec();
}

}  // namespace

int runWithoutWindow(int argc, char** argv, const Options& options,
                     const dotmatrix::PaintOptions& looks) {
    // Files need fonts, not a display, and what the toolkit misses of one is no matter.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QGuiApplication application(argc, argv);
    dotmatrix::PaperRoll roll(options.dialect);
    if (!printFiles(options, roll)) {
        return 1;
    }
    const std::size_t notices = showNotices(roll.notices(), 0);
    if (!options.jobs.empty() && !writeFiles(options, looks, roll)) {
        return 1;
    }
    return options.waits() ? wait(options, looks, roll, notices) : 0;
}

}  // namespace tarn::printer
