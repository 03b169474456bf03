// The order in which the files of a folder were printed, and how often one is looked at.
#pragma once

#include <QString>
#include <chrono>

namespace tarn::dotmatrix {

inline constexpr std::chrono::milliseconds betweenFolderLooks(250);

// By the numbers in their names: job-999 comes before job-1000.
bool comesBefore(const QString& name, const QString& other);

}  // namespace tarn::dotmatrix
