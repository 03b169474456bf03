// The event loop's end of an error that no routine caught.
#pragma once

#include <QApplication>
#include <functional>

#include "runtime/runtime_error.h"

namespace tarn {

struct DeskContext;

class DeskApplication : public QApplication {
    Q_OBJECT

public:
    using Relato = std::function<void(std::exception_ptr)>;

    // `argc` and `argv` must outlive the application. Sets the program's look.
    DeskApplication(int& argc, char** argv);

    // Who is told of an exception that came out of an event handler.
    void setRelato(Relato relato) { relato_ = std::move(relato); }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    Relato relato_;
};

// Shows the run time's report of the exception and ends the program with status 3.
void relataErro(const DeskContext& desk, const std::exception_ptr& erro);

}  // namespace tarn
