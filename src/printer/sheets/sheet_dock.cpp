#include "printer/sheets/sheet_dock.h"

#include "printer/job_order.h"

namespace tarn::dotmatrix {

SheetDock::SheetDock(PaperRoll& roll, PaperView& paper, QMainWindow& window,
                     const PdfPrograms& programs)
    : QDockWidget(QStringLiteral("Folhas soltas"), &window),
      roll_(roll),
      paper_(paper),
      window_(window),
      pile_(programs),
      view_(new SheetView(pile_, programs, this)) {
    setObjectName(QStringLiteral("sheetsPanel"));
    view_->setObjectName(QStringLiteral("sheets"));
    view_->setStory([this](const SheetFile& file) { return storyOf(file); });
    setWidget(view_);
    window.addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
    connect(&pile_, &SheetPile::changed, this, &SheetDock::changed);
    connect(&pile_, &SheetPile::troubled, this, &SheetDock::told);
    connect(&pile_, &SheetPile::refused, this, &SheetDock::refused);
    connect(&pile_, &SheetPile::arrived, this, &SheetDock::arrived);
    connect(view_, &SheetView::sheetClicked, this, &SheetDock::showPaperOf);
    connect(view_, &SheetView::zoomTurned, &paper_, &PaperView::zoomStep);
    connect(&paper_, &PaperView::zoomed, this, [this] { view_->setZoom(paper_.zoom()); });
}

QString SheetDock::count() const {
    const std::size_t sheets = pile_.sheets();
    return sheets == 0 ? QString() : QStringLiteral(", %1 folha(s)").arg(sheets);
}

void SheetDock::open(const QString& path) {
    wasShown_ = false;
    pile_.open(path);
}

// Who closes the panel isn't given it again by every sheet.
void SheetDock::arrived(const QString& name) {
    if (!wasShown_) {
        wasShown_ = true;
        show();
        window_.resizeDocks({this}, {window_.width() * 2 / 5}, Qt::Horizontal);
    }
    view_->follow(name);
}

// The last job on the paper that was printed before this sheet.
const RollJob* SheetDock::jobBefore(const QString& sheet) const {
    const auto& jobs = roll_.jobs();
    for (auto job = jobs.rbegin(); job != jobs.rend(); ++job) {
        const QString name = QString::fromStdString(job->name);
        if (job->shows && name.startsWith(u"job-") && comesBefore(name, sheet)) {
            return &*job;
        }
    }
    return nullptr;
}

QString SheetDock::storyOf(const SheetFile& file) const {
    const RollJob* before = jobBefore(file.name);
    return QStringLiteral(" · ") + file.written.toString(QStringLiteral("HH:mm")) +
           (before == nullptr
                ? QString()
                : QStringLiteral(" · depois de ") + QString::fromStdString(before->name));
}

void SheetDock::showPaperOf(const QString& sheet) {
    if (const RollJob* before = jobBefore(sheet)) {
        paper_.showTop(before->y);
    }
}

}  // namespace tarn::dotmatrix
