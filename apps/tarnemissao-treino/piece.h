// One of the programs of a practice session. One that breaks is started again.
#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace tarn::practice {

class Piece : public QObject {
    Q_OBJECT

public:
    // `program` stands beside this program. What it says on its error output is kept in the
    // file `told`; what it says on its output is told line by line.
    Piece(const QString& program, const QString& told, QObject* parent);
    ~Piece() override;

    void start(const QStringList& arguments);
    // What it is started with when it breaks.
    void startAgainWith(const QStringList& arguments) { arguments_ = arguments; }
    // Ends it, and waits until it has ended.
    void stop();

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    const QString& program() const { return program_; }

signals:
    void said(const QString& line);
    // It ended by itself; `broken`: it broke so often that it isn't started any more, or it
    // could not be started at all.
    void ended(int status, bool broken);

private:
    void finished(int status, QProcess::ExitStatus how);
    void read();

    QString program_;
    QProcess process_;
    QStringList arguments_;
    int restarts_ = 0;
    bool stopping_ = false;
};

}  // namespace tarn::practice
