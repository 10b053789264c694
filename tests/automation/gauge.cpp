#include "gauge.h"

#include <utility>

#include "mirolen/automation/ClassBuilder.h"

namespace mirolen::automation {
namespace {

void tell_properties(ClassBuilder<Gauge>& tell) {
  tell.field("Level", "height", &Gauge::Level)
      .field("Step", "step", &Gauge::Step)
      .field("Loud", "sound", &Gauge::Loud)
      .field("Name", "name", &Gauge::Name)
      .field("Paint", "colour", &Gauge::Paint)
      .enumeration({"Mode", {{"Off", 0}, {"Slow", 1}, {"Fast", 7}}})
      .property(
          "Speed", "speed", [](const Gauge& g) { return g.Speed; }, [](Gauge& g, Mode v) { g.Speed = v; })
      .from("Mode")
      .object(
          "Attached", "probe", [](const Gauge& g) { return g.Attached; },
          [](Gauge& g, std::shared_ptr<Probe> v) { g.Attached = std::move(v); })
      .read_only("Doubled", "twice the level", [](const Gauge& g) { return 2 * g.Level; });
}

void tell_methods(ClassBuilder<Gauge>& tell) {
  tell.method("Reset", "back to 0", {}, [](Gauge& g) { g.Level = 0; })
      .method("Swap", "exchanges two numbers", {"a", "b"},
              [](Gauge&, double& a, double& b) { std::swap(a, b); })
      .method("Fill", "an array of n ones; the sum", {"n", "into"},
              [](Gauge&, std::int16_t n, Array& into) {
                into = Array(std::vector<double>(static_cast<std::size_t>(n), 1.0));
                return static_cast<double>(n);
              })
      .method("Sum", "of an array", {"of"},
              [](Gauge&, const Array& of) {
                double sum = 0;
                for (const double value : of.values()) sum += value;
                return sum;
              })
      .method("Mark", "with an optional frame", {"text", "frame"},
              [](Gauge& g, const std::string& text, std::optional<bool> frame) {
                g.last_call = text + (!frame ? " -" : *frame ? " True" : " False");
              })
      .method("Fail", "throws", {}, [](Gauge&) { throw DivisionByZero(); })
      .event({"Moved", {{"to", Type::real}}});
}

void tell_stored(ClassBuilder<Gauge>& tell) {
  tell.stored("Level", Type::int16, 5.0, "Level")
      .stored("Loud", Type::boolean, true, "Loud")
      .stored("Paint", Type::int32, std::nullopt, "Paint")
      .stored("Name", Type::text, std::string("none"), "Name")
      .stored("Step", Type::int16, 3.0, "Step");
}

}  // namespace

const ClassInfo& description_of_gauge() {
  static const ClassInfo info = [] {
    ClassBuilder<Gauge> tell("Gauge");
    tell_properties(tell);
    tell_methods(tell);
    tell_stored(tell);
    return tell.build();
  }();
  return info;
}

}  // namespace mirolen::automation
