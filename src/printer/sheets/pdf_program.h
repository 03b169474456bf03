// The programs that read a PDF, run beside the window: poppler's, whose licence a program that
// linked its library would take over, and which may break on a broken file alone.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <memory>

namespace tarn::dotmatrix {

struct PdfPrograms {
    QString info = QStringLiteral("pdfinfo");
    QString paint = QStringLiteral("pdftoppm");
};

// One program at a time.
class PdfProgram : public QObject {
    Q_OBJECT

public:
    enum class End { Good, Failed, NotInstalled };
    using Done = std::function<void(End end, const QByteArray& output)>;

    PdfProgram();
    ~PdfProgram() override;

    bool isRunning() const { return process_ != nullptr; }
    // `done` is called later, once. A run that takes too long, or writes more than a page
    // can be, has failed.
    void run(const QString& program, const QStringList& arguments, Done done);

private:
    void take();
    void finish(End end);

    std::unique_ptr<QProcess> process_;
    QTimer patience_;
    QByteArray output_;
    Done done_;
};

}  // namespace tarn::dotmatrix
