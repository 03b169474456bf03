// Drawn documents from saved answers to PDF files by tarnimprime: 3,000 labels on form 1,
// which are a hundred documents, against Ghostscript writing one PDF of as many sheets with
// the same texts at the same places; 1,000 bills with a logo against the same without.
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
#include "bench/support/measure.h"
#include "tests/support/answers.h"

namespace {

namespace fs = std::filesystem;
using tarn::bench::leastOf;
using tarn::bench::processorSecondsOf;
using tarn::bench::ratioOf;

constexpr int rounds = 7;
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

std::string labelRows() {
    std::string rows;
    for (int i = 1; i <= labels; ++i) {
        const std::string n = std::to_string(i);
        rows.append("<z:row SEQUENCIAL='").append(n).append("' NOME='COMÉRCIO DE PEÇAS ").append(n);
        rows.append(" LTDA' ENDERECO='AVENIDA BRASIL, ").append(n);
        rows.append("' SOMENTE_ENDERECO='AVENIDA BRASIL' NUMERO='").append(n);
        rows.append(
            "' COMPLEMENTO='GALPÃO 2 SALA 34' BAIRRO='JARDIM AMÉRICA' MUNICIPIO='SÃO PAULO' "
            "UF='SP' PAIS='BRASIL' CEP='01310-100' CODIGO='");
        rows.append(n).append("'/>");
    }
    return rows;
}

constexpr const char* senderRow =
    "<z:row NOME='DISTRIBUIDORA SÃO JORGE LTDA' ENDERECO='AV. DAS NAÇÕES' BAIRRO='CENTRO' "
    "MUNICIPIO='SÃO PAULO' UF='SP' CEP='01310-000' DESCRICAO='LOJA' NUMERO='2000'/>";

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
    for (const Text& text : texts) {
        const double x = 1 + 7 * (place % 3) + text.x;
        const double y = 1.9 + 2.54 * (place / 3) + text.y;
        out << '(' << text.text << ") " << x * points << ' ' << 842 - y * points << " L\n";
    }
}

void writePostScript(const fs::path& file) {
    std::ofstream out(file, std::ios::binary);
    out << "%!PS-Adobe-3.0\n/Helvetica-Bold findfont dup length dict begin\n"
           "{1 index /FID ne {def} {pop pop} ifelse} forall\n"
           "/Encoding ISOLatin1Encoding def currentdict end /C exch definefont pop\n"
           "/L {moveto show} bind def\n";
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

void compareLabels(const Room& room, tarn::bench::Limits& limits) {
    if (!tarn::bench::isInstalled("gs")) {
        std::printf("labels not measured: gs is not installed (package ghostscript)\n");
        return;
    }
    write(room.at("labels.xml"), tarn::test::answers::rowset(labelRows()));
    write(room.at("sender.xml"), tarn::test::answers::rowset(senderRow));
    writePostScript(room.at("labels.ps"));
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(room.print("labels", {"etiquetas", "--formulario", "1", "--remetente",
                                             room.at("sender.xml"), room.at("labels.xml")}));
        theirs.push_back(processorSecondsOf(
            {"gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "-sDEVICE=pdfwrite", "-sPAPERSIZE=a4",
             "-sOutputFile=" + room.at("theirs.pdf"), room.at("labels.ps")}));
    }
    std::printf("3,000 labels: %.2f s, Ghostscript %.2f s\n", leastOf(ours), leastOf(theirs));
    limits.check("3,000 labels, 100 documents, over Ghostscript's one", ratioOf(ours, theirs), 1.0);
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
    std::string made = (fs::temp_directory_path() / "tarn-bench-XXXXXX").string();
    if (mkdtemp(made.data()) == nullptr) {
        return 2;
    }
    const Room room{made, (fs::path(argv[0]).parent_path() / "tarnimprime").string()};
    tarn::bench::Limits limits;
    compareLabels(room, limits);
    compareBills(room, limits);
    fs::remove_all(room.folder);
    return limits.exitStatus();
}
