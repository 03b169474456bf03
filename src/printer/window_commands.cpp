#include "printer/window_commands.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace tarn::dotmatrix {

WindowCommands::WindowCommands(QMainWindow& window)
    : window_(window), tools_(window.addToolBar(QStringLiteral("Comandos"))) {
    tools_->setObjectName(QStringLiteral("commands"));
    tools_->setMovable(false);
    tools_->setToolButtonStyle(Qt::ToolButtonTextOnly);
}

QMenu* WindowCommands::menu(const char* name, const QString& title) {
    if (!tools_->actions().isEmpty() && !tools_->actions().back()->isSeparator()) {
        tools_->addSeparator();
    }
    menu_ = window_.menuBar()->addMenu(title);
    menu_->setObjectName(QLatin1StringView(name));
    return menu_;
}

void WindowCommands::separate() {
    menu_->addSeparator();
}

QAction* WindowCommands::place(const Command& command) {
    auto* action = new QAction(command.text, &window_);
    action->setObjectName(QLatin1StringView(command.name));
    QList<QKeySequence> keys{command.keys};
    if (!command.alsoKeys.isEmpty()) {
        keys += command.alsoKeys;
    }
    action->setShortcuts(keys);
    if (!command.hint.isEmpty()) {
        const QString shown = command.keys.toString(QKeySequence::NativeText);
        action->setToolTip(shown.isEmpty() ? command.hint
                                           : QStringLiteral("%1 (%2)").arg(command.hint, shown));
        action->setStatusTip(command.hint);
    }
    menu_->addAction(action);
    if (command.inTools) {
        tools_->addAction(action);
    }
    return action;
}

QAction* WindowCommands::add(const Command& command, const std::function<void()>& run) {
    QAction* action = place(command);
    QObject::connect(action, &QAction::triggered, &window_, run);
    return action;
}

QAction* WindowCommands::addSwitch(const Command& command, bool on,
                                   const std::function<void(bool)>& run) {
    QAction* action = place(command);
    action->setCheckable(true);
    action->setChecked(on);
    QObject::connect(action, &QAction::toggled, &window_, run);
    return action;
}

}  // namespace tarn::dotmatrix
