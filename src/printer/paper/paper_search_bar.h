// The bar in which a text is searched on the paper.
#pragma once

#include <QTimer>
#include <QToolBar>
#include <memory>
#include <optional>

#include "printer/paper/paper_search.h"
#include "printer/paper/paper_view.h"

class QLabel;
class QLineEdit;

namespace tarn::dotmatrix {

class PaperSearchBar : public QToolBar {
    Q_OBJECT

public:
    // `roll` and `view` must outlive this.
    PaperSearchBar(PaperRoll& roll, PaperView& view, QWidget* parent);

    void find();
    void findNext();
    void findPrevious();
    // The paper is another one: what was found on it is forgotten.
    void forget();

private:
    void makeButtons();
    void search(PaperSearch::Direction direction);
    void countOn();
    void showResult();
    void searchOn();
    void leave();

    PaperRoll& roll_;
    PaperView& view_;
    QLineEdit* text_;
    QLabel* result_;
    QTimer searching_;
    std::unique_ptr<PaperSearch> search_;
    std::optional<PaperRegion> found_;
    QString foundText_;
    QTimer counting_;
    std::unique_ptr<PaperCount> count_;
    std::size_t countedVersion_ = 0;  // of the paper
    bool counted_ = false;
    bool wrapped_ = false;
};

}  // namespace tarn::dotmatrix
