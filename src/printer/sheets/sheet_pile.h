// The drawn documents of a folder: loose sheets, in the order in which they were printed.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSizeF>
#include <QTimer>
#include <map>
#include <optional>
#include <vector>

#include "printer/sheets/pdf_program.h"

namespace tarn::dotmatrix {

struct SheetFile {
    QString name;
    QString path;
    QDateTime written;
    qint64 size = 0;  // bytes
    // In points, as they are looked at; empty where they can't be read, and `remark` says why.
    std::vector<QSizeF> pages{};
    QString remark{};     // a sentence in Portuguese
    int version = 0;      // a later one has to be drawn again
    bool rests = false;   // it has stopped growing
    bool isRead = false;  // in this version
};

class SheetPile : public QObject {
    Q_OBJECT

public:
    explicit SheetPile(PdfPrograms programs = {});

    // Takes the job-*.pdf files of this folder from now on. One that still grows is taken
    // when it rests, and again when it changes; a folder that isn't there is waited for.
    void watch(const QString& folder);
    // Takes this file too, wherever it lies.
    void open(const QString& path);
    const std::vector<SheetFile>& files() const { return files_; }
    // Sheets that can be looked at.
    std::size_t sheets() const;
    // All sheets are taken away; what comes later, or changes, is shown.
    void clear();

signals:
    void changed();
    void arrived(const QString& name);
    // A file that can't be read, as a line for the log.
    void troubled(const QString& line);
    // One that was opened can't be read and isn't shown; a whole sentence for the user.
    void refused(const QString& text);

private:
    struct Seen {
        qint64 size = 0;
        QDateTime written;
    };
    void start();
    void look();
    QFileInfoList there() const;
    void refuse(const QString& path, PdfProgram::End end);
    void dropMissing(const QFileInfoList& there);
    void note(const QFileInfo& file);
    void readNext();
    void take(const QString& path, int version, PdfProgram::End end, const QByteArray& output);
    QString nameOf(const QString& path) const;
    std::vector<SheetFile>::iterator placeOf(const QString& name);
    SheetFile* fileOf(const QString& path);
    SheetFile& add(const QFileInfo& file);

    PdfPrograms programs_;
    PdfProgram reader_;
    std::optional<QDir> folder_;
    QStringList opened_;  // paths
    QFileSystemWatcher watcher_;
    QTimer timer_;
    std::vector<SheetFile> files_;
    std::map<QString, Seen> takenAway_;  // by path
};

// The pages that pdfinfo lists, in points, turned as they are looked at.
std::vector<QSizeF> pagesIn(const QByteArray& listing);

}  // namespace tarn::dotmatrix
