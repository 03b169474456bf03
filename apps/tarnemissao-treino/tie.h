// Whatever becomes of this program, what it started ends with it, killed or not.
#pragma once

class QProcess;

namespace tarn::practice {

// Both are to be called, each at its time; a system does its part in one of them.
void tieBeforeStart(QProcess& process);
void tieStarted(const QProcess& process);

}  // namespace tarn::practice
