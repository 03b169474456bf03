// What both the libFuzzer programs and the smoke test run: each takes any bytes
// and aborts where something holds that must not.
#pragma once

#include <cstdint>
#include <span>

namespace tarn::fuzz {

// A note document made from the bytes, printed by both ladders on the form of a
// company and establishment that the bytes choose.
// Only an RuntimeError may stop a note, and no value may move a line or command
// the printer.
void printNotes(std::span<const std::uint8_t> bytes);

// The bytes as an answer: load, status, rows, attributes, paths.
void readAnswer(std::span<const std::uint8_t> bytes);

}  // namespace tarn::fuzz
