#include "printer/intake/sender_end.h"

#ifdef Q_OS_WIN
#include <winsock2.h>
// after winsock2.h, which must come before it
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace tarn::dotmatrix {

#ifdef Q_OS_WIN

namespace {

qintptr secondHandle(qintptr socket) {
    WSAPROTOCOL_INFOW record{};
    if (WSADuplicateSocketW(static_cast<SOCKET>(socket), GetCurrentProcessId(), &record) != 0) {
        return -1;
    }
    return static_cast<qintptr>(WSASocketW(FROM_PROTOCOL_INFO, FROM_PROTOCOL_INFO,
                                           FROM_PROTOCOL_INFO, &record, 0, WSA_FLAG_OVERLAPPED));
}

void closeHandle(qintptr socket) {
    closesocket(static_cast<SOCKET>(socket));
}

void setResetOnClose(qintptr socket, bool reset) {
    const linger atOnce{.l_onoff = reset, .l_linger = 0};
    setsockopt(static_cast<SOCKET>(socket), SOL_SOCKET, SO_LINGER,
               reinterpret_cast<const char*>(&atOnce), sizeof atOnce);
}

}  // namespace

#else

namespace {

qintptr secondHandle(qintptr socket) {
    return fcntl(static_cast<int>(socket), F_DUPFD_CLOEXEC, 0);
}

void closeHandle(qintptr socket) {
    ::close(static_cast<int>(socket));
}

void setResetOnClose(qintptr socket, bool reset) {
    const linger atOnce{.l_onoff = reset, .l_linger = 0};
    setsockopt(static_cast<int>(socket), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

}  // namespace

#endif

SenderEnd::SenderEnd(qintptr socket) : socket_(secondHandle(socket)) {
    if (socket_ != -1) {
        setResetOnClose(socket_, true);
    }
}

SenderEnd::~SenderEnd() {
    if (socket_ != -1) {
        closeHandle(socket_);
    }
}

void SenderEnd::close() {
    if (socket_ != -1) {
        setResetOnClose(socket_, false);
        closeHandle(socket_);
        socket_ = -1;
    }
}

}  // namespace tarn::dotmatrix
