#pragma once

namespace mirolen::qt {

/// Stands in a function that lets Qt paint, and clears the upper halves of the vector registers when the
/// function ends. The raster engine of Qt 6.4 leaves them in use, and while they are, code that is not built
/// for AVX and calls the mathematics of the C library, as renderers do, can run twenty times slower.
class FullSpeedAfterPainting {
 public:
  FullSpeedAfterPainting() = default;
  FullSpeedAfterPainting(const FullSpeedAfterPainting&) = delete;
  FullSpeedAfterPainting& operator=(const FullSpeedAfterPainting&) = delete;
  ~FullSpeedAfterPainting();
};

}  // namespace mirolen::qt
