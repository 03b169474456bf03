#include "printer/held/hold_view.h"

#include <QDockWidget>
#include <algorithm>

#include "printer/held/held_panel.h"
#include "printer/paper/paper_check.h"
#include "printer/question_box.h"
#include "printer/window_commands.h"

namespace tarn::dotmatrix {

HoldView::HoldView(QMainWindow& window, HoldDesk& desk, PaperRoll& roll, PaperView& view,
                   const WindowQuestions& questions, const PaintOptions& looks)
    : QObject(&window),
      window_(window),
      desk_(desk),
      roll_(roll),
      view_(view),
      questions_(questions),
      looks_(looks) {
    makeDock();
    connect(&desk_, &HoldDesk::changed, this, &HoldView::changed);
    connect(&desk_, &HoldDesk::changed, this, &HoldView::tellIfOpen);
    connect(&desk_, &HoldDesk::kept, this, &HoldView::kept);
    connect(&desk_, &HoldDesk::troubled, this, [this](int number, const QString& text) {
        panel_->choose(number);
        emit told(text);
    });
    connect(&desk_, &HoldDesk::passedOn, this, [this](int number) {
        emit told(
            QStringLiteral("trabalho %1: repassado à fila %2.").arg(number).arg(desk_.queue()));
    });
}

void HoldView::tellIfOpen() {
    if (desk_.isOpen() && !wasOpen_) {
        wasOpen_ = true;
        emit opened();
    }
}

void HoldView::kept(int number) {
    if (!roll_.jobs().empty()) {
        const std::size_t job = roll_.jobs().size() - 1;
        places_[number] = job;
        panel_->setFindings(number, findingsOf(job));
    }
    dock_->show();
}

// How the job's print lies on its form, in a word.
QString HoldView::findingsOf(std::size_t job) const {
    constexpr std::size_t mostForms = 100;  // more would keep the next job waiting
    if (roll_.printedForms() - std::min(roll_.printedForms(), roll_.jobs()[job].form) > mostForms) {
        return QStringLiteral("confira com F6");
    }
    const auto faults = faultsOfJob(roll_, job, looks_.design.get());
    if (!faults) {
        return QStringLiteral("sem formulário");
    }
    return faults->empty()       ? QStringLiteral("nada cortado")
           : faults->size() == 1 ? QStringLiteral("1 lugar")
                                 : QStringLiteral("%1 lugares").arg(faults->size());
}

void HoldView::makeDock() {
    panel_ = new HeldPanel(desk_, &window_);
    dock_ = new QDockWidget(QStringLiteral("Trabalhos retidos"), &window_);
    dock_->setObjectName(QStringLiteral("heldPanel"));
    dock_->setWidget(panel_);
    window_.addDockWidget(Qt::BottomDockWidgetArea, dock_);
    constexpr int someRows = 200;  // pixels; the paper keeps the most of the window
    window_.resizeDocks({dock_}, {someRows}, Qt::Vertical);
    dock_->hide();
    connect(panel_, &HeldPanel::jobChosen, this, &HoldView::show);
    connect(panel_, &HeldPanel::forgetWanted, this, &HoldView::askToForget);
}

void HoldView::addMenu(WindowCommands& commands) {
    commands.menu("queueMenu", QStringLiteral("F&ila"));
    commands.add({.name = "passTo",
                  .text = QStringLiteral("Repassar &para..."),
                  .hint = QStringLiteral("Escolhe a fila de verdade: os trabalhos que chegam ficam "
                                         "retidos até serem liberados para ela")},
                 [this] { chooseQueue(); });
    commands.separate();
    commands.add({.name = "release",
                  .text = QStringLiteral("&Repassar o trabalho"),
                  .keys = QKeySequence(Qt::CTRL | Qt::Key_Enter),
                  .alsoKeys = QKeySequence(Qt::CTRL | Qt::Key_Return),
                  .hint = QStringLiteral("Manda o trabalho escolhido à fila, como chegou"),
                  .inTools = true},
                 [this] { panel_->release(); });
    commands.add({.name = "releaseAll",
                  .text = QStringLiteral("Repassar &todos"),
                  .hint = QStringLiteral("Manda à fila todos os trabalhos retidos, na ordem")},
                 [this] { panel_->releaseAll(); });
    commands.add({.name = "refuse",
                  .text = QStringLiteral("Re&cusar o trabalho"),
                  .hint = QStringLiteral("Guarda o trabalho escolhido sem mandar à fila")},
                 [this] { panel_->refuse(); });
    commands.separate();
    commands.add({.name = "showHeld",
                  .text = QStringLiteral("Trabalhos reti&dos"),
                  .keys = QKeySequence(Qt::Key_F9),
                  .hint = QStringLiteral("Mostra a lista dos trabalhos retidos")},
                 [this] { dock_->setVisible(!dock_->isVisible()); });
}

void HoldView::chooseQueue() {
    const QString queue = questions_.queue();
    if (queue.isEmpty() || !start_) {
        return;
    }
    const QString wrong = start_(queue);
    wrong.isEmpty() ? dock_->show() : emit complained(wrong);
}

void HoldView::show(int number) {
    const auto place = places_.find(number);
    if (place != places_.end() && place->second < roll_.jobs().size()) {
        view_.showTop(roll_.jobs()[place->second].y);
    }
}

QString HoldView::count() const {
    if (!desk_.isOpen()) {
        return {};
    }
    return QStringLiteral("%1 retido(s)").arg(desk_.count(hold::State::Held));
}

void HoldView::askToForget(int number) {
    ask(window_,
        {.name = "forgetQuestion",
         .text = QStringLiteral("Apagar do disco o trabalho %1? Ele não poderá mais ser repassado.")
                     .arg(number),
         .yesName = "forgetYes",
         .yes = QStringLiteral("Apagar"),
         .no = QStringLiteral("Manter")},
        [this, number] { desk_.forget(number); });
}

}  // namespace tarn::dotmatrix
