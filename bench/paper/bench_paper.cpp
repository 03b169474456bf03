// A thousand full notes from their bytes to a PDF file by tarnimpressora, against Ghostscript
// writing the PDF of a PostScript file with the same lines at the same places. Ghostscript is
// the greater part of what a translator of ESC/P to PostScript followed by it costs, and its
// file is the one that comes out of that, so that to be ahead of Ghostscript alone is to be
// ahead of both.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/support/child.h"
#include "bench/support/measure.h"
#include "bench/support/postscript.h"
#include "tests/support/own_directory.h"

namespace {

namespace fs = std::filesystem;
using tarn::bench::processorSecondsOf;

constexpr int notes = 1000;
constexpr int rounds = 5;
constexpr int linesOfForm = 66;

struct Line {
    int row = 0;  // from 0
    int column = 0;
    std::string text;  // windows-1252
};

// As dense as a note whose item lines are all in use.
std::vector<Line> linesOf(int note) {
    const std::string number = std::to_string(note);
    std::vector<Line> lines{
        {1, 90, "X                                  00" + number},
        {7, 1, "VENDA DE MERCADORIA                       5.102"},
        {10, 1,
         "COM\xC9RCIO DE PE\xC7"
         "AS S\xC3O JO\xC3O LTDA" +
             std::string(56, ' ') + "12.345.678/0001-95                07/01/2009"},
        {12, 1, "RUA DAS FLORES, 100" + std::string(58, ' ') + "CENTRO            01310-100"},
        {14, 1,
         "S\xC3O PAULO                           (11) 5555-0000        SP      "
         "110.042.490.114"},
        {17, 33, "100,50     07/02/2009                   200,00      07/03/2009"}};
    for (int item = 1; item <= 32; ++item) {
        const std::string n = std::to_string(item * 7 + note % 90);
        std::string text = "P" + n;
        text.append("       PARAFUSO SEXTAVADO A\xC7O INOX ").append(n);
        text.append("                 A   000  CX        12,500       ").append(n);
        text.append(",06               1").append(n).append(",25  1");
        text.append(std::to_string(item % 10)).append(",8718,005,00");
        lines.push_back({20 + item, 1, text});
    }
    lines.push_back(
        {56, 1, "1.600,75         288,14            0,00          0,00       1.650,75"});
    lines.push_back({58, 1, "10,00          5,50            0,25          80,04       1.696,54"});
    lines.push_back({60, 1, "TRANSPORTES R\xC1PIDOS     1   ABC1234   SP  12.345.678/0001-10"});
    lines.push_back({63, 1, "ENTREGAR PELA MANH\xC3   " + number});
    return lines;
}

void writeJob(const fs::path& file) {
    std::ofstream out(file, std::ios::binary);
    out << '\x0F';
    for (int note = 1; note <= notes; ++note) {
        int row = 0;
        for (const Line& line : linesOf(note)) {
            for (; row < line.row; ++row) {
                out << "\r\n";
            }
            out << std::string(static_cast<std::size_t>(line.column), ' ') << line.text;
        }
        for (; row < linesOfForm; ++row) {
            out << "\r\n";
        }
    }
}

std::string escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '(' || c == ')' || c == '\\') {
            result += '\\';
        }
        result += c;
    }
    return result;
}

void writePostScript(const fs::path& file) {
    std::ofstream out(file, std::ios::binary);
    out << tarn::bench::postScriptHead("Courier");
    for (int note = 1; note <= notes; ++note) {
        out << "%%Page: " << note << ' ' << note
            << "\n/C findfont [7 0 0 10.5 0 0] makefont setfont\n";
        for (const Line& line : linesOf(note)) {
            out << '(' << escaped(line.text) << ") " << 36 + line.column * 4.2 << ' '
                << 792 - 8.9 - 12 * line.row << " L\n";
        }
        out << "showpage\n";
    }
}

double sizeOf(const fs::path& file) {
    return static_cast<double>(fs::file_size(file));
}

}  // namespace

int main(int /*argc*/, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    if (!tarn::bench::isInstalled("gs")) {
        std::printf("not measured: gs is not installed (package ghostscript)\n");
        return 0;
    }
    const tarn::test::OwnDirectory own;
    const fs::path& folder = own.path();
    const fs::path program = fs::path(argv[0]).parent_path() / "tarnimpressora";
    writeJob(folder / "notes.prn");
    writePostScript(folder / "notes.ps");
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(
            processorSecondsOf({program, "--pdf", folder / "ours.pdf", folder / "notes.prn"}));
        theirs.push_back(processorSecondsOf(
            {"gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "-sDEVICE=pdfwrite",
             "-dDEVICEWIDTHPOINTS=684", "-dDEVICEHEIGHTPOINTS=792",
             "-sOutputFile=" + (folder / "theirs.pdf").string(), folder / "notes.ps"}));
    }
    const double ourBytes = sizeOf(folder / "ours.pdf");
    const double theirBytes = sizeOf(folder / "theirs.pdf");
    using tarn::bench::leastOf;
    std::printf("1,000 notes: %.2f s, Ghostscript %.2f s; a page %.0f bytes, Ghostscript's %.0f\n",
                leastOf(ours), leastOf(theirs), ourBytes / notes, theirBytes / notes);
    tarn::bench::Limits limits;
    limits.check("1,000 full notes to PDF over Ghostscript's part of it",
                 tarn::bench::ratioOf(ours, theirs), 1 / 1.5);
    limits.check("bytes of the PDF over Ghostscript's", ourBytes / theirBytes, 1.2);
    return limits.exitStatus();
}
