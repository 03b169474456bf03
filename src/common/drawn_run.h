// One click's documents on the page printer. What the printer refuses of them, other than
// a text, is told once a document, at once; the run goes on all the same (decision D111).
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/printer.h"

namespace tarn {

struct Environment;

class DrawnRun {
public:
    // Centimetres, portrait.
    explicit DrawnRun(Environment& environment);

    Environment& environment() { return environment_; }
    Printer& printer();

    // A text, Arial bold, half a centimetre off. A failure is told, each time (decision D97).
    void ImprimeLinha(std::string_view text, double x, double y, double size);
    // What became of a line or a picture.
    void check(const std::optional<PrinterFailure>& failure);
    void newPage();
    // Prints the document; while it does so, and at the end if there is anything to tell,
    // `progress` is called. `pages`, where known beforehand. What follows is the next document.
    void endDocument(const Progress& progress = {}, std::size_t pages = 0);

    // Whether anything was told of, of any document; of texts, if not one of them was taken.
    bool failed() const { return failed_ || texts_ == Texts::NoneTaken; }

private:
    enum class Texts { None, NoneTaken, Taken };

    Environment& environment_;
    Texts texts_ = Texts::None;
    bool told_ = false;  // of this document
    bool failed_ = false;
};

}  // namespace tarn
