// A desk over a real server, with the other seams of a screen test.
#pragma once

#include <QObject>
#include <functional>
#include <string>

#include "gateway/command_effects.h"
#include "platform/curl/curl_loader.h"
#include "platform/environment.h"
#include "platform/qt/blocking_loader.h"
#include "widgets/desk_context.h"

namespace tarn::test {

// Hands requests on, to another address where a test says so.
struct Detour : HttpLoader {
    explicit Detour(HttpLoader& loader) : real(loader) {}
    HttpAnswer get(const std::string& address) override {
        return real.get(instead ? instead(address) : address);
    }
    void close() override { real.close(); }

    HttpLoader& real;
    std::function<std::string(const std::string& address)> instead;  // on the loader's thread
};

struct NetworkDesk {
    NetworkDesk(const DeskContext& test, const std::string& baseUrl)
        : environment{blocking,
                      test.environment.spooler,
                      test.environment.printer,
                      test.environment.boxes,
                      test.environment.clock,
                      test.environment.machine,
                      baseUrl},
          desk{environment, test.session, test.end} {
        QObject::connect(&test.end, &ProgramEnd::didEnd, &context, [this] { blocking.close(); });
    }

    CurlLoader curl{{}, commands::onlyReads};
    Detour detour{curl};
    BlockingLoader blocking{detour};
    Environment environment;
    DeskContext desk;
    QObject context;
};

}  // namespace tarn::test
