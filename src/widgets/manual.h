// The clerk's manual, shown by the desktop's browser.
#pragma once

#include <QObject>
#include <QString>
#include <string>

class QApplication;
class QWidget;

namespace tarn {

// Files of the manual are found below this prefix of Qt's search paths.
inline constexpr char manualPrefix[] = "manual";

// The page for the innermost screen around `widget` that has one, else its first page; empty: no
// manual lies beside the program.
QString manualPage(const QWidget* widget);

// Opens that page. What was in the way, as a text for the user; empty: nothing.
std::string openManual(const QWidget* widget);

// F1 wherever it is pressed, also under a box.
class ManualKey : public QObject {
    Q_OBJECT

public:
    // One for each application, owned by it. Made before the filters that judge keys, it gets
    // those that they let through.
    explicit ManualKey(QApplication& application);

signals:
    void notOpened(const QString& trouble);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

}  // namespace tarn
