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

std::string FormataCampo(std::string& texto, int largura, bool aDireita) {
    const std::size_t width = countOf(largura);
    const std::size_t length = lengthOf(texto);
    if (length > width) {
        return std::string(leftOf(texto, width));
    }
    texto.insert(aDireita ? 0 : texto.size(), width - length, ' ');
    return texto;
}

void appendField(std::string& linha, std::string_view texto, int largura, bool aDireita) {
    const std::size_t width = countOf(largura);
    const std::string_view head = texto.substr(0, width);
    if (isPlain(head)) {  // as many bytes as characters
        const std::size_t start = linha.size() + (aDireita ? width - head.size() : 0);
        linha.append(width, ' ');
        head.copy(linha.data() + start, head.size());
        return;
    }
    const std::string_view field = leftOf(texto, width);
    const std::size_t blanks = width - lengthOf(field);
    if (aDireita) {
        linha.append(blanks, ' ');
    }
    appendBlankingControls(linha, field);
    if (!aDireita) {
        linha.append(blanks, ' ');
    }
}

// Nobody looks at a spooler's results: a document that doesn't come out is printed
// again from the screens that allow it.
void RawChannel::open(const JobDescription& job) {
    spooler_.openPrinter(spooler_.defaultPrinter());
    spooler_.startDocument(job);
    spooler_.startPage();
}

void RawChannel::close() {
    spooler_.endPage();
    spooler_.endDocument();
    spooler_.closePrinter();
}

void RawChannel::ImprimeRaw(int coluna, std::string& texto, int linhas) {
    for (std::size_t i = countOf(linhas); i > 0; --i) {
        texto += "\r\n";
    }
    bytes_.assign(countOf(coluna), ' ');
    appendPrinterBytes(bytes_, texto, page_);
    spooler_.write(bytes_);
}

}  // namespace tarn
