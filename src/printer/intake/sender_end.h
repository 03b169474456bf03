// Keeps a connection open for its sender while the toolkit closes it already. A sender that
// sees it close in order knows that its job is taken; it is reset in every other case, also
// where the program is killed.
#pragma once

#include <QtGlobal>

namespace tarn::dotmatrix {

class SenderEnd {
public:
    // Of a connected socket, which may be closed from now on.
    explicit SenderEnd(qintptr socket);
    ~SenderEnd();  // reset, if it is still open
    SenderEnd(const SenderEnd&) = delete;
    SenderEnd& operator=(const SenderEnd&) = delete;

    // The sender is told that its job was taken.
    void close();

private:
    qintptr socket_;  // -1 for none
};

}  // namespace tarn::dotmatrix
