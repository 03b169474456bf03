// Draws single pages of PDF files, in a program beside the window and decoded beside it.
#pragma once

#include <QImage>
#include <QObject>
#include <QSizeF>
#include <QString>
#include <QThreadPool>

#include "printer/sheets/pdf_program.h"

namespace tarn::dotmatrix {

// One page at one size.
struct SheetWanted {
    QString path;
    int page = 0;  // from 1
    int version = 0;
    double dots = 96;  // an inch
};

class SheetPainter : public QObject {
    Q_OBJECT

public:
    explicit SheetPainter(QString program);

    bool isBusy() const { return busy_; }
    // Not while it is busy.
    void paint(const SheetWanted& wanted);
    // Dots an inch for a page of `points`, so few that its picture stays of a bearable size.
    static double bearableDots(double dots, const QSizeF& points);

signals:
    // No picture where the page can't be drawn.
    void painted(const tarn::dotmatrix::SheetWanted& wanted, const QImage& picture);

private:
    void decode(const SheetWanted& wanted, const QByteArray& bytes);
    void finish(const SheetWanted& wanted, const QImage& picture);

    QString name_;
    PdfProgram program_;
    QThreadPool decoders_;  // ends before this does
    bool busy_ = false;
};

}  // namespace tarn::dotmatrix
