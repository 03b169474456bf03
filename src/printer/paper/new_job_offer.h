// Offers the way to a job that came while the user looks elsewhere on the paper.
#pragma once

#include <QPushButton>

#include "printer/paper/paper_view.h"

namespace tarn::dotmatrix {

class NewJobOffer : public QPushButton {
    Q_OBJECT

public:
    // Lies over `view`, which must outlive this.
    explicit NewJobOffer(PaperView& view);

    void jobCame();
    // There is nothing left to be offered.
    void withdraw();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    PaperView& view_;
    int jobs_ = 0;
};

}  // namespace tarn::dotmatrix
