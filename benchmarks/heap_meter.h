#pragma once

#include <cstddef>
#include <functional>

namespace orvik::benchmarks {

/// By how many bytes the heap of the whole program is larger than at the start when `work` needs most.
std::size_t PeakOf(const std::function<void()>& work);

}  // namespace orvik::benchmarks
