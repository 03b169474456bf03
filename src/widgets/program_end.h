// The end of the program: asked for once, from any screen, and final.
#pragma once

#include <QObject>

namespace tarn {

// Thrown to leave a routine that the end of the program came over while it waited. Nothing
// but the event loop catches it.
struct ProgramEnded {};

class ProgramEnd : public QObject {
    Q_OBJECT

public:
    // Nothing is asked, sent or saved. The first call decides the exit status.
    void endProgram(int status = 0);
    // The program is about to end with this status, whoever asks for the end first.
    void failWith(int status);

    bool ended() const { return ended_; }
    bool failing() const { return failing_; }
    // ProgramEnded once the program has ended.
    void leaveIfEnded() const;
    int status() const { return status_; }

signals:
    void didEnd(int status);

private:
    bool ended_ = false;
    bool failing_ = false;
    int status_ = 0;
};

}  // namespace tarn
