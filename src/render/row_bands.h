#pragma once
// Rows shared out among the processor's cores.

#include <algorithm>
#include <cstdint>
#include <future>
#include <thread>
#include <vector>

namespace zu {

/// Calls `work(from, to)` for bands that make up the rows 0 to `rows`, side by side where a row of
/// `row_size` pixels makes it worth while. The work of different rows must not meet.
template <class work>
void in_row_bands(std::uint64_t rows, std::uint64_t row_size, const work& of) {
  constexpr std::uint64_t worth_a_thread = 1 << 16;  // pixels
  std::uint64_t cores = std::max(1U, std::thread::hardware_concurrency());
  std::uint64_t bands = std::clamp<std::uint64_t>(rows * row_size / worth_a_thread, 1, cores);
  std::vector<std::future<void>> others;
  others.reserve(bands);
  for (std::uint64_t band = 1; band < bands; ++band)
    others.push_back(std::async(
        [&of, from = rows * band / bands, to = rows * (band + 1) / bands] { of(from, to); }));
  of(0, rows / bands);
  for (std::future<void>& other : others) other.get();
}

}  // namespace zu
