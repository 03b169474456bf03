// The window of the virtual printer on the screen, with all that it needs.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QTemporaryDir>

#include "printer/window/printer_window.h"
#include "tests/printer/queue.h"
#include "tests/support/user.h"

namespace tarn::test {

inline constexpr int printerLimit = 60'000;  // milliseconds; for a machine that is busy

class ShownPrinter : public testing::Test {
protected:
    void SetUp() override {
        window_.resize(1100, 780);
        window_.show();
        window_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    void job(const QByteArray& bytes, const char* name = "job", const JobKind& kind = {}) {
        ASSERT_TRUE(
            intake_.begin(QLatin1StringView(name), dotmatrix::JobIntake::Kind::LookedAt, kind));
        ASSERT_TRUE(intake_.take(bytes));
        intake_.end();
        ASSERT_TRUE(settled());
    }
    // The window has told of all jobs.
    bool settled() {
        const QString jobs = QString::number(roll_.shownJobs()) + QStringLiteral(" trabalho(s)");
        const QString forms =
            QString::number(roll_.printedForms()) + QStringLiteral(" formulário(s)");
        return QTest::qWaitFor(
            [&] { return label("count").startsWith(jobs) && label("count").contains(forms); },
            printerLimit);
    }
    QString label(const char* name) { return named<QLabel>(window_, name).text(); }
    QString file(const char* name) const { return folder_.filePath(QLatin1StringView(name)); }
    void write(const char* name, const QByteArray& bytes) {
        QFile out(file(name));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_EQ(out.write(bytes), bytes.size());
    }

    QTemporaryDir folder_;
    dotmatrix::PaperRoll roll_{dotmatrix::Dialect{}};
    dotmatrix::JobIntake intake_{roll_};
    Queue queue_;
    dotmatrix::HoldDesk held_{[this] { return std::make_unique<SpoolerOfQueue>(queue_); }};
    dotmatrix::PrinterWindow window_{roll_, intake_, held_, {}};
    dotmatrix::PaperView& view_ = window_.view();
};

}  // namespace tarn::test
