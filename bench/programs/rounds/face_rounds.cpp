// Answers the rounds of the controls on the screen, and those of the same controls without any drawing.

#include <QApplication>

#include "support/Rounds.h"
#include "support/faces.h"

namespace mirolen::bench {
namespace {

void add_faces(Works& works) {
  const auto add = [&](const std::string& what, std::string_view control, auto action) {
    const std::string name = what + "/" + std::string(control);
    works[name] = [=] { return Work{action(control, Ground::picture)}; };
    works["null/" + name] = [=] { return Work{action(control, Ground::nothing)}; };
  };
  for (const std::string_view control : control_names()) add("redraw", control, redrawing);
  for (const std::string_view control : names_in_perspective()) add("drag", control, dragging);
}

}  // namespace
}  // namespace mirolen::bench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  mirolen::bench::Works works;
  mirolen::bench::add_faces(works);
  return mirolen::bench::answer_rounds(works);
}
