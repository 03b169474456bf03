#include "printer/sheets/sheet_pile.h"

#include <QRegularExpression>
#include <algorithm>
#include <chrono>
#include <set>

#include "printer/job_order.h"

namespace tarn::dotmatrix {

namespace {

constexpr int mostPages = 10'000;  // of one file
constexpr double leastSide = 1;    // points
constexpr double mostSide = 14'400;

QSizeF sane(double width, double height) {
    return {std::clamp(width, leastSide, mostSide), std::clamp(height, leastSide, mostSide)};
}

QString remarkOn(PdfProgram::End end, const SheetFile& file) {
    if (end == PdfProgram::End::NotInstalled) {
        return QStringLiteral(
                   "Falta nesta máquina o programa que desenha as folhas: instale o pacote "
                   "poppler-utils e abra esta janela de novo. A folha está em %1.")
            .arg(file.path);
    }
    return QStringLiteral(
        "Ainda não dá para ler esta folha: o arquivo está incompleto ou não é um PDF. Ela "
        "aparece aqui quando o arquivo ficar inteiro.");
}

}  // namespace

std::vector<QSizeF> pagesIn(const QByteArray& listing) {
    static const QRegularExpression size(
        QStringLiteral(R"(^Page +(\d+) size: +([0-9.]+) x ([0-9.]+) pts)"));
    static const QRegularExpression turn(QStringLiteral(R"(^Page +(\d+) rot: +(\d+))"));
    std::vector<QSizeF> pages;
    for (const QByteArray& bytes : listing.split('\n')) {
        const QString line = QString::fromLatin1(bytes);
        if (const auto match = size.match(line); match.hasMatch()) {
            pages.push_back(sane(match.captured(2).toDouble(), match.captured(3).toDouble()));
        } else if (const auto turned = turn.match(line); turned.hasMatch() && !pages.empty()) {
            if (turned.captured(2).toInt() % 180 == 90) {
                pages.back().transpose();
            }
        }
    }
    return pages;
}

SheetPile::SheetPile(PdfPrograms programs) : programs_(std::move(programs)) {
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &SheetPile::look);
    connect(&timer_, &QTimer::timeout, this, &SheetPile::look);
}

void SheetPile::watch(const QString& folder) {
    folder_ = QDir(folder);
    start();
}

void SheetPile::open(const QString& path) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    opened_.removeAll(whole);
    opened_ << whole;
    takenAway_.erase(whole);
    start();
}

void SheetPile::start() {
    timer_.start(betweenFolderLooks);
    QMetaObject::invokeMethod(this, &SheetPile::look, Qt::QueuedConnection);
}

std::size_t SheetPile::sheets() const {
    std::size_t count = 0;
    for (const SheetFile& file : files_) {
        count += file.pages.size();
    }
    return count;
}

void SheetPile::clear() {
    for (const SheetFile& file : files_) {
        takenAway_[file.path] = {file.size, file.written};
    }
    files_.clear();
    opened_.clear();
    emit changed();
}

QFileInfoList SheetPile::there() const {
    QFileInfoList files;
    if (folder_) {
        files = QDir(folder_->path()).entryInfoList({QStringLiteral("job-*.pdf")}, QDir::Files);
    }
    for (const QString& path : opened_) {
        if (const QFileInfo file(path); file.isFile() && !files.contains(file)) {
            files << file;
        }
    }
    return files;
}

void SheetPile::look() {
    if (folder_ && watcher_.directories().isEmpty() && folder_->exists()) {
        watcher_.addPath(folder_->path());
    }
    const QFileInfoList files = there();
    dropMissing(files);
    for (const QFileInfo& file : files) {
        note(file);
    }
    readNext();
}

void SheetPile::dropMissing(const QFileInfoList& there) {
    std::set<QString> paths;
    for (const QFileInfo& file : there) {
        paths.insert(file.absoluteFilePath());
    }
    std::erase_if(takenAway_, [&](const auto& entry) { return !paths.contains(entry.first); });
    const auto gone =
        std::erase_if(files_, [&](const SheetFile& file) { return !paths.contains(file.path); });
    if (gone > 0) {
        emit changed();
    }
}

// What is as it was a look ago has come to rest.
void SheetPile::note(const QFileInfo& info) {
    const QString path = info.absoluteFilePath();
    SheetFile* file = fileOf(path);
    bool isNew = false;
    if (file == nullptr) {
        const auto away = takenAway_.find(path);
        if (away != takenAway_.end() && away->second.size == info.size() &&
            away->second.written == info.lastModified()) {
            return;
        }
        takenAway_.erase(path);
        file = &add(info);
        isNew = true;
    } else if (file->size == info.size() && file->written == info.lastModified()) {
        file->rests = true;
        return;
    }
    file->size = info.size();
    file->written = info.lastModified();
    file->rests = false;
    file->isRead = false;
    ++file->version;
    if (isNew) {
        const QString name = file->name;
        emit changed();
        emit arrived(name);
    }
}

SheetFile& SheetPile::add(const QFileInfo& info) {
    const QString name = nameOf(info.absoluteFilePath());
    return *files_.insert(placeOf(name), {.name = name,
                                          .path = info.absoluteFilePath(),
                                          .written = info.lastModified(),
                                          .remark = QStringLiteral("Esta folha está chegando.")});
}

// The files stand in their order, so that a look at many of them doesn't compare each with each.
std::vector<SheetFile>::iterator SheetPile::placeOf(const QString& name) {
    return std::lower_bound(files_.begin(), files_.end(), name,
                            [](const SheetFile& file, const QString& wanted) {
                                return comesBefore(file.name, wanted);
                            });
}

SheetFile* SheetPile::fileOf(const QString& path) {
    const auto found = placeOf(nameOf(path));
    return found != files_.end() && found->path == path ? &*found : nullptr;
}

// One that lies elsewhere may be called as one of the folder is.
QString SheetPile::nameOf(const QString& path) const {
    const QFileInfo file(path);
    const bool elsewhere = folder_ && file.absolutePath() != folder_->absolutePath() &&
                           QFileInfo::exists(folder_->filePath(file.fileName()));
    return elsewhere ? path : file.fileName();
}

// The user stands before it: what is wrong is told at once, and the window is as before.
void SheetPile::refuse(const QString& path, PdfProgram::End end) {
    opened_.removeAll(path);
    std::erase_if(files_, [&path](const SheetFile& file) { return file.path == path; });
    emit changed();
    emit refused(end == PdfProgram::End::NotInstalled
                     ? QStringLiteral("Falta nesta máquina o programa que desenha as folhas: "
                                      "instale o pacote poppler-utils e abra o arquivo de novo.")
                     : QStringLiteral("Não foi possível ler \"%1\": o arquivo está incompleto ou "
                                      "não é um PDF.")
                           .arg(path));
}

void SheetPile::readNext() {
    if (reader_.isRunning()) {
        return;
    }
    const auto next = std::find_if(files_.begin(), files_.end(), [](const SheetFile& file) {
        return file.rests && !file.isRead;
    });
    if (next == files_.end()) {
        return;
    }
    next->isRead = true;
    reader_.run(
        programs_.info,
        {QStringLiteral("-f"), QStringLiteral("1"), QStringLiteral("-l"),
         QString::number(mostPages), next->path},
        [this, path = next->path, version = next->version](
            PdfProgram::End end, const QByteArray& output) { take(path, version, end, output); });
}

void SheetPile::take(const QString& path, int version, PdfProgram::End end,
                     const QByteArray& output) {
    SheetFile* file = fileOf(path);
    const bool readable = end == PdfProgram::End::Good && !pagesIn(output).empty();
    if (file != nullptr && !readable && opened_.contains(path)) {
        refuse(path, end);
    } else if (file != nullptr && file->version == version) {
        file->pages = end == PdfProgram::End::Good ? pagesIn(output) : std::vector<QSizeF>();
        file->remark = file->pages.empty() ? remarkOn(end, *file) : QString();
        if (!file->remark.isEmpty()) {
            emit troubled(QStringLiteral("%1: %2").arg(file->name, file->remark));
        }
        emit changed();
    }
    readNext();
}

}  // namespace tarn::dotmatrix
