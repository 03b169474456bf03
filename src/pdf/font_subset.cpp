#include "pdf/font_subset.h"

#include <QtEndian>
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace tarn::pdf {

namespace {

using Offset = qsizetype;

// Reads nothing past the end: a font file is a file like any other.
class Table {
public:
    explicit Table(QByteArray bytes) : bytes_(std::move(bytes)) {}

    bool holds(Offset from, Offset count) const {
        return from >= 0 && count >= 0 && from <= bytes_.size() - count;
    }
    quint16 u16(Offset at) const {
        return holds(at, 2) ? qFromBigEndian<quint16>(bytes_.constData() + at) : quint16{0};
    }
    quint32 u32(Offset at) const {
        return holds(at, 4) ? qFromBigEndian<quint32>(bytes_.constData() + at) : 0U;
    }
    QByteArray part(Offset from, Offset count) const {
        return holds(from, count) ? bytes_.mid(from, count) : QByteArray();
    }
    const QByteArray& bytes() const { return bytes_; }

private:
    QByteArray bytes_;
};

void put16(QByteArray& to, quint32 value) {
    to += static_cast<char>((value >> 8U) & 0xFFU);
    to += static_cast<char>(value & 0xFFU);
}

void put32(QByteArray& to, quint32 value) {
    put16(to, value >> 16U);
    put16(to, value & 0xFFFFU);
}

void set16(QByteArray& in, Offset at, quint32 value) {
    in[at] = static_cast<char>((value >> 8U) & 0xFFU);
    in[at + 1] = static_cast<char>(value & 0xFFU);
}

void pad(QByteArray& bytes) {
    bytes.append((4 - bytes.size() % 4) % 4, '\0');
}

constexpr Offset headBytes = 54;
constexpr Offset headFormat = 50;  // of the offsets into the outlines: 0 short, 1 long
constexpr Offset maxpBytes = 6;
constexpr Offset outlineHead = 10;  // bytes of a glyph ahead of its contours or parts

// Flags of a part of a composed glyph.
constexpr quint32 wordArguments = 0x0001;
constexpr quint32 oneScale = 0x0008;
constexpr quint32 moreParts = 0x0020;
constexpr quint32 twoScales = 0x0040;
constexpr quint32 fullMatrix = 0x0080;
constexpr quint32 instructionsFollow = 0x0100;

Offset partBytes(quint32 flags) {
    Offset count = 4 + ((flags & wordArguments) != 0 ? 4 : 2);
    if ((flags & oneScale) != 0) {
        count += 2;
    } else if ((flags & twoScales) != 0) {
        count += 4;
    } else if ((flags & fullMatrix) != 0) {
        count += 8;
    }
    return count;
}

bool isComposed(const Table& outline) {
    return (outline.u16(0) & 0x8000U) != 0;
}

std::vector<quint32> partsOf(const Table& outline) {
    std::vector<quint32> parts;
    quint32 flags = moreParts;
    for (Offset at = outlineHead; (flags & moreParts) != 0 && outline.holds(at, 4);
         at += partBytes(flags)) {
        flags = outline.u16(at);
        parts.push_back(outline.u16(at + 2));
    }
    return parts;
}

QByteArray composedWithoutInstructions(const Table& outline) {
    QByteArray bytes = outline.bytes();
    quint32 flags = moreParts;
    Offset at = outlineHead;
    while ((flags & moreParts) != 0 && outline.holds(at, 4)) {
        flags = outline.u16(at);
        set16(bytes, at, flags & ~instructionsFollow);
        at += partBytes(flags);
    }
    return bytes.left(at);
}

QByteArray withoutInstructions(const Table& outline) {
    if (outline.bytes().size() < outlineHead) {
        return {};
    }
    if (isComposed(outline)) {
        return composedWithoutInstructions(outline);
    }
    const Offset count = outlineHead + 2 * Offset{outline.u16(0)};
    const Offset rest = count + 2 + outline.u16(count);
    if (!outline.holds(count, 2) || !outline.holds(rest, 0)) {
        return {};
    }
    QByteArray bytes = outline.part(0, count);
    put16(bytes, 0);
    return bytes + outline.bytes().mid(rest);
}

class Outlines {
public:
    Outlines(const PdfFace& face, bool longOffsets)
        : places_(face.offsets), outlines_(face.contours), longOffsets_(longOffsets) {}

    Table of(quint32 glyph) const {
        const Offset from = place(glyph);
        return Table(outlines_.part(from, place(glyph + 1) - from));
    }

private:
    Offset place(quint32 glyph) const {
        return longOffsets_ ? Offset{places_.u32(Offset{glyph} * 4)}
                            : Offset{places_.u16(Offset{glyph} * 2)} * 2;
    }

    Table places_;
    Table outlines_;
    bool longOffsets_;
};

// With the glyphs that composed ones are made of; the first is shown for what is missing.
std::set<quint32> withParts(const Outlines& outlines, const std::set<quint32>& glyphs) {
    std::set<quint32> all{0};
    std::vector<quint32> left(glyphs.begin(), glyphs.end());
    while (!left.empty()) {
        const quint32 glyph = left.back();
        left.pop_back();
        if (!all.insert(glyph).second) {
            continue;
        }
        if (const Table outline = outlines.of(glyph); isComposed(outline)) {
            const std::vector<quint32> parts = partsOf(outline);
            left.insert(left.end(), parts.begin(), parts.end());
        }
    }
    return all;
}

quint32 checksum(const QByteArray& bytes) {
    const Table table(bytes);
    quint32 sum = 0;
    for (Offset at = 0; at < bytes.size(); at += 4) {
        sum += table.u32(at);
    }
    return sum;
}

QByteArray fileOf(const std::map<QByteArray, QByteArray>& tables) {
    QByteArray directory;
    QByteArray content;
    const auto count = static_cast<quint32>(tables.size());
    quint32 power = 0;
    while ((2U << power) <= count) {
        ++power;
    }
    put32(directory, 0x00010000);
    put16(directory, count);
    put16(directory, 16U << power);
    put16(directory, power);
    put16(directory, count * 16 - (16U << power));
    const Offset begin = directory.size() + Offset{count} * 16;
    Offset head = 0;
    for (const auto& [tag, table] : tables) {
        const auto size = static_cast<quint32>(table.size());
        head = tag == "head" ? begin + content.size() : head;
        QByteArray bytes = table;
        pad(bytes);
        directory += tag;
        put32(directory, checksum(bytes));
        put32(directory, static_cast<quint32>(begin + content.size()));
        put32(directory, size);
        content += bytes;
    }
    QByteArray file = directory + content;
    constexpr quint32 wholeSum = 0xB1B0AFBA;  // that the format wants
    constexpr Offset adjustment = 8;
    const quint32 missing = wholeSum - checksum(file);
    set16(file, head + adjustment, missing >> 16U);
    set16(file, head + adjustment + 2, missing);
    return file;
}

}  // namespace

QByteArray trueTypeSubset(const PdfFace& face, const std::set<quint32>& glyphs) {
    const Table head(face.head);
    const Table maxp(face.maxp);
    const Table hhea(face.hhea);
    const Table hmtx(face.hmtx);
    const Outlines outlines(face, head.u16(headFormat) != 0);
    if (!head.holds(0, headBytes) || !maxp.holds(0, maxpBytes) || !hhea.holds(0, hheaBytes) ||
        face.contours.isEmpty()) {
        return {};
    }
    const std::set<quint32> kept = withParts(outlines, glyphs);
    const quint32 count = *kept.rbegin() + 1;
    const quint32 metrics = std::min<quint32>(hhea.u16(hheaMetrics), count);

    QByteArray places;
    QByteArray drawn;
    for (quint32 glyph = 0; glyph < count; ++glyph) {
        put32(places, static_cast<quint32>(drawn.size()));
        if (kept.count(glyph) > 0) {
            drawn += withoutInstructions(outlines.of(glyph));
            pad(drawn);
        }
    }
    put32(places, static_cast<quint32>(drawn.size()));

    QByteArray newHead = head.part(0, headBytes);
    set16(newHead, 8, 0);
    set16(newHead, 10, 0);
    set16(newHead, headFormat, 1);
    QByteArray newMaxp = maxp.bytes();
    set16(newMaxp, 4, count);
    QByteArray newHhea = hhea.part(0, hheaBytes);
    set16(newHhea, hheaMetrics, metrics);
    return fileOf({{"head", newHead},
                   {"maxp", newMaxp},
                   {"hhea", newHhea},
                   {"hmtx", hmtx.bytes().left(Offset{metrics} * 4 + Offset{count - metrics} * 2)},
                   {"loca", places},
                   {"glyf", drawn}});
}

}  // namespace tarn::pdf
