// The list of the held jobs, with what the user may do with each.
#pragma once

#include <QWidget>
#include <map>

#include "printer/held/hold_desk.h"

class QLabel;
class QPushButton;
class QTableWidget;

namespace tarn::dotmatrix {

class HeldPanel : public QWidget {
    Q_OBJECT

public:
    // `desk` must outlive this.
    HeldPanel(HoldDesk& desk, QWidget* parent);

    // The job of the chosen row; nothing where none is.
    std::optional<int> chosen() const;
    void choose(int number);
    // What the paper shows of a job, in a word for its row.
    void setFindings(int number, const QString& words);

    void release();
    void releaseAll();
    void refuse();

signals:
    void jobChosen(int number);
    // The user wants this one off the disk.
    void forgetWanted(int number);

private:
    QPushButton* add(const char* name, const QString& text, const QString& hint,
                     void (HeldPanel::*run)());
    void makeButtons();
    void refresh();
    void fill(int row, const HeldEntry& entry);
    void enable();
    void forget();
    void onPaper();
    void notOnPaper();
    std::vector<const HeldEntry*> shown() const;

    HoldDesk& desk_;
    std::map<int, QString> findings_;  // by number
    QLabel* queue_;
    QTableWidget* table_;
    QPushButton* release_;
    QPushButton* releaseAll_;
    QPushButton* refuse_;
    QPushButton* forget_;
    QPushButton* onPaper_;
    QPushButton* notOnPaper_;
};

}  // namespace tarn::dotmatrix
