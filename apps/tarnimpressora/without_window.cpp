#include "apps/tarnimpressora/without_window.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "apps/tarnimpressora/files.h"
#include "apps/tarnimpressora/holding.h"
#include "apps/tarnimpressora/reception.h"
#include "runtime/file_names.h"

namespace tarn::printer {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds untilQuiet(100);
constexpr milliseconds longestQuietAwaited(300);
constexpr int shareOfWriting = 5;  // a fifth of the time at the most

std::string nameOfRoll(const std::string& file, int roll) {
    if (file.empty()) {
        return file;
    }
    std::filesystem::path path = pathOf(file);
    const std::string ending = nameOf(path.extension());
    return nameOf(path.replace_extension()) + "-rolo" + std::to_string(roll) + ending;
}

// Writes the files when jobs have ended and no other follows at once. The whole paper is
// written each time, so a long paper is written less often: jobs go before it.
class PaperWriting : public QObject {
public:
    PaperWriting(const Options& options, const dotmatrix::PaintOptions& looks,
                 dotmatrix::PaperRoll& roll, dotmatrix::JobIntake& intake, std::size_t notices)
        : options_(options),
          file_(options),
          looks_(looks),
          roll_(roll),
          intake_(intake),
          notices_(notices) {
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
        const bool written = writeFiles(file_, looks_, roll_);
        lastTook_ = milliseconds(writing.elapsed());
        sinceWritten_.start();
        if (!written) {
            QCoreApplication::exit(1);
        } else if (enough()) {
            QCoreApplication::quit();
        } else if (roll_.length() > options_.rollBytes && !intake_.busy()) {
            nextRoll();
        }
    }

    // The files so far are complete; what comes goes into files of their own.
    void nextRoll() {
        roll_.tearOff(false);
        notices_ = roll_.notices().total();
        ++rollNumber_;
        for (std::string Options::*name : {&Options::pdf, &Options::png, &Options::text}) {
            file_.*name = nameOfRoll(options_.*name, rollNumber_);
        }
    }

    const Options& options_;
    Options file_;  // that is written now
    int rollNumber_ = 1;
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

// Nobody sees the paper: it goes as it comes.
void letPaperGo(dotmatrix::PaperRoll& roll, dotmatrix::JobIntake& intake) {
    QObject::connect(&intake, &dotmatrix::JobIntake::jobEnded, &intake,
                     [&](const QString& name, const QString& remark) {
                         if (!remark.isEmpty()) {
                             complain(name + QStringLiteral(": ") + remark);
                         }
                         roll.tearOff(false);
                     });
}

// Nobody is there to be asked: a job of which the queue can't tell stays, and the others go on.
void passOnAlone(dotmatrix::HoldDesk& desk) {
    QObject::connect(&desk, &dotmatrix::HoldDesk::troubled, &desk,
                     [](int, const QString& text) { complain(text); });
    QObject::connect(&desk, &dotmatrix::HoldDesk::doubted, &desk,
                     [&desk](int number) { desk.refuse(number); });
}

int wait(const Options& options, const dotmatrix::PaintOptions& looks, dotmatrix::PaperRoll& roll,
         std::size_t notices) {
    dotmatrix::JobIntake intake(roll);
    dotmatrix::HoldDesk desk(systemQueues());
    QString wrong;
    if (options.holds()) {
        passOnAlone(desk);
        wrong = startHolding(options, desk, intake);
    }
    Reception reception(intake);
    wrong = wrong.isEmpty() ? reception.open(options, false) : wrong;
    if (!wrong.isEmpty()) {
        complain(wrong);
        return 1;
    }
    std::optional<PaperWriting> writing;
    if (options.writes()) {
        writing.emplace(options, looks, roll, intake, notices);
    } else {
        letPaperGo(roll, intake);
    }
    std::puts(reception.places().toUtf8().constData());
    std::fflush(stdout);
    return QGuiApplication::exec();
}

}  // namespace

int runWithoutWindow(int argc, char** argv, const Options& options,
                     const dotmatrix::PaintOptions& looks) {
    // Files need fonts, not a display, and what the toolkit misses of one is no matter. On
    // Windows it is the other way round: fonts come with the system's platform alone.
#ifndef Q_OS_WIN
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QGuiApplication application(argc, argv);
    dotmatrix::PaperRoll roll(options.dialect);
    if (options.onePaper()) {
        roll.setDialect(options.dialect);
    }
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
