#include <windows.h>

#include <QProcess>

#include "apps/tarnemissao-treino/tie.h"

namespace tarn::practice {
namespace {

// Windows ends its programs with its last handle, which nobody inherits. What a piece opens
// for the user, as a browser, isn't of the session and stays.
HANDLE sessionsJob() {
    static const HANDLE job = [] {
        const HANDLE made = CreateJobObjectW(nullptr, nullptr);
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags =
            JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
        SetInformationJobObject(made, JobObjectExtendedLimitInformation, &limits, sizeof limits);
        return made;
    }();
    return job;
}

}  // namespace

void tieBeforeStart(QProcess& /*process*/) {}

// One that couldn't be started has no number, and nothing is opened.
void tieStarted(const QProcess& process) {
    const HANDLE piece = OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE,
                                     static_cast<DWORD>(process.processId()));
    if (piece != nullptr) {
        AssignProcessToJobObject(sessionsJob(), piece);
        CloseHandle(piece);
    }
}

}  // namespace tarn::practice
