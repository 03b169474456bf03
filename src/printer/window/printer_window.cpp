#include "printer/window/printer_window.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <chrono>

#include "forms/form_catalogue.h"
#include "printer/intake/job_files.h"
#include "printer/paper/check_dock.h"
#include "printer/paper/form_choice.h"
#include "printer/paper/new_job_offer.h"
#include "printer/paper/paper_files.h"
#include "printer/paper/paper_name.h"
#include "printer/paper/paper_search_bar.h"
#include "printer/question_box.h"
#include "printer/sheets/sheet_dock.h"
#include "printer/window/printer_log.h"
#include "printer/window/printer_menus.h"
#include "printer/window/printer_status.h"
#include "runtime/version.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::chrono::milliseconds repaintInterval(40);
// Pixels, of the window and of what a window manager puts around it.
constexpr QSize usualSize(1100, 780);
constexpr QSize frame(8, 38);

// By what is in it, and by its name where that is broken.
bool isSheet(const QString& file) {
    constexpr qint64 beginning = 5;
    QFile in(file);
    const bool begins = in.open(QIODevice::ReadOnly) && in.read(beginning) == "%PDF-";
    return begins || file.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive);
}

}  // namespace

PrinterWindow::PrinterWindow(PaperRoll& roll, JobIntake& intake, HoldDesk& desk,
                             const PaintOptions& options, std::optional<int> itemLines)
    : roll_(roll), intake_(intake), options_(options) {
    setObjectName(QStringLiteral("PrinterWindow"));
    setWindowTitle(QStringLiteral("Impressora matricial virtual"));
    resize(usualSize.boundedTo(screen()->availableSize() - frame));
    questions_ = askTheUser(this);
    makeParts(desk);
    makeMenus(itemLines);
    addToolBar(Qt::BottomToolBarArea, search_);
    search_->hide();
    view_->setOptions(options_);

    changed_.setSingleShot(true);
    changed_.setInterval(repaintInterval);
    connect(&changed_, &QTimer::timeout, this, &PrinterWindow::paperChanged);
    connect(&intake_, &JobIntake::changed, this, [this] {
        if (!changed_.isActive()) {
            changed_.start();
        }
    });
    connect(&intake_, &JobIntake::jobEnded, this, &PrinterWindow::jobEnded);
    view_->setFocus();
    paperChanged();
}

void PrinterWindow::makeParts(HoldDesk& desk) {
    view_ = new PaperView(roll_, this);
    view_->setObjectName(QStringLiteral("paper"));
    view_->setAccessibleName(QStringLiteral("Papel impresso"));
    setCentralWidget(view_);
    log_ = new PrinterLog(*this);
    status_ = new PrinterStatus(*this, roll_, options_);
    connect(view_, &PaperView::hovered, status_, &PrinterStatus::showSpot);
    connect(view_, &PaperView::zoomed, this, &PrinterWindow::showCounts);
    connect(view_, &PaperView::zoomed, this, &PrinterWindow::showPaper);
    connect(view_, &PaperView::looked, this, &PrinterWindow::showPaper);
    search_ = new PaperSearchBar(roll_, *view_, this);
    files_ = new PaperFiles(roll_, options_, questions_, *this);
    files_->setProposal(
        [this] { return proposedName(roll_, view_->presentForm(), options_.design.get()); });
    connect(files_, &PaperFiles::saved, this, &PrinterWindow::tell);
    jobFiles_ = new JobFiles(intake_, this);
    offer_ = new NewJobOffer(*view_);
    holding_ = new HoldView(*this, desk, roll_, *view_, questions_, options_);
    connect(holding_, &HoldView::complained, this, &PrinterWindow::complain);
    connect(holding_, &HoldView::told, log_, &PrinterLog::add);
    connect(holding_, &HoldView::changed, this, &PrinterWindow::showCounts);
    sheets_ = new SheetDock(roll_, *view_, *this);
    check_ = new CheckDock(roll_, *view_, options_, *this);
    connect(sheets_, &SheetDock::told, log_, &PrinterLog::add);
    connect(sheets_, &SheetDock::refused, this, &PrinterWindow::complain);
    connect(sheets_, &SheetDock::changed, this, &PrinterWindow::showCounts);
    connect(files_, &PaperFiles::failed, this, &PrinterWindow::complain);
    connect(jobFiles_, &JobFiles::failed, this, &PrinterWindow::complain);
}

void PrinterWindow::makeMenus(std::optional<int> itemLines) {
    auto* menus = new PrinterMenus(*this, *view_, *search_, *files_, *holding_, *sheets_, options_);
    connect(menus, &PrinterMenus::openWanted, this, &PrinterWindow::openJobs);
    connect(menus, &PrinterMenus::copyWanted, this, &PrinterWindow::copyText);
    connect(menus, &PrinterMenus::selectWanted, this, &PrinterWindow::selectForm);
    connect(menus, &PrinterMenus::previousWanted, this, &PrinterWindow::previousJob);
    connect(menus, &PrinterMenus::nextWanted, this, &PrinterWindow::nextJob);
    connect(menus, &PrinterMenus::tearOffWanted, this, &PrinterWindow::tearOffAsked);
    connect(menus, &PrinterMenus::checkWanted, check_, &CheckDock::check);
    connect(menus, &PrinterMenus::checkWanted, menus, &PrinterMenus::tickMarks);
    connect(menus, &PrinterMenus::aboutWanted, this, &PrinterWindow::showAbout);
    connect(menus, &PrinterMenus::logWanted, this,
            [this] { log_->setVisible(!log_->isVisible()); });
    connect(menus, &PrinterMenus::rulerWanted, this, [this](bool on) {
        options_.ruler = on;
        view_->setOptions(options_);
    });
    connect(menus, &PrinterMenus::marksWanted, view_, &PaperView::showFaults);
    connect(holding_, &HoldView::opened, menus, &PrinterMenus::tickMarks);
    holding_->tellIfOpen();
    connect(menus, &PrinterMenus::bandsWanted, this, [this](bool on) {
        options_.bands = on;
        view_->setOptions(options_);
    });
    auto* forms = new FormChoice(*this, roll_, options_, questions_, itemLines);
    connect(forms, &FormChoice::failed, this, &PrinterWindow::complain);
    connect(forms, &FormChoice::printingAgain, search_, &PaperSearchBar::forget);
    connect(forms, &FormChoice::printedAgain, this, &PrinterWindow::printedAgain);
    menus->addHelp();
}

void PrinterWindow::setWaitingText(const QString& text) {
    status_->setWaiting(text);
}

void PrinterWindow::watchSheets(const QString& folder) {
    sheets_->watch(folder);
}

QWidget* PrinterWindow::errorBox() const {
    return findChild<QMessageBox*>(QStringLiteral("notice"));
}

void PrinterWindow::complain(const QString& text) {
    showWarning(*this, "notice", text);
}

void PrinterWindow::openJobs() {
    QStringList jobs;
    for (const QString& file : questions_.open(
             QStringLiteral("Abrir trabalho"),
             QStringLiteral("Trabalhos crus e folhas (*.prn *.pdf);;Todos os arquivos (*)"))) {
        isSheet(file) ? sheets_->open(file) : static_cast<void>(jobs << file);
    }
    jobFiles_->add(jobs);
}

void PrinterWindow::copyText() {
    if (view_->selection()) {
        QApplication::clipboard()->setText(textIn(roll_, *view_->selection()));
    }
}

void PrinterWindow::selectForm() {
    view_->select(regionOf(roll_, view_->presentForm()));
}

void PrinterWindow::previousJob() {
    const PaperUnits top = view_->topY();
    const auto& jobs = roll_.jobs();
    for (auto job = jobs.rbegin(); job != jobs.rend(); ++job) {
        if (job->y < top - lineHeight) {
            view_->showTop(job->y);
            statusBar()->showMessage(QString::fromStdString(job->name), 4000);
            return;
        }
    }
    view_->showTop(0);
}

void PrinterWindow::nextJob() {
    const PaperUnits top = view_->topY();
    for (const RollJob& job : roll_.jobs()) {
        if (job.y > top + lineHeight) {
            view_->showTop(job.y);
            statusBar()->showMessage(QString::fromStdString(job.name), 4000);
            return;
        }
    }
}

// A word that stays long enough to be read, and in the log for later.
void PrinterWindow::tell(const QString& text) {
    constexpr int longEnough = 15'000;  // milliseconds
    statusBar()->showMessage(text, longEnough);
    log_->add(text);
}

void PrinterWindow::showAbout() {
    const auto text = [](std::string_view view) {
        return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
    };
    showNotice(
        *this, "aboutBox", QStringLiteral("Sobre a impressora virtual"),
        QStringLiteral("Impressora matricial virtual do TarnEmissao\nVersão %1 (%2, %3)\n\n"
                       "Mostra no papel o que um trabalho cru imprime, antes que ele gaste "
                       "formulário. O manual conta o resto no capítulo \"Impressora virtual\".")
            .arg(text(productVersion), text(releaseName), text(versionDate)));
}

// Paper that nobody looked at isn't taken away without a word.
void PrinterWindow::tearOffAsked() {
    const std::size_t unseen = view_->unseenForms();
    if (unseen == 0) {
        return tearOff();
    }
    ask(*this,
        {.name = "tearOffQuestion",
         .text = (unseen == 1 ? QStringLiteral("Um formulário impresso ainda não foi visto.")
                              : QStringLiteral("%1 formulários impressos ainda não foram vistos.")
                                    .arg(unseen)) +
                 QStringLiteral(" Destacar o papel assim mesmo?"),
         .yesName = "tearOffYes",
         .yes = QStringLiteral("Destacar"),
         .no = QStringLiteral("Manter o papel")},
        [this] { tearOff(); });
}

void PrinterWindow::tearOff() {
    search_->forget();
    holding_->paperGone();
    roll_.tearOff(intake_.isOnPaper());
    log_->skipNotices(roll_.notices());
    view_->forgetSeen();
    offer_->withdraw();
    view_->followPrint();
    view_->select(std::nullopt);
    view_->mark(std::nullopt);
    log_->add(QStringLiteral("papel destacado."));
    paperChanged();
}

void PrinterWindow::jobEnded(const QString& name, const QString& why) {
    const RollJob* job = roll_.jobs().empty() ? nullptr : &roll_.jobs().back();
    // A job that could not be kept never came onto the paper.
    const bool isOnPaper = job != nullptr && job->name == name.toStdString();
    const QString known = !isOnPaper || job->paper.told
                              ? QString()
                              : QStringLiteral(" Papel reconhecido pelo conteúdo: %1.")
                                    .arg(QString::fromStdString(formTitle(job->paper.form->name)));
    log_->add((why.isEmpty() ? QStringLiteral("%1: impresso.").arg(name)
                             : QStringLiteral("%1: %2").arg(name, why)) +
              known);
    if (job == nullptr || job->shows) {
        offer_->jobCame();
    }
}

void PrinterWindow::printedAgain() {
    log_->skipNotices(roll_.notices());
    view_->setOptions(options_);
    paperChanged();
}

void PrinterWindow::paperChanged() {
    view_->refresh();
    showPaper();
    showCounts();
    check_->paperChanged();
    log_->addNotices(roll_.notices());
}

void PrinterWindow::showPaper() {
    status_->showPaper(view_->presentForm());
}

void PrinterWindow::showCounts() {
    status_->showCounts(holding_->count(), sheets_->count(), view_->zoom());
}

}  // namespace tarn::dotmatrix
