#include "printer/window/printer_status.h"

#include <QLabel>
#include <QStatusBar>
#include <algorithm>
#include <iterator>

#include "dotmatrix/paper_roll.h"
#include "forms/form_catalogue.h"

namespace tarn::dotmatrix {

PrinterStatus::PrinterStatus(QMainWindow& window, const PaperRoll& roll, const PaintOptions& looks)
    : QObject(&window), window_(window), roll_(roll), looks_(looks) {
    waiting_ = add("waiting", 1);
    paper_ = add("paperName", 0);
    spot_ = add("position", 0);
    count_ = add("count", 0);
}

QLabel* PrinterStatus::add(const char* name, int stretch) {
    auto* label = new QLabel(&window_);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    QStatusBar& bar = *window_.statusBar();
    stretch > 0 ? bar.addWidget(label, stretch) : bar.addPermanentWidget(label);
    return label;
}

void PrinterStatus::setWaiting(const QString& text) {
    waiting_->setText(text);
}

void PrinterStatus::showPaper(std::size_t form) {
    if (looks_.design) {
        paper_->setText(QString::fromStdString(formTitle(looks_.design->name)));
    } else {
        paper_->setText(roll_.followsJobs() ? paperOfJobs(form)
                                            : QStringLiteral("Papel em branco"));
    }
}

// What lies there, and how it is known of the last job that began on it or above it.
QString PrinterStatus::paperOfJobs(std::size_t form) const {
    const auto design = roll_.designOf(form);
    const QString paper = design ? QString::fromStdString(formTitle(design->name))
                                 : QStringLiteral("Papel em branco");
    const auto after = std::ranges::upper_bound(roll_.jobs(), form, {}, &RollJob::form);
    if (after == roll_.jobs().begin()) {
        return paper;
    }
    const JobPaper& known = std::prev(after)->paper;
    if (!known.form) {
        return paper + QStringLiteral(" (o trabalho não diz o seu papel)");
    }
    return known.told ? paper : paper + QStringLiteral(" (reconhecido pelo conteúdo)");
}

void PrinterStatus::showSpot(const PaperSpot& spot) {
    QString text = QStringLiteral("formulário %1, linha %2").arg(spot.form + 1).arg(spot.line);
    if (spot.column > 0) {
        text += QStringLiteral(", coluna %1").arg(spot.column);
    }
    if (!spot.box.isEmpty()) {
        text += QStringLiteral(" · ") + spot.box;
    }
    spot_->setText(text);
}

void PrinterStatus::showCounts(const QString& held, const QString& sheets, double zoom) {
    count_->setText((held.isEmpty() ? QString() : held + QStringLiteral("  ·  ")) +
                    QStringLiteral("%1 trabalho(s), %2 formulário(s)%3  ·  %4%")
                        .arg(roll_.shownJobs())
                        .arg(roll_.printedForms())
                        .arg(sheets)
                        .arg(qRound(zoom * 100)));
}

}  // namespace tarn::dotmatrix
