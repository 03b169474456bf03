// How far a run of many items is, reported by what does the work.
#pragma once

#include <cstddef>
#include <functional>

namespace tarn {

// Called now and then, on the thread of the run, with `done` from 0 to `total`; the
// run is over when they are equal. May be empty.
using Progress = std::function<void(std::size_t done, std::size_t total)>;

}  // namespace tarn
