// The end of the program: asked for once, from any screen, and final.
#pragma once

#include <QObject>

namespace tarn {

class ProgramEnd : public QObject {
    Q_OBJECT

public:
    // Nothing is asked, sent or saved. The first call decides the exit status.
    void endProgram(int status = 0);

    bool ended() const { return ended_; }
    int status() const { return status_; }

signals:
    void didEnd(int status);

private:
    bool ended_ = false;
    int status_ = 0;
};

}  // namespace tarn
