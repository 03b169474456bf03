#include "printer/paper/new_job_offer.h"

#include <QEvent>

namespace tarn::dotmatrix {

namespace {

constexpr int aboveTheEdge = 16;  // pixels

}  // namespace

NewJobOffer::NewJobOffer(PaperView& view) : QPushButton(&view), view_(view) {
    setObjectName(QStringLiteral("newJob"));
    setToolTip(QStringLiteral("Mostra o que acabou de ser impresso"));
    setFocusPolicy(Qt::TabFocus);
    hide();
    view_.installEventFilter(this);
    connect(this, &QPushButton::clicked, &view_, [this] {
        view_.followPrint();
        view_.setFocus();
    });
    connect(&view_, &PaperView::looked, this, [this] {
        if (view_.isFollowing()) {
            withdraw();
        }
    });
}

void NewJobOffer::jobCame() {
    if (view_.isFollowing()) {
        return;
    }
    ++jobs_;
    setText(jobs_ == 1 ? QStringLiteral("Chegou um trabalho: ver")
                       : QStringLiteral("Chegaram %1 trabalhos: ver o último").arg(jobs_));
    place();
    show();
    raise();
}

void NewJobOffer::withdraw() {
    jobs_ = 0;
    hide();
}

void NewJobOffer::place() {
    resize(sizeHint());
    const QRect room = view_.viewport()->geometry();
    move(room.center().x() - width() / 2, room.bottom() - height() - aboveTheEdge);
}

bool NewJobOffer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        place();
    }
    return QPushButton::eventFilter(watched, event);
}

}  // namespace tarn::dotmatrix
