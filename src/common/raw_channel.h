// The raw print channel: lines of fixed-width text to a dot-matrix printer, one
// job at a time, nothing checked.
#pragma once

#include <string>
#include <string_view>

#include "platform/spooler.h"
#include "runtime/code_page.h"

namespace tarn {

// Pads `texto` with blanks to `largura` characters, in place, and returns it; a
// longer text comes back cut to its first `largura` characters and stays whole
// in the caller's variable. Raises ArgumentoInvalido for a negative width.
std::string FormataCampo(std::string& texto, int largura, bool aDireita);

// The same for building lines: appends the field to `linha`, each control
// character of the value as one blank.
void appendField(std::string& linha, std::string_view texto, int largura, bool aDireita);

class RawChannel {
public:
    RawChannel(Spooler& spooler, CodePage page) : spooler_(spooler), page_(page) {}

    // Opens the default printer and starts a document and its only page.
    void open(const JobDescription& job = {});
    // Ends page and document and closes the printer.
    void close();

    // Appends `linhas` times CR LF to `texto` (the caller's variable changes), puts
    // `coluna` blanks before it and sends it in one write. Raises ArgumentoInvalido
    // for a negative count.
    void ImprimeRaw(int coluna, std::string& texto, int linhas);

private:
    Spooler& spooler_;
    CodePage page_;
    std::string bytes_;  // reused from call to call
};

}  // namespace tarn
