// What the libFuzzer programs and the smoke test run: each takes any bytes and aborts
// where something holds that must not. Only a RuntimeError may stop a document.
#pragma once

#include <cstdint>
#include <span>

namespace tarn::fuzz {

// The bytes as an answer: load, status, rows, attributes, paths.
void readAnswer(std::span<const std::uint8_t> bytes);

// A note document made from the bytes, printed by both ladders on the form of a
// company and establishment that the bytes choose. No value may move a line or command
// the printer.
void printNotes(std::span<const std::uint8_t> bytes);

// The same for the other documents: order sheets, slips, bills and receipts, cheques,
// labels.
void printDocuments(std::span<const std::uint8_t> bytes);

// Numbers, masks, dates, words, texts and code pages; where there is a second way to a
// result, both must agree.
void checkRules(std::span<const std::uint8_t> bytes);

// An ESC/P job on the virtual printer, or a form written as text.
void printPaper(std::span<const std::uint8_t> bytes);

}  // namespace tarn::fuzz
