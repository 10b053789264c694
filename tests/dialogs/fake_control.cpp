#include "fake_control.h"

namespace mirolen {

using automation::MemberInfo;
using automation::MemberKind;
using automation::Type;
using automation::Variant;

FakeControl::FakeControl(std::string class_name) { info_.name = std::move(class_name); }

FakeControl& FakeControl::with(const std::string& property, Variant value) {
  const Type type = automation::type_of(value);
  MemberInfo get{property, MemberKind::get, {}, type, {}, {}, {}};
  get.call = [property](void* self, std::span<Variant>) {
    return static_cast<FakeControl*>(self)->values_.at(property);
  };
  MemberInfo let{property, MemberKind::let, {}, Type::none, {}, {{"v", type, false, false}}, {}};
  let.call = [property](void* self, std::span<Variant> arguments) {
    auto& control = *static_cast<FakeControl*>(self);
    control.writes.emplace_back(property, arguments[0]);
    control.values_[property] = arguments[0];
    return Variant();
  };
  info_.members.push_back(std::move(get));
  info_.members.push_back(std::move(let));
  values_[property] = std::move(value);
  return *this;
}

FakeControl fake_of_all(const std::string& class_name) {
  return std::move(FakeControl(class_name)
                       .with("WaferDiameter", 200.0)
                       .with("TestDiameter", 194.0)
                       .with("WaferStyle", std::int32_t{1})
                       .with("HideLegend", false));
}

FakeControl fake_LineScan() { return std::move(fake_of_all("LineScan").with("angle", std::int16_t{0})); }

FakeControl fake_Plot2D() {
  return std::move(fake_of_all("Plot2D").with("Resolution", 5.0).with("ShowSites", std::int32_t{0}));
}

FakeControl fake_Plot2DS() {
  return std::move(fake_of_all("Plot2DS")
                       .with("Resolution", 5.0)
                       .with("ShowSites", std::int32_t{0})
                       .with("SigmaRange", 0.5));
}

FakeControl fake_Plot2DC() {
  return std::move(fake_of_all("Plot2DC")
                       .with("Interval", 1.0)
                       .with("IntervalInPercent", std::int16_t{-1})
                       .with("PlotColored", std::int32_t{-1})
                       .with("Resolution", std::int32_t{0})
                       .with("marksites", std::int32_t{1}));
}

namespace {

FakeControl fake_surface(const std::string& class_name) {
  return std::move(fake_of_all(class_name)
                       .with("XResolution", 5.0)
                       .with("YResolution", 5.0)
                       .with("PlotScale", std::int16_t{40})
                       .with("GridInclination", std::int16_t{35})
                       .with("GridRotation", std::int16_t{40})
                       .with("WaferRotation", std::int16_t{40}));
}

}  // namespace

FakeControl fake_Plot3D() { return std::move(fake_surface("Plot3D").with("PlotType", std::int32_t{1})); }

FakeControl fake_Plot3DS() { return std::move(fake_surface("Plot3DS").with("SigmaRange", 0.5)); }

FakeControl fake_Histogram() {
  return std::move(fake_of_all("Histogram").with("Resolution", 10.0).with("PlotType", std::int32_t{1}));
}

std::vector<FakeControl> all_fakes() {
  std::vector<FakeControl> fakes;
  fakes.push_back(fake_LineScan());
  fakes.push_back(fake_Plot2D());
  fakes.push_back(fake_Plot2DS());
  fakes.push_back(fake_Plot2DC());
  fakes.push_back(fake_Plot3D());
  fakes.push_back(fake_Plot3DS());
  fakes.push_back(fake_Histogram());
  return fakes;
}

}  // namespace mirolen
