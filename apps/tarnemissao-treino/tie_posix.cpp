#include <QProcess>

#include "apps/tarnemissao-treino/tie.h"

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#endif

namespace tarn::practice {

void tieBeforeStart([[maybe_unused]] QProcess& process) {
#ifdef Q_OS_LINUX
    process.setChildProcessModifier([parent = getpid()] {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != parent) {  // gone before it was asked for
            _exit(1);
        }
    });
#endif
}

void tieStarted(const QProcess& /*process*/) {}

}  // namespace tarn::practice
