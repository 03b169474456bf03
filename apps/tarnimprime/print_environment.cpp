#include "apps/tarnimprime/print_environment.h"

#include <cstdio>
#include <ctime>

#include "apps/tarnimprime/windowless_pages.h"
#include "platform/directory/directory_spooler.h"
#include "platform/directory/ops_printer.h"
#include "platform/directory/picture_folder.h"
#include "platform/no_paper.h"
#include "platform/system_spooler.h"
#include "runtime/file_names.h"
#include "runtime/text.h"

namespace tarn::print {
namespace {

class NoPages : public Printer {
public:
    std::optional<PrinterFailure> perform(const PrintOperation&) override { return std::nullopt; }
};

std::tm localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return local;
}

}  // namespace

BoxAnswer TerminalBoxes::show(const Box& box) {
    const std::string text = replaceAll(replaceAll(box.text, "\r\n", "\n"), "\r", "\n");
    std::fputs(forTerminal(box.title + ": " + text + "\n").c_str(), stderr);
    return box.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
}

std::optional<PrinterFailure> WatchedPages::perform(const PrintOperation& operation) {
    auto failure = pages_->perform(operation);
    refused_ |= failure.has_value();
    return failure;
}

Date SystemClock::today() {
    const std::tm local = localTime();
    return {local.tm_mday, local.tm_mon + 1, local.tm_year + 1900};
}

TimeOfDay SystemClock::timeOfDay() {
    const std::tm local = localTime();
    return {.hour = local.tm_hour, .minute = local.tm_min};
}

PrintEnvironment::PrintEnvironment(const GlobalOptions& options) : options_(options) {}

void PrintEnvironment::prepareFolder() {
    const auto files =
        std::make_shared<JobFiles>(pathOf(*options_.destination), JobNumbering::FromOne);
    if (!files->makeDirectory()) {
        throw cli::WrongUsage("não foi possível criar a pasta \"" + *options_.destination +
                              "\". Confira o nome e a permissão de gravação.");
    }
    spooler_ = std::make_unique<DirectorySpooler>(files, TellsKinds::No);
    if (options_.format == "ops") {
        drawOn(std::make_unique<OpsPrinter>(files));
    } else {
        drawOn(std::make_unique<WindowlessPages>(files));
    }
}

void PrintEnvironment::preparePrinter() {
    if (options_.format == "ops") {
        throw cli::WrongUsage("--formato ops grava em uma pasta: dê também --destino PASTA.");
    }
    spooler_ = makeSystemSpooler();
    const bool hasPrinter = spooler_ && !spooler_->defaultPrinter().empty();
    if (spooler_ && !spooler_->answers()) {
        throw cli::WrongUsage(
            std::string(spoolerIsSilent) +
            ". Confira se está ligado, ou grave os trabalhos em uma pasta com --destino PASTA.");
    }
    if (!hasPrinter) {
        throw cli::WrongUsage(
            "esta máquina não tem impressora padrão. Defina uma, ou grave os trabalhos em uma "
            "pasta com --destino PASTA.");
    }
    drawOn(std::make_unique<WindowlessPages>(nullptr));
}

void PrintEnvironment::prepareNothing() {
    spooler_ = std::make_unique<NoPaper>();
    drawOn(std::make_unique<NoPages>());
}

void PrintEnvironment::drawOn(std::unique_ptr<Printer> pages) {
    pages_ = std::make_unique<WatchedPages>(std::move(pages));
}

Environment& PrintEnvironment::environment() {
    if (!environment_) {
        options_.destination ? prepareFolder() : preparePrinter();
    }
    return assemble();
}

Environment& PrintEnvironment::dryRunEnvironment() {
    if (!environment_) {
        options_.destination ? prepareFolder() : prepareNothing();
    }
    return assemble();
}

Environment& PrintEnvironment::assemble() {
    if (!environment_) {
        environment_ =
            std::make_unique<Environment>(Environment{.http = server_,
                                                      .spooler = *spooler_,
                                                      .printer = *pages_,
                                                      .boxes = boxes_,
                                                      .clock = clock_,
                                                      .machine = machine_,
                                                      .baseUrl = {},
                                                      .codePage = options_.codePage,
                                                      .pictureFolder = usualPictureFolder()});
    }
    return *environment_;
}

}  // namespace tarn::print
