// The report of an error that no routine caught: a box, a line on the error output, and
// exit status 3.
#pragma once

#include <exception>
#include <functional>

#include "platform/message_boxes.h"

namespace tarn {

// The report's box; writes the line. It says more than the box where the words are a
// library's.
Box reportOf(const std::exception_ptr& error);

// Runs the program and returns its exit status; an error that comes out of it, before the
// event loop or behind it, is reported.
int reportingErrors(const std::function<int()>& program);

// From now on also an error that nothing can catch, such as a destructor's, is reported,
// and ends the program there and then.
void reportUncaughtErrors();

}  // namespace tarn
