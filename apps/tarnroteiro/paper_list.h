// Which of the jobs in the printer's folder are which document's: `papel.txt` in that
// folder, a line each, such as "nota job-003.prn".
#pragma once

#include <QString>
#include <QStringList>

namespace tarn {

// All jobs that the list doesn't hold yet are of this document.
void listJobs(const QString& folder, const QString& document);

// Their files, with the folder, in the order of printing; empty for none.
QStringList jobsOf(const QString& folder, const QString& document);

}  // namespace tarn
