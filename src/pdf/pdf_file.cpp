#include "pdf/pdf_file.h"

#include <QIODevice>
#include <QString>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tarn::pdf {

namespace {

constexpr int decimals = 10'000;
constexpr double largest = 1e9;  // beyond what any sheet has

}  // namespace

QByteArray deflated(const QByteArray& bytes) {
    constexpr int lengthBytes = 4;  // that the toolkit writes ahead of the stream
    return qCompress(bytes).mid(lengthBytes);
}

QByteArray pdfName(char kind, int number) {
    return QByteArray("/") + kind + QByteArray::number(number);
}

QByteArray pdfReference(int object) {
    return QByteArray::number(object) + " 0 R";
}

void appendNumber(QByteArray& to, double value) {
    const double bounded = std::isfinite(value) ? std::clamp(value, -largest, largest) : 0;
    auto whole = std::llround(bounded * decimals);
    std::array<char, 24> text{};
    char* end = text.data();
    if (whole < 0) {
        *end++ = '-';
        whole = -whole;
    }
    end = std::to_chars(end, text.data() + text.size(), whole / decimals).ptr;
    if (auto rest = static_cast<int>(whole % decimals); rest != 0) {
        *end++ = '.';
        for (int unit = decimals / 10; rest != 0; rest %= unit, unit /= 10) {
            *end++ = static_cast<char>('0' + rest / unit);
        }
    }
    to.append(text.data(), end - text.data());
}

QByteArray pdfText(const QString& text) {
    QByteArray bytes("\xFE\xFF");
    for (const QChar unit : text) {
        bytes += static_cast<char>(unit.unicode() >> 8U);
        bytes += static_cast<char>(unit.unicode() & 0xFFU);
    }
    return '<' + bytes.toHex() + '>';
}

PdfFile::PdfFile(QIODevice& out) : out_(out) {
    // Bytes above 127 in the second line tell that the file is not text.
    put("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
}

void PdfFile::put(const QByteArray& bytes) {
    taken_ = taken_ && out_.write(bytes) == bytes.size();
    at_ += bytes.size();
}

int PdfFile::reserve() {
    offsets_.push_back(0);
    return static_cast<int>(offsets_.size());
}

void PdfFile::write(int object, const QByteArray& content) {
    offsets_[static_cast<std::size_t>(object) - 1] = at_;
    put(QByteArray::number(object) + " 0 obj\n" + content + "\nendobj\n");
}

void PdfFile::writeStream(int object, const QByteArray& dictionary, const QByteArray& content) {
    writeEncoded(object, dictionary, "/FlateDecode", deflated(content));
}

void PdfFile::writeEncoded(int object, const QByteArray& dictionary, const QByteArray& filter,
                           const QByteArray& bytes) {
    write(object, "<<" + dictionary + "/Filter" + filter + "/Length " +
                      QByteArray::number(bytes.size()) + ">>stream\n" + bytes + "\nendstream");
}

void PdfFile::finish(int catalogue, int information) {
    const qint64 table = at_;
    const QByteArray size = QByteArray::number(static_cast<qint64>(offsets_.size()) + 1);
    QByteArray lines = "xref\n0 " + size + "\n0000000000 65535 f \n";
    for (const qint64 offset : offsets_) {
        lines += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    }
    put(lines + "trailer\n<</Size " + size + "/Root " + pdfReference(catalogue) + "/Info " +
        pdfReference(information) + ">>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n");
}

}  // namespace tarn::pdf
