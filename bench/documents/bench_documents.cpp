// Drawn documents from saved answers to PDF files by tarnimprime: 3,000 labels on form 1,
// which are a hundred documents, against Ghostscript writing one PDF of as many sheets with
// the same texts at the same places and against a label program's batch run of the same
// addresses; 1,000 bills with a logo against the same without.
#include <QBuffer>
#include <QImage>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "bench/support/child.h"
#include "bench/support/label_rows.h"
#include "bench/support/measure.h"
#include "bench/support/postscript.h"
#include "tests/support/answers.h"
#include "tests/support/own_directory.h"

namespace {

namespace fs = std::filesystem;
using tarn::bench::leastOf;
using tarn::bench::processorSecondsOf;
using tarn::bench::ratioOf;

constexpr int rounds = 7;
constexpr int longRounds = 2;  // of a peer that takes seconds
constexpr int labels = 3000;
constexpr int labelsOfSheet = 30;
constexpr int bills = 1000;

void write(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string read(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Of label `i` at its place on the sheet.
void writeLabel(std::ofstream& out, int i) {
    const std::string n = std::to_string(i + 1);
    struct Text {
        double x;
        double y;
        std::string text;
    };
    const std::array<Text, 8> texts{{{0, 0,
                                      "COM\xC9RCIO DE PE\xC7"
                                      "AS " +
                                          n + " LTDA"},
                                     {0, 0.3, "AVENIDA BRASIL, " + n},
                                     {0, 0.6, "GALP\xC3O 2 SALA 34"},
                                     {3.4, 0.6, "JARDIM AM\xC9RICA"},
                                     {0, 0.9, "S\xC3O PAULO"},
                                     {3.4, 0.9, "SP"},
                                     {0, 1.2, "01310-100"},
                                     {0, 1.5, n}}};
    constexpr double points = 72 / 2.54;
    const int place = i % labelsOfSheet;
    const int row = place / 3;
    for (const Text& text : texts) {
        const double x = 1 + 7 * (place % 3) + text.x;
        const double y = 1.9 + 2.54 * row + text.y;
        out << '(' << text.text << ") " << x * points << ' ' << 842 - y * points << " L\n";
    }
}

void writePostScript(const fs::path& file) {
    std::ofstream out(file, std::ios::binary);
    out << tarn::bench::postScriptHead("Helvetica-Bold");
    for (int i = 0; i < labels; ++i) {
        if (i % labelsOfSheet == 0) {
            out << "/C findfont 6 scalefont setfont\n";
        }
        writeLabel(out, i);
        if (i % labelsOfSheet == labelsOfSheet - 1) {
            out << "showpage\n";
        }
    }
}

// The same texts for gLabels, in one object a label, on its sheets of 3 by 10.
void writeTemplate(const fs::path& file) {
    std::ofstream(file)
        << "<?xml version='1.0'?>\n<Glabels-document xmlns='http://glabels.org/xmlns/3.0/'>\n"
           "<Template brand='Avery' part='5160' size='US-Letter' description='3 by 10'>\n"
           "<Label-rectangle id='0' width='189pt' height='72pt' round='5pt' x_waste='0pt' "
           "y_waste='0pt'>\n<Layout nx='3' ny='10' x0='11.25pt' y0='36pt' dx='200.25pt' "
           "dy='72pt'/></Label-rectangle></Template>\n<Objects id='0' rotate='False'>\n"
           "<Object-text x='4pt' y='4pt' w='180pt' h='64pt' justify='left' valign='top' "
           "auto_shrink='False' a0='1' a1='0' a2='0' a3='1' a4='0' a5='0'>\n"
           "<Span font_family='Liberation Sans' font_size='6' font_weight='Bold' "
           "font_italic='False' color='0x000000ff' line_spacing='1'><Field name='1'/><NL/>"
           "<Field name='2'/><NL/><Field name='3'/> <Field name='4'/><NL/><Field name='5'/> "
           "<Field name='6'/><NL/><Field name='7'/><NL/><Field name='8'/></Span>\n"
           "</Object-text></Objects>\n<Merge type='Text/Comma' src='labels.csv'/>\n"
           "</Glabels-document>\n";
}

void writeTable(const fs::path& file) {
    std::ofstream out(file);
    for (int i = 1; i <= labels; ++i) {
        out << "COMÉRCIO DE PEÇAS " << i << " LTDA,\"AVENIDA BRASIL, " << i
            << "\",GALPÃO 2 SALA 34,JARDIM AMÉRICA,SÃO PAULO,SP,01310-100," << i << '\n';
    }
}

// The first row of the answer many times over.
std::string manyBills() {
    std::string answer = read(fs::path(TARN_BILL_DATA) / "documents.xml");
    const std::size_t first = answer.find("<z:row");
    const std::size_t end = answer.find("/>", first) + 2;
    const std::string row = answer.substr(first, end - first);
    const std::size_t behind = answer.find("</rs:data>");
    std::string rows;
    for (int i = 0; i < bills; ++i) {
        rows += row;
    }
    return answer.replace(first, behind - first, rows);
}

// As detailed as a scanned logo.
QByteArray logo() {
    QImage image(600, 300, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgb((x * y) % 256, (x + y) % 256, (x * x + y) % 256));
        }
    }
    image.setDotsPerMeterX(11811);  // 300 dots an inch
    image.setDotsPerMeterY(11811);
    QBuffer buffer;
    image.save(&buffer, "JPG");
    return buffer.data();
}

double sizeOf(const fs::path& file) {
    return static_cast<double>(fs::file_size(file));
}

struct Room {
    fs::path folder;
    std::string program;

    std::string at(const char* name) const { return (folder / name).string(); }
    double print(const char* destination, std::vector<std::string> words) const {
        words.insert(words.begin(), {program, "--destino", at(destination)});
        return processorSecondsOf(words);
    }
};

double printLabels(const Room& room) {
    return room.print("labels", {"etiquetas", "--formulario", "1", "--remetente",
                                 room.at("sender.xml"), room.at("labels.xml")});
}

// The peer's processor time a run, and what is checked.
template <typename Peer>
void compareLabels(const Room& room, tarn::bench::Limits& limits, const char* name, int times,
                   const Peer& peer) {
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < times; ++round) {
        ours.push_back(printLabels(room));
        theirs.push_back(peer());
    }
    std::printf("3,000 labels: %.2f s, %s %.2f s\n", leastOf(ours), name, leastOf(theirs));
    limits.check(std::string("3,000 labels, 100 documents, over one of ") + name,
                 ratioOf(ours, theirs), 1.0);
}

void compareLabels(const Room& room, tarn::bench::Limits& limits) {
    write(room.at("labels.xml"), tarn::test::answers::rowset(tarn::bench::labelsOf(labels)));
    write(room.at("sender.xml"), tarn::test::answers::rowset(tarn::bench::senderRow));
    if (tarn::bench::isInstalled("gs")) {
        writePostScript(room.at("labels.ps"));
        compareLabels(room, limits, "Ghostscript", rounds, [&] {
            return processorSecondsOf(
                {"gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "-sDEVICE=pdfwrite",
                 "-sPAPERSIZE=a4", "-sOutputFile=" + room.at("theirs.pdf"), room.at("labels.ps")});
        });
    } else {
        std::printf("labels not measured: gs is not installed (package ghostscript)\n");
    }
    if (tarn::bench::isInstalled("glabels-3-batch")) {
        writeTemplate(room.at("labels.glabels"));
        writeTable(room.at("labels.csv"));
        compareLabels(room, limits, "gLabels", longRounds, [&] {
            return processorSecondsOf({"glabels-3-batch", "-o", room.at("theirs.pdf"), "-i",
                                       room.at("labels.csv"), room.at("labels.glabels")});
        });
    } else {
        std::printf("labels not measured: glabels-3-batch is not installed (package glabels)\n");
    }
}

void compareBills(const Room& room, tarn::bench::Limits& limits) {
    write(room.at("bills.xml"), manyBills());
    fs::create_directories(room.at("pictures"));
    fs::create_directories(room.at("none"));
    const QByteArray picture = logo();
    write(room.folder / "pictures" / "LOGODUPL.jpg", picture.toStdString());
    const std::string company = (fs::path(TARN_BILL_DATA) / "company.xml").string();
    const auto printed = [&](const char* to, const char* pictures) {
        return room.print(to, {"duplicatas", "--empresa", "1361", "--dados", company,
                               "--pasta-figuras", room.at(pictures), room.at("bills.xml")});
    };
    std::vector<double> with;
    std::vector<double> without;
    for (int round = 0; round < rounds; ++round) {
        with.push_back(printed("with", "pictures"));
        without.push_back(printed("without", "none"));
    }
    const double grown = sizeOf(room.folder / "with" / "job-001.pdf") -
                         sizeOf(room.folder / "without" / "job-001.pdf");
    std::printf("1,000 bills: %.2f s with a logo, %.2f s without\n", leastOf(with),
                leastOf(without));
    limits.check("1,000 bills with a logo over the same without", ratioOf(with, without), 1.25);
    limits.check("bytes of the logo in 1,000 bills over its file's",
                 grown / static_cast<double>(picture.size()), 3.0);
}

}  // namespace

int main(int /*argc*/, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const tarn::test::OwnDirectory own;
    const Room room{own.path(), (fs::path(argv[0]).parent_path() / "tarnimprime").string()};
    tarn::bench::Limits limits;
    compareLabels(room, limits);
    compareBills(room, limits);
    return limits.exitStatus();
}
