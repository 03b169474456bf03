#include "common/raw_channel.h"

#include "runtime/ascii.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {

namespace {

std::size_t countOf(int value) {
    if (value < 0) {
        throw RuntimeError(RuntimeErrorCode::InvalidArgument);
    }
    return static_cast<std::size_t>(value);
}

}  // namespace

void appendField(std::string& line, std::string_view text, int width, bool alignRight) {
    const std::size_t room = countOf(width);
    const std::string_view head = text.substr(0, room);
    if (isPlain(head)) {  // as many bytes as characters
        const std::size_t start = line.size() + (alignRight ? room - head.size() : 0);
        line.append(room, ' ');
        head.copy(line.data() + start, head.size());
        return;
    }
    const std::string_view field = leftOf(text, room);
    const std::size_t blanks = room - lengthOf(field);
    if (alignRight) {
        line.append(blanks, ' ');
    }
    appendBlankingControls(line, field);
    if (!alignRight) {
        line.append(blanks, ' ');
    }
}

// Nobody looks at a spooler's results: a document that doesn't come out is printed
// again from the screens that allow it.
void RawChannel::open(const JobDescription& job) {
    spooler_.openPrinter(spooler_.defaultPrinter());
    JobDescription told = job;
    told.kind = kind_;
    spooler_.startDocument(told);
    spooler_.startPage();
}

void RawChannel::close() {
    spooler_.endPage();
    spooler_.endDocument();
    spooler_.closePrinter();
}

void RawChannel::ImprimeRaw(int column, std::string& text, int lines) {
    for (std::size_t i = countOf(lines); i > 0; --i) {
        text += "\r\n";
    }
    bytes_.assign(countOf(column), ' ');
    appendPrinterBytes(bytes_, text, page_);
    spooler_.write(bytes_);
}

}  // namespace tarn
