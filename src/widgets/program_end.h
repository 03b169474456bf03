// The end of the program: asked for once, from any screen, and final.
#pragma once

#include <QObject>

namespace tarn {

class FimDoPrograma : public QObject {
    Q_OBJECT

public:
    // Nothing is asked, sent or saved. The first call decides the exit status.
    void encerra(int status = 0);

    bool encerrado() const { return encerrado_; }
    int status() const { return status_; }

signals:
    void encerrou(int status);

private:
    bool encerrado_ = false;
    int status_ = 0;
};

}  // namespace tarn
