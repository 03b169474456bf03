#include "platform/qt/patient_printing.h"

#include <QObject>

namespace tarn {
namespace {

// What the call gives, made on the side.
template <typename Call>
auto onThe(SideThread& side, Call call) {
    decltype(call()) result{};
    side.run([&] { result = call(); });
    return result;
}

}  // namespace

std::string PatientSpooler::defaultPrinter() {
    return onThe(side_, [this] { return real_.defaultPrinter(); });
}

bool PatientSpooler::openPrinter(const std::string& name) {
    return onThe(side_, [&] { return real_.openPrinter(name); });
}

bool PatientSpooler::startDocument(const JobDescription& job) {
    return onThe(side_, [&] { return real_.startDocument(job); });
}

bool PatientSpooler::startPage() {
    return onThe(side_, [this] { return real_.startPage(); });
}

std::size_t PatientSpooler::write(std::string_view bytes) {
    return onThe(side_, [&] { return real_.write(bytes); });
}

bool PatientSpooler::endPage() {
    return onThe(side_, [this] { return real_.endPage(); });
}

bool PatientSpooler::endDocument() {
    return onThe(side_, [this] { return real_.endDocument(); });
}

bool PatientSpooler::closePrinter() {
    return onThe(side_, [this] { return real_.closePrinter(); });
}

std::string PatientPrinter::name() {
    return onThe(side_, [this] { return real_.name(); });
}

std::optional<PrinterFailure> PatientPrinter::aside(const PrintOperation& operation) {
    return onThe(side_, [&] { return real_.perform(operation); });
}

std::optional<PrinterFailure> PatientPrinter::perform(const PrintOperation& operation) {
    if (!std::holds_alternative<DocumentEnd>(operation)) {
        const bool begins = !begun_ && draws(operation);
        begun_ = begun_ || begins;
        return begins ? aside(operation) : real_.perform(operation);
    }
    begun_ = false;
    QObject here;  // what is told after the end is told to nobody
    if (progress) {
        real_.progress = [this, &here](std::size_t done, std::size_t total) {
            QMetaObject::invokeMethod(
                &here, [this, done, total] { progress(done, total); }, Qt::QueuedConnection);
        };
    }
    std::optional<PrinterFailure> failure = aside(operation);
    real_.progress = nullptr;
    return failure;
}

}  // namespace tarn
