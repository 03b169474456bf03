// A desk over a real server, with the other seams of a screen test.
#pragma once

#include <QObject>
#include <string>

#include "platform/curl/curl_loader.h"
#include "platform/environment.h"
#include "platform/qt/blocking_loader.h"
#include "widgets/desk_context.h"

namespace tarn::test {

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

    CurlLoader curl;
    BlockingLoader blocking{curl};
    Environment environment;
    DeskContext desk;
    QObject context;
};

}  // namespace tarn::test
