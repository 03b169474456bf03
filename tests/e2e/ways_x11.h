// How each screen of the desk is reached, with what its buttons need to do their work.
#pragma once

#include "tests/e2e/desk_x11.h"

namespace tarn::test::ways {

// For scripts, on a desk that nobody has used yet. Returns the screen, ready for input.
using Way = QWidget& (*)(RunningDesk& desk, X11User& hands);

QWidget& logon(RunningDesk& desk, X11User& hands);
QWidget& orders(RunningDesk& desk, X11User& hands);
QWidget& maintenance(RunningDesk& desk, X11User& hands);
QWidget& cancelQuestion(RunningDesk& desk, X11User& hands);
QWidget& observationAlert(RunningDesk& desk, X11User& hands);
QWidget& stockAlert(RunningDesk& desk, X11User& hands);
QWidget& reprint(RunningDesk& desk, X11User& hands);
QWidget& cancellation(RunningDesk& desk, X11User& hands);
QWidget& bills(RunningDesk& desk, X11User& hands);
QWidget& slips(RunningDesk& desk, X11User& hands);
QWidget& customersOfBills(RunningDesk& desk, X11User& hands);
QWidget& customersOfSlips(RunningDesk& desk, X11User& hands);
QWidget& cheque(RunningDesk& desk, X11User& hands);
QWidget& labelQueue(RunningDesk& desk, X11User& hands);
QWidget& labelPrinting(RunningDesk& desk, X11User& hands);
QWidget& labelDeletion(RunningDesk& desk, X11User& hands);
QWidget& labelSelection(RunningDesk& desk, X11User& hands);
QWidget& help(RunningDesk& desk, X11User& hands);

}  // namespace tarn::test::ways
