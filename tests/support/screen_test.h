// A desk whose server, printer, boxes, clock and machine are the test's own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "desk/desk_application.h"
#include "platform/qt/blocking_loader.h"
#include "platform/qt/input_gate.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/modal_steps.h"
#include "tests/support/recording_printer.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"
#include "tests/support/user.h"
#include "widgets/desk_context.h"

namespace tarn::test {

// Ticks wait under them, as under those on the screen.
class BoxesOverTicks : public ScriptedBoxes {
public:
    BoxAnswer show(const Box& box) override {
        const TicksWait noTicks(InputGate::ofApplication());
        return ScriptedBoxes::show(box);
    }
};

class ScreenTest : public testing::Test {
protected:
    void SetUp() override {
        static_cast<DeskApplication*>(qApp)->setErrorReport(
            [this](const std::exception_ptr& error) { reportError(desk, error); });
        QObject::connect(&end, &ProgramEnd::didEnd, &end, [this] { blocking.close(); });
    }
    void TearDown() override {
        static_cast<DeskApplication*>(qApp)->setErrorReport(nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a cursor was left behind";
    }

    void entered(std::int32_t company, std::int32_t establishment) {
        session.NCOMPANYCODE = company;
        session.ID_ETB_TARN = establishment;
        session.UserCode = "77";
        session.SERVERNAME = "SRV1";
        session.DATA = "15/03/2012";
    }

    ScriptedLoader server;
    BlockingLoader blocking{server};
    RecordingSpooler spooler;
    RecordingPrinter printer;
    BoxesOverTicks boxes;
    FixedClock clock;
    FixedMachine machine;
    Environment environment{
        blocking, spooler, printer, boxes, clock, machine, "http://servidor/pagina.asp?"};
    Sessao session;
    ProgramEnd end;
    DeskContext desk{environment, session, end};
    ModalSteps modals;
};

}  // namespace tarn::test
