// The menus, the tool bar and the keys of a window, one command after the other.
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QString>
#include <functional>

class QMainWindow;
class QMenu;
class QToolBar;

namespace tarn::dotmatrix {

struct Command {
    const char* name = "";  // of the object
    QString text{};
    QKeySequence keys{};
    QKeySequence alsoKeys{};  // the same on another block of the keyboard
    QString hint{};
    bool inTools = false;  // is in the tool bar too
};

class WindowCommands {
public:
    // Makes the tool bar; `window` must outlive this.
    explicit WindowCommands(QMainWindow& window);

    // What follows goes into this menu; in the tool bar it is set apart.
    QMenu* menu(const char* name, const QString& title);
    QAction* add(const Command& command, const std::function<void()>& run);
    QAction* addSwitch(const Command& command, bool on, const std::function<void(bool)>& run);
    void separate();

private:
    QAction* place(const Command& command);

    QMainWindow& window_;
    QToolBar* tools_;
    QMenu* menu_ = nullptr;
};

}  // namespace tarn::dotmatrix
