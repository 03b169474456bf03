// Keeps a connection open for its sender while the toolkit closes it already: a sender that
// sees it close knows that its job is taken.
#pragma once

#include <QtGlobal>

namespace tarn::dotmatrix {

class SenderEnd {
public:
    // Of a connected socket, which may be closed from now on.
    explicit SenderEnd(qintptr socket);
    ~SenderEnd();
    SenderEnd(const SenderEnd&) = delete;
    SenderEnd& operator=(const SenderEnd&) = delete;

    void close();
    // The sender is told that its job was not taken.
    void refuse();

private:
    qintptr socket_;  // -1 for none
};

}  // namespace tarn::dotmatrix
