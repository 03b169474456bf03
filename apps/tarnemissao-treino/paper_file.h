// The continuous paper of all raw jobs of a session so far, kept as one PDF.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include "apps/tarnemissao-treino/session_folder.h"

namespace tarn::practice {

class PaperFile : public QObject {
    Q_OBJECT

public:
    // `folder` must be there, and outlive it.
    PaperFile(const SessionFolder& folder, QObject* parent);

    // The session ends: writes it a last time, and waits for it.
    void finish();

private:
    void write();

    const SessionFolder& folder_;
    QFileSystemWatcher watcher_;
    QTimer calm_;
    QProcess printer_;
};

}  // namespace tarn::practice
