// The paper written to files and to printers of the machine.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "dotmatrix/paper_export.h"
#include "dotmatrix/paper_roll.h"
#include "printer/window_questions.h"

namespace tarn::dotmatrix {

class PaperFiles : public QObject {
    Q_OBJECT

public:
    // All must outlive this; `options` are the looks of the paper at the time.
    PaperFiles(PaperRoll& roll, const PaintOptions& options, const WindowQuestions& questions,
               QWidget& window);

    // What a file is called at first, without its ending.
    void setProposal(std::function<QString()> proposal) { proposal_ = std::move(proposal); }

    void savePdf();
    void savePng();
    void saveText();
    void printOut();

signals:
    // A whole sentence for the user.
    void failed(const QString& text);
    void saved(const QString& text);

private:
    QString askName(const QString& title, const QString& ending, const QString& kinds) const;
    // Runs `write` with a box that shows how far it is and can stop it; `done` is what is
    // said afterwards.
    void writeOut(const QString& what, const QString& done,
                  const std::function<std::optional<QString>(const WriteProgress&)>& write);

    PaperRoll& roll_;
    const PaintOptions& options_;
    const WindowQuestions& questions_;
    QWidget& window_;
    std::function<QString()> proposal_ = [] { return QStringLiteral("papel"); };
};

}  // namespace tarn::dotmatrix
