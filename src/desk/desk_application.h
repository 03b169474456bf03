// The event loop's end of an error that no routine caught.
#pragma once

#include <QApplication>
#include <functional>

#include "runtime/runtime_error.h"

namespace tarn {

struct DeskContext;

class ManualKey;

class DeskApplication : public QApplication {
    Q_OBJECT

public:
    using ErrorReport = std::function<void(std::exception_ptr)>;

    // `argc` and `argv` must outlive the application. Sets the program's look.
    DeskApplication(int& argc, char** argv);

    // Who is told of an exception that came out of an event handler.
    void setErrorReport(ErrorReport report) { report_ = std::move(report); }

    ManualKey& manualKey() { return *manualKey_; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    ErrorReport report_;
    ManualKey* manualKey_;
};

// Shows the run time's report of the exception and ends the program with status 3.
void reportError(const DeskContext& desk, const std::exception_ptr& error);

}  // namespace tarn
