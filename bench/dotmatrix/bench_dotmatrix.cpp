// A day's paper of 10,000 forms in the virtual printer against an hour's of 500: what a
// form costs to come in, to be looked at and to be written as PDF, and what is held in
// memory beside it.
#include <unistd.h>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <fstream>

#include "bench/support/measure.h"
#include "dotmatrix/paper_export.h"
#include "dotmatrix/paper_roll.h"

namespace {

using tarn::bench::ratioOf;
using tarn::bench::secondsOf;
using tarn::dotmatrix::PaperRoll;

constexpr int fewForms = 500;
constexpr int manyForms = 10'000;
constexpr int rounds = 3;
constexpr int looks = 400;
// Prime to both numbers of forms: no form is looked at twice.
constexpr std::size_t stride = 3079;

// A note of 66 lines with as much print on it as a full form of the ladder.
std::string note(int number) {
    std::string bytes = " \x0F\r\n";
    for (int line = 2; line <= 66; ++line) {
        if (line % 2 == 0) {
            bytes += " " + std::to_string(number) + " linha " + std::to_string(line) +
                     "  COMERCIO DE FERRAGENS TRES IRMAOS LTDA     12.345.678/0001-95      "
                     "1.234,56     07/01/2009";
        }
        bytes += "\r\n";
    }
    return bytes;
}

void fill(PaperRoll& roll, int forms) {
    for (int i = 1; i <= forms; ++i) {
        roll.startJob("nota");
        if (roll.feed(note(i))) {
            std::fprintf(stderr, "the temporary directory takes no more\n");
            std::exit(2);
        }
    }
}

void look(PaperRoll& roll) {
    const std::size_t forms = roll.printedForms();
    for (std::size_t i = 0; i < looks; ++i) {
        roll.page(i * stride % forms);
    }
}

double write(PaperRoll& roll, const QString& file) {
    return secondsOf([&] {
        if (writePdf(roll.pages(), {}, file)) {
            std::exit(2);
        }
    });
}

// Memory in use, in bytes.
double resident() {
    std::ifstream status("/proc/self/statm");
    double pages = 0;
    status >> pages >> pages;
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE));
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    tarn::bench::Limits limits;

    std::vector<double> inFew;
    std::vector<double> inMany;
    std::vector<double> lookFew;
    std::vector<double> lookMany;
    std::vector<double> pdfFew;
    std::vector<double> pdfMany;
    double grown = 0;
    for (int round = 0; round < rounds; ++round) {
        PaperRoll few({});
        inFew.push_back(secondsOf([&few] { fill(few, fewForms); }) / fewForms);
        lookFew.push_back(secondsOf([&few] { look(few); }));
        pdfFew.push_back(write(few, folder.filePath("few.pdf")) / fewForms);
        const double before = resident();
        PaperRoll many({});
        inMany.push_back(secondsOf([&many] { fill(many, manyForms); }) / manyForms);
        lookMany.push_back(secondsOf([&many] { look(many); }));
        grown = std::max(grown, resident() - before);
        if (round == 0) {
            pdfMany.push_back(write(many, folder.filePath("many.pdf")) / manyForms);
        }
    }
    const double bytes = static_cast<double>(note(1).size()) * manyForms;
    std::printf("PDF: %.0f forms a second; %.1f MB of jobs, %.1f MB held\n",
                1 / tarn::bench::medianOf(pdfMany), bytes / 1e6, grown / 1e6);
    limits.check("a form coming in, of 10,000 over of 500", ratioOf(inMany, inFew), 1.30);
    limits.check("a form looked at, of 10,000 over of 500", ratioOf(lookMany, lookFew), 1.30);
    limits.check("a form as PDF, of 10,000 over of 500",
                 tarn::bench::medianOf(pdfMany) / tarn::bench::medianOf(pdfFew), 1.30);
    limits.check("memory held for 10,000 forms over their bytes", grown / bytes, 0.30);
    return limits.exitStatus();
}
