#include <cmath>
#include <optional>
#include <random>
#include <sstream>

#include "control_support.h"
#include "mirolen/automation/PropertyBag.h"
#include "mirolen/widgets/Form.h"

namespace mirolen {
namespace {

using automation::MemberInfo;
using automation::MemberKind;
using automation::Type;
using automation::Variant;

/// All that is seen of a widget and below it: places, colours, texts, and what the pictures were told. A
/// picture and its stretched snapshot are one and the same to the eye.
class Seen {
 public:
  explicit Seen(const Widget& root) { add(root, "control"); }
  std::string text() const { return text_.str(); }

 private:
  void add(const Widget& widget, const std::string& name) {
    const bool is_root = !widget.container();
    if (!is_root && !widget.Visible) return;
    const auto* const snapshot = dynamic_cast<const ImageBox*>(&widget);
    if (snapshot && !snapshot->Stretch) return;
    const auto* const picture = dynamic_cast<const PictureBox*>(&widget);
    text_ << (snapshot || picture ? "picture" : name) << " at " << widget.Left << ' ' << widget.Top << ' '
          << widget.Width << ' ' << widget.Height << ' ' << widget.ToolTipText.get();
    if (snapshot) {
      add(recording_of(snapshot->Picture.get()));
    } else if (picture) {
      add(recording_of(*picture));
    } else {
      text_ << " colour " << widget.BackColor;
      add_text(widget);
    }
    text_ << '\n';
    for (const Widget* child : widget.children())
      add(*child, name + '.' + std::to_string(static_cast<int>(child->kind())));
  }
  void add_text(const Widget& widget) {
    if (const auto* captioned = dynamic_cast<const Captioned*>(&widget))
      text_ << " '" << captioned->Caption.get() << "'";
    if (const auto* field = dynamic_cast<const TextField*>(&widget)) text_ << " text " << field->Text();
    if (const auto* line = dynamic_cast<const LineShape*>(&widget))
      text_ << " from " << line->X1 << ' ' << line->Y1 << " to " << line->X2 << ' ' << line->Y2;
  }
  void add(const Recording& recording) {
    Recording drawn;
    for (const recorded::Call& call : recording)
      if (!std::holds_alternative<recorded::Refresh>(call)) drawn.push_back(call);
    text_ << '\n';
    write_json_lines(drawn, text_);
  }

  std::ostringstream text_;
};

/// The first line in which two texts differ.
std::string first_difference(const std::string& actual, const std::string& expected) {
  std::istringstream a(actual), b(expected);
  std::string line_a, line_b;
  for (int line = 1;; ++line) {
    const bool more_a = static_cast<bool>(std::getline(a, line_a));
    const bool more_b = static_cast<bool>(std::getline(b, line_b));
    if (!more_a && !more_b) return {};
    if (!more_a) line_a = "(nothing)";
    if (!more_b) line_b = "(nothing)";
    if (line_a != line_b) return "line " + std::to_string(line) + "\n  is   " + line_a + "\n  not  " + line_b;
  }
}

/// What a drawing keeps until the next one: it is only stretched to another size, and a turn of the wafer
/// waits for it.
struct AtTheDrawing {
  double width = 0, height = 0;
  bool legend_hidden = false;
  Variant wafer_rotation;
};

/// A control that a host and its user work with in any order.
template <class Control>
class SamePicture : public ControlTest<Control> {
 protected:
  SamePicture() : seed_(wanted_seed()), random_(seed_) {
    this->RecordProperty("MIROLEN_SEED", std::to_string(seed_));
    this->toolkit.on_modal = [this](Form& form) { use(form); };
  }

  void work() {
    using Deed = void (SamePicture::*)();
    static constexpr Deed deeds[] = {
        &SamePicture::load,           &SamePicture::load,           &SamePicture::load_what_is_refused,
        &SamePicture::plot,           &SamePicture::plot,           &SamePicture::change_size,
        &SamePicture::change_size,    &SamePicture::set_limits,     &SamePicture::set_limits,
        &SamePicture::release_limits, &SamePicture::hide_legend,    &SamePicture::ask_options,
        &SamePicture::clear,          &SamePicture::make_invalid,   &SamePicture::read_a_bag,
        &SamePicture::drag,           &SamePicture::type_an_angle,  &SamePicture::set_a_property,
        &SamePicture::set_a_property, &SamePicture::set_a_property, &SamePicture::set_a_property,
        &SamePicture::set_a_property};
    const std::shared_ptr<const Image> before = snapshot();
    (this->*deeds[up_to(std::size(deeds) - 1)])();
    if (snapshot() != before || !snapshot()) drawn_ = present();
  }

  /// Plots, and compares all that is seen with what a new control shows that is given the same settings.
  void expect_the_picture_of_a_fresh_control() {
    const std::shared_ptr<const Image> before = snapshot();
    if (control().Plot() != 0) return;
    if (snapshot() != before || !snapshot()) drawn_ = present();
    ++compared_;

    SpyToolkit toolkit;
    HeadlessContainer form;
    Open<Control> fresh(toolkit, form);
    take_settings(fresh);
    arrange(fresh, drawn_);
    fresh.wafobj = control().wafobj;
    fresh.resize_to(fresh.Width, fresh.Height);
    fresh.Plot();
    arrange(fresh, present());
    fresh.Plot();
    const std::string difference = first_difference(Seen(control()).text(), Seen(fresh).text());
    ASSERT_TRUE(difference.empty()) << difference << "\nafter" << log_.str();
    log_ = {};
  }

  std::string note() const { return "MIROLEN_SEED=" + std::to_string(seed_); }
  int compared() const { return compared_; }
  Open<Control>& control() { return ControlTest<Control>::control; }

 private:
  static std::string text_of(const Variant& value) {
    return std::get<std::string>(automation::converted(value, Type::text));
  }
  static const MemberInfo* setter(const std::string& property) {
    return description_of<Control>().find(property, MemberKind::let);
  }

  std::size_t up_to(std::size_t highest) {
    return std::uniform_int_distribution<std::size_t>(0, highest)(random_);
  }
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  bool one_in(std::size_t many) { return up_to(many - 1) == 0; }

  std::shared_ptr<const Image> snapshot() {
    if constexpr (std::is_base_of_v<MapFrame, Control>) return control().RePlot.Picture;
    return nullptr;
  }
  AtTheDrawing present() {
    AtTheDrawing now{control().Width, control().Height, control().HideLegend(), {}};
    if (setter("WaferRotation")) now.wafer_rotation = automation::get(this->object(), "WaferRotation");
    return now;
  }
  void arrange(Open<Control>& fresh, const AtTheDrawing& now) {
    if (setter("WaferRotation"))
      automation::let(described(static_cast<Control&>(fresh)), "WaferRotation", now.wafer_rotation);
    fresh.HideLegend(now.legend_hidden);
    fresh.resize_to(now.width, now.height);
  }
  void take_settings(Open<Control>& fresh) {
    fresh.InitProperties();
    const automation::Object from = this->object(), to = described(static_cast<Control&>(fresh));
    for (const MemberInfo& member : description_of<Control>().members)
      if (member.kind == MemberKind::let)
        automation::let(to, member.name, automation::get(from, member.name));
    fresh.PLOTA.BackColor = control().PLOTA.BackColor;
  }

  SiteColumns sites() {
    SiteColumns sites;
    const std::size_t count = one_in(8) ? 1 + up_to(8) : 10 + up_to(30);
    const double base = one_in(4) ? between(-90, 0) : 0, spread = one_in(8) ? 0 : 100;
    for (std::size_t i = 0; i < count; ++i) {
      sites.x.push_back(between(-60, 60));
      sites.y.push_back(between(-60, 60));
      sites.z.push_back(base + spread * between(0, 1));
    }
    return sites;
  }
  void load() {
    const SiteColumns some = sites();
    log_ << "\nload " << some.x.size();
    control().load(some);
  }
  void plot() {
    log_ << "\nPlot";
    control().Plot();
  }
  void change_size() {
    const double width = between(3000, 12000), height = between(2500, 9000);
    log_ << "\nsize " << width << ' ' << height;
    control().resize_to(width, height);
  }
  void set_limits() {
    const double low = between(-5, 60), high = between(40, 120);
    log_ << "\nlimits " << low << ' ' << high;
    control().SetPlotLimit(low, high);
  }
  void release_limits() {
    log_ << "\nrelease";
    control().ReleasePlotLimit();
  }
  void hide_legend() {
    const bool hide = one_in(2);
    log_ << "\nHideLegend " << hide;
    control().HideLegend(hide);
  }
  void ask_options() {
    log_ << "\noptions";
    control().ShowPlotOption();
  }
  void clear() {
    log_ << "\nclear";
    control().clear();
  }
  void make_invalid() {
    log_ << "\nSetPlotNotVaild";
    control().SetPlotNotVaild();
  }
  /// Arrays of different lengths, a number that is none; a site outside or no file, which spoil the store
  /// until the next load.
  void load_what_is_refused() {
    log_ << "\nrefused";
    SiteColumns bad = sites();
    switch (up_to(3)) {
      case 0:
        bad.y.push_back(0);
        break;
      case 1:
        bad.x.back() = 1e6;
        control().load(bad);
        return load();
      case 2:
        bad.z.back() = not_a_number;
        break;
      default:
        control().SetDataFile("nowhere", 5);
        return load();
    }
    control().load(bad);
  }

  Variant value_for(const MemberInfo& member) {
    if (!member.enumeration.empty()) {
      for (const automation::EnumInfo& known : description_of<Control>().enumerations)
        if (known.name == member.enumeration) return known.values[up_to(known.values.size() - 1)].second;
    }
    const std::string& name = member.name;
    const auto has = [&](const char* part) { return name.find(part) != std::string::npos; };
    switch (member.arguments[0].type) {
      case Type::boolean:
        return one_in(2);
      case Type::text:
        return std::string(one_in(2) ? "nm" : "a longer text");
      case Type::int32:
        return static_cast<std::int32_t>(up_to(0xFFFFFF));
      case Type::int16:
        // Within every test diameter: a line that misses its circle leaves the drawing before.
        if (has("Point")) return static_cast<std::int16_t>(static_cast<int>(up_to(90)) - 45);
        if (has("Percent")) return static_cast<std::int16_t>(one_in(2) ? 0 : -1);
        return static_cast<std::int16_t>(static_cast<int>(up_to(380)) - 10);
      default:
        if (name == "WaferDiameter") return one_in(3) ? 300. : 200.;
        if (name == "TestDiameter") return between(130, 220);
        if (name == "SigmaRange") return between(0, 3);
        if (name == "BeamScale") return between(0, 3);
        return between(9, 60);  // steps, widths, intervals, classes
    }
  }
  void set_a_property() {
    const auto& members = description_of<Control>().members;
    const MemberInfo* member = nullptr;
    while (!member || member->kind != MemberKind::let || member->name == "HideLegend" ||
           member->name == "MousePointer")
      member = &members[up_to(members.size() - 1)];
    const Variant value = value_for(*member);
    log_ << '\n' << member->name << ' ' << text_of(value);
    automation::let(this->object(), member->name, value);
  }
  void read_a_bag() {
    log_ << "\nbag";
    automation::MemoryPropertyBag bag;
    automation::WriteProperties(this->object(), bag);
    automation::ReadProperties(this->object(), bag);
  }
  /// Types into some fields, chooses some options, and presses OK or not.
  void use(Form& form) {
    for (Widget* widget : widgets_of(form)) {
      auto* const field = dynamic_cast<TextField*>(widget);
      if (field && one_in(3)) field->Text(std::to_string(5 + up_to(35)));
      auto* const option = dynamic_cast<OptionButton*>(widget);
      if (option && one_in(3)) option->Value(true);
    }
    if (form.DefaultButton && form.DefaultButton->OnClick && !one_in(4)) form.DefaultButton->OnClick();
  }
  void drag() {
    if constexpr (std::is_base_of_v<PerspectiveFrame, Control>) {
      log_ << "\ndrag";
      control().PLOTA.OnMouseDown({1, 0, 100, 100});
      control().PLOTA.OnMouseMove(
          {1, 0, static_cast<float>(between(0, 200)), static_cast<float>(between(0, 200))});
      control().PLOTA.OnMouseUp({1, 0, 0, 0});
    }
  }
  void type_an_angle() {
    if constexpr (std::is_same_v<Control, LineScan>) {
      log_ << "\nangle typed";
      control().AngleValue.Text(std::to_string(up_to(359)));
    }
  }

  unsigned long long seed_;
  std::mt19937_64 random_;
  std::ostringstream log_;  ///< What has been done since the last comparison.
  AtTheDrawing drawn_;
  int compared_ = 0;
};
TYPED_TEST_SUITE(SamePicture, AllControls, ControlNames);

TYPED_TEST(SamePicture, AsAFreshControlWithTheSameSettingsAfterEveryPlot) {
  this->place();
  for (int round = 0; round < 150 && !this->HasFailure(); ++round) {
    for (int deed = 0; deed < 6; ++deed) this->work();
    this->expect_the_picture_of_a_fresh_control();
    if (this->HasFailure()) ADD_FAILURE() << "round " << round << ' ' << this->note();
  }
  EXPECT_GT(this->compared(), 50);
}

}  // namespace
}  // namespace mirolen
