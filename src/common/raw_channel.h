// The raw print channel: lines of fixed-width text to a dot-matrix printer, one
// job at a time, nothing checked.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "common/field_watch.h"
#include "platform/spooler.h"
#include "runtime/code_page.h"

namespace tarn {

// `FormataCampo`: appends `text` to `line`, cut to its first `width` characters or filled up with
// blanks, each control character as one blank. Raises InvalidArgument for a negative width.
void appendField(std::string& line, std::string_view text, int width, bool alignRight);

class RawChannel {
public:
    RawChannel(Spooler& spooler, CodePage page) : spooler_(spooler), page_(page) {}

    // What the jobs opened from now on print, for a spooler that can use it.
    void announce(JobKind kind) { kind_ = std::move(kind); }

    // Tells whoever draws the document's form of each of its fields; it must outlive this.
    void watch(FieldWatch& who) { watch_ = &who; }
    FieldWatch* watcher() const { return watch_; }

    // Opens the default printer and starts a document and its only page.
    void open(const JobDescription& job = {});
    // Ends page and document and closes the printer.
    void close();

    // Appends `lines` times CR LF to `text` (the caller's variable changes), puts
    // `column` blanks before it and sends it in one write. Raises InvalidArgument
    // for a negative count.
    void ImprimeRaw(int column, std::string& text, int lines);

private:
    Spooler& spooler_;
    CodePage page_;
    JobKind kind_;
    FieldWatch* watch_ = nullptr;
    std::string bytes_;  // reused from call to call
};

}  // namespace tarn
