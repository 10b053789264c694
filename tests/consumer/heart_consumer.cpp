#include <mirolen/controls/Plot2D.h>
#include <mirolen/controls/descriptions.h>
#include <mirolen/widgets/Headless.h>

#include <cstdio>
#include <vector>

int main() {
  mirolen::HeadlessToolkit toolkit;
  mirolen::HeadlessContainer form;
  mirolen::Plot2D plot(toolkit, form);
  plot.InitProperties();
  const std::vector<double> x{-50, 50, 0, 0}, y{0, 0, -50, 50}, z{1, 2, 3, 4};
  const bool drawn = plot.SetWaferData(x, y, z) == 0 && plot.Plot() == 0;
  const bool told = std::get<double>(mirolen::automation::get(mirolen::described(plot), "mean")) == 2.5;
  const bool painted = mirolen::recording_of(plot.PLOTA).size() > 64;
  std::printf("heart consumer: %s\n", drawn && told && painted ? "ok" : "FAILED");
  return drawn && told && painted ? 0 : 1;
}
