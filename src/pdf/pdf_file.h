// The frame of a PDF file: numbered objects, written one after the other, and the table
// that tells where each of them begins.
#pragma once

#include <QByteArray>
#include <vector>

class QIODevice;
class QString;

namespace tarn::pdf {

class PdfFile {
public:
    // `out`, open for writing, must outlive this.
    explicit PdfFile(QIODevice& out);

    // The number of an object that is written later; each must be.
    int reserve();
    void write(int object, const QByteArray& content);
    // `dictionary` without its brackets, its filter and its length.
    void writeStream(int object, const QByteArray& dictionary, const QByteArray& content);
    // The same of bytes that are compressed already; `filter` names how.
    void writeEncoded(int object, const QByteArray& dictionary, const QByteArray& filter,
                      const QByteArray& bytes);
    void finish(int catalogue, int information);

    // Whether the device took everything so far.
    bool taken() const { return taken_; }

private:
    void put(const QByteArray& bytes);

    QIODevice& out_;
    std::vector<qint64> offsets_;  // of the objects from 1 on; 0: not yet written
    qint64 at_ = 0;
    bool taken_ = true;
};

// Smaller, for a stream whose filter is /FlateDecode.
QByteArray deflated(const QByteArray& bytes);
QByteArray pdfReference(int object);
// "/F7", as pages call what their resources list.
QByteArray pdfName(char kind, int number);
// As short as it can be with a ten-thousandth of a point, and without an exponent.
void appendNumber(QByteArray& to, double value);
// A text in quotation, any script.
QByteArray pdfText(const QString& text);

}  // namespace tarn::pdf
