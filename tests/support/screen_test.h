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
    BoxAnswer show(const Box& box) override;
};

class ScreenTest : public testing::Test {
public:
    ~ScreenTest() override;

protected:
    ScreenTest();

    void SetUp() override;
    void TearDown() override;

    void entered(std::int32_t company, std::int32_t establishment);

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
